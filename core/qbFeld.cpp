#include "core/qbFeld.h"

#include "core/qbFormular.h"
#include "core/qbLeseBeobachter.h"
#include "qballg/CQBXMLdata.h"
#include "qballg/qbAllgFunktionen.h"
#include "rw/rwfile.h"
#include "rw/vstream.h"

#include <atomic>
#include <cassert>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <type_traits>

namespace {

// Calls visit with the row's member pointer, typed as the member is declared.
template <class Visit>
void mitMitglied(const qbFeld& z, Visit&& visit) {
    switch (z.art) {
    case qbArt::Text:
        return visit(z.mitglied.text);
    case qbArt::Flag:
        return visit(z.mitglied.flag);
    case qbArt::Char:
        return visit(z.mitglied.zeichen);
    case qbArt::Bool:
        return visit(z.mitglied.wahrheit);
    case qbArt::Int:
    case qbArt::Enum:
        return visit(z.mitglied.ganz);
    case qbArt::Long:
        return visit(z.mitglied.lang);
    case qbArt::Double:
        return visit(z.mitglied.zahl);
    case qbArt::Date:
        return visit(z.mitglied.datum);
    case qbArt::Person:
        return visit(z.mitglied.person);
    }
}

// One value onto a stream, in its type's encoding. Date and Person never travel on a virtual stream.
void raus(RWFile& f, const RWCString& v) { v.saveOn(f); }
void raus(RWFile& f, const RWDate& v) { v.saveOn(f); }
void raus(RWFile& f, const qbPerson& v) { f << v; }
template <class T>
void raus(RWFile& f, const T& v) {
    f.Write(v);
}
void raus(RWvostream& s, const RWCString& v) { v.saveOn(s); }
void raus(RWvostream&, const RWDate&) {}
void raus(RWvostream&, const qbPerson&) {}
template <class T>
void raus(RWvostream& s, const T& v) {
    s << v;
}

// A Bool and an Enum go out as one char.
template <class Strom, class T>
void schreibeWert(Strom& s, qbArt art, const T& v) {
    if constexpr (std::is_same_v<T, bool>)
        raus(s, static_cast<char>(v));
    else if constexpr (std::is_same_v<T, int>)
        art == qbArt::Enum ? raus(s, static_cast<char>(v)) : raus(s, v);
    else
        raus(s, v);
}

template <class Strom>
void schreibeZeilen(const qbFeldTabelle& tabelle, const qbFormular& form, Strom& s) {
    for (const qbFeld& z : tabelle)
        if (z.imStrom) mitMitglied(z, [&](auto m) { schreibeWert(s, z.art, form.*m); });
}

} // namespace

const qbFeld* qbFeldTabelle::suche(const char* name) const {
    for (const qbFeld& z : *this)
        if (std::strcmp(z.name, name) == 0) return &z;
    return nullptr;
}

void qbFeldTabelle::kopiere(qbFormular& ziel, const qbFormular& quelle) const {
    for (const qbFeld& z : *this)
        mitMitglied(z, [&](auto m) { ziel.*m = quelle.*m; });
}

void qbFeldTabelle::kopiereAusser(qbFormular& ziel, const qbFormular& quelle,
                                  std::initializer_list<const char*> ausser) const {
    for (const qbFeld& z : *this) {
        bool bleibt = false;
        for (const char* name : ausser)
            bleibt = bleibt || std::strcmp(z.name, name) == 0;
        if (!bleibt) mitMitglied(z, [&](auto m) { ziel.*m = quelle.*m; });
    }
}

bool qbFeldTabelle::gleich(const qbFormular& a, const qbFormular& b, bool (*zaehlt)(const qbFeld&)) const {
    bool gleich = true;
    for (const qbFeld& z : *this)
        if (!zaehlt || zaehlt(z)) mitMitglied(z, [&](auto m) { gleich = gleich && a.*m == b.*m; });
    return gleich;
}

// ---- Streams

void qbFeldTabelle::schreibe(const qbFormular& form, RWFile& f) const { schreibeZeilen(*this, form, f); }
void qbFeldTabelle::schreibe(const qbFormular& form, RWvostream& s) const { schreibeZeilen(*this, form, s); }

