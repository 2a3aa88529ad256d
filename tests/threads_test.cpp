// Separate lists in eight threads at once. Each thread builds its own list, stores it on RWFile and on
// both kinds of virtual stream over a std::stringstream, reads it back, and takes it and each of its forms
// through the XML tree and its text, then reads the application of old layouts in examples/legacy; every
// round must give the bytes and trees the same work gives on one thread, and every round trip must give
// back what went in. The threads share only what the library shares: the factory of the recursive
// restore, the form block cache (reading a list deletes and creates dozens of forms) and the switch of the
// read observer. Half of the threads observe their file reads, the others read without, so that both read
// paths run side by side; an observer must see exactly its own thread's reads. Under ThreadSanitizer
// (preset tsan) this is the race test of the library.
#include "core/qbFeld.h"
#include "core/qbFormularListe.h"
#include "core/qbKlassen.h"
#include "core/qbLeseBeobachter.h"
#include "qballg/CQBXMLdata.h"
#include "rw/bstream.h"
#include "rw/pstream.h"
#include "rw/rwfile.h"

#include "klassen_util.h"
#include "test_util.h"

#include <cstdint>
#include <latch>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using namespace qbtest;

namespace {

constexpr int kFaeden = 8;
constexpr int kRunden = 6;

// ---- One thread's list

// Every field of the class and of its bases but the header random: the header's number and person
// decide where the list puts a form.
void fuelleFormular(const qbKlasse& k, qbFormular& form, std::mt19937& zufall) {
    for (const qbKlasse* c = &k; c && c->id != qbId_qbFormular; c = qbKlasseZuName(c->basisName))
        for (const qbFeld& z : c->felder())
            fuelleZufaellig(z, form, zufall);
}

// Three forms of every class with a print piece, for the three persons in turn (a replacing piece keeps
// one per person), and a form of a number no class has, which the list keeps as its header. The list goes
// over every stream kind: the classes whose record does not read back from a virtual stream stay out.
std::unique_ptr<qbFormularListe> baueListe(int nr) {
    static const char* const kPersonen[] = {"VN", "VP1", "VP2"};
    std::mt19937 zufall(static_cast<unsigned>(1000 + nr));
    auto liste = std::make_unique<qbFormularListe>();
    liste->RefVersion("07.2001");
    for (int i = 0; i < 3; ++i)
        for (const qbKlasse& k : qbKlassen) {
            if (!*k.nummer || !virtuellerSatzGanzLesbar(k)) continue; // the list goes on every stream kind
            auto form = erzeuge(k);
            fuelleFormular(k, *form, zufall);
            form->RefPersonenKennung(kPersonen[(i + nr) % 3]);
            liste->neuesFormular(*form);
        }
    qbFormular fremd;
    fremd.RefDruckstueckNummer(RWCString("ZZ") + RWCString(std::to_string(nr)));
    fremd.RefPersonenKennung("VN");
    fremd.RefVersion("10.2002");
    liste->neuesFormular(fremd);
    return liste;
}

// ---- An observer that writes down what it sees

class Protokoll : public qbLeseBeobachter {
public:
    void layout(const char* klasse, const char* name) override {
        text_ += std::string("layout ") + klasse + " " + name + "\n";
    }
    void feld(const char* name, qbArt art, long von, long bis, const std::string& wert) override {
        text_ += std::string(name ? name : "-") + " " + std::to_string(static_cast<int>(art)) + " " +
                 std::to_string(von) + ".." + std::to_string(bis) + " " + hex(bytesOf(wert)) + "\n";
    }
    std::string nimm() { return std::exchange(text_, {}); }

private:
    std::string text_;
};

// ---- Stores and reads

std::string datei(const char* pfad) {
    const Bytes b = readBytes(pfad);
    return std::string(b.begin(), b.end());
}

std::string aufDatei(const qbFormularListe& liste, const char* pfad) {
    {
        RWFile f(pfad, "wb");
        f << liste;
    }
    return datei(pfad);
}

template <class Ausgabe>
std::string aufStrom(const qbFormularListe& liste) {
    std::stringstream puffer;
    Ausgabe s(puffer);
    s << liste;
    return puffer.str();
}

// What one round of a thread's work gives; the same for every round and every thread count.
struct Ergebnis {
    std::string datei, binaer, portabel;                   // the list on each stream kind
    std::string wiederDatei, wiederBinaer, wiederPortabel; // the list read back, stored again
    std::string listenXml, listeAusXml; // the list's XML, and that of the list made from it
    std::string formXml;                // each form's XML, and that of the form made from it
    std::string beobachtet;             // what the thread's observer saw of the file read
    std::string alt, altBeobachtet;     // the file of old layouts read and stored again in today's; observed
    unsigned formen = 0;
    std::vector<std::string> rundreisen; // round trips that did not give back what went in

