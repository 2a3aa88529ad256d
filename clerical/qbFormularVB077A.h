// qbFormularVB077A, "Auslaendischer Antragsteller": the supplement of the research report for a foreign
// applicant.
#pragma once

#include "core/qbFormularMakros.h"

#define QB_FELDER_qbFormularVB077A(FELD)                                                                     \
    FELD(Text, AufenthaltsBeginn)                                                                            \
    FELD(Text, DauerAufenthaltserlaubnis)                                                                    \
    FELD(Text, NationalitaetEhegatte)                                                                        \
    FELD(Text, BerufEhegatte)

class qbFormularVB077A : public qbFormular {
    QB_FORMULAR(qbFormularVB077A, qbFormular, QB_FELDER_qbFormularVB077A)
};
