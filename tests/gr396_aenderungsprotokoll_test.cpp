// The salary transfer GR396 and the change protocol, which the form list stores as a research report, and
// the list's searches for the pieces searched without the caller's person (GR396, L300, L300_2).
#include "clerical/qbFormularAU523.h"
#include "clerical/qbFormularAenderungsprotokoll.h"
#include "clerical/qbFormularBA272.h"
#include "clerical/qbFormularBA276.h"
#include "clerical/qbFormularGR396.h"
#include "clerical/qbFormularKOLL.h"
#include "clerical/qbFormularL300.h"
#include "clerical/qbFormularL300_2.h"
#include "clerical/qbFormularVB077.h"
#include "clerical/qbFormularVB077A.h"
#include "core/qbKlassen.h"
#include "core/qbFormularListe.h"
#include "qballg/CQBXMLdata.h"
#include "qballg/cp1252_literal.h"

#include "form_test_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace qbtest;

namespace {

qbFormularAenderungsprotokoll protokoll(const char* antrag, const char* person = "VN") {
    qbFormularAenderungsprotokoll f;
    f.RefAgenturnummer("4711");
    f.RefAntragsnummer(antrag);
    f.RefVersicherungsbeginn("01.01.2004");
    f.RefPersonenKennung(person);
    return f;
}

class KleinStrom : public ::testing::TestWithParam<Strom> {};
class KleinVirtuell : public ::testing::TestWithParam<Strom> {};

} // namespace

// ---- GR396

TEST(GR396, ConstructorSetsTheHeaderAndEmptyTexts) {
    const qbFormularGR396 f;
    EXPECT_EQ(f.RefVersion(), "11.2001");
    EXPECT_EQ(f.RefDruckstueckNummer(), "GR396");
    EXPECT_EQ(f.RefDruckstueckName(), "Überweisung VWL durch Arbeitgeber"_cp1252);
    EXPECT_EQ(f.RefSeitenanzahl(), 1);
    EXPECT_EQ(f.RefPersonenKennung(), "VN");
    erwarteGleicheFelder(qbFormularGR396(), f, {&qbFormularGR396::felder()});
    EXPECT_EQ(f.RefOrtArbeitgeber(), "");
}

TEST_P(KleinStrom, GR396RoundTripsAndIsStamped) {
    qbFormularGR396 f;
    fuelleAlle(f, {&qbFormularGR396::felder()});
    f.RefVersion("01.2001");
    qbFormularGR396 zurueck;
    rundreise(f, zurueck, GetParam());
    EXPECT_EQ(zurueck.RefVersion(), "11.2001");
    erwarteGleicheFelder(f, zurueck, {&kopfTabelle(), &qbFormularGR396::felder()});
}

TEST_P(KleinStrom, GR396RecordOfAnOldVersionReadsItsNineTexts) {
    for (const char* version : {"10.1999", "11.2001"}) {
        qbFormularGR396 erwartet;
        Satz s(erwartet, qbFormularGR396::felder());
        s.kopf(version, "GR396", "VWL", 1, "VP1");
        for (const qbFeld& z : qbFormularGR396::felder())
            s.eigen(z.name);
        bool genauAmEnde = false;
        const auto f = s.satz().lies<qbFormularGR396>(GetParam(), &genauAmEnde);
        EXPECT_TRUE(genauAmEnde) << version;
        erwarteGleicheFelder(erwartet, f, {&kopfTabelle(), &qbFormularGR396::felder()});
    }
}

