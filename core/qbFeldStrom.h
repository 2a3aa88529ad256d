// One field on a stream or set to its default, chosen at compile time by its type, and whole record parts
// encoded in place: the current layout and the defaults of a form, generated from its field list, go
// through these without consulting the table row by row.
#pragma once

#include "core/qbFeld.h"
#include "rw/rwfile.h"
#include "rw/bstream.h"
#include "rw/vstream.h"

#include <cstdint>
#include <cstring>
#include <typeinfo>

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

// A record part written in one piece: first counted, then stored through a pointer with no check per
// field, as a hand-written encoder would. Into RWFile's buffer, or into a local buffer handed to a binary
// virtual stream at once. The bytes are those of qbSchreibe field after field: on the binary stream a
// text carries its length twice, and a Date or Person is not written.
enum class qbKodierung { Datei, Binaerstrom };

template <qbKodierung K>
struct qbZaehler {
    size_t bytes = 0;
    bool amStueck = true; // false once a field has no fixed encoding here (a Person's own record)
};
template <qbKodierung K>
struct qbRohSchreiber {
    unsigned char* p;
};

template <qbArt Art, qbKodierung K, class T>
inline void qbSchreibe(qbZaehler<K>& z, const T& v) {
    if constexpr (K == qbKodierung::Binaerstrom && (Art == qbArt::Date || Art == qbArt::Person))
        return; // neither travels on a virtual stream
    else if constexpr (Art == qbArt::Person)
        z.amStueck = false; // its own record, of no fixed size
    else if constexpr (Art == qbArt::Text)
        z.bytes += (K == qbKodierung::Datei ? 4 : 8) + v.length();
    else
        z.bytes += qbFesteBreite(Art);
}

template <qbArt Art, qbKodierung K, class T>
inline void qbSchreibe(qbRohSchreiber<K>& r, const T& v) {
    if constexpr (Art == qbArt::Text) {
        const auto n = static_cast<std::uint32_t>(v.length());
        rwwire::store<std::uint32_t>(r.p, n);
        if constexpr (K == qbKodierung::Binaerstrom) { // saveOn's count, then putString's
            r.p += 4;
            rwwire::store<std::uint32_t>(r.p, n);
        }
        std::memcpy(r.p + 4, v.data(), n);
        r.p += 4 + n;
    } else if constexpr (Art == qbArt::Date || Art == qbArt::Person) {
        if constexpr (K == qbKodierung::Datei && Art == qbArt::Date) {
            rwwire::store<std::uint32_t>(r.p, static_cast<std::uint32_t>(v.julian()));
            r.p += 4;
        }
    } else if constexpr (Art == qbArt::Int || Art == qbArt::Long) { // a long narrowed to 4 bytes
        rwwire::store<std::int32_t>(r.p, static_cast<std::int32_t>(v));
        r.p += 4;
    } else if constexpr (Art == qbArt::Double) {
        rwwire::store<double>(r.p, v);
        r.p += 8;
    } else { // Flag, Char, Bool and Enum: one byte
        *r.p++ = static_cast<unsigned char>(static_cast<char>(v));
    }
}

// Field by field, out of line, so that it does not come between the hot code.
template <class Strom, class Schreibe>
[[gnu::noinline, gnu::cold]] void qbSchreibeEinzeln(Strom& s, Schreibe& schreibe) {
    schreibe(s);
}

// Writes a record part with schreibe(sink): in place when the file's buffer takes it. Writing in place
// is an extension of this platform's RWFile; against an RWFile without it, field by field.
template <class Schreibe>
inline void qbSchreibeAmStueck(RWFile& f, Schreibe&& schreibe) {
#if defined(RWFILE_IN_PLACE)
    qbZaehler<qbKodierung::Datei> zaehler;
    schreibe(zaehler);
    if (zaehler.amStueck)
        if (unsigned char* p = f.reserveWrite(zaehler.bytes)) {
            qbRohSchreiber<qbKodierung::Datei> roh{p};
            schreibe(roh);
            f.commitWrite(zaehler.bytes);
            return;
        }
#endif
    qbSchreibeEinzeln(f, schreibe);
}

