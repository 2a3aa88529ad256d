// The declaration of a form class from its field list, in the manner of the vendor's
// RWDECLARE_COLLECTABLE / RWDEFINE_COLLECTABLE.
//
// A form's header holds its field list as an X-macro, one FELD(Typ, Name, modifiers...) per row in
// stream order, and QB_FORMULAR in its class body:
//
//     #define QB_FELDER_qbFormularL440(FELD)
//         FELD(Text, Kampfsportarten)
//         FELD(Flag, haeufig13JN)
//         ...
//     class qbFormularL440 : public qbFormular {
//         QB_FORMULAR(qbFormularL440, qbFormular, QB_FELDER_qbFormularL440)
//     };
//
// QB_FORMULAR declares the members (protected), their accessors Ref<Name> (public) and the operations
// of every form. The form's .cpp defines them with the macros of qbFormularDefinition.h.
//
// Typ is one of the field types of qbFeld.h, or a variant that changes only the accessors:
//   TextKopie    getter and setter pass the text by value
//   TextWert     setter takes the text by value
//   IntKonstRef  setter takes a const int&
//   FlagOhneZugriff, IntOhneZugriff, DoubleOhneZugriff
//                no accessors of their own: a field reached through the stream, XML and conversion only,
//                or an element of an array whose indexed accessors QB_REIHE declares
//
// An array is one member per element, Name_0, Name_1 ..., each a row of its own at its place in stream
// order (arrays may interleave), with the indexed accessors of QB_REIHE in the class body:
//     FELD(IntOhneZugriff, Jahre_0)
//     FELD(DoubleOhneZugriff, Einkommen_0)
//     FELD(IntOhneZugriff, Jahre_1) ...
//     QB_REIHE(qbFormularGS004, Int, Jahre, 3)   // int RefJahre(int index), void RefJahre(int index, int)
#pragma once

#include "core/qbFeld.h"
#include "core/qbFormular.h"

// ---- Member types and accessors per field type

#define QB_MITGLIED_Text RWCString
#define QB_MITGLIED_TextKopie RWCString
#define QB_MITGLIED_TextWert RWCString
#define QB_MITGLIED_Flag unsigned char
#define QB_MITGLIED_Char char
#define QB_MITGLIED_Bool bool
#define QB_MITGLIED_Int int
#define QB_MITGLIED_IntKonstRef int
#define QB_MITGLIED_Long long
#define QB_MITGLIED_Double double
#define QB_MITGLIED_Date RWDate
#define QB_MITGLIED_Person qbPerson
#define QB_MITGLIED_Enum int
#define QB_MITGLIED_FlagOhneZugriff unsigned char
#define QB_MITGLIED_IntOhneZugriff int
#define QB_MITGLIED_DoubleOhneZugriff double

#define QB_ZEILE_Text Text
#define QB_ZEILE_TextKopie Text
#define QB_ZEILE_TextWert Text
#define QB_ZEILE_Flag Flag
#define QB_ZEILE_Char Char
#define QB_ZEILE_Bool Bool
#define QB_ZEILE_Int Int
#define QB_ZEILE_IntKonstRef Int
#define QB_ZEILE_Long Long
#define QB_ZEILE_Double Double
#define QB_ZEILE_Date Date
#define QB_ZEILE_Person Person
#define QB_ZEILE_Enum Enum
#define QB_ZEILE_FlagOhneZugriff Flag
#define QB_ZEILE_IntOhneZugriff Int
#define QB_ZEILE_DoubleOhneZugriff Double

#define QB_ZUGRIFF_WERT(T, Name)                                                                             \
    T Ref##Name() const { return Name; }                                                                     \
    void Ref##Name(T v) { Name = v; }
#define QB_ZUGRIFF_REF(T, Name)                                                                              \
    const T& Ref##Name() const { return Name; }                                                              \
    void Ref##Name(const T& v) { Name = v; }

