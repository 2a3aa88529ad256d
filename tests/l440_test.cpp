// qbFormularL440, the combat-sports declaration and first member of the sport family: one layout behind
// the header whatever the stored version, the stamp "08.2005", the size constant 40, and XML that reads
// the header too.
#include "sport/qbFormularL440.h"
#include "qballg/CQBXMLdata.h"
#include "rw/bstream.h"
#include "rw/pstream.h"
#include "rw/rwfile.h"

#include "form_test_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <array>
#include <cstring>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

using namespace qbtest;

namespace {

const char* const kName = "Erkl\xE4rung Kampfsport";

// The twelve flags in stream order.
using Flags = std::array<unsigned char, 12>;

Flags flagsVon(const qbFormularL440& f) {
    return {f.Refhaeufig13JN(),
            f.Refhaeufig4JN(),
            f.RefFreizeitsportJN(),
            f.RefhauptberuflichJN(),
            f.RefBerufssportlerJN(),
            f.RefTurniereJN(),
            f.RefNonKontaktJN(),
            f.RefSemikontaktJN(),
            f.RefLeichtkontaktJN(),
            f.RefVollkontaktJN(),
            f.RefSicherheitsausruestungJN(),
            f.RefverletztJN()};
}

void setzeFlags(qbFormularL440& f, const Flags& v) {
    f.Refhaeufig13JN(v[0]);
    f.Refhaeufig4JN(v[1]);
    f.RefFreizeitsportJN(v[2]);
    f.RefhauptberuflichJN(v[3]);
    f.RefBerufssportlerJN(v[4]);
    f.RefTurniereJN(v[5]);
    f.RefNonKontaktJN(v[6]);
    f.RefSemikontaktJN(v[7]);
    f.RefLeichtkontaktJN(v[8]);
    f.RefVollkontaktJN(v[9]);
    f.RefSicherheitsausruestungJN(v[10]);
    f.RefverletztJN(v[11]);
}

const Flags kUnbeantwortet = {0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff};
// Distinct values, so that a field read out of place shows.
const Flags kVerschieden = {1, 0, 1, 0, 2, 3, 4, 5, 6, 7, 8, 9};

Bytes flagBytes(const Flags& v) { return Bytes(v.begin(), v.end()); }

const std::vector<std::string> kSchluessel = {
    "Kampfsportarten",  "haeufig13JN",      "haeufig4JN",    "FreizeitsportJN",
    "hauptberuflichJN", "BerufssportlerJN", "TurniereJN",    "NonKontaktJN",
    "SemikontaktJN",    "LeichtkontaktJN",  "VollkontaktJN", "SicherheitsausruestungJN",
    "verletztJN",       "WannWelcheFolgen"};

qbFormularL440 gefuellt() {
    qbFormularL440 f;
    f.RefKampfsportarten("Judo, Karate");
    setzeFlags(f, kVerschieden);
    f.RefWannWelcheFolgen("2003 Kn\xF6"
                          "chelbruch");
    f.RefPersonenKennung("VP2");
    return f;
}

// Header and fields are the same in both forms.
void erwarteGleich(const qbFormularL440& erwartet, const qbFormularL440& ist) {
    EXPECT_EQ(ist.RefVersion().std(), erwartet.RefVersion().std());
    EXPECT_EQ(ist.RefDruckstueckNummer().std(), erwartet.RefDruckstueckNummer().std());
    EXPECT_EQ(ist.RefDruckstueckName().std(), erwartet.RefDruckstueckName().std());
    EXPECT_EQ(ist.RefSeitenanzahl(), erwartet.RefSeitenanzahl());
    EXPECT_EQ(ist.RefPersonenKennung().std(), erwartet.RefPersonenKennung().std());
    EXPECT_EQ(ist.RefKampfsportarten().std(), erwartet.RefKampfsportarten().std());
    EXPECT_EQ(flagsVon(ist), flagsVon(erwartet));
    EXPECT_EQ(ist.RefWannWelcheFolgen().std(), erwartet.RefWannWelcheFolgen().std());
}

class L440Strom : public ::testing::TestWithParam<Strom> {};
class L440AltSatz : public ::testing::TestWithParam<Strom> {
protected:
    // A record of that version in the one layout of the form, with distinct values.
    static AltSatz satz(const std::string& version) {
        AltSatz s = AltSatz::kopf(version, "L440", "Kampf", 3, "VP2").text("Judo, Karate");
        for (unsigned char v : kVerschieden)
            s.flag(v);
        return s.text("2003 Knie");
    }
    void pruefe(const std::string& version, int seitenanzahl) {
        bool genauAmEnde = false;
        const auto f = satz(version).lies<qbFormularL440>(GetParam(), &genauAmEnde);
        EXPECT_TRUE(genauAmEnde) << "the reader did not stop at the record's end";
        EXPECT_EQ(f.RefVersion().std(), version);
        EXPECT_EQ(f.RefDruckstueckNummer().std(), "L440");
        EXPECT_EQ(f.RefDruckstueckName().std(), "Kampf");
        EXPECT_EQ(f.RefSeitenanzahl(), seitenanzahl);
        EXPECT_EQ(f.RefPersonenKennung().std(), "VP2");
        EXPECT_EQ(f.RefKampfsportarten().std(), "Judo, Karate");
        EXPECT_EQ(flagsVon(f), kVerschieden);
        EXPECT_EQ(f.RefWannWelcheFolgen().std(), "2003 Knie");
    }
};

} // namespace