    bool operator==(const Ergebnis&) const = default;
};

std::string erstesAnders(const Ergebnis& a, const Ergebnis& b) {
    if (a.datei != b.datei) return "the list on RWFile";
    if (a.binaer != b.binaer) return "the list on RWbostream";
    if (a.portabel != b.portabel) return "the list on RWpostream";
    if (a.wiederDatei != b.wiederDatei) return "the list read from RWFile";
    if (a.wiederBinaer != b.wiederBinaer) return "the list read from RWbistream";
    if (a.wiederPortabel != b.wiederPortabel) return "the list read from RWpistream";
    if (a.listenXml != b.listenXml) return "the list's XML";
    if (a.listeAusXml != b.listeAusXml) return "the list made from XML";
    if (a.formXml != b.formXml) return "the forms' XML";
    if (a.beobachtet != b.beobachtet) return "what the observer saw";
    if (a.alt != b.alt) return "the file of old layouts stored again";
    if (a.altBeobachtet != b.altBeobachtet) return "what the observer saw of the old layouts";
    if (a.formen != b.formen) return "the number of forms";
    if (a.rundreisen != b.rundreisen) return "the round trips";
    return "";
}

const std::string kAlteLayouts = QBFORMUL_SOURCE_DIR "/examples/legacy/alte-layouts.qbf";

// The number of forms in the file of old layouts: the count of its collection, behind the marker, the
// list's Version "05.1999" and the collection's class id.
unsigned formenDerAltenLayouts() {
    const Bytes b = readBytes(kAlteLayouts.c_str());
    if (b.size() < 18) return 0;
    return unsigned(b[14]) | unsigned(b[15]) << 8 | unsigned(b[16]) << 16 | unsigned(b[17]) << 24;
}

// One round: build, store on every stream kind, read back (into an object and into a pointer), store
// again, and the XML of the list and of every form, written as text and read back; then the application
// of old layouts that all threads read, each through a file object of its own.
Ergebnis arbeite(int nr, const char* pfad, Protokoll* beobachter) {
    Ergebnis e;
    const auto liste = baueListe(nr);
    e.formen = liste->AnzahlFormulare();

    e.datei = aufDatei(*liste, pfad);
    e.binaer = aufStrom<RWbostream>(*liste);
    e.portabel = aufStrom<RWpostream>(*liste);

    {
        qbFormularListe gelesen;
        {
            // An observer only for the read itself, so that the number of observing threads changes
            // while the others read.
            if (beobachter) qbSetzeLeseBeobachter(beobachter);
            RWFile f(pfad, "rb");
            f >> gelesen;
            if (beobachter) {
                qbSetzeLeseBeobachter(nullptr);
                e.beobachtet = beobachter->nimm();
            }
        }
        e.wiederDatei = aufDatei(gelesen, pfad);
    }
    {
        std::stringstream puffer(e.binaer);
        RWbistream s(puffer);
        qbFormularListe* gelesen = nullptr;
        s >> gelesen;
        std::unique_ptr<qbFormularListe> besitz(gelesen);
        if (gelesen) e.wiederBinaer = aufStrom<RWbostream>(*gelesen);
    }
    {
        std::stringstream puffer(e.portabel);
        RWpistream s(puffer);
        qbFormularListe gelesen;
        s >> gelesen;
        e.wiederPortabel = aufStrom<RWpostream>(gelesen);
    }
    if (e.wiederDatei != e.datei) e.rundreisen.push_back("RWFile");
    if (e.wiederBinaer != e.binaer) e.rundreisen.push_back("binary stream");
    if (e.wiederPortabel != e.portabel) e.rundreisen.push_back("portable stream");

    {
        CQBXMLdata baum("Antrag");
        liste->XMLgetDat(baum);
        e.listenXml = baum.asXMLUtf8();
        CQBXMLdata gelesen("");
        if (!gelesen.fromXMLUtf8(e.listenXml) || !gelesen.sameTree(baum)) e.rundreisen.push_back("list XML");
        qbFormularListe ausXml;
        ausXml.XMLputDat(gelesen);
        CQBXMLdata wieder("Antrag");
        ausXml.XMLgetDat(wieder);
        e.listeAusXml = wieder.asXMLUtf8();
    }
    for (unsigned pos = 0; pos < liste->AnzahlFormulare(); ++pos) {
        const qbFormular& form = *liste->liefereFormularAnPos(static_cast<int>(pos));
        const qbKlasse* k = qbKlasseZuId(form.isA());
        if (!k) {
            e.rundreisen.push_back("form " + std::to_string(pos) + ", whose class is unknown");
            continue;
        }
        CQBXMLdata knoten("");
        k->zuXml(form, knoten);
        const std::string xml = knoten.asXMLUtf8();
        CQBXMLdata gelesen("");
        if (!gelesen.fromXMLUtf8(xml) || !gelesen.sameTree(knoten))
            e.rundreisen.push_back("XML of form " + std::to_string(pos));
        std::unique_ptr<qbFormular> ausXml(k->ausXml(gelesen));
        CQBXMLdata wieder("");
        k->zuXml(*ausXml, wieder);
        e.formXml += xml + wieder.asXMLUtf8();
    }

    {
        qbFormularListe alt;
        if (beobachter) qbSetzeLeseBeobachter(beobachter);
        {
            RWFile f(kAlteLayouts.c_str(), "rb");
            f >> alt;
        }
        if (beobachter) {
            qbSetzeLeseBeobachter(nullptr);
            e.altBeobachtet = beobachter->nimm();
        }
        if (alt.AnzahlFormulare() == 0 || alt.AnzahlFormulare() != formenDerAltenLayouts())
            e.rundreisen.push_back("the file of old layouts");
        e.alt = aufStrom<RWbostream>(alt);
    }
    return e;
}

} // namespace

