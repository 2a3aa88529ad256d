// convert-gs004: the GS004 of a stored application as the three checks that replaced it, in a new file;
// and show and explain on GS004 records of every stored layout.
#include "anwendungen.h"

#include "finance/qbFormularGS004.h"
#include "finance/qbFormularGS004BUZ.h"
#include "finance/qbFormularGS004LV.h"
#include "finance/qbFormularGS004UZ.h"

using namespace qbtest;

namespace {

class ToolConvert : public ::testing::Test {
protected:
    Ordner ordner;
    const std::string datei = ordner / "antrag.qbf";
    const std::string ziel = ordner / "neu.qbf";
};

// An application with a GS004 of VP1 and one of VP2, and an L440.
qbFormularListe mitGS004() {
    qbFormularListe liste;
    qbFormularGS004 vp1;
    vp1.RefTaetigAls("Schreinermeister");
    vp1.RefObjekt("Wohnhaus");
    vp1.RefZweckUZ("Familie");
    vp1.RefSchulbildung("Realschule");
    vp1.RefEinkommenInLetztenJahren(1, 51000);
    liste.neuesFormular(vp1);
    qbFormularGS004 vp2;
    vp2.RefPersonenKennung("VP2");
    vp2.RefKonkursJN(1);
    liste.neuesFormular(vp2);
    qbFormularL440 kampfsport;
    kampfsport.RefKampfsportarten("Judo");
    liste.neuesFormular(kampfsport);
    return liste;
}

} // namespace

TEST_F(ToolConvert, EachGS004BecomesTheThreeChecksOfItsPersonInANewFile) {
    speichere(mitGS004(), datei);
    const std::string vorher = liesDatei(datei);
    const Lauf lauf = qbformul({"convert-gs004", datei, "-o", ziel});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus,
                         "form 1 (GS004 VP1, Version 10.2002): GS004_001 GS004_002 GS004_003; GS004 removed"))
        << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "converted 2 GS004s into 6 forms (2 GS004 removed), 7 forms")) << lauf.aus;
    EXPECT_EQ(liesDatei(datei), vorher) << "the input is only read";

    const std::unique_ptr<qbFormularListe> neu = lies(ziel);
    EXPECT_EQ(neu->AnzahlFormulare(), 7u);
    EXPECT_FALSE(neu->FormularVorhanden("GS004", 0));
    EXPECT_FALSE(neu->FormularVorhanden("GS004", 1));
    EXPECT_TRUE(neu->FormularVorhanden("L440", 0));
    qbFormularGS004BUZ buz;
    ASSERT_EQ(neu->liefereFormular("GS004_001", buz, 0), 1u);
    EXPECT_EQ(buz.RefTaetigAls(), "Schreinermeister");
    EXPECT_EQ(buz.RefEinkommenInLetztenJahren(1), 51000.0);
    EXPECT_EQ(buz.RefVersion(), "03.2009");
    qbFormularGS004LV lv;
    ASSERT_EQ(neu->liefereFormular("GS004_002", lv, 0), 1u);
    EXPECT_EQ(lv.RefObjekt(), "Wohnhaus");
    EXPECT_EQ(lv.RefKonkursJN(), 0xff) << "converted from a fresh GS004, not a fresh LV";
    qbFormularGS004UZ uz;
    ASSERT_EQ(neu->liefereFormular("GS004_003", uz, 0), 1u);
    EXPECT_EQ(uz.RefZweckUZ(), "Familie");
    ASSERT_EQ(neu->liefereFormular("GS004_002", lv, 1), 1u);
    EXPECT_EQ(lv.RefKonkursJN(), 1);
    EXPECT_EQ(lv.RefPersonenKennung(), "VP2");
    EXPECT_EQ(qbformul({"explain", ziel}).code, 0);
}

TEST_F(ToolConvert, KeepLeavesTheGS004BesideTheChecks) {
    speichere(mitGS004(), datei);
    const Lauf lauf = qbformul({"convert-gs004", datei, "-o", ziel, "--keep"});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    const std::unique_ptr<qbFormularListe> neu = lies(ziel);
    EXPECT_EQ(neu->AnzahlFormulare(), 9u);
    EXPECT_TRUE(neu->FormularVorhanden("GS004", 0));
    EXPECT_TRUE(neu->FormularVorhanden("GS004_003", 1));
}

