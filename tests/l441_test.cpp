// qbFormularL441, the flying-sports declaration: the key of SegelflugzeugJN written with a semicolon and
// read without, the size constant one above the record, one layout for every stored version. The rest of
// the family rule is tested over all sport forms (sport_familie_test.cpp).
#include "sport/qbFormularL441.h"

#include "form_test_util.h"
#include "legacy_fixture.h"
#include "sport_felder.h"
#include "test_util.h"

#include <cstring>
#include <string>

using namespace qbtest;

namespace {

const qbFeldTabelle& tabelle() { return qbFormularL441::felder(); }

} // namespace

TEST(L441, XmlOfTheFormItselfDoesNotGiveSegelflugzeugJNBackButCarriesTheOther67Fields_Quirk) {
    qbFormularL441 quelle;
    fuelleAlle(quelle, {&tabelle()});
    quelle.RefSegelflugzeugJN(1);
    CQBXMLdata knoten("L441");
    quelle.XMLgetDat(knoten);
    unsigned char segel = 0;
    EXPECT_TRUE(knoten.Listvalue("SegelflugzeugJN;", segel));
    EXPECT_EQ(segel, 1);
    EXPECT_FALSE(knoten.Listvalue("SegelflugzeugJN", segel));
    qbFormularL441 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(ziel.RefSegelflugzeugJN(), 0xff);
    int getragen = 0;
    for (const qbFeld& z : tabelle()) {
        if (std::string(z.name) == "SegelflugzeugJN") continue;
        EXPECT_EQ(wert(z, ziel), wert(z, quelle)) << z.name;
        ++getragen;
    }
    EXPECT_EQ(getragen, 67);
}

TEST(L441, TreeWithThePlainKeySetsSegelflugzeugJN) {
    CQBXMLdata knoten("L441");
    knoten.clear("qbFormularL441");
    knoten.List(CQBXMLdata("SegelflugzeugJN", static_cast<unsigned char>(1)));
    qbFormularL441 f;
    f.XMLputDat(knoten);
    EXPECT_EQ(f.RefSegelflugzeugJN(), 1);
}

TEST(L441, BinaryStoreSizeIs149OneMoreThanTheRecordHolds_Quirk) {
    qbFormularL441 f;
    const size_t kopf =
        std::strlen("04.2010") + std::strlen("L441") + std::strlen("Erkl\xE4rung Flugsport") + 3;
    EXPECT_EQ(f.binaryStoreSize(), 149u + kopf);
    EXPECT_EQ(gespeichert(f).size(), 148u + kopf);
    f.RefNaehereAngabenUnfall("Bruchlandung");
    f.RefSpl("SPL");
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size() + 1);
}

// A record stored as 11.2001 holds the 68 fields of today's layout and is read with it, on every stream.
TEST(L441, RecordStoredAs11_2001IsReadWithTheLayoutOf04_2010) {
    for (Strom strom : {Strom::Datei, Strom::Binaer, Strom::Portabel}) {
        SCOPED_TRACE(name(strom));
        qbFormularL441 erwartet;
        Satz satz(erwartet, tabelle());
        satz.kopf("11.2001", "L441", "Erkl\xE4rung Flugsport", 1, "VP2");
        for (const SportFeld& f : kL441Felder)
            satz.eigen(f.name);
        bool amEnde = false;
        const auto gelesen = satz.satz().lies<qbFormularL441>(strom, &amEnde);
        EXPECT_TRUE(amEnde);
        EXPECT_EQ(gelesen.RefVersion().std(), "11.2001");
        erwarteGleicheFelder(erwartet, gelesen, {&qbFormular::felder(), &tabelle()});
    }
}

TEST(L441, AccessorsOfTheFreeEntriesAndTheirNamesAreSeparate) {
    qbFormularL441 f;
    f.RefSonstigeLuftfahrzeug1JN(1);
    f.RefSonstigeLuftfahrzeug2("Tragschrauber");
    f.RefSonstigeBerechtigung2JN(0);
    f.RefSonstigeBerechtigung1("Bannerschlepp");
    EXPECT_EQ(f.RefSonstigeLuftfahrzeug1JN(), 1);
    EXPECT_TRUE(f.RefSonstigeLuftfahrzeug1().isNull());
    EXPECT_EQ(f.RefSonstigeLuftfahrzeug2JN(), 0xff);
    EXPECT_EQ(f.RefSonstigeLuftfahrzeug2().std(), "Tragschrauber");
    EXPECT_EQ(f.RefSonstigeBerechtigung2JN(), 0);
    EXPECT_EQ(f.RefSonstigeBerechtigung1().std(), "Bannerschlepp");
    EXPECT_EQ(f.RefSonstigeBerechtigung1JN(), 0xff);
}
