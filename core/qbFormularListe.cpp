#include "core/qbFormularListe.h"

#include "core/qbKlassen.h"
#include "qballg/CQBXMLdata.h"
#include "qballg/cp1252_literal.h"
#include "rw/rwerr.h"
#include "rw/rwfile.h"
#include "rw/rwstore.h"
#include "rw/toolerr.h"
#include "rw/tphasht.h"
#include "rw/vstream.h"

#include <memory>
#include <optional>
#include <unordered_set>
#include <utility>
#include <vector>

namespace {

// The catalogue of print pieces: a table of its own that has drifted from the classes, kept as it is.
// "GS004" has a class and no row; L139, L244, L245 and L283 carry other names or page counts here.
const struct {
    const char* nummer;
    const char* name;
    const char* seiten;
} kKatalog[] = {
    {"Aenderungsprotokoll", "Änderungsprotokoll zum LV-Antrag"_cp1252, "1"},
    {"AU523", "Beiblatt ProAktiv", "1"},
    {"BA272", "UFB-UMU-Aufnahmeantrag", "1"},
    {"BA276", "BAF-Aufnahmeantrag", "1"},
    {"BAV", "", "1"},
    {"GN056", "Dauerantrag auf Altersvorsorgezulage", "4"},
    {"GR396", "Überweisung VWL durch Arbeitgeber"_cp1252, "1"},
    {"GS004_001", "Finanzielle Risikoprüfung BU"_cp1252, "1"},
    {"GS004_002", "Finanzielle Risikoprüfung LV"_cp1252, "1"},
    {"GS004_003", "Finanzielle Risikoprüfung UZ"_cp1252, "1"},
    {"KOLL", "Gruppentarif-Klausel", "0"},
    {"L036", "Erklärung Auslandsaufenthalt"_cp1252, "1"},
    {"L095", "Tätigkeitsbeschreibung"_cp1252, "1"},
    {"L134", "Erkrankung Diabetes mellitus", "2"},
    {"L135", "Erklärung Hautkrankheit"_cp1252, "3"},
    {"L137", "Erklärung Kopfschmerzen"_cp1252, "3"},
    {"L138", "Erklärung Herz- und Kreislauferkrankungen"_cp1252, "2"},
    {"L139", "Erklärung Ohrenerkrankungen"_cp1252, "2"},
    {"L141", "Erklärung Gynäkologische Erkrankungen"_cp1252, "2"},
    {"L142", "Erklärung Magen- und Zwölffingerdarmerkrankungen"_cp1252, "2"},
    {"L143", "Erklärung Harnwegs- und Nierenerkrankungen"_cp1252, "2"},
    {"L144", "Erklärung Schwangerschaft"_cp1252, "1"},
    {"L145", "Erklärung Verletzungen"_cp1252, "2"},
    {"L146", "Erklärung Wirbelsäulenbeschwerden"_cp1252, "2"},
    {"L147", "Erklärung Blutdruckkontrolle"_cp1252, "1"},
    {"L241", "Erklärung Atemwegserkrankungen"_cp1252, "2"},
    {"L243", "Erklärung Epilepsie"_cp1252, "2"},
    {"L244", "Erklärung Thrombosen/Venenerkrankungen"_cp1252, "3"},
    {"L245", "Erklärung Schilddrüsenerkrankungen"_cp1252, "3"},
    {"L249", "Erklärung Allergien"_cp1252, "2"},
    {"L281", "Erklärung Gelenke"_cp1252, "2"},
    {"L282", "Erklärung Augenkrankheiten"_cp1252, "2"},
    {"L283", "Erklärung Psychische Krankheiten"_cp1252, "2"},
    {"L300", "Geldwäschegesetz"_cp1252, "1"},
    {"L300_2", "Geldwäschegesetz Firma"_cp1252, "1"},
    {"L440", "Erklärung Kampfsport"_cp1252, "1"},
    {"L441", "Erklärung Flugsport"_cp1252, "1"},
    {"L450", "Erklärung Bergsport"_cp1252, "1"},
    {"L451", "Erklärung Tauchsport"_cp1252, "2"},
    {"L452", "Erklärung Automobilsport"_cp1252, "1"},
    {"L453", "Erklärung Motorradsport"_cp1252, "1"},
    {"L454", "Erklärung Sportarten allgemein"_cp1252, "2"},
    {"VB077", "Recherchebericht zum LV-Antrag", "1"},
    {"VB077A", "Ausländischer Antragsteller"_cp1252, "1"},
    {"X278", "Erklärung Freizeitreiter"_cp1252, "1"},
};

// The pieces loescheGesundheitsFormulare clears, in this order: the sport declarations count as health
// forms here, the stay-abroad declaration and the financial forms do not.
const char* const kGesundheitsStuecke[] = {"L134", "L135", "L137", "L138", "L139", "L141", "L142",
                                           "L143", "L144", "L145", "L146", "L147", "L241", "L243",
                                           "L244", "L245", "L249", "L281", "L282", "L283", "L440",
                                           "L441", "L450", "L451", "L452", "L453", "L454", "X278"};

int personenIndex(const RWCString& kennung) {
    if (kennung == "VP1") return 0;
    if (kennung == "VP2") return 1;
    return -1;
}

} // namespace

