// qbformul explain FILE: every value read from each stored form, with its byte offset, length, type and
// field, the layout the form's version chose, and whether the reader ended where the next form begins.
// The tool for a record that reads as nonsense.
#include "anwendungsdatei.h"
#include "befehle.h"
#include "werkzeug.h"

#include "core/qbLeseBeobachter.h"
#include "rw/rwdate.h"

#include <charconv>
#include <cstdio>
#include <iostream>
#include <memory>

namespace qbtool {

namespace {

std::string zeile(long offset, const std::string& laenge, const std::string& art, const std::string& feld,
                  const std::string& wert) {
    char puffer[64];
    std::snprintf(puffer, sizeof puffer, "%8ld %7s  %-6s  ", offset, laenge.c_str(), art.c_str());
    std::string text = std::string("  ") + puffer + feld;
    if (zeichenAnzahl(feld) < 30) text += std::string(30 - zeichenAnzahl(feld), ' ');
    return text + "  " + wert;
}

// A number the observer reports as text; false when it is none.
bool alsZahl(const std::string& text, unsigned long& zahl) {
    const char* ende = text.data() + text.size();
    return !text.empty() && std::from_chars(text.data(), ende, zahl).ptr == ende;
}

// The value the observer reports, for people.
std::string wertFuerMenschen(qbArt art, const std::string& wert) {
    unsigned long zahl = 0;
    switch (art) {
    case qbArt::Text:
        return zitiert(utf8(wert), 120);
    case qbArt::Flag: {
        if (!alsZahl(wert, zahl)) return wert;
        const std::string text = flagText(static_cast<unsigned>(zahl));
        return text == wert ? text : text + " (" + wert + ")";
    }
    case qbArt::Bool:
        return wert == "1" ? "true" : "false";
    case qbArt::Date: {
        if (!alsZahl(wert, zahl)) return wert;
        const RWDate datum = RWDate::fromJulian(zahl);
        return datum.isValid() ? utf8(datum.asString("%d.%m.%Y")) + " (day " + wert + ")" : "(no date)";
    }
    case qbArt::Person:
        return "person " + zitiert(utf8(wert));
    default:
        return wert;
    }
}

// Prints each value as the forms' restoreGuts read it, until the file fails.
class Erklaerer : public qbLeseBeobachter {
public:
    Erklaerer(std::ostream& aus, Rahmenleser& leser)
        : aus_(aus), leser_(leser), vorher_(qbSetzeLeseBeobachter(this)) {}
    ~Erklaerer() override { qbSetzeLeseBeobachter(vorher_); }
    Erklaerer(const Erklaerer&) = delete;
    Erklaerer& operator=(const Erklaerer&) = delete;

    void neuesFormular() {
        gescheitert_ = false;
        uebergangen_ = 0;
    }
    unsigned uebergangen() const { return uebergangen_; }

