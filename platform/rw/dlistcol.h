// RWDlistCollectables: a doubly linked list of collectable pointers. It does not own its elements:
// clearAndDestroy and removeAndDestroy delete them, clear and remove do not.
//
// saveGuts: the number of entries (4 bytes on RWFile and the binary stream, a number on the portable
// stream), then each element through the recursive save. restoreGuts: clear(), then the count and each
// element, appended in order.
#pragma once

#include "rw/collect.h"

#include <vector>

class RWDlistCollectables : public RWCollectable {
public:
    RWDlistCollectables() = default;
    RWDlistCollectables(const RWDlistCollectables&) = default; // shallow: the same elements
    RWDlistCollectables& operator=(const RWDlistCollectables&) = default;
    ~RWDlistCollectables() override = default;

    RWCollectable* newSpecies() const override { return new RWDlistCollectables; }
    RWCollectable* copy() const override { return new RWDlistCollectables(*this); }
    RWClassID isA() const override { return __RWDLISTCOLLECTABLES; }
    RWspace binaryStoreSize() const override;
    RWBoolean isEqual(const RWCollectable* other) const override;
    void restoreGuts(RWvistream& s) override;
    void restoreGuts(RWFile& f) override;
    void saveGuts(RWvostream& s) const override;
    void saveGuts(RWFile& f) const override;
    static RWClassID classIsA() { return __RWDLISTCOLLECTABLES; }

    RWCollectable* insert(RWCollectable* c) { return append(c); }
    RWCollectable* append(RWCollectable* c);
    RWCollectable* prepend(RWCollectable* c);
    RWCollectable* insertAt(size_t i, RWCollectable* c);
    size_t entries() const { return items_.size(); }
    RWBoolean isEmpty() const { return items_.empty(); }
    RWCollectable*& at(size_t i) { return items_.at(i); }
    RWCollectable* at(size_t i) const { return items_.at(i); }
    RWCollectable* first() const { return items_.empty() ? rwnil : items_.front(); }
    RWCollectable* last() const { return items_.empty() ? rwnil : items_.back(); }

    // The first element that says isEqual(target), from the front.
    RWCollectable* find(const RWCollectable* target) const;
    RWBoolean contains(const RWCollectable* target) const { return find(target) != rwnil; }
    size_t index(const RWCollectable* target) const;
    size_t occurrencesOf(const RWCollectable* target) const;
    RWCollectable* findReference(const RWCollectable* object) const; // by identity
    // Removes the first element equal to target and returns it (nil when none).
    RWCollectable* remove(const RWCollectable* target);
    RWCollectable* removeReference(const RWCollectable* object);
    void removeAndDestroy(const RWCollectable* target);
    RWCollectable* removeAt(size_t i);
    void clear() { items_.clear(); }
    // Deletes every element once, even one that stands in the list more than once.
    void clearAndDestroy();

private:
    friend class RWDlistCollectablesIterator;
    std::vector<RWCollectable*> items_;
};

class RWDlistCollectablesIterator {
public:
    explicit RWDlistCollectablesIterator(RWDlistCollectables& list) : list_(&list) {}
    // Advances and returns the next element, nil at the end.
    RWCollectable* operator()();
    RWCollectable* key() const {
        return pos_ > 0 && pos_ <= list_->entries() ? list_->items_[pos_ - 1] : rwnil;
    }
    void reset() { pos_ = 0; }

private:
    RWDlistCollectables* list_;
    size_t pos_ = 0;
};
