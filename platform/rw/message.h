// Message catalogue entries and their formatted texts.
#pragma once

struct RWCatMsg {
    const char* domainName;
    unsigned msgNumber;
    const char* msg; // printf format of the message
};
typedef const RWCatMsg* RWMsgId;

class RWMessage {
public:
    explicit RWMessage(const char* text);
    // Formats the catalogue text with the operands it asks for.
    RWMessage(RWMsgId id, ...);
    const char* str() const { return text_; }

private:
    char text_[256];
};
