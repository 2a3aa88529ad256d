// The exception hierarchy of the vendor library:
//   RWxmsg <- RWInternalErr <- RWBoundsErr
//   RWxmsg <- RWExternalErr <- RWFileErr, RWStreamErr
#pragma once

#include "rw/message.h"

#include <exception>
#include <string>

class RWxmsg : public std::exception {
public:
    explicit RWxmsg(const char* msg) : msg_(msg ? msg : "") {}
    explicit RWxmsg(const RWMessage& msg) : msg_(msg.str()) {}
    virtual const char* why() const { return msg_.c_str(); }
    const char* what() const noexcept override { return msg_.c_str(); }
    virtual void raise() const { throw *this; }

private:
    std::string msg_;
};

#define RW_DECLARE_XMSG(Name, Base)                                                                          \
    class Name : public Base {                                                                               \
    public:                                                                                                  \
        explicit Name(const char* msg) : Base(msg) {}                                                        \
        explicit Name(const RWMessage& msg) : Base(msg) {}                                                   \
        void raise() const override { throw *this; }                                                         \
    };

RW_DECLARE_XMSG(RWInternalErr, RWxmsg)
RW_DECLARE_XMSG(RWBoundsErr, RWInternalErr)
RW_DECLARE_XMSG(RWExternalErr, RWxmsg)
RW_DECLARE_XMSG(RWFileErr, RWExternalErr)
RW_DECLARE_XMSG(RWStreamErr, RWExternalErr)
#undef RW_DECLARE_XMSG

// Throws the exception as its own type.
[[noreturn]] void RWThrow(const RWxmsg& err);
[[noreturn]] void RWThrow(const RWInternalErr& err);
[[noreturn]] void RWThrow(const RWExternalErr& err);
