// show, export and import: the forms' content through their own XMLgetDat, and back through the list's
// XMLputDat.
#include "anwendungen.h"

#include "qballg/CQBXMLdata.h"
#include "qballg/cp1252.h"

#include <nlohmann/json.hpp>

using namespace qbtest;

namespace {

class ToolShow : public ::testing::Test {
protected:
    void SetUp() override { speichere(beispielAntrag(), datei); }
    Ordner ordner;
    const std::string datei = ordner / "antrag.qbf";
};

TEST_F(ToolShow, TextGivesEveryFieldOfTheFormsXmlWithFlagsInWords) {
    const Lauf lauf = qbformul({"show", datei, "--piece", "L145"});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(
        lauf.aus, "Form 2 of 4: qbFormularL145  L145 \"Erklärung Verletzungen\"  VP1  Version 10.2002\n"))
        << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "\n  qbFormular:\n    Version ")) << lauf.aus; // the nested header node
    EXPECT_TRUE(enthaelt(lauf.aus, "  Verletzungshergang            \"Sturz auf der Straße\"\n")) << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "  GeheiltJN                     ja\n"));
    EXPECT_TRUE(enthaelt(lauf.aus, "  OperationJN                   nein\n"));
    EXPECT_TRUE(enthaelt(lauf.aus, "  RehaJN                        nicht beantwortet\n"));
    // Every key the form's XMLgetDat writes is there.
    qbFormularListe liste = beispielAntrag();
    CQBXMLdata knoten("");
    static_cast<const qbFormularL145*>(liste.liefereFormularAnPos(1))->XMLgetDat(knoten);
    for (size_t i = 0; i < knoten.entryCount(); ++i) {
        if (knoten.entryAt(i)->isAdded()) continue;
        EXPECT_TRUE(enthaelt(lauf.aus, "\n  " + knoten.entryAt(i)->Name().std() + " "))
            << knoten.entryAt(i)->Name().data();
    }
    EXPECT_FALSE(enthaelt(lauf.aus, "qbFormularL440"));
}

TEST_F(ToolShow, SelectsByPieceAndPerson) {
    const Lauf vp1 = qbformul({"show", datei, "--person", "VP1"});
    ASSERT_EQ(vp1.code, 0) << vp1.err;
    EXPECT_TRUE(enthaelt(vp1.aus, "qbFormularL145"));
    EXPECT_TRUE(enthaelt(vp1.aus, "qbFormularL440"));
    EXPECT_FALSE(enthaelt(vp1.aus, "qbFormularL146"));
    EXPECT_FALSE(enthaelt(vp1.aus, "qbFormularL147"));
    const Lauf beide = qbformul({"show", datei, "--person", "VP1", "--piece", "L440"});
    EXPECT_TRUE(enthaelt(beide.aus, "qbFormularL440"));
    EXPECT_FALSE(enthaelt(beide.aus, "qbFormularL145"));
}

TEST_F(ToolShow, SelectionWithoutMatchIsAFailedCheck) {
    const Lauf lauf = qbformul({"show", datei, "--piece", "L146", "--person", "VN"});
    EXPECT_EQ(lauf.code, 1);
    EXPECT_EQ(lauf.err, "qbformul: " + datei + ": no form of piece L146 for person VN\n");
}

TEST_F(ToolShow, JsonHoldsTheFieldsWithFlagsInWordsAndTextsInUtf8) {
    const Lauf lauf = qbformul({"show", datei, "--format", "json"});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    const nlohmann::json j = nlohmann::json::parse(lauf.aus);
    EXPECT_EQ(j["version"], "05.1999");
    ASSERT_EQ(j["forms"].size(), 4u);
    const nlohmann::json& l145 = j["forms"][1];
    EXPECT_EQ(l145["position"], 2);
    EXPECT_EQ(l145["class"], "qbFormularL145");
    EXPECT_EQ(l145["person"], "VP1");
    EXPECT_EQ(l145["name"], "Erklärung Verletzungen");
    EXPECT_EQ(l145["fields"]["Verletzungshergang"], "Sturz auf der Straße");
    EXPECT_EQ(l145["fields"]["GeheiltJN"], "ja");
    EXPECT_EQ(l145["fields"]["OperationJN"], "nein");
    EXPECT_EQ(l145["fields"]["RehaJN"], "nicht beantwortet");
    EXPECT_EQ(l145["fields"]["qbFormular"]["Seitenanzahl"], 2);
    EXPECT_EQ(j["forms"][2]["fields"]["Kampfsportarten"], "Judo");
}

