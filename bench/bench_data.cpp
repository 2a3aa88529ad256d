#include "bench_data.h"

#include <cstdio>
#include <cstring>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string_view>

// Texts are Windows-1252, like everything inside the library: umlauts as escapes.
namespace bench {

namespace {

// The answers of the injury declaration and of the common health part, as an agent would type them.
const std::map<std::string_view, const char*> kAntworten = {
    // common health answers
    {"Krankheit", "Kreuzbandriss links"},
    {"AntwortZuFrage", "Frage 4a"},
    {"Beginn", "03.2001"},
    {"ArztAdresse", "Dr. med. A. Berger, Hauptstr. 12, 80331 M\xFCnchen"},
    {"KrankenhausKur", "Klinikum rechts der Isar"},
    {"AdresseKrankenhausKurstaette", "Ismaninger Str. 22, 81675 M\xFCnchen"},
    {"AdresseWeitererArzt", "Dr. K. Vogt, Lindenweg 3, 82152 Planegg"},
    {"DatumBehandlungWeitererArzt", "05.2001"},
    {"ErkrankungWeitererArzt", "Nachkontrolle Knie"},
    {"DatumArbeitsplatzwechsel", "01.2002"},
    {"DatumArbeitsunfaehigkeit", "03.2001 bis 06.2001"},
    {"ErkrankungArbeitsunfaehigkeit", "Kreuzbandriss"},
    // the injury declaration's own
    {"Verletzungshergang", "Sturz beim Skifahren"},
    {"VerletzteOrgane", "keine"},
    {"VerletzteGelenke", "linkes Knie"},
    {"ArbeitsunfaehigVerletzung", "12 Wochen"},
    {"Verletzung", "vorderes Kreuzband gerissen"},
    {"Roentgenaufnahmen", "03.2001, ohne Befund"},
    {"Arthroskopie", "04.2001 Kreuzbandplastik"},
    {"KoerperseiteArthroskopie", "links"},
    {"WeitereOperation", "Metallentfernung 2002"},
    {"KoerperseiteWeitereOperation", "links"},
    {"Verordnung", "Krankengymnastik"},
    {"AngabenVerordnung", "20 Sitzungen"},
    {"VerordneteMedikamente", "Ibuprofen 400 mg"},
    {"GeheiltSeit", "10.2001"},
    {"Beschwerden", "bei Wetterwechsel"},
    {"Operation", "Kreuzbandplastik"},
    {"Reha", "ambulant, 3 Wochen"},
    {"Dauerfolgen", "keine"},
    {"Koerperhaelfte", "links"},
};

// Short answers for the other forms' fields, chosen by what the field's name says it holds.
const char* const kDaten[] = {"03.2001", "11.1999", "06.2004", "02.2003", "09.2000", "12.2002"};
const char* const kAdressen[] = {"Dr. med. A. Berger, Hauptstr. 12, 80331 M\xFCnchen",
                                 "Praxis Dr. Wei\xDF, Bahnhofstr. 5, 90402 N\xFCrnberg",
                                 "Kreisklinik, Am Stadtpark 1, 86150 Augsburg",
                                 "Dr. S. Hofer, Marktplatz 7, 93047 Regensburg"};
const char* const kKrankheiten[] = {
    "Bandscheibenvorfall L5/S1", "Hypertonie", "Meniskusschaden rechts", "Schwangerschaft",
    "Schulterluxation",          "Lumbalgie",  "Tennisellenbogen",       "Sprunggelenk verstaucht"};
const char* const kMedikamente[] = {"Ibuprofen 400 mg", "Betablocker", "Diclofenac 75 mg", "Ramipril 5 mg"};
const char* const kAllgemein[] = {
    "keine",        "Krankengymnastik",   "ambulant",           "seit 2001 beschwerdefrei", "Judo, Karate",
    "gelegentlich", "Halswirbels\xE4ule", "MRT unauff\xE4llig", "R\xF6ntgen o.B.",          "2 Wochen"};

bool enthaelt(const char* name, const char* teil) { return std::strstr(name, teil) != nullptr; }

// nr varies Krankheit and AntwortZuFrage, the keys of a health form in the list, so that no two forms are
// the same record.
struct Fueller {
    static RWCString Text(const char* name, int nr) {
        const bool unterscheidet =
            std::strcmp(name, "Krankheit") == 0 || std::strcmp(name, "AntwortZuFrage") == 0;
        if (auto it = kAntworten.find(name); it != kAntworten.end() && (nr == 0 || !unterscheidet))
            return it->second;
        auto aus = [nr](const auto& liste) { return liste[static_cast<size_t>(nr) % std::size(liste)]; };
        if (std::strcmp(name, "Krankheit") == 0) return aus(kKrankheiten);
        if (std::strcmp(name, "AntwortZuFrage") == 0) return RWCString("Frage " + std::to_string(nr % 9 + 1));
        if (enthaelt(name, "Datum") || enthaelt(name, "Seit") || enthaelt(name, "Beginn")) return aus(kDaten);
        if (enthaelt(name, "Adresse")) return aus(kAdressen);
        if (enthaelt(name, "Medikament")) return aus(kMedikamente);
        if (enthaelt(name, "seite") || enthaelt(name, "haelfte")) return nr % 2 ? "rechts" : "links";
        return kAllgemein[(std::strlen(name) + static_cast<size_t>(nr)) % std::size(kAllgemein)];
    }
    static RWCString TextKopie(const char* name, int nr) { return Text(name, nr); }
    static RWCString TextWert(const char* name, int nr) { return Text(name, nr); }
    // ja (1) or nein (0), never "not answered".
    static unsigned char Flag(const char* name, int nr) {
        return (std::strlen(name) + static_cast<size_t>(nr)) % 3 ? 1 : 0;
    }
    static int Int(const char* name, int nr) {
        static const int kDauern[] = {1, 2, 3, 4, 8, 12, 24, 28};
        if (std::strcmp(name, "Dauer") == 0) return kDauern[static_cast<size_t>(nr) % std::size(kDauern)];
        return nr % 9 + 1;
    }
};

#define BENCH_FUELLE(Typ, Name, ...) ziel.Ref##Name(Fueller::Typ(#Name, nr));

template <class Form>
void fuelleGemeinsame(Form& form, int nr) {
    qbFormularAllgGesu& ziel = form; // the common answers, not the class's own fields of the same names
    QB_FELDER_qbFormularAllgGesu(BENCH_FUELLE);
}

qbFormularL145 neueL145(int nr) {
    qbFormularL145 ziel;
    fuelleGemeinsame(ziel, nr);
    QB_FELDER_qbFormularL145(BENCH_FUELLE);
    return ziel;
}
qbFormularL146 neueL146(int nr) {
    qbFormularL146 ziel;
    fuelleGemeinsame(ziel, nr);
    QB_FELDER_qbFormularL146(BENCH_FUELLE);
    return ziel;
}
qbFormularL144 neueL144(int nr) {
    qbFormularL144 ziel;
    fuelleGemeinsame(ziel, nr);
    QB_FELDER_qbFormularL144(BENCH_FUELLE);
    return ziel;
}
qbFormularL147 neueL147(int nr) {
    qbFormularL147 ziel;
    fuelleGemeinsame(ziel, nr);
    QB_FELDER_qbFormularL147(BENCH_FUELLE);
    return ziel;
}
qbFormularL440 neueL440(int nr) {
    qbFormularL440 ziel;
    QB_FELDER_qbFormularL440(BENCH_FUELLE);
    return ziel;
}

#undef BENCH_FUELLE

// ---- Forms to mirrors

std::string wert(const RWCString& v) { return v.std(); }
std::uint8_t wert(unsigned char v) { return v; }
std::int32_t wert(int v) { return v; }

#define BENCH_AUS_FORM(Typ, Name, ...) m.Name = wert(quelle.Ref##Name());

Kopf kopfVon(const qbFormular& quelle) {
    Kopf m;
    BENCH_FELDER_Kopf(BENCH_AUS_FORM);
    return m;
}

Gesu gemeinsameVon(const qbFormularAllgGesu& quelle) {
    Gesu m;
    QB_FELDER_qbFormularAllgGesu(BENCH_AUS_FORM);
    return m;
}

#define BENCH_DATENSATZ(Klasse, Mirror, BasisAusdruck)                                                       \
    Mirror datensatzVon(const Klasse& quelle) {                                                              \
        Mirror d;                                                                                            \
        d.kopf = kopfVon(quelle);                                                                            \
        d.basis = BasisAusdruck;                                                                             \
        auto& m = d.eigene;                                                                                  \
        QB_FELDER_##Klasse(BENCH_AUS_FORM);                                                                  \
        return d;                                                                                            \
    }

BENCH_DATENSATZ(qbFormularL144, L144, gemeinsameVon(quelle))
BENCH_DATENSATZ(qbFormularL145, L145, gemeinsameVon(quelle))
BENCH_DATENSATZ(qbFormularL146, L146, gemeinsameVon(quelle))
BENCH_DATENSATZ(qbFormularL147, L147, gemeinsameVon(quelle))
BENCH_DATENSATZ(qbFormularL440, L440, KeineBasis{})

#undef BENCH_DATENSATZ
#undef BENCH_AUS_FORM

} // namespace

const qbFormularL145& verletzung() {
    static const qbFormularL145 form = neueL145(0);
    return form;
}

qbFormularListe& antrag() {
    static qbFormularListe* liste = [] {
        auto* neu = new qbFormularListe;
        // Health declarations repeat per person; the sport declaration replaces, so one per person.
        int nr = 0;
        auto person = [](int i) { return qbPersonenKennung(i % 2); };
        for (int i = 0; i < 12; ++i, ++nr) {
            qbFormularL145 f = i == 0 ? verletzung() : neueL145(nr);
            f.RefPersonenKennung(person(i));
            neu->neuesFormular(f);
        }
        for (int i = 0; i < 12; ++i, ++nr) {
            qbFormularL146 f = neueL146(nr);
            f.RefPersonenKennung(person(i));
            neu->neuesFormular(f);
        }
        for (int i = 0; i < 11; ++i, ++nr) {
            qbFormularL144 f = neueL144(nr);
            f.RefPersonenKennung(person(i));
            neu->neuesFormular(f);
        }
        for (int i = 0; i < 12; ++i, ++nr) {
            qbFormularL147 f = neueL147(nr); // the applicant's
            neu->neuesFormular(f);
        }
        for (int i = 0; i < 3; ++i, ++nr) {
            qbFormularL440 f = neueL440(nr);
            f.RefPersonenKennung(qbPersonenKennung(i));
            neu->neuesFormular(f);
        }
        if (neu->AnzahlFormulare() != kFormulareImAntrag)
            throw std::logic_error("the application lost forms");
        return neu;
    }();
    return *liste;
}

L145 alsDatensatz(const qbFormularL145& form) { return datensatzVon(form); }

Formular alsDatensatz(const qbFormular& form) {
    switch (form.isA()) {
    case qbId_qbFormularL144:
        return datensatzVon(static_cast<const qbFormularL144&>(form));
    case qbId_qbFormularL145:
        return datensatzVon(static_cast<const qbFormularL145&>(form));
    case qbId_qbFormularL146:
        return datensatzVon(static_cast<const qbFormularL146&>(form));
    case qbId_qbFormularL147:
        return datensatzVon(static_cast<const qbFormularL147&>(form));
    case qbId_qbFormularL440:
        return datensatzVon(static_cast<const qbFormularL440&>(form));
    default:
        throw std::invalid_argument("no mirror for class id " + std::to_string(form.isA()));
    }
}

Antrag alsDatensatz(const qbFormularListe& liste) {
    Antrag a;
    a.Version = liste.RefVersion().std();
    for (unsigned i = 0; i < liste.AnzahlFormulare(); ++i)
        a.formulare.push_back(alsDatensatz(*liste.liefereFormularAnPos(static_cast<int>(i))));
    return a;
}

namespace {
struct Arbeit {
    int saetze;
    std::function<void()> tue;
};
std::map<std::string, Arbeit>& arbeiten() {
    static std::map<std::string, Arbeit> alle;
    return alle;
}
} // namespace

void merkeArbeit(const std::string& name, int saetze, std::function<void()> arbeit) {
    arbeiten()[name] = {saetze, std::move(arbeit)};
}

[[gnu::noinline]] bool profiliere(const std::string& name, long einheiten) {
    auto it = arbeiten().find(name);
    if (it == arbeiten().end()) return false;
    for (long i = 0; i < einheiten; ++i)
        it->second.tue();
    std::fprintf(stderr, "%s: %ld units of %d records\n", name.c_str(), einheiten, it->second.saetze);
    return true;
}

} // namespace bench
