// The form list: its catalogue, the search by print piece and person, replacing and repeatable pieces,
// its stream operators on RWFile and both kinds of virtual stream, and its XML.
#include "core/qbFormularListe.h"
#include "core/qbKlassen.h"
#include "health/qbFormularAllgGesu.h"
#include "health/qbFormularL144.h"
#include "health/qbFormularL145.h"
#include "health/qbFormularL146.h"
#include "health/qbFormularL147.h"
#include "qballg/CQBXMLdata.h"
#include "rw/bstream.h"
#include "rw/dlistcol.h"
#include "rw/pstream.h"
#include "rw/rwerr.h"
#include "rw/rwfile.h"
#include "rw/rwstore.h"
#include "rw/tphasht.h"
#include "sport/qbFormularL440.h"

#include "legacy_fixture.h"
#include "test_util.h"

#include <cstring>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

using namespace qbtest;

namespace {

// ---- Forms

qbFormularL145 l145(const char* person, const char* krankheit = "", const char* antwort = "") {
    qbFormularL145 f;
    f.RefPersonenKennung(person);
    f.RefKrankheit(krankheit);
    f.RefAntwortZuFrage(antwort);
    f.RefVerletzung(RWCString("Verletzung ") + krankheit);
    return f;
}

qbFormularL440 l440(const char* person, const char* sportarten = "Judo") {
    qbFormularL440 f;
    f.RefPersonenKennung(person);
    f.RefKampfsportarten(sportarten);
    f.RefverletztJN(1);
    return f;
}

// neuesFormular takes the caller's form by non-const reference.
template <class F>
void dazu(qbFormularListe& liste, F form) {
    liste.neuesFormular(form);
}

// A caller's injury declaration that counts the resets the list asks of it.
class ZaehlendeL145 : public qbFormularL145 {
public:
    void loesche() override {
        ++loeschAufrufe;
        qbFormularL145::loesche();
    }
    int loeschAufrufe = 0;
};

// The bytes of a form's record on RWFile, for a copy so that the form is not stamped.
Bytes satz(const qbFormular& form) {
    std::unique_ptr<RWCollectable> kopie(form.copy());
    TempFile tmp("satz");
    {
        RWFile f(tmp.path(), "wb");
        kopie->saveGuts(f);
    }
    return readBytes(tmp.path());
}

std::vector<std::string> personen(const qbFormularListe& liste) {
    std::vector<std::string> out;
    for (unsigned i = 0; i < liste.AnzahlFormulare(); ++i)
        out.push_back((liste.liefereFormularAnPos(static_cast<int>(i))->RefDruckstueckNummer() + ":" +
                       liste.liefereFormularAnPos(static_cast<int>(i))->RefPersonenKennung())
                          .std());
    return out;
}

// ---- Streams

// Writes through fn on a stream of the given kind and gives the bytes.
template <class Fn>
std::string schreibe(Strom art, Fn fn) {
    if (art == Strom::Datei) {
        TempFile tmp("liste");
        {
            RWFile f(tmp.path(), "wb");
            fn(f);
        }
        const Bytes b = readBytes(tmp.path());
        return std::string(b.begin(), b.end());
    }
    std::ostringstream out;
    if (art == Strom::Binaer) {
        RWbostream s(out);
        fn(s);
    } else {
        RWpostream s(out);
        fn(s);
    }
    return out.str();
}

// Reads through fn from a stream of the given kind that holds the bytes.
template <class Fn>
void lies(Strom art, const std::string& daten, Fn fn) {
    if (art == Strom::Datei) {
        TempFile tmp("liste");
        writeBytes(tmp.path(), Bytes(daten.begin(), daten.end()));
        RWFile f(tmp.path(), "rb");
        fn(f);
        return;
    }
    std::istringstream in(daten);
    if (art == Strom::Binaer) {
        RWbistream s(in);
        fn(s);
    } else {
        RWpistream s(in);
        fn(s);
    }
}

std::string gespeichert(Strom art, const qbFormularListe& liste) {
    return schreibe(art, [&](auto& s) { s << liste; });
}

// A marker and what follows it, written as the stream kind writes a char and an int.
std::string markeUndZahl(Strom art, char marke, int zahl) {
    return schreibe(art, [&](auto& s) {
        if constexpr (std::is_same_v<std::decay_t<decltype(s)>, RWFile>) {
            s.Write(marke);
            s.Write(zahl);
        } else {
            s << marke << zahl;
        }
    });
}

std::string nurMarke(Strom art, char marke) {
    return schreibe(art, [&](auto& s) {
        if constexpr (std::is_same_v<std::decay_t<decltype(s)>, RWFile>)
            s.Write(marke);
        else
            s << marke;
    });
}

bool istVerweisFehler(const RWInternalErr& e) { return std::strstr(e.why(), "[REF]") != nullptr; }

std::string strom(const ::testing::TestParamInfo<Strom>& info) { return name(info.param); }

class ListenStrom : public ::testing::TestWithParam<Strom> {};

// ---- The catalogue as the application knows it (Windows-1252)

struct KatalogZeile {
    const char* nummer;
    const char* name;
    const char* seiten;
};

const KatalogZeile kKatalog[] = {
    {"Aenderungsprotokoll", "\xC4nderungsprotokoll zum LV-Antrag", "1"},
    {"AU523", "Beiblatt ProAktiv", "1"},
    {"BA272", "UFB-UMU-Aufnahmeantrag", "1"},
    {"BA276", "BAF-Aufnahmeantrag", "1"},
    {"BAV", "", "1"},
    {"GN056", "Dauerantrag auf Altersvorsorgezulage", "4"},
    {"GR396",
     "\xDC"
     "berweisung VWL durch Arbeitgeber",
     "1"},
    {"GS004_001",
     "Finanzielle Risikopr\xFC"
     "fung BU",
     "1"},
    {"GS004_002",
     "Finanzielle Risikopr\xFC"
     "fung LV",
     "1"},
    {"GS004_003",
     "Finanzielle Risikopr\xFC"
     "fung UZ",
     "1"},
    {"KOLL", "Gruppentarif-Klausel", "0"},
    {"L036", "Erkl\xE4rung Auslandsaufenthalt", "1"},
    {"L095", "T\xE4tigkeitsbeschreibung", "1"},
    {"L134", "Erkrankung Diabetes mellitus", "2"},
    {"L135", "Erkl\xE4rung Hautkrankheit", "3"},
    {"L137", "Erkl\xE4rung Kopfschmerzen", "3"},
    {"L138", "Erkl\xE4rung Herz- und Kreislauferkrankungen", "2"},
    {"L139", "Erkl\xE4rung Ohrenerkrankungen", "2"},
    {"L141", "Erkl\xE4rung Gyn\xE4kologische Erkrankungen", "2"},
    {"L142", "Erkl\xE4rung Magen- und Zw\xF6lffingerdarmerkrankungen", "2"},
    {"L143", "Erkl\xE4rung Harnwegs- und Nierenerkrankungen", "2"},
    {"L144", "Erkl\xE4rung Schwangerschaft", "1"},
    {"L145", "Erkl\xE4rung Verletzungen", "2"},
    {"L146", "Erkl\xE4rung Wirbels\xE4ulenbeschwerden", "2"},
    {"L147", "Erkl\xE4rung Blutdruckkontrolle", "1"},
    {"L241", "Erkl\xE4rung Atemwegserkrankungen", "2"},
    {"L243", "Erkl\xE4rung Epilepsie", "2"},
    {"L244", "Erkl\xE4rung Thrombosen/Venenerkrankungen", "3"},
    {"L245", "Erkl\xE4rung Schilddr\xFCsenerkrankungen", "3"},
    {"L249", "Erkl\xE4rung Allergien", "2"},
    {"L281", "Erkl\xE4rung Gelenke", "2"},
    {"L282", "Erkl\xE4rung Augenkrankheiten", "2"},
    {"L283", "Erkl\xE4rung Psychische Krankheiten", "2"},
    {"L300", "Geldw\xE4schegesetz", "1"},
    {"L300_2", "Geldw\xE4schegesetz Firma", "1"},
    {"L440", "Erkl\xE4rung Kampfsport", "1"},
    {"L441", "Erkl\xE4rung Flugsport", "1"},
    {"L450", "Erkl\xE4rung Bergsport", "1"},
    {"L451", "Erkl\xE4rung Tauchsport", "2"},
    {"L452", "Erkl\xE4rung Automobilsport", "1"},
    {"L453", "Erkl\xE4rung Motorradsport", "1"},
    {"L454", "Erkl\xE4rung Sportarten allgemein", "2"},
    {"VB077", "Recherchebericht zum LV-Antrag", "1"},
    {"VB077A", "Ausl\xE4ndischer Antragsteller", "1"},
    {"X278", "Erkl\xE4rung Freizeitreiter", "1"},
};

} // namespace

