// qbFormular: the common base of every paper form (print piece). A persistable record with five header
// fields; all form classes derive from it, directly or through qbFormularAllgGesu.
//
// Record of the header on a stream (RWCollectable part first, which writes nothing):
//   Version            Text   MM.YYYY
//   DruckstueckNummer  Text
//   DruckstueckName    Text
//   Seitenanzahl       Int    only in records whose version key is at least 200111
//   PersonenKennung    Text   "VN", "VP1" or "VP2"
#pragma once

#include "core/qbFeld.h"
#include "rw/collect.h"
#include "rw/cstring.h"

#include <cstddef>

class CQBXMLdata;
struct qbKlasse;

// The header's field list (see qbFormularMakros.h); its members are declared by hand below, Version
// mutable. Seitenanzahl came with 11.2001; Version and Seitenanzahl go into XML but are never read back.
#define QB_FELDER_qbFormular(FELD)                                                                           \
    FELD(Text, Version, .nurXmlSchreiben())                                                                  \
    FELD(Text, DruckstueckNummer)                                                                            \
    FELD(Text, DruckstueckName)                                                                              \
    FELD(Int, Seitenanzahl, .liesAb(200111).nurXmlSchreiben())                                               \
    FELD(Text, PersonenKennung)

class qbFormular : public RWCollectable {
public:
    qbFormular();
    qbFormular(const qbFormular& other);
    qbFormular& operator=(const qbFormular& other);
    ~qbFormular() override;

    // Forms are created and deleted through a small cache of blocks (see qbFormularSpeicher.cpp).
    static void* operator new(std::size_t n);
    static void operator delete(void* p, std::size_t n) noexcept;

    RWCollectable* newSpecies() const override;
    RWCollectable* copy() const override;
    RWClassID isA() const override;
    RWspace binaryStoreSize() const override;
    // Same DruckstueckNummer and same PersonenKennung; nothing else counts.
    RWBoolean isEqual(const RWCollectable* other) const override;
    void restoreGuts(RWvistream& s) override;
    void restoreGuts(RWFile& f) override;
    void saveGuts(RWvostream& s) const override;
    void saveGuts(RWFile& f) const override;
    // The reset the form list calls on a caller's form when a search finds nothing.
    virtual void loesche();

    static unsigned short classIsA();
    static unsigned short myAtom;
    static const char* klassenName() { return "qbFormular"; }
    // The header as a field table.
    static const qbFeldTabelle& felder();

    const RWCString& RefVersion() const { return Version; }
    const RWCString& RefDruckstueckNummer() const { return DruckstueckNummer; }
    const RWCString& RefDruckstueckName() const { return DruckstueckName; }
    const int& RefSeitenanzahl() const { return Seitenanzahl; }
    const RWCString& RefPersonenKennung() const { return PersonenKennung; }
    void RefVersion(const RWCString& v) { Version = v; }
    void RefDruckstueckNummer(const RWCString& v) { DruckstueckNummer = v; }
    void RefDruckstueckName(const RWCString& v) { DruckstueckName = v; }
    void RefPersonenKennung(const RWCString& v) { PersonenKennung = v; }

    int operator==(const qbFormular& other) const { return isEqual(&other); }

    void XMLgetDat(CQBXMLdata& knoten) const;
    void XMLputDat(CQBXMLdata& knoten);

protected:
    // The header constants of a class: its row of the class table.
    void setzeKopf(const qbKlasse& klasse);
    // saveGuts writes the current version literal into Version although it is a const operation.
    void stempele(const char* version) const { Version = version; }
    // The version key of the stored Version (year * 100 + month).
    int versionsSchluessel() const;

    // The header fields as code from the field list, like the own fields of every form.
    template <class Strom>
    void schreibeEigene(Strom& s) const;
    template <class Strom>
    void liesEigene(Strom& s, const char* layout = nullptr);
    void setzeStandard();

    mutable RWCString Version;
    RWCString DruckstueckNummer;
    RWCString DruckstueckName;
    int Seitenanzahl;
    RWCString PersonenKennung;
};

// The key of a version text MM.YYYY: the four characters at position 3 and the two at position 0, joined
// and read with atoi. "10.2002" gives 200210; anything behind the year is ignored; a text atoi cannot read
// gives 0 or a partial number.
int qbVersionsSchluesselAllgemein(const RWCString& version);
inline int qbVersionsSchluessel(const RWCString& version) {
    // Every record this library writes has "MM.YYYY": read it in place (a restore asks several times).
    const std::string& v = version.std();
    auto ziffer = [](char c) { return c >= '0' && c <= '9'; };
    if (v.size() == 7 && ziffer(v[0]) && ziffer(v[1]) && v[2] == '.' && ziffer(v[3]) && ziffer(v[4]) &&
        ziffer(v[5]) && ziffer(v[6]))
        return ((v[3] - '0') * 1000 + (v[4] - '0') * 100 + (v[5] - '0') * 10 + (v[6] - '0')) * 100 +
               (v[0] - '0') * 10 + (v[1] - '0');
    return qbVersionsSchluesselAllgemein(version);
}

// The year of a version text: the four characters at position 3, read with atoi. For "MM.YYYY" the key
// divided by 100; a text of another shape may give a year where its key gives none ("xx.2000": year 2000,
// key 2000).
int qbVersionsJahr(const RWCString& version);

inline int qbFormular::versionsSchluessel() const { return qbVersionsSchluessel(Version); }
