// Helpers of the form tests: records of old layouts with the values each field must get, field-by-field
// comparison through the field tables, and round trips on every stream kind.
#pragma once

#include "health/qbFormularAllgGesu.h"
#include "qballg/CQBXMLdata.h"
#include "rw/bstream.h"
#include "rw/pstream.h"
#include "rw/rwfile.h"

#include "legacy_fixture.h"
#include "test_util.h"

#include <cstdlib>
#include <initializer_list>
#include <sstream>
#include <string>
#include <vector>

namespace qbtest {

inline const qbFeldTabelle& kopfTabelle() { return qbFormular::felder(); }
inline const qbFeldTabelle& gesuTabelle() { return qbFormularAllgGesu::felder(); }

// The value of a field as text, for comparisons and messages.
inline std::string wert(const qbFeld& z, const qbFormular& f) {
    switch (z.art) {
    case qbArt::Text:
        return "Text \"" + (f.*z.mitglied.text).std() + "\"";
    case qbArt::Flag:
        return "Flag " + std::to_string(f.*z.mitglied.flag);
    case qbArt::Int:
        return "Int " + std::to_string(f.*z.mitglied.ganz);
    case qbArt::Long:
        return "Long " + std::to_string(f.*z.mitglied.lang);
    case qbArt::Double:
        return "Double " + std::to_string(f.*z.mitglied.zahl);
    default:
        ADD_FAILURE() << "no comparison for the type of " << z.name;
        return {};
    }
}

// Every field of the tables holds the same value in both forms.
inline void erwarteGleicheFelder(const qbFormular& erwartet, const qbFormular& ist,
                                 std::initializer_list<const qbFeldTabelle*> tabellen,
                                 const std::string& wo = "") {
    for (const qbFeldTabelle* t : tabellen)
        for (const qbFeld& z : *t)
            EXPECT_EQ(wert(z, ist), wert(z, erwartet)) << wo << t->klasse() << "::" << z.name;
}

// Gives every field of the tables a value of its own, distinct from the defaults and from each other.
inline void fuelleAlle(qbFormular& f, std::initializer_list<const qbFeldTabelle*> tabellen, int start = 1) {
    int n = start;
    for (const qbFeldTabelle* t : tabellen)
        for (const qbFeld& z : *t) {
            ++n;
            switch (z.art) {
            case qbArt::Text:
                f.*z.mitglied.text = RWCString(std::string(z.name) + " \xE4 " + std::to_string(n));
                break;
            case qbArt::Flag:
                f.*z.mitglied.flag = static_cast<unsigned char>(n % 200);
                break;
            case qbArt::Int:
                f.*z.mitglied.ganz = 70000 + n;
                break;
            case qbArt::Long:
                f.*z.mitglied.lang = -80000 - n;
                break;
            case qbArt::Double:
                f.*z.mitglied.zahl = n + 0.25;
                break;
            default:
                ADD_FAILURE() << z.name;
            }
        }
}

// The key a reader of that time took from a version text: year and month joined and read with atoi.
inline int schluessel(const std::string& version) {
    const std::string monat = version.substr(0, 2);
    const std::string jahr = version.size() > 3 ? version.substr(3, 4) : "";
    return std::atoi((jahr + monat).c_str());
}

// A legacy record built value by value; the value each field must get is set in an expected object at
// the same time. All values differ from each other and from the defaults, so a reader out of step shows.
class Satz {
public:
    Satz(qbFormular& erwartet, const qbFeldTabelle& eigene) : erwartet_(erwartet), eigene_(eigene) {}

    Satz& kopf(const std::string& version, const char* nummer, const char* name, int seiten,
               const char* person) {
        satz_ = AltSatz::kopf(version, nummer, name, seiten, person);
        erwartet_.RefVersion(RWCString(version));
        erwartet_.RefDruckstueckNummer(nummer);
        erwartet_.RefDruckstueckName(name);
        erwartet_.RefPersonenKennung(person);
        if (schluessel(version) >= 200111)
            erwartet_.*kopfTabelle().suche("Seitenanzahl")->mitglied.ganz = seiten;
        return *this;
    }
    Satz& eigen(const char* feld) { return setze(eigene_, feld); }
    Satz& gemeinsam(const char* feld) { return setze(gesuTabelle(), feld); }
    Satz& gemeinsam(std::initializer_list<const char*> felder) {
        for (const char* f : felder)
            gemeinsam(f);
        return *this;
    }
    // A field of the form's own table, or else of the common table.
    Satz& feld(const char* name) { return eigene_.suche(name) ? eigen(name) : gemeinsam(name); }
    // Fields in stream order; "(Text)", "(Flag)" and "(Int)" stand for values thrown away.
    Satz& folge(std::initializer_list<const char*> schritte) {
        for (const char* schritt : schritte) {
            const std::string sch(schritt);
            if (sch == "(Text)")
                verworfen(qbArt::Text);
            else if (sch == "(Flag)")
                verworfen(qbArt::Flag);
            else if (sch == "(Int)")
                verworfen(qbArt::Int);
            else
                feld(schritt);
        }
        return *this;
    }
    // A value the reader must consume and throw away.
    Satz& verworfen(qbArt art) {
        switch (art) {
        case qbArt::Text:
            satz_.text("verworfen");
            break;
        case qbArt::Flag:
            satz_.flag(0x5A);
            break;
        case qbArt::Int:
            satz_.ganz(0x5A5A5A5A);
            break;
        default:
            ADD_FAILURE();
        }
        return *this;
    }
    // A Text the reader takes without a field of its own, of a given value (one a conversion looks at).
    Satz& rohText(const std::string& v) {
        satz_.text(v);
        return *this;
    }
    // The Flag, Int and Text that records before 12.2000 hold behind the common answers.
    Satz& tripel() { return verworfen(qbArt::Flag).verworfen(qbArt::Int).verworfen(qbArt::Text); }
    const AltSatz& satz() const { return satz_; }

private:
    Satz& setze(const qbFeldTabelle& t, const char* feld) {
        const qbFeld* z = t.suche(feld);
        if (!z) {
            ADD_FAILURE() << "no field " << feld << " in " << t.klasse();
            return *this;
        }
        ++n_;
        switch (z->art) {
        case qbArt::Text: {
            const std::string v = std::string(feld) + " \xFC " + std::to_string(n_);
            satz_.text(v);
            erwartet_.*z->mitglied.text = RWCString(v);
            break;
        }
        case qbArt::Flag: {
            const auto v = static_cast<unsigned char>(n_);
            satz_.flag(v);
            erwartet_.*z->mitglied.flag = v;
            break;
        }
        case qbArt::Int: {
            const int v = 100000 + n_;
            satz_.ganz(v);
            erwartet_.*z->mitglied.ganz = v;
            break;
        }
        case qbArt::Long: {
            const long v = -200000 - n_;
            satz_.lang(v);
            erwartet_.*z->mitglied.lang = v;
            break;
        }
        case qbArt::Double: {
            const double v = n_ + 0.75;
            satz_.zahl(v);
            erwartet_.*z->mitglied.zahl = v;
            break;
        }
        default:
            ADD_FAILURE() << feld;
        }
        return *this;
    }

