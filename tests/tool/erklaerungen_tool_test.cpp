// show, export, import and explain with the health declarations L241, L243, L249, L281, L282, L244, L245
// and L283: an application holding one filled form of each.
#include "anwendungen.h"

#include "health/qbFormularL241.h"
#include "health/qbFormularL243.h"
#include "health/qbFormularL244.h"
#include "health/qbFormularL245.h"
#include "health/qbFormularL249.h"
#include "health/qbFormularL281.h"
#include "health/qbFormularL282.h"
#include "health/qbFormularL283.h"
#include "qballg/CQBXMLdata.h"

#include <memory>
#include <string>
#include <vector>

using namespace qbtest;

namespace {

const char* const kStuecke[] = {"L241", "L243", "L249", "L281", "L282", "L244", "L245", "L283"};

// One form of each declaration for VP2, every own Text and the Krankheit filled, every own Flag "ja".
template <class F>
void dazu(qbFormularListe& antrag, const std::string& krankheit) {
    F form;
    form.RefPersonenKennung("VP2");
    form.RefKrankheit(RWCString(krankheit));
    for (const qbFeld& z : F::felder()) {
        if (z.art == qbArt::Text) form.*z.mitglied.text = RWCString(std::string(z.name) + " \xFC");
        if (z.art == qbArt::Flag) form.*z.mitglied.flag = 1;
    }
    antrag.neuesFormular(form);
}

qbFormularListe erklaerungen() {
    qbFormularListe antrag;
    dazu<qbFormularL241>(antrag, "Asthma");
    dazu<qbFormularL243>(antrag, "Epilepsie");
    dazu<qbFormularL249>(antrag, "Heuschnupfen");
    dazu<qbFormularL281>(antrag, "Arthrose");
    dazu<qbFormularL282>(antrag, "Glaukom");
    dazu<qbFormularL244>(antrag, "Thrombose");
    dazu<qbFormularL245>(antrag, "Struma");
    dazu<qbFormularL283>(antrag, "Depression");
    return antrag;
}

class ToolErklaerungen : public ::testing::Test {
protected:
    void SetUp() override { speichere(erklaerungen(), datei); }
    Ordner ordner;
    const std::string datei = ordner / "erklaerungen.qbf";
};

} // namespace

TEST_F(ToolErklaerungen, ShowGivesEachDeclarationWithItsOwnFields) {
    for (const char* stueck : kStuecke) {
        const Lauf lauf = qbformul({"show", datei, "--piece", stueck});
        ASSERT_EQ(lauf.code, 0) << stueck << ": " << lauf.err;
        EXPECT_TRUE(enthaelt(lauf.aus, std::string("qbFormular") + stueck + "  " + stueck)) << lauf.aus;
        EXPECT_TRUE(enthaelt(lauf.aus, "VP2")) << lauf.aus;
    }
    const Lauf l244 = qbformul({"show", datei, "--piece", "L244"});
    EXPECT_TRUE(enthaelt(l244.aus, "\"GentestZeitpunkt \u00fc\"")) << l244.aus;
    const Lauf l281 = qbformul({"show", datei, "--piece", "L281"});
    EXPECT_TRUE(enthaelt(l281.aus, "qbFormularAllgGesu:"))
        << l281.aus; // the nested node of the common answers
    EXPECT_TRUE(enthaelt(l281.aus, "\"Arthrose\"")) << l281.aus;
}

TEST_F(ToolErklaerungen, ImportOfTheExportBringsBackWhatEachFormReadsFromXml) {
    const std::string xml = ordner / "erklaerungen.xml";
    const std::string zurueck = ordner / "zurueck.qbf";
    ASSERT_EQ(qbformul({"export", datei, "-o", xml}).code, 0);
    const Lauf lauf = qbformul({"import", xml, "-o", zurueck});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus, zurueck + ": 8 forms from 8 entries of " + xml)) << lauf.aus;

    CQBXMLdata baum("");
    ASSERT_TRUE(baum.fromXMLUtf8(liesDatei(xml)));
    qbFormularListe erwartet;
    erwartet.XMLputDat(baum);
    const std::string erwartetDatei = ordner / "erwartet.qbf";
    speichere(erwartet, erwartetDatei);
    EXPECT_EQ(liesDatei(zurueck), liesDatei(erwartetDatei));

    // The own answers come back, the header's person and the common answers do not.
    const std::unique_ptr<qbFormularListe> gelesen = lies(zurueck);
    ASSERT_EQ(gelesen->AnzahlFormulare(), 8u);
    // The person is not read either: each form has its class's own again, VP1 or none.
    const auto* epilepsie = dynamic_cast<const qbFormularL243*>(gelesen->liefereFormularAnPos(1));
    ASSERT_NE(epilepsie, nullptr);
    EXPECT_EQ(epilepsie->RefEEG().std(), "EEG \xFC");
    EXPECT_EQ(epilepsie->RefGrandMalEpilepsieJN(), 1);
    EXPECT_TRUE(epilepsie->RefKrankheit().isNull());
    EXPECT_EQ(epilepsie->RefPersonenKennung().std(), "VP1");
    const auto* augen = dynamic_cast<const qbFormularL282*>(gelesen->liefereFormularAnPos(4));
    ASSERT_NE(augen, nullptr);
    EXPECT_EQ(augen->RefInfektionJN(), 1);
    EXPECT_TRUE(augen->RefInfektion().isNull()); // written, never read back
    EXPECT_TRUE(augen->RefPersonenKennung().isNull());
    const auto* thrombose = dynamic_cast<const qbFormularL244*>(gelesen->liefereFormularAnPos(5));
    ASSERT_NE(thrombose, nullptr);
    EXPECT_EQ(thrombose->RefKoerperteile().std(), "Koerperteile \xFC");
    EXPECT_TRUE(thrombose->RefGentestZeitpunkt().isNull()); // written with a blank, read without
}

TEST_F(ToolErklaerungen, ExplainReadsEachRecordInItsCurrentTableToItsEnd) {
    const Lauf lauf = qbformul({"explain", datei});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(lauf.err.empty()) << lauf.err;
    for (const char* stueck : kStuecke)
        EXPECT_TRUE(
            enthaelt(lauf.aus, std::string("\n  layout of qbFormular") + stueck + ": aktuelle Tabelle\n"))
            << stueck << "\n"
            << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "Every record ends exactly where the next form begins")) << lauf.aus;
}
