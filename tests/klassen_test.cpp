// The class registry: the identifiers of the stored format, the header constants of each class, the
// order of registration and the factory entries from load until unload.
#include "core/qbFormular.h"
#include "core/qbKlassen.h"
#include "health/qbFormularAllgGesu.h"
#include "health/qbFormularL144.h"
#include "health/qbFormularL145.h"
#include "health/qbFormularL146.h"
#include "health/qbFormularL147.h"
#include "rw/factory.h"
#include "rw/rwerr.h"
#include "rw/rwfile.h"
#include "sport/qbFormularL440.h"

#include "test_util.h"

#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <typeinfo>
#include <vector>

using namespace qbtest;

namespace {

// One row of the class table of the stored format: identifier, class, base and the header a new object
// carries (Windows-1252). Empty texts are fields the constructor leaves empty.
struct Zeile {
    RWClassID id;
    const char* klasse;
    const char* basis;
    const char* nummer;
    const char* name;
    const char* version;
    int seiten;
    const char* person;
};

// In the order of registration, which is not the numeric order.
const Zeile kTabelle[] = {
    {3000, "qbFormular", "RWCollectable", "", "", "", 0, ""},
    {30001, "qbFormularL300", "qbFormular", "L300", "Geldw\xE4schegesetz", "08.2009", 1, "VN"},
    {30045, "qbFormularL300_2", "qbFormular", "L300_2", "Geldw\xE4schegesetz Firma", "08.2009", 1, "VN"},
    {30002, "qbFormularGS004", "qbFormular", "GS004",
     "Finanzielle Risikopr\xFC"
     "fung",
     "10.2002", 4, "VP1"},
    {30003, "qbFormularL145", "qbFormularAllgGesu", "L145", "Erkl\xE4rung Verletzungen", "10.2002", 2, "VP1"},
    {30004, "qbFormularL249", "qbFormularAllgGesu", "L249", "Erkl\xE4rung Allergien", "05.2002", 2, "VP1"},
    {30005, "qbFormularL146", "qbFormularAllgGesu", "L146", "Erkl\xE4rung Wirbels\xE4ulenbeschwerden",
     "05.2002", 2, "VP1"},
    {30038, "qbFormularL139", "qbFormularAllgGesu", "L139", "Erkl\xE4rung Ohren", "08.2009", 3, ""},
    {30043, "qbFormularL137", "qbFormularAllgGesu", "L137", "Erkl\xE4rung Kopfschmerzen", "08.2009", 3, ""},
    {30044, "qbFormularL135", "qbFormularAllgGesu", "L135", "Erkl\xE4rung Hautkrankheit", "08.2009", 3, ""},
    {30006, "qbFormularL241", "qbFormularAllgGesu", "L241", "Erkl\xE4rung Atemwegserkrankungen", "05.2002", 2,
     "VP1"},
    {30007, "qbFormularL142", "qbFormularAllgGesu", "L142",
     "Erkl\xE4rung Magen- und Zw\xF6lffingerdarmerkrankungen", "05.2002", 2, "VP1"},
    {30008, "qbFormularL138", "qbFormularAllgGesu", "L138", "Erkl\xE4rung Herz- und Kreislauferkrankungen",
     "05.2002", 2, "VP1"},
    {30009, "qbFormularL143", "qbFormularAllgGesu", "L143", "Erkl\xE4rung Harnwegs- und Nierenerkrankungen",
     "10.2002", 2, "VP1"},
    {30010, "qbFormularL141", "qbFormularAllgGesu", "L141", "Erkl\xE4rung Gyn\xE4kologische Erkrankungen",
     "05.2002", 2, "VP1"},
    {30011, "qbFormularL134", "qbFormularAllgGesu", "L134", "Erkrankung Diabetes mellitus", "05.2002", 2,
     "VP1"},
    {30012, "qbFormularL243", "qbFormularAllgGesu", "L243", "Erkl\xE4rung Epilepsie", "05.2002", 2, "VP1"},
    {30039, "qbFormularL244", "qbFormularAllgGesu", "L244", "Erkl\xE4rung Thrombose", "08.2008", 3, ""},
    {30040, "qbFormularL245", "qbFormularAllgGesu", "L245", "Erkl\xE4rung Schilddr\xFCse", "08.2008", 3, ""},
    {30041, "qbFormularL283", "qbFormularAllgGesu", "L283", "Erkl\xE4rung Psychische Erkrankungen", "08.2008",
     3, ""},
    {30013, "qbFormularAllgGesu", "qbFormular", "", "", "", 0, ""},
    {30035, "qbFormularL440", "qbFormular", "L440", "Erkl\xE4rung Kampfsport", "08.2005", 1, "VP1"},
    {30046, "qbFormularL441", "qbFormular", "L441", "Erkl\xE4rung Flugsport", "04.2010", 1, "VP1"},
    {30014, "qbFormularL450", "qbFormular", "L450", "Erkl\xE4rung Bergsport", "11.2001", 1, "VP1"},
    {30015, "qbFormularL451", "qbFormular", "L451", "Erkl\xE4rung Tauchsport", "04.2005", 2, "VP1"},
    {30016, "qbFormularL452", "qbFormular", "L452", "Erkl\xE4rung Automobilsport", "11.2001", 1, "VP1"},
    {30017, "qbFormularL453", "qbFormular", "L453", "Erkl\xE4rung Motorradsport", "11.2001", 1, "VP1"},
    {30042, "qbFormularL454", "qbFormular", "L454", "Erkl\xE4rung Sportarten allgemein", "08.2008", 2, "VP1"},
    {30047, "qbFormularX278", "qbFormular", "X278", "Erkl\xE4rung Freizeitreiter", "04.2010", 1, "VP1"},
    {30018, "qbFormularL036", "qbFormular", "L036", "Erkl\xE4rung Auslandsaufenthalt", "11.2001", 1, "VP1"},
    {30019, "qbFormularGR396", "qbFormular", "GR396",
     "\xDC"
     "berweisung VWL durch Arbeitgeber",
     "11.2001", 1, "VN"},
    {30020, "qbFormularVB077A", "qbFormular", "VB077A", "Ausl\xE4ndischer Antragsteller", "11.2001", 1, "VN"},
    {30021, "qbFormularKOLL", "qbFormular", "KOLL", "Gruppentarif-Klausel", "11.2001", 0, "VN"},
    {30028, "qbFormularBAV", "qbFormular", "BAV", "", "04.2008 00", 1, "VP1"},
    {30022, "qbFormularL147", "qbFormularAllgGesu", "L147", "Erkl\xE4rung Blutdruckkontrolle", "05.2002", 1,
     "VN"},
    {30023, "qbFormularL144", "qbFormularAllgGesu", "L144", "Erkl\xE4rung Schwangerschaft", "05.2002", 1,
     "VP1"},
    {30024, "qbFormularBA272", "qbFormular", "BA272", "UFB-UMU-Aufnahmeantrag", "12.2001", 1, "VN"},
    {30025, "qbFormularBA276", "qbFormular", "BA276", "BAF-Aufnahmeantrag", "05.2002", 1, "VN"},
    {30026, "qbFormularL281", "qbFormularAllgGesu", "L281", "Erkl\xE4rung Gelenke", "10.2002", 2, ""},
    {30027, "qbFormularL282", "qbFormularAllgGesu", "L282", "Erkl\xE4rung Augenkrankheiten", "10.2002", 2,
     ""},
    {30029, "qbFormularVB077", "qbFormular", "VB077", "Recherchebericht zum LV-Antrag", "06.2003", 1, "VN"},
    {30030, "qbFormularAenderungsprotokoll", "qbFormular", "Aenderungsprotokoll",
     "\xC4nderungsprotokoll zum LV-Antrag", "08.2003", 1, "VN"},
    {30031, "qbFormularGS004BUZ", "qbFormular", "GS004_001",
     "Finanzielle Risikopr\xFC"
     "fung BU",
     "03.2009", 1, ""},
    {30032, "qbFormularGS004LV", "qbFormular", "GS004_002",
     "Finanzielle Risikopr\xFC"
     "fung LV",
     "10.2003", 1, ""},
    {30033, "qbFormularGS004UZ", "qbFormular", "GS004_003",
     "Finanzielle Risikopr\xFC"
     "fung UZ",
     "10.2003", 1, ""},
    {30034, "qbFormularAU523", "qbFormular", "AU523", "Beiblatt ProAktiv", "07.2007", 1, "VP1"},
    {30036, "qbFormularGN056", "qbFormular", "GN056", "Dauerantrag auf Altersvorsorgezulage", "04.2010", 4,
     "VP1"},
    {30037, "qbFormularL095", "qbFormular", "L095", "T\xE4tigkeitsbeschreibung", "01.2006", 1, "VP1"},
};

const Zeile* zeileZu(const std::string& klasse) {
    for (const Zeile& z : kTabelle)
        if (klasse == z.klasse) return &z;
    return nullptr;
}

std::string b(const RWCString& s) { return s.std(); }

// The header of an object against the row of the table.
void erwarteKopf(const qbFormular& f, const Zeile& z) {
    EXPECT_EQ(b(f.RefDruckstueckNummer()), z.nummer);
    EXPECT_EQ(b(f.RefDruckstueckName()), z.name);
    EXPECT_EQ(b(f.RefVersion()), z.version);
    EXPECT_EQ(f.RefSeitenanzahl(), z.seiten);
    EXPECT_EQ(b(f.RefPersonenKennung()), z.person);
}

// The classes built so far, with their static identity.
struct Gebaut {
    const char* klasse;
    unsigned short (*classIsA)();
    unsigned short* myAtom;
    RWCollectable* (*neu)();
};

template <class K>
Gebaut gebaut() {
    return {K::klassenName(), &K::classIsA, &K::myAtom, [] { return static_cast<RWCollectable*>(new K); }};
}

std::vector<Gebaut> gebauteKlassen() {
    return {gebaut<qbFormular>(),         gebaut<qbFormularL145>(), gebaut<qbFormularL146>(),
            gebaut<qbFormularAllgGesu>(), gebaut<qbFormularL440>(), gebaut<qbFormularL147>(),
            gebaut<qbFormularL144>()};
}

} // namespace

