// qbFormularL142, "Erklaerung Magen- und Zwoelffingerdarmerkrankungen": the stomach declaration.
#pragma once

#include "health/qbFormularAllgGesu.h"

// Fields 12, 13 and 19 came with 05.2002. Older records kept the diagnosis as six Flags and a Text,
// which the reader of the .cpp converts into Diagnose and SonstigeDiagnose.
#define QB_FELDER_qbFormularL142(FELD)                                                                       \
    FELD(Flag, SodbrennenJN)                                                                                 \
    FELD(Flag, AppetitmangelJN)                                                                              \
    FELD(Flag, ErbrechenJN)                                                                                  \
    FELD(Flag, DurchfallJN)                                                                                  \
    FELD(Flag, SonstigeSymptomeJN)                                                                           \
    FELD(Text, SonstigeSymptome)                                                                             \
    FELD(Text, HaeufigkeitBeschwerden)                                                                       \
    FELD(Text, Diagnose)                                                                                     \
    FELD(Text, SonstigeDiagnose)                                                                             \
    FELD(Flag, GastroskopieJN)                                                                               \
    FELD(Text, Gastroskopie)                                                                                 \
    FELD(Flag, KotoskopieJN, .liesAb(200205))                                                                \
    FELD(Text, Kotoskopie, .liesAb(200205))                                                                  \
    FELD(Flag, OperationJN)                                                                                  \
    FELD(Text, Operation)                                                                                    \
    FELD(Text, Medikamente)                                                                                  \
    FELD(Flag, AlkoholJN)                                                                                    \
    FELD(Text, Alkohol)                                                                                      \
    FELD(Flag, ZigarettenJN, .liesAb(200205))                                                                \
    FELD(Text, Zigaretten)                                                                                   \
    FELD(Flag, GeheiltJN)                                                                                    \
    FELD(Text, GeheiltSeit)                                                                                  \
    FELD(Text, Beschwerden)                                                                                  \
    FELD(Flag, OperationGeplantJN)                                                                           \
    FELD(Text, GeplanteOperation)                                                                            \
    FELD(Flag, DiaetJN)                                                                                      \
    FELD(Text, Diaet)                                                                                        \
    FELD(Text, AktuelleMedikamente)                                                                          \
    FELD(Text, MedikamenteWeitererArzt)

class qbFormularL142 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL142, qbFormularAllgGesu, QB_FELDER_qbFormularL142)
    // "Beschwerden <plural Dauer phrase>; <HaeufigkeitBeschwerden>": the phrase ends in "; " already, so
    // the separator stands twice.
    RWCString AntwortFrage1c() const;

private:
    template <class Strom>
    void liesGespeichert(Strom& s);
};
