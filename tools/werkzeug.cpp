#include "werkzeug.h"

#include "qballg/cp1252.h"

#include <cstdio>
#include <cstring>
#include <iostream>
#include <unistd.h>

namespace qbtool {

Fehler dateiFehler(const std::string& pfad, const std::string& was, int code) {
    return Fehler(pfad + ": " + was, code);
}

std::string systemFehler(int fehlernummer) { return std::strerror(fehlernummer); }

void meldeFehler(const std::string& text) {
    std::cout.flush();
    std::cerr << "qbformul: " << text << '\n' << std::flush;
}

std::string utf8(const RWCString& cp1252Text) { return cp1252ToUtf8(cp1252Text); }
std::string utf8(const std::string& cp1252Text) { return cp1252ToUtf8(std::string_view(cp1252Text)); }

RWCString cp1252(const std::string& utf8Text, const std::string& wofuer) {
    RWCString aus;
    std::string problem;
    if (!utf8ToCp1252(utf8Text, aus, &problem)) throw Fehler(wofuer + ": " + problem);
    return aus;
}

std::string flagText(unsigned wert) {
    switch (wert) {
    case 1:
        return "ja";
    case 0:
        return "nein";
    case 0xff:
        return "nicht beantwortet";
    default:
        return std::to_string(wert);
    }
}

std::string zitiert(const std::string& text, size_t hoechstens) {
    std::string aus = "\"";
    size_t zeichen = 0;
    size_t i = 0;
    for (; i < text.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(text[i]);
        const bool folgebyte = (c & 0xC0) == 0x80;
        if (!folgebyte && zeichen++ == hoechstens) break;
        switch (c) {
        case '"':
            aus += "\\\"";
            break;
        case '\\':
            aus += "\\\\";
            break;
        case '\n':
            aus += "\\n";
            break;
        case '\r':
            aus += "\\r";
            break;
        case '\t':
            aus += "\\t";
            break;
        default:
            if (c < 0x20 || c == 0x7f) {
                char puffer[8];
                std::snprintf(puffer, sizeof puffer, "\\x%02X", c);
                aus += puffer;
            } else {
                aus += static_cast<char>(c);
            }
        }
    }
    aus += '"';
    if (i < text.size()) aus += "... (" + std::to_string(zeichenAnzahl(text)) + " characters)";
    return aus;
}

std::string lesbar(const std::string& text) {
    bool steuerzeichen = false;
    for (unsigned char c : text)
        steuerzeichen = steuerzeichen || c < 0x20 || c == 0x7f;
    if (!steuerzeichen) return text;
    const std::string z = zitiert(text);
    return z.substr(1, z.size() - 2);
}

std::string hexZahl(unsigned long wert, int stellen) {
    char puffer[24];
    std::snprintf(puffer, sizeof puffer, "0x%0*lX", stellen, wert);
    return puffer;
}

size_t zeichenAnzahl(const std::string& text) {
    size_t n = 0;
    for (unsigned char c : text)
        if ((c & 0xC0) != 0x80) ++n;
    return n;
}

Tabelle::Tabelle(std::vector<Spalte> spalten) : spalten_(std::move(spalten)) {}

void Tabelle::zeile(std::vector<std::string> zellen) {
    zellen.resize(spalten_.size());
    zeilen_.push_back(std::move(zellen));
}

void Tabelle::drucke(std::ostream& aus, const std::string& einzug) const {
    std::vector<size_t> breite(spalten_.size());
    for (size_t s = 0; s < spalten_.size(); ++s)
        breite[s] = zeichenAnzahl(spalten_[s].titel);
    for (const auto& z : zeilen_)
        for (size_t s = 0; s < z.size(); ++s)
            breite[s] = std::max(breite[s], zeichenAnzahl(z[s]));
    auto druckeZeile = [&](auto zelle) {
        std::string text = einzug;
        for (size_t s = 0; s < spalten_.size(); ++s) {
            const std::string& inhalt = zelle(s);
            const std::string fuellung(breite[s] - zeichenAnzahl(inhalt), ' ');
            const bool letzte = s + 1 == spalten_.size();
            if (spalten_[s].rechtsbuendig)
                text += fuellung + inhalt;
            else
                text += letzte ? inhalt : inhalt + fuellung;
            if (!letzte) text += "  ";
        }
        while (!text.empty() && text.back() == ' ')
            text.pop_back();
        aus << text << '\n';
    };
    druckeZeile([&](size_t s) -> const std::string& { return spalten_[s].titel; });
    for (const auto& z : zeilen_)
        druckeZeile([&](size_t s) -> const std::string& { return z[s]; });
}

std::string umbrochen(const std::string& text, const std::string& einzug, const std::string& folgeEinzug,
                      size_t breite) {
    std::string aus;
    size_t absatzBeginn = 0;
    while (absatzBeginn <= text.size()) {
        size_t absatzEnde = text.find('\n', absatzBeginn);
        if (absatzEnde == std::string::npos) absatzEnde = text.size();
        const std::string absatz = text.substr(absatzBeginn, absatzEnde - absatzBeginn);
        std::string zeile = einzug;
        size_t anfang = zeile.size();
        for (size_t pos = 0; pos < absatz.size();) {
            size_t ende = absatz.find(' ', pos);
            if (ende == std::string::npos) ende = absatz.size();
            const std::string wort = absatz.substr(pos, ende - pos);
            if (zeile.size() > anfang && zeichenAnzahl(zeile) + 1 + zeichenAnzahl(wort) > breite) {
                aus += zeile + "\n";
                zeile = folgeEinzug;
                anfang = zeile.size();
            } else if (zeile.size() > anfang) {
                zeile += ' ';
            }
            zeile += wort;
            pos = ende + 1;
        }
        aus += zeile;
        if (absatzEnde == text.size()) break;
        aus += '\n';
        absatzBeginn = absatzEnde + 1;
    }
    return aus;
}

bool istTerminal(int fd) { return ::isatty(fd) == 1; }

} // namespace qbtool
