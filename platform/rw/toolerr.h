// The vendor library's own catalogue entries that reach callers of this library.
#pragma once

#include "rw/message.h"

extern const RWMsgId RWTOOL_REF;   // "[REF] Bad persistence reference"
extern const RWMsgId RWTOOL_MAGIC; // "[MAGIC] Bad magic number: %ld (should be %ld)"
extern const RWMsgId
    RWTOOL_NOCREATE; // "[NOCREATE] RWFactory: no create function for class with ID %hu (0x%hx)"
extern const RWMsgId RWTOOL_WRONGCLASS; // a stored class id that is not the class of the object read into
