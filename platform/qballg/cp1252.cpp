#include "qballg/cp1252.h"

#include "qballg/cp1252_literal.h"

#include <cstdio>

void appendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

namespace {

std::string hexBytes(std::string_view bytes) {
    std::string out;
    char buf[4];
    for (size_t i = 0; i < bytes.size(); ++i) {
        std::snprintf(buf, sizeof buf, "%02X", static_cast<unsigned char>(bytes[i]));
        if (i) out += ' ';
        out += buf;
    }
    return out;
}

bool isContinuation(unsigned char b) { return (b & 0xC0) == 0x80; }

} // namespace

char32_t cp1252ToCodePoint(unsigned char byte) { return qbCp1252::zeichenAusByte(byte); }

int cp1252FromCodePoint(char32_t codePoint) { return qbCp1252::byteAusZeichen(codePoint); }

std::string cp1252ToUtf8(std::string_view cp1252) {
    std::string out;
    out.reserve(cp1252.size());
    // Runs of ASCII, nearly all of a form's text, are the same bytes in UTF-8: copied in one go.
    for (size_t i = 0; i < cp1252.size();) {
        size_t ascii = i;
        while (ascii < cp1252.size() && static_cast<unsigned char>(cp1252[ascii]) < 0x80)
            ++ascii;
        out.append(cp1252.data() + i, ascii - i);
        if (ascii < cp1252.size())
            appendUtf8(out, cp1252ToCodePoint(static_cast<unsigned char>(cp1252[ascii++])));
        i = ascii;
    }
    return out;
}

std::string cp1252ToUtf8(const RWCString& cp1252) { return cp1252ToUtf8(std::string_view(cp1252.std())); }

std::string cp1252ToUtf8(const char* cp1252) { return cp1252ToUtf8(std::string_view(cp1252 ? cp1252 : "")); }

bool nextUtf8CodePoint(std::string_view utf8, size_t& pos, char32_t& codePoint, std::string* problem) {
    auto fail = [&](const char* what, size_t length) {
        if (problem) *problem = std::string(what) + " (bytes " + hexBytes(utf8.substr(pos, length)) + ")";
        return false;
    };
    if (pos >= utf8.size()) return fail("end of text", 0);
    const auto lead = static_cast<unsigned char>(utf8[pos]);
    if (lead < 0x80) {
        codePoint = lead;
        ++pos;
        return true;
    }
    if (lead < 0xC0) return fail("unexpected continuation byte", 1);
    if (lead < 0xC2) return fail("overlong encoding", 2);
    if (lead > 0xF4) return fail("invalid lead byte", 1);

    const size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    // Check the bytes that are there before complaining about the end, so that the message says which
    // byte breaks the sequence.
    size_t available = 1;
    while (available < length && pos + available < utf8.size() &&
           isContinuation(static_cast<unsigned char>(utf8[pos + available])))
        ++available;
    if (available < length) {
        if (pos + available >= utf8.size()) return fail("truncated sequence", available);
        return fail("missing continuation byte", available + 1);
    }

    const auto second = static_cast<unsigned char>(utf8[pos + 1]);
    if (lead == 0xE0 && second < 0xA0) return fail("overlong encoding", length);
    if (lead == 0xF0 && second < 0x90) return fail("overlong encoding", length);
    if (lead == 0xED && second > 0x9F) return fail("surrogate code point", length);
    if (lead == 0xF4 && second > 0x8F) return fail("code point beyond U+10FFFF", length);

    char32_t cp = lead & (length == 2 ? 0x1F : length == 3 ? 0x0F : 0x07);
    for (size_t i = 1; i < length; ++i)
        cp = (cp << 6) | (static_cast<unsigned char>(utf8[pos + i]) & 0x3F);
    codePoint = cp;
    pos += length;
    return true;
}

bool utf8ToCp1252(std::string_view utf8, std::string& out, std::string* error) {
    std::string result;
    result.reserve(utf8.size());
    size_t pos = 0;
    while (pos < utf8.size()) {
        const size_t start = pos;
        char32_t cp = 0;
        std::string problem;
        if (!nextUtf8CodePoint(utf8, pos, cp, &problem)) {
            if (error) *error = "malformed UTF-8 at byte offset " + std::to_string(start) + ": " + problem;
            return false;
        }
        const int byte = cp1252FromCodePoint(cp);
        if (byte < 0) {
            if (error) {
                char name[16];
                std::snprintf(name, sizeof name, "U+%04X", static_cast<unsigned>(cp));
                *error = std::string("character ") + name + " '" +
                         std::string(utf8.substr(start, pos - start)) + "' at byte offset " +
                         std::to_string(start) + " has no Windows-1252 form";
            }
            return false;
        }
        result += static_cast<char>(byte);
    }
    out.swap(result);
    return true;
}

bool utf8ToCp1252(std::string_view utf8, RWCString& out, std::string* error) {
    std::string converted;
    if (!utf8ToCp1252(utf8, converted, error)) return false;
    out = RWCString(std::move(converted));
    return true;
}