RWCString qbPersonenKennung(int person) {
    switch (person) {
    case 0:
        return "VP1";
    case 1:
        return "VP2";
    default:
        return "VN";
    }
}

qbFormularListe::qbFormularListe() : Version("05.1999"), mitKatalog(true) {}

qbFormularListe::qbFormularListe(const qbFormularListe& other) : Version(other.Version), mitKatalog(false) {
    for (size_t i = 0; i < other.Formulare.entries(); ++i)
        neuesFormular(*static_cast<qbFormular*>(other.Formulare.at(i)));
}

qbFormularListe& qbFormularListe::operator=(const qbFormularListe& other) {
    if (this == &other) {
        // Passing a list's forms through its own neuesFormular changes what is being walked.
        const qbFormularListe kopie(other);
        return *this = kopie;
    }
    Version = other.Version;
    for (size_t i = 0; i < other.Formulare.entries(); ++i)
        neuesFormular(*static_cast<qbFormular*>(other.Formulare.at(i)));
    return *this;
}

qbFormularListe::~qbFormularListe() { Formulare.clearAndDestroy(); }

void qbFormularListe::neuesFormular(qbFormular& form) {
    const RWCString nummer = form.RefDruckstueckNummer();
    const qbKlasse* klasse = qbKlasseZuNummer(nummer);
    if (!klasse) { // unknown or empty number: a plain copy of the header, nothing replaced
        Formulare.insert(qbKopiere_qbFormular(form));
        return;
    }
    if (klasse->listenart == qbListenart::Ersetzend)
        loescheFormular(nummer, personenIndex(form.RefPersonenKennung()));
    Formulare.insert(klasse->kopiere(form));
}

// The probe: a default object of the piece's class, filled as its search rule says; the first stored form
// that calls itself equal to it wins.
const qbFormular* qbFormularListe::sucheFormular(const RWCString& nummer, int person, const RWCString& extra1,
                                                 const RWCString& extra2, bool zumLiefern) const {
    const qbKlasse* klasse = zumLiefern ? qbKlasseZuNummerOderAlias(nummer) : qbKlasseZuNummer(nummer);
    if (!klasse) return nullptr;
    std::unique_ptr<qbFormular> sonde(static_cast<qbFormular*>(klasse->erzeuge()));
    if (klasse->suche->fuelleSonde) klasse->suche->fuelleSonde(*sonde, extra1, extra2);
    if (zumLiefern ? klasse->suche->personBeimLiefern : klasse->suche->personBeimSuchen)
        sonde->RefPersonenKennung(qbPersonenKennung(person));
    return static_cast<const qbFormular*>(Formulare.find(sonde.get()));
}

unsigned int qbFormularListe::liefereFormular(const RWCString& nummer, qbFormular& form, int person) const {
    return liefereFormular(nummer, form, person, "", "");
}

unsigned int qbFormularListe::liefereFormular(const RWCString& nummer, qbFormular& form, int person,
                                              const RWCString& extra1) const {
    return liefereFormular(nummer, form, person, extra1, "");
}

unsigned int qbFormularListe::liefereFormular(const RWCString& nummer, qbFormular& form, int person,
                                              const RWCString& extra1, const RWCString& extra2) const {
    const qbKlasse* klasse = qbKlasseZuNummerOderAlias(nummer);
    if (!klasse) return 0; // unknown piece: form stays as it was
    if (const qbFormular* gefunden = sucheFormular(nummer, person, extra1, extra2, true)) {
        klasse->zuweise(form, *gefunden);
        return 1;
    }
    form.loesche();
    return 0;
}

