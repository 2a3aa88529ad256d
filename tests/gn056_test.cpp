// qbFormularGN056, the standing application for the retirement allowance: the version written twice and
// the reader's care for records with one copy, the block of ten children, the stored layouts, the
// assignment that leaves five fields alone, and the XML that reads Version back and IDnummerKind only in.
#include "pension/qbFormularGN056.h"
#include "qballg/CQBXMLdata.h"

#include "form_test_util.h"
#include "klassen_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <cstring>
#include <string>
#include <vector>

using namespace qbtest;

namespace {

const qbFeldTabelle& tabelle() { return qbFormularGN056::felder(); }

// Whether a record of key k holds the field: Nr 1 to 25 always, 26 and 27 from 200601, 28 to 45 from
// 201004; in each child's pass GeschlechtKind from 200704 and IDnummerKind from 201004.
bool imLayout(size_t zeile, const char* name, int k) {
    if (zeile < 25) return true;
    if (zeile < 27) return k >= 200601;
    if (zeile < 45) return k >= 201004;
    if (std::strncmp(name, "GeschlechtKind_", 15) == 0) return k >= 200704;
    if (std::strncmp(name, "IDnummerKind_", 13) == 0) return k >= 201004;
    return true;
}

// A record: the header of kopfVersion, the second copy zweite (none when empty), then the fields of the
// layout of key k, each a value of its own; and the object the reader must make of it.
struct Gn056Satz {
    AltSatz satz;
    qbFormularGN056 erwartet;
    Gn056Satz(const std::string& kopfVersion, const std::string& zweite, int k,
              const std::string& finanzamt = "") {
        satz = AltSatz::kopf(kopfVersion, "GN056", "Zulage", 4, "VP2");
        erwartet.RefDruckstueckName("Zulage");
        erwartet.RefPersonenKennung("VP2");
        erwartet.RefVersion(zweite.empty() ? RWCString("0") : RWCString(zweite));
        if (!zweite.empty()) satz.text(zweite);
        int n = 0;
        for (size_t i = 0; i < tabelle().size(); ++i) {
            const qbFeld& z = tabelle().begin()[i];
            if (!imLayout(i, z.name, k)) continue;
            ++n;
            switch (z.art) {
            case qbArt::Text: {
                const std::string v =
                    i == 0 && !finanzamt.empty() ? finanzamt : std::string(z.name) + " \xE4";
                satz.text(v);
                erwartet.*z.mitglied.text = RWCString(v);
                break;
            }
            case qbArt::Flag:
                satz.flag(static_cast<unsigned char>(n));
                erwartet.*z.mitglied.flag = static_cast<unsigned char>(n);
                break;
            case qbArt::Int:
                satz.ganz(1000 + n);
                erwartet.*z.mitglied.ganz = 1000 + n;
                break;
            case qbArt::Long:
                satz.lang(-2000 - n);
                erwartet.*z.mitglied.lang = -2000 - n;
                break;
            case qbArt::Double:
                satz.zahl(n + 0.25);
                erwartet.*z.mitglied.zahl = n + 0.25;
                break;
            default:
                ADD_FAILURE() << z.name;
            }
        }
    }
};

void erwarteGleich(const qbFormularGN056& ist, const qbFormularGN056& soll, const std::string& wo) {
    for (const qbFeldTabelle* t : {&tabelle(), &kopfTabelle()})
        for (const qbFeld& z : *t)
            EXPECT_EQ(feldAlsText(z, ist), feldAlsText(z, soll)) << wo << " " << z.name;
}

void pruefe(const Gn056Satz& s) {
    for (Strom art : {Strom::Datei, Strom::Binaer, Strom::Portabel}) {
        bool amEnde = false;
        const qbFormularGN056 f = s.satz.lies<qbFormularGN056>(art, &amEnde);
        EXPECT_TRUE(amEnde) << name(art) << ": the reader did not end at the record's end";
        erwarteGleich(f, s.erwartet, name(art));
    }
}

} // namespace

