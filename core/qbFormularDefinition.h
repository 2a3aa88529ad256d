// Definitions of a form's operations from its field table, for the form's .cpp: QB_FORMULAR_ROUTINE for
// a form that follows its family's rule in everything, or the pieces one by one, with the operations
// where the form deviates written by hand beside them.
#pragma once

#include "core/qbFormularMakros.h"
#include "core/qbFeldStrom.h"
#include "core/qbKlassen.h"
#include "core/qbLeseBeobachter.h"
#include "qballg/CQBXMLdata.h"
#include "qballg/cp1252_literal.h" // a form's text with characters outside ASCII: "..."_cp1252
#include "rw/rwfile.h"
#include "rw/vstream.h"

#include <type_traits>
#include <utility>

// ---- In the form's .cpp

// One row of a field list as code: written, or read when the stored version's layout holds it; a row
// without a place in the record neither.
#define QB_FELD_SCHREIBEN(Typ, Name, ...)                                                                    \
    {                                                                                                        \
        static constexpr qbFeld zeile = QB_FELD_ZEILE_AUSDRUCK(Typ, Name, __VA_ARGS__);                      \
        if constexpr (zeile.imStrom) qbSchreibe<qbArt::QB_ZEILE_##Typ>(s, Name);                             \
    }
#define QB_FELD_LESEN(Typ, Name, ...)                                                                        \
    {                                                                                                        \
        static constexpr qbFeld zeile = QB_FELD_ZEILE_AUSDRUCK(Typ, Name, __VA_ARGS__);                      \
        if constexpr (zeile.imStrom)                                                                         \
            if ((datei || zeile.vomVirtuellenStrom) &&                                                       \
                (zeile.immerGelesen() || zeile.gehoertZumLayout(schluessel(), jahr())))                      \
                qbLies<qbArt::QB_ZEILE_##Typ>(s, Name);                                                      \
    }
#define QB_FELD_STANDARD(Typ, Name, ...)                                                                     \
    {                                                                                                        \
        static constexpr qbFeld zeile = QB_FELD_ZEILE_AUSDRUCK(Typ, Name, __VA_ARGS__);                      \
        qbSetzeStandard<qbArt::QB_ZEILE_##Typ>(Name, zeile);                                                 \
    }