namespace {

thread_local qbLeseBeobachter* beobachter = nullptr;
// Threads with an observer installed. While there are none, a read does not look at its thread's slot:
// in a shared library every such look is a call into the dynamic loader.
std::atomic<int> threadsMitBeobachter{0};

// A value as text, for the observer.
template <class T>
std::string alsText(const T& v) {
    if constexpr (std::is_same_v<T, RWCString>)
        return v.std();
    else if constexpr (std::is_same_v<T, RWDate>)
        return std::to_string(v.julian());
    else if constexpr (std::is_same_v<T, qbPerson>)
        return v.RefAdressDaten().RefName().std();
    else if constexpr (std::is_same_v<T, char>)
        return std::to_string(static_cast<int>(v));
    else
        return std::to_string(v);
}

// One value of a stream, by its type; false when the stream could not give it.
bool roh(RWFile& f, RWCString& v) {
    v.restoreFrom(f);
    return f.good();
}
bool roh(RWFile& f, RWDate& v) {
    v.restoreFrom(f);
    return f.good();
}
bool roh(RWFile& f, qbPerson& v) {
    f >> v;
    return f.good();
}
template <class T>
bool roh(RWFile& f, T& v) {
    return f.Read(v);
}
bool roh(RWvistream& s, RWCString& v) {
    v.restoreFrom(s);
    return s.good();
}
template <class T>
bool roh(RWvistream& s, T& v) {
    s >> v;
    return s.good();
}

// Reads into the row's member of form, or into a scratch value when form is null (a value thrown away).
template <class T, class Lesen>
void liesMitglied(qbFormular* form, T qbFormular::*m, std::string* text, Lesen lesen) {
    T scratch{};
    T& v = form ? form->*m : scratch;
    lesen(v);
    if (text) *text = alsText(v);
}

template <class Strom>
void liesZeileAus(const qbFeld& z, qbFormular* form, Strom& s, std::string* text) {
    auto direkt = [&](auto& v) { roh(s, v); };
    switch (z.art) {
    case qbArt::Text:
        return liesMitglied(form, z.mitglied.text, text, direkt);
    case qbArt::Flag:
        return liesMitglied(form, z.mitglied.flag, text, direkt);
    case qbArt::Char:
        return liesMitglied(form, z.mitglied.zeichen, text, direkt);
    case qbArt::Int:
        return liesMitglied(form, z.mitglied.ganz, text, direkt);
    case qbArt::Long:
        return liesMitglied(form, z.mitglied.lang, text, direkt);
    case qbArt::Double:
        return liesMitglied(form, z.mitglied.zahl, text, direkt);
    case qbArt::Bool: // one char; only the byte 1 is true
        return liesMitglied(form, z.mitglied.wahrheit, text, [&](bool& v) {
            char c = 0;
            if (roh(s, c)) v = c == 1;
        });
    case qbArt::Enum: // one char, sign-extended
        return liesMitglied(form, z.mitglied.ganz, text, [&](int& v) {
            char c = 0;
            if (roh(s, c)) v = static_cast<signed char>(c);
        });
    case qbArt::Date: // Date and Person never travel on a virtual stream
        if constexpr (std::is_same_v<Strom, RWFile>) liesMitglied(form, z.mitglied.datum, text, direkt);
        return;
    case qbArt::Person:
        if constexpr (std::is_same_v<Strom, RWFile>) liesMitglied(form, z.mitglied.person, text, direkt);
        return;
    }
}

} // namespace

qbLeseBeobachter* qbSetzeLeseBeobachter(qbLeseBeobachter* b) {
    qbLeseBeobachter* alt = beobachter;
    beobachter = b;
    if (!alt && b) threadsMitBeobachter.fetch_add(1, std::memory_order_relaxed);
    if (alt && !b) threadsMitBeobachter.fetch_sub(1, std::memory_order_relaxed);
    return alt;
}

qbLeseBeobachter* qbAktuellerLeseBeobachter() {
    return threadsMitBeobachter.load(std::memory_order_relaxed) == 0 ? nullptr : beobachter;
}

void qbFeldTabelle::liesZeile(const qbFeld& z, qbFormular* form, RWFile& f) {
    qbLeseBeobachter* b = qbAktuellerLeseBeobachter();
    if (!b) return liesZeileAus(z, form, f, nullptr);
    const long von = f.CurOffset();
    std::string wert;
    liesZeileAus(z, form, f, &wert);
    b->feld(form ? z.name : nullptr, z.art, von, f.CurOffset(), wert);
}