unsigned int qbFormularListe::liefereFormular(const RWCString&, qbFormular&, int, const RWCString&,
                                              int) const {
    return 0;
}

bool qbFormularListe::FormularVorhanden(const RWCString& nummer, int person) const {
    return FormularVorhanden(nummer, person, "", "");
}

bool qbFormularListe::FormularVorhanden(const RWCString& nummer, int person, const RWCString& extra1) const {
    return FormularVorhanden(nummer, person, extra1, "");
}

bool qbFormularListe::FormularVorhanden(const RWCString& nummer, int person, const RWCString& extra1,
                                        const RWCString& extra2) const {
    return sucheFormular(nummer, person, extra1, extra2, false) != nullptr;
}

bool qbFormularListe::FormularVorhanden(const RWCString&, int, const RWCString&, int) const { return false; }

unsigned int qbFormularListe::loescheFormular(const RWCString& nummer, int person) {
    return loescheFormular(nummer, person, "", "");
}

unsigned int qbFormularListe::loescheFormular(const RWCString& nummer, int person, const RWCString& extra1) {
    return loescheFormular(nummer, person, extra1, "");
}

unsigned int qbFormularListe::loescheFormular(const RWCString& nummer, int person, const RWCString& extra1,
                                              const RWCString& extra2) {
    const qbFormular* gefunden = sucheFormular(nummer, person, extra1, extra2, false);
    if (!gefunden) return 0;
    delete Formulare.removeReference(gefunden);
    return 1;
}

unsigned int qbFormularListe::loescheFormular(const RWCString&, int, const RWCString&, int) { return 0; }

void qbFormularListe::loescheFormulare() { Formulare.clearAndDestroy(); }

void qbFormularListe::loescheGesundheitsFormulare(int person) {
    for (const char* stueck : kGesundheitsStuecke)
        while (loescheFormular(stueck, person, "", "")) {
        }
}

unsigned int qbFormularListe::AnzahlFormulare() const {
    return static_cast<unsigned int>(Formulare.entries());
}

qbFormular* qbFormularListe::liefereFormularAnPos(int pos) {
    if (pos < 0 || static_cast<size_t>(pos) >= Formulare.entries()) return nullptr;
    return static_cast<qbFormular*>(Formulare.at(static_cast<size_t>(pos)));
}

const qbFormular* qbFormularListe::liefereFormularAnPos(int pos) const {
    return const_cast<qbFormularListe*>(this)->liefereFormularAnPos(pos);
}

RWTValSlist<qbFormularInfo> qbFormularListe::RefDruckstueckeInfo() {
    RWTValSlist<qbFormularInfo> katalog;
    if (mitKatalog)
        for (const auto& zeile : kKatalog)
            katalog.insert(qbFormularInfo(zeile.nummer, zeile.name, zeile.seiten));
    return katalog;
}

RWTValSlist<RWCString> qbFormularListe::RefAlleDruckstueckNr() const {
    RWTValSlist<RWCString> nummern;
    if (mitKatalog)
        for (const auto& zeile : kKatalog)
            nummern.insert(zeile.nummer);
    return nummern;
}

// ---- XML

void qbFormularListe::XMLgetDat(CQBXMLdata& knoten) {
    knoten.clear("qbFormularListe");
    knoten.List(CQBXMLdata("Version", Version));
    CQBXMLdata sammlung("RWDlistCollectables");
    sammlung.Attribute("Liste");
    // XMLgetDat is not virtual: every element gets the header of qbFormular::XMLgetDat only.
    for (unsigned pos = 0; pos < AnzahlFormulare(); ++pos) {
        CQBXMLdata element("");
        liefereFormularAnPos(static_cast<int>(pos))->qbFormular::XMLgetDat(element);
        sammlung.List(std::move(element));
    }
    knoten.List(std::move(sammlung));
}

void qbFormularListe::XMLputDat(CQBXMLdata& knoten) {
    if (knoten.Typ() != "qbFormularListe") return;
    CQBXMLdata* sammlung = knoten.GetChildren("Liste");
    if (!sammlung) return;
    // In the order of the hash table, not of the list.
    RWTPtrHashTableIterator<CQBXMLdata> eintraege(*sammlung->List());
    while (CQBXMLdata* eintrag = eintraege()) {
        const qbKlasse* klasse = qbKlasseZuXmlTyp(eintrag->Typ());
        if (!klasse) continue;
        std::unique_ptr<qbFormular> form(klasse->ausXml(*eintrag));
        neuesFormular(*form);
    }
}

