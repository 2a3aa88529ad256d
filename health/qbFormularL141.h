// qbFormularL141, "Erklaerung Gynaekologische Erkrankungen": the gynaecological declaration.
#pragma once

#include "health/qbFormularAllgGesu.h"

// No version test beyond the layouts of 10.1999 and 01.2000 (in the .cpp). On a virtual stream the save
// leaves the common answers out.
#define QB_FELDER_qbFormularL141(FELD)                                                                       \
    FELD(Text, Symptome)                                                                                     \
    FELD(Text, Diagnose)                                                                                     \
    FELD(Flag, OperationJN)                                                                                  \
    FELD(Text, Operation)                                                                                    \
    FELD(Flag, BefundGutartigJN)                                                                             \
    FELD(Flag, BefundBoesartigJN)                                                                            \
    FELD(Flag, OrganeEntferntJN)                                                                             \
    FELD(Text, EntfernteOrgane)                                                                              \
    FELD(Flag, StrahlentherapieJN)                                                                           \
    FELD(Text, Strahlentherapie)                                                                             \
    FELD(Flag, RadiumtherapieJN)                                                                             \
    FELD(Text, Radiumtherapie)                                                                               \
    FELD(Flag, ChemotherapieJN)                                                                              \
    FELD(Text, Chemotherapie)                                                                                \
    FELD(Text, Behandlung)                                                                                   \
    FELD(Text, Medikamente)                                                                                  \
    FELD(Flag, GeheiltJN)                                                                                    \
    FELD(Text, GeheiltSeit)                                                                                  \
    FELD(Text, Beschwerden)                                                                                  \
    FELD(Flag, KontrolleJN)                                                                                  \
    FELD(Flag, OperationGeplantJN)                                                                           \
    FELD(Text, GeplanteOperation)                                                                            \
    FELD(Flag, VorsorgeJN)                                                                                   \
    FELD(Text, Vorsorge)                                                                                     \
    FELD(Flag, BefundEinwandfreiJN)                                                                          \
    FELD(Flag, BefundKontrollbeduerftigJN)

class qbFormularL141 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL141, qbFormularAllgGesu, QB_FELDER_qbFormularL141)
private:
    template <class Strom>
    void liesGespeichert(Strom& s);
};
