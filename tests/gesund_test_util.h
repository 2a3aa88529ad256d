// Helpers of the tests of the health declarations beyond L144 to L147: the bytes of default records, the
// checks every member of the family must pass (copy, reset, size, XML through the family rule), and the
// test of legacy records on every stream kind.
#pragma once

#include "health/qbFormularAllgGesu.h"
#include "qballg/CQBXMLdata.h"

#include "form_test_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace qbtest {

// Default values on RWFile by a pattern, one letter a field: T an empty Text, F an unanswered Flag (0xff),
// 0 a Flag holding 0, I an Int holding 0.
inline Bytes standardBytes(const char* muster) {
    Bytes out;
    for (const char* c = muster; *c; ++c)
        switch (*c) {
        case 'T':
            out = cat({out, text("")});
            break;
        case 'F':
            out = cat({out, ein(0xff)});
            break;
        case '0':
            out = cat({out, ein(0)});
            break;
        case 'I':
            out = cat({out, int32(0)});
            break;
        default:
            ADD_FAILURE() << "no field of pattern letter " << *c;
        }
    return out;
}

// The seventeen common fields of a default health form, and a current header.
inline Bytes gesuStandardBytes() {
    return cat({standardBytes("TTT"), int32(-1), standardBytes("TFFTTTTTFTFTT")});
}
inline Bytes kopfBytes(const char* version, const char* nummer, const char* name, int seiten,
                       const char* person) {
    return cat({text(version), text(nummer), text(name), int32(seiten), text(person)});
}

inline std::vector<std::string> namenDerTabelle(const qbFeldTabelle& t) {
    std::vector<std::string> namen;
    for (const qbFeld& z : t)
        namen.push_back(z.name);
    return namen;
}

// The header a new form of the class holds.
template <class F>
void erwarteKopf(const F& f, const char* version, const char* nummer, const char* name, int seiten,
                 const char* person) {
    EXPECT_EQ(f.RefVersion().std(), version);
    EXPECT_EQ(f.RefDruckstueckNummer().std(), nummer);
    EXPECT_EQ(f.RefDruckstueckName().std(), name);
    EXPECT_EQ(f.RefSeitenanzahl(), seiten);
    EXPECT_EQ(f.RefPersonenKennung().std(), person);
    EXPECT_EQ(f.RefDauer(), -1) << "the common Dauer";
}

// Copy construction, assignment, copy() and newSpecies() carry header, common and own fields.
template <class F>
void pruefeKopieUndZuweisung() {
    F quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle(), &F::felder()});
    const F kopie(quelle);
    erwarteGleicheFelder(quelle, kopie, {&kopfTabelle(), &gesuTabelle(), &F::felder()}, "copy: ");
    F ziel;
    fuelleAlle(ziel, {&kopfTabelle(), &gesuTabelle(), &F::felder()}, 300);
    ziel = quelle;
    erwarteGleicheFelder(quelle, ziel, {&kopfTabelle(), &gesuTabelle(), &F::felder()}, "assignment: ");
    std::unique_ptr<RWCollectable> c(quelle.copy());
    EXPECT_EQ(c->isA(), F::classIsA());
    erwarteGleicheFelder(quelle, static_cast<const qbFormular&>(*c),
                         {&kopfTabelle(), &gesuTabelle(), &F::felder()}, "copy(): ");
    std::unique_ptr<RWCollectable> neu(quelle.newSpecies());
    EXPECT_EQ(neu->isA(), F::classIsA());
    erwarteGleicheFelder(F(), static_cast<const qbFormular&>(*neu),
                         {&kopfTabelle(), &gesuTabelle(), &F::felder()}, "newSpecies(): ");
}

// loesche brings every field and the whole header back to a new object's, the class's person included.
template <class F>
void pruefeLoesche(const char* person) {
    F f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &F::felder()});
    f.RefPersonenKennung("VP2");
    f.loesche();
    EXPECT_EQ(f.RefPersonenKennung().std(), person);
    EXPECT_EQ(f.RefDauer(), -1);
    erwarteGleicheFelder(F(), f, {&kopfTabelle(), &gesuTabelle(), &F::felder()});
}