TEST_F(ToolConvert, ChecksAlreadyThereStayAndTheirGS004WithThem) {
    qbFormularListe liste = mitGS004();
    qbFormularGS004LV vorhanden;
    vorhanden.RefPersonenKennung("VP1");
    vorhanden.RefObjekt("schon da");
    liste.neuesFormular(vorhanden);
    speichere(liste, datei);
    const Lauf lauf = qbformul({"convert-gs004", datei, "-o", ziel});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus, "GS004_001 GS004_002 (kept the one there) GS004_003; GS004 kept"))
        << lauf.aus;
    const std::unique_ptr<qbFormularListe> neu = lies(ziel);
    qbFormularGS004LV lv;
    ASSERT_EQ(neu->liefereFormular("GS004_002", lv, 0), 1u);
    EXPECT_EQ(lv.RefObjekt(), "schon da");
    EXPECT_TRUE(neu->FormularVorhanden("GS004", 0));
    EXPECT_FALSE(neu->FormularVorhanden("GS004", 1));
}

TEST_F(ToolConvert, OldLayoutsOfTheExampleConvertWithTheirDerivedAnswers) {
    const Lauf lauf = qbformul({"convert-gs004", legacyBeispiel(), "-o", ziel});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    // The example's split checks are of VP1: the GS004 of VP1 stay; VP2's first and VN's convert.
    EXPECT_TRUE(enthaelt(lauf.aus,
                         "form 34 (GS004 VN, Version 10.2000): GS004_001 GS004_002 GS004_003; GS004 removed"))
        << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "form 32 (GS004 VP1, Version 09.1999): GS004_001 (kept the one there)"))
        << lauf.aus;
    const std::unique_ptr<qbFormularListe> neu = lies(ziel);
    qbFormularGS004BUZ buz;
    ASSERT_EQ(neu->liefereFormular("GS004_001", buz, -1), 1u);
    EXPECT_EQ(buz.RefLehreJN(), 1) << "derived from Berufsausbildung of the 10.2000 record";
    EXPECT_EQ(buz.RefMeisterbriefJN(), 1);
    EXPECT_EQ(buz.RefStudiumJN(), 0);
    EXPECT_EQ(buz.RefEinkommenInLetztenJahren(2), 53500.0);
    qbFormularGS004UZ uz;
    ASSERT_EQ(neu->liefereFormular("GS004_003", uz, -1), 1u);
    EXPECT_EQ(uz.RefSportArt1(), "Segeln");
}

TEST_F(ToolConvert, FileWithoutGS004IsAFailedCheckAndWritesNothing) {
    speichere(beispielAntrag(), datei);
    const Lauf lauf = qbformul({"convert-gs004", datei, "-o", ziel});
    EXPECT_EQ(lauf.code, 1);
    EXPECT_TRUE(enthaelt(lauf.err, "holds no GS004 to convert")) << lauf.err;
    EXPECT_FALSE(gibtEs(ziel));
}

TEST_F(ToolConvert, OutputMustNotBeTheInput) {
    speichere(mitGS004(), datei);
    const std::string vorher = liesDatei(datei);
    const Lauf lauf = qbformul({"convert-gs004", datei, "-o", datei});
    EXPECT_EQ(lauf.code, 2);
    EXPECT_TRUE(enthaelt(lauf.err, "the output must be a new file")) << lauf.err;
    EXPECT_EQ(liesDatei(datei), vorher);
}

TEST(ToolGS004, ShowGivesTheStoredFieldsOfAFormWithoutXmlOfItsOwn) {
    const Lauf lauf = qbformul({"show", legacyBeispiel(), "--piece", "GS004"});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus,
                         "Form 32 of 46: qbFormularGS004  GS004 \"Finanzielle Risikoprüfung\"  VP1  "
                         "Version 09.1999\n"))
        << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "  stored fields (none of them in the class's XML):\n")) << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "    Berufsausbildung ")) << lauf.aus;
    EXPECT_TRUE(
        enthaelt(lauf.aus, "    BeschreibungNebenJob                   \"Dozent an der Meisterschule\"\n"))
        << lauf.aus;
    const Lauf json = qbformul({"show", legacyBeispiel(), "--piece", "GS004", "--format", "json"});
    ASSERT_EQ(json.code, 0) << json.err;
    EXPECT_TRUE(enthaelt(json.aus, "\"stored fields\"")) << json.aus;
}

TEST(ToolGS004, ExplainNamesTheLayoutOfEveryGS004Record) {
    const Lauf lauf = qbformul({"explain", legacyBeispiel()});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    for (const char* layout : {"vor 2000", "vor 10.2000", "vor 05.2002", "vor 10.2002"})
        EXPECT_TRUE(enthaelt(lauf.aus, std::string("  layout of qbFormularGS004: ") + layout + "\n"))
            << layout;
    EXPECT_TRUE(enthaelt(lauf.aus, "Every record ends exactly where the next form begins"));
}
