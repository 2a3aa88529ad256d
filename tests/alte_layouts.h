// Records of every old layout of a class, as the fixture writer writes them. The layouts are found by
// asking the class's reader what it reads for each version of a long list of candidates (every month from
// 1999 through 2012, the two literals of the oldest layouts, a version from the future, versions atoi
// cannot read); each layout other than the current one gets one record, a value of its own for every value
// the layout holds. The damaged-record tests and the seeds of the fuzz targets use them.
#pragma once

#include "core/qbFeld.h"
#include "core/qbFormular.h"
#include "core/qbKlassen.h"
#include "core/qbLeseBeobachter.h"
#include "rw/rwfile.h"

#include "legacy_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace qbtest {

// What a restore reads, value by value: the field ("" for a value read and thrown away) and its type.
struct Gelesen {
    std::string feld;
    qbArt art;
    bool operator==(const Gelesen&) const = default;
};

class Mitschrift : public qbLeseBeobachter {
public:
    Mitschrift() : vorher_(qbSetzeLeseBeobachter(this)) {}
    ~Mitschrift() override { qbSetzeLeseBeobachter(vorher_); }
    void layout(const char*, const char*) override {}
    void feld(const char* name, qbArt art, long, long, const std::string&) override {
        werte.push_back({name ? name : "", art});
    }
    std::vector<Gelesen> werte;

private:
    qbLeseBeobachter* vorher_;
};

// What the class's restore reads from a record of that version, the header first. Found by reading the
// version's header and then zero bytes with an observer listening: every text there is empty, so the
// reader goes exactly as far as its layout goes, and what it took is the layout. (The readers choose a
// layout by the stored version alone.)
inline std::vector<Gelesen> layoutDerVersion(const qbKlasse& k, const std::string& version,
                                             const char* pfad) {
    AltSatz satz = AltSatz::kopf(version, k.nummer, k.name, k.seiten, k.person);
    for (int i = 0; i < 512; ++i)
        satz.ganz(0);
    {
        RWFile f(pfad, "wb");
        satz.schreibe(f);
    }
    RWFile f(pfad, "rb");
    std::unique_ptr<qbFormular> form(static_cast<qbFormular*>(k.erzeuge()));
    Mitschrift mitschrift;
    form->restoreGuts(f);
    EXPECT_TRUE(f.good()) << k.klassenName << " " << version << ": the layout is longer than the zeros";
    return mitschrift.werte;
}

// The fixture writer's record of a layout: the header of the version and the class, then a value of its
// own for every value of the layout, texts never empty.
inline AltSatz satzDesLayouts(const qbKlasse& k, const std::string& version,
                              const std::vector<Gelesen>& layout) {
    AltSatz satz;
    int n = 0;
    for (const Gelesen& g : layout) {
        ++n;
        if (g.feld == "Version")
            satz.text(version);
        else if (g.feld == "DruckstueckNummer" && *k.nummer)
            satz.text(k.nummer);
        else if (g.feld == "PersonenKennung" && *k.person)
            satz.text(k.person);
        else
            switch (g.art) {
            case qbArt::Text:
                satz.text("a" + std::to_string(n) + (n % 4 ? "" : " mit Platz vom Heap") + "\xFC");
                break;
            case qbArt::Flag:
                satz.flag(static_cast<unsigned char>(n));
                break;
            case qbArt::Char:
                satz.zeichen(static_cast<char>('a' + n % 26));
                break;
            case qbArt::Bool: // one char; 1 is true
                satz.zeichen(static_cast<char>(n % 2));
                break;
            case qbArt::Enum:
                satz.zeichen(static_cast<char>(-n));
                break;
            case qbArt::Date:
                satz.datum(2440588u + static_cast<unsigned>(n));
                break;
            case qbArt::Int:
                satz.ganz(90000 + n);
                break;
            case qbArt::Long:
                satz.lang(-90000 - n);
                break;
            case qbArt::Double:
                satz.zahl(n + 0.5);
                break;
            case qbArt::Person: // the person's own record: fourteen texts
                for (int t = 0; t < 14; ++t)
                    satz.text("p" + std::to_string(n) + "_" + std::to_string(t));
                break;
            default:
                ADD_FAILURE() << k.klassenName << " " << version
                              << ": the fixture writer has no values of the type of " << g.feld;
            }
    }
    return satz;
}

// The versions whose layouts are looked for: the two literals of the oldest layouts, every month from
// 1999 through 2012 (every version threshold of today's readers lies among them), a version from the
// future, and versions that atoi cannot read.
inline std::vector<std::string> kandidaten() {
    std::vector<std::string> versionen = {"10.1999", "01.2000"};
    for (int jahr = 1999; jahr <= 2012; ++jahr)
        for (int monat = 1; monat <= 12; ++monat) {
            char text[8];
            std::snprintf(text, sizeof text, "%02d.%04d", monat, jahr);
            versionen.push_back(text);
        }
    versionen.insert(versionen.end(), {"12.2030", "xx", ""});
    return versionen;
}

struct AlterLayoutSatz {
    std::string version; // the first candidate found to have the layout
    AltSatz satz;
};

// One record of every layout the class's reader takes for some candidate version, other than the layout
// of aktuelleVersion. pfad is a file the search may write and read.
inline std::vector<AlterLayoutSatz> alteLayoutSaetze(const qbKlasse& k, const char* aktuelleVersion,
                                                     const char* pfad) {
    std::vector<AlterLayoutSatz> alle;
    std::vector<std::vector<Gelesen>> gesehen = {layoutDerVersion(k, aktuelleVersion, pfad)};
    for (const std::string& version : kandidaten()) {
        std::vector<Gelesen> layout = layoutDerVersion(k, version, pfad);
        if (std::find(gesehen.begin(), gesehen.end(), layout) != gesehen.end()) continue;
        alle.push_back({version, satzDesLayouts(k, version, layout)});
        gesehen.push_back(std::move(layout));
    }
    return alle;
}

} // namespace qbtest
