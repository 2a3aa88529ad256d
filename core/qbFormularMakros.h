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
//   TextKopieNichtKonst, PersonKopie   a getter that is not const gives a copy; the setter takes a const&
//   TextWert     setter takes the text by value
//   IntKonstRef  setter takes a const int&
//   <Typ>Eigen   no generated accessors: the form writes its own (TextEigen, BoolEigen, DateEigen ...)
//   Get<Typ>     Get<Name>() and Set<Name>(v) instead of Ref<Name> (GetText, GetFlag, GetInt, GetDouble)
//
// An array of n entries is a row per entry, Name_i, with the XML key "Name[i]" (QB_EINTRAG); a group of
// arrays that a stream or XML walks index by index lists its rows pass by pass (QB_DURCHLAEUFE_n), and
// QB_EINTRAEGE gives the entries' members by index for the form's accessors.
//
// An array's rows may also interleave with other arrays in stream order (GS004's Jahre_0,
// EinkommenInLetztenJahren_0, Jahre_1 ...); QB_REIHE(Klasse, Typ, Name, n) gives such an array the
// accessors Ref<Name>(i) and Ref<Name>(i, v), index first and without bounds check.
#pragma once

#include "core/qbFeld.h"
#include "core/qbFormular.h"

#include <type_traits>

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
#define QB_MITGLIED_PersonKopie qbPerson
#define QB_MITGLIED_TextKopieNichtKonst RWCString
#define QB_MITGLIED_Enum int
#define QB_MITGLIED_TextEigen RWCString
#define QB_MITGLIED_FlagEigen unsigned char
#define QB_MITGLIED_BoolEigen bool
#define QB_MITGLIED_IntEigen int
#define QB_MITGLIED_LongEigen long
#define QB_MITGLIED_DoubleEigen double
#define QB_MITGLIED_DateEigen RWDate
#define QB_MITGLIED_EnumEigen int
#define QB_MITGLIED_GetText RWCString
#define QB_MITGLIED_GetFlag unsigned char
#define QB_MITGLIED_GetInt int
#define QB_MITGLIED_GetDouble double

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
#define QB_ZEILE_PersonKopie Person
#define QB_ZEILE_TextKopieNichtKonst Text
#define QB_ZEILE_Enum Enum
#define QB_ZEILE_TextEigen Text
#define QB_ZEILE_FlagEigen Flag
#define QB_ZEILE_BoolEigen Bool
#define QB_ZEILE_IntEigen Int
#define QB_ZEILE_LongEigen Long
#define QB_ZEILE_DoubleEigen Double
#define QB_ZEILE_DateEigen Date
#define QB_ZEILE_EnumEigen Enum
#define QB_ZEILE_GetText Text
#define QB_ZEILE_GetFlag Flag
#define QB_ZEILE_GetInt Int
#define QB_ZEILE_GetDouble Double

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
// A copy from a getter that is not const; the setter takes a const reference.
#define QB_ZUGRIFF_KOPIE_NICHT_KONST(T, Name)                                                                \
    T Ref##Name() { return Name; }                                                                           \
    void Ref##Name(const T& v) { Name = v; }
#define QB_ZUGRIFF_PersonKopie(Name) QB_ZUGRIFF_KOPIE_NICHT_KONST(qbPerson, Name)
#define QB_ZUGRIFF_TextKopieNichtKonst(Name) QB_ZUGRIFF_KOPIE_NICHT_KONST(RWCString, Name)
#define QB_ZUGRIFF_Enum(Name) QB_ZUGRIFF_WERT(int, Name)
#define QB_ZUGRIFF_TextEigen(Name)
#define QB_ZUGRIFF_FlagEigen(Name)
#define QB_ZUGRIFF_BoolEigen(Name)
#define QB_ZUGRIFF_IntEigen(Name)
#define QB_ZUGRIFF_LongEigen(Name)
#define QB_ZUGRIFF_DoubleEigen(Name)
#define QB_ZUGRIFF_DateEigen(Name)
#define QB_ZUGRIFF_EnumEigen(Name)
#define QB_ZUGRIFF_GetText(Name)                                                                             \
    const RWCString& Get##Name() const { return Name; }                                                      \
    void Set##Name(const RWCString& v) { Name = v; }
#define QB_ZUGRIFF_GetFlag(Name)                                                                             \
    unsigned char Get##Name() const { return Name; }                                                         \
    void Set##Name(unsigned char v) { Name = v; }
#define QB_ZUGRIFF_GetInt(Name)                                                                              \
    const int& Get##Name() const { return Name; }                                                            \
    void Set##Name(const int& v) { Name = v; }
#define QB_ZUGRIFF_GetDouble(Name)                                                                           \
    double Get##Name() const { return Name; }                                                                \
    void Set##Name(const double& v) { Name = v; }