TEST(Klassenregister, TableOfTheStoredFormatHas48RowsWithIds3000And30001To30047) {
    std::set<RWClassID> ids;
    for (const Zeile& z : kTabelle)
        ids.insert(z.id);
    ASSERT_EQ(ids.size(), 48u);
    EXPECT_EQ(*ids.begin(), 3000);
    RWClassID erwartet = 30001;
    for (auto it = std::next(ids.begin()); it != ids.end(); ++it)
        EXPECT_EQ(*it, erwartet++);
}

TEST(Klassenregister, EveryRowIdIsInTheAllowedSet) {
    for (const qbKlasse& k : qbKlassen)
        EXPECT_TRUE(k.id == 3000 || (k.id >= 30001 && k.id <= 30047)) << k.klassenName << " " << k.id;
}

TEST(Klassenregister, IdsOfBuiltRowsMatchTheTable) {
    for (const qbKlasse& k : qbKlassen) {
        const Zeile* z = zeileZu(k.klassenName);
        ASSERT_NE(z, nullptr) << k.klassenName << " is no class of the stored format";
        EXPECT_EQ(k.id, z->id) << k.klassenName;
        EXPECT_STREQ(k.basisName, z->basis) << k.klassenName;
    }
}

TEST(Klassenregister, BuiltRowsCarryTheHeaderConstantsOfTheTable) {
    for (const qbKlasse& k : qbKlassen) {
        SCOPED_TRACE(k.klassenName);
        const Zeile* z = zeileZu(k.klassenName);
        ASSERT_NE(z, nullptr);
        EXPECT_EQ(std::string(k.nummer), z->nummer);
        EXPECT_EQ(std::string(k.name), z->name);
        EXPECT_EQ(std::string(k.version), z->version);
        EXPECT_EQ(k.seiten, z->seiten);
        EXPECT_EQ(std::string(k.person), z->person);
    }
}

