// What the health declarations L241, L243, L249, L281, L282, L244, L245 and L283 share by the family rule,
// tested for each: the header of a new object, the defaults, the byte image of a current record, the round
// trip on every stream kind, the size figure, copy, assignment, loesche and the XML.
#include "health/qbFormularL241.h"
#include "health/qbFormularL243.h"
#include "health/qbFormularL244.h"
#include "health/qbFormularL245.h"
#include "health/qbFormularL249.h"
#include "health/qbFormularL281.h"
#include "health/qbFormularL282.h"
#include "health/qbFormularL283.h"
#include "qballg/CQBXMLdata.h"

#include "erklaerungen_util.h"
#include "form_test_util.h"
#include "test_util.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

using namespace qbtest;

namespace {

// A declaration as its paper form and the class table give it. Keys: the XML keys that differ from the
// field's name, as written and as read ("" for a field not read back).
struct L241 {
    using F = qbFormularL241;
    static constexpr const char* nummer = "L241";
    static constexpr const char* name = "Erkl\xE4rung Atemwegserkrankungen";
    static constexpr const char* version = "05.2002";
    static constexpr int seiten = 2;
    static constexpr const char* person = "VP1";
    static constexpr RWspace fest = 119;
    static constexpr bool gemeinsamerKnoten = false;
    static std::vector<FeldArt> felder() { return liste(kL241Felder); }
    static std::set<std::string> nullFlags() { return {}; }
    static std::map<std::string, std::pair<std::string, std::string>> schluessel() { return {}; }
    static std::vector<std::string> weitere() { return {}; }
};
struct L243 : L241 {
    using F = qbFormularL243;
    static constexpr const char* nummer = "L243";
    static constexpr const char* name = "Erkl\xE4rung Epilepsie";
    static constexpr RWspace fest = 93;
    static std::vector<FeldArt> felder() { return liste(kL243Felder); }
};
struct L249 : L241 {
    using F = qbFormularL249;
    static constexpr const char* nummer = "L249";
    static constexpr const char* name = "Erkl\xE4rung Allergien";
    static constexpr RWspace fest = 120;
    static std::vector<FeldArt> felder() { return liste(kL249Felder); }
    static std::set<std::string> nullFlags() { return {"TiereJN"}; } // the constructor gives it none
};
struct L281 : L241 {
    using F = qbFormularL281;
    static constexpr const char* nummer = "L281";
    static constexpr const char* name = "Erkl\xE4rung Gelenke";
    static constexpr const char* version = "10.2002";
    static constexpr const char* person = "";
    static constexpr RWspace fest = 80;
    static constexpr bool gemeinsamerKnoten = true;
    static std::vector<FeldArt> felder() { return liste(kL281Felder); }
};
struct L282 : L241 {
    using F = qbFormularL282;
    static constexpr const char* nummer = "L282";
    static constexpr const char* name = "Erkl\xE4rung Augenkrankheiten";
    static constexpr const char* version = "10.2002";
    static constexpr const char* person = "";
    static constexpr RWspace fest = 181;
    static std::vector<FeldArt> felder() { return liste(kL282Felder); }
    static std::set<std::string> nullFlags() {
        return {"SehschaerfeJN",
                "BlutdruckJN",
                "AugeninnendruckJN",
                "GesichtsfeldJN",
                "AugenhintergrundJN",
                "BlutzuckerkontrolleJN",
                "SonstigeUntersuchungenJN",
                "BehandlungJN",
                "KorrekturglaeserJN",
                "AugentropfenJN",
                "OperationJN",
                "HornhautJN",
                "NetzhautJN",
                "SonstigeBehandlungenJN"};
    }
    static std::map<std::string, std::pair<std::string, std::string>> schluessel() {
        return {{"Infektion", {"Infektion", ""}}};
    }
};
struct L244 : L241 {
    using F = qbFormularL244;
    static constexpr const char* nummer = "L244";
    static constexpr const char* name = "Erkl\xE4rung Thrombose";
    static constexpr const char* version = "08.2008";
    static constexpr int seiten = 3;
    static constexpr const char* person = "";
    static constexpr RWspace fest = 244; // 17 more than the fields take
    static std::vector<FeldArt> felder() { return liste(kL244Felder); }
    static std::map<std::string, std::pair<std::string, std::string>> schluessel() {
        std::map<std::string, std::pair<std::string, std::string>> k;
        for (const char* n : {"SonstigeErkrankung1JN", "SonstigeErkrankung4JN", "SonstigeErkrankung5JN",
                              "Koerperteile", "GrunderkrankungJN", "GrunderkrankungBeschreibung",
                              "MedikamenteBeschreibung", "VeroedungBeschreibung", "LymphdrainageBeschreibung",
                              "LipoedemJN", "LungenJN", "SonstigeBeschwerden1JN", "WeitererArztErkrankung"})
            k[n] = {std::string(n) + " ", std::string(n) + " "};
        k["GentestZeitpunkt"] = {"GentestZeitpunkt ", "GentestZeitpunkt"};
        return k;
    }
};
struct L245 : L244 {
    using F = qbFormularL245;
    static constexpr const char* nummer = "L245";
    static constexpr const char* name = "Erkl\xE4rung Schilddr\xFCse";
    static constexpr RWspace fest = 216;
    static std::vector<FeldArt> felder() { return liste(kL245Felder); }
    static std::map<std::string, std::pair<std::string, std::string>> schluessel() {
        return {{"AuftretenErstmalig",
                 {"AuftretenErstmalig AuftretenErstmalig", "AuftretenErstmalig AuftretenErstmalig"}}};
    }
};
struct L283 : L244 {
    using F = qbFormularL283;
    static constexpr const char* nummer = "L283";
    static constexpr const char* name = "Erkl\xE4rung Psychische Erkrankungen";
    static constexpr RWspace fest = 209;
    static std::vector<FeldArt> felder() { return liste(kL283Felder); }
    static std::map<std::string, std::pair<std::string, std::string>> schluessel() {
        return {{"AuftretenErstmalig", {"AuftretenErstmalig", "AuftretenErstmalig AuftretenErstmalig"}}};
    }
    static std::vector<std::string> weitere() { return {"GentestZeitpunkt", "OperationGeplantZeitpunkt"}; }
};

template <class A>
class Erklaerung : public ::testing::Test {
protected:
    using F = typename A::F;
    static const qbFeldTabelle& eigene() { return F::felder(); }
    static void fuelle(F& f, int start = 1) {
        fuelleAlle(f, {&kopfTabelle(), &gesuTabelle(), &eigene()}, start);
    }
    // The XML keys the form writes, in order, and the key each field is read under ("" for none).
    static std::vector<std::string> schreibSchluessel() {
        std::vector<std::string> k;
        for (const std::string& n : namen(A::felder()))
            k.push_back(A::schluessel().count(n) ? A::schluessel().at(n).first : n);
        for (const std::string& n : A::weitere())
            k.push_back(n);
        return k;
    }
    static std::string leseSchluessel(const std::string& n) {
        return A::schluessel().count(n) ? A::schluessel().at(n).second : n;
    }
};
using Erklaerungen = ::testing::Types<L241, L243, L249, L281, L282, L244, L245, L283>;
class ErklaerungsNamen {
public:
    template <class A>
    static std::string GetName(int) {
        return A::nummer;
    }
};
TYPED_TEST_SUITE(Erklaerung, Erklaerungen, ErklaerungsNamen);

} // namespace