TEST_F(ToolShow, XmlIsTheExportDocumentOfTheSelectedForms) {
    const Lauf lauf = qbformul({"show", datei, "--format", "xml", "--piece", "L440"});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    CQBXMLdata baum("");
    std::string problem;
    ASSERT_TRUE(baum.fromXMLUtf8(lauf.aus, &problem)) << problem;
    const CQBXMLdata* sammlung = baum.GetChildren("Liste");
    ASSERT_NE(sammlung, nullptr);
    ASSERT_EQ(sammlung->entryCount(), 1u);
    EXPECT_EQ(sammlung->entryAt(0)->Typ(), "qbFormularL440");
}

// ---- export and import

class ToolExport : public ToolShow {};

TEST_F(ToolExport, DocumentHoldsEachFormsOwnFullNode) {
    const std::string xml = ordner / "antrag.xml";
    const Lauf lauf = qbformul({"export", datei, "-o", xml});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    CQBXMLdata baum("");
    std::string problem;
    ASSERT_TRUE(baum.fromXMLUtf8(liesDatei(xml), &problem)) << problem;
    EXPECT_EQ(baum.Typ(), "qbFormularListe");
    const CQBXMLdata* sammlung = baum.GetChildren("Liste");
    ASSERT_NE(sammlung, nullptr);
    qbFormularListe liste = beispielAntrag();
    ASSERT_EQ(sammlung->entryCount(), liste.AnzahlFormulare());
    for (unsigned i = 0; i < liste.AnzahlFormulare(); ++i) {
        const qbFormular& form = *liste.liefereFormularAnPos(static_cast<int>(i));
        const qbKlasse* klasse = qbKlasseZuId(form.isA());
        CQBXMLdata erwartet("");
        klasse->zuXml(form, erwartet);
        EXPECT_TRUE(sammlung->entryAt(i)->sameTree(erwartet)) << klasse->klassenName;
    }
}

TEST_F(ToolExport, ListOnlyWritesTheListsOwnHeaderOnlyXml) {
    const Lauf lauf = qbformul({"export", datei, "--list-only", "-o", "-"});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    CQBXMLdata baum("");
    ASSERT_TRUE(baum.fromXMLUtf8(lauf.aus));
    qbFormularListe liste = beispielAntrag();
    CQBXMLdata erwartet("");
    liste.XMLgetDat(erwartet);
    EXPECT_TRUE(baum.sameTree(erwartet));
    EXPECT_EQ(baum.GetChildren("Liste")->entryAt(0)->Typ(), "qbFormular");
}

TEST_F(ToolExport, ImportBringsBackWhatTheFormsReadFromXml) {
    const std::string xml = ordner / "antrag.xml";
    const std::string zurueck = ordner / "zurueck.qbf";
    ASSERT_EQ(qbformul({"export", datei, "-o", xml}).code, 0);
    const Lauf lauf = qbformul({"import", xml, "-o", zurueck});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus, zurueck + ": 4 forms from 4 entries of " + xml)) << lauf.aus;

    // What the list's XMLputDat makes of the same document.
    CQBXMLdata baum("");
    ASSERT_TRUE(baum.fromXMLUtf8(liesDatei(xml)));
    qbFormularListe erwartet;
    erwartet.XMLputDat(baum);
    const std::string erwartetDatei = ordner / "erwartet.qbf";
    speichere(erwartet, erwartetDatei);
    EXPECT_EQ(liesDatei(zurueck), liesDatei(erwartetDatei));

    const std::unique_ptr<qbFormularListe> gelesen = lies(zurueck);
    ASSERT_EQ(gelesen->AnzahlFormulare(), 4u);
    qbFormularL440 kampfsport;
    ASSERT_TRUE(gelesen->liefereFormular("L440", kampfsport, 0));
    EXPECT_EQ(kampfsport.RefKampfsportarten(), "Judo");
    EXPECT_EQ(kampfsport.RefFreizeitsportJN(), 1);
    // A health form reads no header from XML: the one of VP2 comes back with its class's person.
    EXPECT_EQ(gelesen->liefereFormularAnPos(3)->RefPersonenKennung(), "VP1");
}

