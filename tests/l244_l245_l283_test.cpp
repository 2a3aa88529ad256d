// qbFormularL244 (thrombosis), qbFormularL245 (thyroid) and qbFormularL283 (psychic illness), the
// three-page declarations of 08.2008: keys with a trailing blank, keys written one way and read another,
// L244's size figure, L283's two fields that no record holds, and the forms without a person of their own.
#include "core/qbFormularListe.h"
#include "health/qbFormularL244.h"
#include "health/qbFormularL245.h"
#include "health/qbFormularL283.h"
#include "qballg/CQBXMLdata.h"

#include "erklaerungen_util.h"
#include "form_test_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <memory>
#include <string>
#include <vector>

using namespace qbtest;

namespace {

template <class F>
void pruefeSatz(const char* version, const char* nummer, const char* stueckName,
                const std::vector<FeldArt>& felder) {
    F erwartet;
    Satz s(erwartet, F::felder());
    s.kopf(version, nummer, stueckName, 3, "VP2");
    gemeinsamerTeil(s, version);
    for (const FeldArt& fa : felder)
        s.eigen(fa.name);
    for (Strom art : {Strom::Datei, Strom::Binaer, Strom::Portabel}) {
        bool genauAmEnde = false;
        const F f = s.satz().template lies<F>(art, &genauAmEnde);
        EXPECT_TRUE(genauAmEnde) << nummer << " " << version << " " << name(art);
        erwarteGleicheFelder(erwartet, f, {&kopfTabelle(), &gesuTabelle()});
        erwarteGleicheListe(erwartet, f, F::felder(), felder, std::string(version) + " " + name(art) + ": ");
    }
}

} // namespace

// ---- Records: one layout, read the same whatever the stored version

TEST(L244, RecordOfEveryVersionHasTheOwnFieldsInTableOrderBehindWhatTheBaseReads) {
    for (const char* version : {"08.2008", "10.1999", "01.2000", "11.2000", "12.2001", "05.2002", "12.2030"})
        pruefeSatz<qbFormularL244>(version, "L244", "Erkl\xE4rung Thrombose", liste(kL244Felder));
}

TEST(L245, RecordOfEveryVersionHasTheOwnFieldsInTableOrderBehindWhatTheBaseReads) {
    for (const char* version : {"08.2008", "10.1999", "11.2000", "11.2001", "12.2001"})
        pruefeSatz<qbFormularL245>(version, "L245", "Erkl\xE4rung Schilddr\xFCse", liste(kL245Felder));
}

TEST(L283, RecordOfEveryVersionHasTheOwnFieldsInTableOrderBehindWhatTheBaseReads) {
    for (const char* version : {"08.2008", "01.2000", "11.2000", "11.2001", "12.2001"})
        pruefeSatz<qbFormularL283>(version, "L283", "Erkl\xE4rung Psychische Erkrankungen",
                                   liste(kL283Felder));
}

// ---- L283's fields without a place in the record

TEST(L283, SavedAndRestoredFormHasGentestZeitpunktAndOperationGeplantZeitpunktEmpty_Quirk) {
    for (Strom art : {Strom::Datei, Strom::Binaer, Strom::Portabel}) {
        qbFormularL283 f;
        f.RefGentestZeitpunkt("03.2007");
        f.RefOperationGeplantZeitpunkt("09.2008");
        f.RefAuftretenErstmalig("2006");
        qbFormularL283 gelesen;
        rundreise(f, gelesen, art);
        EXPECT_TRUE(gelesen.RefGentestZeitpunkt().isNull()) << name(art);
        EXPECT_TRUE(gelesen.RefOperationGeplantZeitpunkt().isNull()) << name(art);
        EXPECT_EQ(gelesen.RefAuftretenErstmalig().std(), "2006") << name(art);
    }
}

TEST(L283, XMLKeepsGentestZeitpunktAndOperationGeplantZeitpunkt) {
    qbFormularL283 f;
    f.RefGentestZeitpunkt("03.2007");
    f.RefOperationGeplantZeitpunkt("09.2008");
    CQBXMLdata knoten("L283");
    f.XMLgetDat(knoten);
    qbFormularL283 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(ziel.RefGentestZeitpunkt().std(), "03.2007");
    EXPECT_EQ(ziel.RefOperationGeplantZeitpunkt().std(), "09.2008");
}

TEST(L283, TheTwoFurtherFieldsAreNeitherWrittenNorCountedButCopiedAndReset) {
    qbFormularL283 f;
    const Bytes leer = gespeichert(f);
    const RWspace groesse = f.binaryStoreSize();
    f.RefGentestZeitpunkt("03.2007");
    f.RefOperationGeplantZeitpunkt("09.2008");
    EXPECT_EQ(hex(gespeichert(f)), hex(leer));
    EXPECT_EQ(f.binaryStoreSize(), groesse);
    const qbFormularL283 kopie(f);
    EXPECT_EQ(kopie.RefGentestZeitpunkt().std(), "03.2007");
    qbFormularL283 ziel;
    ziel = f;
    EXPECT_EQ(ziel.RefOperationGeplantZeitpunkt().std(), "09.2008");
    f.loesche();
    EXPECT_TRUE(f.RefGentestZeitpunkt().isNull());
    EXPECT_TRUE(f.RefOperationGeplantZeitpunkt().isNull());
}