// ---- Construction and accessors

TEST(L440, ConstructorSetsTheHeaderAndLeavesEveryFlagUnanswered) {
    qbFormularL440 f;
    EXPECT_EQ(f.RefVersion().std(), "08.2005");
    EXPECT_EQ(f.RefDruckstueckNummer().std(), "L440");
    EXPECT_EQ(f.RefDruckstueckName().std(), kName);
    EXPECT_EQ(f.RefSeitenanzahl(), 1);
    EXPECT_EQ(f.RefPersonenKennung().std(), "VP1");
    EXPECT_TRUE(f.RefKampfsportarten().isNull());
    EXPECT_EQ(flagsVon(f), kUnbeantwortet);
    EXPECT_TRUE(f.RefWannWelcheFolgen().isNull());
}

TEST(L440, AccessorsWithLowerCaseBeginningsStoreWhatTheyAreGiven) {
    const qbFormularL440 f = gefuellt();
    EXPECT_EQ(f.RefKampfsportarten().std(), "Judo, Karate");
    EXPECT_EQ(f.Refhaeufig13JN(), 1);
    EXPECT_EQ(f.Refhaeufig4JN(), 0);
    EXPECT_EQ(f.RefhauptberuflichJN(), 0);
    EXPECT_EQ(f.RefverletztJN(), 9);
    EXPECT_EQ(flagsVon(f), kVerschieden);
    EXPECT_EQ(f.RefWannWelcheFolgen().std(), "2003 Kn\xF6"
                                             "chelbruch");
}

TEST(L440, FlagAndItsTextAreNotTiedTogether) {
    qbFormularL440 f;
    f.RefWannWelcheFolgen("Knie");
    f.RefverletztJN(0);
    EXPECT_EQ(f.RefWannWelcheFolgen().std(), "Knie");
    f.RefWannWelcheFolgen("");
    EXPECT_EQ(f.RefverletztJN(), 0);
}

// ---- Saving and restoring

