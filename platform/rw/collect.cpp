#include "rw/collect.h"

#include "rw/factory.h"
#include "rw/rwerr.h"
#include "rw/rwfile.h"
#include "rw/rwstore.h"
#include "rw/toolerr.h"
#include "rw/vstream.h"

#include <functional>
#include <memory>

namespace {

constexpr long kMagic = 0x8888;
constexpr unsigned short kReferenceTag = 0xFFFF;

thread_local RWStoreTable* currentStoreTable = nullptr;
thread_local RWReadTable* currentReadTable = nullptr;

// A new object made by the factory belongs to the reader until its restore is through.
struct PendingObject {
    RWCollectable* object;
    bool owned;
    ~PendingObject() {
        if (owned) delete object;
    }
    RWCollectable* release() {
        owned = false;
        return object;
    }
};

RWCollectable* resolveReference(const RWReadTable& table, long number, RWCollectable* target) {
    if (number < 0 || static_cast<size_t>(number) >= table.entries() ||
        (number != 0 && !table.isCollectable(static_cast<size_t>(number))))
        RWThrow(RWInternalErr(RWMessage(RWTOOL_REF)));
    RWCollectable* object = table.collectableAt(static_cast<size_t>(number));
    if (target && object != target) RWThrow(RWInternalErr(RWMessage(RWTOOL_REF)));
    return object;
}

PendingObject makeObject(RWClassID id, RWCollectable* target) {
    if (target) {
        if (target->isA() != id) RWThrow(RWInternalErr(RWMessage(RWTOOL_WRONGCLASS, id, target->isA())));
        return {target, false};
    }
    RWCollectable* object = getRWFactory()->create(id);
    if (!object) RWThrow(RWInternalErr(RWMessage(RWTOOL_NOCREATE, id, id)));
    return {object, true};
}

} // namespace

// ---- RWCollectable

RWCollectable::~RWCollectable() = default;
RWCollectable* RWCollectable::newSpecies() const { return new RWCollectable; }
RWCollectable* RWCollectable::copy() const { return new RWCollectable(*this); }
RWClassID RWCollectable::isA() const { return __RWCOLLECTABLE; }
RWspace RWCollectable::binaryStoreSize() const { return 0; }
int RWCollectable::compareTo(const RWCollectable* other) const {
    return this == other ? 0 : std::less<const void*>()(this, other) ? -1 : 1;
}
unsigned RWCollectable::hash() const {
    return static_cast<unsigned>(reinterpret_cast<std::uintptr_t>(this) >> 3);
}
RWBoolean RWCollectable::isEqual(const RWCollectable* other) const { return this == other; }
void RWCollectable::restoreGuts(RWvistream&) {}
void RWCollectable::restoreGuts(RWFile&) {}
void RWCollectable::saveGuts(RWvostream&) const {}
void RWCollectable::saveGuts(RWFile&) const {}

RWStringID RWCollectable::stringID() const {
    (void)this;
    return RWStringID();
}

void RWCollectable::recursiveSaveOn(RWFile& f) const {
    RWUseStoreTable table;
    if (table.firstUse()) f.Write(kMagic);
    int number = 0;
    if (table->add(this, number)) {
        f.Write(static_cast<unsigned short>(isA()));
        saveGuts(f);
    } else {
        f.Write(kReferenceTag);
        f.Write(static_cast<long>(number));
    }
}

void RWCollectable::recursiveSaveOn(RWvostream& s) const {
    RWUseStoreTable table;
    int number = 0;
    if (table->add(this, number)) {
        s << ':' << static_cast<unsigned short>(isA()) << '{';
        saveGuts(s);
        s << '}';
    } else {
        s << '@' << number;
    }
}

void RWCollectable::saveNil(RWFile& f) {
    RWUseStoreTable table;
    if (table.firstUse()) f.Write(kMagic);
    f.Write(kReferenceTag);
    f.Write(0L);
}

void RWCollectable::saveNil(RWvostream& s) { s << '@' << 0; }

RWCollectable* RWCollectable::recursiveRestoreFrom(RWFile& f, RWCollectable* target) {
    RWUseReadTable table;
    if (table.firstUse()) {
        long magic = 0;
        if (!f.Read(magic)) return rwnil;
        if (magic != kMagic) RWThrow(RWExternalErr(RWMessage(RWTOOL_MAGIC, magic, kMagic)));
    }
    unsigned short id = 0;
    if (!f.Read(id)) return rwnil;
    if (id == kReferenceTag) {
        long number = 0;
        if (!f.Read(number)) return rwnil;
        return resolveReference(*table, number, target);
    }
    PendingObject object = makeObject(id, target);
    table->append(object.object); // before its guts: they may refer to it
    object.object->restoreGuts(f);
    return object.release();
}