// ==== Construction and catalogue

TEST(FormularListe, DefaultListHasVersion051999NoFormsAndTheCatalogue) {
    qbFormularListe liste;
    EXPECT_EQ(liste.RefVersion(), "05.1999");
    EXPECT_EQ(liste.AnzahlFormulare(), 0u);
    EXPECT_EQ(liste.RefDruckstueckeInfo().entries(), 45u);
}

TEST(FormularListe, RefVersionSetsAndGets) {
    qbFormularListe liste;
    liste.RefVersion("07.2001");
    EXPECT_EQ(liste.RefVersion(), "07.2001");
}

TEST(FormularListe, CatalogueHas45RowsInOrderWithWindows1252Names) {
    qbFormularListe liste;
    const RWTValSlist<qbFormularInfo> katalog = liste.RefDruckstueckeInfo();
    ASSERT_EQ(katalog.entries(), 45u);
    for (size_t i = 0; i < 45; ++i) {
        SCOPED_TRACE(kKatalog[i].nummer);
        EXPECT_EQ(katalog.at(i).Nummer.std(), kKatalog[i].nummer);
        EXPECT_EQ(hex(bytesOf(katalog.at(i).Name.std())), hex(bytesOf(kKatalog[i].name)));
        EXPECT_EQ(katalog.at(i).Seiten.std(), kKatalog[i].seiten);
    }
}

TEST(FormularListe, AlleDruckstueckNrHas45EntriesFromAenderungsprotokollWithoutGS004) {
    qbFormularListe liste;
    const RWTValSlist<RWCString> nummern = liste.RefAlleDruckstueckNr();
    ASSERT_EQ(nummern.entries(), 45u);
    EXPECT_EQ(nummern.first(), "Aenderungsprotokoll");
    EXPECT_EQ(nummern.last(), "X278");
    EXPECT_FALSE(nummern.contains(RWCString("GS004")));
    for (size_t i = 0; i < 45; ++i)
        EXPECT_EQ(nummern.at(i).std(), kKatalog[i].nummer);
}

TEST(FormularListe, CatalogueDriftsFromTheFormObjects_Quirk) {
    qbFormularListe liste;
    const RWTValSlist<qbFormularInfo> katalog = liste.RefDruckstueckeInfo();
    auto zeile = [&](const char* nummer) {
        for (const qbFormularInfo& i : katalog)
            if (i.Nummer == nummer) return i;
        return qbFormularInfo();
    };
    // the L139 object itself carries "Erkl\xE4rung Ohren" and 3 pages
    EXPECT_EQ(zeile("L139").Name.std(), "Erkl\xE4rung Ohrenerkrankungen");
    EXPECT_EQ(zeile("L139").Seiten, "2");
    EXPECT_EQ(zeile("L283").Seiten, "2");
    EXPECT_EQ(zeile("KOLL").Seiten, "0");
    EXPECT_EQ(zeile("BAV").Name, "");
    // the built forms agree with their rows
    EXPECT_EQ(zeile("L145").Name, qbFormularL145().RefDruckstueckName());
    EXPECT_EQ(zeile("L440").Name, qbFormularL440().RefDruckstueckName());
}

TEST(FormularListe, RefDruckstueckeInfoIsACopy) {
    qbFormularListe liste;
    RWTValSlist<qbFormularInfo> katalog = liste.RefDruckstueckeInfo();
    katalog.clear();
    EXPECT_EQ(liste.RefDruckstueckeInfo().entries(), 45u);
}

TEST(FormularInfo, DefaultHasThreeEmptyTexts) {
    qbFormularInfo info;
    EXPECT_EQ(info.Nummer, "");
    EXPECT_EQ(info.Name, "");
    EXPECT_EQ(info.Seiten, "");
}

TEST(FormularInfo, ConstructorTakesNummerNameSeitenInOrder) {
    qbFormularInfo info("L145", "Erkl\xE4rung Verletzungen", "2");
    EXPECT_EQ(info.Nummer, "L145");
    EXPECT_EQ(info.Name.std(), "Erkl\xE4rung Verletzungen");
    EXPECT_EQ(info.Seiten, "2");
}

TEST(FormularInfo, CopyAndAssignmentCarryAllThreeFields) {
    const qbFormularInfo quelle("L440", "Kampfsport", "1");
    qbFormularInfo kopie(quelle);
    EXPECT_EQ(kopie.Nummer, "L440");
    EXPECT_EQ(kopie.Name, "Kampfsport");
    EXPECT_EQ(kopie.Seiten, "1");
    qbFormularInfo ziel;
    ziel = quelle;
    EXPECT_EQ(ziel.Nummer, "L440");
    EXPECT_EQ(ziel.Name, "Kampfsport");
    EXPECT_EQ(ziel.Seiten, "1");
}

TEST(FormularListe, CopiedListHasVersionAndFormsButAnEmptyCatalogue_Quirk) {
    qbFormularListe quelle;
    quelle.RefVersion("07.2001");
    dazu(quelle, l145("VP1", "A"));
    dazu(quelle, l440("VP2"));
    qbFormularListe kopie(quelle);
    EXPECT_EQ(kopie.RefVersion(), "07.2001");
    EXPECT_EQ(personen(kopie), personen(quelle));
    EXPECT_EQ(kopie.RefAlleDruckstueckNr().entries(), 0u);
    EXPECT_EQ(kopie.RefDruckstueckeInfo().entries(), 0u);
    // the copy owns copies
    EXPECT_NE(kopie.liefereFormularAnPos(0), quelle.liefereFormularAnPos(0));
    EXPECT_EQ(satz(*kopie.liefereFormularAnPos(0)), satz(*quelle.liefereFormularAnPos(0)));
}

TEST(FormularListe, AssignmentKeepsRepeatableFormsAndReplacesReplacingOnes_Quirk) {
    qbFormularListe quelle;
    quelle.RefVersion("07.2001");
    dazu(quelle, l145("VP1", "neu"));
    dazu(quelle, l440("VP1", "Karate"));
    qbFormularListe ziel;
    dazu(ziel, l145("VP1", "alt"));
    dazu(ziel, l440("VP1", "Judo"));
    ziel = quelle;
    EXPECT_EQ(ziel.RefVersion(), "07.2001");
    EXPECT_EQ(personen(ziel), (std::vector<std::string>{"L145:VP1", "L145:VP1", "L440:VP1"}));
    EXPECT_EQ(static_cast<qbFormularL145*>(ziel.liefereFormularAnPos(0))->RefKrankheit(), "alt");
    EXPECT_EQ(static_cast<qbFormularL145*>(ziel.liefereFormularAnPos(1))->RefKrankheit(), "neu");
    EXPECT_EQ(static_cast<qbFormularL440*>(ziel.liefereFormularAnPos(2))->RefKampfsportarten(), "Karate");
    EXPECT_EQ(ziel.RefDruckstueckeInfo().entries(), 45u); // the target's catalogue stays
}

TEST(FormularListe, AssignmentToACopiedListLeavesItsEmptyCatalogue_Quirk) {
    qbFormularListe quelle;
    qbFormularListe ziel{qbFormularListe(quelle)};
    ziel = quelle;
    EXPECT_EQ(ziel.RefDruckstueckeInfo().entries(), 0u);
}

// ==== Person index

TEST(FormularListe, PersonIndexZeroIsVP1OneIsVP2EveryOtherVN) {
    EXPECT_EQ(qbPersonenKennung(0), "VP1");
    EXPECT_EQ(qbPersonenKennung(1), "VP2");
    EXPECT_EQ(qbPersonenKennung(2), "VN");
    EXPECT_EQ(qbPersonenKennung(5), "VN");
    EXPECT_EQ(qbPersonenKennung(-1), "VN");
}

TEST(FormularListe, Person5AndMinus1MeanVN) {
    qbFormularListe liste;
    dazu(liste, l440("VN", "Boxen"));
    EXPECT_TRUE(liste.FormularVorhanden("L440", 5));
    EXPECT_TRUE(liste.FormularVorhanden("L440", -1));
    EXPECT_FALSE(liste.FormularVorhanden("L440", 0));
    EXPECT_FALSE(liste.FormularVorhanden("L440", 1));
    qbFormularL440 f;
    EXPECT_EQ(liste.liefereFormular("L440", f, 5), 1u);
    EXPECT_EQ(f.RefKampfsportarten(), "Boxen");
    EXPECT_EQ(liste.loescheFormular("L440", -1), 1u);
    EXPECT_EQ(liste.AnzahlFormulare(), 0u);
}

