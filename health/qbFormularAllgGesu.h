// qbFormularAllgGesu: the base of the health declarations, with the seventeen answers every health
// declaration once shared.
#pragma once

#include "core/qbFormularMakros.h"

struct qbLayout;

// Fields 13 and 14 came with 11.2001, left the 12.2001 to 04.2002 records and came back with 05.2002.
#define QB_FELDER_qbFormularAllgGesu(FELD)                                                                   \
    FELD(Text, Krankheit)                                                                                    \
    FELD(TextKopie, AntwortZuFrage, .ohneLaengeInGroesse())                                                  \
    FELD(Text, Beginn)                                                                                       \
    FELD(Int, Dauer, .standard(-1))                                                                          \
    FELD(Text, ArztAdresse)                                                                                  \
    FELD(Flag, KrankenhausJN)                                                                                \
    FELD(Flag, KurJN)                                                                                        \
    FELD(Text, KrankenhausKur)                                                                               \
    FELD(Text, AdresseKrankenhausKurstaette)                                                                 \
    FELD(Text, AdresseWeitererArzt)                                                                          \
    FELD(Text, DatumBehandlungWeitererArzt)                                                                  \
    FELD(Text, ErkrankungWeitererArzt)                                                                       \
    FELD(Flag, ArbeitsplatzwechselJN, .liesNurWenn(qbFormularAllgGesu::mitArbeitsplatzwechsel))              \
    FELD(Text, DatumArbeitsplatzwechsel, .liesNurWenn(qbFormularAllgGesu::mitArbeitsplatzwechsel))           \
    FELD(Flag, ArbeitsunfaehigJN)                                                                            \
    FELD(Text, DatumArbeitsunfaehigkeit)                                                                     \
    FELD(Text, ErkrankungArbeitsunfaehigkeit)

class qbFormularAllgGesu : public qbFormular {
    QB_FORMULAR(qbFormularAllgGesu, qbFormular, QB_FELDER_qbFormularAllgGesu)

    // Same piece and person; then Krankheit when the argument's is not empty; then AntwortZuFrage when
    // neither side's is empty.
    RWBoolean isEqual(const RWCollectable* other) const override;
    // Same piece and person; then Krankheit when this object's is not empty; then AntwortZuFrage when
    // this object's is not empty. Differs from isEqual on purpose.
    int operator==(const qbFormularAllgGesu& other) const;

    // The phrase of a Dauer code, with the singular verb ("hat ... angedauert; ") or the plural one.
    enum Numerus { Einzahl, Mehrzahl };
    static RWCString DauerPhrase(int dauer, Numerus numerus);

    // The version test of ArbeitsplatzwechselJN and DatumArbeitsplatzwechsel: key >= 200205, or else
    // exactly 200111.
    static bool mitArbeitsplatzwechsel(int versionsSchluessel);

protected:
    // "Beginn: <Beginn>; <Dauer phrase>", the opening of the composed answers.
    RWCString BeginnUndDauer(Numerus numerus) const {
        return "Beginn: " + Beginn + "; " + DauerPhrase(Dauer, numerus);
    }
    // The two oldest layouts, "10.1999" and "01.2000", hold the common answers between the form's own
    // fields: the derived form reads them itself.
    bool hatFruehesLayout() const { return Version == "10.1999" || Version == "01.2000"; }
    // Reads such a record by the form's sequence of "10.1999"; a record of "01.2000" holds AntwortZuFrage
    // behind it. For RWFile and RWvistream.
    template <class Strom>
    void liesFruehesLayout(Strom& s, const qbLayout& layout1999, const qbFeldTabelle& eigene);
    template <class Strom>
    void liesGespeichert(Strom& s);
};

// restoreGuts, both overloads, of a form whose one old layout is the early one: the base's record, then
// for "10.1999" and "01.2000" the form's sequence of 10.1999 (a qbSchritt array), else the current layout.
#define QB_GESUNDHEIT_LADEN_MIT_FRUEHEM_LAYOUT(Klasse, layout1999)                                           \
    void Klasse::restoreGuts(RWFile& f) { liesAktuellOderFrueh(f, {"10.1999", layout1999}); }                \
    void Klasse::restoreGuts(RWvistream& s) { liesAktuellOderFrueh(s, {"10.1999", layout1999}); }            \
    template <class Strom>                                                                                   \
    void Klasse::liesAktuellOderFrueh(Strom& s, const qbLayout& layout1999_) {                               \
        qbFormularAllgGesu::restoreGuts(s);                                                                  \
        if (hatFruehesLayout())                                                                              \
            liesFruehesLayout(s, layout1999_, felder());                                                     \
        else                                                                                                 \
            liesEigene(s);                                                                                   \
    }
// Its declaration in the class body.
#define QB_GESUNDHEIT_FRUEHES_LAYOUT                                                                         \
private:                                                                                                     \
    template <class Strom>                                                                                   \
    void liesAktuellOderFrueh(Strom& s, const qbLayout& layout1999);                                         \
                                                                                                             \
public:

// The list's probe of a health piece: Krankheit and AntwortZuFrage from the two extras.
void qbSondeGesundheit(qbFormular& sonde, const RWCString& krankheit, const RWCString& antwortZuFrage);
