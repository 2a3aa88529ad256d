// Old stored layouts: explicit read sequences beside their form. A step names a field of the form or of
// one of its bases, or a value of some type that an old layout held and that is read and thrown away:
//
//     // Layout of records before 05.2002: ...
//     static constexpr qbSchritt vor200205[] = {"Verletzungshergang", "Verletzung", qbVerworfen::Text, ...};
//     qbLiesLayout(*this, f, {"vor 05.2002", vor200205}, {&felder(), &qbFormularAllgGesu::felder()});
#pragma once

#include "core/qbFeld.h"

#include <initializer_list>

class qbAltwerte;

struct qbSchritt {
    const char* feld; // null: a value of type verworfen, read and thrown away (or a conversion)
    qbArt verworfen;
    int abSchluessel = 0;             // the step belongs only to records whose version key is at least this
    int vorSchluessel = 0;            // ... and, unless 0, below this
    const char* nurVersion = nullptr; // ... and, unless null, whose Version is exactly this
    const char* bisFeld = nullptr;    // a stretch: the rows from feld through bisFeld of the table holding
                                      // feld, each read when it belongs to the record's layout
    void (*umwandlung)(qbFormular&, qbAltwerte&) = nullptr; // a conversion: reads and converts old values
    constexpr qbSchritt(const char* name) : feld(name), verworfen(qbArt::Text) {}
    constexpr explicit qbSchritt(qbArt art) : feld(nullptr), verworfen(art) {}
    constexpr explicit qbSchritt(void (*u)(qbFormular&, qbAltwerte&))
        : feld(nullptr), verworfen(qbArt::Text), umwandlung(u) {}
    constexpr qbSchritt ab(int versionsSchluessel) const {
        qbSchritt s = *this;
        s.abSchluessel = versionsSchluessel;
        return s;
    }
    constexpr qbSchritt vor(int versionsSchluessel) const {
        qbSchritt s = *this;
        s.vorSchluessel = versionsSchluessel;
        return s;
    }
    constexpr qbSchritt nurBei(const char* version) const { // a comparison of the whole Version text
        qbSchritt s = *this;
        s.nurVersion = version;
        return s;
    }
};

// The rows from von through bis of a form's table, in table order; a row with a version condition of its
// own (liesAb, liesNurWenn) is read only when the record's layout holds it.
constexpr qbSchritt qbStrecke(const char* von, const char* bis) {
    qbSchritt s(von);
    s.bisFeld = bis;
    return s;
}

// What a conversion step reads: values of the old layout that it looks at and throws away, and fields of
// the form, found in the layout's tables. The observer sees each of them like any other step.
class qbAltwerte {
public:
    virtual unsigned char flag() = 0;
    virtual int ganz() = 0;
    virtual RWCString text() = 0;
    virtual void feld(const char* name) = 0;

protected:
    ~qbAltwerte() = default;
};

// Values that old layouts held and the current class has dropped.
namespace qbVerworfen {
constexpr qbSchritt Text{qbArt::Text};
constexpr qbSchritt Flag{qbArt::Flag};
constexpr qbSchritt Char{qbArt::Char};
constexpr qbSchritt Int{qbArt::Int};
constexpr qbSchritt Long{qbArt::Long};
constexpr qbSchritt Double{qbArt::Double};
constexpr qbSchritt Date{qbArt::Date};
} // namespace qbVerworfen

struct qbLayout {
    const char* name; // how the tool's explain names the branch
    const qbSchritt* schritte;
    size_t anzahl;
    template <size_t N>
    constexpr qbLayout(const char* n, const qbSchritt (&s)[N]) : name(n), schritte(s), anzahl(N) {}
};

// Reads the steps in order. Field names are looked up in the tables in the order given (the form's own
// table first).
void qbLiesLayout(qbFormular& form, RWFile& f, const qbLayout& layout,
                  std::initializer_list<const qbFeldTabelle*> tabellen);
void qbLiesLayout(qbFormular& form, RWvistream& s, const qbLayout& layout,
                  std::initializer_list<const qbFeldTabelle*> tabellen);
// The same for a form whose version key follows a rule of its own: the steps are chosen by that key.
void qbLiesLayout(qbFormular& form, RWFile& f, const qbLayout& layout,
                  std::initializer_list<const qbFeldTabelle*> tabellen, long versionsSchluessel);
void qbLiesLayout(qbFormular& form, RWvistream& s, const qbLayout& layout,
                  std::initializer_list<const qbFeldTabelle*> tabellen, long versionsSchluessel);

// Tells an installed read observer which layout a restore chose.
void qbMeldeLayout(const char* klasse, const char* layout);