TEST(FormularListe, HealthFormOfVNIsFoundWithPerson5) {
    qbFormularListe liste;
    dazu(liste, qbFormularL147()); // VN by default
    EXPECT_TRUE(liste.FormularVorhanden("L147", 5));
    EXPECT_FALSE(liste.FormularVorhanden("L147", 0));
}

// ==== liefereFormular

TEST(FormularListe, LiefereFormularOnEmptyListCallsLoescheAndReturns0) {
    qbFormularListe liste;
    ZaehlendeL145 f;
    f.RefPersonenKennung("VP2");
    f.RefVerletzung("Bruch");
    f.RefVersion("04.2002");
    EXPECT_EQ(liste.liefereFormular("L145", f, 0), 0u);
    EXPECT_EQ(f.loeschAufrufe, 1);
    EXPECT_EQ(f.RefPersonenKennung(), "VP1");
    EXPECT_EQ(f.RefVersion(), "10.2002");
    EXPECT_EQ(f.RefVerletzung(), "");
}

TEST(FormularListe, LiefereFormularNotFoundForThatPersonCallsLoesche) {
    qbFormularListe liste;
    dazu(liste, l145("VP1", "A"));
    ZaehlendeL145 f;
    f.RefVerletzung("Bruch");
    EXPECT_EQ(liste.liefereFormular("L145", f, 1), 0u);
    EXPECT_EQ(f.loeschAufrufe, 1);
    EXPECT_EQ(f.RefVerletzung(), "");
}

TEST(FormularListe, LiefereFormularOfAnUnknownNumberLeavesTheFormUnchanged) {
    qbFormularListe liste;
    dazu(liste, l145("VP1", "A"));
    for (const char* nummer : {"XY", "", "l145", "L145 ", "GS004_004"}) {
        SCOPED_TRACE(nummer);
        ZaehlendeL145 f;
        f.RefPersonenKennung("VP2");
        f.RefVerletzung("Bruch");
        EXPECT_EQ(liste.liefereFormular(nummer, f, 0), 0u);
        EXPECT_EQ(f.loeschAufrufe, 0);
        EXPECT_EQ(f.RefPersonenKennung(), "VP2");
        EXPECT_EQ(f.RefVerletzung(), "Bruch");
    }
}

TEST(FormularListe, LiefereFormularCopiesTheStoredFormIntoTheCallersObject) {
    qbFormularListe liste;
    qbFormularL440 gespeichert = l440("VP2", "Karate");
    liste.neuesFormular(gespeichert);
    qbFormularL440 f;
    EXPECT_EQ(liste.liefereFormular("L440", f, 1), 1u);
    EXPECT_EQ(satz(f), satz(gespeichert));
    f.RefKampfsportarten("anders");
    EXPECT_EQ(static_cast<qbFormularL440*>(liste.liefereFormularAnPos(0))->RefKampfsportarten(), "Karate");
}

TEST(FormularListe, LiefereFormularOverloadsWithExtrasFindAPlainForm) {
    qbFormularListe liste;
    dazu(liste, l440("VP1", "Karate"));
    qbFormularL440 a, b;
    EXPECT_EQ(liste.liefereFormular("L440", a, 0, "egal"), 1u);
    EXPECT_EQ(a.RefKampfsportarten(), "Karate");
    EXPECT_EQ(liste.liefereFormular("L440", b, 0, "egal", "auch"), 1u);
    EXPECT_EQ(b.RefKampfsportarten(), "Karate");
}

TEST(FormularListe, OverloadsWithAnIntAfterTheFirstExtraDoNothing_Quirk) {
    qbFormularListe liste;
    dazu(liste, l440("VP1", "Karate"));
    ZaehlendeL145 unbeteiligt;
    qbFormularL440 f;
    f.RefKampfsportarten("vorher");
    EXPECT_EQ(liste.liefereFormular("L440", f, 0, "x", 1), 0u);
    EXPECT_EQ(f.RefKampfsportarten(), "vorher");
    EXPECT_EQ(liste.liefereFormular("L145", unbeteiligt, 0, "x", 1), 0u);
    EXPECT_EQ(unbeteiligt.loeschAufrufe, 0);
    EXPECT_FALSE(liste.FormularVorhanden("L440", 0, "x", 1));
    EXPECT_EQ(liste.loescheFormular("L440", 0, "x", 1), 0u);
    EXPECT_EQ(liste.AnzahlFormulare(), 1u);
}

TEST(FormularListe, AliasBA441IsUnknownToFormularVorhandenAndLoescheFormular) {
    // The alias stands for the pension form in liefereFormular alone; the pension form is not built yet.
    qbFormularListe liste;
    dazu(liste, l440("VP1"));
    EXPECT_FALSE(liste.FormularVorhanden("BA441", 0));
    EXPECT_EQ(liste.loescheFormular("BA441", 0), 0u);
    EXPECT_EQ(liste.AnzahlFormulare(), 1u);
}

// ==== Health pieces and the extras

TEST(FormularListe, HealthSearchNarrowsByKrankheitAndAntwortZuFrage) {
    qbFormularListe liste;
    dazu(liste, l145("VP1", "A", "x"));
    dazu(liste, l145("VP1", "B", "y"));
    qbFormularL145 f;
    EXPECT_EQ(liste.liefereFormular("L145", f, 0, "B"), 1u);
    EXPECT_EQ(f.RefKrankheit(), "B");
    EXPECT_EQ(liste.liefereFormular("L145", f, 0, "A", "x"), 1u);
    EXPECT_EQ(f.RefKrankheit(), "A");
    EXPECT_EQ(liste.liefereFormular("L145", f, 0, "", "y"), 1u);
    EXPECT_EQ(f.RefKrankheit(), "B");
    EXPECT_EQ(liste.liefereFormular("L145", f, 0, "A", "y"), 0u);
    EXPECT_EQ(f.RefKrankheit(), ""); // reset by loesche
    EXPECT_TRUE(liste.FormularVorhanden("L145", 0, "B", "y"));
    EXPECT_FALSE(liste.FormularVorhanden("L145", 0, "C"));
    EXPECT_FALSE(liste.FormularVorhanden("L145", 1, "A"));
    EXPECT_EQ(liste.loescheFormular("L145", 0, "B"), 1u);
    ASSERT_EQ(liste.AnzahlFormulare(), 1u);
    EXPECT_EQ(static_cast<qbFormularL145*>(liste.liefereFormularAnPos(0))->RefKrankheit(), "A");
}

TEST(FormularListe, EmptyExtrasMatchEveryEntryOfAHealthPiece) {
    qbFormularListe liste;
    dazu(liste, l145("VP1", "A", "x"));
    qbFormularL145 f;
    EXPECT_EQ(liste.liefereFormular("L145", f, 0), 1u);
    EXPECT_EQ(f.RefKrankheit(), "A");
    EXPECT_TRUE(liste.FormularVorhanden("L145", 0, ""));
    EXPECT_TRUE(liste.FormularVorhanden("L145", 0, "", ""));
}

TEST(FormularListe, StoredFormWithEmptyAntwortZuFrageMatchesAnyAnswer) {
    qbFormularListe liste;
    dazu(liste, l145("VP1", "A", ""));
    EXPECT_TRUE(liste.FormularVorhanden("L145", 0, "A", "irgendwas"));
}

TEST(FormularListe, EveryBuiltHealthPieceIsFoundByNumberAndPerson) {
    qbFormularListe liste;
    qbFormularL144 l144;
    qbFormularL146 l146;
    qbFormularL147 l147;
    l147.RefPersonenKennung("VP2");
    liste.neuesFormular(l144);
    liste.neuesFormular(l146);
    liste.neuesFormular(l147);
    EXPECT_TRUE(liste.FormularVorhanden("L144", 0));
    EXPECT_TRUE(liste.FormularVorhanden("L146", 0));
    EXPECT_TRUE(liste.FormularVorhanden("L147", 1));
    EXPECT_FALSE(liste.FormularVorhanden("L147", 0));
    qbFormularL146 f;
    EXPECT_EQ(liste.liefereFormular("L146", f, 0), 1u);
    EXPECT_EQ(f.isA(), qbFormularL146::classIsA());
}

// ==== neuesFormular

