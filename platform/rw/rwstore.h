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
    void append(RWCollectable* object);
    void append(void* object); // an object that is no collectable, such as a form list
    size_t entries() const { return entries_.size(); }
    // The entry at number, or nil; isCollectable tells which kind it is.
    void* operator()(size_t number) const {
        return number < entries_.size() ? entries_[number].object : rwnil;
    }
    RWBoolean isCollectable(size_t number) const {
        return number < entries_.size() && entries_[number].collectable;
    }
    RWCollectable* collectableAt(size_t number) const;

private:
    struct Entry {
        void* object;
        RWCollectable* asCollectable;
        bool collectable;
    };
    std::vector<Entry> entries_;
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
