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

// Expansions of one row of a field list.
#define QB_FELD_ZUGRIFF(Typ, Name, ...) QB_ZUGRIFF_##Typ(Name)
#define QB_FELD_MITGLIED(Typ, Name, ...) QB_MITGLIED_##Typ Name;
// A row as an expression (Selbst names the declaring class where it is used).
#define QB_FELD_ZEILE_AUSDRUCK(Typ, Name, ...) qbFeld::QB_ZEILE_##Typ(&Selbst::Name, #Name) __VA_ARGS__
#define QB_FELD_ZEILE(Typ, Name, ...) QB_FELD_ZEILE_AUSDRUCK(Typ, Name, __VA_ARGS__),

// ---- In the class body

// clang-format off
#define QB_FORMULAR(Klasse, Basis, Felder)                                                                 \
public:                                                                                                    \
    using Basisklasse = Basis;                                                                             \
    Klasse();                                                                                              \
    Klasse(const Klasse& other);                                                                           \
    Klasse& operator=(const Klasse& other);                                                                \
    ~Klasse() override;                                                                                    \
    RWCollectable* newSpecies() const override;                                                            \
    RWCollectable* copy() const override;                                                                  \
    RWClassID isA() const override;                                                                        \
    RWspace binaryStoreSize() const override;                                                              \
    void restoreGuts(RWvistream& s) override;                                                              \
    void restoreGuts(RWFile& f) override;                                                                  \
    void saveGuts(RWvostream& s) const override;                                                           \
    void saveGuts(RWFile& f) const override;                                                               \
    void loesche() override;                                                                               \
    void XMLgetDat(CQBXMLdata& knoten) const;                                                              \
    void XMLputDat(CQBXMLdata& knoten);                                                                    \
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
    template <class Strom>                                                                                 \
    void liesEigene(Strom& s);                                                                             \
    /* The own fields' defaults, as straight code from Felder. */                                          \
    void setzeStandard();                                                                                  \
    Felder(QB_FELD_MITGLIED)                                                                               \
                                                                                                           \
public:
// clang-format on