RWCollectable* RWCollectable::recursiveRestoreFrom(RWvistream& s, RWCollectable* target) {
    RWUseReadTable table;
    char marker = 0;
    s >> marker;
    if (!s.good()) return rwnil;
    if (marker == '@') {
        int number = 0;
        s >> number;
        if (!s.good()) return rwnil;
        return resolveReference(*table, number, target);
    }
    if (marker != ':') RWThrow(RWInternalErr(RWMessage(RWTOOL_REF)));
    unsigned short id = 0;
    char open = 0;
    s >> id >> open;
    if (!s.good()) return rwnil;
    if (open != '{') RWThrow(RWInternalErr(RWMessage(RWTOOL_REF)));
    PendingObject object = makeObject(id, target);
    table->append(object.object);
    object.object->restoreGuts(s);
    char close = 0;
    s >> close;
    if (s.good() && close != '}') RWThrow(RWInternalErr(RWMessage(RWTOOL_REF)));
    return object.release();
}

RWFile& operator<<(RWFile& f, const RWCollectable& c) {
    c.recursiveSaveOn(f);
    return f;
}
RWFile& operator<<(RWFile& f, const RWCollectable* c) {
    if (c)
        c->recursiveSaveOn(f);
    else
        RWCollectable::saveNil(f);
    return f;
}
RWvostream& operator<<(RWvostream& s, const RWCollectable& c) {
    c.recursiveSaveOn(s);
    return s;
}
RWvostream& operator<<(RWvostream& s, const RWCollectable* c) {
    if (c)
        c->recursiveSaveOn(s);
    else
        RWCollectable::saveNil(s);
    return s;
}
RWFile& operator>>(RWFile& f, RWCollectable& c) {
    RWCollectable::recursiveRestoreFrom(f, &c);
    return f;
}
RWFile& operator>>(RWFile& f, RWCollectable*& c) {
    c = RWCollectable::recursiveRestoreFrom(f);
    return f;
}
RWvistream& operator>>(RWvistream& s, RWCollectable& c) {
    RWCollectable::recursiveRestoreFrom(s, &c);
    return s;
}
RWvistream& operator>>(RWvistream& s, RWCollectable*& c) {
    c = RWCollectable::recursiveRestoreFrom(s);
    return s;
}

// ---- Store and read tables

RWStoreTable::RWStoreTable() = default;

RWBoolean RWStoreTable::add(const void* object, int& number) {
    if (!object) {
        number = 0;
        return false;
    }
    if (numbers_.empty()) {
        for (size_t i = 0; i < nFew_; ++i)
            if (few_[i] == object) {
                number = static_cast<int>(i) + 1;
                return false;
            }
        if (nFew_ < kFew) {
            few_[nFew_++] = object;
            number = next_++;
            return true;
        }
        for (size_t i = 0; i < nFew_; ++i)
            numbers_.emplace(few_[i], static_cast<int>(i) + 1);
    }
    auto [it, isNew] = numbers_.try_emplace(object, next_);
    if (isNew) ++next_;
    number = it->second;
    return isNew;
}

RWReadTable::RWReadTable() { add({nullptr, nullptr, true}); }

RWUseStoreTable::RWUseStoreTable() : table_(currentStoreTable), created_(currentStoreTable == nullptr) {
    if (created_) table_ = currentStoreTable = &own_.emplace();
}

RWUseStoreTable::~RWUseStoreTable() {
    if (created_) currentStoreTable = nullptr;
}

RWUseReadTable::RWUseReadTable() : table_(currentReadTable), created_(currentReadTable == nullptr) {
    if (created_) table_ = currentReadTable = &own_.emplace();
}

RWUseReadTable::~RWUseReadTable() {
    if (created_) currentReadTable = nullptr;
}

// ---- Factory

void RWFactory::addFunction(RWuserCreator creator, RWClassID id, RWStringID name) {
    byId_[id] = creator;
    if (!name.name().isNull()) byName_[name.name().std()] = {creator, id};
}

void RWFactory::removeFunction(RWClassID id) { byId_.erase(id); }
void RWFactory::removeFunction(RWStringID name) { byName_.erase(name.name().std()); }

RWuserCreator RWFactory::getFunction(RWClassID id) const {
    auto it = byId_.find(id);
    return it == byId_.end() ? nullptr : it->second;
}

RWuserCreator RWFactory::getFunction(RWStringID name) const {
    auto it = byName_.find(name.name().std());
    return it == byName_.end() ? nullptr : it->second.first;
}

RWCollectable* RWFactory::create(RWClassID id) const {
    RWuserCreator creator = getFunction(id);
    return creator ? creator() : rwnil;
}

RWCollectable* RWFactory::create(RWStringID name) const {
    RWuserCreator creator = getFunction(name);
    return creator ? creator() : rwnil;
}

RWClassID RWFactory::classID(RWStringID name) const {
    auto it = byName_.find(name.name().std());
    return it == byName_.end() ? __RWCOLLECTABLE : it->second.second;
}

RWFactory* getRWFactory() {
    // Never destroyed: registrars of other libraries may leave the factory during static destruction.
    static RWFactory* factory = new RWFactory;
    return factory;
}

void rwAddToFactory(RWuserCreator creator, RWClassID id, RWStringID name) {
    getRWFactory()->addFunction(creator, id, name);
}
void rwRemoveFromFactory(RWClassID id) { getRWFactory()->removeFunction(id); }
void rwRemoveFromFactory(RWStringID name) { getRWFactory()->removeFunction(name); }
