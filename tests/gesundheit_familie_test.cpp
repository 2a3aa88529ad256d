// The health family over the class table: every class derived from qbFormularAllgGesu has its branch in
// the list's chains, is found by the probe of Krankheit and AntwortZuFrage, and is removed for one person
// only by loescheGesundheitsFormulare.
#include "core/qbFormularListe.h"
#include "core/qbKlassen.h"
#include "health/qbFormularAllgGesu.h"

#include "klassen_util.h"

#include <memory>
#include <string>
#include <vector>

using namespace qbtest;

namespace {

// The classes of the table whose base chain leads to qbFormularAllgGesu, the base itself included.
std::vector<const qbKlasse*> familie(bool mitBasis) {
    std::vector<const qbKlasse*> alle;
    for (const qbKlasse& k : qbKlassen) {
        const bool basis = std::string(k.klassenName) == "qbFormularAllgGesu";
        bool gesu = basis;
        for (const qbKlasse* c = qbKlasseZuName(k.basisName); c && !gesu; c = qbKlasseZuName(c->basisName))
            gesu = std::string(c->klassenName) == "qbFormularAllgGesu";
        if (gesu && (mitBasis || !basis)) alle.push_back(&k);
    }
    return alle;
}

std::string klassenNamen(const ::testing::TestParamInfo<const qbKlasse*>& info) {
    return info.param->klassenName;
}

// A form of the class for the person, with its illness and answer.
std::unique_ptr<qbFormularAllgGesu> gesundheitsForm(const qbKlasse& k, const char* person,
                                                    const char* krankheit, const char* antwort) {
    std::unique_ptr<qbFormularAllgGesu> f(
        dynamic_cast<qbFormularAllgGesu*>(static_cast<qbFormular*>(k.erzeuge())));
    EXPECT_NE(f, nullptr) << k.klassenName;
    if (!f) return f;
    f->RefPersonenKennung(person);
    f->RefKrankheit(krankheit);
    f->RefAntwortZuFrage(antwort);
    return f;
}

class Gesundheitsfamilie : public ::testing::TestWithParam<const qbKlasse*> {};

} // namespace

TEST(Gesundheitsfamilie, HasTwentyOneClassesWithTheBase) { EXPECT_EQ(familie(true).size(), 21u); }

TEST_P(Gesundheitsfamilie, ChainKnowsThePieceAsARepeatableHealthForm) {
    const qbKlasse& k = *GetParam();
    const qbKlasse* perNummer = qbKlasseZuNummer(k.nummer);
    const qbKlasse* perXml = qbKlasseZuXmlTyp(k.klassenName);
    ASSERT_TRUE(perNummer && perXml);
    EXPECT_EQ(perNummer->id, k.id);
    EXPECT_EQ(perXml->id, k.id);
    EXPECT_EQ(perNummer->listenart, qbListenart::Wiederholbar);
    // the probe of Krankheit and AntwortZuFrage, with the caller's person in every search
    ASSERT_NE(perNummer->suche, nullptr);
    EXPECT_NE(perNummer->suche->fuelleSonde, nullptr);
    EXPECT_TRUE(perNummer->suche->personBeimLiefern);
    EXPECT_TRUE(perNummer->suche->personBeimSuchen);
    const auto f = gesundheitsForm(k, "VP1", "Asthma", "");
    ASSERT_TRUE(f);
    EXPECT_EQ(f->RefDruckstueckNummer(), k.nummer);
}

TEST_P(Gesundheitsfamilie, ProbeFindsTheFormByKrankheitAndAntwortZuFrageForItsPerson) {
    const qbKlasse& k = *GetParam();
    qbFormularListe liste;
    const auto erste = gesundheitsForm(k, "VP2", "Asthma", "Frage 2");
    const auto zweite = gesundheitsForm(k, "VP2", "Heuschnupfen", "Frage 3");
    ASSERT_TRUE(erste && zweite);
    liste.neuesFormular(*erste);
    liste.neuesFormular(*zweite);
    EXPECT_EQ(liste.AnzahlFormulare(), 2u) << "a health form is only appended";
    EXPECT_TRUE(liste.FormularVorhanden(k.nummer, 1, "Asthma", "Frage 2"));
    EXPECT_TRUE(liste.FormularVorhanden(k.nummer, 1, "Heuschnupfen"));
    EXPECT_FALSE(liste.FormularVorhanden(k.nummer, 1, "Asthma", "Frage 3"));
    EXPECT_FALSE(liste.FormularVorhanden(k.nummer, 0, "Asthma"));
    auto gefunden = erzeuge(k);
    EXPECT_EQ(liste.liefereFormular(k.nummer, *gefunden, 1, "Heuschnupfen", ""), 1u);
    const auto& gesu = dynamic_cast<const qbFormularAllgGesu&>(*gefunden);
    EXPECT_EQ(gesu.RefKrankheit().std(), "Heuschnupfen");
    EXPECT_EQ(gesu.RefAntwortZuFrage().std(), "Frage 3");
    EXPECT_EQ(liste.loescheFormular(k.nummer, 1, "Asthma"), 1u);
    EXPECT_FALSE(liste.FormularVorhanden(k.nummer, 1, "Asthma"));
    EXPECT_TRUE(liste.FormularVorhanden(k.nummer, 1, "Heuschnupfen"));
}

TEST_P(Gesundheitsfamilie, LoescheGesundheitsFormulareRemovesThemForOnePersonOnly) {
    const qbKlasse& k = *GetParam();
    qbFormularListe liste;
    for (const char* person : {"VP1", "VP2", "VN", "VP1"}) {
        const auto f = gesundheitsForm(k, person, "Asthma", "");
        ASSERT_TRUE(f);
        liste.neuesFormular(*f);
    }
    liste.loescheGesundheitsFormulare(0);
    EXPECT_EQ(liste.AnzahlFormulare(), 2u);
    EXPECT_FALSE(liste.FormularVorhanden(k.nummer, 0));
    EXPECT_TRUE(liste.FormularVorhanden(k.nummer, 1));
    EXPECT_TRUE(liste.FormularVorhanden(k.nummer, 7));
    liste.loescheGesundheitsFormulare(7);
    EXPECT_EQ(liste.AnzahlFormulare(), 1u);
    EXPECT_TRUE(liste.FormularVorhanden(k.nummer, 1));
}

INSTANTIATE_TEST_SUITE_P(JedeErklaerung, Gesundheitsfamilie, ::testing::ValuesIn(familie(false)),
                         klassenNamen);