TEST(FormularListe, NeuesFormularStoresACloneAndTheCallerKeepsTheForm) {
    qbFormularListe liste;
    qbFormularL440 f = l440("VP2", "Karate");
    liste.neuesFormular(f);
    f.RefKampfsportarten("anders");
    ASSERT_EQ(liste.AnzahlFormulare(), 1u);
    qbFormular* gespeichert = liste.liefereFormularAnPos(0);
    EXPECT_NE(gespeichert, &f);
    EXPECT_EQ(gespeichert->isA(), qbFormularL440::classIsA());
    EXPECT_EQ(static_cast<qbFormularL440*>(gespeichert)->RefKampfsportarten(), "Karate");
    EXPECT_EQ(f.RefKampfsportarten(), "anders");
}

TEST(FormularListe, TwoL145GiveTwoElements) {
    qbFormularListe liste;
    qbFormularL145 f = l145("VP1", "A");
    liste.neuesFormular(f);
    liste.neuesFormular(f);
    EXPECT_EQ(liste.AnzahlFormulare(), 2u);
}

TEST(FormularListe, TwoL440OfTheSamePersonGiveOneAsAnyReplacingPiece) {
    // Stands for L450 and the other replacing pieces not built yet.
    qbFormularListe liste;
    dazu(liste, l440("VP1", "Judo"));
    dazu(liste, l440("VP1", "Karate"));
    ASSERT_EQ(liste.AnzahlFormulare(), 1u);
    EXPECT_EQ(static_cast<qbFormularL440*>(liste.liefereFormularAnPos(0))->RefKampfsportarten(), "Karate");
}

TEST(FormularListe, ReplacingPieceOfAnotherPersonStaysBeside) {
    qbFormularListe liste;
    dazu(liste, l440("VP1", "Judo"));
    dazu(liste, l440("VP2", "Karate"));
    dazu(liste, l440("VN", "Boxen"));
    EXPECT_EQ(personen(liste), (std::vector<std::string>{"L440:VP1", "L440:VP2", "L440:VN"}));
}

TEST(FormularListe, ReplacementGoesToTheEndOfTheList) {
    qbFormularListe liste;
    dazu(liste, l440("VP1", "Judo"));
    dazu(liste, l145("VP1", "A"));
    dazu(liste, l440("VP1", "Karate"));
    EXPECT_EQ(personen(liste), (std::vector<std::string>{"L145:VP1", "L440:VP1"}));
}

TEST(FormularListe, NeuesFormularWithAnUnknownPersonProbesForVN_Quirk) {
    qbFormularListe liste;
    dazu(liste, l440("XX", "eins"));
    dazu(liste, l440("XX", "zwei")); // probe "VN" finds nothing: both stay
    EXPECT_EQ(liste.AnzahlFormulare(), 2u);
    dazu(liste, l440("VN", "drei"));
    dazu(liste, l440("", "vier")); // removes the one of "VN"
    EXPECT_EQ(personen(liste), (std::vector<std::string>{"L440:XX", "L440:XX", "L440:"}));
}

TEST(FormularListe, FormWithEmptyNumberIsStoredAsPlainQbFormular) {
    qbFormularListe liste;
    qbFormularL440 f = l440("VP2");
    f.RefDruckstueckNummer("");
    liste.neuesFormular(f);
    liste.neuesFormular(f); // nothing is replaced
    ASSERT_EQ(liste.AnzahlFormulare(), 2u);
    const qbFormular* gespeichert = liste.liefereFormularAnPos(0);
    EXPECT_EQ(gespeichert->isA(), qbFormular::classIsA());
    EXPECT_EQ(gespeichert->RefPersonenKennung(), "VP2");
    EXPECT_EQ(gespeichert->RefVersion(), "08.2005");
    EXPECT_EQ(gespeichert->RefSeitenanzahl(), 1);
}

TEST(FormularListe, FormWithAnUnknownNumberKeepsOnlyItsHeader) {
    qbFormularListe liste;
    qbFormularL440 f = l440("VP1");
    f.RefDruckstueckNummer("L999"); // a piece without a class
    liste.neuesFormular(f);
    liste.neuesFormular(f);
    ASSERT_EQ(liste.AnzahlFormulare(), 2u);
    const qbFormular* gespeichert = liste.liefereFormularAnPos(1);
    EXPECT_EQ(gespeichert->isA(), qbFormular::classIsA());
    EXPECT_EQ(gespeichert->RefDruckstueckNummer(), "L999");
    EXPECT_EQ(satz(*gespeichert).size(), gespeichert->binaryStoreSize()); // the header alone
    EXPECT_FALSE(liste.FormularVorhanden("L999", 0));
}

TEST(FormularListe, BareFormWithAKnownNumberIsStoredAsThatClassWithItsHeader) {
    qbFormularListe liste;
    qbFormular kopf;
    kopf.RefDruckstueckNummer("L440");
    kopf.RefDruckstueckName("Kampfsport");
    kopf.RefPersonenKennung("VP2");
    liste.neuesFormular(kopf);
    ASSERT_EQ(liste.AnzahlFormulare(), 1u);
    const qbFormular* gespeichert = liste.liefereFormularAnPos(0);
    EXPECT_EQ(gespeichert->isA(), qbFormularL440::classIsA());
    EXPECT_EQ(gespeichert->RefDruckstueckNummer(), "L440");
    EXPECT_EQ(gespeichert->RefDruckstueckName(), "Kampfsport");
    EXPECT_EQ(gespeichert->RefPersonenKennung(), "VP2");
    EXPECT_TRUE(liste.FormularVorhanden("L440", 1));
}

// ==== Removal

TEST(FormularListe, LoescheFormularRemovesOnlyTheFirstL145OfThatPerson) {
    qbFormularListe liste;
    dazu(liste, l145("VP1", "A"));
    dazu(liste, l145("VP2", "B"));
    dazu(liste, l145("VP1", "C"));
    EXPECT_EQ(liste.loescheFormular("L145", 0), 1u);
    ASSERT_EQ(liste.AnzahlFormulare(), 2u);
    EXPECT_EQ(static_cast<qbFormularL145*>(liste.liefereFormularAnPos(0))->RefKrankheit(), "B");
    EXPECT_EQ(static_cast<qbFormularL145*>(liste.liefereFormularAnPos(1))->RefKrankheit(), "C");
}

TEST(FormularListe, LoescheFormularReturns0WhenNothingMatches) {
    qbFormularListe liste;
    dazu(liste, l145("VP1", "A"));
    EXPECT_EQ(liste.loescheFormular("L145", 1), 0u);
    EXPECT_EQ(liste.loescheFormular("L440", 0), 0u);
    EXPECT_EQ(liste.loescheFormular("XY", 0), 0u);
    EXPECT_EQ(liste.loescheFormular("", 0), 0u);
    EXPECT_EQ(liste.loescheFormular("L145", 0, "B"), 0u);
    // the stored form has no AntwortZuFrage, so any answer matches
    EXPECT_EQ(liste.loescheFormular("L145", 0, "A", "x"), 1u);
    EXPECT_EQ(liste.AnzahlFormulare(), 0u);
}

TEST(FormularListe, FormularVorhandenOfAnUnknownNumberIsFalse) {
    qbFormularListe liste;
    qbFormularL440 f = l440("VP1");
    f.RefDruckstueckNummer("XY");
    liste.neuesFormular(f);
    EXPECT_FALSE(liste.FormularVorhanden("XY", 0));
    EXPECT_FALSE(liste.FormularVorhanden("", 0));
}

TEST(FormularListe, LoescheGesundheitsFormulareRemovesOnePersonsHealthAndSportForms_Quirk) {
    qbFormularListe liste;
    dazu(liste, l145("VP1", "A"));
    dazu(liste, l145("VP2", "B"));
    dazu(liste, l145("VP1", "C"));
    qbFormularL144 l144;
    liste.neuesFormular(l144);
    qbFormularL146 l146;
    liste.neuesFormular(l146);
    qbFormularL147 l147vp1, l147vn;
    l147vp1.RefPersonenKennung("VP1");
    liste.neuesFormular(l147vp1);
    liste.neuesFormular(l147vn);
    dazu(liste, l440("VP1"));
    dazu(liste, l440("VP2"));
    qbFormularL440 fremd = l440("VP1");
    fremd.RefDruckstueckNummer("L095"); // not a health piece (and not built: a plain form)
    liste.neuesFormular(fremd);
    liste.loescheGesundheitsFormulare(0);
    EXPECT_EQ(personen(liste), (std::vector<std::string>{"L145:VP2", "L147:VN", "L440:VP2", "L095:VP1"}));
}

