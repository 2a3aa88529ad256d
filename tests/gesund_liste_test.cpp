// The health declarations L134 to L143 in the form list: repeatable pieces searched by Krankheit and
// AntwortZuFrage, removed for one person by loescheGesundheitsFormulare, known to the XML import and to
// the catalogue.
#include "core/qbFormularListe.h"
#include "core/qbKlassen.h"
#include "health/qbFormularL134.h"
#include "health/qbFormularL135.h"
#include "health/qbFormularL137.h"
#include "health/qbFormularL138.h"
#include "health/qbFormularL139.h"
#include "health/qbFormularL141.h"
#include "health/qbFormularL142.h"
#include "health/qbFormularL143.h"
#include "qballg/CQBXMLdata.h"

#include "test_util.h"

#include <memory>
#include <string>
#include <vector>

namespace {

const char* const kNummern[] = {"L134", "L135", "L137", "L138", "L139", "L141", "L142", "L143"};

std::unique_ptr<qbFormularAllgGesu> neueForm(const std::string& nummer) {
    const qbKlasse* k = qbKlasseZuNummer(nummer.c_str());
    EXPECT_NE(k, nullptr) << nummer;
    return std::unique_ptr<qbFormularAllgGesu>(static_cast<qbFormularAllgGesu*>(k->erzeuge()));
}

std::vector<std::string> personen(const qbFormularListe& liste) {
    std::vector<std::string> out;
    for (unsigned i = 0; i < liste.AnzahlFormulare(); ++i) {
        const qbFormular* f = liste.liefereFormularAnPos(static_cast<int>(i));
        out.push_back(f->RefDruckstueckNummer().std() + ":" + f->RefPersonenKennung().std());
    }
    return out;
}

} // namespace

TEST(GesundheitListe, EachPieceHasItsClassAndTheCatalogueKnowsIt) {
    qbFormularListe liste;
    const RWTValSlist<qbFormularInfo> katalog = liste.RefDruckstueckeInfo();
    for (const char* nummer : kNummern) {
        const qbKlasse* k = qbKlasseZuNummer(nummer);
        ASSERT_NE(k, nullptr) << nummer;
        EXPECT_EQ(std::string(k->klassenName), std::string("qbFormular") + nummer);
        bool imKatalog = false;
        for (size_t i = 0; i < katalog.entries(); ++i)
            imKatalog = imKatalog || katalog.at(i).Nummer == nummer;
        EXPECT_TRUE(imKatalog) << nummer;
    }
}

TEST(GesundheitListe, PiecesRepeatPerPersonAndAreFoundByKrankheitAndAntwortZuFrage) {
    for (const char* nummer : kNummern) {
        qbFormularListe liste;
        for (const char* krankheit : {"A", "B"}) {
            auto f = neueForm(nummer);
            f->RefPersonenKennung("VP2");
            f->RefKrankheit(krankheit);
            f->RefAntwortZuFrage(RWCString((std::string("Frage ") + krankheit).c_str()));
            liste.neuesFormular(*f);
        }
        EXPECT_EQ(liste.AnzahlFormulare(), 2u) << nummer;
        auto gefunden = neueForm(nummer);
        EXPECT_EQ(liste.liefereFormular(nummer, *gefunden, 1, "B"), 1u) << nummer;
        EXPECT_EQ(gefunden->RefAntwortZuFrage().std(), "Frage B") << nummer;
        EXPECT_TRUE(liste.FormularVorhanden(nummer, 1, "A", "Frage A")) << nummer;
        EXPECT_FALSE(liste.FormularVorhanden(nummer, 1, "A", "Frage B")) << nummer;
        EXPECT_FALSE(liste.FormularVorhanden(nummer, 0)) << nummer;
    }
}

TEST(GesundheitListe, LoescheGesundheitsFormulareRemovesTheseFormsForOnePersonOnly) {
    qbFormularListe liste;
    for (const char* person : {"VP1", "VP2", "VN"})
        for (const char* nummer : kNummern) {
            auto f = neueForm(nummer);
            f->RefPersonenKennung(person);
            liste.neuesFormular(*f);
        }
    liste.loescheGesundheitsFormulare(0);
    std::vector<std::string> erwartet;
    for (const char* person : {"VP2", "VN"})
        for (const char* nummer : kNummern)
            erwartet.push_back(std::string(nummer) + ":" + person);
    EXPECT_EQ(personen(liste), erwartet);
    liste.loescheGesundheitsFormulare(7);
    erwartet.resize(8);
    EXPECT_EQ(personen(liste), erwartet);
}

TEST(GesundheitListe, XmlImportMakesTheClassWithItsOwnFieldsAndTheClassDefaultPerson_Quirk) {
    for (const char* nummer : kNummern) {
        auto quelle = neueForm(nummer);
        quelle->RefPersonenKennung("VP2");
        CQBXMLdata element("");
        qbKlasseZuNummer(nummer)->zuXml(*quelle, element);
        CQBXMLdata sammlung("RWDlistCollectables");
        sammlung.Attribute("Liste");
        sammlung.List(element);
        CQBXMLdata knoten("wurzel");
        knoten.clear("qbFormularListe");
        knoten.List(sammlung);
        qbFormularListe liste;
        liste.XMLputDat(knoten);
        ASSERT_EQ(liste.AnzahlFormulare(), 1u) << nummer;
        const qbFormular* f = liste.liefereFormularAnPos(0);
        EXPECT_EQ(f->isA(), qbKlasseZuNummer(nummer)->id) << nummer;
        EXPECT_EQ(f->RefPersonenKennung(), qbKlasseZuNummer(nummer)->person) << nummer;
    }
}