TEST(L440, DefaultObjectSavesEveryFlagAsTheByte0xff) {
    const qbFormularL440 f;
    const Bytes erwartet = cat({text("08.2005"), text("L440"), text(kName), int32(1), text("VP1"), text(""),
                                flagBytes(kUnbeantwortet), text("")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
}

TEST(L440, SaveStampsTheCurrentVersionAndWritesTheFieldsInTableOrder) {
    qbFormularL440 f = gefuellt();
    f.RefVersion("01.2003");
    const Bytes erwartet = cat({text("08.2005"), text("L440"), text(kName), int32(1), text("VP2"),
                                text("Judo, Karate"), Bytes{1, 0, 1, 0, 2, 3, 4, 5, 6, 7, 8, 9},
                                text("2003 Kn\xF6"
                                     "chelbruch")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
    EXPECT_EQ(f.RefVersion().std(), "08.2005");
}

TEST_P(L440Strom, DefaultFlagsReadBackAs0xffNotAsZero) {
    const qbFormularL440 f;
    qbFormularL440 gelesen;
    setzeFlags(gelesen, Flags{});
    rundreise(f, gelesen, GetParam());
    EXPECT_EQ(flagsVon(gelesen), kUnbeantwortet);
}

TEST_P(L440Strom, FilledFormRoundTripsAndIsStamped) {
    qbFormularL440 f = gefuellt();
    f.RefVersion("10.1999");
    qbFormularL440 gelesen;
    rundreise(f, gelesen, GetParam());
    EXPECT_EQ(f.RefVersion().std(), "08.2005");
    erwarteGleich(f, gelesen);
}

INSTANTIATE_TEST_SUITE_P(JederStrom, L440Strom,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

TEST(L440, RestoredOlderRecordKeepsItsVersionUntilTheNextSaveWritesTheCurrentLiteral) {
    const AltSatz alt =
        AltSatz::kopf("11.2001", "L440", "Kampf", 3, "VP2").text("Boxen").flags(11, 1).flag(0).text("");
    const auto f = alt.lies<qbFormularL440>(Strom::Datei);
    EXPECT_EQ(f.RefVersion().std(), "11.2001");
    const Bytes erwartet = cat({text("08.2005"), text("L440"), text("Kampf"), int32(3), text("VP2"),
                                text("Boxen"), Bytes(11, 1), Bytes{0}, text("")});
    EXPECT_EQ(hex(gespeichert(f)), hex(erwartet));
    EXPECT_EQ(f.RefVersion().std(), "08.2005");
}

// ---- Size

TEST(L440, BinaryStoreSizeIsTheConstant40AndTheLengthsOfAllTexts) {
    qbFormularL440 f;
    EXPECT_EQ(f.binaryStoreSize(), 40u + 7u + 4u + std::strlen(kName) + 3u);
    f.RefKampfsportarten("Judo");
    f.RefWannWelcheFolgen("nie");
    f.RefPersonenKennung("VN");
    setzeFlags(f, kVerschieden);
    EXPECT_EQ(f.binaryStoreSize(), 40u + 7u + 4u + std::strlen(kName) + 2u + 4u + 3u);
}

TEST(L440, BinaryStoreSizeEqualsTheBytesSaveGutsWrites) {
    const qbFormularL440 leer;
    EXPECT_EQ(leer.binaryStoreSize(), gespeichert(leer).size());
    const qbFormularL440 f = gefuellt();
    EXPECT_EQ(f.binaryStoreSize(), gespeichert(f).size());
}

// ---- XML

TEST(L440, XMLgetDatNestsTheHeaderAndListsTheFieldsUnderTheirLowerAndUpperCaseKeys) {
    const qbFormularL440 f = gefuellt();
    CQBXMLdata knoten("L440");
    f.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularL440");
    ASSERT_EQ(knoten.entryCount(), 15u);
    const CQBXMLdata& kopf = *knoten.entryAt(0);
    EXPECT_TRUE(kopf.isAdded());
    EXPECT_EQ(kopf.Name().std(), "");
    EXPECT_EQ(kopf.Typ().std(), "qbFormular");
    EXPECT_EQ(eintragsNamen(kopf), kKopfSchluessel);
    std::vector<std::string> felder = eintragsNamen(knoten);
    felder.erase(felder.begin());
    EXPECT_EQ(felder, kSchluessel);
    for (size_t i = 2; i <= 13; ++i)
        EXPECT_EQ(knoten.entryAt(i)->value().kind(), QBvar::flag) << kSchluessel[i - 1];
    EXPECT_EQ(knoten.entryAt(1)->value().kind(), QBvar::text);
    EXPECT_EQ(knoten.entryAt(14)->value().kind(), QBvar::text);
    unsigned char verletzt = 0;
    EXPECT_TRUE(knoten.Listvalue("verletztJN", verletzt));
    EXPECT_EQ(verletzt, 9);
    RWCString person;
    EXPECT_TRUE(knoten.Listvalue("PersonenKennung", person));
    EXPECT_EQ(person.std(), "VP2");
}

TEST(L440, XMLputDatReadsTheFieldsAndPersonenKennungButNotVersionOrSeitenanzahl) {
    qbFormularL440 quelle = gefuellt();
    quelle.RefVersion("01.1999");
    quelle.RefDruckstueckName("Kampfsport alt");
    CQBXMLdata knoten("L440");
    quelle.XMLgetDat(knoten);
    qbFormularL440 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularL440");
    EXPECT_EQ(ziel.RefPersonenKennung().std(), "VP2");
    EXPECT_EQ(ziel.RefDruckstueckName().std(), "Kampfsport alt");
    EXPECT_EQ(ziel.RefDruckstueckNummer().std(), "L440");
    EXPECT_EQ(ziel.RefVersion().std(), "08.2005");
    EXPECT_EQ(ziel.RefSeitenanzahl(), 1);
    EXPECT_EQ(ziel.RefKampfsportarten().std(), "Judo, Karate");
    EXPECT_EQ(flagsVon(ziel), kVerschieden);
    EXPECT_EQ(ziel.RefWannWelcheFolgen().std(), "2003 Kn\xF6"
                                                "chelbruch");
}

TEST(L440, XMLputDatOnANodeOfAnotherTypeChangesNothing) {
    const qbFormularL440 quelle = gefuellt();
    CQBXMLdata knoten("L440");
    quelle.XMLgetDat(knoten);
    knoten.Typ("qbFormularL441");
    const CQBXMLdata vorher(knoten);
    qbFormularL440 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_TRUE(knoten.sameTree(vorher));
    erwarteGleich(qbFormularL440(), ziel);
}

TEST(L440, XMLputDatAcceptsAnEmptyNodeOfItsTypeAndChangesNothing) {
    qbFormularL440 f = gefuellt();
    const qbFormularL440 vorher(f);
    CQBXMLdata knoten("leer");
    knoten.clear("qbFormularL440");
    f.XMLputDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), "qbFormularL440");
    EXPECT_EQ(knoten.entryCount(), 0u);
    erwarteGleich(vorher, f);
}

TEST(L440, XMLputDatLeavesFieldsWhoseKeyIsMissing) {
    qbFormularL440 f = gefuellt();
    CQBXMLdata knoten("teil");
    knoten.clear("qbFormularL440");
    knoten.List(CQBXMLdata("verletztJN", static_cast<unsigned char>(0)));
    f.XMLputDat(knoten);
    Flags erwartet = kVerschieden;
    erwartet[11] = 0;
    EXPECT_EQ(flagsVon(f), erwartet);
    EXPECT_EQ(f.RefKampfsportarten().std(), "Judo, Karate");
    EXPECT_EQ(f.RefPersonenKennung().std(), "VP2");
}

// ---- Copy, identity, reset, equality

TEST(L440, CopyConstructorAndAssignmentCarryTheHeaderAndEveryField) {
    qbFormularL440 quelle = gefuellt();
    quelle.RefVersion("11.2001");
    const qbFormularL440 kopie(quelle);
    erwarteGleich(quelle, kopie);
    qbFormularL440 ziel;
    ziel.RefKampfsportarten("anders");
    ziel = quelle;
    erwarteGleich(quelle, ziel);
    std::unique_ptr<RWCollectable> c(quelle.copy());
    ASSERT_EQ(c->isA(), qbFormularL440::classIsA());
    erwarteGleich(quelle, static_cast<const qbFormularL440&>(*c));
    std::unique_ptr<RWCollectable> neu(quelle.newSpecies());
    ASSERT_EQ(neu->isA(), qbFormularL440::classIsA());
    erwarteGleich(qbFormularL440(), static_cast<const qbFormularL440&>(*neu));
}

TEST(L440, LoescheOfAFormOfVP2GivesVP1AndTheDefaultsBack) {
    const AltSatz alt =
        AltSatz::kopf("11.2001", "L440", "Kampf", 3, "VP2").text("Boxen").flags(12, 1).text("Nase");
    qbFormularL440 f = alt.lies<qbFormularL440>(Strom::Datei);
    ASSERT_EQ(f.RefPersonenKennung().std(), "VP2");
    f.loesche();
    erwarteGleich(qbFormularL440(), f);
    EXPECT_EQ(f.RefPersonenKennung().std(), "VP1");
    EXPECT_EQ(f.RefVersion().std(), "08.2005");
}

TEST(L440, EqualityIsSameDruckstueckNummerAndPersonenKennungOnly) {
    const qbFormularL440 a = gefuellt();
    qbFormularL440 b;
    b.RefPersonenKennung("VP2");
    EXPECT_TRUE(a.isEqual(&b));
    EXPECT_TRUE(a == b);
    b.RefPersonenKennung("VP1");
    EXPECT_FALSE(a.isEqual(&b));
    b.RefPersonenKennung("VP2");
    b.RefDruckstueckNummer("L441");
    EXPECT_FALSE(a.isEqual(&b));
}

// ---- Legacy records on every stream kind: one layout whatever the version

TEST_P(L440AltSatz, Record10_1999WithoutSeitenanzahlReadsTheOneLayoutAndNoTriple) { pruefe("10.1999", 1); }

TEST_P(L440AltSatz, Record11_2001WithSeitenanzahlReadsTheOneLayout) { pruefe("11.2001", 3); }

TEST_P(L440AltSatz, Record12_2030ReadsTheOneLayout) { pruefe("12.2030", 3); }

INSTANTIATE_TEST_SUITE_P(JederStrom, L440AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);