TEST(FormularListe, LoescheGesundheitsFormulareOfVNLeavesTheOtherPersons) {
    qbFormularListe liste;
    dazu(liste, qbFormularL147());
    dazu(liste, qbFormularL147());
    dazu(liste, l145("VP1", "A"));
    liste.loescheGesundheitsFormulare(7);
    EXPECT_EQ(personen(liste), (std::vector<std::string>{"L145:VP1"}));
}

TEST(FormularListe, LoescheFormulareEmptiesTheList) {
    qbFormularListe liste;
    dazu(liste, l145("VP1", "A"));
    dazu(liste, l440("VP1"));
    liste.loescheFormulare();
    EXPECT_EQ(liste.AnzahlFormulare(), 0u);
    EXPECT_EQ(liste.RefDruckstueckeInfo().entries(), 45u);
}

TEST(FormularListe, LiefereFormularAnPosOutsideGivesNull) {
    qbFormularListe liste;
    EXPECT_EQ(liste.liefereFormularAnPos(0), nullptr);
    dazu(liste, l145("VP1", "A"));
    dazu(liste, l440("VP1"));
    EXPECT_EQ(liste.liefereFormularAnPos(static_cast<int>(liste.AnzahlFormulare())), nullptr);
    EXPECT_EQ(liste.liefereFormularAnPos(-1), nullptr);
    ASSERT_NE(liste.liefereFormularAnPos(1), nullptr);
    EXPECT_EQ(liste.liefereFormularAnPos(1)->RefDruckstueckNummer(), "L440");
    const qbFormularListe& konstant = liste;
    EXPECT_EQ(konstant.liefereFormularAnPos(2), nullptr);
    EXPECT_EQ(konstant.liefereFormularAnPos(0), liste.liefereFormularAnPos(0));
}

TEST(FormularListe, PointerFromLiefereFormularAnPosIsTheListsForm) {
    qbFormularListe liste;
    dazu(liste, l440("VP1", "Judo"));
    static_cast<qbFormularL440*>(liste.liefereFormularAnPos(0))->RefKampfsportarten("Karate");
    qbFormularL440 f;
    liste.liefereFormular("L440", f, 0);
    EXPECT_EQ(f.RefKampfsportarten(), "Karate");
}

// ==== Streams: bytes

TEST(ListenStromBytes, EmptyListOnRWFileIsMarkerVersionAndEmptyCollectionWithoutMagic) {
    qbFormularListe liste;
    const Bytes erwartet = cat({{0x3A}, text("05.1999"), {0x10, 0x80}, int32(0)});
    EXPECT_EQ(hex(bytesOf(gespeichert(Strom::Datei, liste))), hex(erwartet));
}

TEST(ListenStromBytes, EmptyListOnBinaryStream) {
    qbFormularListe liste;
    const Bytes erwartet =
        cat({{0x3A}, int32(7), text("05.1999"), {0x3A, 0x10, 0x80, 0x7B}, int32(0), {0x7D}});
    EXPECT_EQ(hex(bytesOf(gespeichert(Strom::Binaer, liste))), hex(erwartet));
}

TEST(ListenStromBytes, EmptyListOnPortableStream) {
    qbFormularListe liste;
    EXPECT_EQ(gespeichert(Strom::Portabel, liste), ":7\n\"05.1999\":32784\n\\[0\n\\]");
}

TEST(ListenStromBytes, ListWithAnL440OnRWFile) {
    qbFormularListe liste;
    dazu(liste, l440("VP2", "Judo"));
    const Bytes form = cat({text("08.2005"),
                            text("L440"),
                            text("Erkl\xE4rung Kampfsport"),
                            int32(1),
                            text("VP2"),
                            text("Judo"),
                            Bytes(11, 0xff),
                            {1},
                            text("")});
    const Bytes erwartet = cat({{0x3A}, text("05.1999"), {0x10, 0x80}, int32(1), uint16(30035), form});
    EXPECT_EQ(hex(bytesOf(gespeichert(Strom::Datei, liste))), hex(erwartet));
}

TEST(ListenStromBytes, SameListTwiceInOneOuterStoreGivesBodyThenReferenceOnRWFile) {
    qbFormularListe liste;
    const std::string bytes = schreibe(Strom::Datei, [&](auto& f) {
        RWUseStoreTable aussen;
        f << liste;
        f << liste;
    });
    const Bytes erwartet = cat({{0x3A}, text("05.1999"), {0x10, 0x80}, int32(0), {0x40}, int32(1)});
    EXPECT_EQ(hex(bytesOf(bytes)), hex(erwartet));
}

TEST(ListenStromBytes, SameListTwiceInOneOuterStoreGivesBodyThenReferenceOnBinaryStream) {
    qbFormularListe liste;
    const std::string bytes = schreibe(Strom::Binaer, [&](auto& s) {
        RWUseStoreTable aussen;
        s << liste;
        s << liste;
    });
    const Bytes erwartet = cat(
        {{0x3A}, int32(7), text("05.1999"), {0x3A, 0x10, 0x80, 0x7B}, int32(0), {0x7D}, {0x40}, int32(1)});
    EXPECT_EQ(hex(bytesOf(bytes)), hex(erwartet));
}

TEST(ListenStromBytes, SameListTwiceInOneOuterStoreGivesBodyThenReferenceOnPortableStream) {
    qbFormularListe liste;
    const std::string text = schreibe(Strom::Portabel, [&](auto& s) {
        RWUseStoreTable aussen;
        s << liste;
        s << liste;
    });
    EXPECT_EQ(text, ":7\n\"05.1999\":32784\n\\[0\n\\]@1\n");
}

TEST(ListenStromBytes, ReferenceNumberCountsTheObjectsStoredBefore) {
    qbFormularListe liste;
    dazu(liste, l440("VP1"));
    qbFormularL440 davor;
    const std::string bytes = schreibe(Strom::Datei, [&](auto& f) {
        RWUseStoreTable aussen;
        davor.recursiveSaveOn(f); // object 1
        f << liste;               // the list 2, its collection 3, its form 4
        f << liste;
    });
    const Bytes b = bytesOf(bytes);
    ASSERT_GE(b.size(), 5u);
    EXPECT_EQ(hex(Bytes(b.end() - 5, b.end())), hex(cat({{0x40}, int32(2)})));
}

TEST(ListenStromBytes, TwoStoresWithoutAnOuterTableGiveTwoBodies) {
    qbFormularListe liste;
    const std::string bytes = schreibe(Strom::Datei, [&](auto& f) {
        f << liste;
        f << liste;
    });
    const Bytes einmal = cat({{0x3A}, text("05.1999"), {0x10, 0x80}, int32(0)});
    EXPECT_EQ(hex(bytesOf(bytes)), hex(cat({einmal, einmal})));
}

TEST(ListenStromBytes, VersionIsWrittenAsItStandsWithoutStamp) {
    qbFormularListe liste;
    liste.RefVersion("07.2001");
    const Bytes b = bytesOf(gespeichert(Strom::Datei, liste));
    EXPECT_EQ(hex(Bytes(b.begin() + 1, b.begin() + 12)), hex(text("07.2001")));
    EXPECT_EQ(liste.RefVersion(), "07.2001");
}

TEST(ListenStromBytes, RwSaveGutsWritesTheBodyAlone) {
    qbFormularListe liste;
    const Bytes b = bytesOf(schreibe(Strom::Datei, [&](auto& f) { rwSaveGuts(f, liste); }));
    // the collection's save opens the store table here, so it writes the magic
    EXPECT_EQ(hex(b), hex(cat({text("05.1999"), int32(0x8888), {0x10, 0x80}, int32(0)})));
}

// ==== Streams: round trips and failures on every stream kind

TEST_P(ListenStrom, EmptyListRestoredHasAFullCatalogue) {
    const std::string daten = gespeichert(GetParam(), qbFormularListe());
    qbFormularListe* neu = nullptr;
    lies(GetParam(), daten, [&](auto& s) { s >> neu; });
    ASSERT_NE(neu, nullptr);
    std::unique_ptr<qbFormularListe> besitz(neu);
    EXPECT_EQ(neu->AnzahlFormulare(), 0u);
    EXPECT_EQ(neu->RefVersion(), "05.1999");
    EXPECT_EQ(neu->RefAlleDruckstueckNr().entries(), 45u);
    qbFormularListe liste;
    lies(GetParam(), daten, [&](auto& s) { s >> liste; });
    EXPECT_EQ(liste.RefAlleDruckstueckNr().entries(), 45u);
}

