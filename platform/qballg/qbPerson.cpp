#include "qballg/qbPerson.h"

#include "rw/rwfile.h"

// The record's fields in stream order.
template <class Visit>
void qbPerson::forEachText(Visit visit) {
    qbAdressDaten& a = AdressDaten;
    for (RWCString* field : {&GebDat, &Geschlecht, &Beruf, &a.Anrede, &a.Titel, &a.Vorname, &a.Name,
                             &a.Strasse, &a.PLZ, &a.Ort, &a.Land, &a.Telefon, &a.Telefax, &a.EMail})
        visit(*field);
}

void qbPerson::RefAdressDaten(const qbAdressDaten* daten) { AdressDaten = daten ? *daten : qbAdressDaten(); }

void qbPerson::saveOn(RWFile& f) const {
    const_cast<qbPerson*>(this)->forEachText([&](const RWCString& s) { s.saveOn(f); });
}

void qbPerson::restoreFrom(RWFile& f) {
    forEachText([&](RWCString& s) {
        if (f.good()) s.restoreFrom(f);
    });
}

RWFile& operator<<(RWFile& f, const qbPerson& p) {
    p.saveOn(f);
    return f;
}

RWFile& operator>>(RWFile& f, qbPerson& p) {
    p.restoreFrom(f);
    return f;
}
