// Store and read tables: object identity within one outer store or restore operation. Nested operations
// share the table of the outermost; only the guard that created a table frees it.
#pragma once

#include "rw/defs.h"

#include <optional>
#include <unordered_map>
#include <vector>

class RWCollectable;

class RWStoreTable {
public:
    RWStoreTable();
    // Gives object its number. True when it is new, false when it was stored before in this operation.
    RWBoolean add(const void* object, int& number);

private:
    // An operation stores few objects (a form: one; a list: itself, its collection): those in a short
    // array searched in order, a hash table only beyond it.
    static constexpr size_t kFew = 64;
    const void* few_[kFew];
    size_t nFew_ = 0; // object i of few_ has number i + 1
    std::unordered_map<const void*, int> numbers_;
    int next_ = 1; // 0 is nil
};

class RWReadTable {
public:
    RWReadTable();
    // Entries are numbered from 0 (nil) in the order they were appended.
    void append(RWCollectable* object) { add({object, object, true}); }
    void append(void* object) { add({object, nullptr, false}); } // no collectable, such as a form list
    size_t entries() const { return n_; }
    // The entry at number, or nil; isCollectable tells which kind it is.
    void* operator()(size_t number) const { return number < n_ ? at(number).object : rwnil; }
    RWBoolean isCollectable(size_t number) const { return number < n_ && at(number).collectable; }
    RWCollectable* collectableAt(size_t number) const {
        return number < n_ ? at(number).asCollectable : rwnil;
    }

private:
    struct Entry {
        void* object;
        RWCollectable* asCollectable;
        bool collectable;
    };
    // As with the store table: the first entries in an array of the table's own (a form restored alone
    // needs two), the rest in a vector.
    static constexpr size_t kFew = 16;
    void add(const Entry& e) {
        if (n_ < kFew)
            few_[n_] = e;
        else
            more_.push_back(e);
        ++n_;
    }
    const Entry& at(size_t number) const { return number < kFew ? few_[number] : more_[number - kFew]; }
    Entry few_[kFew];
    size_t n_ = 0;
    std::vector<Entry> more_;
};

class RWUseStoreTable {
public:
    RWUseStoreTable();
    ~RWUseStoreTable();
    RWUseStoreTable(const RWUseStoreTable&) = delete;
    RWUseStoreTable& operator=(const RWUseStoreTable&) = delete;
    RWBoolean firstUse() const { return created_; }
    RWStoreTable* operator->() const { return table_; }
    RWStoreTable& operator*() const { return *table_; }

private:
    std::optional<RWStoreTable> own_; // the outermost guard's table lives on its stack
    RWStoreTable* table_;
    bool created_;
};

class RWUseReadTable {
public:
    RWUseReadTable();
    ~RWUseReadTable();
    RWUseReadTable(const RWUseReadTable&) = delete;
    RWUseReadTable& operator=(const RWUseReadTable&) = delete;
    RWBoolean firstUse() const { return created_; }
    RWReadTable* operator->() const { return table_; }
    RWReadTable& operator*() const { return *table_; }

private:
    std::optional<RWReadTable> own_;
    RWReadTable* table_;
    bool created_;
};
