#include "anwendungsdatei.h"

#include "atomar.h"
#include "werkzeug.h"

#include "core/qbLeseBeobachter.h"
#include "rw/dlistcol.h"
#include "rw/factory.h"
#include "rw/rwerr.h"

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <sys/stat.h>

namespace qbtool {

namespace {

constexpr unsigned kVerweisMarke = 0xFFFF;
// Object numbers of one stored list: 0 is nil, 1 the list, 2 its collection, the forms from 3 on.
constexpr long kErsteFormNummer = 3;
// A Version text longer than this is no Version: only for telling where a form begins.
constexpr unsigned long kLaengsteVersion = 255;

void pruefeRegulaereDatei(const std::string& pfad) {
    struct stat st;
    if (::stat(pfad.c_str(), &st) != 0) throw dateiFehler(pfad, systemFehler(errno));
    if (S_ISDIR(st.st_mode)) throw dateiFehler(pfad, "is a directory, not an application file");
    if (!S_ISREG(st.st_mode)) throw dateiFehler(pfad, "is no regular file");
}

// Remembers where a record's read failed and passes every report on to the observer installed before.
class Fehlstellenprotokoll : public qbLeseBeobachter {
public:
    Fehlstellenprotokoll(RWFile& datei, Element& element)
        : datei_(datei), element_(element), vorher_(qbSetzeLeseBeobachter(this)) {}
    ~Fehlstellenprotokoll() override { qbSetzeLeseBeobachter(vorher_); }
    Fehlstellenprotokoll(const Fehlstellenprotokoll&) = delete;
    Fehlstellenprotokoll& operator=(const Fehlstellenprotokoll&) = delete;

