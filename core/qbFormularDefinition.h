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

// One row of a field list as code: written, or read when the stored version's layout holds it.
#define QB_FELD_SCHREIBEN(Typ, Name, ...)                                                                    \
    {                                                                                                        \
        static constexpr qbFeld zeile = QB_FELD_ZEILE_AUSDRUCK(Typ, Name, __VA_ARGS__);                      \
        if constexpr (zeile.imStrom) qbSchreibe<qbArt::QB_ZEILE_##Typ>(s, Name);                             \
    }
#define QB_FELD_LESEN(Typ, Name, ...)                                                                        \
    {                                                                                                        \
        static constexpr qbFeld zeile = QB_FELD_ZEILE_AUSDRUCK(Typ, Name, __VA_ARGS__);                      \
        if constexpr (zeile.imStrom)                                                                         \
            if ((zeile.liesAbSchluessel == 0 && !zeile.liesWenn) || zeile.gehoertZumLayout(schluessel()))    \
                qbLies<qbArt::QB_ZEILE_##Typ>(s, Name);                                                      \
    }
#define QB_FELD_STANDARD(Typ, Name, ...)                                                                     \
    {                                                                                                        \
        static constexpr qbFeld zeile = QB_FELD_ZEILE_AUSDRUCK(Typ, Name, __VA_ARGS__);                      \
        qbSetzeStandard<qbArt::QB_ZEILE_##Typ>(Name, zeile);                                                 \
    }

// The field table of the class, from its field list.
#define QB_FELDTABELLE(Klasse, Felder)                                                                       \
    const qbFeldTabelle& Klasse::felder() {                                                                  \
        using Selbst = Klasse;                                                                               \
        static constexpr qbFeld zeilen[] = {Felder(QB_FELD_ZEILE)};                                          \
        static constexpr qbFeldTabelle tabelle(#Klasse, zeilen);                                             \
        return tabelle;                                                                                      \
    }

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
    void Klasse::liesEigene(Strom& strom) {                                                                  \
        using Selbst = Klasse;                                                                               \
        /* The stored version's key, worked out at the first row that depends on it. */                      \
        int gemerkt = 0;                                                                                     \
        [[maybe_unused]] auto schluessel = [&] {                                                             \
            return gemerkt ? gemerkt : gemerkt = versionsSchluessel();                                       \
        };                                                                                                   \
        auto lies = [&](auto& s) { Felder(QB_FELD_LESEN) };                                                  \
        if constexpr (std::is_same_v<Strom, RWFile>) {                                                       \
            if (qbAktuellerLeseBeobachter()) return felder().lies(*this, strom);                             \
            qbLiesAmStueck(strom, lies);                                                                     \
        } else                                                                                               \
            lies(strom);                                                                                     \
    }                                                                                                        \
    void Klasse::setzeStandard() {                                                                           \
        using Selbst = Klasse;                                                                               \
        Felder(QB_FELD_STANDARD)                                                                             \
    }

// Identity, field table, and the entry points of the class table (creator, copy for the list, assignment
// for the list, XML import).
#define QB_FORMULAR_KERN(Klasse, Felder)                                                                     \
    unsigned short Klasse::myAtom = qbId_##Klasse;                                                           \
    unsigned short Klasse::classIsA() { return myAtom; }                                                     \
    RWClassID Klasse::isA() const { return myAtom; }                                                         \
    RWCollectable* Klasse::newSpecies() const { return new Klasse; }                                         \
    RWCollectable* Klasse::copy() const { return new Klasse(*this); }                                        \
    QB_FELDTABELLE(Klasse, Felder)                                                                           \
    Klasse::~Klasse() = default;                                                                             \
    QB_FELDER_ALS_CODE(Klasse, Felder)                                                                       \
    QB_KLASSEN_EINSTIEG(Klasse)

// Copy construction and assignment: base first, then the own fields.
#define QB_FORMULAR_KOPIE(Klasse)                                                                            \
    Klasse::Klasse(const Klasse& other) : Basisklasse(other) { felder().kopiere(*this, other); }             \
    Klasse& Klasse::operator=(const Klasse& other) {                                                         \
        Basisklasse::operator=(other);                                                                       \
        felder().kopiere(*this, other);                                                                      \
        return *this;                                                                                        \
    }

#define QB_FORMULAR_IDENTITAET(Klasse, Felder)                                                               \
    QB_FORMULAR_KERN(Klasse, Felder)                                                                         \
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
#define QB_FORMULAR_SPEICHERN(Klasse)                                                                        \
    void Klasse::saveGuts(RWFile& f) const {                                                                 \
        stempele(qbKlassen[qbIndex_##Klasse].version);                                                       \
        Basisklasse::saveGuts(f);                                                                            \
        schreibeEigene(f);                                                                                   \
    }                                                                                                        \
    void Klasse::saveGuts(RWvostream& s) const {                                                             \
        stempele(qbKlassen[qbIndex_##Klasse].version);                                                       \
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

// The base's figure plus the own fields' bytes.
#define QB_FORMULAR_GROESSE(Klasse)                                                                          \
    RWspace Klasse::binaryStoreSize() const {                                                                \
        return Basisklasse::binaryStoreSize() + felder().groesse(*this);                                     \
    }

// XMLgetDat: the node typed with the class name, the header in a nested node, then the own fields.
// XMLputDat: only a node of the class's own type; the own keys, then the base's type set for the call of
// qbFormular::XMLputDat, which reads the header only for a plain form, and the type set back.
#define QB_FORMULAR_XML(Klasse)                                                                              \
    void Klasse::XMLgetDat(CQBXMLdata& knoten) const {                                                       \
        knoten.clear(klassenName());                                                                         \
        CQBXMLdata kopf("");                                                                                 \
        qbFormular::XMLgetDat(kopf);                                                                         \
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

// Everything by the family rule.
#define QB_FORMULAR_ROUTINE(Klasse, Felder)                                                                  \
    QB_FORMULAR_IDENTITAET(Klasse, Felder)                                                                   \
    QB_FORMULAR_KONSTRUKTOR(Klasse)                                                                          \
    QB_FORMULAR_SPEICHERN(Klasse)                                                                            \
    QB_FORMULAR_LADEN(Klasse)                                                                                \
    QB_FORMULAR_GROESSE(Klasse)                                                                              \
    QB_FORMULAR_XML(Klasse)                                                                                  \
    QB_FORMULAR_LOESCHE(Klasse)
