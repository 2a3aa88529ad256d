// qbFormularL281, "Erklaerung Gelenke": the joints declaration. One layout since 10.2002; the constructor
// names no person.
#pragma once

#include "health/qbFormularAllgGesu.h"

#define QB_FELDER_qbFormularL281(FELD)                                                                       \
    FELD(Text, BeschwerdenWann)                                                                              \
    FELD(Text, BetroffeneGelenke)                                                                            \
    FELD(Text, KoerperseiteGelenke)                                                                          \
    FELD(Flag, ArbeitsunfaehigGelenkeJN)                                                                     \
    FELD(Text, ArbeitsunfaehigGelenke)                                                                       \
    FELD(Text, Diagnose)                                                                                     \
    FELD(Flag, RoentgenaufnahmenJN)                                                                          \
    FELD(Text, Roentgenaufnahmen)                                                                            \
    FELD(Flag, ArthroskopieJN)                                                                               \
    FELD(Text, Arthroskopie)                                                                                 \
    FELD(Text, KoerperseiteArthroskopie)                                                                     \
    FELD(Flag, WeitereOperationJN)                                                                           \
    FELD(Text, WeitereOperation)                                                                             \
    FELD(Text, KoerperseiteWeitereOperation)                                                                 \
    FELD(Text, Verordnung)                                                                                   \
    FELD(Text, AngabenVerordnung)                                                                            \
    FELD(Text, VerordneteMedikamente)                                                                        \
    FELD(Flag, GeheiltJN)                                                                                    \
    FELD(Text, Geheilt)                                                                                      \
    FELD(Text, Beschwerden)                                                                                  \
    FELD(Flag, OperationJN)                                                                                  \
    FELD(Text, Operation)                                                                                    \
    FELD(Flag, RehaJN)                                                                                       \
    FELD(Text, Reha)                                                                                         \
    FELD(Flag, DauerfolgenJN)                                                                                \
    FELD(Text, Dauerfolgen)

class qbFormularL281 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL281, qbFormularAllgGesu, QB_FELDER_qbFormularL281)
};
