#include "pension/qbFormularL095.h"

#include "core/qbFormularDefinition.h"
#include "pension/qbZweiteVersion.h"

QB_FORMULAR_IDENTITAET(qbFormularL095, QB_FELDER_qbFormularL095)
QB_FORMULAR_KONSTRUKTOR(qbFormularL095)
QB_FORMULAR_LOESCHE(qbFormularL095)

// binaryStoreSize is the base's: the header alone.
RWspace qbFormularL095::binaryStoreSize() const { return qbFormular::binaryStoreSize(); }

// No stamp: a record saved again keeps the Version it was read with. Behind the header a second copy of
// Version, then the two passes of Lehre, MitarbKaufVoll and FreienJN; the other arrays are not stored.
void qbFormularL095::saveGuts(RWFile& f) const {
    qbFormular::saveGuts(f);
    qbSchreibeZweiteVersion(*this, f);
    schreibeEigene(f);
}

// No version test: the second copy overwrites Version, the passes follow.
void qbFormularL095::restoreGuts(RWFile& f) {
    qbFormular::restoreGuts(f);
    qbLiesZweiteVersion(*this, f);
    liesEigene(f);
}

// On a virtual stream only Version goes before the passes, while the reader expects the whole header: what
// this form writes there cannot be read back.
void qbFormularL095::saveGuts(RWvostream& s) const {
    RWCollectable::saveGuts(s);
    qbSchreibeZweiteVersion(*this, s);
    schreibeEigene(s);
}

void qbFormularL095::restoreGuts(RWvistream& s) {
    qbFormular::restoreGuts(s);
    qbLiesZweiteVersion(*this, s);
    liesEigene(s);
}

// The node is typed as the allowance application's, which this form's own XMLputDat refuses. Both write or
// read a Version key of their own before the arrays.
void qbFormularL095::XMLgetDat(CQBXMLdata& knoten) const {
    knoten.clear("qbFormularGN056");
    CQBXMLdata kopf("");
    qbFormular::XMLgetDat(kopf);
    knoten.add(std::move(kopf));
    knoten.List(CQBXMLdata("Version", Version));
    felder().xmlSchreibe(*this, knoten);
}

void qbFormularL095::XMLputDat(CQBXMLdata& knoten) {
    if (knoten.Typ() != klassenName()) return;
    knoten.Listvalue("Version", Version);
    felder().xmlLies(*this, knoten);
    knoten.Typ(qbFormular::klassenName());
    qbFormular::XMLputDat(knoten);
    knoten.Typ(klassenName());
}