TEST(L283, AuftretenErstmaligIsWrittenUnderItsNameAndReadUnderTheNameTwice_Quirk) {
    qbFormularL283 f;
    f.RefAuftretenErstmalig("2006");
    CQBXMLdata knoten("L283");
    f.XMLgetDat(knoten);
    RWCString s;
    ASSERT_TRUE(knoten.Listvalue("AuftretenErstmalig", s));
    EXPECT_EQ(s.std(), "2006");
    qbFormularL283 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_TRUE(ziel.RefAuftretenErstmalig().isNull());
    knoten.List(CQBXMLdata("AuftretenErstmalig AuftretenErstmalig", "2005"));
    ziel.XMLputDat(knoten);
    EXPECT_EQ(ziel.RefAuftretenErstmalig().std(), "2005");
}

// ---- L244's keys and size

TEST(L244, XMLputDatOnItsOwnTreeLeavesGentestZeitpunktAndBringsBackKeysWithTheirBlank_Quirk) {
    qbFormularL244 f;
    f.RefGentestZeitpunkt("2007");
    f.RefSonstigeErkrankung1JN(1);
    f.RefKoerperteile("Bein");
    CQBXMLdata knoten("L244");
    f.XMLgetDat(knoten);
    unsigned char flag = 0;
    EXPECT_TRUE(knoten.Listvalue("SonstigeErkrankung1JN ", flag));
    EXPECT_FALSE(knoten.Listvalue("SonstigeErkrankung1JN", flag));
    RWCString s;
    EXPECT_TRUE(knoten.Listvalue("GentestZeitpunkt ", s));
    EXPECT_FALSE(knoten.Listvalue("GentestZeitpunkt", s));
    qbFormularL244 ziel;
    ziel.RefGentestZeitpunkt("vorher");
    ziel.XMLputDat(knoten);
    EXPECT_EQ(ziel.RefGentestZeitpunkt().std(), "vorher");
    EXPECT_EQ(ziel.RefSonstigeErkrankung1JN(), 1);
    EXPECT_EQ(ziel.RefKoerperteile().std(), "Bein");
}

TEST(L244, BinaryStoreSizeCountsSeventeenBytesMoreThanSaveGutsWrites_Quirk) {
    qbFormularL244 f;
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size() + 17);
    f.RefDiagnose("Varikosis");
    f.RefAntwortZuFrage("ohne Einfluss");
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size() - f.RefAntwortZuFrage().length() + 17);
}

TEST(L245, AuftretenErstmaligTravelsUnderItsNameWrittenTwice) {
    qbFormularL245 f;
    f.RefAuftretenErstmalig("2004");
    CQBXMLdata knoten("L245");
    f.XMLgetDat(knoten);
    RWCString s;
    EXPECT_TRUE(knoten.Listvalue("AuftretenErstmalig AuftretenErstmalig", s));
    EXPECT_FALSE(knoten.Listvalue("AuftretenErstmalig", s));
    qbFormularL245 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(ziel.RefAuftretenErstmalig().std(), "2004");
}

// ---- No person of their own

TEST(L245, NewFormHasAnEmptyPersonenKennungAndTheListStoresItUnderTheEmptyKey) {
    qbFormularL245 f;
    EXPECT_TRUE(f.RefPersonenKennung().isNull());
    f.RefKrankheit("Struma");
    qbFormularListe liste;
    liste.neuesFormular(f);
    ASSERT_EQ(liste.AnzahlFormulare(), 1u);
    EXPECT_TRUE(liste.liefereFormularAnPos(0)->RefPersonenKennung().isNull());
    // every person index asks for VP1, VP2 or VN: none finds the form of the empty key
    for (int person : {0, 1, -1})
        EXPECT_FALSE(liste.FormularVorhanden("L245", person)) << person;
    liste.loescheGesundheitsFormulare(-1);
    EXPECT_EQ(liste.AnzahlFormulare(), 1u);
}

TEST(L244, LoescheOfEachOfTheThreeBringsBackTheEmptyPersonenKennung) {
    std::vector<std::unique_ptr<qbFormularAllgGesu>> formen;
    formen.push_back(std::make_unique<qbFormularL244>());
    formen.push_back(std::make_unique<qbFormularL245>());
    formen.push_back(std::make_unique<qbFormularL283>());
    for (const auto& f : formen) {
        f->RefPersonenKennung("VP2");
        f->loesche();
        EXPECT_TRUE(f->RefPersonenKennung().isNull()) << f->RefDruckstueckNummer().std();
    }
}
