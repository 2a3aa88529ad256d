// Helpers of the tests of the health declarations L241, L243, L249, L281, L282, L244, L245 and L283: each
// form's own fields as its paper form lists them (name and type, in stream order), written down here once
// and independently of the field tables, and the bytes and values they give.
#pragma once

#include "health/qbFormularAllgGesu.h"

#include "form_test_util.h"
#include "test_util.h"

#include <string>
#include <vector>

namespace qbtest {

struct FeldArt {
    const char* name;
    char art; // 'T' Text, 'F' Flag, 'I' Int
};

// clang-format off
#include "erklaerungen_felder.inc"
// clang-format on

template <size_t N>
std::vector<FeldArt> liste(const FeldArt (&a)[N]) {
    return std::vector<FeldArt>(a, a + N);
}

inline std::vector<std::string> namen(const std::vector<FeldArt>& felder) {
    std::vector<std::string> n;
    for (const FeldArt& f : felder)
        n.push_back(f.name);
    return n;
}

// The row of a field of the form's own table; fails the test when there is none.
inline const qbFeld& zeile(const qbFeldTabelle& t, const char* name) {
    const qbFeld* z = t.suche(name);
    EXPECT_NE(z, nullptr) << "no field " << name << " in " << t.klasse();
    return z ? *z : *gesuTabelle().suche("Krankheit");
}

// The RWFile bytes of the listed fields as the form holds them, in the list's order.
inline Bytes bytesDerFelder(const qbFormular& f, const qbFeldTabelle& t, const std::vector<FeldArt>& felder) {
    Bytes out;
    for (const FeldArt& fa : felder) {
        const qbFeld& z = zeile(t, fa.name);
        switch (fa.art) {
        case 'T':
            EXPECT_EQ(z.art, qbArt::Text) << fa.name;
            out = cat({out, text((f.*z.mitglied.text).std())});
            break;
        case 'F':
            EXPECT_EQ(z.art, qbArt::Flag) << fa.name;
            out = cat({out, ein(f.*z.mitglied.flag)});
            break;
        default:
            EXPECT_EQ(z.art, qbArt::Int) << fa.name;
            out = cat({out, int32(f.*z.mitglied.ganz)});
        }
    }
    return out;
}

// The RWFile bytes of the header and of the seventeen common fields as the form holds them.
inline Bytes kopfUndGemeinsam(const qbFormular& f) {
    Bytes out = cat({text(f.RefVersion().std()), text(f.RefDruckstueckNummer().std()),
                     text(f.RefDruckstueckName().std()), int32(f.RefSeitenanzahl()),
                     text(f.RefPersonenKennung().std())});
    for (const qbFeld& z : gesuTabelle())
        out = cat({out, z.art == qbArt::Text   ? text((f.*z.mitglied.text).std())
                        : z.art == qbArt::Flag ? ein(f.*z.mitglied.flag)
                                               : int32(f.*z.mitglied.ganz)});
    return out;
}

// binaryStoreSize of qbFormularAllgGesu: 20 for the header's fixed parts and its four texts, 56 for the
// common fields' fixed parts and the lengths of their texts other than AntwortZuFrage.
inline RWspace gemeinsameGroesse(const qbFormularAllgGesu& f) {
    RWspace n = 20 + f.RefVersion().length() + f.RefDruckstueckNummer().length() +
                f.RefDruckstueckName().length() + f.RefPersonenKennung().length() + 56;
    for (const qbFeld& z : gesuTabelle())
        if (z.art == qbArt::Text && std::string(z.name) != "AntwortZuFrage")
            n += (f.*z.mitglied.text).length();
    return n;
}

// What the health base reads of a record of that version in a form without an early layout of its own:
// nothing but the dropped triple for "10.1999" and "01.2000", the common fields (13 and 14 where the version
// holds them) and before 12.2000 the triple behind them.
inline void gemeinsamerTeil(Satz& s, const std::string& version) {
    if (version == "10.1999" || version == "01.2000") {
        s.tripel();
        return;
    }
    s.gemeinsam(kFelder1bis12);
    if (qbFormularAllgGesu::mitArbeitsplatzwechsel(schluessel(version))) s.gemeinsam(kFelder13und14);
    s.gemeinsam(kFelder15bis17);
    if (schluessel(version) < 200012) s.tripel();
}

// The listed fields hold the same values in both forms.
inline void erwarteGleicheListe(const qbFormular& erwartet, const qbFormular& ist, const qbFeldTabelle& t,
                                const std::vector<FeldArt>& felder, const std::string& wo = "") {
    for (const FeldArt& fa : felder) {
        const qbFeld& z = zeile(t, fa.name);
        EXPECT_EQ(wert(z, ist), wert(z, erwartet)) << wo << fa.name;
    }
}

} // namespace qbtest
