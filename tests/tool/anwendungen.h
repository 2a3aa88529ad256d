// Application files for the tool's tests, made by the library itself.
#pragma once

#include "legacy_beispiel.h"
#include "legacy_fixture.h"
#include "prozess.h"

#include "core/qbFormularListe.h"
#include "core/qbKlassen.h"
#include "health/qbFormularL145.h"
#include "health/qbFormularL146.h"
#include "health/qbFormularL147.h"
#include "rw/rwfile.h"
#include "sport/qbFormularL440.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace qbtest {

// An application with a form of each person: L147 (VN), L145 and L440 (VP1), L146 (VP2). Texts are
// Windows-1252, as in the library.
inline qbFormularListe beispielAntrag() {
    qbFormularListe antrag;
    qbFormularL147 blutdruck;
    blutdruck.RefMedikamente("Betablocker");
    antrag.neuesFormular(blutdruck);
    qbFormularL145 verletzung;
    verletzung.RefVerletzungshergang("Sturz auf der Stra\xDF"
                                     "e");
    verletzung.RefGeheiltJN(1);
    verletzung.RefOperationJN(0);
    antrag.neuesFormular(verletzung);
    qbFormularL440 kampfsport;
    kampfsport.RefKampfsportarten("Judo");
    kampfsport.RefFreizeitsportJN(1);
    kampfsport.RefBerufssportlerJN(0);
    antrag.neuesFormular(kampfsport);
    qbFormularL146 wirbelsaeule;
    wirbelsaeule.RefPersonenKennung("VP2");
    wirbelsaeule.RefDiagnose("Lumbago");
    antrag.neuesFormular(wirbelsaeule);
    return antrag;
}

inline void speichere(const qbFormularListe& liste, const std::string& pfad) {
    RWFile f(pfad.c_str(), "wb");
    ASSERT_TRUE(f.isValid()) << pfad;
    f << liste;
}

inline std::unique_ptr<qbFormularListe> lies(const std::string& pfad) {
    auto liste = std::make_unique<qbFormularListe>();
    RWFile f(pfad.c_str(), "rb");
    f >> *liste;
    EXPECT_TRUE(f.good()) << pfad;
    return liste;
}

// The stored example of old record layouts in the checkout.
inline std::string legacyBeispiel() { return std::string(QBFORMUL_SOURCE_DIR) + "/" + kLegacyBeispielPfad; }
inline std::string vorsorgeBeispiel() {
    return std::string(QBFORMUL_SOURCE_DIR) + "/" + kVorsorgeBeispielPfad;
}

// What the tool writes for a file: the list restored and stored again by the library.
inline std::string neuGespeichert(const std::string& pfad, const Ordner& ordner) {
    const std::string ziel = ordner / "erwartet.qbf";
    speichere(*lies(pfad), ziel);
    return liesDatei(ziel);
}

inline bool enthaelt(const std::string& text, const std::string& teil) {
    return text.find(teil) != std::string::npos;
}

// Files of 4000 old records each, so that an upgrade of them takes a while.
inline std::vector<std::string> grosseAlteDateien(const Ordner& ordner, int anzahl) {
    const AltSatz satz =
        AltSatz::kopf("09.2001", "L440", "Erkl\xE4rung Kampfsport", 1, "VP1").text("Judo").flags(12).text("");
    const int formulare = 4000;
    const std::string muster = ordner / "muster.qbf";
    {
        RWFile f(muster.c_str(), "wb");
        f.Write(':');
        RWCString("05.1999").saveOn(f);
        f.Write(static_cast<unsigned short>(0x8010));
        f.Write(static_cast<unsigned>(formulare));
        for (int i = 0; i < formulare; ++i) {
            f.Write(static_cast<unsigned short>(qbFormularL440::classIsA()));
            satz.schreibe(f);
        }
    }
    const std::string inhalt = liesDatei(muster);
    std::vector<std::string> dateien;
    for (int i = 0; i < anzahl; ++i) {
        dateien.push_back(ordner / ("gross" + std::to_string(i) + ".qbf"));
        schreibeDatei(dateien.back(), inhalt);
    }
    return dateien;
}

} // namespace qbtest