TEST(GN056, ConstructorSetsTheHeaderAndTheDefaults) {
    qbFormularGN056 f;
    EXPECT_EQ(f.RefDruckstueckNummer(), "GN056");
    EXPECT_EQ(f.RefDruckstueckName(), "Dauerantrag auf Altersvorsorgezulage");
    EXPECT_EQ(f.RefVersion(), "04.2010");
    EXPECT_EQ(f.RefSeitenanzahl(), 4);
    EXPECT_EQ(f.RefPersonenKennung(), "VP1");
    EXPECT_EQ(f.GetAntragKinderzulageJN(), 0xFF);
    EXPECT_EQ(f.GetZuordnungZulageJN(), 1);
    EXPECT_EQ(f.GetZulagenberechtigtJN(), 0xFF);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(f.GetnichtidentischJN(i), 0);
        EXPECT_EQ(f.GetVornameKind(i), "");
        EXPECT_EQ(f.GetvonMonatKind(i), 0);
    }
    EXPECT_EQ(tabelle().size(), 45u + 10 * 15);
}

TEST(GN056, AccessorsGetAndSetWithTheirOwnSpellings) {
    qbFormularGN056 f;
    f.SetFinanzamt("FA Valdorf");
    f.SetAnzahlKinder(2);
    f.SetEntgelt(30000ul);
    f.SetPosEinkuenfte(-5);
    f.SetEUrente(12.5);
    f.SetvonMonat(3);
    f.SetMitgliedernummerAltersklasse("M7"); // the setter's spelling differs from the getter's
    f.SetVornameKind(9, "Max");
    f.SetvonJahrKind(9, 2001);
    f.SetnichtidentischJN(9, 0x101u); // the low byte
    EXPECT_EQ(f.GetFinanzamt(), "FA Valdorf");
    EXPECT_EQ(f.GetAnzahlKinder(), 2);
    EXPECT_EQ(f.GetEntgelt(), 30000);
    EXPECT_EQ(f.GetPosEinkuenfte(), -5);
    EXPECT_EQ(f.GetEUrente(), 12.5);
    EXPECT_EQ(f.GetvonMonat(), 3);
    EXPECT_EQ(f.GetMitgliedsnummerAltersklasse(), "M7");
    EXPECT_EQ(f.GetVornameKind(9), "Max");
    EXPECT_EQ(f.GetvonJahrKind(9), 2001);
    EXPECT_EQ(f.GetnichtidentischJN(9), 1);
}

TEST(GN056, RecordWithVersion04_2010AndItsSecondCopyReadsAllFields) {
    pruefe(Gn056Satz("04.2010", "04.2010", 201004));
}

TEST(GN056, SecondCopyDecidesNotTheHeader) {
    const Gn056Satz s("04.2010", "01.2006", 200601);
    pruefe(s);
    const qbFormularGN056 f = s.satz.lies<qbFormularGN056>(Strom::Datei);
    EXPECT_EQ(f.RefVersion(), "01.2006");
    EXPECT_EQ(f.GetIDnummerVP(), "");
    EXPECT_EQ(f.GetGeschlechtKind(0), "");
    EXPECT_NE(f.GetGeburtsname(), "");
}

TEST(GN056, RecordOf05_2007ReadsTheChildrensSexButNotTheirIdNumbers) {
    pruefe(Gn056Satz("05.2007", "05.2007", 200705));
}

TEST(GN056, RecordWithoutSecondCopyReadsFinanzamtAgainWithVersion0AndNoLaterField) {
    const Gn056Satz s("01.2005", "", 0);
    pruefe(s); // on RWFile by seeking back, on a virtual stream by taking the text as Finanzamt
    const qbFormularGN056 f = s.satz.lies<qbFormularGN056>(Strom::Datei);
    EXPECT_EQ(f.RefVersion(), "0");
    EXPECT_EQ(f.GetFinanzamt(), "Finanzamt \xE4");
}

TEST(GN056, RecordWithoutSecondCopyAndFinanzamtWithAPointReadsAsHavingOne_Quirk) {
    // "FA." has its point at position 2: it is taken for the second copy, and the record is read out of
    // step from there (its first field goes to Version, the second to Finanzamt).
    AltSatz satz = AltSatz::kopf("01.2005", "GN056", "Zulage", 4, "VP1");
    satz.text("FA.").text("Steuernummer");
    const qbFormularGN056 f = satz.lies<qbFormularGN056>(Strom::Datei);
    EXPECT_EQ(f.RefVersion(), "FA.");
    EXPECT_EQ(f.GetFinanzamt(), "Steuernummer");
}