TYPED_TEST(Erklaerung, ConstructorSetsTheHeaderConstantsAndTheCommonDauerMinusOne) {
    typename TypeParam::F f;
    EXPECT_EQ(f.RefVersion().std(), TypeParam::version);
    EXPECT_EQ(f.RefDruckstueckNummer().std(), TypeParam::nummer);
    EXPECT_EQ(f.RefDruckstueckName().std(), TypeParam::name);
    EXPECT_EQ(f.RefSeitenanzahl(), TypeParam::seiten);
    EXPECT_EQ(f.RefPersonenKennung().std(), TypeParam::person);
    EXPECT_EQ(f.RefDauer(), -1);
}

TYPED_TEST(Erklaerung, OwnFieldsAreTheListedOnesInTheirOrder) {
    std::vector<std::string> tabelle;
    for (const qbFeld& z : TestFixture::eigene())
        tabelle.push_back(z.name);
    std::vector<std::string> erwartet = namen(TypeParam::felder());
    for (const std::string& n : TypeParam::weitere())
        erwartet.push_back(n);
    EXPECT_EQ(tabelle, erwartet);
}

TYPED_TEST(Erklaerung, NewObjectHasEmptyTextsUnansweredFlagsAndZeroInts) {
    typename TypeParam::F f;
    for (const FeldArt& fa : TypeParam::felder()) {
        const qbFeld& z = zeile(TestFixture::eigene(), fa.name);
        const std::string w = wert(z, f);
        if (fa.art == 'T')
            EXPECT_EQ(w, "Text \"\"") << fa.name;
        else if (fa.art == 'I')
            EXPECT_EQ(w, "Int 0") << fa.name;
        else
            EXPECT_EQ(w, TypeParam::nullFlags().count(fa.name) ? "Flag 0" : "Flag 255") << fa.name;
    }
    erwarteGleicheFelder(qbFormularAllgGesu(), f, {&gesuTabelle()});
}

