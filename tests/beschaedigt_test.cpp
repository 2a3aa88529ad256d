// Damaged records, systematically. For every class of the class table, a record of the current layout
// with every field filled and a record of every old layout its reader knows (found by asking the reader
// what it reads for every version, and written by the fixture writer) are stored as a list stores its
// elements, on RWFile and on both virtual streams. Each record is then cut off at every byte offset
// and has each of its bytes flipped, and is read back as a list read reads an element: inside the list's
// read table, the class from its identifier through the factory, then its restoreGuts.
//
// What must hold for every such read: no crash, no hang, no exception but the vendor machinery's own
// errors (RWxmsg), and no allocation out of proportion to the input (see Schranke below). A cut inside the
// record raises nothing, leaves the stream failed and hands back the form with what it had read: each
// field holds its value from the intact record or the one it had before. The same for whole lists: a list
// read from a damaged stream keeps the forms that stood before the damage.
#include "core/qbFormular.h"
#include "core/qbFormularListe.h"
#include "core/qbKlassen.h"
#include "core/qbLeseBeobachter.h"
#include "rw/bstream.h"
#include "rw/pstream.h"
#include "rw/rwerr.h"
#include "rw/rwfile.h"
#include "rw/rwstore.h"

#include "allokationen.h"
#include "alte_layouts.h"
#include "legacy_fixture.h"
#include "klassen_util.h"
#include "test_util.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <fcntl.h>
#include <sys/mman.h>
#include <map>
#include <memory>
#include <sstream>
#include <streambuf>
#include <string>
#include <thread>
#include <type_traits>
#include <unistd.h>
#include <vector>

using namespace qbtest;

