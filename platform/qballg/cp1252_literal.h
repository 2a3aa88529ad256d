// Windows-1252 text literals in UTF-8 sources: "Erklärung Verletzungen"_cp1252 is a const char* to the
// Windows-1252 bytes of the text ("Erkl\xE4rung ..."), converted while compiling. The sources stay
// readable UTF-8 and no compiler option is involved: any C++20 compiler whose ordinary literals are
// UTF-8 (GCC's and Clang's default) builds the same bytes. A character that Windows-1252 cannot hold, or
// a literal that is not UTF-8, stops the build at the literal.
//
// Every literal of the library with a character outside ASCII is written this way; ASCII literals need
// nothing, their bytes are the same in both encodings.
#pragma once

#include <array>
#include <cstddef>

namespace qbCp1252 {

// Characters of the bytes 0x80..0x9F. The five bytes Windows-1252 leaves open keep their C1 control (as
// the WHATWG encoding standard does), so that every byte has a character of its own.
constexpr char32_t kZeichen80bis9F[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr char32_t zeichenAusByte(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? kZeichen80bis9F[byte - 0x80] : byte;
}

// The byte of a code point, or -1 when Windows-1252 has none.
constexpr int byteAusZeichen(char32_t zeichen) {
    if (zeichen < 0x80 || (zeichen >= 0xA0 && zeichen <= 0xFF)) return static_cast<int>(zeichen);
    for (int i = 0; i < 32; ++i)
        if (kZeichen80bis9F[i] == zeichen) return 0x80 + i;
    return -1;
}

// Not constexpr: reaching one of these while compiling a literal makes the build fail with its name.
void literal_enthaelt_ein_zeichen_ohne_windows_1252_form();
void literal_ist_kein_gueltiges_utf8();

// A literal's UTF-8 bytes as a template argument.
template <size_t N>
struct Utf8Literal {
    char utf8[N];
    consteval Utf8Literal(const char (&text)[N]) {
        for (size_t i = 0; i < N; ++i)
            utf8[i] = text[i];
    }
    static constexpr size_t laenge = N - 1; // without the terminating zero
};

// Decodes the UTF-8 character at pos and moves pos past it.
consteval char32_t naechstesZeichen(const char* utf8, size_t laenge, size_t& pos) {
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(utf8[i]); };
    const unsigned char erstes = byte(pos);
    size_t folge = 0; // continuation bytes
    if (erstes >= 0xC2 && erstes < 0xE0)
        folge = 1;
    else if (erstes >= 0xE0 && erstes < 0xF0)
        folge = 2;
    else if (erstes >= 0xF0 && erstes < 0xF5)
        folge = 3;
    else if (erstes >= 0x80)
        literal_ist_kein_gueltiges_utf8();
    if (pos + folge >= laenge) literal_ist_kein_gueltiges_utf8();
    char32_t zeichen = folge == 0 ? erstes : erstes & (0x3F >> folge);
    for (size_t i = 1; i <= folge; ++i) {
        if ((byte(pos + i) & 0xC0) != 0x80) literal_ist_kein_gueltiges_utf8();
        zeichen = (zeichen << 6) | (byte(pos + i) & 0x3F);
    }
    const char32_t kleinstes[] = {0, 0x80, 0x800, 0x10000};
    if (zeichen < kleinstes[folge] || zeichen > 0x10FFFF || (zeichen >= 0xD800 && zeichen <= 0xDFFF))
        literal_ist_kein_gueltiges_utf8();
    pos += folge + 1;
    return zeichen;
}

template <Utf8Literal L>
consteval size_t zeichenAnzahl() {
    size_t anzahl = 0;
    for (size_t pos = 0; pos < L.laenge; ++anzahl)
        naechstesZeichen(L.utf8, L.laenge, pos);
    return anzahl;
}

template <Utf8Literal L>
consteval auto alsWindows1252() {
    std::array<char, zeichenAnzahl<L>() + 1> bytes{};
    size_t pos = 0;
    for (size_t i = 0; pos < L.laenge; ++i) {
        const int b = byteAusZeichen(naechstesZeichen(L.utf8, L.laenge, pos));
        if (b < 0) literal_enthaelt_ein_zeichen_ohne_windows_1252_form();
        bytes[i] = static_cast<char>(b);
    }
    return bytes;
}

} // namespace qbCp1252

// Internal linkage: each translation unit holds the bytes of the literals it uses. No symbol of these is
// shared between objects, so none of them can tie the shared library to the process.
namespace {

template <qbCp1252::Utf8Literal L>
constexpr std::array kWindows1252Bytes = qbCp1252::alsWindows1252<L>();

template <qbCp1252::Utf8Literal L>
constexpr const char* operator""_cp1252() {
    return kWindows1252Bytes<L>.data();
}

} // namespace