TEST(Klassenregister, EveryBuiltClassIsInTheClassTable) {
    for (const Gebaut& g : gebauteKlassen())
        EXPECT_NE(qbKlasseZuName(g.klasse), nullptr) << g.klasse;
}

TEST(Klassenregister, RegistrationFollowsTheTableOrderNotTheNumericOrder) {
    // the built rows in the order of the stored format's table
    std::vector<std::string> erwartet;
    for (const Zeile& z : kTabelle)
        if (qbKlasseZuName(z.klasse)) erwartet.push_back(z.klasse);
    std::vector<std::string> registriert;
    for (const qbKlasse& k : qbKlassen)
        registriert.push_back(k.klassenName);
    EXPECT_EQ(registriert, erwartet);
    // L440 (30035) comes before L147 (30022) and L144 (30023)
    size_t l440 = 0, l147 = 0;
    for (size_t i = 0; i < registriert.size(); ++i) {
        if (registriert[i] == "qbFormularL440") l440 = i;
        if (registriert[i] == "qbFormularL147") l147 = i;
    }
    EXPECT_LT(l440, l147);
}

TEST(Klassenregister, L300_2IsNotTheNumberNextToL300) {
    // The row is not built yet; the table itself fixes its identifier.
    const Zeile* l300 = zeileZu("qbFormularL300");
    const Zeile* l300_2 = zeileZu("qbFormularL300_2");
    ASSERT_NE(l300, nullptr);
    ASSERT_NE(l300_2, nullptr);
    EXPECT_EQ(l300->id, 30001);
    EXPECT_EQ(l300_2->id, 30045);
    EXPECT_EQ(l300_2 - l300, 1); // registered right after L300
    if (const qbKlasse* k = qbKlasseZuName("qbFormularL300_2")) {
        EXPECT_EQ(k->id, 30045);
    }
}