namespace {

// ---- Inputs

// A streambuf over bytes the test holds: reading takes nothing from the heap, and in_avail tells how many
// bytes remain, as it does for a string or file buffer.
class Bytepuffer : public std::streambuf {
public:
    explicit Bytepuffer(std::string& bytes) { setg(bytes.data(), bytes.data(), bytes.data() + bytes.size()); }
};

// The one file that all RWFile cases of a test share, rewritten in place and cut to the new length: a
// file in memory where the system offers one (opened again by its name under /proc), else a temporary file.
class Dateieingabe {
public:
    Dateieingabe() {
        fd_ = ::memfd_create("qbformul_beschaedigt", MFD_CLOEXEC);
        if (fd_ >= 0 && ::access(("/proc/self/fd/" + std::to_string(fd_)).c_str(), R_OK) == 0) {
            pfad_ = "/proc/self/fd/" + std::to_string(fd_);
            return;
        }
        if (fd_ >= 0) ::close(fd_);
        tmp_ = std::make_unique<TempFile>("beschaedigt");
        pfad_ = tmp_->path();
        fd_ = ::open(tmp_->path(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        EXPECT_GE(fd_, 0) << pfad_;
    }
    ~Dateieingabe() {
        if (fd_ >= 0) ::close(fd_);
    }
    Dateieingabe(const Dateieingabe&) = delete;
    Dateieingabe& operator=(const Dateieingabe&) = delete;
    const char* pfad() const { return pfad_.c_str(); }
    void setze(const std::string& bytes) {
        const auto n = static_cast<ssize_t>(bytes.size());
        ASSERT_EQ(::pwrite(fd_, bytes.data(), bytes.size(), 0), n);
        ASSERT_EQ(::ftruncate(fd_, n), 0);
    }

private:
    std::unique_ptr<TempFile> tmp_;
    std::string pfad_;
    int fd_ = -1;
};

// A file opened for reading whose read buffer is already there: RWFile sets up a buffer of a fixed size on
// its first read, whatever the file holds, and that buffer is not what the counting below is about.
void bereiteVor(RWFile& f) {
    char c;
    f.Read(c);
    f.SeekTo(0);
}

bool gut(RWFile& f) { return f.good(); }
bool gut(RWvistream& s) { return s.good(); }
// Nothing left behind what was read.
bool amEnde(RWFile& f) {
    char c;
    return !f.Read(c);
}
bool amEnde(RWvistream& s) { return s.get() == std::char_traits<char>::eof(); }

// ---- Classes and fields

// The same value in both forms; feldAlsText() gives the text only for messages.
bool gleich(const qbFeld& z, const qbFormular& a, const qbFormular& b) {
    if (!z.imStrom) return true; // a field no record holds: no part of what a record gives back
    switch (z.art) {
    case qbArt::Text:
        return a.*z.mitglied.text == b.*z.mitglied.text;
    case qbArt::Flag:
        return a.*z.mitglied.flag == b.*z.mitglied.flag;
    case qbArt::Char:
        return a.*z.mitglied.zeichen == b.*z.mitglied.zeichen;
    case qbArt::Bool:
        return a.*z.mitglied.wahrheit == b.*z.mitglied.wahrheit;
    case qbArt::Int:
    case qbArt::Enum:
        return a.*z.mitglied.ganz == b.*z.mitglied.ganz;
    case qbArt::Long:
        return a.*z.mitglied.lang == b.*z.mitglied.lang;
    default:
        return feldAlsText(z, a) == feldAlsText(z, b);
    }
}

// Every field of the class and its bases a value of its own, texts short and never empty. The header's
// Version stays; with mitKopf false, number, name and person stay too.
void fuelle(qbFormular& form, const qbKlasse& k, bool mitKopf) {
    int n = 0;
    for (const qbFeldTabelle* t : kette(k))
        for (const qbFeld& z : *t) {
            ++n;
            const bool kopf = t == &qbFormular::felder();
            if (kopf && (std::string(z.name) == "Version" || !mitKopf)) continue;
            switch (z.art) {
            case qbArt::Text:
                form.*z.mitglied.text =
                    RWCString("t" + std::to_string(n) + (n % 4 ? "" : " mit Platz vom Heap") + "\xE4");
                break;
            case qbArt::Flag:
                form.*z.mitglied.flag = static_cast<unsigned char>(n);
                break;
            case qbArt::Char:
                form.*z.mitglied.zeichen = static_cast<char>('A' + n % 26);
                break;
            case qbArt::Bool:
                form.*z.mitglied.wahrheit = true;
                break;
            case qbArt::Int:
                form.*z.mitglied.ganz = 70000 + n;
                break;
            case qbArt::Enum:
                form.*z.mitglied.ganz = -n;
                break;
            case qbArt::Long:
                form.*z.mitglied.lang = -80000 - n;
                break;
            case qbArt::Double:
                form.*z.mitglied.zahl = n + 0.25;
                break;
            case qbArt::Date:
                (form.*z.mitglied.datum).julian(2440588u + static_cast<unsigned>(n));
                break;
            case qbArt::Person:
                (form.*z.mitglied.person).RefGebDat(RWCString("p" + std::to_string(n)));
                break;
            }
        }
}

// The version a record of the current layout carries: the class's own, or for a base class (whose
// constructor leaves Version empty) one of the current layout of the health forms.
const char* aktuelleVersion(const qbKlasse& k) { return *k.version ? k.version : "10.2002"; }

// The same value in every field the stream kind carries back.
bool gleicheFelder(const qbKlasse& k, const qbFormular& a, const qbFormular& b, Strom art) {
    for (const qbFeldTabelle* t : kette(k))
        for (const qbFeld& z : *t)
            if ((art == Strom::Datei || kommtUeberVirtuellenStrom(k, *t, z)) && !gleich(z, a, b))
                return false;
    return true;
}

// Differences of two forms in the fields of the class and its bases, "" when there are none.
std::string unterschiede(const qbKlasse& k, const qbFormular& ist, const qbFormular& soll) {
    std::string text;
    for (const qbFeldTabelle* t : kette(k))
        for (const qbFeld& z : *t)
            if (!gleich(z, ist, soll))
                text += std::string(" ") + z.name + "=" + feldAlsText(z, ist) + " (expected " +
                        feldAlsText(z, soll) + ")";
    return text;
}

// A number on the portable stream is ended by the character behind its digits, and one at the very end of
// the input needs none: a number that a cut goes through is taken with the digits before the cut, and the
// stream fails at the next value. So a field may hold the number of a leading part of its digits.
template <class T>
bool ausAbgeschnittenerZahl(T teil, T ganz) {
    const std::string a = std::to_string(teil), b = std::to_string(ganz);
    return a.size() < b.size() && b.compare(0, a.size(), a) == 0;
}

// The same for a double, which the portable stream writes in scientific notation: the value of a leading
// part of its text.
bool ausAbgeschnittenerGleitzahl(double teil, double ganz) {
    char text[64];
    const auto ende = std::to_chars(text, text + sizeof text, ganz, std::chars_format::scientific).ptr;
    for (char* p = text + 1; p < ende; ++p) {
        double v = 0;
        if (std::from_chars(text, p, v).ec == std::errc() && v == teil) return true;
    }
    return false;
}

// The form a cut record left: each field holds its value from the intact record or the one the fresh
// object had. "" when that holds, else the fields that do not.
std::string teilweiseGelesen(const qbKlasse& k, const qbFormular& teil, const qbFormular& ganz,
                             const qbFormular& frisch, Strom art) {
    std::string text;
    for (const qbFeldTabelle* t : kette(k))
        for (const qbFeld& z : *t) {
            if (gleich(z, teil, ganz) || gleich(z, teil, frisch)) continue;
            if (art == Strom::Portabel) {
                if (z.art == qbArt::Int &&
                    ausAbgeschnittenerZahl(teil.*z.mitglied.ganz, ganz.*z.mitglied.ganz))
                    continue;
                if (z.art == qbArt::Long &&
                    ausAbgeschnittenerZahl(teil.*z.mitglied.lang, ganz.*z.mitglied.lang))
                    continue;
                if (z.art == qbArt::Double &&
                    ausAbgeschnittenerGleitzahl(teil.*z.mitglied.zahl, ganz.*z.mitglied.zahl))
                    continue;
            }
            text += std::string(" ") + z.name + "=" + feldAlsText(z, teil) + " (intact " +
                    feldAlsText(z, ganz) + ", fresh " + feldAlsText(z, frisch) + ")";
        }
    return text;
}

// ---- Records

// The bytes of a collectable as a list stores its element: inside the list's store table, so an RWFile
// holds no magic number before it.
std::string alsElement(const RWCollectable& c, Strom art) {
    if (art == Strom::Datei) {
        TempFile tmp("element");
        {
            RWFile f(tmp.path(), "wb");
            RWUseStoreTable liste;
            f << c;
        }
        const Bytes b = readBytes(tmp.path());
        return std::string(b.begin(), b.end());
    }
    std::ostringstream out;
    RWUseStoreTable liste;
    if (art == Strom::Binaer) {
        RWbostream s(out);
        s << c;
    } else {
        RWpostream s(out);
        s << c;
    }
    return out.str();
}

// A record of an old layout as the fixture writer writes it, stored under a class's identifier.
class AlterSatz : public RWCollectable {
public:
    AlterSatz(AltSatz satz, RWClassID id) : satz_(std::move(satz)), id_(id) {}
    RWClassID isA() const override { return id_; }
    void saveGuts(RWFile& f) const override { satz_.schreibe(f); }
    void saveGuts(RWvostream& s) const override { satz_.schreibe(s); }

private:
    AltSatz satz_;
    RWClassID id_;
};

struct Satz {
    std::string name;                            // which layout, for messages
    std::string version;                         // of an old layout: the first version found to have it
    std::shared_ptr<const RWCollectable> quelle; // what is stored
    std::shared_ptr<const qbFormular> erwartet;  // the form read back, where it is not quelle itself
};

// The records of a class on a stream kind: the current layout with every field filled, then one record of
// every other layout its reader takes for some version. On a virtual stream a form stored on an RWFile
// only comes back with its header alone and its layouts are those of the header; the current record of a
// form whose reader does not take back all its writer wrote is left out there.
std::vector<Satz> findeSaetze(const qbKlasse& k, Strom art) {
    const bool virtuell = art != Strom::Datei;
    std::vector<Satz> alle;
    std::shared_ptr<qbFormular> aktuell = erzeuge(k);
    fuelle(*aktuell, k, true);
    aktuell->RefVersion(aktuelleVersion(k));
    if (!virtuell || virtuellerSatzGanzLesbar(k)) {
        std::shared_ptr<qbFormular> erwartet;
        if (virtuell && nurAufDatei(k)) {
            erwartet = erzeuge(k);
            erwartet->qbFormular::operator=(*aktuell);
        }
        alle.push_back({std::string("current ") + aktuelleVersion(k), "", aktuell, erwartet});
    }

    Dateieingabe datei;
    const qbKlasse& leser = virtuell && nurAufDatei(k) ? qbKlassen[qbIndex_qbFormular] : k;
    for (AlterLayoutSatz& alt : alteLayoutSaetze(leser, aktuelleVersion(k), datei.pfad()))
        alle.push_back({"layout of \"" + alt.version + "\"", alt.version,
                        std::make_shared<AlterSatz>(std::move(alt.satz), k.id), nullptr});
    return alle;
}

// Found once per class and stream kind for all tests of this file.
const std::vector<Satz>& saetze(const qbKlasse& k, Strom art) {
    static std::map<std::pair<RWClassID, Strom>, std::vector<Satz>> gefunden;
    const auto schluessel = std::make_pair(k.id, art);
    auto stelle = gefunden.find(schluessel);
    if (stelle == gefunden.end()) stelle = gefunden.emplace(schluessel, findeSaetze(k, art)).first;
    return stelle->second;
}

// ---- Reading and its bounds

// The largest form object of any class: a damaged class identifier may make the reader create a form of
// another class than the record's.
size_t groessteForm() {
    static const size_t groesste = [] {
        size_t g = 0;
        for (const qbKlasse& k : qbKlassen) {
            std::vector<std::unique_ptr<qbFormular>> formen;
            formen.reserve(20);
            AllokationsZaehler zaehler;
            for (int i = 0; i < 20; ++i) // more than wait in the cache of deleted forms
                formen.push_back(erzeuge(k));
            g = std::max(g, zaehler.stand().groesste);
        }
        return g;
    }();
    return groesste;
}

// The bound of a damaged read. A reader may take from the heap what the read of the intact record takes,
// one form object of any class (the identifier may be damaged), and for what the damaged input holds
// twice its bytes at once and four times in all: a string grows with the characters that arrive,
// doubling its room. So, with G and T the largest request and the sum of the intact read, F the largest
// form object and B the bytes of the damaged input:
//     every single request  <=  max(G, F, 2 * B)
//     all requests together <=  T + F + 4 * B
// A length or count that the input does not back, allocated ahead, breaks the first rule at once.
struct Schranke {
    Allokationen intakt;
    std::string pruefe(const Allokationen& ist, size_t eingabe) const {
        const size_t einzeln = std::max({intakt.groesste, groessteForm(), 2 * eingabe});
        const size_t summe = intakt.summe + groessteForm() + 4 * eingabe;
        std::string text;
        if (ist.groesste > einzeln)
            text += " a single allocation of " + std::to_string(ist.groesste) + " bytes (bound " +
                    std::to_string(einzeln) + ")";
        if (ist.summe > summe)
            text += " allocations of " + std::to_string(ist.summe) + " bytes in all (bound " +
                    std::to_string(summe) + ")";
        return text;
    }
};

// Runs a read and keeps what it threw: a vendor error's text in fehler, any other exception in fremd.
template <class Ergebnis, class Lesen>
void fangeAb(Ergebnis& e, Lesen lesen) {
    try {
        lesen();
    } catch (const RWxmsg& x) {
        e.fehler = x.why();
    } catch (const std::exception& x) {
        e.fremd = x.what();
    } catch (...) {
        e.fremd = "an exception of unknown type";
    }
}

struct Ergebnis {
    std::unique_ptr<RWCollectable> objekt;
    bool gut = false;
    bool amEnde = false;
    std::string fehler; // a vendor error's text
    std::string fremd;  // any other exception: always a finding
    Allokationen allokationen;
};

// Reads one element as a list read does: in the list's read table, through the factory.
class Elementleser {
public:
    Ergebnis lies(Strom art, std::string& bytes) {
        if (art == Strom::Datei) {
            datei_.setze(bytes);
            RWFile f(datei_.pfad(), "rb");
            bereiteVor(f);
            return lies(f);
        }
        Bytepuffer puffer(bytes);
        if (art == Strom::Binaer) {
            RWbistream s(&puffer);
            return lies(static_cast<RWvistream&>(s));
        }
        RWpistream s(&puffer);
        return lies(static_cast<RWvistream&>(s));
    }

private:
    template <class S>
    Ergebnis lies(S& s) {
        Ergebnis e;
        {
            AllokationsZaehler zaehler;
            fangeAb(e, [&] {
                RWUseReadTable liste;
                e.objekt.reset(RWCollectable::recursiveRestoreFrom(s));
            });
            e.allokationen = zaehler.stand();
        }
        e.gut = gut(s);
        e.amEnde = amEnde(s);
        return e;
    }

    Dateieingabe datei_;
};

// Collects what a loop over thousands of cases finds, and reports the first few of it.
class Befunde {
public:
    explicit Befunde(std::string wo) : wo_(std::move(wo)) {}
    ~Befunde() {
        if (anzahl_ > kGezeigt)
            ADD_FAILURE() << wo_ << ": " << anzahl_ - kGezeigt << " more findings like those above";
    }
    void melde(const std::string& text) {
        if (++anzahl_ <= kGezeigt) ADD_FAILURE() << wo_ << ": " << text;
    }

private:
    static constexpr int kGezeigt = 8;
    std::string wo_;
    int anzahl_ = 0;
};

std::string bei(const char* was, size_t stelle) {
    return std::string(was) + " at byte " + std::to_string(stelle) + ":";
}

class JedeKlasseJederStrom : public ::testing::TestWithParam<std::tuple<const qbKlasse*, Strom>> {
protected:
    const qbKlasse& klasse() const { return *std::get<0>(GetParam()); }
    Strom art() const { return std::get<1>(GetParam()); }
    std::string wo(const Satz& s) const {
        return std::string(klasse().klassenName) + " on " + name(art()) + ", " + s.name;
    }
};

std::vector<std::tuple<const qbKlasse*, Strom>> alleKlassenAufAllenStroemen() {
    std::vector<std::tuple<const qbKlasse*, Strom>> alle;
    for (const qbKlasse& k : qbKlassen)
        for (Strom s : {Strom::Datei, Strom::Binaer, Strom::Portabel})
            alle.emplace_back(&k, s);
    return alle;
}

std::string fallName(const ::testing::TestParamInfo<std::tuple<const qbKlasse*, Strom>>& info) {
    const Strom s = std::get<1>(info.param);
    return std::string(std::get<0>(info.param)->klassenName) + "_" +
           (s == Strom::Datei    ? "RWFile"
            : s == Strom::Binaer ? "Binary"
                                 : "Portable");
}

} // namespace

// The records the damage tests start from: every layout found is read back whole, to its last byte, and
// the current record gives back every field.
TEST_P(JedeKlasseJederStrom, EveryLayoutsRecordReadsBackWholeToItsLastByte) {
    const qbKlasse& k = klasse();
    if (art() != Strom::Datei && virtuellOhneRueckweg(k))
        GTEST_SKIP()
            << "its records do not come back from a virtual stream, by design (the form's own tests)";
    const std::vector<Satz>& alle = saetze(k, art());
    ASSERT_GE(alle.size(), 2u) << "no old layout found for " << k.klassenName;
    Elementleser leser;
    for (const Satz& s : alle) {
        std::string bytes = alsElement(*s.quelle, art());
        Ergebnis e = leser.lies(art(), bytes);
        ASSERT_EQ(e.fremd + e.fehler, "") << wo(s);
        ASSERT_NE(e.objekt, nullptr) << wo(s);
        EXPECT_EQ(e.objekt->isA(), k.id) << wo(s);
        EXPECT_TRUE(e.gut) << wo(s);
        EXPECT_TRUE(e.amEnde) << wo(s) << ": the reader stopped before the record's end";
        const auto* form = s.erwartet ? s.erwartet.get() : dynamic_cast<const qbFormular*>(s.quelle.get());
        if (form) {
            EXPECT_EQ(unterschiede(k, static_cast<const qbFormular&>(*e.objekt), *form), "") << wo(s);
        }
    }
}

// The old layouts the search finds, each under the first version that showed it: the layouts that the
// form tests spell out field by field. When a reader learns a new layout, it shows here.
TEST(Beschaedigt, OldLayoutsFoundForEveryClass) {
    // With the header alone (qbFormular, L440), "10.1999" stands for every key below 200111: no
    // Seitenanzahl. In the health family "10.1999" and "01.2000" are the literals of the oldest layouts,
    // "01.1999" the keys below 200012 (a Flag, an Int and a Text thrown away), "12.2000" the keys up to
    // 200110, "11.2001" the key 200111 (Seitenanzahl and the change of workplace: the current layout of
    // the base, L144 and L147), "12.2001" the later keys without the change of workplace, and for L145
    // "05.2002" the keys before 200210. The diving form (L451) reads ApnoetauchenJN from 200504 on, so
    // "11.2001" stands for the keys from 200111 to 200503.
    std::map<std::string, std::vector<std::string>> erwartet = {
        {"qbFormular", {"10.1999"}},
        {"qbFormularL440", {"10.1999"}},
        {"qbFormularL441", {"10.1999"}},
        {"qbFormularL450", {"10.1999"}},
        {"qbFormularL451", {"10.1999", "11.2001"}},
        {"qbFormularL452", {"10.1999"}},
        {"qbFormularL453", {"10.1999"}},
        {"qbFormularL454", {"10.1999"}},
        {"qbFormularX278", {"10.1999"}},
        {"qbFormularL036", {"10.1999"}},
        {"qbFormularAllgGesu", {"10.1999", "01.1999", "12.2000", "12.2001"}},
        {"qbFormularL144", {"10.1999", "01.1999", "12.2000", "12.2001"}},
        {"qbFormularL147", {"10.1999", "01.1999", "12.2000", "12.2001"}},
        {"qbFormularL146", {"10.1999", "01.2000", "01.1999", "12.2000", "11.2001", "12.2001"}},
        {"qbFormularL145", {"10.1999", "01.2000", "01.1999", "12.2000", "11.2001", "12.2001", "05.2002"}},
        // L135 and L137 read all their fields from every record, L139 ArztName from 08.2008 and the triple
        // of its own before 08.2009; L134 lacks ZigarettenJN before 05.2002 and has no layout of its own for
        // "10.1999". L143's "05.2002" is its layout of that month alone, "06.2002" the keys up to 200209.
        {"qbFormularL135", {"10.1999", "01.1999", "12.2000", "12.2001"}},
        {"qbFormularL137", {"10.1999", "01.1999", "12.2000", "12.2001"}},
        {"qbFormularL139", {"10.1999", "01.1999", "12.2000", "11.2001", "12.2001", "08.2008"}},
        {"qbFormularL142", {"10.1999", "01.2000", "01.1999", "12.2000", "11.2001", "12.2001"}},
        {"qbFormularL138", {"10.1999", "01.2000", "01.1999", "12.2000", "11.2001", "12.2001"}},
        {"qbFormularL143",
         {"10.1999", "01.2000", "01.1999", "12.2000", "11.2001", "12.2001", "05.2002", "06.2002"}},
        {"qbFormularL141", {"10.1999", "01.2000", "01.1999", "12.2000", "12.2001"}},
        {"qbFormularL134", {"10.1999", "01.1999", "12.2000", "11.2001", "12.2001"}},
        {"qbFormularL241", {"10.1999", "01.2000", "01.1999", "12.2000", "11.2001", "12.2001"}},
        {"qbFormularL249", {"10.1999", "01.2000", "01.1999", "12.2000", "11.2001", "12.2001"}},
        {"qbFormularL243", {"10.1999", "01.1999", "12.2000", "11.2001", "12.2001"}},
        {"qbFormularL244", {"10.1999", "01.1999", "12.2000", "12.2001"}},
        {"qbFormularL245", {"10.1999", "01.1999", "12.2000", "12.2001"}},
        {"qbFormularL283", {"10.1999", "01.1999", "12.2000", "12.2001"}},
        {"qbFormularL281", {"10.1999", "01.1999", "12.2000", "12.2001"}},
        {"qbFormularL282", {"10.1999", "01.1999", "12.2000", "12.2001"}},
        // GS004: "10.1999" the years before 2000, "01.2000" the year 2000 before the sports block,
        // "10.2000" the sports block, "11.2001" Seitenanzahl, "05.2002" BeschreibungNebenJob. BUZ: the
        // Gewinn array from "12.2003"; LV and UZ read one layout behind the header.
        {"qbFormularGS004", {"10.1999", "01.2000", "10.2000", "11.2001", "05.2002"}},
        {"qbFormularGS004BUZ", {"10.1999", "11.2001", "12.2003"}},
        {"qbFormularGS004LV", {"10.1999"}},
        {"qbFormularGS004UZ", {"10.1999"}},
        // The pension form: keys below 200212 without and with Seitenanzahl, then the fields of 12.2002,
        // 08.2003 and 01.2005, the three values thrown away at 10.2006, and 11.2006 without the old values.
        {"qbFormularBAV", {"10.1999", "11.2001", "12.2002", "08.2003", "01.2005", "10.2006", "11.2006"}},
        // A record of zeros has no second copy of Version: one layout for every version, but the header's.
        {"qbFormularGN056", {"10.1999"}},
        {"qbFormularL095", {"10.1999"}},
        // L300 by equality: any other key (without and with Seitenanzahl), 10.2002 and 04.2003; VB077 before
        // 06.2003. The other clerical forms read one layout behind the header.
        {"qbFormularL300", {"10.1999", "11.2001", "10.2002", "04.2003"}},
        {"qbFormularL300_2", {"10.1999"}},
        {"qbFormularKOLL", {"10.1999"}},
        {"qbFormularGR396", {"10.1999"}},
        {"qbFormularVB077A", {"10.1999"}},
        {"qbFormularBA272", {"10.1999"}},
        {"qbFormularBA276", {"10.1999"}},
        {"qbFormularVB077", {"10.1999", "11.2001"}},
        {"qbFormularAenderungsprotokoll", {"10.1999"}},
        {"qbFormularAU523", {"10.1999"}},
    };
    for (const qbKlasse& k : qbKlassen) {
        std::vector<std::string> gefunden;
        for (const Satz& s : saetze(k, Strom::Datei))
            if (!s.version.empty()) gefunden.push_back(s.version);
        EXPECT_EQ(gefunden, erwartet[k.klassenName]) << k.klassenName;
    }
}

TEST_P(JedeKlasseJederStrom, RecordCutAtEveryOffsetFailsTheStreamAndKeepsWhatWasRead) {
    const qbKlasse& k = klasse();
    if (art() != Strom::Datei && virtuellOhneRueckweg(k))
        GTEST_SKIP()
            << "its records do not come back from a virtual stream, by design (the form's own tests)";
    const auto frisch = erzeuge(k);
    Elementleser leser;
    for (const Satz& s : saetze(k, art())) {
        Befunde befunde(wo(s));
        std::string bytes = alsElement(*s.quelle, art());
        const Ergebnis intakt = leser.lies(art(), bytes);
        ASSERT_NE(intakt.objekt, nullptr) << wo(s);
        const qbFormular& ganz = static_cast<const qbFormular&>(*intakt.objekt);
        const Schranke schranke{intakt.allokationen};
        size_t formAb = bytes.size(); // the shortest cut that gave the form back
        for (size_t laenge = 0; laenge < bytes.size(); ++laenge) {
            std::string kurz = bytes.substr(0, laenge);
            const Ergebnis e = leser.lies(art(), kurz);
            const std::string hier = bei("cut", laenge);
            if (!e.fremd.empty() || !e.fehler.empty()) befunde.melde(hier + " raised " + e.fremd + e.fehler);
            if (e.gut) befunde.melde(hier + " the stream is still good");
            if (const std::string z = schranke.pruefe(e.allokationen, laenge); !z.empty())
                befunde.melde(hier + z);
            if (!e.objekt) {
                if (laenge > formAb) befunde.melde(hier + " no form, though a shorter cut gave it back");
                continue;
            }
            formAb = std::min(formAb, laenge);
            if (e.objekt->isA() != k.id) {
                befunde.melde(hier + " read a form of class " + std::to_string(e.objekt->isA()));
                continue;
            }
            const std::string teil =
                teilweiseGelesen(k, static_cast<const qbFormular&>(*e.objekt), ganz, *frisch, art());
            if (!teil.empty()) befunde.melde(hier + " fields neither read nor left:" + teil);
        }
        // The form is made as soon as its class is known: behind the two bytes of its identifier on RWFile,
        // behind ':', the identifier and '{' on a virtual stream (the portable one escapes '{' in two).
        EXPECT_LE(formAb, art() == Strom::Datei ? 2u : art() == Strom::Binaer ? 4u : 9u) << wo(s);
    }
}

TEST_P(JedeKlasseJederStrom, RecordWithAnyByteFlippedIsReadWithoutCrashOrOversizedAllocation) {
    const qbKlasse& k = klasse();
    Elementleser leser;
    for (const Satz& s : saetze(k, art())) {
        Befunde befunde(wo(s));
        std::string bytes = alsElement(*s.quelle, art());
        const Schranke schranke{leser.lies(art(), bytes).allokationen};
        // Every bit, and the high bit alone: a stored length turns huge or merely large.
        for (unsigned char muster : {0xFF, 0x80})
            for (size_t stelle = 0; stelle < bytes.size(); ++stelle) {
                std::string kaputt = bytes;
                kaputt[stelle] = static_cast<char>(kaputt[stelle] ^ muster);
                const Ergebnis e = leser.lies(art(), kaputt);
                const std::string hier = bei(muster == 0xFF ? "byte inverted" : "high bit flipped", stelle);
                if (!e.fremd.empty()) befunde.melde(hier + " raised " + e.fremd);
                if (const std::string z = schranke.pruefe(e.allokationen, kaputt.size()); !z.empty())
                    befunde.melde(hier + z);
            }
    }
}

INSTANTIATE_TEST_SUITE_P(Beschaedigt, JedeKlasseJederStrom,
                         ::testing::ValuesIn(alleKlassenAufAllenStroemen()), fallName);

// ---- Lists

namespace {

// Applications with one form of every class that is a print piece of its own, every field filled, a few
// classes to each (the sweeps read a list once per byte, so their time grows with the square of a list's
// length); on a virtual stream only the classes whose records come back from one.
std::vector<qbFormularListe> beispielAntraege(Strom art) {
    std::vector<std::unique_ptr<qbFormular>> formen;
    for (const qbKlasse& k : qbKlassen) {
        if (k.listenart == qbListenart::Basis) continue;
        if (art != Strom::Datei && !virtuellRundreise(k)) continue;
        formen.push_back(erzeuge(k));
        fuelle(*formen.back(), k, false);
    }
    const size_t listen = (formen.size() + 7) / 8, jeListe = (formen.size() + listen - 1) / listen;
    std::vector<qbFormularListe> antraege(listen);
    for (size_t i = 0; i < formen.size(); ++i)
        antraege[i / jeListe].neuesFormular(*formen[i]);
    return antraege;
}

// A list's bytes on one stream kind, with the offset where its first form begins and where each form
// ends. The list is written value by value as its operator<< writes it (and compared with what that
// writes), so that the offsets between the forms can be taken.
struct Gespeichert {
    std::string bytes;
    size_t anfang = 0;
    std::vector<size_t> enden;
};

void zeichen(RWFile& f, char c) { f.Write(c); }
void zeichen(RWvostream& s, char c) { s << c; }

template <class S, class Position>
void schreibeListe(S& s, const qbFormularListe& liste, Position position, Gespeichert& g) {
    RWUseStoreTable tabelle; // opened by the list's operator<<: no magic before the collection
    zeichen(s, ':');
    liste.RefVersion().saveOn(s);
    if constexpr (std::is_same_v<S, RWFile>) {
        s.Write(static_cast<unsigned short>(__RWDLISTCOLLECTABLES));
        s.Write(static_cast<unsigned>(liste.AnzahlFormulare()));
    } else {
        s << ':' << static_cast<unsigned short>(__RWDLISTCOLLECTABLES) << '{';
        s << static_cast<unsigned>(liste.AnzahlFormulare());
    }
    g.anfang = position();
    for (unsigned i = 0; i < liste.AnzahlFormulare(); ++i) {
        liste.liefereFormularAnPos(static_cast<int>(i))->recursiveSaveOn(s);
        g.enden.push_back(position());
    }
    if constexpr (!std::is_same_v<S, RWFile>) zeichen(s, '}');
}

Gespeichert speichere(const qbFormularListe& liste, Strom art) {
    Gespeichert g;
    std::string ganz;
    if (art == Strom::Datei) {
        TempFile tmp("liste"), vergleich("liste");
        {
            RWFile f(tmp.path(), "wb");
            schreibeListe(
                f, liste, [&] { return static_cast<size_t>(f.CurOffset()); }, g);
        }
        {
            RWFile f(vergleich.path(), "wb");
            f << liste;
        }
        const Bytes b = readBytes(tmp.path()), v = readBytes(vergleich.path());
        g.bytes.assign(b.begin(), b.end());
        ganz.assign(v.begin(), v.end());
    } else {
        std::ostringstream out, vergleich;
        auto position = [&] { return static_cast<size_t>(out.tellp()); };
        if (art == Strom::Binaer) {
            RWbostream s(out), v(vergleich);
            schreibeListe(s, liste, position, g);
            v << liste;
        } else {
            RWpostream s(out), v(vergleich);
            schreibeListe(s, liste, position, g);
            v << liste;
        }
        g.bytes = out.str();
        ganz = vergleich.str();
    }
    EXPECT_EQ(hex(bytesOf(g.bytes)), hex(bytesOf(ganz))) << "the list is no longer written as written here";
    return g;
}

struct Listenergebnis {
    std::unique_ptr<qbFormularListe> liste;
    bool gut = false;
    std::string fehler, fremd;
    Allokationen allokationen;
};

// Reads a list from the bytes, into an existing list or, with zeiger, into a new one the reader makes.
class Listenleser {
public:
    Listenergebnis lies(Strom art, std::string& bytes, bool zeiger) {
        if (art == Strom::Datei) {
            datei_.setze(bytes);
            RWFile f(datei_.pfad(), "rb");
            bereiteVor(f);
            return lies(f, zeiger);
        }
        Bytepuffer puffer(bytes);
        if (art == Strom::Binaer) {
            RWbistream s(&puffer);
            return lies(static_cast<RWvistream&>(s), zeiger);
        }
        RWpistream s(&puffer);
        return lies(static_cast<RWvistream&>(s), zeiger);
    }

private:
    template <class S>
    Listenergebnis lies(S& s, bool zeiger) {
        Listenergebnis e;
        qbFormularListe* neu = nullptr;
        if (!zeiger) e.liste = std::make_unique<qbFormularListe>();
        {
            AllokationsZaehler zaehler;
            fangeAb(e, [&] {
                if (zeiger)
                    s >> neu;
                else
                    s >> *e.liste;
            });
            e.allokationen = zaehler.stand();
        }
        if (zeiger) e.liste.reset(neu); // the caller's, also when an error was raised
        e.gut = gut(s);
        return e;
    }

