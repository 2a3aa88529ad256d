// qbFormularL243 (epilepsy), qbFormularL281 (joints) and qbFormularL282 (eye diseases): L243's psychic
// illnesses of 05.2002 and its reading of the oldest records in table order, L281's tree with the common
// answers and the forms without a person of their own, L282's defaults and its unread Infektion.
#include "core/qbFormularListe.h"
#include "health/qbFormularL243.h"
#include "health/qbFormularL281.h"
#include "health/qbFormularL282.h"
#include "qballg/CQBXMLdata.h"

#include "erklaerungen_util.h"
#include "form_test_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <algorithm>
#include <string>
#include <vector>

using namespace qbtest;

namespace {

const char* const kL243Name = "Erkl\xE4rung Epilepsie";

class L243AltSatz : public ::testing::TestWithParam<Strom> {
protected:
    void pruefe() {
        bool genauAmEnde = false;
        const auto gelesen = s.satz().lies<qbFormularL243>(GetParam(), &genauAmEnde);
        EXPECT_TRUE(genauAmEnde) << "the reader did not stop at the record's end";
        erwarteGleicheFelder(erwartet, gelesen, {&kopfTabelle(), &gesuTabelle(), &qbFormularL243::felder()});
    }
    // The own fields in table order, the psychic illnesses only where the version holds them.
    void eigene(bool mitPsychischen) {
        for (const FeldArt& fa : kL243Felder)
            if (mitPsychischen || std::string(fa.name).rfind("PsychischeErkrankungen", 0) != 0)
                s.eigen(fa.name);
    }
    qbFormularL243 erwartet;
    Satz s{erwartet, qbFormularL243::felder()};
};

} // namespace

// ---- L243

TEST(L243, Record11_2001HoldsThirtyFourOwnFieldsAndLeavesPsychischeErkrankungenJNUnanswered) {
    qbFormularL243 erwartet;
    Satz s(erwartet, qbFormularL243::felder());
    s.kopf("11.2001", "L243", kL243Name, 2, "VP1")
        .gemeinsam(kFelder1bis12)
        .gemeinsam(kFelder13und14)
        .gemeinsam(kFelder15bis17);
    int eigene = 0;
    for (const FeldArt& fa : kL243Felder)
        if (std::string(fa.name).rfind("PsychischeErkrankungen", 0) != 0) {
            s.eigen(fa.name);
            ++eigene;
        }
    EXPECT_EQ(eigene, 34);
    bool genauAmEnde = false;
    const auto f = s.satz().lies<qbFormularL243>(Strom::Datei, &genauAmEnde);
    EXPECT_TRUE(genauAmEnde);
    EXPECT_EQ(f.RefPsychischeErkrankungenJN(), 0xff);
    EXPECT_TRUE(f.RefPsychischeErkrankungen().isNull());
    EXPECT_EQ(f.RefWeitereErkrankungen(), erwartet.RefWeitereErkrankungen());
}

TEST_P(L243AltSatz, Record10_1999IsReadLikeAnyRecordBefore12_2000WithTheOwnFieldsInTableOrder_Quirk) {
    s.kopf("10.1999", "L243", kL243Name, 2, "VP2").tripel();
    eigene(false);
    pruefe();
}

TEST_P(L243AltSatz, Record01_2000HasNoAntwortZuFrageOfItsOwnEither_Quirk) {
    s.kopf("01.2000", "L243", kL243Name, 2, "VP2").tripel();
    eigene(false);
    pruefe();
}

TEST_P(L243AltSatz, Record11_2000HoldsTheCommonFieldsAndTheTripleBeforeTheOwnOnes) {
    s.kopf("11.2000", "L243", kL243Name, 2, "VP2")
        .gemeinsam(kFelder1bis12)
        .gemeinsam(kFelder15bis17)
        .tripel();
    eigene(false);
    pruefe();
}

TEST_P(L243AltSatz, Record12_2001ReadsNeitherTheChangeOfWorkplaceNorThePsychicIllnesses) {
    s.kopf("12.2001", "L243", kL243Name, 2, "VP2").gemeinsam(kFelder1bis12).gemeinsam(kFelder15bis17);
    eigene(false);
    pruefe();
}

TEST_P(L243AltSatz, Record05_2002ReadsTheCurrentLayout) {
    s.kopf("05.2002", "L243", kL243Name, 2, "VP2")
        .gemeinsam(kFelder1bis12)
        .gemeinsam(kFelder13und14)
        .gemeinsam(kFelder15bis17);
    eigene(true);
    pruefe();
}