TEST_F(ToolExport, ImportOfAListOnlyDocumentBringsBackWhichFormsExist) {
    const std::string xml = ordner / "liste.xml";
    ASSERT_EQ(qbformul({"export", datei, "--list-only", "-o", xml}).code, 0);
    const Lauf lauf = qbformul({"import", xml, "-o", ordner / "zurueck.qbf"});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    const std::unique_ptr<qbFormularListe> gelesen = lies(ordner / "zurueck.qbf");
    ASSERT_EQ(gelesen->AnzahlFormulare(), 4u);
    EXPECT_EQ(gelesen->liefereFormularAnPos(3)->isA(), qbFormularL146::classIsA());
    EXPECT_EQ(gelesen->liefereFormularAnPos(3)->RefPersonenKennung(), "VP2");
    qbFormularL440 kampfsport;
    ASSERT_TRUE(gelesen->liefereFormular("L440", kampfsport, 0));
    EXPECT_EQ(kampfsport.RefKampfsportarten(), ""); // content is not in a header-only document
}

TEST_F(ToolExport, ImportReadsStandardInput) {
    const Lauf export_ = qbformul({"export", datei, "-o", "-"});
    ASSERT_EQ(export_.code, 0);
    const Lauf lauf = qbformul({"import", "-", "-o", ordner / "zurueck.qbf"}, "", export_.aus);
    EXPECT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_EQ(lies(ordner / "zurueck.qbf")->AnzahlFormulare(), 4u);
}

TEST_F(ToolExport, ImportRefusesMalformedXmlAndWritesNothing) {
    const std::string xml = ordner / "kaputt.xml";
    schreibeDatei(xml, "<?xml version=\"1.0\"?>\n<node typ=\"qbFormularListe\">\n  <node name=\"Version\"");
    const Lauf lauf = qbformul({"import", xml, "-o", ordner / "x.qbf"});
    EXPECT_EQ(lauf.code, 2);
    ASSERT_EQ(lauf.fehlerzeilen().size(), 1u) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.err, "qbformul: " + xml + ": ")) << lauf.err;
    EXPECT_FALSE(gibtEs(ordner / "x.qbf"));
}

TEST_F(ToolExport, ImportRefusesOtherDocumentsAndUnknownEntries) {
    const std::string xml = ordner / "fremd.xml";
    CQBXMLdata form("");
    qbFormularL440().XMLgetDat(form);
    schreibeDatei(xml, form.asXMLUtf8());
    Lauf lauf = qbformul({"import", xml, "-o", ordner / "x.qbf"});
    EXPECT_EQ(lauf.code, 2);
    EXPECT_TRUE(enthaelt(lauf.err, "is no application document: its root has the type \"qbFormularL440\""))
        << lauf.err;

    CQBXMLdata baum("");
    baum.clear("qbFormularListe");
    CQBXMLdata sammlung("RWDlistCollectables");
    sammlung.Attribute("Liste");
    CQBXMLdata unbekannt("");
    unbekannt.clear("qbFormularGS004");
    sammlung.List(unbekannt);
    baum.List(sammlung);
    schreibeDatei(xml, baum.asXMLUtf8());
    lauf = qbformul({"import", xml, "-o", ordner / "x.qbf"});
    EXPECT_EQ(lauf.code, 2);
    EXPECT_TRUE(
        enthaelt(lauf.err, "entry 1 has the type \"qbFormularGS004\", which the list's import does not know"))
        << lauf.err;
    EXPECT_FALSE(gibtEs(ordner / "x.qbf"));
}

TEST_F(ToolExport, HelpNamesWhatTheClassesDoNotReadBack) {
    for (const char* befehl : {"export", "import"}) {
        const Lauf lauf = qbformul({befehl, "--help"});
        ASSERT_EQ(lauf.code, 0);
        EXPECT_TRUE(
            enthaelt(lauf.aus, "every class, unless it says otherwise: Version, Seitenanzahl of qbFormular"))
            << lauf.aus;
        EXPECT_TRUE(enthaelt(lauf.aus,
                             "  qbFormularL145 (L145):\n    written, not read back: DruckstueckNummer, "
                             "DruckstueckName, PersonenKennung of qbFormular\n    not in its XML at all: "
                             "all 17 fields of qbFormularAllgGesu\n"))
            << lauf.aus;
        // A plain form reads its header back: L440 has nothing of its own to say.
        EXPECT_FALSE(enthaelt(lauf.aus, "qbFormularL440 (L440):"));
    }
}

} // namespace
