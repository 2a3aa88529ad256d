// The factory of collectables: a creator function per class id and per class name.
#pragma once

#include "rw/collect.h"

#include <map>
#include <string>

typedef RWCollectable* (*RWuserCreator)();

class RWFactory {
public:
    void addFunction(RWuserCreator creator, RWClassID id, RWStringID name);
    void removeFunction(RWClassID id);
    void removeFunction(RWStringID name);
    RWuserCreator getFunction(RWClassID id) const;
    RWuserCreator getFunction(RWStringID name) const;
    RWCollectable* create(RWClassID id) const;
    RWCollectable* create(RWStringID name) const;
    RWClassID classID(RWStringID name) const; // __RWCOLLECTABLE when unknown
    size_t entries() const { return byId_.size(); }

private:
    std::map<RWClassID, RWuserCreator> byId_;
    std::map<std::string, std::pair<RWuserCreator, RWClassID>> byName_;
};

RWFactory* getRWFactory();
void rwAddToFactory(RWuserCreator creator, RWClassID id, RWStringID name);
void rwRemoveFromFactory(RWClassID id);
void rwRemoveFromFactory(RWStringID name);