    void layout(const char* klasse, const char* name) override {
        if (vorher_) vorher_->layout(klasse, name);
    }
    void feld(const char* name, qbArt art, long von, long bis, const std::string& wert) override {
        if (element_.fehlerBei < 0 && !datei_.good()) {
            element_.fehlerFeld = name ? name : "a value the form no longer keeps";
            element_.fehlerArt = art;
            element_.fehlerBei = von;
        }
        if (vorher_) vorher_->feld(name, art, von, bis, wert);
    }

private:
    RWFile& datei_;
    Element& element_;
    qbLeseBeobachter* vorher_;
};

bool istVersionstext(const std::vector<unsigned char>& b, size_t bei) {
    static const char muster[] = "00.0000";
    for (size_t i = 0; i < 7; ++i) {
        const unsigned char c = b[bei + i];
        if (muster[i] == '.' ? c != '.' : (c < '0' || c > '9')) return false;
    }
    return true;
}

} // namespace

const char* artName(qbArt art) {
    switch (art) {
    case qbArt::Text:
        return "Text";
    case qbArt::Flag:
        return "Flag";
    case qbArt::Char:
        return "Char";
    case qbArt::Bool:
        return "Bool";
    case qbArt::Int:
        return "Int";
    case qbArt::Long:
        return "Long";
    case qbArt::Double:
        return "Double";
    case qbArt::Date:
        return "Date";
    case qbArt::Person:
        return "Person";
    case qbArt::Enum:
        return "Enum";
    }
    return "?";
}

std::string Element::beschreibung() const {
    std::string text = "form " + std::to_string(position);
    std::string wer;
    if (klasse) wer = klasse->klassenName;
    if (form && !form->RefDruckstueckNummer().isNull()) {
        wer += (wer.empty() ? "" : ", ") + lesbar(utf8(form->RefDruckstueckNummer()));
        if (!form->RefPersonenKennung().isNull()) wer += " " + lesbar(utf8(form->RefPersonenKennung()));
    }
    if (!wer.empty()) text += " (" + wer + ")";
    return text + " at byte " + std::to_string(beginn);
}

// ---- Rahmenleser

namespace {

std::vector<unsigned char> ladeDatei(const std::string& pfad) {
    pruefeRegulaereDatei(pfad);
    std::ifstream ein(pfad, std::ios::binary);
    if (!ein) throw dateiFehler(pfad, systemFehler(errno));
    // In blocks: a regular file, but its size may change while it is read.
    std::vector<unsigned char> bytes;
    char block[65536];
    while (ein.read(block, sizeof block) || ein.gcount() > 0)
        bytes.insert(bytes.end(), block, block + ein.gcount());
    if (ein.bad()) throw dateiFehler(pfad, "cannot be read");
    return bytes;
}

} // namespace

Rahmenleser::Rahmenleser(const std::string& pfad)
    : pfad_(pfad), bytes_(ladeDatei(pfad)), datei_(pfad.c_str(), "rb") {
    if (!datei_.isValid()) throw dateiFehler(pfad, systemFehler(errno));
}

unsigned long Rahmenleser::u32(long bei) const {
    if (bei < 0 || static_cast<size_t>(bei) + 4 > bytes_.size()) return 0;
    const size_t i = static_cast<size_t>(bei);
    return static_cast<unsigned long>(bytes_[i]) | static_cast<unsigned long>(bytes_[i + 1]) << 8 |
           static_cast<unsigned long>(bytes_[i + 2]) << 16 | static_cast<unsigned long>(bytes_[i + 3]) << 24;
}

unsigned Rahmenleser::u16(long bei) const {
    if (bei < 0 || static_cast<size_t>(bei) + 2 > bytes_.size()) return 0;
    const size_t i = static_cast<size_t>(bei);
    return static_cast<unsigned>(bytes_[i]) | static_cast<unsigned>(bytes_[i + 1]) << 8;
}

Listenkopf Rahmenleser::liesKopf() {
    if (bytes_.empty()) throw dateiFehler(pfad_, "is empty: no application file");
    Listenkopf kopf;
    char marke = 0;
    datei_.Read(marke);
    if (marke == '@')
        throw dateiFehler(pfad_,
                          "begins with '@', a reference to a list stored before it: no application file "
                          "of its own");
    if (marke != ':')
        throw dateiFehler(pfad_, "is no application file: its first byte is " +
                                     hexZahl(static_cast<unsigned char>(marke), 2) + ", not ':' (0x3A)");
    kopf.versionBei = datei_.CurOffset();
    kopf.version.restoreFrom(datei_);
    if (!datei_.good())
        throw dateiFehler(pfad_, "the list's Version at byte 1 is cut off: a Text of " +
                                     std::to_string(u32(1)) + " bytes, the file has " +
                                     std::to_string(groesse()));
    const long sammlungBei = datei_.CurOffset();
    unsigned short id = 0;
    if (!datei_.Read(id))
        throw dateiFehler(pfad_, "ends at byte " + std::to_string(groesse()) + " before its forms");
    kopf.sammlungsId = id;
    if (id != __RWDLISTCOLLECTABLES)
        throw dateiFehler(pfad_, "byte " + std::to_string(sammlungBei) + ": class id " + hexZahl(id, 4) +
                                     " where the list's collection (0x8010, RWDlistCollectables) belongs");
    kopf.anzahlBei = datei_.CurOffset();
    if (!datei_.Read(kopf.anzahl))
        throw dateiFehler(pfad_, "ends at byte " + std::to_string(groesse()) + " inside the count of forms");
    kopf.formenBei = datei_.CurOffset();
    // Every form takes at least its two bytes of class id.
    const unsigned long rest = static_cast<unsigned long>(groesse() - kopf.formenBei);
    if (kopf.anzahl > rest / 2)
        throw dateiFehler(pfad_, "byte " + std::to_string(kopf.anzahlBei) + ": a count of " +
                                     std::to_string(kopf.anzahl) + " forms, but only " +
                                     std::to_string(rest) + " bytes follow");
    return kopf;
}

Element Rahmenleser::liesElement(unsigned position) {
    Element e;
    e.position = position;
    e.beginn = e.satzBeginn = e.ende = datei_.CurOffset();
    unsigned short id = 0;
    if (!datei_.Read(id)) {
        e.art = Element::Art::Lesefehler;
        e.ende = datei_.CurOffset();
        return e;
    }
    e.id = id;
    e.satzBeginn = e.ende = datei_.CurOffset();
    if (id == kVerweisMarke) {
        long nummer = 0;
        const bool gelesen = datei_.Read(nummer);
        e.ende = datei_.CurOffset();
        if (!gelesen) {
            e.art = Element::Art::Lesefehler;
            return e;
        }
        const long index = nummer - kErsteFormNummer;
        if (index < 0 || static_cast<size_t>(index) >= objekte_.size()) {
            e.art = Element::Art::KeinFormular;
            e.verweisAuf = 0;
            return e;
        }
        e.art = Element::Art::Verweis;
        e.verweisAuf = objektPositionen_[static_cast<size_t>(index)];
        e.form.reset(static_cast<qbFormular*>(objekte_[static_cast<size_t>(index)]->copy()));
        e.klasse = qbKlasseZuId(e.form->isA());
        return e;
    }
    e.klasse = qbKlasseZuId(id);
    if (!e.klasse) {
        e.art = Element::Art::UnbekannteKlasse;
        return e;
    }
    std::unique_ptr<RWCollectable> objekt(getRWFactory()->create(id));
    if (!dynamic_cast<qbFormular*>(objekt.get())) {
        e.art = Element::Art::KeinFormular;
        return e;
    }
    e.form.reset(static_cast<qbFormular*>(objekt.release()));
    {
        Fehlstellenprotokoll protokoll(datei_, e);
        try {
            e.form->restoreGuts(datei_);
        } catch (const RWxmsg& x) {
            e.bibliotheksMeldung = x.why();
        }
    }
    e.ende = datei_.CurOffset();
    if (!datei_.good() || !e.bibliotheksMeldung.empty()) e.art = Element::Art::Lesefehler;
    objekte_.emplace_back(static_cast<qbFormular*>(e.form->copy()));
    objektPositionen_.push_back(position);
    return e;
}

void Rahmenleser::setzeAuf(long offset) {
    datei_.ClearErr();
    datei_.SeekTo(offset);
}

bool Rahmenleser::formBeginntBei(long bei) const {
    if (bei < 0 || bei + 2 > groesse()) return false;
    const unsigned id = u16(bei);
    if (id == kVerweisMarke) {
        if (bei + 6 > groesse()) return false;
        const long index = static_cast<long>(static_cast<int>(u32(bei + 2))) - kErsteFormNummer;
        return index >= 0 && static_cast<size_t>(index) < objekte_.size();
    }
    if (!qbKlasseZuId(static_cast<RWClassID>(id)) || bei + 6 > groesse()) return false;
    const unsigned long laenge = u32(bei + 2);
    return laenge <= kLaengsteVersion && static_cast<unsigned long>(groesse() - bei - 6) >= laenge;
}

long Rahmenleser::sucheFormBeginn(long ab) const {
    if (ab < 0) ab = 0;
    const long letzte = groesse() - 13; // class id, length 7, "MM.YYYY"
    for (long p = ab; p <= letzte; ++p) {
        if (u32(p + 2) != 7 || !istVersionstext(bytes_, static_cast<size_t>(p + 6))) continue;
        if (u16(p) != kVerweisMarke && qbKlasseZuId(static_cast<RWClassID>(u16(p)))) return p;
    }
    return -1;
}

std::string Rahmenleser::lesefehlerText(const Element& e) const {
    if (!e.bibliotheksMeldung.empty()) return "the library refused the record: " + e.bibliotheksMeldung;
    if (e.fehlerBei < 0) {
        if (e.satzBeginn == e.beginn)
            return "the file ends inside its class id, at byte " + std::to_string(groesse());
        return "the record is cut off: reading stopped at byte " + std::to_string(e.ende) +
               ", the file has " + std::to_string(groesse()) + " bytes";
    }
    const long rest = groesse() - e.fehlerBei;
    std::string was;
    if (e.fehlerArt == qbArt::Text && rest >= 4)
        was = "a Text of " + std::to_string(u32(e.fehlerBei)) + " bytes, but only " +
              std::to_string(rest - 4) + " follow";
    else
        was =
            std::string("a ") + artName(e.fehlerArt) + ", but only " + std::to_string(rest) + " bytes follow";
    return "the record is cut off or misread at byte " + std::to_string(e.fehlerBei) + " in " + e.fehlerFeld +
           ": " + was;
}

std::vector<Element> Rahmenleser::liesAlle(Listenkopf* kopfAus) {
    const Listenkopf kopf = liesKopf();
    if (kopfAus) *kopfAus = kopf;
    std::vector<Element> elemente;
    const std::string siehe = " (qbformul explain shows every value it read)";
    for (unsigned pos = 1; pos <= kopf.anzahl; ++pos) {
        Element e = liesElement(pos);
        switch (e.art) {
        case Element::Art::Satz:
        case Element::Art::Verweis:
            break;
        case Element::Art::Lesefehler:
            throw dateiFehler(pfad_, e.beschreibung() + ": " + lesefehlerText(e) + siehe);
        case Element::Art::UnbekannteKlasse:
            if (!elemente.empty())
                throw dateiFehler(
                    pfad_, elemente.back().beschreibung() + ": the record does not end where the " +
                               "next form begins: at byte " + std::to_string(e.beginn) +
                               " follows class id " + std::to_string(e.id) + ", which no form has" + siehe);
            throw dateiFehler(pfad_, e.beschreibung() + ": class id " + std::to_string(e.id) + " (" +
                                         hexZahl(e.id, 4) + ") is no form class");
        case Element::Art::KeinFormular:
            throw dateiFehler(pfad_, e.beschreibung() + ": " +
                                         (e.id == kVerweisMarke
                                              ? "a reference to object " +
                                                    std::to_string(static_cast<int>(u32(e.satzBeginn))) +
                                                    ", which is no form read before"
                                              : "class id " + std::to_string(e.id) + " makes no form"));
        }
        const Satzende ende = pruefeSatzende(*this, e, pos == kopf.anzahl);
        if (!ende.passt) throw dateiFehler(pfad_, e.beschreibung() + ": " + ende.text + siehe);
        elemente.push_back(std::move(e));
    }
    if (kopf.anzahl == 0 && kopf.formenBei != groesse())
        throw dateiFehler(pfad_, "holds no forms, but " + std::to_string(groesse() - kopf.formenBei) +
                                     " bytes follow the list's head");
    return elemente;
}

Satzende pruefeSatzende(const Rahmenleser& leser, const Element& e, bool letztes) {
    const std::string bei = "byte " + std::to_string(e.ende);
    if (letztes) {
        if (e.ende == leser.groesse()) return {true, "ends at " + bei + ", the end of the file"};
        return {false, "the last record ends at " + bei + ", but the file goes on for " +
                           std::to_string(leser.groesse() - e.ende) + " more bytes"};
    }
    if (leser.formBeginntBei(e.ende)) return {true, "ends at " + bei + ", where the next form begins"};
    std::string folgt;
    if (e.ende + 2 <= leser.groesse())
        folgt = " (the next two bytes, " + hexZahl(leser.u16(e.ende), 4) + ", are no class id of a form)";
    else
        folgt = " (the file ends there)";
    return {false, "the record does not end where the next form begins: it ends at " + bei + folgt};
}

// ---- The list through the library

std::unique_ptr<qbFormularListe> liesAnwendung(const std::string& pfad) {
    pruefeRegulaereDatei(pfad);
    auto liste = std::make_unique<qbFormularListe>();
    std::string bibliothek;
    bool vollstaendig = false;
    {
        RWFile datei(pfad.c_str(), "rb");
        if (!datei.isValid()) throw dateiFehler(pfad, systemFehler(errno));
        try {
            datei >> *liste;
        } catch (const RWxmsg& x) {
            bibliothek = x.why();
        }
        struct stat st;
        vollstaendig = bibliothek.empty() && datei.good() && ::stat(pfad.c_str(), &st) == 0 &&
                       datei.CurOffset() == static_cast<long>(st.st_size);
    }
    if (vollstaendig) return liste;
    // The framing reader tells which form and which byte; it throws for every file the list refuses.
    Rahmenleser leser(pfad);
    leser.liesAlle();
    throw dateiFehler(pfad,
                      "the form list could not be read" + (bibliothek.empty() ? "" : ": " + bibliothek));
}

long speichereAnwendung(const std::string& ziel, const qbFormularListe& liste, bool vorOrt) {
    long groesse = 0;
    AtomarOptionen optionen;
    optionen.sicherung = vorOrt;
    optionen.nurErsetzen = vorOrt;
    optionen.pruefe = [&](const std::string& temp) {
        try {
            const std::unique_ptr<qbFormularListe> zurueck = liesAnwendung(temp);
            if (zurueck->AnzahlFormulare() != liste.AnzahlFormulare())
                throw Fehler(std::to_string(zurueck->AnzahlFormulare()) + " forms instead of " +
                             std::to_string(liste.AnzahlFormulare()));
        } catch (const Fehler& f) {
            throw dateiFehler(ziel, std::string("the new file does not read back, so the old one stays: ") +
                                        f.what());
        }
    };
    schreibeAtomar(
        ziel,
        [&](const std::string& temp) {
            RWFile datei(temp.c_str(), "wb");
            if (!datei.isValid()) throw dateiFehler(ziel, "cannot be written: " + systemFehler(errno));
            // The file stops writing at its first failure and keeps the failure; after it, the file makes no
            // system call, so errno still holds the cause.
            errno = 0;
            datei << liste;
            if (!datei.Flush() || datei.Error()) {
                const int fehler = errno;
                throw dateiFehler(ziel,
                                  "cannot be written: " +
                                      (fehler ? systemFehler(fehler) : std::string("a write stopped short")));
            }
            // The file's close reports nothing; the sync of the temporary file that follows reports what
            // the disk refused.
            groesse = datei.CurOffset();
        },
        optionen);
    return groesse;
}

} // namespace qbtool