#define QB_ZUGRIFF_Text(Name) QB_ZUGRIFF_REF(RWCString, Name)
#define QB_ZUGRIFF_TextKopie(Name) QB_ZUGRIFF_WERT(RWCString, Name)
#define QB_ZUGRIFF_TextWert(Name)                                                                            \
    const RWCString& Ref##Name() const { return Name; }                                                      \
    void Ref##Name(RWCString v) { Name = v; }
#define QB_ZUGRIFF_Flag(Name) QB_ZUGRIFF_WERT(unsigned char, Name)
#define QB_ZUGRIFF_Char(Name) QB_ZUGRIFF_WERT(char, Name)
#define QB_ZUGRIFF_Bool(Name) QB_ZUGRIFF_WERT(bool, Name)
#define QB_ZUGRIFF_Int(Name) QB_ZUGRIFF_WERT(int, Name)
#define QB_ZUGRIFF_IntKonstRef(Name)                                                                         \
    int Ref##Name() const { return Name; }                                                                   \
    void Ref##Name(const int& v) { Name = v; }
#define QB_ZUGRIFF_Long(Name) QB_ZUGRIFF_WERT(long, Name)
#define QB_ZUGRIFF_Double(Name) QB_ZUGRIFF_WERT(double, Name)
#define QB_ZUGRIFF_Date(Name) QB_ZUGRIFF_REF(RWDate, Name)
#define QB_ZUGRIFF_Person(Name) QB_ZUGRIFF_REF(qbPerson, Name)
#define QB_ZUGRIFF_Enum(Name) QB_ZUGRIFF_WERT(int, Name)
#define QB_ZUGRIFF_FlagOhneZugriff(Name)
#define QB_ZUGRIFF_IntOhneZugriff(Name)
#define QB_ZUGRIFF_DoubleOhneZugriff(Name)

// The members of an array's elements, Name_0 to Name_<Anzahl-1>, as member pointers of Klasse.
#define QB_ELEMENTE_1(K, N) &K::N##_0
#define QB_ELEMENTE_2(K, N) QB_ELEMENTE_1(K, N), &K::N##_1
#define QB_ELEMENTE_3(K, N) QB_ELEMENTE_2(K, N), &K::N##_2
#define QB_ELEMENTE_4(K, N) QB_ELEMENTE_3(K, N), &K::N##_3
#define QB_ELEMENTE_5(K, N) QB_ELEMENTE_4(K, N), &K::N##_4
#define QB_ELEMENTE_6(K, N) QB_ELEMENTE_5(K, N), &K::N##_5
#define QB_ELEMENTE_7(K, N) QB_ELEMENTE_6(K, N), &K::N##_6
#define QB_ELEMENTE_8(K, N) QB_ELEMENTE_7(K, N), &K::N##_7
#define QB_ELEMENTE_9(K, N) QB_ELEMENTE_8(K, N), &K::N##_8
#define QB_ELEMENTE_10(K, N) QB_ELEMENTE_9(K, N), &K::N##_9

// The indexed accessors of an array held as the members Name_0 ..., index first and without bounds
// check: the caller keeps the index within 0 to Anzahl - 1. Typ is the element type of the field list.
#define QB_REIHE(Klasse, Typ, Name, Anzahl)                                                                  \
                                                                                                             \
private:                                                                                                     \
    static QB_MITGLIED_##Typ Klasse::*Name##_element(int index) {                                            \
        static constexpr QB_MITGLIED_##Typ Klasse::*elemente[] = {QB_ELEMENTE_##Anzahl(Klasse, Name)};       \
        return elemente[index];                                                                              \
    }                                                                                                        \
                                                                                                             \
public:                                                                                                      \
    QB_MITGLIED_##Typ Ref##Name(int index) const { return this->*Name##_element(index); }                    \
    void Ref##Name(int index, QB_MITGLIED_##Typ wert) { this->*Name##_element(index) = wert; }

