// The table of form classes: one row per class, in the order of registration. Factory registration, the
// form list's chains and the XML type chain all read it; adding a form means adding its row to
// qbKlassen.def (and its file).
#pragma once

#include "rw/collect.h"
#include "rw/cstring.h"

class CQBXMLdata;
class qbFormular;

// How the form list treats a print piece.
enum class qbListenart : unsigned char {
    Basis,        // no print piece of its own: the list stores such an object as a plain qbFormular
    Ersetzend,    // at most one per person: an earlier one goes
    Wiederholbar, // only appended, any number per person
};

// How the form list searches a print piece: the probe it builds and the person it gives the probe.
struct qbSuchregel {
    // Fills the probe from the two extra strings of a search; null leaves the default object.
    void (*fuelleSonde)(qbFormular& sonde, const RWCString& extra1, const RWCString& extra2);
    bool personBeimLiefern;    // liefereFormular gives the probe the caller's person
    bool personBeimSuchen;     // FormularVorhanden and loescheFormular do
    const char* const* aliase; // further numbers that liefereFormular alone knows; null-terminated, or null
};

// The search rules of the list (the probe rules of its chains).
extern const qbSuchregel qbSucheOhne;       // a base class: the list knows no piece of it
extern const qbSuchregel qbSuchePerson;     // a default probe with the caller's person
extern const qbSuchregel qbSucheGesundheit; // Krankheit and AntwortZuFrage from the extras, with person
extern const qbSuchregel qbSucheAuslandsaufenthalt; // L036: Land and, through atoi, Index from the extras
extern const qbSuchregel
    qbSucheOhnePersonBeimLiefern;             // liefereFormular ignores the person (GN056, GR396, L095)
extern const qbSuchregel qbSucheOhnePerson;   // the class's own person in every search (L300, L300_2)
extern const qbSuchregel qbSuchePensionsform; // with the seven numbers only liefereFormular knows (BAV)

class qbFeldTabelle;

struct qbKlasse {
    RWClassID id;
    const char* klassenName; // the class literal: string id in the factory and XML element type
    const char* basisName;   // the base class
    // Header constants of a new object; an empty text means the constructor leaves that field empty.
    const char* nummer;
    const char* name;
    const char* version;
    int seiten;
    const char* person;
    qbListenart listenart;
    const qbSuchregel* suche;
    bool imXmlImport; // the list's XMLputDat knows the type

    const qbFeldTabelle& (*felder)(); // the class's own rows; the base's rows stand in the base's row
    RWCollectable* (*erzeuge)();
    // A copy for the list through the class's copy constructor; a form of another class gives a default
    // object of this class with that form's header.
    qbFormular* (*kopiere)(const qbFormular& form);
    // The list's result: the stored form assigned through the class's operator= (header only when the
    // caller's object is of another class).
    void (*zuweise)(qbFormular& ziel, const qbFormular& quelle);
    // The list's XML import: a default object read through the class's own XMLputDat.
    qbFormular* (*ausXml)(CQBXMLdata& knoten);
    // The class's own XMLgetDat (not virtual, so the list's XMLgetDat never calls it), for exporters.
    void (*zuXml)(const qbFormular& form, CQBXMLdata& knoten);
};

// Class ids and table positions, by class name.
#define QB_KLASSE(Id, Klasse, ...) qbId_##Klasse = Id,
enum qbKlassenId : unsigned short {
#include "core/qbKlassen.def"
};
#undef QB_KLASSE
#define QB_KLASSE(Id, Klasse, ...) qbIndex_##Klasse,
enum qbKlassenIndex : unsigned {
#include "core/qbKlassen.def"
    qbKlassenAnzahl
};
#undef QB_KLASSE

extern const qbKlasse qbKlassen[qbKlassenAnzahl];

// The class of a print-piece number, for the list's chains; null for an unknown number.
const qbKlasse* qbKlasseZuNummer(const RWCString& nummer);
// The same, also knowing the aliases that only liefereFormular accepts.
const qbKlasse* qbKlasseZuNummerOderAlias(const RWCString& nummer);
// The class of an XML element type, for the list's import; null for a type it skips.
const qbKlasse* qbKlasseZuXmlTyp(const RWCString& typ);
const qbKlasse* qbKlasseZuId(RWClassID id);
const qbKlasse* qbKlasseZuName(const RWCString& klassenName);

// Registration with the factory, in table order, and removal in reverse order. Both run once on their
// own when the library is loaded and unloaded; they are public for tests.
void qbKlassenAnmelden();
// Keeps the registration in a statically linked program (see qbKlassen.cpp).
extern "C" void qbformul_klassen_anker();
void qbKlassenAbmelden();

// Entry points of one class for the table, defined beside the class by QB_KLASSEN_EINSTIEG.
#define QB_KLASSE(Id, Klasse, ...)                                                                           \
    RWCollectable* qbErzeuge_##Klasse();                                                                     \
    const qbFeldTabelle& qbFelder_##Klasse();                                                                \
    qbFormular* qbKopiere_##Klasse(const qbFormular&);                                                       \
    void qbZuweise_##Klasse(qbFormular&, const qbFormular&);                                                 \
    qbFormular* qbAusXml_##Klasse(CQBXMLdata&);                                                              \
    void qbZuXml_##Klasse(const qbFormular&, CQBXMLdata&);
#include "core/qbKlassen.def"
#undef QB_KLASSE

#define QB_KLASSEN_EINSTIEG(Klasse)                                                                          \
    RWCollectable* qbErzeuge_##Klasse() { return new Klasse; }                                               \
    const qbFeldTabelle& qbFelder_##Klasse() { return Klasse::felder(); }                                    \
    qbFormular* qbKopiere_##Klasse(const qbFormular& form) {                                                 \
        if (const Klasse* gleich = dynamic_cast<const Klasse*>(&form)) return new Klasse(*gleich);           \
        Klasse* neu = new Klasse;                                                                            \
        neu->qbFormular::operator=(form);                                                                    \
        return neu;                                                                                          \
    }                                                                                                        \
    void qbZuweise_##Klasse(qbFormular& ziel, const qbFormular& quelle) {                                    \
        Klasse* z = dynamic_cast<Klasse*>(&ziel);                                                            \
        const Klasse* q = dynamic_cast<const Klasse*>(&quelle);                                              \
        if (z && q)                                                                                          \
            *z = *q;                                                                                         \
        else                                                                                                 \
            ziel.qbFormular::operator=(quelle);                                                              \
    }                                                                                                        \
    qbFormular* qbAusXml_##Klasse(CQBXMLdata& knoten) {                                                      \
        Klasse* neu = new Klasse;                                                                            \
        neu->XMLputDat(knoten);                                                                              \
        return neu;                                                                                          \
    }                                                                                                        \
    void qbZuXml_##Klasse(const qbFormular& form, CQBXMLdata& knoten) {                                      \
        if (const Klasse* k = dynamic_cast<const Klasse*>(&form))                                            \
            k->XMLgetDat(knoten);                                                                            \
        else                                                                                                 \
            form.qbFormular::XMLgetDat(knoten);                                                              \
    }
