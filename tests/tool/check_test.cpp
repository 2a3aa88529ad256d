// check: every check the stored forms offer, per form with piece, person and message, and the exit code.
#include "anwendungen.h"

#include "clerical/qbFormularKOLL.h"
#include "clerical/qbFormularVB077.h"
#include "pension/qbFormularBAV.h"

#include <nlohmann/json.hpp>

using namespace qbtest;

namespace {

// A pension form that passes every check: entry and partner's birthday in the past, the survivors named.
qbFormularBAV gueltigeBAV() {
    qbFormularBAV bav;
    RWDate eintritt(1, 4, 2001);
    bav.RefANBetriebsEintritt(eintritt);
    bav.RefTodFrei(true);
    bav.RefTodFreiDatum("01.02.1970");
    bav.RefTodFreiName("Erika Muster");
    bav.RefTodFreiAdresse("Talweg 1, Valdorf");
    bav.RefBeteiligung("Arbeitnehmer");
    return bav;
}

class ToolCheck : public ::testing::Test {
protected:
    Ordner ordner;
    const std::string gut = ordner / "gut.qbf";
    const std::string schlecht = ordner / "schlecht.qbf";
    const std::string ohne = ordner / "ohne.qbf";
    void SetUp() override {
        qbFormularListe a = beispielAntrag();
        qbFormularBAV bav = gueltigeBAV();
        a.neuesFormular(bav);
        speichere(a, gut);
        qbFormularListe b = beispielAntrag();
        qbFormularBAV leer; // no date of entry; no survivors
        leer.RefPersonenKennung("VP2");
        b.neuesFormular(leer);
        speichere(b, schlecht);
        speichere(beispielAntrag(), ohne);
    }
};

TEST_F(ToolCheck, PassingFormsGiveExitCodeZeroAndOkPerCheck) {
    const Lauf lauf = qbformul({"check", gut});
    ASSERT_EQ(lauf.code, 0) << lauf.err << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, gut + ": 4 checks of 5 forms\n")) << lauf.aus;
    for (const char* p : {"pruefDatenDV", "pruefDatenUK", "pruefDatenPF", "pruefDatenPK"})
        EXPECT_TRUE(enthaelt(lauf.aus, std::string(p) + "  ok")) << lauf.aus;
}

TEST_F(ToolCheck, FailedCheckNamesPiecePersonAndMessageInUtf8AndGivesExitCodeOne) {
    const Lauf lauf = qbformul({"check", gut, schlecht});
    EXPECT_EQ(lauf.code, 1) << lauf.err;
    EXPECT_TRUE(
        enthaelt(lauf.aus, "BAV    VP2     pruefDatenDV  Das Datum des Betriebseintritts ist ungültig!"))
        << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, schlecht + ": 4 checks of 5 forms\n")) << lauf.aus;
}

TEST_F(ToolCheck, FileWithoutChecksPasses) {
    const Lauf lauf = qbformul({"check", ohne});
    EXPECT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus, ohne + ": 0 checks of 4 forms\n")) << lauf.aus;
}

TEST_F(ToolCheck, JsonHoldsEveryCheckWithItsResult) {
    const Lauf lauf = qbformul({"check", "--format", "json", gut, schlecht});
    EXPECT_EQ(lauf.code, 1) << lauf.err;
    const auto json = nlohmann::json::parse(lauf.aus);
    ASSERT_EQ(json.size(), 2u);
    EXPECT_EQ(json[0]["file"], gut);
    ASSERT_EQ(json[1]["checks"].size(), 4u);
    const auto& dv = json[1]["checks"][0];
    EXPECT_EQ(dv["class"], "qbFormularBAV");
    EXPECT_EQ(dv["piece"], "BAV");
    EXPECT_EQ(dv["person"], "VP2");
    EXPECT_EQ(dv["check"], "pruefDatenDV");
    EXPECT_EQ(dv["passed"], false);
    EXPECT_EQ(dv["message"], "Das Datum des Betriebseintritts ist ungültig!");
    EXPECT_EQ(json[0]["checks"][1]["passed"], true);
}

TEST_F(ToolCheck, UnreadableFileIsBadInput) {
    const Lauf lauf = qbformul({"check", ordner / "fehlt.qbf"});
    EXPECT_EQ(lauf.code, 2);
}

} // namespace

// The group tariff clause and the research report join with their own checks.
TEST_F(ToolCheck, GroupTariffClauseAndResearchReportPrintTheirMessages) {
    qbFormularListe a = beispielAntrag();
    qbFormularKOLL koll;
    koll.RefMitgliedsnummer("M 17");
    a.neuesFormular(koll);
    qbFormularVB077 bericht;
    a.neuesFormular(bericht);
    const std::string datei = ordner / "klausel.qbf";
    speichere(a, datei);
    const Lauf lauf = qbformul({"check", "--format", "json", datei});
    EXPECT_EQ(lauf.code, 1) << lauf.err;
    const auto json = nlohmann::json::parse(lauf.aus);
    ASSERT_EQ(json[0]["checks"].size(), 2u) << lauf.aus;
    EXPECT_EQ(json[0]["checks"][0]["class"], "qbFormularKOLL");
    EXPECT_EQ(json[0]["checks"][0]["message"], "Mindestens ein Haken muss gesetzt werden.");
    EXPECT_EQ(json[0]["checks"][1]["class"], "qbFormularVB077");
    EXPECT_EQ(json[0]["checks"][1]["check"], "pruefDaten(alle)");
    const std::string meldung = json[0]["checks"][1]["message"];
    EXPECT_EQ(meldung.rfind("Seite 1:\n  Name der FD\n  Name der BD\n", 0), 0u) << meldung;
    EXPECT_TRUE(enthaelt(meldung, "  Weitere Versicherungsverträge ja/nein\n\nSeite 2:\n  Zweck der LV\n"))
        << meldung;

    const Lauf text = qbformul({"check", datei});
    EXPECT_TRUE(enthaelt(text.aus, "Mindestens ein Haken muss gesetzt werden.")) << text.aus;
    EXPECT_TRUE(enthaelt(text.aus, "pruefDaten(alle)")) << text.aus;
}