TEST(Klassenregister, IsAClassIsAAndMyAtomAgreeWithTheTableForEveryBuiltClass) {
    for (const Gebaut& g : gebauteKlassen()) {
        SCOPED_TRACE(g.klasse);
        const Zeile* z = zeileZu(g.klasse);
        ASSERT_NE(z, nullptr);
        std::unique_ptr<RWCollectable> objekt(g.neu());
        EXPECT_EQ(objekt->isA(), z->id);
        EXPECT_EQ(g.classIsA(), z->id);
        EXPECT_EQ(*g.myAtom, z->id);
    }
}

TEST(Klassenregister, IdentityOfEachBuiltClassByName) {
    EXPECT_EQ(qbFormular::classIsA(), 3000);
    EXPECT_EQ(qbFormularL145::classIsA(), 30003);
    EXPECT_EQ(qbFormularL146::classIsA(), 30005);
    EXPECT_EQ(qbFormularAllgGesu::classIsA(), 30013);
    EXPECT_EQ(qbFormularL440::classIsA(), 30035);
    EXPECT_EQ(qbFormularL147::classIsA(), 30022);
    EXPECT_EQ(qbFormularL144::classIsA(), 30023);
    EXPECT_EQ(qbFormularL145::myAtom, 30003);
    EXPECT_EQ(qbFormularL440().isA(), 30035);
}

TEST(Klassenregister, DefaultConstructorSetsTheHeaderOfTheTableForEveryBuiltClass) {
    for (const Gebaut& g : gebauteKlassen()) {
        SCOPED_TRACE(g.klasse);
        std::unique_ptr<RWCollectable> objekt(g.neu());
        erwarteKopf(static_cast<const qbFormular&>(*objekt), *zeileZu(g.klasse));
    }
}

TEST(Klassenregister, HeaderConstantsOfTheBuiltForms) {
    qbFormularL145 l145;
    EXPECT_EQ(b(l145.RefDruckstueckName()), "Erkl\xE4rung Verletzungen");
    EXPECT_EQ(l145.RefVersion(), "10.2002");
    EXPECT_EQ(l145.RefSeitenanzahl(), 2);
    qbFormularL146 l146;
    EXPECT_EQ(b(l146.RefDruckstueckName()), "Erkl\xE4rung Wirbels\xE4ulenbeschwerden");
    EXPECT_EQ(l146.RefVersion(), "05.2002");
    qbFormularL147 l147;
    EXPECT_EQ(l147.RefPersonenKennung(), "VN");
    EXPECT_EQ(l147.RefSeitenanzahl(), 1);
    qbFormularL144 l144;
    EXPECT_EQ(b(l144.RefDruckstueckName()), "Erkl\xE4rung Schwangerschaft");
    qbFormularL440 l440;
    EXPECT_EQ(b(l440.RefDruckstueckName()), "Erkl\xE4rung Kampfsport");
    EXPECT_EQ(l440.RefVersion(), "08.2005");
}

TEST(Klassenregister, ClassWithEmptyPersonInTheTableHasEmptyPersonAfterConstruction) {
    // The forms of that kind (L135, L137, ...) are not built yet; the two base classes have the empty row.
    EXPECT_EQ(qbFormular().RefPersonenKennung(), "");
    EXPECT_EQ(qbFormularAllgGesu().RefPersonenKennung(), "");
    for (const qbKlasse& k : qbKlassen) {
        if (*k.person) continue;
        SCOPED_TRACE(k.klassenName);
        std::unique_ptr<qbFormular> f(static_cast<qbFormular*>(k.erzeuge()));
        EXPECT_EQ(f->RefPersonenKennung(), "");
    }
}

