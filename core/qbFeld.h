// The field table of a form: one row per field, in stream order, written once per form class (as the
// field list QB_FELDER_<class>) and read by the routine operations: copy, XML, size, and the reading of a
// record that a read observer follows. Save and restore of the current layout and the defaults of a new
// object are code generated from the same list and rows (qbFormularDefinition.h).
//
// A row knows the field's member, its type, its XML keys and its default. Deviations that belong to one
// field are named modifiers on its row, for example
//     FELD(Int, Dauer, .standard(-1))
//     FELD(Text, AntwortZuFrage, .ohneLaengeInGroesse())
//     FELD(Text, Foo, .xml("Foo ").liesXml("Foo"))
// Deviations that belong to a whole operation are written by hand in the form's file.
#pragma once

#include "rw/cstring.h"
#include "rw/rwdate.h"
#include "qballg/qbPerson.h"

#include <cstddef>
#include <initializer_list>

class CQBXMLdata;
class RWFile;
class RWvistream;
class RWvostream;
class qbFormular;

// The types of the field tables and their encodings:
//   Text    RWCString      length (4 bytes) and characters
//   Flag    unsigned char  1 byte; 0xff not answered, 1 ja, 0 nein
//   Char    char           1 byte
//   Bool    bool           1 byte (a char)
//   Int     int            4 bytes
//   Long    long           4 bytes
//   Double  double         8 bytes
//   Date    RWDate         its day number, 4 bytes (RWFile only)
//   Person  qbPerson       its own record (RWFile only)
//   Enum    int            an enumeration held as int, stored as its low byte through a Char and read
//                          back sign-extended; from XML through the value's variant form, converted to
//                          int (a missing key gives 0)
enum class qbArt : unsigned char { Text, Flag, Char, Bool, Int, Long, Double, Date, Person, Enum };

// The fixed bytes of a value on RWFile: a Text's length (its characters come on top); 0 for a Person, whose
// record has no fixed size.
constexpr size_t qbFesteBreite(qbArt art) {
    switch (art) {
    case qbArt::Flag:
    case qbArt::Char:
    case qbArt::Bool:
    case qbArt::Enum:
        return 1;
    case qbArt::Text:
    case qbArt::Int:
    case qbArt::Long:
    case qbArt::Date:
        return 4;
    case qbArt::Double:
        return 8;
    case qbArt::Person:
        break;
    }
    return 0;
}

struct qbFeld {
    qbArt art;
    const char* name;
    union Mitglied {
        RWCString qbFormular::*text;
        unsigned char qbFormular::*flag;
        char qbFormular::*zeichen;
        bool qbFormular::*wahrheit;
        int qbFormular::*ganz; // Int and Enum
        long qbFormular::*lang;
        double qbFormular::*zahl;
        RWDate qbFormular::*datum;
        qbPerson qbFormular::*person;
    } mitglied;
    const char* xmlSchreibKey; // null: the field does not go into XML
    const char* xmlLeseKey;    // null: the field is not read from XML
    bool laengeInGroesse;      // a Text's characters count in binaryStoreSize
    int groessenAbweichung;    // bytes binaryStoreSize counts for the row beyond (or below) what it takes
    bool inGroesse;            // the field counts in binaryStoreSize at all
    long standardGanz;         // default of Flag, Char, Bool, Int, Long, Enum
    double standardZahl;       // default of Double
    const char* standardText;  // default of Text
    int liesAbSchluessel;      // read only from records whose version key is at least this (0: always)
    bool (*liesWenn)(int versionsSchluessel); // read only when this holds (null: always)
    bool imStrom;                             // saved, restored and counted in binaryStoreSize
    int abJahr;              // read only from records whose version year is at least this (0: always)
    bool vomVirtuellenStrom; // read from a virtual stream too (it is written to both)
    bool inXmlDurchgaengen;  // exchanged in XML by the form's passes over an index, not in table order

    // A copy of the row with one property changed. Defined ahead of the modifiers that use it: Clang
    // evaluates a member template in a constant expression only when its definition comes first.
    template <class Aenderung>
    constexpr qbFeld mit(Aenderung aendere) const {
        qbFeld f = *this;
        aendere(f);
        return f;
    }

