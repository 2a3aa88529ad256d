// RWStringID: the name of a collectable class, its second key in the factory.
#pragma once

#include "rw/cstring.h"

class RWStringID {
public:
    RWStringID() = default;
    RWStringID(const char* name) : name_(name) {}
    RWStringID(const RWCString& name) : name_(name) {}
    operator const char*() const { return name_.data(); }
    const RWCString& name() const { return name_; }
    unsigned hash() const { return name_.hash(); }
    friend bool operator==(const RWStringID& a, const RWStringID& b) { return a.name_ == b.name_; }

private:
    RWCString name_;
};
