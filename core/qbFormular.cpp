#include "core/qbFormular.h"

#include "core/qbKlassen.h"
#include "qballg/CQBXMLdata.h"
#include "rw/rwfile.h"
#include "rw/vstream.h"
#include "core/qbFormularDefinition.h"

#include <cstdlib>

int qbVersionsSchluesselAllgemein(const RWCString& version) {
    RWCString monat = version(0, 2);
    RWCString jahr = version(3, 4);
    return std::atoi(jahr + monat);
}

int qbVersionsJahr(const RWCString& version) { return std::atoi(RWCString(version(3, 4))); }

unsigned short qbFormular::myAtom = qbId_qbFormular;
unsigned short qbFormular::classIsA() { return myAtom; }

QB_FELDTABELLE(qbFormular, QB_FELDER_qbFormular)
QB_FELDER_ALS_CODE(qbFormular, QB_FELDER_qbFormular)

// Seitenanzahl of a bare base object is not a class constant; its row's default 0 is its value here.
qbFormular::qbFormular() { setzeStandard(); }

qbFormular::qbFormular(const qbFormular& other) : RWCollectable() { *this = other; }

// Assigns the five header fields in order; the RWCollectable part is left alone.
qbFormular& qbFormular::operator=(const qbFormular& other) {
    felder().kopiere(*this, other);
    return *this;
}

qbFormular::~qbFormular() = default;

RWCollectable* qbFormular::newSpecies() const { return new qbFormular; }
RWCollectable* qbFormular::copy() const { return new qbFormular(*this); }
RWClassID qbFormular::isA() const { return myAtom; }

void qbFormular::setzeKopf(const qbKlasse& klasse) {
    Version = klasse.version;
    DruckstueckNummer = klasse.nummer;
    DruckstueckName = klasse.name;
    Seitenanzahl = klasse.seiten;
    PersonenKennung = klasse.person;
}

// The list compares forms with forms only; anything else is not equal.
RWBoolean qbFormular::isEqual(const RWCollectable* other) const {
    const qbFormular* o = dynamic_cast<const qbFormular*>(other);
    return o && DruckstueckNummer == o->DruckstueckNummer && PersonenKennung == o->PersonenKennung;
}

// Four string lengths of 4 bytes and Seitenanzahl: 20 fixed bytes.
RWspace qbFormular::binaryStoreSize() const {
    return RWCollectable::binaryStoreSize() + felder().groesse(*this);
}

void qbFormular::saveGuts(RWFile& f) const {
    RWCollectable::saveGuts(f);
    schreibeEigene(f);
}

void qbFormular::saveGuts(RWvostream& s) const {
    RWCollectable::saveGuts(s);
    schreibeEigene(s);
}

void qbFormular::restoreGuts(RWFile& f) {
    RWCollectable::restoreGuts(f);
    liesEigene(f);
}

void qbFormular::restoreGuts(RWvistream& s) {
    RWCollectable::restoreGuts(s);
    liesEigene(s);
}

void qbFormular::loesche() { PersonenKennung = ""; }

void qbFormular::XMLgetDat(CQBXMLdata& knoten) const {
    knoten.clear(klassenName());
    felder().xmlSchreibe(*this, knoten);
}

// Version and Seitenanzahl are written but never read back: a form from XML keeps those of its
// constructor.
void qbFormular::XMLputDat(CQBXMLdata& knoten) {
    if (knoten.Typ() != klassenName()) return;
    felder().xmlLies(*this, knoten);
}

QB_KLASSEN_EINSTIEG(qbFormular)