// The field table of the class, from its field list.
#define QB_FELDTABELLE(Klasse, Felder) QB_FELDTABELLE_AUS(Klasse, Felder, QB_FELD_ZEILE)
#define QB_FELDTABELLE_AUS(Klasse, Felder, Zeile)                                                            \
    const qbFeldTabelle& Klasse::felder() {                                                                  \
        using Selbst = Klasse;                                                                               \
        static constexpr qbFeld zeilen[] = {Felder(Zeile)};                                                  \
        static constexpr qbFeldTabelle tabelle(#Klasse, zeilen);                                             \
        return tabelle;                                                                                      \
    }
// The rows of a form with no XML of its own carry no keys.
#define QB_FELD_ZEILE_OHNE_XML(Typ, Name, ...) QB_FELD_ZEILE_AUSDRUCK(Typ, Name, __VA_ARGS__).ohneXml(),

// The own fields as straight code from the field list: the current layout written and read, and the
// defaults of a new object. The read goes through the table instead while an observer listens.
#define QB_FELDER_ALS_CODE(Klasse, Felder)                                                                   \
    template <class Strom>                                                                                   \
    void Klasse::schreibeEigene(Strom& strom) const {                                                        \
        using Selbst = Klasse;                                                                               \
        auto schreibe = [this](auto& s) { Felder(QB_FELD_SCHREIBEN) };                                       \
        if constexpr (std::is_same_v<Strom, RWFile> || std::is_same_v<Strom, RWvostream>)                    \
            qbSchreibeAmStueck(strom, schreibe);                                                             \
        else                                                                                                 \
            schreibe(strom);                                                                                 \
    }                                                                                                        \
    template <class Strom>                                                                                   \
    void Klasse::liesEigene(Strom& strom, [[maybe_unused]] const char* layout) {                             \
        using Selbst = Klasse;                                                                               \
        [[maybe_unused]] constexpr bool datei = std::is_same_v<Strom, RWFile>;                               \
        /* The stored version's key and year, worked out at the first row that depends on them. */           \
        int gemerkt = 0, gemerktesJahr = -1;                                                                 \
        [[maybe_unused]] auto schluessel = [&] {                                                             \
            return gemerkt ? gemerkt : gemerkt = versionsSchluessel();                                       \
        };                                                                                                   \
        [[maybe_unused]] auto jahr = [&] {                                                                   \
            return gemerktesJahr >= 0 ? gemerktesJahr : gemerktesJahr = qbVersionsJahr(Version);             \
        };                                                                                                   \
        auto lies = [&](auto& s) { Felder(QB_FELD_LESEN) };                                                  \
        if constexpr (std::is_same_v<Strom, RWFile>) {                                                       \
            if (qbAktuellerLeseBeobachter()) return felder().lies(*this, strom, layout);                     \
            qbLiesAmStueck(strom, lies);                                                                     \
        } else                                                                                               \
            lies(strom);                                                                                     \
    }                                                                                                        \
    void Klasse::setzeStandard() {                                                                           \
        using Selbst = Klasse;                                                                               \
        Felder(QB_FELD_STANDARD)                                                                             \
    }

// Identity and the entry points of the class table (creator, copy for the list, assignment for the list,
// XML import), for a field table defined apart.
#define QB_FORMULAR_KERN_OHNE_TABELLE(Klasse, Felder)                                                        \
    unsigned short Klasse::myAtom = qbId_##Klasse;                                                           \
    unsigned short Klasse::classIsA() { return myAtom; }                                                     \
    RWClassID Klasse::isA() const { return myAtom; }                                                         \
    RWCollectable* Klasse::newSpecies() const { return new Klasse; }                                         \
    RWCollectable* Klasse::copy() const { return new Klasse(*this); }                                        \
    Klasse::~Klasse() = default;                                                                             \
    QB_FELDER_ALS_CODE(Klasse, Felder)                                                                       \
    QB_KLASSEN_EINSTIEG(Klasse)
// The same with the field table.
#define QB_FORMULAR_KERN(Klasse, Felder)                                                                     \
    QB_FELDTABELLE(Klasse, Felder)                                                                           \
    QB_FORMULAR_KERN_OHNE_TABELLE(Klasse, Felder)

// Copy construction and assignment: base first, then the own fields.
#define QB_FORMULAR_KOPIE(Klasse)                                                                            \
    Klasse::Klasse(const Klasse& other) : Basisklasse(other) { felder().kopiere(*this, other); }             \
    Klasse& Klasse::operator=(const Klasse& other) {                                                         \
        Basisklasse::operator=(other);                                                                       \
        felder().kopiere(*this, other);                                                                      \
        return *this;                                                                                        \
    }

// Identity, field table, copy and assignment, entry points.
#define QB_FORMULAR_IDENTITAET(Klasse, Felder)                                                               \
    QB_FORMULAR_KERN(Klasse, Felder)                                                                         \
    QB_FORMULAR_KOPIE(Klasse)
// The same for a form declared with QB_FORMULAR_OHNE_XML.
#define QB_FORMULAR_OHNE_XML_IDENTITAET(Klasse, Felder)                                                      \
    QB_FELDTABELLE_AUS(Klasse, Felder, QB_FELD_ZEILE_OHNE_XML)                                               \
    QB_FORMULAR_KERN_OHNE_TABELLE(Klasse, Felder)                                                            \
    QB_FORMULAR_KOPIE(Klasse)

// Default constructor: the base's defaults, the own fields' defaults, then the header constants of the
// class table.
#define QB_FORMULAR_KONSTRUKTOR(Klasse)                                                                      \
    Klasse::Klasse() {                                                                                       \
        setzeStandard();                                                                                     \
        setzeKopf(qbKlassen[qbIndex_##Klasse]);                                                              \
    }

// saveGuts: stamp the current version literal, the base's record, then the own fields in table order.
// restoreGuts: the base's record, then the own fields in table order, whatever the stored version.
// _DATEI and _STROM are the two overloads alone, for a form whose save deviates on the other path.
#define QB_FORMULAR_SPEICHERN_DATEI(Klasse)                                                                  \
    void Klasse::saveGuts(RWFile& f) const {                                                                 \
        stempele(qbKlassen[qbIndex_##Klasse].version);                                                       \
        Basisklasse::saveGuts(f);                                                                            \
        schreibeEigene(f);                                                                                   \
    }
#define QB_FORMULAR_SPEICHERN_STROM(Klasse)                                                                  \
    void Klasse::saveGuts(RWvostream& s) const {                                                             \
        stempele(qbKlassen[qbIndex_##Klasse].version);                                                       \
        Basisklasse::saveGuts(s);                                                                            \
        schreibeEigene(s);                                                                                   \
    }
#define QB_FORMULAR_SPEICHERN(Klasse)                                                                        \
    QB_FORMULAR_SPEICHERN_DATEI(Klasse)                                                                      \
    QB_FORMULAR_SPEICHERN_STROM(Klasse)
// The same without a stamp: Version is written as it stands, so a restored old record keeps its version.
#define QB_FORMULAR_SPEICHERN_OHNE_STEMPEL(Klasse)                                                           \
    void Klasse::saveGuts(RWFile& f) const {                                                                 \
        Basisklasse::saveGuts(f);                                                                            \
        schreibeEigene(f);                                                                                   \
    }                                                                                                        \
    void Klasse::saveGuts(RWvostream& s) const {                                                             \
        Basisklasse::saveGuts(s);                                                                            \
        schreibeEigene(s);                                                                                   \
    }
#define QB_FORMULAR_LADEN(Klasse)                                                                            \
    void Klasse::restoreGuts(RWFile& f) {                                                                    \
        Basisklasse::restoreGuts(f);                                                                         \
        liesEigene(f);                                                                                       \
    }                                                                                                        \
    void Klasse::restoreGuts(RWvistream& s) {                                                                \
        Basisklasse::restoreGuts(s);                                                                         \
        liesEigene(s);                                                                                       \
    }

// A form stored on an RWFile only (QB_FORMULAR_NUR_DATEI): the RWFile's operations; those of a virtual
// stream and binaryStoreSize are the base's.
#define QB_FORMULAR_SPEICHERN_NUR_DATEI(Klasse)                                                              \
    void Klasse::saveGuts(RWFile& f) const {                                                                 \
        stempele(qbKlassen[qbIndex_##Klasse].version);                                                       \
        Basisklasse::saveGuts(f);                                                                            \
        schreibeEigene(f);                                                                                   \
    }
#define QB_FORMULAR_LADEN_NUR_DATEI(Klasse)                                                                  \
    void Klasse::restoreGuts(RWFile& f) {                                                                    \
        Basisklasse::restoreGuts(f);                                                                         \
        liesEigene(f);                                                                                       \
    }

// The base's figure plus the own fields' bytes.
#define QB_FORMULAR_GROESSE(Klasse)                                                                          \
    RWspace Klasse::binaryStoreSize() const {                                                                \
        return Basisklasse::binaryStoreSize() + felder().groesse(*this);                                     \
    }

// XMLgetDat: the node typed with the class name, the header in a nested node, then the own fields.
// XMLputDat: only a node of the class's own type; the own keys, then the base's type set for the call of
// qbFormular::XMLputDat, which reads the header only for a plain form, and the type set back.
#define QB_FORMULAR_XML(Klasse) QB_FORMULAR_XML_KNOTEN_VON(Klasse, qbFormular)
// The same, with the nested node filled by the base's XMLgetDat (for a health form: the header and the
// common answers, which the import never reads back).
#define QB_FORMULAR_XML_BASISKNOTEN(Klasse) QB_FORMULAR_XML_KNOTEN_VON(Klasse, Basisklasse)
#define QB_FORMULAR_XML_KNOTEN_VON(Klasse, Knotenklasse) QB_FORMULAR_XML_KNOTEN(Klasse, Knotenklasse, #Klasse)
// The same with the node typed with another class's name, which this form's own XMLputDat then refuses.
#define QB_FORMULAR_XML_UNTER_TYP(Klasse, Knotentyp) QB_FORMULAR_XML_KNOTEN(Klasse, qbFormular, Knotentyp)
#define QB_FORMULAR_XML_KNOTEN(Klasse, Knotenklasse, Knotentyp)                                              \
    void Klasse::XMLgetDat(CQBXMLdata& knoten) const {                                                       \
        knoten.clear(Knotentyp);                                                                             \
        CQBXMLdata kopf("");                                                                                 \
        Knotenklasse::XMLgetDat(kopf);                                                                       \
        knoten.add(std::move(kopf));                                                                         \
        felder().xmlSchreibe(*this, knoten);                                                                 \
    }                                                                                                        \
    void Klasse::XMLputDat(CQBXMLdata& knoten) {                                                             \
        if (knoten.Typ() != klassenName()) return;                                                           \
        felder().xmlLies(*this, knoten);                                                                     \
        knoten.Typ(Basisklasse::klassenName());                                                              \
        qbFormular::XMLputDat(knoten);                                                                       \
        knoten.Typ(klassenName());                                                                           \
    }

// The same for a form whose XML keeps an order of its own: Folge names the fields in the tree's order, a
// field as often as the tree holds it, and ends with a null. Both directions go by it.
#define QB_FORMULAR_XML_IN_FOLGE(Klasse, Folge)                                                              \
    void Klasse::XMLgetDat(CQBXMLdata& knoten) const {                                                       \
        knoten.clear(klassenName());                                                                         \
        CQBXMLdata kopf("");                                                                                 \
        qbFormular::XMLgetDat(kopf);                                                                         \
        knoten.add(std::move(kopf));                                                                         \
        felder().xmlSchreibe(*this, knoten, Folge);                                                          \
    }                                                                                                        \
    void Klasse::XMLputDat(CQBXMLdata& knoten) {                                                             \
        if (knoten.Typ() != klassenName()) return;                                                           \
        felder().xmlLies(*this, knoten, Folge);                                                              \
        knoten.Typ(Basisklasse::klassenName());                                                              \
        qbFormular::XMLputDat(knoten);                                                                       \
        knoten.Typ(klassenName());                                                                           \
    }

// A fresh object of the class, assigned: every field and the whole header back to the class's defaults.
#define QB_FORMULAR_LOESCHE(Klasse)                                                                          \
    void Klasse::loesche() {                                                                                 \
        PersonenKennung = "";                                                                                \
        *this = Klasse();                                                                                    \
    }

// A reset by hand: PersonenKennung emptied and the own fields back to their defaults; Version, number,
// name and page count stay. _MIT_PERSON puts the class's default person back afterwards.
#define QB_FORMULAR_LOESCHE_VON_HAND(Klasse)                                                                 \
    void Klasse::loesche() {                                                                                 \
        PersonenKennung = "";                                                                                \
        setzeStandard();                                                                                     \
    }
#define QB_FORMULAR_LOESCHE_VON_HAND_MIT_PERSON(Klasse)                                                      \
    void Klasse::loesche() {                                                                                 \
        PersonenKennung = "";                                                                                \
        PersonenKennung = qbKlassen[qbIndex_##Klasse].person;                                                \
        setzeStandard();                                                                                     \
    }

// A conversion constructor from a form of another class: a fresh object, assigned a second fresh one so
// that the whole header is the new class's own, then the old form's person and every field the old
// class declares under the same name and type. The old form is not changed.
#define QB_FORMULAR_UMWANDLUNG(Klasse, Quelle)                                                               \
    Klasse::Klasse(const Quelle& alt) : Klasse() {                                                           \
        *this = Klasse();                                                                                    \
        PersonenKennung = alt.RefPersonenKennung();                                                          \
        felder().uebernimmGleichnamige(*this, alt, Quelle::felder());                                        \
    }

// Everything by the family rule.
#define QB_FORMULAR_ROUTINE(Klasse, Felder)                                                                  \
    QB_FORMULAR_IDENTITAET(Klasse, Felder)                                                                   \
    QB_FORMULAR_KONSTRUKTOR(Klasse)                                                                          \
    QB_FORMULAR_SPEICHERN(Klasse)                                                                            \
    QB_FORMULAR_LADEN(Klasse)                                                                                \
    QB_FORMULAR_GROESSE(Klasse)                                                                              \
    QB_FORMULAR_XML(Klasse)                                                                                  \
    QB_FORMULAR_LOESCHE(Klasse)

// Everything by the family rule except XML, which the form writes in an order of its own.
#define QB_FORMULAR_ROUTINE_XML_IN_FOLGE(Klasse, Felder, Folge)                                              \
    QB_FORMULAR_IDENTITAET(Klasse, Felder)                                                                   \
    QB_FORMULAR_KONSTRUKTOR(Klasse)                                                                          \
    QB_FORMULAR_SPEICHERN(Klasse)                                                                            \
    QB_FORMULAR_LADEN(Klasse)                                                                                \
    QB_FORMULAR_GROESSE(Klasse)                                                                              \
    QB_FORMULAR_XML_IN_FOLGE(Klasse, Folge)                                                                  \
    QB_FORMULAR_LOESCHE(Klasse)
