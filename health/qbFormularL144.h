// qbFormularL144, "Erklaerung Schwangerschaft": the pregnancy declaration.
#pragma once

#include "health/qbFormularAllgGesu.h"

// ArztAdresse is a field of its own beside the common one of the same name, which it hides; both travel
// in the record.
#define QB_FELDER_qbFormularL144(FELD)                                                                       \
    FELD(Flag, SchwangerschaftJN)                                                                            \
    FELD(Int, Schwangerschaftsmonat)                                                                         \
    FELD(Flag, KomplikationenJN)                                                                             \
    FELD(Text, Komplikationen)                                                                               \
    FELD(Text, ArztAdresse)                                                                                  \
    FELD(Flag, FruehereKomplikationenJN)                                                                     \
    FELD(Text, FruehereKomplikationen)

class qbFormularL144 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL144, qbFormularAllgGesu, QB_FELDER_qbFormularL144)
};