INSTANTIATE_TEST_SUITE_P(JederStrom, L243AltSatz,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

// ---- L281

TEST(L281, DefaultObjectHasAnEmptyPersonenKennungAndLoescheBringsItBack) {
    qbFormularL281 f;
    EXPECT_TRUE(f.RefPersonenKennung().isNull());
    f.RefPersonenKennung("VP1");
    f.loesche();
    EXPECT_TRUE(f.RefPersonenKennung().isNull());
}

TEST(L281, TreeHoldsTheCommonFieldsWhichXMLputDatLeavesAtTheirDefaults_Quirk) {
    qbFormularL281 quelle;
    fuelleAlle(quelle, {&kopfTabelle(), &gesuTabelle(), &qbFormularL281::felder()});
    CQBXMLdata knoten("L281");
    quelle.XMLgetDat(knoten);
    const CQBXMLdata& gemeinsam = *knoten.entryAt(0);
    RWCString krankheit;
    ASSERT_TRUE(gemeinsam.Listvalue("Krankheit", krankheit));
    EXPECT_EQ(krankheit, quelle.RefKrankheit());
    int dauer = 0;
    ASSERT_TRUE(gemeinsam.Listvalue("Dauer", dauer));
    EXPECT_EQ(dauer, quelle.RefDauer());
    qbFormularL281 ziel;
    ziel.XMLputDat(knoten);
    erwarteGleicheFelder(qbFormularL281(), ziel, {&kopfTabelle(), &gesuTabelle()});
    erwarteGleicheFelder(quelle, ziel, {&qbFormularL281::felder()});
}

TEST(L281, RecordOfEveryVersionHasTheOwnFieldsInTableOrderBehindWhatTheBaseReads) {
    for (const char* version :
         {"10.1999", "01.2000", "11.2000", "11.2001", "04.2002", "10.2002", "12.2030"}) {
        qbFormularL281 erwartet;
        Satz s(erwartet, qbFormularL281::felder());
        s.kopf(version, "L281", "Erkl\xE4rung Gelenke", 2, "VP1");
        gemeinsamerTeil(s, version);
        for (const FeldArt& fa : kL281Felder)
            s.eigen(fa.name);
        for (Strom art : {Strom::Datei, Strom::Binaer, Strom::Portabel}) {
            bool genauAmEnde = false;
            const auto f = s.satz().lies<qbFormularL281>(art, &genauAmEnde);
            EXPECT_TRUE(genauAmEnde) << version << " " << name(art);
            erwarteGleicheFelder(erwartet, f, {&kopfTabelle(), &gesuTabelle(), &qbFormularL281::felder()},
                                 std::string(version) + " " + name(art) + ": ");
        }
    }
}

// ---- L282

TEST(L282, DefaultObjectHasSehschaerfeJNAtZeroAndSehminderungJNUnanswered) {
    qbFormularL282 f;
    EXPECT_EQ(f.RefSehschaerfeJN(), 0);
    EXPECT_EQ(f.RefSehminderungJN(), 0xff);
    EXPECT_EQ(f.RefBehandlungJN(), 0);
    EXPECT_EQ(f.RefInfektionJN(), 0xff);
    EXPECT_TRUE(f.RefPersonenKennung().isNull());
}

TEST(L282, XMLRoundTripCarriesInfektionJNButNotInfektion_Quirk) {
    qbFormularL282 quelle;
    quelle.RefInfektionJN(1);
    quelle.RefInfektion("Herpes");
    quelle.RefAutoimmunerkrankungen("Lupus");
    CQBXMLdata knoten("L282");
    quelle.XMLgetDat(knoten);
    RWCString s;
    ASSERT_TRUE(knoten.Listvalue("Infektion", s));
    EXPECT_EQ(s.std(), "Herpes");
    ASSERT_TRUE(knoten.Listvalue("Autoimmunerkrankungen", s));
    qbFormularL282 ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(ziel.RefInfektionJN(), 1);
    EXPECT_TRUE(ziel.RefInfektion().isNull());
    EXPECT_EQ(ziel.RefAutoimmunerkrankungen().std(), "Lupus");
}

TEST(L282, RecordOfEveryVersionHasTheOwnFieldsInTableOrderBehindWhatTheBaseReads) {
    for (const char* version : {"10.1999", "11.2000", "11.2001", "12.2001", "10.2002"}) {
        qbFormularL282 erwartet;
        Satz s(erwartet, qbFormularL282::felder());
        s.kopf(version, "L282", "Erkl\xE4rung Augenkrankheiten", 2, "VN");
        gemeinsamerTeil(s, version);
        for (const FeldArt& fa : kL282Felder)
            s.eigen(fa.name);
        for (Strom art : {Strom::Datei, Strom::Binaer, Strom::Portabel}) {
            bool genauAmEnde = false;
            const auto f = s.satz().lies<qbFormularL282>(art, &genauAmEnde);
            EXPECT_TRUE(genauAmEnde) << version << " " << name(art);
            erwarteGleicheFelder(erwartet, f, {&kopfTabelle(), &gesuTabelle(), &qbFormularL282::felder()},
                                 std::string(version) + " " + name(art) + ": ");
        }
    }
}