    // Modifiers of a row: each gives a copy of the row with one property changed.
    constexpr qbFeld xml(const char* key) const {
        return mit([&](qbFeld& f) { f.xmlSchreibKey = f.xmlLeseKey = key; });
    }
    constexpr qbFeld liesXml(const char* key) const { // read under another key than written
        return mit([&](qbFeld& f) { f.xmlLeseKey = key; });
    }
    constexpr qbFeld nurXmlSchreiben() const { // written to XML, never read back
        return mit([](qbFeld& f) { f.xmlLeseKey = nullptr; });
    }
    constexpr qbFeld nurXmlLesen() const { // read from XML, never written to it
        return mit([](qbFeld& f) { f.xmlSchreibKey = nullptr; });
    }
    constexpr qbFeld ohneXml() const {
        return mit([](qbFeld& f) { f.xmlSchreibKey = f.xmlLeseKey = nullptr; });
    }
    constexpr qbFeld standard(long wert) const {
        return mit([&](qbFeld& f) {
            f.standardGanz = wert;
            f.standardZahl = static_cast<double>(wert);
        });
    }
    // An int literal, 0 included (which would otherwise be ambiguous with the text overload).
    constexpr qbFeld standard(int wert) const { return standard(static_cast<long>(wert)); }
    constexpr qbFeld standard(const char* text) const {
        return mit([&](qbFeld& f) { f.standardText = text; });
    }
    constexpr qbFeld liesAb(int versionsSchluessel) const { // the field came with that version
        return mit([&](qbFeld& f) { f.liesAbSchluessel = versionsSchluessel; });
    }
    constexpr qbFeld liesNurWenn(bool (*bedingung)(int versionsSchluessel)) const {
        return mit([&](qbFeld& f) { f.liesWenn = bedingung; });
    }
    // The field came with that year: the four characters of Version at position 3, read with atoi, which
    // a version of an odd shape gives otherwise than its key.
    constexpr qbFeld liesAbJahr(int jahr) const {
        return mit([&](qbFeld& f) { f.abJahr = jahr; });
    }
    constexpr qbFeld nurAusDatei() const { // written to both stream kinds, read back from an RWFile only
        return mit([](qbFeld& f) { f.vomVirtuellenStrom = false; });
    }
    // An element of an array that the form's XML exchanges in passes over the index, each pass treating
    // several arrays (qbFeldTabelle::xmlSchreibeReihen), instead of at the row's place.
    constexpr qbFeld xmlInDurchgaengen() const {
        return mit([](qbFeld& f) { f.inXmlDurchgaengen = true; });
    }
    constexpr qbFeld ohneLaengeInGroesse() const {
        return mit([](qbFeld& f) { f.laengeInGroesse = false; });
    }
    // binaryStoreSize counts this many bytes more (fewer, if negative) than the stream holds: a class whose
    // size constant is miscounted keeps that figure, and its surplus or shortfall stands on one row.
    constexpr qbFeld groesseAbweichend(int bytes) const {
        return mit([&](qbFeld& f) { f.groessenAbweichung = bytes; });
    }
    // A field of the object and its XML that no record holds: never saved or restored, not counted.
    constexpr qbFeld ohneStrom() const {
        return mit([](qbFeld& f) { f.imStrom = false; });
    }
    constexpr qbFeld ohneGroesse() const { // left out of binaryStoreSize altogether, though saved
        return mit([](qbFeld& f) { f.laengeInGroesse = f.inGroesse = false; });
    }
    // Whether the row is read from every record, whatever its version.
    constexpr bool immerGelesen() const {
        return imStrom && liesAbSchluessel == 0 && !liesWenn && abJahr == 0;
    }
    bool gehoertZumLayout(int versionsSchluessel, int versionsJahr) const {
        return imStrom && versionsSchluessel >= liesAbSchluessel && versionsJahr >= abJahr &&
               (!liesWenn || liesWenn(versionsSchluessel));
    }

    // Row builders, one per type. Klasse is the form that declares the member.
    template <class Klasse>
    static constexpr qbFeld Text(RWCString Klasse::*m, const char* name) {
        return zeile(qbArt::Text, name, {.text = static_cast<RWCString qbFormular::*>(m)});
    }
    template <class Klasse>
    static constexpr qbFeld Flag(unsigned char Klasse::*m, const char* name) {
        return zeile(qbArt::Flag, name, {.flag = static_cast<unsigned char qbFormular::*>(m)}).standard(0xff);
    }
    template <class Klasse>
    static constexpr qbFeld Char(char Klasse::*m, const char* name) {
        return zeile(qbArt::Char, name, {.zeichen = static_cast<char qbFormular::*>(m)}).ohneXml();
    }
    template <class Klasse>
    static constexpr qbFeld Bool(bool Klasse::*m, const char* name) {
        return zeile(qbArt::Bool, name, {.wahrheit = static_cast<bool qbFormular::*>(m)});
    }
    template <class Klasse>
    static constexpr qbFeld Int(int Klasse::*m, const char* name) {
        return zeile(qbArt::Int, name, {.ganz = static_cast<int qbFormular::*>(m)});
    }
    template <class Klasse>
    static constexpr qbFeld Long(long Klasse::*m, const char* name) {
        return zeile(qbArt::Long, name, {.lang = static_cast<long qbFormular::*>(m)});
    }
    template <class Klasse>
    static constexpr qbFeld Double(double Klasse::*m, const char* name) {
        return zeile(qbArt::Double, name, {.zahl = static_cast<double qbFormular::*>(m)});
    }
    template <class Klasse>
    static constexpr qbFeld Date(RWDate Klasse::*m, const char* name) {
        return zeile(qbArt::Date, name, {.datum = static_cast<RWDate qbFormular::*>(m)});
    }
    template <class Klasse>
    static constexpr qbFeld Person(qbPerson Klasse::*m, const char* name) {
        return zeile(qbArt::Person, name, {.person = static_cast<qbPerson qbFormular::*>(m)}).ohneXml();
    }
    template <class Klasse>
    static constexpr qbFeld Enum(int Klasse::*m, const char* name) {
        return zeile(qbArt::Enum, name, {.ganz = static_cast<int qbFormular::*>(m)});
    }

private:
    static constexpr qbFeld zeile(qbArt art, const char* name, Mitglied m) {
        return qbFeld{art, name, m, name, name, true, 0, true, 0, 0.0, "", 0, nullptr, true, 0, true, false};
    }
};

