// The pension and allowance forms in the form list: the pension form's aliases and its equality by number
// alone, the allowance application and the activity description searched without the caller's person when
// delivered, the XML import, and the catalogue.
#include "core/qbFormularListe.h"
#include "core/qbKlassen.h"
#include "pension/qbFormularBAV.h"
#include "pension/qbFormularGN056.h"
#include "pension/qbFormularL095.h"
#include "qballg/CQBXMLdata.h"

#include <gtest/gtest.h>

#include <string>

TEST(PensionListe, LiefereFormularKnowsTheSevenAliasesOfThePensionForm) {
    qbFormularListe liste;
    qbFormularBAV bav;
    bav.RefANPersNr("4711");
    liste.neuesFormular(bav);
    for (const char* alias : {"BA441", "BA443", "BA444", "BA652", "BA646", "BA644", "BA645"}) {
        qbFormularBAV gefunden;
        EXPECT_EQ(liste.liefereFormular(alias, gefunden, 0), 1u) << alias;
        EXPECT_STREQ(gefunden.RefANPersNr(), "4711") << alias;
    }
}

TEST(PensionListe, AliasIsUnknownToFormularVorhandenAndLoescheFormular_Quirk) {
    qbFormularListe liste;
    qbFormularBAV bav;
    liste.neuesFormular(bav);
    EXPECT_FALSE(liste.FormularVorhanden("BA441", 0));
    EXPECT_EQ(liste.loescheFormular("BA441", 0), 0u);
    EXPECT_EQ(liste.AnzahlFormulare(), 1u);
    EXPECT_TRUE(liste.FormularVorhanden("BAV", 0));
}

TEST(PensionListe, NewPensionFormReplacesTheOneOfAnyPerson_Quirk) {
    qbFormularListe liste;
    qbFormularBAV a, b;
    a.RefPersonenKennung("VP1");
    a.RefANPersNr("a");
    b.RefPersonenKennung("VP2");
    b.RefANPersNr("b");
    liste.neuesFormular(a);
    liste.neuesFormular(b);
    ASSERT_EQ(liste.AnzahlFormulare(), 1u);
    qbFormularBAV gefunden;
    EXPECT_EQ(liste.liefereFormular("BAV", gefunden, 0), 1u); // asked for VP1, VP2's is equal
    EXPECT_STREQ(gefunden.RefANPersNr(), "b");
    EXPECT_TRUE(liste.FormularVorhanden("BAV", 5));
}

TEST(PensionListe, PensionFormNotFoundIsResetThroughTheVirtualLoescheOnly_Quirk) {
    qbFormularListe liste;
    qbFormularBAV f;
    f.RefANPersNr("bleibt");
    EXPECT_EQ(liste.liefereFormular("BA441", f, 0), 0u);
    EXPECT_EQ(f.RefPersonenKennung(), "");
    EXPECT_STREQ(f.RefANPersNr(), "bleibt");
}

TEST(PensionListe, AllowanceApplicationIsDeliveredWithoutThePersonAndSearchedWithIt) {
    qbFormularListe liste;
    qbFormularGN056 f; // VP1
    f.SetFinanzamt("FA");
    liste.neuesFormular(f);
    qbFormularGN056 gefunden;
    EXPECT_EQ(liste.liefereFormular("GN056", gefunden, 1), 1u); // the class's VP1, not the caller's VP2
    EXPECT_EQ(gefunden.GetFinanzamt(), "FA");
    EXPECT_FALSE(liste.FormularVorhanden("GN056", 1));
    EXPECT_TRUE(liste.FormularVorhanden("GN056", 0));
    EXPECT_EQ(liste.loescheFormular("GN056", 1), 0u);
    EXPECT_EQ(liste.loescheFormular("GN056", 0), 1u);
    EXPECT_EQ(liste.AnzahlFormulare(), 0u);
}

TEST(PensionListe, AllowanceApplicationOfVP2IsNotDeliveredForAnyPerson_Quirk) {
    qbFormularListe liste;
    qbFormularGN056 f;
    f.RefPersonenKennung("VP2");
    liste.neuesFormular(f);
    qbFormularGN056 gefunden;
    EXPECT_EQ(liste.liefereFormular("GN056", gefunden, 1), 0u);
    EXPECT_TRUE(liste.FormularVorhanden("GN056", 1));
}