// On a binary stream (exactly RWbostream, whose bytes are fixed) a part of up to 2 kB goes to the
// streambuf in one call instead of two or three per field; on any other stream, field by field.
template <class Schreibe>
inline void qbSchreibeAmStueck(RWvostream& s, Schreibe&& schreibe) {
    if (typeid(s) == typeid(RWbostream)) {
        qbZaehler<qbKodierung::Binaerstrom> zaehler;
        schreibe(zaehler);
        unsigned char puffer[2048];
        if (zaehler.bytes <= sizeof puffer) {
            qbRohSchreiber<qbKodierung::Binaerstrom> roh{puffer};
            schreibe(roh);
            s.put(puffer, zaehler.bytes);
            return;
        }
    }
    qbSchreibeEinzeln(s, schreibe);
}

#if defined(RWFILE_IN_PLACE)
// A record part read in place from RWFile's read-ahead, through a local cursor with one bounds check per
// field, as a hand-written decoder would. A field the read-ahead does not hold whole (and every Date and
// Person) is read from the file as usual, after the cursor has handed back what it consumed: the result
// is always that of qbLies(RWFile&, ...) field after field.
class qbLesefenster {
public:
    explicit qbLesefenster(RWFile& f) : f_(f) { hole(); }
    ~qbLesefenster() { f_.commitRead(static_cast<size_t>(p_ - anfang_)); }
    qbLesefenster(const qbLesefenster&) = delete;
    qbLesefenster& operator=(const qbLesefenster&) = delete;

    template <qbArt Art, class T>
    void lies(T& v) {
        constexpr size_t breite = qbFesteBreite(Art);
        if constexpr (Art != qbArt::Date && Art != qbArt::Person) {
            if (static_cast<size_t>(ende_ - p_) >= breite) {
                if constexpr (Art == qbArt::Text) {
                    const size_t n = rwwire::load<std::uint32_t>(p_);
                    if (static_cast<size_t>(ende_ - p_) - 4 >= n) {
                        setzeText(v, p_ + 4, n);
                        p_ += 4 + n;
                        return;
                    }
                } else {
                    if constexpr (Art == qbArt::Int || Art == qbArt::Long)
                        v = rwwire::load<std::int32_t>(p_); // a long sign-extended from 4 bytes
                    else if constexpr (Art == qbArt::Double)
                        v = rwwire::load<double>(p_);
                    else if constexpr (Art == qbArt::Bool)
                        v = *p_ == 1;
                    else if constexpr (Art == qbArt::Enum)
                        v = static_cast<signed char>(*p_);
                    else
                        v = static_cast<T>(*p_);
                    p_ += breite;
                    return;
                }
            }
        }
        ausDerDatei<Art>(v);
    }

private:
    // One copy of the string assignment for all fields: inlined, it took most of a form's read code.
    [[gnu::noinline]] static void setzeText(RWCString& v, const unsigned char* p, size_t n) {
        v.std().assign(reinterpret_cast<const char*>(p), n);
    }
    // Out of line and cold, so that the fields' fast paths lie close together in the code.
    template <qbArt Art, class T>
    [[gnu::noinline, gnu::cold]] void ausDerDatei(T& v) {
        f_.commitRead(static_cast<size_t>(p_ - anfang_));
        qbLies<Art>(f_, v);
        hole();
    }
    void hole() {
        size_t n = 0;
        anfang_ = p_ = f_.readWindow(n);
        ende_ = p_ + n;
    }
    RWFile& f_;
    const unsigned char* anfang_;
    const unsigned char* p_;
    const unsigned char* ende_;
};
template <qbArt Art, class T>
inline void qbLies(qbLesefenster& fenster, T& v) {
    fenster.lies<Art>(v);
}
#endif

// Reads a record part with lies(source): in place from the read-ahead where RWFile offers it.
template <class Lies>
inline void qbLiesAmStueck(RWFile& f, Lies&& lies) {
#if defined(RWFILE_IN_PLACE)
    qbLesefenster fenster(f);
    lies(fenster);
#else
    lies(f);
#endif
}
