// QBvar: a value of one of the kinds an XML data tree carries (text, flag, int, long, double, bool, date),
// or nothing. It converts to the kind a caller asks for:
//   - nothing gives 0 and the empty text;
//   - text gives numbers as atoi/atol/atof read them (leading blanks, the longest number prefix, 0 when
//     there is none), out-of-range integers clamped to the target's range, without the locale's decimal
//     point (nor hexadecimal numbers);
//   - numbers give text in decimal, doubles in the shortest form that reads back to the same value;
//   - a double gives integers truncated toward zero and clamped to the range, NaN gives 0; a long gives
//     an int clamped to the range;
//   - a bool gives 1 or 0 (text "1" or "0"); a flag its value 0..255;
//   - a date gives its Julian day number as a number and "dd.mm.yyyy" as text (the invalid date "").
//
// The conversion operators to int, long, double and RWCString are implicit, for assignments such as
// `int n = node.Listvalue("Anzahl");`. Expressions that fit several of them do not compile: comparisons
// (`var == 3`), a test (`if (var)`) and targets of other types (`char c = var;`, `float f = var;`). Use
// asInt() and the other named conversions there.
#pragma once

#include "rw/cstring.h"
#include "rw/rwdate.h"

#include <variant>

class QBvar {
public:
    // In the order of the alternatives held inside.
    enum Kind { empty, text, flag, intValue, longValue, doubleValue, boolValue, date };

    QBvar() = default;
    QBvar(const RWCString& value) : value_(value) {}
    QBvar(const char* value) : value_(RWCString(value)) {} // a literal is text, not bool
    QBvar(unsigned char value) : value_(value) {}
    QBvar(int value) : value_(value) {}
    QBvar(long value) : value_(value) {}
    QBvar(double value) : value_(value) {}
    QBvar(bool value) : value_(value) {}
    QBvar(const RWDate& value) : value_(value) {}
    // A char is a letter to some callers and a small number to others: they choose the kind.
    QBvar(char) = delete;

    Kind kind() const { return static_cast<Kind>(value_.index()); }
    bool isEmpty() const { return kind() == empty; }

    int asInt() const;
    long asLong() const;
    double asDouble() const;
    RWCString asString() const;

    operator int() const { return asInt(); }
    operator long() const { return asLong(); }
    operator double() const { return asDouble(); }
    operator RWCString() const { return asString(); }

    // The held value of one kind, or null when the variant holds another kind.
    const RWCString* ifText() const { return std::get_if<RWCString>(&value_); }
    const unsigned char* ifFlag() const { return std::get_if<unsigned char>(&value_); }
    const int* ifInt() const { return std::get_if<int>(&value_); }
    const long* ifLong() const { return std::get_if<long>(&value_); }
    const double* ifDouble() const { return std::get_if<double>(&value_); }
    const bool* ifBool() const { return std::get_if<bool>(&value_); }
    const RWDate* ifDate() const { return std::get_if<RWDate>(&value_); }

    // Same kind and same value; doubles compare by their bits, so NaN equals the same NaN and 0.0
    // differs from -0.0.
    bool identical(const QBvar& other) const;

private:
    std::variant<std::monostate, RWCString, unsigned char, int, long, double, bool, RWDate> value_;
};
