// qbFormularL440, "Erklaerung Kampfsport": the combat-sports declaration. The lower-case beginnings of
// haeufig13JN, haeufig4JN, hauptberuflichJN and verletztJN belong to the accessors and the XML keys.
#pragma once

#include "core/qbFormularMakros.h"

#define QB_FELDER_qbFormularL440(FELD)                                                                       \
    FELD(Text, Kampfsportarten)                                                                              \
    FELD(Flag, haeufig13JN)                                                                                  \
    FELD(Flag, haeufig4JN)                                                                                   \
    FELD(Flag, FreizeitsportJN)                                                                              \
    FELD(Flag, hauptberuflichJN)                                                                             \
    FELD(Flag, BerufssportlerJN)                                                                             \
    FELD(Flag, TurniereJN)                                                                                   \
    FELD(Flag, NonKontaktJN)                                                                                 \
    FELD(Flag, SemikontaktJN)                                                                                \
    FELD(Flag, LeichtkontaktJN)                                                                              \
    FELD(Flag, VollkontaktJN)                                                                                \
    FELD(Flag, SicherheitsausruestungJN)                                                                     \
    FELD(Flag, verletztJN)                                                                                   \
    FELD(Text, WannWelcheFolgen)

class qbFormularL440 : public qbFormular {
    QB_FORMULAR(qbFormularL440, qbFormular, QB_FELDER_qbFormularL440)
};
