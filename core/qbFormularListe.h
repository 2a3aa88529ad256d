// qbFormularListe: the forms of one application, owned as copies, found by print-piece number and person,
// with the fixed catalogue of the print pieces the system knows. qbFormularInfo: one catalogue entry.
//
// Stream layout of a list (RWFile and virtual streams alike):
//   ':'  Version (Text), then the forms as an RWDlistCollectables through the recursive save: its class id
//        0x8010, the count, and each form as its class id and record
//   '@'  the number (Int) the store table gave the list when it was first written in this operation
// The catalogue is not stored.
#pragma once

#include "core/qbFormular.h"
#include "rw/cstring.h"
#include "rw/dlistcol.h"
#include "rw/tvslist.h"

class CQBXMLdata;
class RWFile;
class RWvistream;
class RWvostream;

class qbFormularInfo {
public:
    qbFormularInfo() = default;
    qbFormularInfo(RWCString nummer, RWCString name, RWCString seiten)
        : Nummer(std::move(nummer)), Name(std::move(name)), Seiten(std::move(seiten)) {}
    bool operator==(const qbFormularInfo& other) const {
        return Nummer == other.Nummer && Name == other.Name && Seiten == other.Seiten;
    }

    RWCString Nummer;
    RWCString Name;
    RWCString Seiten; // page count, as text
};

class qbFormularListe {
public:
    qbFormularListe();
    // Copies Version and passes every form through neuesFormular; the copy has an empty catalogue.
    qbFormularListe(const qbFormularListe& other);
    // Assigns Version and passes every form through neuesFormular, without emptying this list first:
    // replacing pieces are replaced, repeatable ones added. The catalogue stays as it is.
    qbFormularListe& operator=(const qbFormularListe& other);
    ~qbFormularListe();

    const RWCString& RefVersion() const { return Version; }
    void RefVersion(const RWCString& v) { Version = v; }

    // Stores a copy of form; a replacing piece first removes the one of the same person.
    void neuesFormular(qbFormular& form);

    // person is an index: 0 "VP1", 1 "VP2", any other value "VN". extra1 and extra2 narrow the search of
    // pieces that may repeat per person (health: Krankheit and AntwortZuFrage; L036: Land and Index).
    unsigned int liefereFormular(const RWCString& nummer, qbFormular& form, int person) const;
    unsigned int liefereFormular(const RWCString& nummer, qbFormular& form, int person,
                                 const RWCString& extra1) const;
    unsigned int liefereFormular(const RWCString& nummer, qbFormular& form, int person,
                                 const RWCString& extra1, const RWCString& extra2) const;
    unsigned int liefereFormular(const RWCString& nummer, qbFormular& form, int person,
                                 const RWCString& extra1,
                                 int) const; // does nothing: returns 0
    bool FormularVorhanden(const RWCString& nummer, int person) const;
    bool FormularVorhanden(const RWCString& nummer, int person, const RWCString& extra1) const;
    bool FormularVorhanden(const RWCString& nummer, int person, const RWCString& extra1,
                           const RWCString& extra2) const;
    bool FormularVorhanden(const RWCString& nummer, int person, const RWCString& extra1,
                           int) const; // does nothing: returns false
    unsigned int loescheFormular(const RWCString& nummer, int person);
    unsigned int loescheFormular(const RWCString& nummer, int person, const RWCString& extra1);
    unsigned int loescheFormular(const RWCString& nummer, int person, const RWCString& extra1,
                                 const RWCString& extra2);
    unsigned int loescheFormular(const RWCString& nummer, int person, const RWCString& extra1,
                                 int); // does nothing: returns 0
    void loescheFormulare();
    // Removes every health declaration of one person, the sport declarations included.
    void loescheGesundheitsFormulare(int person);

    unsigned int AnzahlFormulare() const;
    // The form at pos, from 0, or null outside; it stays the list's.
    qbFormular* liefereFormularAnPos(int pos);
    const qbFormular* liefereFormularAnPos(int pos) const;
    RWTValSlist<qbFormularInfo> RefDruckstueckeInfo();
    RWTValSlist<RWCString> RefAlleDruckstueckNr() const;

    // Only the header of each form goes into the tree: the list records which forms exist.
    void XMLgetDat(CQBXMLdata& knoten);
    // Rebuilds forms from a tree, choosing the class by element type, and adds them through neuesFormular.
    void XMLputDat(CQBXMLdata& knoten);

    friend void rwSaveGuts(RWFile& f, const qbFormularListe& liste);
    friend void rwSaveGuts(RWvostream& s, const qbFormularListe& liste);
    friend void rwRestoreGuts(RWFile& f, qbFormularListe& liste);
    friend void rwRestoreGuts(RWvistream& s, qbFormularListe& liste);

private:
    const qbFormular* sucheFormular(const RWCString& nummer, int person, const RWCString& extra1,
                                    const RWCString& extra2, bool zumLiefern) const;
    template <class Strom>
    friend void qbLiesListe(Strom& s, qbFormularListe& liste);

    RWCString Version;
    RWDlistCollectables Formulare;
    // The catalogue is the fixed table of the print pieces; a list holds it or (made by the copy
    // constructor) none. It is spelled out only when asked for: a list is made for every restore.
    bool mitKatalog;
};

// The person literal of an index: 0 "VP1", 1 "VP2", every other value "VN".
RWCString qbPersonenKennung(int person);

void rwSaveGuts(RWFile& f, const qbFormularListe& liste);
void rwSaveGuts(RWvostream& s, const qbFormularListe& liste);
void rwRestoreGuts(RWFile& f, qbFormularListe& liste);
void rwRestoreGuts(RWvistream& s, qbFormularListe& liste);

// A bad marker or reference raises RWInternalErr.
RWFile& operator<<(RWFile& f, const qbFormularListe& liste);
RWvostream& operator<<(RWvostream& s, const qbFormularListe& liste);
RWFile& operator>>(RWFile& f, qbFormularListe& liste);
RWvistream& operator>>(RWvistream& s, qbFormularListe& liste);
// On ':' a new list that the caller owns; on '@' the list read before under that number.
RWFile& operator>>(RWFile& f, qbFormularListe*& liste);
RWvistream& operator>>(RWvistream& s, qbFormularListe*& liste);
