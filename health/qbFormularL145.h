// qbFormularL145, "Erklaerung Verletzungen": the injury declaration.
#pragma once

#include "health/qbFormularAllgGesu.h"

// Fields 2 and 3 came with 05.2002, fields 4, 5 and 7 to 17 with 10.2002; older records are read by the
// layouts in the .cpp.
#define QB_FELDER_qbFormularL145(FELD)                                                                       \
    FELD(Text, Verletzungshergang)                                                                           \
    FELD(Text, VerletzteOrgane)                                                                              \
    FELD(Text, VerletzteGelenke)                                                                             \
    FELD(Flag, ArbeitsunfaehigVerletzungJN)                                                                  \
    FELD(Text, ArbeitsunfaehigVerletzung)                                                                    \
    FELD(Text, Verletzung)                                                                                   \
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
    FELD(Text, GeheiltSeit)                                                                                  \
    FELD(Text, Beschwerden)                                                                                  \
    FELD(Flag, OperationJN)                                                                                  \
    FELD(Text, Operation)                                                                                    \
    FELD(Flag, RehaJN)                                                                                       \
    FELD(Text, Reha)                                                                                         \
    FELD(Flag, DauerfolgenJN)                                                                                \
    FELD(Text, Dauerfolgen)                                                                                  \
    FELD(Text, Koerperhaelfte)

class qbFormularL145 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL145, qbFormularAllgGesu, QB_FELDER_qbFormularL145)

    // "Beginn: <Beginn>; <Dauer phrase><Verletzungshergang> <VerletzteOrgane> <VerletzteGelenke> ";
    // empty fields are not skipped.
    RWCString AntwortFrage1() const;

private:
    template <class Strom>
    void liesGespeichert(Strom& s);
};
