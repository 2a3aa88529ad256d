#include "rw/dlistcol.h"

#include "rw/rwfile.h"
#include "rw/rwstore.h"
#include "rw/vstream.h"

#include <algorithm>
#include <unordered_set>

RWCollectable* RWDlistCollectables::append(RWCollectable* c) {
    items_.push_back(c);
    return c;
}

RWCollectable* RWDlistCollectables::prepend(RWCollectable* c) {
    items_.insert(items_.begin(), c);
    return c;
}

RWCollectable* RWDlistCollectables::insertAt(size_t i, RWCollectable* c) {
    items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(std::min(i, items_.size())), c);
    return c;
}

RWCollectable* RWDlistCollectables::find(const RWCollectable* target) const {
    size_t i = index(target);
    return i == RW_NPOS ? rwnil : items_[i];
}

size_t RWDlistCollectables::index(const RWCollectable* target) const {
    for (size_t i = 0; i < items_.size(); ++i)
        if (items_[i] && items_[i]->isEqual(target)) return i;
    return RW_NPOS;
}

size_t RWDlistCollectables::occurrencesOf(const RWCollectable* target) const {
    return static_cast<size_t>(std::count_if(items_.begin(), items_.end(),
                                             [&](RWCollectable* c) { return c && c->isEqual(target); }));
}

RWCollectable* RWDlistCollectables::findReference(const RWCollectable* object) const {
    auto it = std::find(items_.begin(), items_.end(), object);
    return it == items_.end() ? rwnil : *it;
}

RWCollectable* RWDlistCollectables::removeAt(size_t i) {
    if (i >= items_.size()) return rwnil;
    RWCollectable* c = items_[i];
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(i));
    return c;
}

RWCollectable* RWDlistCollectables::remove(const RWCollectable* target) {
    size_t i = index(target);
    return i == RW_NPOS ? rwnil : removeAt(i);
}

RWCollectable* RWDlistCollectables::removeReference(const RWCollectable* object) {
    auto it = std::find(items_.begin(), items_.end(), object);
    return it == items_.end() ? rwnil : removeAt(static_cast<size_t>(it - items_.begin()));
}

void RWDlistCollectables::removeAndDestroy(const RWCollectable* target) { delete remove(target); }

void RWDlistCollectables::clearAndDestroy() {
    std::unordered_set<RWCollectable*> deleted;
    for (RWCollectable* c : items_)
        if (deleted.insert(c).second) delete c;
    items_.clear();
}

RWspace RWDlistCollectables::binaryStoreSize() const {
    RWspace size = 4;
    for (RWCollectable* c : items_)
        size += 2 + (c ? c->binaryStoreSize() : 4);
    return size;
}

RWBoolean RWDlistCollectables::isEqual(const RWCollectable* other) const {
    if (!other || other->isA() != isA()) return false;
    const auto& b = static_cast<const RWDlistCollectables*>(other)->items_;
    if (b.size() != items_.size()) return false;
    for (size_t i = 0; i < b.size(); ++i)
        if (items_[i] != b[i] && !(items_[i] && items_[i]->isEqual(b[i]))) return false;
    return true;
}

void RWDlistCollectables::saveGuts(RWFile& f) const {
    f.Write(static_cast<unsigned>(items_.size()));
    for (RWCollectable* c : items_)
        f << c;
}

void RWDlistCollectables::saveGuts(RWvostream& s) const {
    s << static_cast<unsigned>(items_.size());
    for (RWCollectable* c : items_)
        s << c;
}

// The count is not trusted for allocation: elements are appended as they arrive, and the loop ends
// with the stream.
void RWDlistCollectables::restoreGuts(RWFile& f) {
    clear();
    unsigned n = 0;
    if (!f.Read(n)) return;
    for (unsigned i = 0; i < n && f.good(); ++i) {
        RWCollectable* c = RWCollectable::recursiveRestoreFrom(f);
        if (!f.good() && !c) break;
        append(c);
    }
}

void RWDlistCollectables::restoreGuts(RWvistream& s) {
    clear();
    unsigned n = 0;
    s >> n;
    for (unsigned i = 0; i < n && s.good(); ++i) {
        RWCollectable* c = RWCollectable::recursiveRestoreFrom(s);
        if (!s.good() && !c) break;
        append(c);
    }
}

RWCollectable* RWDlistCollectablesIterator::operator()() {
    if (pos_ >= list_->entries()) {
        pos_ = list_->entries() + 1;
        return rwnil;
    }
    return list_->items_[pos_++];
}
