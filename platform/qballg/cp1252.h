// Conversion between the library's Windows-1252 text and UTF-8.
//
// Windows-1252 -> UTF-8 is total: every byte has a character. 0x80..0x9F follow the Windows-1252 table
// (0x80 is the euro sign U+20AC); the five bytes that table leaves open (0x81, 0x8D, 0x8F, 0x90, 0x9D)
// become the C1 controls of the same number, as the WHATWG encoding standard does, so each byte has its
// own character and the way back restores it.
//
// UTF-8 -> Windows-1252 refuses malformed UTF-8 (overlong forms, surrogates, truncated or stray
// sequences, code points beyond U+10FFFF) and every character that Windows-1252 cannot hold. It never
// drops a character or puts a '?' in its place: the caller gets false and a message instead.
#pragma once

#include "rw/cstring.h"

#include <string>
#include <string_view>

std::string cp1252ToUtf8(std::string_view cp1252);
std::string cp1252ToUtf8(const RWCString& cp1252);
std::string cp1252ToUtf8(const char* cp1252); // a plain literal would fit both overloads above

// On success fills out and returns true. On failure returns false, leaves out as it was and, if error is
// given, stores a message naming the character (or the bad bytes) and its byte offset in utf8.
bool utf8ToCp1252(std::string_view utf8, std::string& out, std::string* error = nullptr);
bool utf8ToCp1252(std::string_view utf8, RWCString& out, std::string* error = nullptr);

// The Windows-1252 byte of a Unicode code point, or -1 when it has none.
int cp1252FromCodePoint(char32_t codePoint);
// The Unicode code point of a Windows-1252 byte.
char32_t cp1252ToCodePoint(unsigned char byte);

// Appends the UTF-8 form of a code point (at most U+10FFFF).
void appendUtf8(std::string& out, char32_t codePoint);

// Reads the UTF-8 character at pos and moves pos past it. Malformed input returns false with pos
// unchanged and, if problem is given, a short description of what is wrong with the bytes at pos.
bool nextUtf8CodePoint(std::string_view utf8, size_t& pos, char32_t& codePoint,
                       std::string* problem = nullptr);
