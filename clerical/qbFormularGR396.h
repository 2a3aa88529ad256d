// qbFormularGR396, "Ueberweisung VWL durch Arbeitgeber": the employer's data for transferring the
// capital-forming payments.
#pragma once

#include "core/qbFormularMakros.h"

#define QB_FELDER_qbFormularGR396(FELD)                                                                      \
    FELD(Text, Stelle)                                                                                       \
    FELD(Text, PersonalNummer)                                                                               \
    FELD(Text, AbteilungArbeitnehmer)                                                                        \
    FELD(Text, NameArbeitgeber)                                                                              \
    FELD(Text, AbteilungArbeitgeber)                                                                         \
    FELD(Text, StrasseArbeitgeber)                                                                           \
    FELD(Text, NationArbeitgeber)                                                                            \
    FELD(Text, PostleitzahlArbeitgeber)                                                                      \
    FELD(Text, OrtArbeitgeber)

class qbFormularGR396 : public qbFormular {
    QB_FORMULAR(qbFormularGR396, qbFormular, QB_FELDER_qbFormularGR396)
};
