// RWTPtrHashTable<T>: a hash table of pointers with a caller's hash function. It does not own its
// elements (clearAndDestroy deletes them). Iteration runs bucket by bucket, and within a bucket in order
// of insertion, so elements that hash alike come back in the order they went in.
#pragma once

#include "rw/defs.h"

#include <vector>

template <class T>
class RWTPtrHashTableIterator;

template <class T>
class RWTPtrHashTable {
public:
    typedef unsigned (*HashFunction)(const T&);
    enum { RWDEFAULT_CAPACITY = 64 };

    explicit RWTPtrHashTable(HashFunction hash, size_t buckets = RWDEFAULT_CAPACITY)
        : hash_(hash), buckets_(buckets ? buckets : 1) {}

    void insert(T* a) {
        buckets_[bucketOf(*a)].push_back(a);
        ++entries_;
    }
    size_t entries() const { return entries_; }
    RWBoolean isEmpty() const { return entries_ == 0; }
    // The first element that compares equal to *a, by T's operator==.
    T* find(const T* a) const {
        for (T* e : buckets_[bucketOf(*a)])
            if (*e == *a) return e;
        return rwnil;
    }
    RWBoolean contains(const T* a) const { return find(a) != rwnil; }
    size_t occurrencesOf(const T* a) const {
        size_t n = 0;
        for (T* e : buckets_[bucketOf(*a)])
            if (*e == *a) ++n;
        return n;
    }
    T* remove(const T* a) {
        auto& bucket = buckets_[bucketOf(*a)];
        for (auto it = bucket.begin(); it != bucket.end(); ++it)
            if (**it == *a) {
                T* e = *it;
                bucket.erase(it);
                --entries_;
                return e;
            }
        return rwnil;
    }
    void clear() {
        for (auto& b : buckets_)
            b.clear();
        entries_ = 0;
    }
    void clearAndDestroy() {
        for (auto& b : buckets_)
            for (T* e : b)
                delete e;
        clear();
    }
    void resize(size_t buckets) {
        std::vector<std::vector<T*>> old;
        old.swap(buckets_);
        buckets_.resize(buckets ? buckets : 1);
        for (auto& b : old)
            for (T* e : b)
                buckets_[bucketOf(*e)].push_back(e);
    }
    size_t buckets() const { return buckets_.size(); }

private:
    friend class RWTPtrHashTableIterator<T>;
    size_t bucketOf(const T& a) const { return hash_(a) % buckets_.size(); }

    HashFunction hash_;
    std::vector<std::vector<T*>> buckets_;
    size_t entries_ = 0;
};

template <class T>
class RWTPtrHashTableIterator {
public:
    explicit RWTPtrHashTableIterator(RWTPtrHashTable<T>& table) : table_(&table) {}
    // Advances and returns the next element, nil at the end.
    T* operator()() {
        while (bucket_ < table_->buckets_.size()) {
            const auto& b = table_->buckets_[bucket_];
            if (index_ < b.size()) return current_ = b[index_++];
            ++bucket_;
            index_ = 0;
        }
        return current_ = rwnil;
    }
    T* key() const { return current_; }
    void reset() {
        bucket_ = index_ = 0;
        current_ = rwnil;
    }

private:
    RWTPtrHashTable<T>* table_;
    size_t bucket_ = 0;
    size_t index_ = 0;
    T* current_ = rwnil;
};