TEST(Klassenregister, HealthBaseSetsNoHeaderConstants) {
    qbFormularAllgGesu f;
    erwarteKopf(f, *zeileZu("qbFormularAllgGesu"));
}

TEST(Klassenregister, FactoryCreatesEachBuiltIdWithTheHeaderOfItsRow) {
    for (const Gebaut& g : gebauteKlassen()) {
        SCOPED_TRACE(g.klasse);
        const Zeile& z = *zeileZu(g.klasse);
        std::unique_ptr<RWCollectable> objekt(getRWFactory()->create(z.id));
        ASSERT_NE(objekt, nullptr);
        EXPECT_EQ(objekt->isA(), z.id);
        erwarteKopf(static_cast<const qbFormular&>(*objekt), z);
    }
}

TEST(Klassenregister, FactoryCreatesEachBuiltClassByItsStringId) {
    for (const Gebaut& g : gebauteKlassen()) {
        SCOPED_TRACE(g.klasse);
        const Zeile& z = *zeileZu(g.klasse);
        std::unique_ptr<RWCollectable> objekt(getRWFactory()->create(RWStringID(g.klasse)));
        ASSERT_NE(objekt, nullptr);
        EXPECT_EQ(objekt->isA(), z.id);
        EXPECT_EQ(getRWFactory()->classID(RWStringID(g.klasse)), z.id);
        EXPECT_EQ(getRWFactory()->getFunction(z.id), getRWFactory()->getFunction(RWStringID(g.klasse)));
    }
}

TEST(Klassenregister, FactoryObjectEqualsANewSpecies) {
    for (const Gebaut& g : gebauteKlassen()) {
        SCOPED_TRACE(g.klasse);
        std::unique_ptr<RWCollectable> vorlage(g.neu());
        std::unique_ptr<RWCollectable> art(vorlage->newSpecies());
        std::unique_ptr<RWCollectable> fabrik(getRWFactory()->create(vorlage->isA()));
        ASSERT_NE(fabrik, nullptr);
        const RWCollectable& ausFabrik = *fabrik;
        const RWCollectable& ausArt = *art;
        EXPECT_EQ(typeid(ausFabrik), typeid(ausArt));
    }
}

TEST(Klassenregister, IdsNotBuiltYetAreNotInTheFactory) {
    for (const Zeile& z : kTabelle) {
        if (qbKlasseZuName(z.klasse)) continue;
        EXPECT_EQ(getRWFactory()->getFunction(z.id), nullptr) << z.klasse;
    }
}

TEST(Klassenregister, AfterTearDownNoIdentifierOfTheTableRemainsInTheFactory) {
    qbKlassenAbmelden();
    for (const Zeile& z : kTabelle) {
        EXPECT_EQ(getRWFactory()->getFunction(z.id), nullptr) << z.klasse;
        EXPECT_EQ(getRWFactory()->getFunction(RWStringID(z.klasse)), nullptr) << z.klasse;
    }
    // a restore can no longer create a form
    TempFile tmp("abgemeldet");
    {
        RWFile f(tmp.path(), "wb");
        qbFormularL440().recursiveSaveOn(f);
    }
    {
        RWFile f(tmp.path(), "rb");
        EXPECT_THROW(RWCollectable::recursiveRestoreFrom(f), RWInternalErr);
    }
    qbKlassenAnmelden(); // back as at load, for the tests that follow in this process
    for (const qbKlasse& k : qbKlassen)
        EXPECT_NE(getRWFactory()->getFunction(k.id), nullptr) << k.klassenName;
}

TEST(Klassenregister, FactoryRestoresAStoredFormByItsIdentifier) {
    qbFormularL440 quelle;
    quelle.RefPersonenKennung("VP2");
    TempFile tmp("fabrik");
    {
        RWFile f(tmp.path(), "wb");
        quelle.recursiveSaveOn(f);
    }
    const Bytes bytes = readBytes(tmp.path());
    ASSERT_GE(bytes.size(), 6u);
    EXPECT_EQ(hex(Bytes(bytes.begin() + 4, bytes.begin() + 6)), "53 75"); // the magic, then 30035
    RWFile f(tmp.path(), "rb");
    std::unique_ptr<RWCollectable> gelesen(RWCollectable::recursiveRestoreFrom(f));
    ASSERT_NE(gelesen, nullptr);
    EXPECT_EQ(gelesen->isA(), 30035);
    EXPECT_EQ(static_cast<qbFormular&>(*gelesen).RefPersonenKennung(), "VP2");
}