TEST_P(ListenStrom, FormsRoundTripInOrderWithTheirClassesAndContent) {
    qbFormularListe quelle;
    quelle.RefVersion("07.2001");
    dazu(quelle, l145("VP1", "Knie", "Antwort"));
    dazu(quelle, l440("VP2", "Karate"));
    qbFormularL147 l147;
    l147.RefMedikamente("Tabletten \xE4");
    quelle.neuesFormular(l147);
    qbFormularL146 l146;
    l146.RefFrage1("R\xFC"
                   "cken");
    quelle.neuesFormular(l146);
    qbFormularL144 l144;
    l144.RefSchwangerschaftsmonat(4);
    quelle.neuesFormular(l144);
    qbFormularL440 fremd = l440("VP1");
    fremd.RefDruckstueckNummer("ZZ");
    quelle.neuesFormular(fremd);
    const std::string daten = gespeichert(GetParam(), quelle);
    qbFormularListe ziel;
    lies(GetParam(), daten, [&](auto& s) { s >> ziel; });
    EXPECT_EQ(ziel.RefVersion(), "07.2001");
    ASSERT_EQ(ziel.AnzahlFormulare(), quelle.AnzahlFormulare());
    for (int i = 0; i < static_cast<int>(quelle.AnzahlFormulare()); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(ziel.liefereFormularAnPos(i)->isA(), quelle.liefereFormularAnPos(i)->isA());
        EXPECT_EQ(satz(*ziel.liefereFormularAnPos(i)), satz(*quelle.liefereFormularAnPos(i)));
    }
}

TEST_P(ListenStrom, ElementClassDecidesHowItIsReadNotItsNumber) {
    qbFormularListe quelle;
    qbFormularL440 f = l440("VP1", "Judo");
    quelle.neuesFormular(f);
    static_cast<qbFormular*>(quelle.liefereFormularAnPos(0))->RefDruckstueckNummer("L145");
    qbFormularListe ziel;
    lies(GetParam(), gespeichert(GetParam(), quelle), [&](auto& s) { s >> ziel; });
    ASSERT_EQ(ziel.AnzahlFormulare(), 1u);
    EXPECT_EQ(ziel.liefereFormularAnPos(0)->isA(), qbFormularL440::classIsA());
    EXPECT_EQ(ziel.liefereFormularAnPos(0)->RefDruckstueckNummer(), "L145");
    EXPECT_EQ(static_cast<qbFormularL440*>(ziel.liefereFormularAnPos(0))->RefKampfsportarten(), "Judo");
}

TEST_P(ListenStrom, RestoreReplacesTheListsFormsByTheStoredOnes) {
    qbFormularListe quelle;
    dazu(quelle, l145("VP1", "A"));
    dazu(quelle, l145("VP1", "B"));
    qbFormularListe ziel;
    dazu(ziel, l440("VP2"));
    lies(GetParam(), gespeichert(GetParam(), quelle), [&](auto& s) { s >> ziel; });
    EXPECT_EQ(personen(ziel), (std::vector<std::string>{"L145:VP1", "L145:VP1"}));
}

TEST_P(ListenStrom, RestoreTakesElementsAsStoredDuplicatesIncluded) {
    // Two replacing forms of one person, as no neuesFormular would leave them.
    qbFormularL440 a = l440("VP1", "eins"), b = l440("VP1", "zwei");
    RWDlistCollectables formulare;
    formulare.insert(&a);
    formulare.insert(&b);
    const std::string daten = schreibe(GetParam(), [&](auto& s) {
        RWUseStoreTable tabelle;
        if constexpr (std::is_same_v<std::decay_t<decltype(s)>, RWFile>)
            s.Write(':');
        else
            s << ':';
        RWCString("05.1999").saveOn(s);
        formulare.recursiveSaveOn(s);
    });
    qbFormularListe ziel;
    lies(GetParam(), daten, [&](auto& s) { s >> ziel; });
    ASSERT_EQ(ziel.AnzahlFormulare(), 2u);
    EXPECT_EQ(static_cast<qbFormularL440*>(ziel.liefereFormularAnPos(0))->RefKampfsportarten(), "eins");
    EXPECT_EQ(static_cast<qbFormularL440*>(ziel.liefereFormularAnPos(1))->RefKampfsportarten(), "zwei");
}

TEST_P(ListenStrom, StreamEndingBeforeTheCollectionKeepsTheEarlierForms) {
    // The collection's own restore, which would let earlier elements go, never runs: what was in the list
    // stays, and what was read before the failure (the Version) stays too.
    const std::string daten = schreibe(GetParam(), [&](auto& s) {
        if constexpr (std::is_same_v<std::decay_t<decltype(s)>, RWFile>)
            s.Write(':');
        else
            s << ':';
        RWCString("07.2001").saveOn(s);
    });
    qbFormularListe liste;
    dazu(liste, l440("VP1"));
    lies(GetParam(), daten, [&](auto& s) { EXPECT_NO_THROW(s >> liste); });
    EXPECT_EQ(liste.RefVersion(), "07.2001");
    EXPECT_EQ(personen(liste), (std::vector<std::string>{"L440:VP1"}));
}

TEST_P(ListenStrom, CopyOfARestoredListPassesItsFormsThroughNeuesFormular) {
    qbFormularL440 a = l440("VP1", "eins"), b = l440("VP1", "zwei");
    RWDlistCollectables formulare;
    formulare.insert(&a);
    formulare.insert(&b);
    const std::string daten = schreibe(GetParam(), [&](auto& s) {
        RWUseStoreTable tabelle;
        if constexpr (std::is_same_v<std::decay_t<decltype(s)>, RWFile>)
            s.Write(':');
        else
            s << ':';
        RWCString("05.1999").saveOn(s);
        formulare.recursiveSaveOn(s);
    });
    qbFormularListe gelesen;
    lies(GetParam(), daten, [&](auto& s) { s >> gelesen; });
    ASSERT_EQ(gelesen.AnzahlFormulare(), 2u);
    qbFormularListe kopie(gelesen);
    ASSERT_EQ(kopie.AnzahlFormulare(), 1u);
    EXPECT_EQ(static_cast<qbFormularL440*>(kopie.liefereFormularAnPos(0))->RefKampfsportarten(), "zwei");
}

TEST_P(ListenStrom, RestoreLeavesTheCatalogueOfTheTargetAlone) {
    qbFormularListe quelle;
    dazu(quelle, l440("VP1"));
    qbFormularListe kopie(quelle); // empty catalogue
    lies(GetParam(), gespeichert(GetParam(), quelle), [&](auto& s) { s >> kopie; });
    EXPECT_EQ(kopie.AnzahlFormulare(), 1u);
    EXPECT_EQ(kopie.RefDruckstueckeInfo().entries(), 0u);
}

TEST_P(ListenStrom, PointerOnColonGivesANewListTheCallerOwns) {
    qbFormularListe quelle;
    quelle.RefVersion("07.2001");
    dazu(quelle, l145("VP2", "A"));
    qbFormularListe* neu = nullptr;
    lies(GetParam(), gespeichert(GetParam(), quelle), [&](auto& s) { s >> neu; });
    ASSERT_NE(neu, nullptr);
    EXPECT_NE(neu, &quelle);
    EXPECT_EQ(neu->RefVersion(), "07.2001");
    EXPECT_EQ(personen(*neu), personen(quelle));
    EXPECT_EQ(neu->RefDruckstueckeInfo().entries(), 45u);
    delete neu;
}

TEST_P(ListenStrom, SameListTwiceReadsBackWithinOneOuterReadTable) {
    qbFormularListe quelle;
    dazu(quelle, l440("VP1"));
    const std::string daten = schreibe(GetParam(), [&](auto& s) {
        RWUseStoreTable aussen;
        s << quelle;
        s << quelle;
    });
    qbFormularListe ziel;
    qbFormularListe* zeiger = nullptr;
    lies(GetParam(), daten, [&](auto& s) {
        RWUseReadTable aussen;
        s >> ziel;
        EXPECT_NO_THROW(s >> zeiger);
    });
    EXPECT_EQ(zeiger, &ziel);
    EXPECT_EQ(ziel.AnzahlFormulare(), 1u);
}

TEST_P(ListenStrom, ReferenceToTheSameListReadBeforeIsAccepted) {
    qbFormularListe quelle;
    const std::string daten = schreibe(GetParam(), [&](auto& s) {
        RWUseStoreTable aussen;
        s << quelle;
        s << quelle;
    });
    qbFormularListe ziel;
    lies(GetParam(), daten, [&](auto& s) {
        RWUseReadTable aussen;
        s >> ziel;
        EXPECT_NO_THROW(s >> ziel);
    });
}

