// RWTValSlist<T>: a singly linked list of values, with its iterators.
#pragma once

#include "rw/defs.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

template <class T>
class RWTValSlistIterator;
template <class T>
class RWTValSlistConstIterator;

template <class T>
class RWTValSlist {
public:
    void insert(const T& v) { items_.push_back(v); }
    void append(const T& v) { items_.push_back(v); }
    void prepend(const T& v) { items_.insert(items_.begin(), v); }
    void insertAt(size_t i, const T& v) { items_.insert(items_.begin() + std::min(i, items_.size()), v); }
    size_t entries() const { return items_.size(); }
    RWBoolean isEmpty() const { return items_.empty(); }
    T& at(size_t i) { return items_.at(i); }
    const T& at(size_t i) const { return items_.at(i); }
    T& operator[](size_t i) { return items_.at(i); }
    const T& operator[](size_t i) const { return items_.at(i); }
    T& first() { return items_.at(0); }
    const T& first() const { return items_.at(0); }
    T& last() { return items_.at(items_.size() - 1); }
    const T& last() const { return items_.at(items_.size() - 1); }
    RWBoolean contains(const T& v) const {
        return std::find(items_.begin(), items_.end(), v) != items_.end();
    }
    size_t index(const T& v) const {
        auto it = std::find(items_.begin(), items_.end(), v);
        return it == items_.end() ? RW_NPOS : static_cast<size_t>(it - items_.begin());
    }
    size_t occurrencesOf(const T& v) const {
        return static_cast<size_t>(std::count(items_.begin(), items_.end(), v));
    }
    RWBoolean find(const T& v, T& found) const {
        size_t i = index(v);
        if (i == RW_NPOS) return false;
        found = items_[i];
        return true;
    }
    RWBoolean remove(const T& v) {
        size_t i = index(v);
        if (i == RW_NPOS) return false;
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(i));
        return true;
    }
    size_t removeAll(const T& v) {
        size_t before = items_.size();
        items_.erase(std::remove(items_.begin(), items_.end(), v), items_.end());
        return before - items_.size();
    }
    T removeAt(size_t i) {
        T v = items_.at(i);
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(i));
        return v;
    }
    T removeFirst() { return removeAt(0); }
    T removeLast() { return removeAt(items_.size() - 1); }
    T get() { return removeFirst(); }
    void clear() { items_.clear(); }

    // Standard iteration, for range-for.
    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

private:
    friend class RWTValSlistIterator<T>;
    friend class RWTValSlistConstIterator<T>;
    std::vector<T> items_;
};

// Vendor iteration: operator() advances and tells whether there is an element; key() is that element.
template <class T>
class RWTValSlistIterator {
public:
    explicit RWTValSlistIterator(RWTValSlist<T>& list) : list_(&list) {}
    RWBoolean operator()() { return ++pos_ <= list_->entries(); }
    RWBoolean operator++() { return (*this)(); }
    T& key() const { return list_->items_.at(pos_ - 1); }
    void reset() { pos_ = 0; }

private:
    RWTValSlist<T>* list_;
    size_t pos_ = 0;
};

template <class T>
class RWTValSlistConstIterator {
public:
    explicit RWTValSlistConstIterator(const RWTValSlist<T>& list) : list_(&list) {}
    RWBoolean operator()() { return ++pos_ <= list_->entries(); }
    RWBoolean operator++() { return (*this)(); }
    const T& key() const { return list_->items_.at(pos_ - 1); }
    void reset() { pos_ = 0; }

private:
    const RWTValSlist<T>* list_;
    size_t pos_ = 0;
};
