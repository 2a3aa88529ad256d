// The tool with the sport and stay-abroad forms of the legacy example: show in each form's XML order,
// export and import that keep both stays of one person, and the export's note on the flying-sports key.
#include "anwendungen.h"

#include "sport/qbFormularL036.h"
#include "sport/qbFormularL441.h"
#include "sport/qbFormularL454.h"

#include <regex>

using namespace qbtest;

namespace {

class ToolSport : public ::testing::Test {
protected:
    Ordner ordner;
};

TEST_F(ToolSport, ShowListsTheFieldsOfASportFormInItsXmlOrder) {
    const Lauf lauf = qbformul({"show", legacyBeispiel(), "--piece", "L454"});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus, "qbFormularL454  L454 \"Erkl\xC3\xA4rung Sportarten allgemein\""))
        << lauf.aus;
    // LizenzAusbildungJN stands twice, behind TrainerJN.
    EXPECT_TRUE(std::regex_search(lauf.aus, std::regex("\n  TrainerJN +nein\n"))) << lauf.aus;
    const size_t erste = lauf.aus.find("  LizenzAusbildungJN ");
    ASSERT_NE(erste, std::string::npos);
    EXPECT_NE(lauf.aus.find("  LizenzAusbildungJN ", erste + 1), std::string::npos);
    EXPECT_TRUE(std::regex_search(lauf.aus, std::regex("\n  SportanteilProzent +100\n"))) << lauf.aus;
}

TEST_F(ToolSport, ExportAndImportKeepBothStaysAndEverySportForm) {
    const std::string xml = ordner / "alt.xml";
    const std::string zurueck = ordner / "zurueck.qbf";
    ASSERT_EQ(qbformul({"export", legacyBeispiel(), "-o", xml}).code, 0);
    const Lauf lauf = qbformul({"import", xml, "-o", zurueck});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    const std::unique_ptr<qbFormularListe> gelesen = lies(zurueck);
    // Every entry is imported; an entry of a replacing piece (the financial risk checks) replaces the
    // earlier one of its person.
    EXPECT_TRUE(enthaelt(lauf.aus, std::to_string(gelesen->AnzahlFormulare()) + " forms from " +
                                       std::to_string(legacyBeispielFormulare()) + " entries"))
        << lauf.aus;
    for (const char* stueck : {"L441", "L450", "L451", "L452", "L453", "L454", "X278"})
        EXPECT_TRUE(gelesen->FormularVorhanden(stueck, 0) || gelesen->FormularVorhanden(stueck, 1)) << stueck;
    qbFormularL036 chile;
    ASSERT_EQ(gelesen->liefereFormular("L036", chile, 0, "Chile", "0"), 1u);
    EXPECT_EQ(chile.RefDauer(), "2 Jahre");
    ASSERT_EQ(gelesen->liefereFormular("L036", chile, 0, "Chile", "1"), 1u);
    EXPECT_EQ(chile.RefDauer(), "6 Monate");
    qbFormularL454 sport;
    ASSERT_EQ(gelesen->liefereFormular("L454", sport, 0), 1u);
    EXPECT_EQ(sport.RefWettbewerbeBeschreibung(), "Ironman Roth");
    // Written as "SegelflugzeugJN;" and read as "SegelflugzeugJN": the answer does not come back.
    qbFormularL441 flug;
    ASSERT_EQ(gelesen->liefereFormular("L441", flug, 0), 1u);
    EXPECT_EQ(flug.RefSegelflugzeugJN(), 0xff);
    EXPECT_EQ(flug.RefFlugLuftsportgeraet(), "Cessna 172");
}

TEST_F(ToolSport, ExportHelpNamesTheFlyingSportsKeyThatIsNotReadBack) {
    const Lauf lauf = qbformul({"export", "--help"});
    EXPECT_TRUE(enthaelt(lauf.aus, "qbFormularL441 (L441):")) << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "written, not read back: SegelflugzeugJN of qbFormularL441")) << lauf.aus;
}

TEST_F(ToolSport, CatalogMarksEverySportAndStayAbroadPieceWithItsClass) {
    const Lauf lauf = qbformul({"catalog"});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    for (const char* stueck : {"L036", "L441", "L450", "L451", "L452", "L453", "L454", "X278"})
        EXPECT_TRUE(std::regex_search(
            lauf.aus, std::regex(std::string("\n") + stueck + " .* qbFormular" + stueck + "\n")))
            << stueck << "\n"
            << lauf.aus;
}

} // namespace
