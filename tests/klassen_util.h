// Helpers of the tests over every class of the class table: the field tables of a class and its bases, a
// new object of a class, the value of any field as text, and random values for fields.
#pragma once

#include "core/qbFormular.h"
#include "core/qbKlassen.h"

#include "test_util.h"

#include <climits>
#include <cstdint>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace qbtest {

// The tables of a class and of its bases, the header last. Found by the class id: a row that the library
// hands out (qbKlasseZuId) need not lie in the program's copy of the table.
inline const std::vector<const qbFeldTabelle*>& kette(const qbKlasse& k) {
    static const std::map<RWClassID, std::vector<const qbFeldTabelle*>> ketten = [] {
        std::map<RWClassID, std::vector<const qbFeldTabelle*>> alle;
        for (const qbKlasse& klasse : qbKlassen)
            for (const qbKlasse* c = &klasse; c; c = qbKlasseZuName(c->basisName))
                alle[klasse.id].push_back(&c->felder());
        return alle;
    }();
    return ketten.at(k.id);
}

// What a class does beyond its field tables and the family rule, on purpose. The tests over every class
// take it into account.
struct Abweichung {
    bool zweiteVersion = false;            // writes Version once more behind the header (GN056, L095)
    bool nichtsAufVirtuellemStrom = false; // nothing at all goes over a virtual stream (BAV)
    bool virtuellUnlesbar = false;   // its virtual-stream record lacks the header that its reader expects
    bool groesseNurKopf = false;     // binaryStoreSize counts the header alone
    bool xmlUnterFremdemTyp = false; // XMLgetDat types the node with another class's name
    bool loescheNurPerson = false;   // the virtual loesche empties PersonenKennung alone
};
inline Abweichung abweichung(const qbKlasse& k) {
    Abweichung a;
    const std::string name = k.klassenName;
    if (name == "qbFormularBAV") {
        a.nichtsAufVirtuellemStrom = true;
        a.loescheNurPerson = true;
    } else if (name == "qbFormularGN056") {
        a.zweiteVersion = true;
        a.groesseNurKopf = true;
    } else if (name == "qbFormularL095") {
        a.zweiteVersion = true;
        a.virtuellUnlesbar = true;
        a.groesseNurKopf = true;
        a.xmlUnterFremdemTyp = true;
    }
    return a;
}
// The class's records go over a virtual stream and come back.
inline bool virtuellRundreise(const qbKlasse& k) {
    const Abweichung a = abweichung(k);
    return !a.nichtsAufVirtuellemStrom && !a.virtuellUnlesbar;
}

inline std::unique_ptr<qbFormular> erzeuge(const qbKlasse& k) {
    return std::unique_ptr<qbFormular>(static_cast<qbFormular*>(k.erzeuge()));
}

// The value of a field of any type as text: a Text as its bytes in hex.
inline std::string feldAlsText(const qbFeld& z, const qbFormular& f) {
    switch (z.art) {
    case qbArt::Text:
        return hex(bytesOf((f.*z.mitglied.text).std()));
    case qbArt::Flag:
        return std::to_string(f.*z.mitglied.flag);
    case qbArt::Char:
        return std::to_string(f.*z.mitglied.zeichen);
    case qbArt::Bool:
        return std::to_string(f.*z.mitglied.wahrheit);
    case qbArt::Int:
    case qbArt::Enum:
        return std::to_string(f.*z.mitglied.ganz);
    case qbArt::Long:
        return std::to_string(f.*z.mitglied.lang);
    case qbArt::Double:
        return std::to_string(f.*z.mitglied.zahl);
    case qbArt::Date:
        return std::to_string((f.*z.mitglied.datum).julian());
    case qbArt::Person:
        return (f.*z.mitglied.person).RefGebDat().std();
    }
    return {};
}

// A random text of up to 24 characters, any byte from the blank on.
inline RWCString zufallsText(std::mt19937& zufall) {
    std::uniform_int_distribution<int> laenge(0, 24), zeichen(0x20, 0xFF);
    std::string s(static_cast<size_t>(laenge(zufall)), ' ');
    for (char& c : s)
        c = static_cast<char>(zeichen(zufall));
    return RWCString(s);
}

// A random value of the field's type.
inline void fuelleZufaellig(const qbFeld& z, qbFormular& f, std::mt19937& zufall) {
    std::uniform_int_distribution<int> ganz(INT32_MIN, INT32_MAX), byte(0, 255);
    switch (z.art) {
    case qbArt::Text:
        f.*z.mitglied.text = zufallsText(zufall);
        break;
    case qbArt::Flag:
        f.*z.mitglied.flag = static_cast<unsigned char>(byte(zufall));
        break;
    case qbArt::Char:
        f.*z.mitglied.zeichen = static_cast<char>(byte(zufall));
        break;
    case qbArt::Bool:
        f.*z.mitglied.wahrheit = byte(zufall) & 1;
        break;
    case qbArt::Int:
        f.*z.mitglied.ganz = ganz(zufall);
        break;
    case qbArt::Enum:
        f.*z.mitglied.ganz = static_cast<signed char>(byte(zufall));
        break;
    case qbArt::Long:
        f.*z.mitglied.lang = ganz(zufall);
        break;
    case qbArt::Double:
        f.*z.mitglied.zahl = std::uniform_real_distribution<double>(-1e9, 1e9)(zufall);
        break;
    case qbArt::Date:
        (f.*z.mitglied.datum).julian(static_cast<unsigned>(ganz(zufall)));
        break;
    case qbArt::Person:
        (f.*z.mitglied.person).RefGebDat(zufallsText(zufall));
        break;
    }
}

} // namespace qbtest
