// qbFormularL146, "Erklaerung Wirbelsaeulenbeschwerden": the spine declaration.
#pragma once

#include "health/qbFormularAllgGesu.h"

// Fields 21 to 30 came with 05.2002.
#define QB_FELDER_qbFormularL146(FELD)                                                                       \
    FELD(Text, Frage1)                                                                                       \
    FELD(Flag, DeswegenArbeitsunfaehigJN)                                                                    \
    FELD(Text, DauerArbeitsunfaehig)                                                                         \
    FELD(Text, Wirbelsaeulenabschnitt)                                                                       \
    FELD(Text, Diagnose)                                                                                     \
    FELD(Flag, RoentgenJN)                                                                                   \
    FELD(Text, DatumRoentgen)                                                                                \
    FELD(Flag, OperationJN)                                                                                  \
    FELD(Text, Operation)                                                                                    \
    FELD(Text, Verordnung)                                                                                   \
    FELD(Text, SonstigeVerordnung)                                                                           \
    FELD(Text, EinzelheitenVerordnung)                                                                       \
    FELD(Text, Medikamente)                                                                                  \
    FELD(Flag, GeheiltJN)                                                                                    \
    FELD(Text, GeheiltSeit)                                                                                  \
    FELD(Text, Beschwerden)                                                                                  \
    FELD(Flag, OperationGeplantJN)                                                                           \
    FELD(Text, GeplanteOperation)                                                                            \
    FELD(Flag, RehaJN)                                                                                       \
    FELD(Text, Reha)                                                                                         \
    FELD(Flag, KopfschmerzenJN, .liesAb(200205))                                                             \
    FELD(Text, Kopfschmerzen, .liesAb(200205))                                                               \
    FELD(Flag, GelenkerkrankungenJN, .liesAb(200205))                                                        \
    FELD(Text, Gelenkerkrankungen, .liesAb(200205))                                                          \
    FELD(Flag, BeckenschiefstandJN, .liesAb(200205))                                                         \
    FELD(Text, Beckenschiefstand, .liesAb(200205))                                                           \
    FELD(Flag, NervenschmerzenJN, .liesAb(200205))                                                           \
    FELD(Text, Nervenschmerzen, .liesAb(200205))                                                             \
    FELD(Flag, RheumaJN, .liesAb(200205))                                                                    \
    FELD(Text, Rheuma, .liesAb(200205))

class qbFormularL146 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL146, qbFormularAllgGesu, QB_FELDER_qbFormularL146)

    // "Beginn: <Beginn>; <Dauer phrase><Frage1>".
    RWCString AntwortFrage1() const;
    // SonstigeVerordnung and "; " when it is not empty, then EinzelheitenVerordnung.
    RWCString AntwortVerordnung() const;

    QB_GESUNDHEIT_FRUEHES_LAYOUT
};
