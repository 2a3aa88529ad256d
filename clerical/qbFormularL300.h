// qbFormularL300, "Geldwaeschegesetz": the identification of a private customer under the money-laundering
// law. Its restore tests the stored version for equality, never for a threshold: a version it does not know
// exactly, a later one included, is read with the oldest layout.
#pragma once

#include "core/qbFormularMakros.h"

// Which stored versions hold a field: 10.2002 brought the place of birth, 04.2003 the first name and the
// nationality, 08.2009 the two answers on the beneficial owner.
constexpr bool qbL300Ab200210(int schluessel) {
    return schluessel == 200210 || schluessel == 200304 || schluessel == 200908;
}
constexpr bool qbL300Ab200304(int schluessel) { return schluessel == 200304 || schluessel == 200908; }
constexpr bool qbL300Ab200908(int schluessel) { return schluessel == 200908; }

// binaryStoreSize counts 48 for the rows, four bytes more than they take.
#define QB_FELDER_qbFormularL300(FELD)                                                                       \
    FELD(Text, AntragstellerName)                                                                            \
    FELD(Text, AntragstellerVorname, .liesNurWenn(qbL300Ab200304))                                           \
    FELD(Text, AntragstellerGebDat)                                                                          \
    FELD(Text, AntragstellerGebOrt, .liesNurWenn(qbL300Ab200210))                                            \
    FELD(Text, AntragstellerNationalitaet, .liesNurWenn(qbL300Ab200304))                                     \
    FELD(Flag, PersonalAusweisJN)                                                                            \
    FELD(Text, PassNr)                                                                                       \
    FELD(Text, PassBehoerde)                                                                                 \
    FELD(Text, VermerkeDesVermittlers)                                                                       \
    FELD(Flag, ReisepassJN)                                                                                  \
    FELD(Text, FremderName)                                                                                  \
    FELD(Text, FremderAnschrift)                                                                             \
    FELD(Flag, WirtschaftlichBerechtigterJN, .liesNurWenn(qbL300Ab200908))                                   \
    FELD(Flag, BerechtigerPrivatpersonJN, .liesNurWenn(qbL300Ab200908).groesseAbweichend(4))

class qbFormularL300 : public qbFormular {
    QB_FORMULAR(qbFormularL300, qbFormular, QB_FELDER_qbFormularL300)

public:
    // Whether the agent noted anything: the note, stripped of blanks at both ends, is not empty.
    bool VermerkeDesVermittlersJN() const;
    // The date of birth with points: "01021970" gives "01.02.1970"; a text with a point and the empty text
    // come back as they are.
    RWCString RefAntragstellerGebDatMitPkt() const;
};
