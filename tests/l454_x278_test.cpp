// qbFormularL454 (any other sport) and qbFormularX278 (leisure rider): the XML of L454 in an order of its
// own with LizenzAusbildungJN twice, its Int setters that take a const int&, and one layout for every
// stored version.
#include "sport/qbFormularL454.h"
#include "sport/qbFormularX278.h"

#include "form_test_util.h"
#include "legacy_fixture.h"
#include "sport_felder.h"
#include "test_util.h"

#include <string>
#include <vector>

using namespace qbtest;

namespace {

const std::vector<std::string> kL454XmlFolge = {"AmateurJN",
                                                "ProfiJN",
                                                "SemiprofiJN",
                                                "TrainerJN",
                                                "LizenzAusbildungJN",
                                                "LizenzAusbildungJN",
                                                "EinZweiJahrJN",
                                                "EinZweiWocheJN",
                                                "EinZweiMonatJN",
                                                "DreiWocheJN",
                                                "AndereZeitenJN",
                                                "DeutschlandJN",
                                                "EuropaJN",
                                                "WeltweitJN",
                                                "HalleJN",
                                                "SportplatzJN",
                                                "SonstigeOrteJN",
                                                "WettbewerbeJN",
                                                "SportartBeginn",
                                                "LizenzAusbildungBeschreibung",
                                                "EuropaLaender",
                                                "WeltweitLaender",
                                                "SonstigeOrteBezeichnung",
                                                "WettbewerbeBeschreibung",
                                                "SportanteilProzent",
                                                "BerufsanteilProzent",
                                                "WettbewerbeAnzahlLetztes",
                                                "WettbewerbeAnzahlVorletztes",
                                                "RekordversucheJN",
                                                "AusruestungTestJN",
                                                "SportAlleineJN",
                                                "SportPaarweiseJN",
                                                "SportMannschaftJN",
                                                "SportSonstigesJN",
                                                "OeffentlicheVeranstJN",
                                                "FreizeitUrlaubJN",
                                                "SonstigesUmfeldJN",
                                                "ImVereinJN",
                                                "SicherheitsvorkehrungJN",
                                                "SportverletzungJN",
                                                "RekordversucheBeschreibung",
                                                "AusruestungTestBeschreibung",
                                                "AusruestungTestAuftraggeber",
                                                "SportSonstigesBeschreibung",
                                                "SonstigesUmfeldBeschreibung",
                                                "SicherheitsvorkehrungBeschreibung",
                                                "SportverletzungBeschreibung",
                                                "SportverletzungZeitpunkt",
                                                "SportverletzungFolgen",
                                                "SportverletzungArztAdresse"};

} // namespace

TEST(L454, XmlHolds50OwnValuesFor49FieldsAndLizenzAusbildungJNTwiceWithOneValue_Quirk) {
    qbFormularL454 f;
    fuelleAlle(f, {&qbFormularL454::felder()});
    f.RefLizenzAusbildungJN(1);
    CQBXMLdata knoten("L454");
    f.XMLgetDat(knoten);
    std::vector<std::string> namen = eintragsNamen(knoten);
    ASSERT_EQ(namen.size(), 51u); // the header's node and 50 own values
    namen.erase(namen.begin());
    EXPECT_EQ(namen, kL454XmlFolge);
    EXPECT_EQ(qbFormularL454::felder().size(), 49u);
    EXPECT_EQ(knoten.entryAt(5)->value().kind(), QBvar::flag);
    EXPECT_EQ(knoten.entryAt(6)->value().kind(), QBvar::flag);
    EXPECT_EQ(knoten.entryAt(5)->value().asInt(), 1);
    EXPECT_EQ(knoten.entryAt(6)->value().asInt(), 1);
    qbFormularL454 ziel;
    ziel.XMLputDat(knoten);
    erwarteGleicheFelder(f, ziel, {&qbFormularL454::felder()});
}

TEST(L454, RecordStoredAs11_2001IsReadWithTheLayoutOf08_2008) {
    for (Strom strom : {Strom::Datei, Strom::Binaer, Strom::Portabel}) {
        SCOPED_TRACE(name(strom));
        qbFormularL454 erwartet;
        Satz satz(erwartet, qbFormularL454::felder());
        satz.kopf("11.2001", "L454", "Sport", 2, "VP2");
        for (const SportFeld& f : kL454Felder)
            satz.eigen(f.name);
        bool amEnde = false;
        const auto gelesen = satz.satz().lies<qbFormularL454>(strom, &amEnde);
        EXPECT_TRUE(amEnde);
        EXPECT_EQ(gelesen.RefVersion().std(), "11.2001");
        erwarteGleicheFelder(erwartet, gelesen, {&qbFormular::felder(), &qbFormularL454::felder()});
    }
}

TEST(L454, TheFourIntSettersTakeAConstIntReference_Quirk) {
    void (qbFormularL454::*setze)(const int&) = &qbFormularL454::RefSportanteilProzent;
    qbFormularL454 f;
    (f.*setze)(60);
    setze = &qbFormularL454::RefBerufsanteilProzent;
    (f.*setze)(40);
    setze = &qbFormularL454::RefWettbewerbeAnzahlLetztes;
    (f.*setze)(3);
    setze = &qbFormularL454::RefWettbewerbeAnzahlVorletztes;
    (f.*setze)(5);
    int (qbFormularL454::*lies)() const = &qbFormularL454::RefSportanteilProzent;
    EXPECT_EQ((f.*lies)(), 60);
    EXPECT_EQ(f.RefBerufsanteilProzent(), 40);
    EXPECT_EQ(f.RefWettbewerbeAnzahlLetztes(), 3);
    EXPECT_EQ(f.RefWettbewerbeAnzahlVorletztes(), 5);
}

TEST(X278, HindernisrennenOfTheSportAndOfCompetitionsAreTwoFlagsAndTheCountsFollowTheirFlags) {
    qbFormularX278 f;
    f.RefHindernisrennenJN(1);
    f.RefHindernisrennenWettbJN(0);
    f.RefAnzahlHindernisrennen(2);
    EXPECT_EQ(f.RefHindernisrennenJN(), 1);
    EXPECT_EQ(f.RefHindernisrennenWettbJN(), 0);
    const Bytes b = gespeichert(f);
    // The counts stand last: Hindernisrennen is the fourth of six.
    const Bytes zaehler(b.end() - 24, b.end());
    EXPECT_EQ(hex(zaehler), hex(cat({int32(0), int32(0), int32(0), int32(2), int32(0), int32(0)})));
}