void qbFeldTabelle::liesZeile(const qbFeld& z, qbFormular* form, RWvistream& s) {
    if (s.good()) liesZeileAus(z, form, s, nullptr); // a failed stream reads nothing into the form
}

// A row with a version condition asks the Version read so far: the header's own Seitenanzahl depends on
// the Version read just before it.
static bool gehoertZumLayout(const qbFeld& z, const qbFormular& form) {
    if (z.immerGelesen()) return true;
    return z.gehoertZumLayout(qbVersionsSchluessel(form.RefVersion()), qbVersionsJahr(form.RefVersion()));
}

void qbFeldTabelle::lies(qbFormular& form, RWFile& f, const char* layout) const {
    if (qbLeseBeobachter* b = qbAktuellerLeseBeobachter()) {
        // The layout is the reader's branch when it names one; otherwise the current table, and rows that
        // came with a later version than the stored one are named, so that the branch a record took shows.
        // (A table that reads Version itself, the header's, cannot know them yet.)
        std::string name = layout ? layout : "aktuelle Tabelle";
        const char* trenner = " ohne ";
        const bool versionBekannt = !layout && !suche("Version");
        for (const qbFeld& z : *this)
            if (versionBekannt && z.imStrom &&
                !gehoertZumLayout(z, form)) { // a row no record holds is no news
                name = name + trenner + z.name;
                trenner = ", ";
            }
        b->layout(klasse_, name.c_str());
        for (const qbFeld& z : *this)
            if (gehoertZumLayout(z, form)) liesZeile(z, &form, f);
        return;
    }
    // Nobody listens: the rows straight, without asking the thread's observer per row.
    for (const qbFeld& z : *this)
        if (gehoertZumLayout(z, form)) liesZeileAus(z, &form, f, nullptr);
}

void qbFeldTabelle::lies(qbFormular& form, RWvistream& s) const { lies(form, s, 0); }

void qbFeldTabelle::lies(qbFormular& form, RWvistream& s, size_t ab) const {
    for (const qbFeld* z = begin() + (ab < size() ? ab : size()); z != end(); ++z)
        if (z->vomVirtuellenStrom && gehoertZumLayout(*z, form)) liesZeile(*z, &form, s);
}

RWspace qbFeldTabelle::groesse(const qbFormular& form) const {
    RWspace summe = 0;
    for (const qbFeld& z : *this) {
        if (!z.imStrom || !z.inGroesse) continue;
        summe += qbFesteBreite(z.art); // no class with a person counts its size
        if (z.art == qbArt::Text && z.laengeInGroesse) summe += (form.*z.mitglied.text).length();
        summe += static_cast<RWspace>(z.groessenAbweichung); // unsigned arithmetic: a shortfall subtracts
    }
    return summe;
}

// ---- XML

// Char and Person have no value type of their own in the tree: a form says how it exchanges them.
template <class T>
constexpr bool hatXmlWert = !std::is_same_v<T, char> && !std::is_same_v<T, qbPerson>;

namespace {

void xmlSchreibeZeile(const qbFeld& z, const qbFormular& form, CQBXMLdata& knoten) {
    if (z.xmlSchreibKey)
        mitMitglied(z, [&](auto m) {
            if constexpr (hatXmlWert<std::remove_cvref_t<decltype(form.*m)>>)
                knoten.List(CQBXMLdata(z.xmlSchreibKey, form.*m));
        });
}

// An Enum comes back through the value's variant form: whatever number the tree holds, and 0 for a
// missing key.
void xmlLiesZeile(const qbFeld& z, qbFormular& form, const CQBXMLdata& knoten) {
    if (!z.xmlLeseKey) return;
    if (z.art == qbArt::Enum) {
        form.*z.mitglied.ganz = knoten.Listvalue(z.xmlLeseKey).asInt();
        return;
    }
    mitMitglied(z, [&](auto m) {
        if constexpr (hatXmlWert<std::remove_cvref_t<decltype(form.*m)>>)
            knoten.Listvalue(z.xmlLeseKey, form.*m);
    });
}

// The row of each name of an order, in that order; a name the table does not hold is a fault of the form's
// file and stops the program rather than leave a field out of the tree unnoticed.
template <class Tun>
void inFolge(const qbFeldTabelle& tabelle, const char* const* folge, Tun tun) {
    for (; *folge; ++folge) {
        const qbFeld* z = tabelle.suche(*folge);
        if (!z) {
            std::fprintf(stderr, "qbformul: %s has no field %s for its XML order\n", tabelle.klasse(),
                         *folge);
            std::abort();
        }
        tun(*z);
    }
}

} // namespace