// ---- Streams

namespace {

bool liesWert(RWFile& f, char& v) { return f.Read(v); }
bool liesWert(RWFile& f, int& v) { return f.Read(v); }
bool liesWert(RWvistream& s, char& v) {
    s >> v;
    return s.good();
}
bool liesWert(RWvistream& s, int& v) {
    s >> v;
    return s.good();
}
void schreibeWert(RWFile& f, char v) { f.Write(v); }
void schreibeWert(RWFile& f, int v) { f.Write(v); }
void schreibeWert(RWvostream& s, char v) { s << v; }
void schreibeWert(RWvostream& s, int v) { s << v; }
bool gut(RWFile& f) { return f.good(); }
bool gut(RWvistream& s) { return s.good(); }

[[noreturn]] void falscherVerweis() { RWThrow(RWInternalErr(RWMessage(RWTOOL_REF))); }

template <class Strom>
void schreibeListe(Strom& s, const qbFormularListe& liste) {
    RWUseStoreTable tabelle;
    int nummer = 0;
    if (tabelle->add(&liste, nummer)) {
        schreibeWert(s, ':');
        rwSaveGuts(s, liste);
    } else {
        schreibeWert(s, '@');
        schreibeWert(s, nummer);
    }
}

// The marker of a list on the stream: ':' a new list, '@' and the number of one read before. Any other
// marker raises RWInternalErr.
struct Marke {
    bool gelesen = false; // false: the stream failed before the marker (or the number) was whole
    bool verweis = false;
    int nummer = 0;
};

template <class Strom>
Marke liesMarke(Strom& s) {
    Marke m;
    char zeichen = 0;
    if (!liesWert(s, zeichen)) return m;
    if (zeichen != ':' && zeichen != '@') falscherVerweis();
    m.verweis = zeichen == '@';
    m.gelesen = m.verweis ? liesWert(s, m.nummer) : gut(s);
    return m;
}

// The list an '@' number names (nil for 0); a number outside the table or one that names a collectable
// raises RWInternalErr.
qbFormularListe* verwiesen(const RWReadTable& tabelle, int nummer) {
    if (nummer < 0 || static_cast<size_t>(nummer) >= tabelle.entries() ||
        (nummer != 0 && tabelle.isCollectable(static_cast<size_t>(nummer))))
        falscherVerweis();
    return static_cast<qbFormularListe*>(tabelle(static_cast<size_t>(nummer)));
}

template <class Strom>
void liesInListe(Strom& s, qbFormularListe& liste) {
    if (!gut(s)) return;
    RWUseReadTable tabelle;
    const Marke m = liesMarke(s);
    if (!m.gelesen) return;
    if (m.verweis) {
        if (verwiesen(*tabelle, m.nummer) != &liste) falscherVerweis();
        return;
    }
    tabelle->append(static_cast<void*>(&liste));
    rwRestoreGuts(s, liste);
}

template <class Strom>
void liesInZeiger(Strom& s, qbFormularListe*& liste) {
    if (!gut(s)) return;
    RWUseReadTable tabelle;
    const Marke m = liesMarke(s);
    if (!m.gelesen) return;
    if (m.verweis) {
        liste = verwiesen(*tabelle, m.nummer);
        return;
    }
    liste = new qbFormularListe;
    tabelle->append(static_cast<void*>(liste));
    rwRestoreGuts(s, *liste);
}

} // namespace