// binaryStoreSize: the common figure plus the constant of the own fields and the lengths of the own Texts.
template <class F>
void pruefeGroesse(RWspace konstante) {
    F f;
    const RWspace kopf = 20 + f.RefVersion().length() + f.RefDruckstueckNummer().length() +
                         f.RefDruckstueckName().length() + f.RefPersonenKennung().length();
    EXPECT_EQ(f.binaryStoreSize(), kopf + 56 + konstante);
    RWspace texte = 0;
    for (const qbFeld& z : F::felder())
        if (z.art == qbArt::Text) {
            f.*z.mitglied.text = RWCString(std::string(z.name) + "!");
            if (z.inGroesse) texte += std::strlen(z.name) + 1; // L138 leaves Beschwerden out
        }
    f.RefKrankheit("Krankheit");
    EXPECT_EQ(f.binaryStoreSize(), kopf + 56 + 9 + konstante + texte);
}

// XMLgetDat: the node of the class with the header nested and the own fields under the given keys, in
// table order, and no common field. XMLputDat: the own fields back from the keys it reads (those written
// and read alike), nothing of the header or the common fields, and the node's type as it was.
template <class F>
void pruefeXml(const std::vector<std::string>& schluessel) {
    F quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle(), &F::felder()});
    CQBXMLdata knoten("x");
    quelle.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), F::klassenName());
    ASSERT_EQ(knoten.entryCount(), schluessel.size() + 1);
    const CQBXMLdata& kopf = *knoten.entryAt(0);
    EXPECT_TRUE(kopf.isAdded());
    EXPECT_EQ(kopf.Typ().std(), "qbFormular");
    EXPECT_EQ(eintragsNamen(kopf), kKopfSchluessel);
    std::vector<std::string> eigene = eintragsNamen(knoten);
    eigene.erase(eigene.begin());
    EXPECT_EQ(eigene, schluessel);
    RWCString s;
    for (const std::string& k : kGesuSchluessel) {
        if (!F::felder().suche(k.c_str())) {
            EXPECT_FALSE(knoten.Listvalue(k.c_str(), s)) << k;
        }
    }

    knoten.List(CQBXMLdata("Krankheit", "fremd"));
    knoten.List(CQBXMLdata("Dauer", 8));
    F ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), F::klassenName());
    const F frisch;
    for (const qbFeld& z : F::felder()) {
        const bool gelesen =
            z.xmlLeseKey && z.xmlSchreibKey && std::strcmp(z.xmlLeseKey, z.xmlSchreibKey) == 0;
        EXPECT_EQ(wert(z, ziel), wert(z, gelesen ? quelle : frisch)) << z.name;
    }
    erwarteGleicheFelder(frisch, ziel, {&kopfTabelle(), &gesuTabelle()});

    CQBXMLdata fremd("y");
    fremd.clear("qbFormularL145");
    fremd.List(CQBXMLdata(F::felder().begin()->name, F::felder().begin()->art == qbArt::Text ? 1 : 0));
    const CQBXMLdata vorher(fremd);
    F unberuehrt;
    unberuehrt.XMLputDat(fremd);
    EXPECT_TRUE(fremd.sameTree(vorher));
    erwarteGleicheFelder(frisch, unberuehrt, {&kopfTabelle(), &gesuTabelle(), &F::felder()});
}

// A filled form saved on the stream kind reads back whole and is stamped with the class's version.
template <class F>
void pruefeRundreise(Strom art, const char* version) {
    F f;
    fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &F::felder()});
    f.RefVersion("01.2001");
    F gelesen;
    rundreise(f, gelesen, art);
    EXPECT_EQ(f.RefVersion().std(), version);
    erwarteGleicheFelder(f, gelesen, {&kopfTabelle(), &gesuTabelle(), &F::felder()});
}

// A legacy record built by the fixture writer, read on every stream kind: every field as written, and the
// reader ending exactly at the record's end.
template <class F>
class GesuAltSatz : public ::testing::TestWithParam<Strom> {
protected:
    void kopf(const char* version) {
        s.kopf(version, erwartet.RefDruckstueckNummer().data(), "Alter Name", 5, "VP2");
    }
    // The common fields as every record from 12.2000 on holds them (13 and 14 by the version).
    Satz& gemeinsam(bool mitArbeitsplatzwechsel) {
        s.gemeinsam(kFelder1bis12);
        if (mitArbeitsplatzwechsel) s.gemeinsam(kFelder13und14);
        return s.gemeinsam(kFelder15bis17);
    }
    void pruefe() {
        bool genauAmEnde = false;
        const F gelesen = s.satz().template lies<F>(GetParam(), &genauAmEnde);
        EXPECT_TRUE(genauAmEnde) << "the reader did not stop at the record's end";
        erwarteGleicheFelder(erwartet, gelesen, {&kopfTabelle(), &gesuTabelle(), &F::felder()});
    }
    F erwartet;
    Satz s{erwartet, F::felder()};
};

} // namespace qbtest