    qbFormular& erwartet_;
    const qbFeldTabelle& eigene_;
    AltSatz satz_;
    int n_ = 0;
};

inline const std::initializer_list<const char*> kFelder1bis12 = {"Krankheit",
                                                                 "AntwortZuFrage",
                                                                 "Beginn",
                                                                 "Dauer",
                                                                 "ArztAdresse",
                                                                 "KrankenhausJN",
                                                                 "KurJN",
                                                                 "KrankenhausKur",
                                                                 "AdresseKrankenhausKurstaette",
                                                                 "AdresseWeitererArzt",
                                                                 "DatumBehandlungWeitererArzt",
                                                                 "ErkrankungWeitererArzt"};
inline const std::initializer_list<const char*> kFelder13und14 = {"ArbeitsplatzwechselJN",
                                                                  "DatumArbeitsplatzwechsel"};
inline const std::initializer_list<const char*> kFelder15bis17 = {
    "ArbeitsunfaehigJN", "DatumArbeitsunfaehigkeit", "ErkrankungArbeitsunfaehigkeit"};

inline Bytes ein(unsigned char b) { return Bytes{b}; }

// The bytes saveGuts(RWFile&) writes.
inline Bytes gespeichert(const qbFormular& form) {
    TempFile tmp("gesu");
    {
        RWFile f(tmp.path(), "wb");
        form.saveGuts(f);
    }
    return readBytes(tmp.path());
}

// Saves the form on the stream kind and restores it into ziel.
inline void rundreise(const qbFormular& form, qbFormular& ziel, Strom art) {
    if (art == Strom::Datei) {
        TempFile tmp("gesu");
        {
            RWFile f(tmp.path(), "wb");
            form.saveGuts(f);
        }
        RWFile f(tmp.path(), "rb");
        ziel.restoreGuts(f);
        return;
    }
    std::stringstream io;
    if (art == Strom::Binaer) {
        RWbostream o(io);
        form.saveGuts(o);
        RWbistream i(io);
        ziel.restoreGuts(i);
    } else {
        RWpostream o(io);
        form.saveGuts(o);
        RWpistream i(io);
        ziel.restoreGuts(i);
    }
}

inline std::vector<std::string> eintragsNamen(const CQBXMLdata& k) {
    std::vector<std::string> namen;
    for (size_t i = 0; i < k.entryCount(); ++i)
        namen.push_back(k.entryAt(i)->Name().std());
    return namen;
}

inline const std::vector<std::string> kKopfSchluessel = {"Version", "DruckstueckNummer", "DruckstueckName",
                                                         "Seitenanzahl", "PersonenKennung"};
inline const std::vector<std::string> kGesuSchluessel = {"Krankheit",
                                                         "AntwortZuFrage",
                                                         "Beginn",
                                                         "Dauer",
                                                         "ArztAdresse",
                                                         "KrankenhausJN",
                                                         "KurJN",
                                                         "KrankenhausKur",
                                                         "AdresseKrankenhausKurstaette",
                                                         "AdresseWeitererArzt",
                                                         "DatumBehandlungWeitererArzt",
                                                         "ErkrankungWeitererArzt",
                                                         "ArbeitsplatzwechselJN",
                                                         "DatumArbeitsplatzwechsel",
                                                         "ArbeitsunfaehigJN",
                                                         "DatumArbeitsunfaehigkeit",
                                                         "ErkrankungArbeitsunfaehigkeit"};

inline std::string stromName(const ::testing::TestParamInfo<Strom>& info) { return name(info.param); }

} // namespace qbtest