TEST(GN056, SaveWritesTheVersionTwiceAndTheTenPassesWhateverAnzahlKinderSays) {
    qbFormularGN056 f;
    f.RefVersion("0");
    f.SetAnzahlKinder(2);
    f.SetVornameKind(9, "Zehn");
    const Bytes satz = gespeichert(f);
    EXPECT_EQ(f.RefVersion(), "04.2010");
    Bytes erwartet = cat({text("04.2010"), text("GN056"), text("Dauerantrag auf Altersvorsorgezulage"),
                          int32(4), text("VP1"), text("04.2010")});
    for (int i = 0; i < 13; ++i)
        erwartet = cat({erwartet, text("")});
    erwartet =
        cat({erwartet, Bytes{0xFF}, int32(2), Bytes{1}, Bytes{0xFF}, int32(0), text(""), int32(0), int32(0),
             int32(0), int32(0), int32(0), text(""), text(""), text(""), text(""), text("")});
    for (int i = 0; i < 4; ++i)
        erwartet = cat({erwartet, int32(0)});
    erwartet = cat({erwartet, Bytes(8, 0)});
    for (int i = 0; i < 4; ++i)
        erwartet = cat({erwartet, int32(0)});
    erwartet = cat({erwartet, Bytes(8, 0)});
    for (int i = 0; i < 4; ++i)
        erwartet = cat({erwartet, int32(0)});
    erwartet = cat({erwartet, Bytes(8, 0), text("")});
    for (int kind = 0; kind < 10; ++kind) {
        erwartet = cat({erwartet, text(kind == 9 ? "Zehn" : "")});
        for (int i = 0; i < 8; ++i)
            erwartet = cat({erwartet, text("")});
        erwartet = cat({erwartet, int32(0), int32(0), int32(0), int32(0), Bytes{0}, text("")});
    }
    EXPECT_EQ(hex(satz), hex(erwartet));
}

TEST(GN056, BinaryStoreSizeCountsTheHeaderAlone_Quirk) {
    qbFormularGN056 f;
    const RWspace leer = f.binaryStoreSize();
    EXPECT_EQ(leer, 20u + 7 + 5 + 36 + 3);
    f.SetFinanzamt("ein langes Finanzamt");
    EXPECT_EQ(f.binaryStoreSize(), leer);
    EXPECT_GT(gespeichert(f).size(), leer);
}

TEST(GN056, RestoredOldRecordReadsVersion0AndSavingStampsTheLiteral) {
    qbFormularGN056 f = Gn056Satz("01.2005", "", 0).satz.lies<qbFormularGN056>(Strom::Datei);
    EXPECT_EQ(f.RefVersion(), "0");
    qbFormularGN056 g;
    rundreise(f, g, Strom::Datei);
    EXPECT_EQ(g.RefVersion(), "04.2010");
}

TEST(GN056, DateWithPointsInsertsTwoPointsWhateverTheTextHolds) {
    qbFormularGN056 f;
    EXPECT_EQ(f.GetGeburtsdatumMitPkt(), "");
    f.SetGeburtsdatum("1970");
    EXPECT_EQ(f.GetGeburtsdatumMitPkt(), "1970");
    f.SetGeburtsdatum("01021970");
    EXPECT_EQ(f.GetGeburtsdatumMitPkt(), "01.02.1970");
    EXPECT_EQ(f.GetGeburtsdatum(), "01021970"); // a copy
    f.SetGeburtsdatumKind(3, "12345");
    EXPECT_EQ(f.GetGeburtsdatumKindMitPkt(3), "12.34.5");
}

TEST(GN056, DateThatHasPointsGetsMore_Quirk) {
    qbFormularGN056 f;
    f.SetGeburtsdatumKind(0, "01.02.1970");
    EXPECT_EQ(f.GetGeburtsdatumKindMitPkt(0), "01..0.2.1970");
}

