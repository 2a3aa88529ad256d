// show, export, import and explain for the health declarations L134 to L143, each a filled form in one
// application file.
#include "anwendungen.h"

#include "health/qbFormularL134.h"
#include "health/qbFormularL135.h"
#include "health/qbFormularL137.h"
#include "health/qbFormularL138.h"
#include "health/qbFormularL139.h"
#include "health/qbFormularL141.h"
#include "health/qbFormularL142.h"
#include "health/qbFormularL143.h"

using namespace qbtest;

namespace {

const char* const kKlassen[] = {"qbFormularL134", "qbFormularL135", "qbFormularL137", "qbFormularL138",
                                "qbFormularL139", "qbFormularL141", "qbFormularL142", "qbFormularL143"};

class ToolGesundheit : public ::testing::Test {
protected:
    void SetUp() override {
        qbFormularListe antrag;
        qbFormularL134 diabetes;
        diabetes.RefMedikamente("Metformin");
        antrag.neuesFormular(diabetes);
        qbFormularL135 haut;
        haut.RefPersonenKennung("VP2");
        haut.RefBoesartigeGeschwulstJN(0);
        antrag.neuesFormular(haut);
        qbFormularL137 kopf;
        kopf.RefPersonenKennung("VP1");
        kopf.RefArztName("Dr. Kopf");
        antrag.neuesFormular(kopf);
        qbFormularL138 herz;
        herz.RefPuls(72);
        antrag.neuesFormular(herz);
        qbFormularL139 ohr;
        ohr.RefPersonenKennung("VP1");
        ohr.RefArztName("Dr. Ohr");
        antrag.neuesFormular(ohr);
        qbFormularL141 gyn;
        gyn.RefDiagnose("Myom");
        antrag.neuesFormular(gyn);
        qbFormularL142 magen;
        magen.RefSonstigeDiagnose("Reizmagen");
        antrag.neuesFormular(magen);
        qbFormularL143 niere;
        niere.RefMedikamente("Tamsulosin");
        antrag.neuesFormular(niere);
        speichere(antrag, datei);
    }
    Ordner ordner;
    const std::string datei = ordner / "antrag.qbf";
};

TEST_F(ToolGesundheit, ShowGivesTheFieldsOfEachForm) {
    const Lauf lauf = qbformul({"show", datei});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    for (const char* klasse : kKlassen)
        EXPECT_TRUE(enthaelt(lauf.aus, klasse)) << klasse << "\n" << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "Metformin")) << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "Reizmagen")) << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "ArztAdresse1")) << lauf.aus; // L139's key of ArztName
}

TEST_F(ToolGesundheit, ExportAndImportBringBackEveryClassWithWhatItReadsFromXml) {
    const std::string xml = ordner / "antrag.xml";
    const std::string zurueck = ordner / "zurueck.qbf";
    ASSERT_EQ(qbformul({"export", datei, "-o", xml}).code, 0);
    const Lauf lauf = qbformul({"import", xml, "-o", zurueck});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    const std::unique_ptr<qbFormularListe> gelesen = lies(zurueck);
    ASSERT_EQ(gelesen->AnzahlFormulare(), 8u);
    for (unsigned i = 0; i < 8; ++i)
        EXPECT_EQ(
            std::string(qbKlasseZuId(gelesen->liefereFormularAnPos(static_cast<int>(i))->isA())->klassenName),
            kKlassen[i]);
    const auto& diabetes = static_cast<const qbFormularL134&>(*gelesen->liefereFormularAnPos(0));
    EXPECT_EQ(diabetes.RefMedikamente(), "Metformin");
    const auto& haut = static_cast<const qbFormularL135&>(*gelesen->liefereFormularAnPos(1));
    EXPECT_EQ(haut.RefBoesartigeGeschwulstJN(), 0xff); // read under "BoesartigeGeschwulstJN;"
    EXPECT_EQ(haut.RefPersonenKennung(), "");          // a health form reads no person from XML
    EXPECT_EQ(static_cast<const qbFormularL137&>(*gelesen->liefereFormularAnPos(2)).RefArztName(),
              "Dr. Kopf");
    EXPECT_EQ(static_cast<const qbFormularL138&>(*gelesen->liefereFormularAnPos(3)).RefPuls(), 72);
    EXPECT_EQ(static_cast<const qbFormularL139&>(*gelesen->liefereFormularAnPos(4)).RefArztName(), "Dr. Ohr");
    EXPECT_EQ(static_cast<const qbFormularL143&>(*gelesen->liefereFormularAnPos(7)).RefMedikamente(),
              "Tamsulosin");
}

TEST_F(ToolGesundheit, ExplainReadsEveryRecordToItsEnd) {
    const Lauf lauf = qbformul({"explain", datei});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    for (const char* klasse : kKlassen)
        EXPECT_TRUE(enthaelt(lauf.aus, std::string("layout of ") + klasse + ": aktuelle Tabelle")) << klasse;
    EXPECT_TRUE(enthaelt(lauf.aus, "Every record ends exactly where the next form begins")) << lauf.aus;
}

} // namespace