TEST(Nebenlaeufigkeit, EightThreadsStoreAndReadTheirOwnListsOnEveryStreamAndThroughXml) {
    std::vector<std::unique_ptr<TempFile>> dateien;
    std::vector<std::unique_ptr<Protokoll>> beobachter;
    std::vector<Ergebnis> erwartet;
    for (int nr = 0; nr < kFaeden; ++nr) {
        dateien.push_back(std::make_unique<TempFile>("faden" + std::to_string(nr)));
        beobachter.push_back(nr % 2 == 0 ? std::make_unique<Protokoll>() : nullptr);
        // The same work on this thread alone, before the others start.
        erwartet.push_back(arbeite(nr, dateien[nr]->path(), beobachter[nr].get()));
        const Ergebnis& e = erwartet.back();
        for (const std::string& r : e.rundreisen)
            ADD_FAILURE() << "thread " << nr << ": the round trip of " << r;
        EXPECT_GT(e.formen, 40u);
        EXPECT_GT(e.datei.size(), size_t{4000});
        EXPECT_NE(e.listeAusXml, "");
        EXPECT_EQ(e.beobachtet.empty(), !beobachter[nr]) << nr;
        // The old layouts are read as such: the observer names them.
        EXPECT_EQ(e.altBeobachtet.find("layout qbFormularL145 10.1999") == std::string::npos, !beobachter[nr])
            << nr;
        EXPECT_EQ(e.alt, erwartet.front().alt) << nr;
    }
    ASSERT_EQ(qbAktuellerLeseBeobachter(), nullptr);

    std::vector<int> abweichungen(kFaeden, 0);
    std::vector<std::string> erste(kFaeden);
    std::latch start(kFaeden);
    std::vector<std::thread> faeden;
    for (int nr = 0; nr < kFaeden; ++nr)
        faeden.emplace_back([&, nr] {
            start.arrive_and_wait();
            for (int runde = 0; runde < kRunden; ++runde) {
                const Ergebnis e = arbeite(nr, dateien[nr]->path(), beobachter[nr].get());
                if (e == erwartet[nr]) continue;
                if (!abweichungen[nr]++)
                    erste[nr] = "round " + std::to_string(runde) + ": " + erstesAnders(e, erwartet[nr]);
            }
        });
    for (std::thread& t : faeden)
        t.join();
    for (int nr = 0; nr < kFaeden; ++nr)
        EXPECT_EQ(abweichungen[nr], 0) << "thread " << nr << ", first in " << erste[nr];
    EXPECT_EQ(qbAktuellerLeseBeobachter(), nullptr);
}
