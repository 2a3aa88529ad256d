// One field on a stream or set to its default, chosen at compile time by its type: the current layout and
// the defaults of a form, generated from its field list, go through these without consulting the table
// row by row.
#pragma once

#include "core/qbFeld.h"
#include "rw/rwfile.h"
#include "rw/vstream.h"

// The row's default; an empty default leaves an empty text alone (no assignment on a fresh object).
template <qbArt Art, class T>
inline void qbSetzeStandard(T& v, const qbFeld& zeile) {
    if constexpr (Art == qbArt::Text) {
        if (*zeile.standardText || !v.isNull()) v = zeile.standardText;
    } else if constexpr (Art == qbArt::Date)
        v = RWDate::fromJulian(0);
    else if constexpr (Art == qbArt::Person)
        v.loesche();
    else if constexpr (Art == qbArt::Double)
        v = zeile.standardZahl;
    else if constexpr (Art == qbArt::Bool)
        v = zeile.standardGanz != 0;
    else
        v = static_cast<T>(zeile.standardGanz);
}

template <qbArt Art, class T>
inline void qbSchreibe(RWFile& f, const T& v) {
    if constexpr (Art == qbArt::Text || Art == qbArt::Date)
        v.saveOn(f);
    else if constexpr (Art == qbArt::Person)
        f << v;
    else if constexpr (Art == qbArt::Bool || Art == qbArt::Enum)
        f.Write(static_cast<char>(v)); // one char
    else
        f.Write(v);
}

// Date and Person never travel on a virtual stream.
template <qbArt Art, class T>
inline void qbSchreibe(RWvostream& s, const T& v) {
    if constexpr (Art == qbArt::Text)
        v.saveOn(s);
    else if constexpr (Art == qbArt::Bool || Art == qbArt::Enum)
        s << static_cast<char>(v);
    else if constexpr (Art != qbArt::Date && Art != qbArt::Person)
        s << v;
}

// A Bool is true only for the byte 1; an Enum comes back sign-extended from its char.
template <qbArt Art, class T>
inline void qbLies(RWFile& f, T& v) {
    if constexpr (Art == qbArt::Text || Art == qbArt::Date)
        v.restoreFrom(f);
    else if constexpr (Art == qbArt::Person)
        f >> v;
    else if constexpr (Art == qbArt::Bool || Art == qbArt::Enum) {
        char c;
        if (f.Read(c)) v = Art == qbArt::Bool ? c == 1 : static_cast<signed char>(c);
    } else
        f.Read(v);
}

// A failed stream reads nothing into the form.
template <qbArt Art, class T>
inline void qbLies(RWvistream& s, T& v) {
    if (!s.good()) return;
    if constexpr (Art == qbArt::Text)
        v.restoreFrom(s);
    else if constexpr (Art == qbArt::Bool || Art == qbArt::Enum) {
        char c = 0;
        s >> c;
        if (s.good()) v = Art == qbArt::Bool ? c == 1 : static_cast<signed char>(c);
    } else if constexpr (Art != qbArt::Date && Art != qbArt::Person)
        s >> v;
}