TEST(PensionListe, ActivityDescriptionIsDeliveredWithoutThePersonAndReplacedPerPerson) {
    qbFormularListe liste;
    qbFormularL095 a, b;
    a.SetLehre("a", 0);
    b.SetLehre("b", 0);
    liste.neuesFormular(a);
    liste.neuesFormular(b);
    EXPECT_EQ(liste.AnzahlFormulare(), 1u);
    qbFormularL095 gefunden;
    EXPECT_EQ(liste.liefereFormular("L095", gefunden, 7), 1u);
    EXPECT_EQ(gefunden.GetLehre(0), "b");
    EXPECT_FALSE(liste.FormularVorhanden("L095", 1));
    EXPECT_TRUE(liste.FormularVorhanden("L095", 0));
}

TEST(PensionListe, XmlImportBuildsTheClassesByTheirElementNames) {
    qbFormularBAV bav;
    bav.RefANPersNr("9");
    qbFormularGN056 zulage;
    zulage.SetName("Muster");
    CQBXMLdata bavKnoten(""), zulageKnoten("");
    bav.XMLgetDat(bavKnoten);
    zulage.XMLgetDat(zulageKnoten);
    CQBXMLdata sammlung("RWDlistCollectables");
    sammlung.Attribute("Liste");
    sammlung.List(bavKnoten);
    sammlung.List(zulageKnoten);
    CQBXMLdata baum("");
    baum.clear("qbFormularListe");
    baum.List(sammlung);
    qbFormularListe liste;
    liste.XMLputDat(baum);
    ASSERT_EQ(liste.AnzahlFormulare(), 2u);
    qbFormularBAV b;
    EXPECT_EQ(liste.liefereFormular("BAV", b, 0), 1u);
    EXPECT_STREQ(b.RefANPersNr(), "9");
    qbFormularGN056 g;
    EXPECT_EQ(liste.liefereFormular("GN056", g, 0), 1u);
    EXPECT_EQ(g.GetName(), "Muster");
}

// The node typed "qbFormularGN056" builds an allowance application, which reads the header's number
// "L095"; the list then stores it as an activity description by that number, with the header alone.
TEST(PensionListe, ActivityDescriptionsOwnXmlComesInThroughTheAllowanceApplicationAndLosesItsArrays_Quirk) {
    qbFormularL095 taetigkeit;
    taetigkeit.SetLehre("Maurer", 0);
    CQBXMLdata knoten("");
    taetigkeit.XMLgetDat(knoten);
    CQBXMLdata sammlung("RWDlistCollectables");
    sammlung.Attribute("Liste");
    sammlung.List(knoten);
    CQBXMLdata baum("");
    baum.clear("qbFormularListe");
    baum.List(sammlung);
    qbFormularListe liste;
    liste.XMLputDat(baum);
    ASSERT_EQ(liste.AnzahlFormulare(), 1u);
    EXPECT_EQ(liste.liefereFormularAnPos(0)->isA(), qbId_qbFormularL095);
    qbFormularL095 gefunden;
    EXPECT_EQ(liste.liefereFormular("L095", gefunden, 0), 1u);
    EXPECT_EQ(gefunden.GetLehre(0), "");
}

TEST(PensionListe, CatalogueRowsOfThePiecesHaveTheirClasses) {
    for (const char* nummer : {"BAV", "GN056", "L095"}) {
        const qbKlasse* k = qbKlasseZuNummer(nummer);
        ASSERT_NE(k, nullptr) << nummer;
        bool imKatalog = false;
        qbFormularListe liste;
        for (const RWCString& n : liste.RefAlleDruckstueckNr())
            imKatalog = imKatalog || n == nummer;
        EXPECT_TRUE(imKatalog) << nummer;
    }
    EXPECT_EQ(qbKlasseZuNummerOderAlias("BA645"), qbKlasseZuNummer("BAV"));
    EXPECT_EQ(qbKlasseZuNummer("BA645"), nullptr);
}
