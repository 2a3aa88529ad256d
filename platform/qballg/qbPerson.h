// Persons and addresses of the maker's qbAllg library, with what the forms use of them.
//
// Record of a qbPerson on RWFile (a layout of this library's own; every field a Text, that is a 4-byte
// length and the bytes):
//   GebDat, Geschlecht, Beruf,
//   then its qbAdressDaten: Anrede, Titel, Vorname, Name, Strasse, PLZ, Ort, Land, Telefon, Telefax, EMail
#pragma once

#include "rw/cstring.h"

class RWFile;

class qbAdresse {
public:
    const RWCString& RefAnrede() const { return Anrede; }
    void RefAnrede(const RWCString& v) { Anrede = v; }
    const RWCString& RefTitel() const { return Titel; }
    void RefTitel(const RWCString& v) { Titel = v; }
    const RWCString& RefVorname() const { return Vorname; }
    void RefVorname(const RWCString& v) { Vorname = v; }
    const RWCString& RefName() const { return Name; }
    void RefName(const RWCString& v) { Name = v; }
    const RWCString& RefStrasse() const { return Strasse; }
    void RefStrasse(const RWCString& v) { Strasse = v; }
    const RWCString& RefPLZ() const { return PLZ; }
    void RefPLZ(const RWCString& v) { PLZ = v; }
    const RWCString& RefOrt() const { return Ort; }
    void RefOrt(const RWCString& v) { Ort = v; }
    const RWCString& RefLand() const { return Land; }
    void RefLand(const RWCString& v) { Land = v; }

    void loesche() { *this = qbAdresse(); }
    friend bool operator==(const qbAdresse&, const qbAdresse&) = default;

protected:
    friend class qbPerson;
    RWCString Anrede, Titel, Vorname, Name, Strasse, PLZ, Ort, Land;
};

class qbAdressDaten : public qbAdresse {
public:
    const RWCString& RefTelefon() const { return Telefon; }
    void RefTelefon(const RWCString& v) { Telefon = v; }
    const RWCString& RefTelefax() const { return Telefax; }
    void RefTelefax(const RWCString& v) { Telefax = v; }
    const RWCString& RefEMail() const { return EMail; }
    void RefEMail(const RWCString& v) { EMail = v; }

    void loesche() { *this = qbAdressDaten(); }
    friend bool operator==(const qbAdressDaten&, const qbAdressDaten&) = default;

private:
    friend class qbPerson;
    RWCString Telefon, Telefax, EMail;
};

class qbPerson {
public:
    const RWCString& RefGebDat() const { return GebDat; }
    void RefGebDat(const RWCString& v) { GebDat = v; }
    const RWCString& RefGeschlecht() const { return Geschlecht; }
    void RefGeschlecht(const RWCString& v) { Geschlecht = v; }
    const RWCString& RefBeruf() const { return Beruf; }
    void RefBeruf(const RWCString& v) { Beruf = v; }
    const qbAdressDaten& RefAdressDaten() const { return AdressDaten; }
    // Copies the given address data; null clears it.
    void RefAdressDaten(const qbAdressDaten* daten);

    void loesche() { *this = qbPerson(); }
    friend bool operator==(const qbPerson&, const qbPerson&) = default;

    void saveOn(RWFile& f) const;
    void restoreFrom(RWFile& f);

private:
    template <class Visit>
    void forEachText(Visit visit);

    RWCString GebDat, Geschlecht, Beruf;
    qbAdressDaten AdressDaten;
};

RWFile& operator<<(RWFile& f, const qbPerson& p);
RWFile& operator>>(RWFile& f, qbPerson& p);