TYPED_TEST(Erklaerung, DefaultRecordIsHeaderCommonFieldsAndTheOwnFieldsAtTheirDefaults) {
    typename TypeParam::F f;
    const Bytes kopf = cat({text(TypeParam::version), text(TypeParam::nummer), text(TypeParam::name),
                            int32(TypeParam::seiten), text(TypeParam::person)});
    const Bytes gemeinsam =
        cat({text(""), text(""), text(""), int32(-1), text(""), ein(0xff), ein(0xff), text(""), text(""),
             text(""), text(""), text(""), ein(0xff), text(""), ein(0xff), text(""), text("")});
    Bytes eigene;
    for (const FeldArt& fa : TypeParam::felder())
        eigene = cat({eigene, fa.art == 'T'   ? text("")
                              : fa.art == 'I' ? int32(0)
                                              : ein(TypeParam::nullFlags().count(fa.name) ? 0 : 0xff)});
    EXPECT_EQ(hex(gespeichert(f)), hex(cat({kopf, gemeinsam, eigene})));
}

TYPED_TEST(Erklaerung, FilledRecordIsStampedAndHoldsEveryListedFieldInOrder) {
    typename TypeParam::F f;
    TestFixture::fuelle(f);
    f.RefVersion("01.2000");
    const Bytes bytes = gespeichert(f);
    EXPECT_EQ(f.RefVersion().std(), TypeParam::version);
    EXPECT_EQ(hex(bytes),
              hex(cat({kopfUndGemeinsam(f), bytesDerFelder(f, TestFixture::eigene(), TypeParam::felder())})));
}

TYPED_TEST(Erklaerung, FilledFormRoundTripsOnEveryStreamKind) {
    for (Strom art : {Strom::Datei, Strom::Binaer, Strom::Portabel}) {
        typename TypeParam::F f;
        TestFixture::fuelle(f);
        typename TypeParam::F gelesen;
        rundreise(f, gelesen, art);
        erwarteGleicheFelder(f, gelesen, {&kopfTabelle(), &gesuTabelle()}, name(art));
        erwarteGleicheListe(f, gelesen, TestFixture::eigene(), TypeParam::felder(), name(art));
    }
}

TYPED_TEST(Erklaerung, BinaryStoreSizeIsTheCommonFigurePlusItsFixedBytesAndItsTextLengths) {
    typename TypeParam::F f;
    EXPECT_EQ(f.binaryStoreSize(), gemeinsameGroesse(f) + TypeParam::fest);
    TestFixture::fuelle(f);
    RWspace texte = 0;
    for (const FeldArt& fa : TypeParam::felder())
        if (fa.art == 'T') texte += (f.*zeile(TestFixture::eigene(), fa.name).mitglied.text).length();
    EXPECT_EQ(f.binaryStoreSize(), gemeinsameGroesse(f) + TypeParam::fest + texte);
}

TYPED_TEST(Erklaerung, CopyAssignmentAndCopyCarryHeaderCommonAndOwnFields) {
    using F = typename TypeParam::F;
    F quelle;
    TestFixture::fuelle(quelle);
    const F kopie(quelle);
    erwarteGleicheFelder(quelle, kopie, {&kopfTabelle(), &gesuTabelle(), &TestFixture::eigene()}, "copy: ");
    F ziel;
    TestFixture::fuelle(ziel, 500);
    ziel = quelle;
    erwarteGleicheFelder(quelle, ziel, {&kopfTabelle(), &gesuTabelle(), &TestFixture::eigene()}, "assign: ");
    std::unique_ptr<RWCollectable> c(quelle.copy());
    EXPECT_EQ(c->isA(), F::classIsA());
    erwarteGleicheFelder(quelle, static_cast<const qbFormular&>(*c),
                         {&kopfTabelle(), &gesuTabelle(), &TestFixture::eigene()}, "copy(): ");
    std::unique_ptr<RWCollectable> neu(quelle.newSpecies());
    erwarteGleicheFelder(F(), static_cast<const qbFormular&>(*neu),
                         {&kopfTabelle(), &gesuTabelle(), &TestFixture::eigene()}, "newSpecies(): ");
}