// Expansions of one row of a field list.
#define QB_FELD_ZUGRIFF(Typ, Name, ...) QB_ZUGRIFF_##Typ(Name)
#define QB_FELD_MITGLIED(Typ, Name, ...) QB_MITGLIED_##Typ Name;
// A row as an expression (Selbst names the declaring class where it is used).
#define QB_FELD_ZEILE_AUSDRUCK(Typ, Name, ...) qbFeld::QB_ZEILE_##Typ(&Selbst::Name, #Name) __VA_ARGS__
#define QB_FELD_ZEILE(Typ, Name, ...) QB_FELD_ZEILE_AUSDRUCK(Typ, Name, __VA_ARGS__),

// ---- In the class body

// The class body of a form: QB_FORMULAR. A form with no XML of its own, QB_FORMULAR_OHNE_XML, declares
// neither XMLgetDat nor XMLputDat, so that qbFormular's apply; its rows carry no XML keys (see
// QB_FORMULAR_OHNE_XML_IDENTITAET).
// clang-format off
#define QB_FORMULAR_GRUND(Klasse, Basis, Felder)                                                           \
public:                                                                                                    \
    using Basisklasse = Basis;                                                                             \
    Klasse();                                                                                              \
    Klasse(const Klasse& other);                                                                           \
    Klasse& operator=(const Klasse& other);                                                                \
    ~Klasse() override;                                                                                    \
    RWCollectable* newSpecies() const override;                                                            \
    RWCollectable* copy() const override;                                                                  \
    RWClassID isA() const override;                                                                        \
    void restoreGuts(RWFile& f) override;                                                                  \
    void saveGuts(RWFile& f) const override;                                                               \
    void loesche() override;                                                                               \
    static unsigned short classIsA();                                                                      \
    static unsigned short myAtom;                                                                          \
    static const char* klassenName() { return #Klasse; }                                                   \
    /* The field table: the rows of Felder, in stream order. */                                            \
    static const qbFeldTabelle& felder();                                                                  \
    Felder(QB_FELD_ZUGRIFF)                                                                                \
                                                                                                           \
protected:                                                                                                 \
    /* The own fields in the current layout, as straight code from Felder (the table reads them when an */ \
    /* observer listens). */                                                                               \
    template <class Strom>                                                                                 \
    void schreibeEigene(Strom& s) const;                                                                   \
    /* An old layout that differs from the current one only in rows left out by version reads through */ \
    /* it too, under that layout's name for a read observer. */                                            \
    template <class Strom>                                                                                 \
    void liesEigene(Strom& s, const char* layout = nullptr);                                    \
    /* The own fields' defaults, as straight code from Felder. */                                          \
    void setzeStandard();                                                                                  \
    Felder(QB_FELD_MITGLIED)                                                                               \
                                                                                                           \
public:

#define QB_FORMULAR_OHNE_XML(Klasse, Basis, Felder)                                                        \
    QB_FORMULAR_GRUND(Klasse, Basis, Felder)                                                               \
    RWspace binaryStoreSize() const override;                                                              \
    void restoreGuts(RWvistream& s) override;                                                              \
    void saveGuts(RWvostream& s) const override;

#define QB_FORMULAR(Klasse, Basis, Felder)                                                                 \
    QB_FORMULAR_OHNE_XML(Klasse, Basis, Felder)                                                            \
    void XMLgetDat(CQBXMLdata& knoten) const;                                                              \
    void XMLputDat(CQBXMLdata& knoten);

// A form stored on an RWFile only: it leaves the slots of the virtual streams and of binaryStoreSize to its
// base, so that a virtual stream carries its header alone and its size is the header's.
#define QB_FORMULAR_NUR_DATEI(Klasse, Basis, Felder)                                                       \
    QB_FORMULAR_GRUND(Klasse, Basis, Felder)                                                               \
    using Basis::restoreGuts;                                                                              \
    using Basis::saveGuts;                                                                                 \
    void XMLgetDat(CQBXMLdata& knoten) const;                                                              \
    void XMLputDat(CQBXMLdata& knoten);
// clang-format on
