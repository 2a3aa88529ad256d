#include "rw/rwerr.h"
#include "rw/toolerr.h"

#include <cstdarg>
#include <cstdio>

namespace {
const RWCatMsg kRef = {"rwtool", 1, "[REF] Bad persistence reference"};
const RWCatMsg kMagic = {"rwtool", 2, "[MAGIC] Bad magic number: %ld (should be %ld)"};
const RWCatMsg kNoCreate = {"rwtool", 3,
                            "[NOCREATE] RWFactory: no create function for class with ID %hu (0x%hx)"};
const RWCatMsg kWrongClass = {"rwtool", 4,
                              "[WRONGCLASS] Stored class ID %hu is not the class ID %hu of the target"};
} // namespace

const RWMsgId RWTOOL_REF = &kRef;
const RWMsgId RWTOOL_MAGIC = &kMagic;
const RWMsgId RWTOOL_NOCREATE = &kNoCreate;
const RWMsgId RWTOOL_WRONGCLASS = &kWrongClass;

RWMessage::RWMessage(const char* text) { std::snprintf(text_, sizeof text_, "%s", text ? text : ""); }

RWMessage::RWMessage(RWMsgId id, ...) {
    va_list args;
    va_start(args, id);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    std::vsnprintf(text_, sizeof text_, id ? id->msg : "", args);
#pragma GCC diagnostic pop
    va_end(args);
}

void RWThrow(const RWxmsg& err) {
    err.raise();
    throw err; // not reached: raise() throws
}
void RWThrow(const RWInternalErr& err) { throw err; }
void RWThrow(const RWExternalErr& err) { throw err; }