TEST(GR396, SavedRecordSizeXmlAndLoesche) {
    qbFormularGR396 f;
    f.RefStelle("Lohnbuero");
    f.RefOrtArbeitgeber("Passau");
    const Bytes erwartet =
        AltSatz::kopf("11.2001", "GR396", "Überweisung VWL durch Arbeitgeber"_cp1252, 1, "VN")
            .text("Lohnbuero")
            .texte(7)
            .text("Passau")
            .bytes();
    EXPECT_EQ(gespeichert(f), erwartet);
    EXPECT_EQ(f.binaryStoreSize(), qbFormular(f).binaryStoreSize() + 36 + 15);
    CQBXMLdata knoten("");
    f.XMLgetDat(knoten);
    std::vector<std::string> namen = {""};
    for (const qbFeld& z : qbFormularGR396::felder())
        namen.push_back(z.name);
    EXPECT_EQ(eintragsNamen(knoten), namen);
    qbFormularGR396 zurueck;
    zurueck.XMLputDat(knoten);
    EXPECT_EQ(zurueck.RefOrtArbeitgeber(), "Passau");
    f.RefPersonenKennung("VP1");
    f.RefVersion("01.2001");
    f.loesche();
    EXPECT_EQ(f.RefPersonenKennung(), "VN");
    EXPECT_EQ(f.RefVersion(), "11.2001");
    EXPECT_EQ(f.RefStelle(), "");
}

// ---- The change protocol

TEST(Aenderungsprotokoll, ConstructorSetsTheHeader) {
    const qbFormularAenderungsprotokoll f;
    EXPECT_EQ(f.RefVersion(), "08.2003");
    EXPECT_EQ(f.RefDruckstueckNummer(), "Aenderungsprotokoll");
    EXPECT_EQ(f.RefDruckstueckName(), "Änderungsprotokoll zum LV-Antrag"_cp1252);
    EXPECT_EQ(f.RefPersonenKennung(), "VN");
    EXPECT_EQ(f.RefAntragsnummer(), "");
}

TEST(Aenderungsprotokoll, OperatorEqualsWithAnotherAntragsnummerIsFalseWhileIsEqualIsTrue_Quirk) {
    const qbFormularAenderungsprotokoll a = protokoll("LV 1");
    const qbFormularAenderungsprotokoll b = protokoll("LV 2");
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a.isEqual(&b));
    EXPECT_TRUE(a == protokoll("LV 1"));
    EXPECT_FALSE(a == protokoll("LV 1", "VP1"));
}

TEST(Aenderungsprotokoll, RecordOnRWFileIsStampedAndReadsItsThreeTexts) {
    qbFormularAenderungsprotokoll f = protokoll("LV 1");
    f.RefVersion("01.2003");
    const Bytes erwartet =
        AltSatz::kopf("08.2003", "Aenderungsprotokoll", "Änderungsprotokoll zum LV-Antrag"_cp1252, 1, "VN")
            .text("4711")
            .text("LV 1")
            .text("01.01.2004")
            .bytes();
    EXPECT_EQ(gespeichert(f), erwartet);
    EXPECT_EQ(f.RefVersion(), "08.2003");
    EXPECT_EQ(f.binaryStoreSize(), erwartet.size());
    EXPECT_EQ(f.binaryStoreSize(), qbFormular(f).binaryStoreSize() + 12 + 18);
    for (const char* version : {"10.1999", "01.2003", "08.2003"}) {
        qbFormularAenderungsprotokoll soll;
        Satz s(soll, qbFormularAenderungsprotokoll::felder());
        s.kopf(version, "Aenderungsprotokoll", "Aend", 1, "VP2")
            .folge({"Agenturnummer", "Antragsnummer", "Versicherungsbeginn"});
        bool genauAmEnde = false;
        const auto gelesen = s.satz().lies<qbFormularAenderungsprotokoll>(Strom::Datei, &genauAmEnde);
        EXPECT_TRUE(genauAmEnde) << version;
        erwarteGleicheFelder(soll, gelesen, {&kopfTabelle(), &qbFormularAenderungsprotokoll::felder()});
    }
}