namespace {

// A list read back owns each of its forms once, and only forms that its own read made. An element that is
// nil, no form, the collection itself, a second reference to a form of this read, or a reference to an
// object read before the collection (earlier in an outer operation) is taken out, and the caller reports
// it: a list stored by this library or the original holds each form once, so such an element comes from a
// damaged stream. Objects this read made that do not stay are freed; older ones belong to whoever read
// them. The objects this read made are the read table's entries from ersterEintrag on; without a table
// (the collection's read had one of its own) its elements cannot name any other. One pass, whatever the
// number of elements.
bool behalteGelesene(RWDlistCollectables& formulare, const RWReadTable* tabelle, size_t ersterEintrag) {
    std::unordered_set<RWCollectable*> offen; // made by this read and not yet an element of the list
    if (tabelle)
        for (size_t i = ersterEintrag; i < tabelle->entries(); ++i)
            offen.insert(tabelle->collectableAt(i));
    else
        for (size_t i = 0; i < formulare.entries(); ++i)
            offen.insert(formulare.at(i));
    offen.erase(nullptr);
    offen.erase(&formulare);
    std::vector<RWCollectable*> bleiben;
    bleiben.reserve(formulare.entries());
    for (size_t i = 0; i < formulare.entries(); ++i) {
        RWCollectable* c = formulare.at(i);
        if (!offen.erase(c)) continue;
        if (dynamic_cast<qbFormular*>(c))
            bleiben.push_back(c);
        else
            delete c;
    }
    if (bleiben.size() == formulare.entries()) return false;
    formulare.clear();
    for (RWCollectable* c : bleiben)
        formulare.append(c);
    return true;
}

} // namespace

// The collection's own restore lets go of the forms the list held before (the vendor's list only unlinks
// them); those are freed here once it has. If the stream ends before the collection, they stay. What was
// read before a failure stays in the list.
template <class Strom>
void qbLiesListe(Strom& s, qbFormularListe& liste) {
    liste.Version.restoreFrom(s);
    // The read table of an outer operation (the list's operator>> opens one), if there is any: its
    // entries tell what the collection's read made. Without one the collection's read opens its own, which
    // on RWFile begins with the magic number, so none is opened here.
    bool mitTabelle = false;
    {
        RWUseReadTable probe;
        mitTabelle = !probe.firstUse();
    }
    std::optional<RWUseReadTable> tabelle;
    if (mitTabelle) tabelle.emplace();
    const size_t ersterEintrag = mitTabelle ? (*tabelle)->entries() : 0;
    std::vector<RWCollectable*> vorher;
    for (size_t i = 0; i < liste.Formulare.entries(); ++i)
        vorher.push_back(liste.Formulare.at(i));
    // True when an element was taken out.
    auto schliesseAb = [&] {
        if (mitTabelle && ((*tabelle)->entries() <= ersterEintrag ||
                           (*tabelle)->collectableAt(ersterEintrag) != &liste.Formulare))
            return false; // the collection was not read: the list is as it was
        const bool entfernt =
            behalteGelesene(liste.Formulare, mitTabelle ? &**tabelle : nullptr, ersterEintrag);
        std::unordered_set<RWCollectable*> elemente;
        for (size_t i = 0; i < liste.Formulare.entries(); ++i)
            elemente.insert(liste.Formulare.at(i));
        for (RWCollectable* alt : vorher)
            if (!elemente.count(alt)) delete alt;
        return entfernt;
    };
    try {
        RWCollectable::recursiveRestoreFrom(s, &liste.Formulare);
    } catch (...) {
        schliesseAb();
        throw;
    }
    if (schliesseAb()) falscherVerweis();
}

void rwSaveGuts(RWFile& f, const qbFormularListe& liste) {
    liste.Version.saveOn(f);
    liste.Formulare.recursiveSaveOn(f);
}

void rwSaveGuts(RWvostream& s, const qbFormularListe& liste) {
    liste.Version.saveOn(s);
    liste.Formulare.recursiveSaveOn(s);
}

void rwRestoreGuts(RWFile& f, qbFormularListe& liste) { qbLiesListe(f, liste); }
void rwRestoreGuts(RWvistream& s, qbFormularListe& liste) { qbLiesListe(s, liste); }

RWFile& operator<<(RWFile& f, const qbFormularListe& liste) {
    schreibeListe(f, liste);
    return f;
}
RWvostream& operator<<(RWvostream& s, const qbFormularListe& liste) {
    schreibeListe(s, liste);
    return s;
}
RWFile& operator>>(RWFile& f, qbFormularListe& liste) {
    liesInListe(f, liste);
    return f;
}
RWvistream& operator>>(RWvistream& s, qbFormularListe& liste) {
    liesInListe(s, liste);
    return s;
}
RWFile& operator>>(RWFile& f, qbFormularListe*& liste) {
    liesInZeiger(f, liste);
    return f;
}
RWvistream& operator>>(RWvistream& s, qbFormularListe*& liste) {
    liesInZeiger(s, liste);
    return s;
}