TEST(GN056, AssignmentLeavesTheFarmersPensionOfTheTarget_Quirk) {
    qbFormularGN056 quelle;
    quelle.SetEUrenteLandwirte(500.0);
    quelle.SetEUrenteLandwirteVonMonat(1);
    quelle.SetEUrenteLandwirteVonJahr(2005);
    quelle.SetEUrenteLandwirteBisMonat(12);
    quelle.SetEUrenteLandwirteBisJahr(2009);
    quelle.SetEUrente(100.0);
    quelle.SetVornameKind(4, "Kind");
    qbFormularGN056 ziel;
    ziel.SetEUrenteLandwirte(7.0);
    ziel = quelle;
    EXPECT_EQ(ziel.GetEUrenteLandwirte(), 7.0);
    EXPECT_EQ(ziel.GetEUrenteLandwirteVonJahr(), 0);
    EXPECT_EQ(ziel.GetEUrente(), 100.0);
    EXPECT_EQ(ziel.GetVornameKind(4), "Kind");
    const qbFormularGN056 kopie(quelle);
    EXPECT_EQ(kopie.GetEUrenteLandwirte(), 500.0);
    EXPECT_EQ(kopie.GetEUrenteLandwirteBisJahr(), 2009);
}

TEST(GN056, FarmersPensionSurvivesLoesche_Quirk) {
    qbFormularGN056 f;
    f.SetEUrenteLandwirte(500.0);
    f.SetEUrenteLandwirteBisMonat(6);
    f.SetEUrente(100.0);
    f.SetVornameKind(1, "Kind");
    f.RefPersonenKennung("VP2");
    f.loesche();
    EXPECT_EQ(f.GetEUrenteLandwirte(), 500.0);
    EXPECT_EQ(f.GetEUrenteLandwirteBisMonat(), 6);
    EXPECT_EQ(f.GetEUrente(), 0.0);
    EXPECT_EQ(f.GetVornameKind(1), "");
    EXPECT_EQ(f.RefPersonenKennung(), "VP1");
}

TEST(GN056, XmlHasItsOwnVersionKeyAndTheChildrensKeysWithIndexButNoIdNumber) {
    qbFormularGN056 f;
    CQBXMLdata k("");
    f.XMLgetDat(k);
    EXPECT_EQ(k.Typ(), "qbFormularGN056");
    const std::vector<std::string> namen = eintragsNamen(k);
    ASSERT_EQ(namen.size(), 1u + 1 + 45 + 10 * 14);
    EXPECT_EQ(namen[1], "Version");
    EXPECT_EQ(namen[2], "Finanzamt");
    EXPECT_EQ(namen[46], "MitgliedsnummerAltersklasse");
    const std::vector<std::string> kind3(namen.begin() + 47 + 3 * 14, namen.begin() + 47 + 4 * 14);
    EXPECT_EQ(kind3, (std::vector<std::string>{
                         "VornameKind[3]", "NameKind[3]", "GeschlechtKind[3]", "GeburtsortKind[3]",
                         "Familienkasse[3]", "Kindergeldnummer[3]", "VornameKindergeldberechtigter[3]",
                         "NameKindergeldberechtigter[3]", "GeburtsdatumKind[3]", "vonMonatKind[3]",
                         "vonJahrKind[3]", "bisMonatKind[3]", "bisJahrKind[3]", "nichtidentischJN[3]"}));
}

TEST(GN056, XmlReadsVersionBackUnlikeTheBaseRule) {
    qbFormularGN056 f;
    f.RefVersion("01.2006");
    CQBXMLdata k("");
    f.XMLgetDat(k);
    qbFormularGN056 g;
    g.XMLputDat(k);
    EXPECT_EQ(g.RefVersion(), "01.2006");
    EXPECT_EQ(k.Typ(), "qbFormularGN056");
}

TEST(GN056, XmlRoundTripLosesIDnummerKind_Quirk) {
    qbFormularGN056 f;
    f.SetIDnummerKind(2, "ID-2");
    f.SetVornameKind(2, "Anna");
    CQBXMLdata k("");
    f.XMLgetDat(k);
    qbFormularGN056 g;
    g.SetIDnummerKind(2, "bleibt");
    g.XMLputDat(k);
    EXPECT_EQ(g.GetVornameKind(2), "Anna");
    EXPECT_EQ(g.GetIDnummerKind(2), "bleibt");
    CQBXMLdata mit("");
    mit.clear("qbFormularGN056");
    mit.List(CQBXMLdata("IDnummerKind[2]", RWCString("von aussen")));
    g.XMLputDat(mit);
    EXPECT_EQ(g.GetIDnummerKind(2), "von aussen"); // it comes in, never goes out
}
