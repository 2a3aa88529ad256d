// Basic types of the vendor library, with the widths of the original 32-bit platform where they are stored.
#pragma once

#include <cstddef>

typedef bool RWBoolean;
typedef unsigned short RWClassID; // stored as 2 bytes
typedef unsigned long RWspace;    // a size figure; never stored

const size_t RW_NPOS = ~static_cast<size_t>(0);

#ifndef rwnil
#define rwnil 0
#endif

// Class ids of the vendor classes that reach stored files; ids from 0x8000 up are the vendor's.
const RWClassID __RWCOLLECTABLE = 0x8007;
const RWClassID __RWDLISTCOLLECTABLES = 0x8010;