TEST_P(ListenStrom, ReferenceToAnotherListRaisesRWInternalErr) {
    qbFormularListe quelle;
    const std::string daten = schreibe(GetParam(), [&](auto& s) {
        RWUseStoreTable aussen;
        s << quelle;
        s << quelle;
    });
    qbFormularListe erste, zweite;
    lies(GetParam(), daten, [&](auto& s) {
        RWUseReadTable aussen;
        s >> erste;
        try {
            s >> zweite;
            ADD_FAILURE() << "no RWInternalErr";
        } catch (const RWInternalErr& e) {
            EXPECT_TRUE(istVerweisFehler(e)) << e.why();
        }
    });
}

TEST_P(ListenStrom, BadMarkerRaisesRWInternalErr) {
    for (char marke : {'X', '{', '\0'}) {
        const std::string daten =
            gespeichert(GetParam(), qbFormularListe()).replace(0, 1, nurMarke(GetParam(), marke));
        qbFormularListe liste;
        lies(GetParam(), daten, [&](auto& s) {
            try {
                s >> liste;
                ADD_FAILURE() << "no RWInternalErr for marker " << static_cast<int>(marke);
            } catch (const RWInternalErr& e) {
                EXPECT_TRUE(istVerweisFehler(e)) << e.why();
            }
        });
        qbFormularListe* zeiger = nullptr;
        lies(GetParam(), daten, [&](auto& s) { EXPECT_THROW(s >> zeiger, RWInternalErr); });
        EXPECT_EQ(zeiger, nullptr);
    }
}

TEST_P(ListenStrom, ReferenceOutOfRangeRaisesRWInternalErr) {
    for (int nummer : {5, -1, 1}) {
        SCOPED_TRACE(nummer);
        const std::string daten = markeUndZahl(GetParam(), '@', nummer);
        qbFormularListe liste;
        lies(GetParam(), daten, [&](auto& s) { EXPECT_THROW(s >> liste, RWInternalErr); });
        qbFormularListe* zeiger = nullptr;
        lies(GetParam(), daten, [&](auto& s) { EXPECT_THROW(s >> zeiger, RWInternalErr); });
    }
}

TEST_P(ListenStrom, ReferenceZeroIntoAListRaisesRWInternalErr) {
    qbFormularListe liste;
    lies(GetParam(), markeUndZahl(GetParam(), '@', 0),
         [&](auto& s) { EXPECT_THROW(s >> liste, RWInternalErr); });
}

TEST_P(ListenStrom, ReferenceZeroIntoAPointerGivesNull) {
    qbFormularListe vorher;
    qbFormularListe* zeiger = &vorher;
    lies(GetParam(), markeUndZahl(GetParam(), '@', 0), [&](auto& s) { EXPECT_NO_THROW(s >> zeiger); });
    EXPECT_EQ(zeiger, nullptr);
}

TEST_P(ListenStrom, StreamEndingAfterTheReferenceMarkerLeavesTheListUntouched) {
    qbFormularListe liste;
    dazu(liste, l440("VP1"));
    lies(GetParam(), nurMarke(GetParam(), '@'), [&](auto& s) { EXPECT_NO_THROW(s >> liste); });
    EXPECT_EQ(liste.AnzahlFormulare(), 1u);
    qbFormularListe* zeiger = &liste;
    lies(GetParam(), nurMarke(GetParam(), '@'), [&](auto& s) { EXPECT_NO_THROW(s >> zeiger); });
    EXPECT_EQ(zeiger, &liste);
}

TEST_P(ListenStrom, EmptyStreamLeavesTheListUntouched) {
    qbFormularListe liste;
    liste.RefVersion("07.2001");
    dazu(liste, l440("VP1"));
    lies(GetParam(), "", [&](auto& s) { EXPECT_NO_THROW(s >> liste); });
    EXPECT_EQ(liste.AnzahlFormulare(), 1u);
    EXPECT_EQ(liste.RefVersion(), "07.2001");
    qbFormularListe* zeiger = nullptr;
    lies(GetParam(), "", [&](auto& s) { EXPECT_NO_THROW(s >> zeiger); });
    EXPECT_EQ(zeiger, nullptr);
}

TEST_P(ListenStrom, StreamNotGoodOnEntryLeavesTheListUntouched) {
    const std::string daten = gespeichert(GetParam(), qbFormularListe());
    qbFormularListe liste;
    dazu(liste, l440("VP1"));
    qbFormularListe* zeiger = nullptr;
    if (GetParam() == Strom::Datei) {
        TempFile fehlt("fehlt");
        RWFile f(fehlt.path(), "rb"); // no such file
        ASSERT_FALSE(f.good());
        EXPECT_NO_THROW(f >> liste);
        EXPECT_NO_THROW(f >> zeiger);
    } else {
        lies(GetParam(), daten, [&](auto& s) {
            if constexpr (!std::is_same_v<std::decay_t<decltype(s)>, RWFile>) {
                s.clear(RWvios::failbit);
                EXPECT_NO_THROW(s >> liste);
                EXPECT_NO_THROW(s >> zeiger);
            }
        });
    }
    EXPECT_EQ(liste.AnzahlFormulare(), 1u);
    EXPECT_EQ(zeiger, nullptr);
}

TEST_P(ListenStrom, RwSaveGutsAndRwRestoreGutsRoundTripTheBody) {
    qbFormularListe quelle;
    quelle.RefVersion("07.2001");
    dazu(quelle, l440("VP2", "Karate"));
    const std::string daten = schreibe(GetParam(), [&](auto& s) { rwSaveGuts(s, quelle); });
    qbFormularListe ziel;
    lies(GetParam(), daten, [&](auto& s) { rwRestoreGuts(s, ziel); });
    EXPECT_EQ(ziel.RefVersion(), "07.2001");
    ASSERT_EQ(ziel.AnzahlFormulare(), 1u);
    EXPECT_EQ(satz(*ziel.liefereFormularAnPos(0)), satz(*quelle.liefereFormularAnPos(0)));
}

INSTANTIATE_TEST_SUITE_P(AlleStroeme, ListenStrom,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), strom);

// ==== XML

TEST(ListenXml, EmptyListGivesVersionAndAnEmptyCollectionWithAttributeListe) {
    qbFormularListe liste;
    CQBXMLdata knoten("wurzel");
    liste.XMLgetDat(knoten);
    EXPECT_EQ(knoten.Typ(), "qbFormularListe");
    ASSERT_EQ(knoten.entryCount(), 2u);
    EXPECT_EQ(knoten.entryAt(0)->Name(), "Version");
    RWCString version;
    EXPECT_TRUE(knoten.Listvalue("Version", version));
    EXPECT_EQ(version, "05.1999");
    const CQBXMLdata* sammlung = knoten.entryAt(1);
    EXPECT_EQ(sammlung->Name(), "RWDlistCollectables");
    EXPECT_EQ(sammlung->Attribute(), "Liste");
    EXPECT_EQ(sammlung->entryCount(), 0u);
    EXPECT_EQ(knoten.GetChildren("Liste"), knoten.entryAt(1));
}

TEST(ListenXml, EachFormGoesInAsItsHeaderOnly_Quirk) {
    qbFormularListe liste;
    liste.RefVersion("07.2001");
    dazu(liste, l440("VP2", "Karate"));
    dazu(liste, l145("VP1", "Knie"));
    CQBXMLdata knoten("wurzel");
    liste.XMLgetDat(knoten);
    RWCString version;
    knoten.Listvalue("Version", version);
    EXPECT_EQ(version, "07.2001");
    const CQBXMLdata* sammlung = knoten.GetChildren("Liste");
    ASSERT_NE(sammlung, nullptr);
    ASSERT_EQ(sammlung->entryCount(), 2u);
    const char* nummern[] = {"L440", "L145"};
    const char* kennungen[] = {"VP2", "VP1"};
    for (size_t i = 0; i < 2; ++i) {
        const CQBXMLdata* element = sammlung->entryAt(i);
        EXPECT_EQ(element->Typ(), "qbFormular");
        EXPECT_EQ(element->Name(), "");
        EXPECT_EQ(element->entryCount(), 5u);
        RWCString wert;
        EXPECT_TRUE(element->Listvalue("DruckstueckNummer", wert));
        EXPECT_EQ(wert, nummern[i]);
        EXPECT_TRUE(element->Listvalue("PersonenKennung", wert));
        EXPECT_EQ(wert, kennungen[i]);
    }
    RWCString inhalt;
    EXPECT_FALSE(sammlung->entryAt(0)->Listvalue("Kampfsportarten", inhalt));
    EXPECT_FALSE(sammlung->entryAt(1)->Listvalue("Krankheit", inhalt));
}