TYPED_TEST(Erklaerung, LoescheGivesBackEveryDefaultAndTheClassPersonNotTheFormOne) {
    typename TypeParam::F f;
    TestFixture::fuelle(f);
    f.RefPersonenKennung("VP2");
    f.loesche();
    EXPECT_EQ(f.RefPersonenKennung().std(), TypeParam::person);
    erwarteGleicheFelder(typename TypeParam::F(), f,
                         {&kopfTabelle(), &gesuTabelle(), &TestFixture::eigene()});
}

TYPED_TEST(Erklaerung, XMLgetDatNestsTheHeaderThenListsTheOwnKeysInOrder) {
    typename TypeParam::F f;
    TestFixture::fuelle(f);
    CQBXMLdata knoten("x");
    f.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), std::string("qbFormular") + TypeParam::nummer);
    ASSERT_GE(knoten.entryCount(), 1u);
    const CQBXMLdata& verschachtelt = *knoten.entryAt(0);
    EXPECT_TRUE(verschachtelt.isAdded());
    std::vector<std::string> eigene = eintragsNamen(knoten);
    eigene.erase(eigene.begin());
    EXPECT_EQ(eigene, TestFixture::schreibSchluessel());
    RWCString s;
    if (TypeParam::gemeinsamerKnoten) {
        // the common answers, with the header nested once more
        EXPECT_EQ(verschachtelt.Typ().std(), "qbFormularAllgGesu");
        std::vector<std::string> gesu = eintragsNamen(verschachtelt);
        ASSERT_FALSE(gesu.empty());
        gesu.erase(gesu.begin());
        EXPECT_EQ(gesu, kGesuSchluessel);
        EXPECT_EQ(eintragsNamen(*verschachtelt.entryAt(0)), kKopfSchluessel);
    } else {
        EXPECT_EQ(verschachtelt.Typ().std(), "qbFormular");
        EXPECT_EQ(eintragsNamen(verschachtelt), kKopfSchluessel);
        EXPECT_FALSE(knoten.Listvalue("Krankheit", s));
    }
}

TYPED_TEST(Erklaerung, XMLputDatTakesTheOwnKeysItReadsAndNeitherHeaderNorCommonFields) {
    using F = typename TypeParam::F;
    F quelle;
    TestFixture::fuelle(quelle);
    CQBXMLdata knoten("x");
    quelle.XMLgetDat(knoten);
    knoten.List(CQBXMLdata("Krankheit", "fremd"));
    knoten.List(CQBXMLdata("DruckstueckName", "fremd"));
    F ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(knoten.Typ().std(), std::string("qbFormular") + TypeParam::nummer);
    const F frisch;
    for (const qbFeld& z : TestFixture::eigene()) {
        const std::string lese = TestFixture::leseSchluessel(z.name);
        const bool kommtZurueck = !lese.empty() && lese == (TypeParam::schluessel().count(z.name)
                                                                ? TypeParam::schluessel().at(z.name).first
                                                                : std::string(z.name));
        EXPECT_EQ(wert(z, ziel), wert(z, kommtZurueck ? quelle : frisch)) << z.name;
    }
    erwarteGleicheFelder(frisch, ziel, {&kopfTabelle(), &gesuTabelle()});
}

TYPED_TEST(Erklaerung, XMLputDatIgnoresANodeOfAnotherType) {
    using F = typename TypeParam::F;
    F quelle;
    TestFixture::fuelle(quelle);
    CQBXMLdata knoten("x");
    quelle.XMLgetDat(knoten);
    knoten.Typ("qbFormularL145");
    const CQBXMLdata vorher(knoten);
    F ziel;
    ziel.XMLputDat(knoten);
    EXPECT_TRUE(knoten.sameTree(vorher));
    erwarteGleicheFelder(F(), ziel, {&kopfTabelle(), &gesuTabelle(), &TestFixture::eigene()});
}
