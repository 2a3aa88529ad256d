// What the three-page health declarations of 08.2008 (qbFormularL244, qbFormularL245, qbFormularL283)
// share: their closing questions, on further medication, occupational disability and a change of
// workplace, the same fields with the same keys in all three.
#pragma once

#define QB_FELDER_ERKLAERUNG_2008_SCHLUSS(FELD)                                                              \
    FELD(Text, WeitereMedikamente)                                                                           \
    FELD(Flag, BUJN)                                                                                         \
    FELD(Text, BUBeschreibung)                                                                               \
    FELD(Text, BUErkrankung)                                                                                 \
    FELD(Flag, ArbeitsplatzwechselJN)                                                                        \
    FELD(Text, Arbeitsplatzwechsel)                                                                          \
    FELD(Text, ArbeitsplatzwechselGrund)