TEST(ListenXml, ReimportOfTheListsOwnTreeRebuildsFormsByNumberWithTheirHeaderOnly_Quirk) {
    qbFormularListe quelle;
    dazu(quelle, l440("VP2", "Karate"));
    dazu(quelle, l145("VP1", "Knie"));
    CQBXMLdata knoten("wurzel");
    quelle.XMLgetDat(knoten);
    qbFormularListe ziel;
    ziel.XMLputDat(knoten);
    ASSERT_EQ(ziel.AnzahlFormulare(), 2u);
    EXPECT_TRUE(ziel.FormularVorhanden("L440", 1));
    EXPECT_TRUE(ziel.FormularVorhanden("L145", 0));
    for (int i = 0; i < 2; ++i) {
        const qbFormular* f = ziel.liefereFormularAnPos(i);
        if (f->RefDruckstueckNummer() == "L440") {
            EXPECT_EQ(f->isA(), qbFormularL440::classIsA());
        } else {
            EXPECT_EQ(f->isA(), qbFormularL145::classIsA());
        }
    }
    qbFormularL440 l440;
    ziel.liefereFormular("L440", l440, 1);
    EXPECT_EQ(l440.RefKampfsportarten(), ""); // the content was not in the tree
}

TEST(ListenXml, L145EntryWithPersonVP2KeepsTheClassDefaultPerson_Quirk) {
    qbFormularL145 quelle = l145("VP2", "Knie");
    quelle.RefGeheiltJN(1);
    CQBXMLdata element("");
    quelle.XMLgetDat(element);
    CQBXMLdata sammlung("RWDlistCollectables");
    sammlung.Attribute("Liste");
    sammlung.List(element);
    CQBXMLdata knoten("wurzel");
    knoten.clear("qbFormularListe");
    knoten.List(sammlung);
    qbFormularListe liste;
    liste.XMLputDat(knoten);
    ASSERT_EQ(liste.AnzahlFormulare(), 1u);
    const auto* f = static_cast<const qbFormularL145*>(liste.liefereFormularAnPos(0));
    EXPECT_EQ(f->isA(), qbFormularL145::classIsA());
    EXPECT_EQ(f->RefPersonenKennung(), "VP1");
    EXPECT_EQ(f->RefVerletzung(), "Verletzung Knie");
    EXPECT_EQ(f->RefGeheiltJN(), 1);
    EXPECT_EQ(f->RefKrankheit(), "");
}

TEST(ListenXml, L440EntryBringsItsPersonAndContent) {
    CQBXMLdata element("");
    l440("VP2", "Karate").XMLgetDat(element);
    CQBXMLdata sammlung("RWDlistCollectables");
    sammlung.Attribute("Liste");
    sammlung.List(element);
    CQBXMLdata knoten("wurzel");
    knoten.clear("qbFormularListe");
    knoten.List(sammlung);
    qbFormularListe liste;
    liste.XMLputDat(knoten);
    qbFormularL440 f;
    EXPECT_EQ(liste.liefereFormular("L440", f, 1), 1u);
    EXPECT_EQ(f.RefKampfsportarten(), "Karate");
}

TEST(ListenXml, PutDoesNotChangeTheListsVersion) {
    qbFormularListe quelle;
    quelle.RefVersion("01.2000");
    dazu(quelle, l440("VP1"));
    CQBXMLdata knoten("wurzel");
    quelle.XMLgetDat(knoten);
    qbFormularListe ziel;
    ziel.XMLputDat(knoten);
    EXPECT_EQ(ziel.RefVersion(), "05.1999");
    ziel.RefVersion("x");
    ziel.XMLputDat(knoten);
    EXPECT_EQ(ziel.RefVersion(), "x");
}

TEST(ListenXml, PutAddsToTheListWithoutEmptyingIt) {
    qbFormularListe quelle;
    dazu(quelle, l145("VP1", "neu"));
    dazu(quelle, l440("VP1", "neu"));
    CQBXMLdata knoten("wurzel");
    quelle.XMLgetDat(knoten);
    qbFormularListe ziel;
    dazu(ziel, l145("VP1", "alt"));
    dazu(ziel, l440("VP1", "alt"));
    dazu(ziel, l440("VP2", "alt"));
    ziel.XMLputDat(knoten);
    EXPECT_EQ(ziel.AnzahlFormulare(), 4u); // the L440 of VP1 replaced, the L145 added
    qbFormularL440 f;
    ziel.liefereFormular("L440", f, 0);
    EXPECT_EQ(f.RefKampfsportarten(), "");
    ziel.liefereFormular("L440", f, 1);
    EXPECT_EQ(f.RefKampfsportarten(), "alt");
}

TEST(ListenXml, WrongTypeOrMissingListeChildIsIgnored) {
    qbFormularListe quelle;
    dazu(quelle, l440("VP1"));
    CQBXMLdata knoten("wurzel");
    quelle.XMLgetDat(knoten);
    qbFormularListe ziel;
    knoten.Typ("qbFormularListe2");
    ziel.XMLputDat(knoten);
    EXPECT_EQ(ziel.AnzahlFormulare(), 0u);
    CQBXMLdata ohneListe("wurzel");
    ohneListe.clear("qbFormularListe");
    CQBXMLdata sammlung("RWDlistCollectables"); // no attribute
    CQBXMLdata element("");
    l440("VP1").XMLgetDat(element);
    sammlung.List(element);
    ohneListe.List(sammlung);
    ziel.XMLputDat(ohneListe);
    EXPECT_EQ(ziel.AnzahlFormulare(), 0u);
}

TEST(ListenXml, EntriesOfUnknownTypeAreSkipped) {
    CQBXMLdata sammlung("RWDlistCollectables");
    sammlung.Attribute("Liste");
    for (const char* typ : {"qbFormularGS004", "qbFormularL999", "qbFormularListe", "irgendwas", ""}) {
        CQBXMLdata element("");
        qbFormularL440().qbFormular::XMLgetDat(element);
        element.Typ(typ);
        sammlung.List(element);
    }
    CQBXMLdata gut("");
    l440("VP2").XMLgetDat(gut);
    sammlung.List(gut);
    CQBXMLdata knoten("wurzel");
    knoten.clear("qbFormularListe");
    knoten.List(sammlung);
    qbFormularListe liste;
    liste.XMLputDat(knoten);
    EXPECT_EQ(personen(liste), (std::vector<std::string>{"L440:VP2"}));
}

TEST(ListenXml, HealthBaseEntryIsStoredAsAPlainQbFormular) {
    CQBXMLdata element("");
    qbFormularAllgGesu().XMLgetDat(element);
    CQBXMLdata sammlung("RWDlistCollectables");
    sammlung.Attribute("Liste");
    sammlung.List(element);
    CQBXMLdata knoten("wurzel");
    knoten.clear("qbFormularListe");
    knoten.List(sammlung);
    qbFormularListe liste;
    liste.XMLputDat(knoten);
    ASSERT_EQ(liste.AnzahlFormulare(), 1u);
    EXPECT_EQ(liste.liefereFormularAnPos(0)->isA(), qbFormular::classIsA());
    EXPECT_EQ(liste.liefereFormularAnPos(0)->RefDruckstueckNummer(), "");
}

TEST(ListenXml, BareEntryOfAnUnknownNumberIsStoredAsAPlainQbFormular) {
    qbFormular kopf;
    kopf.RefDruckstueckNummer("L999");
    kopf.RefPersonenKennung("VN");
    CQBXMLdata element("");
    kopf.XMLgetDat(element);
    CQBXMLdata sammlung("RWDlistCollectables");
    sammlung.Attribute("Liste");
    sammlung.List(element);
    CQBXMLdata knoten("wurzel");
    knoten.clear("qbFormularListe");
    knoten.List(sammlung);
    qbFormularListe liste;
    liste.XMLputDat(knoten);
    ASSERT_EQ(liste.AnzahlFormulare(), 1u);
    EXPECT_EQ(liste.liefereFormularAnPos(0)->isA(), qbFormular::classIsA());
    EXPECT_EQ(liste.liefereFormularAnPos(0)->RefDruckstueckNummer(), "L999");
    EXPECT_EQ(liste.liefereFormularAnPos(0)->RefPersonenKennung(), "VN");
}