void qbFeldTabelle::xmlSchreibe(const qbFormular& form, CQBXMLdata& knoten) const {
    for (const qbFeld& z : *this)
        if (!z.inXmlDurchgaengen) xmlSchreibeZeile(z, form, knoten);
}

void qbFeldTabelle::xmlLies(qbFormular& form, const CQBXMLdata& knoten) const {
    for (const qbFeld& z : *this)
        if (!z.inXmlDurchgaengen) xmlLiesZeile(z, form, knoten);
}

void qbFeldTabelle::xmlSchreibe(const qbFormular& form, CQBXMLdata& knoten, const char* const* folge) const {
    inFolge(*this, folge, [&](const qbFeld& z) { xmlSchreibeZeile(z, form, knoten); });
}

void qbFeldTabelle::xmlLies(qbFormular& form, const CQBXMLdata& knoten, const char* const* folge) const {
    inFolge(*this, folge, [&](const qbFeld& z) { xmlLiesZeile(z, form, knoten); });
}

namespace {

// The row whose XML key (written or read) is this one.
const qbFeld* zeileMitSchluessel(const qbFeldTabelle& t, const RWCString& key, bool lesen) {
    for (const qbFeld& z : t) {
        const char* k = lesen ? z.xmlLeseKey : z.xmlSchreibKey;
        if (k && key == k) return &z;
    }
    return nullptr;
}

// Calls arbeit(row, key) for every element: pass i composes "Name[i]" for each array in turn.
template <class Arbeit>
void jedesElement(const qbFeldTabelle& t, int anzahl, std::initializer_list<const char*> reihen, bool lesen,
                  Arbeit&& arbeit) {
    for (int i = 0; i < anzahl; ++i) {
        const RWCString index = doubleToRWCString(i, "", "", 0, 1);
        for (const char* reihe : reihen) {
            const RWCString key = RWCString(reihe) + "[" + index + "]";
            const qbFeld* z = zeileMitSchluessel(t, key, lesen);
            assert(z && "an array element has no row with that XML key");
            if (z) arbeit(*z, key);
        }
    }
}

} // namespace

void qbFeldTabelle::xmlSchreibeReihen(const qbFormular& form, CQBXMLdata& knoten, int anzahl,
                                      std::initializer_list<const char*> reihen) const {
    jedesElement(*this, anzahl, reihen, false, [&](const qbFeld& z, const RWCString& key) {
        mitMitglied(z, [&](auto m) {
            if constexpr (hatXmlWert<std::remove_cvref_t<decltype(form.*m)>>)
                knoten.List(CQBXMLdata(key, form.*m));
        });
    });
}

void qbFeldTabelle::xmlLiesReihen(qbFormular& form, const CQBXMLdata& knoten, int anzahl,
                                  std::initializer_list<const char*> reihen) const {
    jedesElement(*this, anzahl, reihen, true, [&](const qbFeld& z, const RWCString& key) {
        mitMitglied(z, [&](auto m) {
            if constexpr (hatXmlWert<std::remove_cvref_t<decltype(form.*m)>>) knoten.Listvalue(key, form.*m);
        });
    });
}

// ---- Conversion

void qbFeldTabelle::uebernimmGleichnamige(qbFormular& ziel, const qbFormular& formQuelle,
                                          const qbFeldTabelle& quelle) const {
    for (const qbFeld& z : *this) {
        const qbFeld* q = quelle.suche(z.name);
        if (!q || q->art != z.art) continue;
        mitMitglied(z, [&](auto m) {
            using T = std::remove_cvref_t<decltype(ziel.*m)>;
            mitMitglied(*q, [&](auto mq) {
                if constexpr (std::is_same_v<T, std::remove_cvref_t<decltype(formQuelle.*mq)>>)
                    ziel.*m = formQuelle.*mq;
            });
        });
    }
}