TEST_P(KleinVirtuell, AenderungsprotokollThroughAVirtualStreamArrivesWithItsHeaderAndEmptyTexts) {
    qbFormularAenderungsprotokoll f = protokoll("LV 1", "VP2");
    qbFormularAenderungsprotokoll zurueck;
    rundreise(f, zurueck, GetParam());
    EXPECT_EQ(zurueck.RefPersonenKennung(), "VP2");
    EXPECT_EQ(zurueck.RefDruckstueckNummer(), "Aenderungsprotokoll");
    EXPECT_EQ(zurueck.RefAgenturnummer(), "");
    EXPECT_EQ(zurueck.RefAntragsnummer(), "");
    EXPECT_EQ(zurueck.RefVersicherungsbeginn(), "");
    bool genauAmEnde = false;
    const auto alt = AltSatz::kopf("01.2003", "Aenderungsprotokoll", "Aend", 1, "VN")
                         .lies<qbFormularAenderungsprotokoll>(GetParam(), &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(alt.RefVersion(), "01.2003");
}
INSTANTIATE_TEST_SUITE_P(JederStrom, KleinStrom,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

TEST(Aenderungsprotokoll, XmlAndLoesche) {
    qbFormularAenderungsprotokoll f = protokoll("LV 1", "VP1");
    CQBXMLdata knoten("");
    f.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ(), "qbFormularAenderungsprotokoll");
    EXPECT_EQ(eintragsNamen(knoten),
              (std::vector<std::string>{"", "Agenturnummer", "Antragsnummer", "Versicherungsbeginn"}));
    qbFormularAenderungsprotokoll zurueck;
    zurueck.XMLputDat(knoten);
    EXPECT_TRUE(zurueck == f);
    f.loesche();
    EXPECT_EQ(f.RefPersonenKennung(), "VN");
    EXPECT_EQ(f.RefAntragsnummer(), "");
}

// ---- The form list

TEST(AenderungsprotokollListe, IsStoredThroughTheResearchReportsCopyConstructor_Quirk) {
    qbFormularListe liste;
    qbFormularAenderungsprotokoll f = protokoll("LV 1", "VP1");
    liste.neuesFormular(f);
    ASSERT_EQ(liste.AnzahlFormulare(), 1u);
    const qbFormular* gespeichert = liste.liefereFormularAnPos(0);
    EXPECT_EQ(gespeichert->isA(), qbFormularVB077::classIsA());
    EXPECT_EQ(gespeichert->RefDruckstueckNummer(), "Aenderungsprotokoll");
    EXPECT_EQ(gespeichert->RefDruckstueckName(), "Änderungsprotokoll zum LV-Antrag"_cp1252);
    EXPECT_EQ(gespeichert->RefPersonenKennung(), "VP1");
    EXPECT_EQ(gespeichert->RefVersion(), "08.2003");
}

TEST(AenderungsprotokollListe, LiefereFindsItByNumberAndPersonAndGivesTheHeaderOnly) {
    qbFormularListe liste;
    qbFormularAenderungsprotokoll f = protokoll("LV 1", "VP1");
    liste.neuesFormular(f);
    EXPECT_TRUE(liste.FormularVorhanden("Aenderungsprotokoll", 0));
    EXPECT_FALSE(liste.FormularVorhanden("Aenderungsprotokoll", 1));
    qbFormularAenderungsprotokoll ziel = protokoll("alt", "VP2");
    EXPECT_EQ(liste.liefereFormular("Aenderungsprotokoll", ziel, 0), 1u);
    EXPECT_EQ(ziel.RefPersonenKennung(), "VP1");
    EXPECT_EQ(ziel.RefDruckstueckNummer(), "Aenderungsprotokoll");
    qbFormularAenderungsprotokoll keins = protokoll("alt", "VP2");
    EXPECT_EQ(liste.liefereFormular("Aenderungsprotokoll", keins, 1), 0u);
    EXPECT_EQ(keins.RefAntragsnummer(), "");
}

TEST(AenderungsprotokollListe, ASecondOneOfThePersonReplacesTheFirstAndLoescheRemovesIt) {
    qbFormularListe liste;
    qbFormularAenderungsprotokoll a = protokoll("LV 1");
    qbFormularAenderungsprotokoll b = protokoll("LV 2");
    qbFormularAenderungsprotokoll c = protokoll("LV 3", "VP2");
    liste.neuesFormular(a);
    liste.neuesFormular(b);
    liste.neuesFormular(c);
    EXPECT_EQ(liste.AnzahlFormulare(), 2u);
    EXPECT_TRUE(liste.FormularVorhanden("Aenderungsprotokoll", 5));
    EXPECT_EQ(liste.loescheFormular("Aenderungsprotokoll", -1), 1u);
    EXPECT_FALSE(liste.FormularVorhanden("Aenderungsprotokoll", -1));
    EXPECT_TRUE(liste.FormularVorhanden("Aenderungsprotokoll", 1));
    EXPECT_EQ(liste.loescheFormular("Aenderungsprotokoll", -1), 0u);
    EXPECT_EQ(liste.AnzahlFormulare(), 1u);
}

TEST(AenderungsprotokollListe, AResearchReportBesideItIsAnotherPiece) {
    qbFormularListe liste;
    qbFormularAenderungsprotokoll p = protokoll("LV 1");
    qbFormularVB077 bericht;
    bericht.RefFD("FD Ost");
    liste.neuesFormular(p);
    liste.neuesFormular(bericht);
    EXPECT_EQ(liste.AnzahlFormulare(), 2u);
    qbFormularVB077 ziel;
    EXPECT_EQ(liste.liefereFormular("VB077", ziel, 2), 1u);
    EXPECT_EQ(ziel.RefFD(), "FD Ost");
    EXPECT_EQ(ziel.RefDruckstueckNummer(), "VB077");
}

TEST(OhnePersonListe, GR396IsDeliveredWhateverThePersonButFoundAndRemovedByIt) {
    qbFormularListe liste;
    qbFormularGR396 f;
    f.RefStelle("Lohnbuero");
    liste.neuesFormular(f); // person VN
    qbFormularGR396 ziel;
    EXPECT_EQ(liste.liefereFormular("GR396", ziel, 0), 1u);
    EXPECT_EQ(ziel.RefStelle(), "Lohnbuero");
    EXPECT_FALSE(liste.FormularVorhanden("GR396", 0));
    EXPECT_TRUE(liste.FormularVorhanden("GR396", 2));
    EXPECT_EQ(liste.loescheFormular("GR396", 0), 0u);
    EXPECT_EQ(liste.loescheFormular("GR396", 2), 1u);
    qbFormularGR396 vp1;
    vp1.RefPersonenKennung("VP1");
    liste.neuesFormular(vp1);
    EXPECT_EQ(liste.liefereFormular("GR396", ziel, 0), 0u); // the probe keeps VN
    EXPECT_TRUE(liste.FormularVorhanden("GR396", 0));
}

TEST(OhnePersonListe, L300AndL300_2AreSearchedWithVNWhateverThePersonGiven) {
    qbFormularListe liste;
    qbFormularL300 vn;
    vn.RefAntragstellerName("Muster");
    liste.neuesFormular(vn);
    qbFormularL300_2 firma;
    firma.RefName("Huber GmbH");
    liste.neuesFormular(firma);
    for (int person : {0, 1, 2}) {
        EXPECT_TRUE(liste.FormularVorhanden("L300", person)) << person;
        EXPECT_TRUE(liste.FormularVorhanden("L300_2", person)) << person;
        qbFormularL300 ziel;
        EXPECT_EQ(liste.liefereFormular("L300", ziel, person), 1u);
        EXPECT_EQ(ziel.RefAntragstellerName(), "Muster");
    }
    EXPECT_EQ(liste.loescheFormular("L300_2", 0), 1u);
    EXPECT_FALSE(liste.FormularVorhanden("L300_2", 2));
}

TEST(OhnePersonListe, L300OfAnotherPersonIsNeitherFoundNorReplaced_Quirk) {
    qbFormularListe liste;
    qbFormularL300 vp1;
    vp1.RefPersonenKennung("VP1");
    vp1.RefAntragstellerName("Erst");
    liste.neuesFormular(vp1);
    vp1.RefAntragstellerName("Zweit");
    liste.neuesFormular(vp1);
    EXPECT_EQ(liste.AnzahlFormulare(), 2u);
    EXPECT_FALSE(liste.FormularVorhanden("L300", 0));
    qbFormularL300 ziel;
    ziel.RefAntragstellerName("bleibt nicht");
    ziel.RefPersonenKennung("VP1");
    EXPECT_EQ(liste.liefereFormular("L300", ziel, 0), 0u);
    EXPECT_EQ(ziel.RefAntragstellerName(), ""); // loesche of the caller's form: person left empty
    EXPECT_EQ(ziel.RefPersonenKennung(), "");
    qbFormularL300 vn;
    liste.neuesFormular(vn);
    liste.neuesFormular(vn); // VN replaces VN
    EXPECT_EQ(liste.AnzahlFormulare(), 3u);
}

TEST(ClericalListe, KOLLBA272BA276AU523AndVB077AReplaceTheEarlierOneOfThePerson) {
    qbFormularListe liste;
    qbFormularAU523 au;
    qbFormularBA272 ba272;
    qbFormularBA276 ba276;
    qbFormularKOLL koll;
    qbFormularVB077A vb077a;
    for (int runde = 0; runde < 2; ++runde) {
        liste.neuesFormular(au);
        liste.neuesFormular(ba272);
        liste.neuesFormular(ba276);
        liste.neuesFormular(koll);
        liste.neuesFormular(vb077a);
    }
    EXPECT_EQ(liste.AnzahlFormulare(), 5u);
    EXPECT_TRUE(liste.FormularVorhanden("AU523", 0));
    EXPECT_FALSE(liste.FormularVorhanden("AU523", 2));
    EXPECT_TRUE(liste.FormularVorhanden("KOLL", 2));
    EXPECT_FALSE(liste.FormularVorhanden("KOLL", 1));
    qbFormularBA272 ziel;
    ziel.RefSektion("x");
    EXPECT_EQ(liste.liefereFormular("BA272", ziel, 1), 0u);
    EXPECT_EQ(ziel.RefSektion(), "");
    EXPECT_EQ(ziel.RefPersonenKennung(), "VN");
}

TEST(ClericalListe, TheCatalogueMarksEveryClericalPieceAsHavingAClass) {
    for (const char* nummer : {"Aenderungsprotokoll", "AU523", "BA272", "BA276", "GR396", "KOLL", "L300",
                               "L300_2", "VB077", "VB077A"}) {
        const qbKlasse* k = qbKlasseZuNummer(nummer);
        ASSERT_NE(k, nullptr) << nummer;
        EXPECT_EQ(k->listenart, qbListenart::Ersetzend) << nummer;
        EXPECT_TRUE(k->imXmlImport) << nummer;
    }
    EXPECT_EQ(qbKlasseZuNummer("Aenderungsprotokoll")->kopiere, qbKlasseZuNummer("VB077")->kopiere);
}

TEST(ClericalListe, XmlImportOfAChangeProtocolStoresItAsTheOthersDo) {
    CQBXMLdata element("");
    protokoll("LV 1", "VP2").XMLgetDat(element);
    CQBXMLdata sammlung("RWDlistCollectables");
    sammlung.Attribute("Liste");
    sammlung.List(element);
    CQBXMLdata knoten("wurzel");
    knoten.clear("qbFormularListe");
    knoten.List(sammlung);
    qbFormularListe liste;
    liste.XMLputDat(knoten);
    ASSERT_EQ(liste.AnzahlFormulare(), 1u);
    EXPECT_EQ(liste.liefereFormularAnPos(0)->RefDruckstueckNummer(), "Aenderungsprotokoll");
    EXPECT_EQ(liste.liefereFormularAnPos(0)->RefPersonenKennung(), "VP2");
    EXPECT_TRUE(liste.FormularVorhanden("Aenderungsprotokoll", 1));
}

INSTANTIATE_TEST_SUITE_P(BeideVirtuellen, KleinVirtuell, ::testing::Values(Strom::Binaer, Strom::Portabel),
                         stromName);