// The rows of one form class, and the routine operations they drive. Every operation touches only the
// rows' members: the header and base-class fields are the callers' business.
class qbFeldTabelle {
public:
    constexpr qbFeldTabelle() : klasse_(""), zeilen_(nullptr), anzahl_(0) {}
    template <size_t N>
    constexpr qbFeldTabelle(const char* klasse, const qbFeld (&zeilen)[N])
        : klasse_(klasse), zeilen_(zeilen), anzahl_(N) {}

    const char* klasse() const { return klasse_; } // the class that declares the rows
    const qbFeld* begin() const { return zeilen_; }
    const qbFeld* end() const { return zeilen_ + anzahl_; }
    size_t size() const { return anzahl_; }
    const qbFeld* suche(const char* name) const; // the row of a field, or null

    void kopiere(qbFormular& ziel, const qbFormular& quelle) const;
    // Every field but the named ones, which keep the target's values.
    void kopiereAusser(qbFormular& ziel, const qbFormular& quelle,
                       std::initializer_list<const char*> ausser) const;
    // Whether two forms hold the same value in every row (or in every row for which zaehlt holds), for a
    // form's operator== of its own.
    bool gleich(const qbFormular& a, const qbFormular& b, bool (*zaehlt)(const qbFeld&) = nullptr) const;

    void schreibe(const qbFormular& form, RWFile& f) const;
    void schreibe(const qbFormular& form, RWvostream& s) const;
    // Reads the rows that belong to the layout of the form's Version (see liesAb, liesAbJahr, liesNurWenn);
    // a read observer hears the layout's name first: the one given, or "aktuelle Tabelle" and the rows the
    // version leaves out ("aktuelle Tabelle ohne Seitenanzahl"). From a virtual stream, only the rows it
    // carries back. (The header's own rows are named before its Version is read: as the current table.)
    void lies(qbFormular& form, RWFile& f, const char* layout = nullptr) const;
    void lies(qbFormular& form, RWvistream& s) const;
    // The same from the row at index ab on: a reader that has the first rows' values already.
    void lies(qbFormular& form, RWvistream& s, size_t ab) const;
    // Reads one row, or a value of that type that is thrown away when form is null.
    static void liesZeile(const qbFeld& zeile, qbFormular* form, RWFile& f);
    static void liesZeile(const qbFeld& zeile, qbFormular* form, RWvistream& s);

    // Bytes the rows take on RWFile: 4 per Text plus its characters (unless the row leaves them out),
    // 1 per Flag, Char, Bool and Enum, 4 per Int, Long and Date, 8 per Double; plus the rows' deviations
    // (groesseAbweichend).
    RWspace groesse(const qbFormular& form) const;

    // The rows' values under their keys, in table order, except those exchanged in passes
    // (xmlInDurchgaengen).
    void xmlSchreibe(const qbFormular& form, CQBXMLdata& knoten) const;
    void xmlLies(qbFormular& form, const CQBXMLdata& knoten) const;
    // The same in an order of the form's own, which may name a field more than once: a list of field
    // names that ends with a null.
    void xmlSchreibe(const qbFormular& form, CQBXMLdata& knoten, const char* const* folge) const;
    void xmlLies(qbFormular& form, const CQBXMLdata& knoten, const char* const* folge) const;
    // Arrays exchanged as indexed keys "Name[i]": one pass per index i from 0, each pass treating the
    // arrays in the order given. The key is composed of the index's digits, the prefix "Name[" and "]",
    // and names the element's row by its XML key.
    void xmlSchreibeReihen(const qbFormular& form, CQBXMLdata& knoten, int anzahl,
                           std::initializer_list<const char*> reihen) const;
    void xmlLiesReihen(qbFormular& form, const CQBXMLdata& knoten, int anzahl,
                       std::initializer_list<const char*> reihen) const;

    // Takes over from a form of another class every field that a row of quelle declares under the same
    // name and type; the other fields of ziel stay as they are.
    void uebernimmGleichnamige(qbFormular& ziel, const qbFormular& formQuelle,
                               const qbFeldTabelle& quelle) const;

private:
    void xmlSchreibeFolge(const qbFormular& form, CQBXMLdata& knoten, const char* const* folge,
                          size_t n) const;
    void xmlLiesFolge(qbFormular& form, const CQBXMLdata& knoten, const char* const* folge, size_t n) const;

    const char* klasse_;
    const qbFeld* zeilen_;
    size_t anzahl_;
};
