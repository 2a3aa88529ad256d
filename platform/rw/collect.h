// RWCollectable: the base of every object that is stored polymorphically, with its class id, and the
// recursive save and restore that keep object identity within one outer operation.
//
// Bytes of a collectable (one outer operation):
//   RWFile:          magic 0x8888 as a 4-byte long, written by the save that opens the store table;
//                    then a new object:  class id (2 bytes), its saveGuts
//                    or one already seen: FF FF, its object number (4 bytes); nil is object 0
//   virtual stream:  a new object:  ':' class id (unsigned short) '{' saveGuts '}'
//                    one already seen: '@' object number (int); nil is '@' 0. No magic.
// Objects are numbered 1, 2, ... in the order first met within the outer operation.
#pragma once

#include "rw/defs.h"
#include "rw/stringid.h"

class RWFile;
class RWvistream;
class RWvostream;

class RWCollectable {
public:
    // Virtual slots in the vendor's order.
    virtual RWCollectable* newSpecies() const;
    virtual RWCollectable* copy() const;
    virtual RWClassID isA() const;
    virtual ~RWCollectable();
    virtual RWspace binaryStoreSize() const;
    virtual int compareTo(const RWCollectable* other) const;
    virtual unsigned hash() const;
    virtual RWBoolean isEqual(const RWCollectable* other) const;
    virtual void restoreGuts(RWvistream&);
    virtual void restoreGuts(RWFile&);
    virtual void saveGuts(RWvostream&) const;
    virtual void saveGuts(RWFile&) const;

    static RWClassID classIsA() { return __RWCOLLECTABLE; }
    RWStringID stringID() const;

    void recursiveSaveOn(RWFile& f) const;
    void recursiveSaveOn(RWvostream& s) const;
    // Reads one object: into target when given (a reference must then name target), else a new object
    // from the factory, which the caller owns. Returns nil for a stored nil.
    static RWCollectable* recursiveRestoreFrom(RWFile& f, RWCollectable* target = rwnil);
    static RWCollectable* recursiveRestoreFrom(RWvistream& s, RWCollectable* target = rwnil);

    static void saveNil(RWFile& f);
    static void saveNil(RWvostream& s);
};

RWFile& operator<<(RWFile& f, const RWCollectable& c);
RWFile& operator<<(RWFile& f, const RWCollectable* c);
RWvostream& operator<<(RWvostream& s, const RWCollectable& c);
RWvostream& operator<<(RWvostream& s, const RWCollectable* c);
RWFile& operator>>(RWFile& f, RWCollectable& c);
RWFile& operator>>(RWFile& f, RWCollectable*& c);
RWvistream& operator>>(RWvistream& s, RWCollectable& c);
RWvistream& operator>>(RWvistream& s, RWCollectable*& c);