// ---- Arrays

// Entry i of the array Name as a row of its own: member Name_i, XML key "Name[i]", no generated accessors.
#define QB_EINTRAG(FELD, Typ, Name, i, ...) FELD(Typ##Eigen, Name##_##i, .xml(#Name "[" #i "]") __VA_ARGS__)
// The rows of all passes, index by index: Durchlauf(FELD, i) lists the rows of pass i.
#define QB_DURCHLAEUFE_2(Durchlauf, FELD) Durchlauf(FELD, 0) Durchlauf(FELD, 1)
#define QB_DURCHLAEUFE_9(Durchlauf, FELD)                                                                    \
    QB_DURCHLAEUFE_2(Durchlauf, FELD)                                                                        \
    Durchlauf(FELD, 2) Durchlauf(FELD, 3) Durchlauf(FELD, 4) Durchlauf(FELD, 5) Durchlauf(FELD, 6)           \
        Durchlauf(FELD, 7) Durchlauf(FELD, 8)
#define QB_DURCHLAEUFE_10(Durchlauf, FELD) QB_DURCHLAEUFE_9(Durchlauf, FELD) Durchlauf(FELD, 9)
// In the class body: Name##_Eintrag(i), the member of entry i of an array of n (1 to 10) entries. The
// index is not checked, as the accessors that use it do not check theirs.
#define QB_EINTRAG_ZEIGER_1(K, N) &K::N##_0
#define QB_EINTRAG_ZEIGER_2(K, N) QB_EINTRAG_ZEIGER_1(K, N), &K::N##_1
#define QB_EINTRAG_ZEIGER_3(K, N) QB_EINTRAG_ZEIGER_2(K, N), &K::N##_2
#define QB_EINTRAG_ZEIGER_4(K, N) QB_EINTRAG_ZEIGER_3(K, N), &K::N##_3
#define QB_EINTRAG_ZEIGER_5(K, N) QB_EINTRAG_ZEIGER_4(K, N), &K::N##_4
#define QB_EINTRAG_ZEIGER_6(K, N) QB_EINTRAG_ZEIGER_5(K, N), &K::N##_5
#define QB_EINTRAG_ZEIGER_7(K, N) QB_EINTRAG_ZEIGER_6(K, N), &K::N##_6
#define QB_EINTRAG_ZEIGER_8(K, N) QB_EINTRAG_ZEIGER_7(K, N), &K::N##_7
#define QB_EINTRAG_ZEIGER_9(K, N) QB_EINTRAG_ZEIGER_8(K, N), &K::N##_8
#define QB_EINTRAG_ZEIGER_10(K, N) QB_EINTRAG_ZEIGER_9(K, N), &K::N##_9
#define QB_EINTRAEGE(Klasse, T, Name, n)                                                                     \
    static auto Name##_Eintrag(int i) {                                                                      \
        static constexpr T Klasse::*eintraege[] = {QB_EINTRAG_ZEIGER_##n(Klasse, Name)};                     \
        return eintraege[i];                                                                                 \
    }
// Accessors of an array by index: Get<Name>(i) and Set<Name>(i, v), the index first ...
#define QB_REIHE_INDEX_ZUERST(Klasse, T, Name, n)                                                            \
    QB_EINTRAEGE(Klasse, T, Name, n)                                                                         \
    const T& Get##Name(int i) const { return this->*Name##_Eintrag(i); }                                     \
    void Set##Name(int i, const T& v) { this->*Name##_Eintrag(i) = v; }
// ... or Set<Name>(v, i), the value first; a text by reference, a number by value.
#define QB_REIHE_WERT_ZUERST(Klasse, T, Name, n)                                                             \
    QB_EINTRAEGE(Klasse, T, Name, n)                                                                         \
    std::conditional_t<std::is_class_v<T>, const T&, T> Get##Name(int i) const {                             \
        return this->*Name##_Eintrag(i);                                                                     \
    }                                                                                                        \
    void Set##Name(std::conditional_t<std::is_class_v<T>, const T&, T> v, int i) {                           \
        this->*Name##_Eintrag(i) = v;                                                                        \
    }
// ... or Ref<Name>(i) and Ref<Name>(i, v), by value, for an array whose element type is a field list type.
#define QB_REIHE(Klasse, Typ, Name, n)                                                                       \
    QB_EINTRAEGE(Klasse, QB_MITGLIED_##Typ, Name, n)                                                         \
    QB_MITGLIED_##Typ Ref##Name(int i) const { return this->*Name##_Eintrag(i); }                            \
    void Ref##Name(int i, QB_MITGLIED_##Typ wert) { this->*Name##_Eintrag(i) = wert; }

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