    Dateieingabe datei_;
};

// The forms of the list that equal those of the original as the stream kind carries them, counted from
// the front.
unsigned gleicheVorne(const qbFormularListe& gelesen, const qbFormularListe& original, Strom art) {
    unsigned n = 0;
    for (; n < gelesen.AnzahlFormulare() && n < original.AnzahlFormulare(); ++n) {
        const qbFormular& ist = *gelesen.liefereFormularAnPos(static_cast<int>(n));
        const qbFormular& soll = *original.liefereFormularAnPos(static_cast<int>(n));
        const qbKlasse* k = qbKlasseZuId(soll.isA());
        if (ist.isA() != soll.isA() || !k || !gleicheFelder(*k, ist, soll, art)) break;
    }
    return n;
}

class BeschaedigteListe : public ::testing::TestWithParam<Strom> {
protected:
    void schneideUeberall(const qbFormularListe& original);
    void kippeUeberall(const qbFormularListe& original);
};

std::string stromName(const ::testing::TestParamInfo<Strom>& info) {
    return info.param == Strom::Datei ? "RWFile" : info.param == Strom::Binaer ? "Binary" : "Portable";
}

} // namespace

// A list cut off at any byte: the stream fails, no error is raised, and the list holds every form that
// stood whole before the cut, as it was stored; the form the cut went through may follow, with what it had
// read of its fields.
TEST_P(BeschaedigteListe, CutAtEveryOffsetKeepsEveryFormBeforeTheCut) {
    for (const qbFormularListe& original : beispielAntraege(GetParam())) {
        SCOPED_TRACE(original.liefereFormularAnPos(0)->RefDruckstueckNummer().std());
        schneideUeberall(original);
    }
}

void BeschaedigteListe::schneideUeberall(const qbFormularListe& original) {
    ASSERT_GE(original.AnzahlFormulare(), 3u);
    Gespeichert g = speichere(original, GetParam());
    Befunde befunde(std::string("list on ") + name(GetParam()));
    Listenleser leser;
    const Listenergebnis intakt = leser.lies(GetParam(), g.bytes, false);
    ASSERT_EQ(intakt.fremd + intakt.fehler, "");
    ASSERT_EQ(gleicheVorne(*intakt.liste, original, GetParam()), original.AnzahlFormulare());
    const Schranke schranke{intakt.allokationen};
    for (size_t laenge = 0; laenge < g.bytes.size(); ++laenge) {
        std::string kurz = g.bytes.substr(0, laenge);
        const Listenergebnis e = leser.lies(GetParam(), kurz, false);
        const std::string hier = bei("cut", laenge);
        if (!e.fremd.empty() || !e.fehler.empty()) befunde.melde(hier + " raised " + e.fremd + e.fehler);
        if (e.gut) befunde.melde(hier + " the stream is still good");
        if (const std::string z = schranke.pruefe(e.allokationen, laenge); !z.empty())
            befunde.melde(hier + z);
        const auto ganze = static_cast<unsigned>(
            std::count_if(g.enden.begin(), g.enden.end(), [&](size_t e) { return e <= laenge; }));
        const unsigned gelesen = e.liste->AnzahlFormulare();
        if (gleicheVorne(*e.liste, original, GetParam()) < ganze || gelesen > ganze + 1)
            befunde.melde(hier + " holds " + std::to_string(gelesen) + " forms, " +
                          std::to_string(gleicheVorne(*e.liste, original, GetParam())) +
                          " as stored, of the " + std::to_string(ganze) + " before the cut");
        if (gelesen == ganze + 1 && ganze < original.AnzahlFormulare()) {
            const qbFormular& teil = *e.liste->liefereFormularAnPos(static_cast<int>(ganze));
            const qbFormular& soll = *original.liefereFormularAnPos(static_cast<int>(ganze));
            const qbKlasse* k = qbKlasseZuId(soll.isA());
            if (teil.isA() != soll.isA() || !k) {
                befunde.melde(hier + " the form the cut went through is of another class");
                continue;
            }
            const std::string rest = teilweiseGelesen(*k, teil, soll, *erzeuge(*k), GetParam());
            if (!rest.empty()) befunde.melde(hier + " the form the cut went through:" + rest);
        }
    }
}

// A list with any byte inverted, read into a new list: no crash, no error but the vendor's, no oversized
// allocation; the new list is the caller's also when an error is raised, and it holds every form that
// stood whole before the damaged byte.
TEST_P(BeschaedigteListe, FlippedByteAtEveryOffsetKeepsEveryFormBeforeTheDamage) {
    for (const qbFormularListe& original : beispielAntraege(GetParam())) {
        SCOPED_TRACE(original.liefereFormularAnPos(0)->RefDruckstueckNummer().std());
        kippeUeberall(original);
    }
}

void BeschaedigteListe::kippeUeberall(const qbFormularListe& original) {
    Gespeichert g = speichere(original, GetParam());
    Befunde befunde(std::string("list on ") + name(GetParam()));
    Listenleser leser;
    const Listenergebnis intakt = leser.lies(GetParam(), g.bytes, true);
    ASSERT_EQ(intakt.fremd + intakt.fehler, "");
    ASSERT_NE(intakt.liste, nullptr);
    ASSERT_EQ(gleicheVorne(*intakt.liste, original, GetParam()), original.AnzahlFormulare());
    const Schranke schranke{intakt.allokationen};
    for (size_t stelle = 0; stelle < g.bytes.size(); ++stelle) {
        std::string kaputt = g.bytes;
        kaputt[stelle] = static_cast<char>(~kaputt[stelle]);
        const Listenergebnis e = leser.lies(GetParam(), kaputt, true);
        const std::string hier = bei("byte inverted", stelle);
        if (!e.fremd.empty()) befunde.melde(hier + " raised " + e.fremd);
        if (const std::string z = schranke.pruefe(e.allokationen, kaputt.size()); !z.empty())
            befunde.melde(hier + z);
        if (stelle < g.anfang) continue; // the marker, Version or the collection's own bytes
        const auto ganze = static_cast<unsigned>(
            std::count_if(g.enden.begin(), g.enden.end(), [&](size_t e) { return e <= stelle; }));
        if (!e.liste)
            befunde.melde(hier + " no list");
        else if (gleicheVorne(*e.liste, original, GetParam()) < ganze)
            befunde.melde(hier + " holds " + std::to_string(gleicheVorne(*e.liste, original, GetParam())) +
                          " forms as stored of the " + std::to_string(ganze) + " before the damage");
    }
}

INSTANTIATE_TEST_SUITE_P(Beschaedigt, BeschaedigteListe,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);

// ---- The counting itself, and strings of a stored length

// The bounds above hold trivially if nothing is counted: the library's requests are counted, on the
// counting thread only.
TEST(Allokationszaehler, CountsTheLibrarysRequestsOnTheCountingThreadOnly) {
    std::string bytes = std::string("\x10\x27\0\0\x10\x27\0\0", 8) + std::string(10000, 'x');
    Bytepuffer puffer(bytes);
    RWbistream s(&puffer);
    RWCString r;
    AllokationsZaehler zaehler;
    r.restoreFrom(s);
    std::thread([] { std::vector<char> anderswo(50000); }).join();
    EXPECT_EQ(r.length(), 10000u);
    EXPECT_GE(zaehler.stand().groesste, 10000u);
    EXPECT_LT(zaehler.stand().groesste, 50000u);
    {
        AllokationsZaehler innen;
        // A call of operator new itself: an optimiser may leave out the allocation of a new-expression.
        void* mehr = ::operator new(20000);
        EXPECT_EQ(innen.stand().anzahl, 1u);
        ::operator delete(mehr);
    }
    EXPECT_GE(zaehler.stand().groesste, 20000u) << "an outer counter sees what an inner one sees";
}

class GespeicherteLaenge : public ::testing::TestWithParam<Strom> {};

// A text whose stored length promises more than the input holds: the stream fails, the string keeps its
// value, and what is allocated grows with the characters that arrived, never with the stored length.
TEST_P(GespeicherteLaenge, BeyondTheInputAllocatesNoMoreThanTwiceTheInput) {
    for (unsigned laenge : {11u, 4096u, 65536u, 1u << 24, 0x7FFFFFFFu, 0xFFFFFFFFu})
        for (size_t vorhanden : {size_t{0}, size_t{10}, size_t{5000}}) {
            if (vorhanden >= laenge) continue;
            const std::string zeichen(vorhanden, 'x');
            std::string bytes;
            if (GetParam() == Strom::Portabel) {
                bytes = std::to_string(laenge) + "\n\"" + zeichen; // no closing quote: the input ends first
            } else {
                const Bytes n = int32(static_cast<int32_t>(laenge));
                bytes.assign(n.begin(), n.end());
                if (GetParam() == Strom::Binaer) bytes += bytes; // the length twice, as putString writes it
                bytes += zeichen;
            }
            RWCString r("alt");
            Allokationen gezaehlt;
            bool gut = true;
            if (GetParam() == Strom::Datei) {
                Dateieingabe datei;
                datei.setze(bytes);
                RWFile f(datei.pfad(), "rb");
                bereiteVor(f);
                AllokationsZaehler zaehler;
                r.restoreFrom(f);
                gezaehlt = zaehler.stand();
                gut = f.good();
            } else {
                Bytepuffer puffer(bytes);
                RWbistream binaer(&puffer);
                RWpistream portabel(&puffer);
                RWvistream& s = GetParam() == Strom::Binaer ? static_cast<RWvistream&>(binaer) : portabel;
                AllokationsZaehler zaehler;
                r.restoreFrom(s);
                gezaehlt = zaehler.stand();
                gut = s.good();
            }
            const std::string fall =
                std::to_string(laenge) + " stored, " + std::to_string(vorhanden) + " there";
            EXPECT_FALSE(gut) << fall;
            EXPECT_EQ(r, "alt") << fall;
            EXPECT_LE(gezaehlt.groesste, 2 * bytes.size()) << fall;
            EXPECT_LE(gezaehlt.summe, 4 * bytes.size()) << fall;
        }
}

INSTANTIATE_TEST_SUITE_P(Beschaedigt, GespeicherteLaenge,
                         ::testing::Values(Strom::Datei, Strom::Binaer, Strom::Portabel), stromName);
