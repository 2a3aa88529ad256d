// show, export, import and list with the pension and allowance forms and the activity description.
#include "anwendungen.h"

#include "pension/qbFormularBAV.h"
#include "pension/qbFormularGN056.h"
#include "pension/qbFormularL095.h"

using namespace qbtest;

namespace {

class ToolVorsorge : public ::testing::Test {
protected:
    void SetUp() override {
        qbFormularListe antrag;
        qbFormularBAV bav;
        bav.RefANPersNr("P-1");
        bav.RefBeteiligung("beteiligt");
        antrag.neuesFormular(bav);
        qbFormularGN056 zulage;
        zulage.SetVornameKind(2, "Lena");
        antrag.neuesFormular(zulage);
        qbFormularL095 taetigkeit;
        taetigkeit.SetLehre("Maurer", 1);
        antrag.neuesFormular(taetigkeit);
        speichere(antrag, datei);
    }
    Ordner ordner;
    const std::string datei = ordner / "vorsorge.qbf";
};

TEST_F(ToolVorsorge, ShowGivesTheFieldsOfEachFormsOwnXml) {
    const Lauf lauf = qbformul({"show", datei});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus, "qbFormularBAV  BAV \"\"  VP1  Version 04.2008 00")) << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "anPersNr")) << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "VornameKind[2]")) << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "Lehre[1]")) << lauf.aus;
}

TEST_F(ToolVorsorge, ExportAndImportBringBackThePensionFormAndTheAllowanceApplication) {
    const std::string xml = ordner / "vorsorge.xml";
    const std::string zurueck = ordner / "zurueck.qbf";
    ASSERT_EQ(qbformul({"export", datei, "-o", xml}).code, 0);
    const Lauf lauf = qbformul({"import", xml, "-o", zurueck});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    const std::unique_ptr<qbFormularListe> liste = lies(zurueck);
    qbFormularBAV bav;
    ASSERT_EQ(liste->liefereFormular("BAV", bav, 0), 1u);
    EXPECT_STREQ(bav.RefANPersNr(), "P-1");
    EXPECT_TRUE(bav.IsBeteiligt());
    qbFormularGN056 zulage;
    ASSERT_EQ(liste->liefereFormular("GN056", zulage, 0), 1u);
    EXPECT_EQ(zulage.GetVornameKind(2), "Lena");
    // The activity description's node is typed as the allowance application's: it comes back with its
    // header alone.
    qbFormularL095 taetigkeit;
    ASSERT_EQ(liste->liefereFormular("L095", taetigkeit, 0), 1u);
    EXPECT_EQ(taetigkeit.GetLehre(1), "");
}

TEST_F(ToolVorsorge, ListShowsTheTenCharacterVersionOfThePensionForm) {
    const Lauf lauf = qbformul({"list", datei});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus, "04.2008 00  04.2008 00")) << lauf.aus;
}

} // namespace