    void layout(const char* klasse, const char* name) override {
        if (gescheitert_) return;
        aus_ << "  layout of " << klasse << ": " << utf8(std::string(name)) << '\n';
    }
    void feld(const char* name, qbArt art, long von, long bis, const std::string& wert) override {
        if (gescheitert_) {
            ++uebergangen_;
            return;
        }
        const std::string feld = name ? name : "(read, not kept)";
        if (!leser_.datei().good()) {
            gescheitert_ = true;
            aus_ << zeile(von, "-", artName(art), feld, "<- the read fails here") << '\n';
            return;
        }
        std::string laenge = std::to_string(bis - von);
        if (art == qbArt::Text) laenge = "4+" + std::to_string(bis - von - 4);
        aus_ << zeile(von, laenge, artName(art), feld, wertFuerMenschen(art, wert)) << '\n';
    }

private:
    std::ostream& aus_;
    Rahmenleser& leser_;
    qbLeseBeobachter* vorher_;
    bool gescheitert_ = false;
    unsigned uebergangen_ = 0;
};

struct Befund {
    std::string text;
    int code;
};

std::string abstand(long von, long nach) {
    const long d = nach - von;
    return std::to_string(d < 0 ? -d : d) + (d < 0 ? " bytes earlier" : " bytes later");
}

} // namespace

int erklaere(const std::string& pfad) {
    Rahmenleser leser(pfad);
    std::ostream& aus = std::cout;
    aus << pfad << ": " << leser.groesse() << " bytes (offsets and lengths in bytes, decimal)\n";
    const Listenkopf kopf = leser.liesKopf();
    aus << zeile(0, "1", "Char", "marker", "':' a new list") << '\n';
    aus << zeile(kopf.versionBei, "4+" + std::to_string(kopf.version.length()), "Text", "list Version",
                 zitiert(utf8(kopf.version), 120))
        << '\n';
    aus << zeile(kopf.anzahlBei - 2, "2", "id", "collection", "0x8010 RWDlistCollectables") << '\n';
    aus << zeile(kopf.anzahlBei, "4", "count", "forms", std::to_string(kopf.anzahl)) << '\n';

    std::vector<Befund> befunde;
    Erklaerer erklaerer(aus, leser);
    unsigned gelesen = 0;
    bool abgebrochen = false;
    for (unsigned pos = 1; pos <= kopf.anzahl && !abgebrochen; ++pos) {
        const long beginn = leser.datei().CurOffset();
        const unsigned id = leser.u16(beginn);
        const qbKlasse* klasse = id == 0xFFFF ? nullptr : qbKlasseZuId(static_cast<RWClassID>(id));
        aus << "\nForm " << pos << " at byte " << beginn << " ("
            << hexZahl(static_cast<unsigned long>(beginn), 4) << "): ";
        if (id == 0xFFFF)
            aus << "FF FF, a reference to an object read before\n";
        else
            aus << "class id " << id << (klasse ? std::string(", ") + klasse->klassenName : "") << '\n';

        erklaerer.neuesFormular();
        const Element e = leser.liesElement(pos);
        ++gelesen;
        const bool letztes = pos == kopf.anzahl;
        // Where to go on after a record that did not end where it should; -1 to stop.
        auto weiterBei = [&](long ab) {
            const long p = letztes ? -1 : leser.sucheFormBeginn(ab);
            if (p < 0) {
                aus << "  no further form can be found; the walk stops here\n";
                abgebrochen = true;
            } else {
                aus << "  a form appears to begin at byte " << p << " (" << abstand(e.ende, p)
                    << " than the reader stopped); the walk goes on there\n";
                leser.setzeAuf(p);
            }
            return p;
        };
        switch (e.art) {
        case Element::Art::Verweis:
            aus << "  object " << static_cast<int>(leser.u32(e.satzBeginn)) << ": form " << e.verweisAuf
                << " once more\n";
            break;
        case Element::Art::KeinFormular:
        case Element::Art::UnbekannteKlasse: {
            const std::string was =
                e.art == Element::Art::UnbekannteKlasse
                    ? "class id " + std::to_string(e.id) + " (" + hexZahl(e.id, 4) + ") is no form class"
                    : "the reference names no form read before";
            aus << "  ! " << was << '\n';
            const long p = weiterBei(e.beginn + 1);
            befunde.push_back(
                {e.beschreibung() + ": " + was, p < 0 ? kAufruffehler : kPruefungFehlgeschlagen});
            continue;
        }
        case Element::Art::Lesefehler: {
            if (erklaerer.uebergangen())
                aus << "  (" << erklaerer.uebergangen()
                    << " further values were not read: the file had failed)\n";
            const std::string was = leser.lesefehlerText(e);
            aus << "  ! " << was << '\n';
            const long p = weiterBei(e.beginn + 2);
            befunde.push_back(
                {e.beschreibung() + ": " + was, p < 0 ? kAufruffehler : kPruefungFehlgeschlagen});
            continue;
        }
        case Element::Art::Satz:
            break;
        }
        const Satzende ende = pruefeSatzende(leser, e, letztes);
        if (ende.passt) {
            aus << "  " << e.satzGroesse() << " bytes of record; " << ende.text << '\n';
            continue;
        }
        aus << "  ! " << ende.text << '\n';
        befunde.push_back({e.beschreibung() + ": " + ende.text, kPruefungFehlgeschlagen});
        if (!letztes) weiterBei(e.beginn + 2);
    }

    if (kopf.anzahl == 0 && kopf.formenBei != leser.groesse())
        befunde.push_back({"the list holds no forms, but " +
                               std::to_string(leser.groesse() - kopf.formenBei) + " bytes follow its head",
                           kPruefungFehlgeschlagen});
    aus << '\n';
    if (gelesen < kopf.anzahl) aus << kopf.anzahl - gelesen << " forms were not reached.\n";
    if (befunde.empty()) {
        aus << "Every record ends exactly where the next form begins, the last one at the end of the file.\n";
        return kErfolg;
    }
    aus << befunde.size() << (befunde.size() == 1 ? " record does" : " records do")
        << " not end where they should (marked with !).\n";
    int code = kErfolg;
    for (const Befund& b : befunde)
        code = std::max(code, b.code);
    std::string meldung = befunde.front().text;
    if (befunde.size() > 1) meldung += " (and " + std::to_string(befunde.size() - 1) + " more, see above)";
    throw dateiFehler(pfad, meldung, code);
}

void richteExplainEin(CLI::App& haupt, Befehle& befehle) {
    auto datei = std::make_shared<std::string>();
    CLI::App* app = haupt.add_subcommand(
        "explain", "Every value read from each stored form, with byte offset, length, type and field.");
    app->add_option("FILE", *datei, "application file")->required();
    app->footer(umbrochen(
        "For each form: its class id, the layout each part of the record took for the stored Version "
        "(\"aktuelle "
        "Tabelle\" is the class's current field table, other names are older layouts), and every value read: "
        "offset, length (a Text as 4 bytes of length plus its characters), type, field ((read, not kept) for "
        "a "
        "value an old layout held that the class has dropped) and value. At the end of each form it says "
        "whether "
        "the reader stopped where the next form begins. When it did not, the walk goes on where a form "
        "appears "
        "to begin (a known class id followed by a Version MM.YYYY).\n"
        "Exit code 1 when a record does not end where it should, 2 when the file cannot be walked to its "
        "end."));
    befehle.push_back({app, [datei] { return erklaere(*datei); }});
}

} // namespace qbtool
