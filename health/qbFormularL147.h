// qbFormularL147, "Erklaerung Blutdruckkontrolle": the blood-pressure declaration, the one health form
// of the applicant ("VN").
#pragma once

#include "health/qbFormularAllgGesu.h"

// ArztAdresse and Beginn are fields of their own beside the common ones of the same names, which they
// hide; both travel in the record.
#define QB_FELDER_qbFormularL147(FELD)                                                                       \
    FELD(Text, ArztAdresse)                                                                                  \
    FELD(Text, Beginn)                                                                                       \
    FELD(Text, Medikamente)

class qbFormularL147 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL147, qbFormularAllgGesu, QB_FELDER_qbFormularL147)
};
