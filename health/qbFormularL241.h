// qbFormularL241, "Erklaerung Atemwegserkrankungen": the respiratory diseases declaration.
#pragma once

#include "health/qbFormularAllgGesu.h"

// ZigarettenJN came with 05.2002; the records of "10.1999" and "01.2000" are read by the early layout in
// the .cpp.
#define QB_FELDER_qbFormularL241(FELD)                                                                       \
    FELD(Text, Diagnose)                                                                                     \
    FELD(Text, Frage1)                                                                                       \
    FELD(Flag, AsthmaJN)                                                                                     \
    FELD(Flag, ChronischeBronchitisJN)                                                                       \
    FELD(Flag, LungenemphysemJN)                                                                             \
    FELD(Flag, LungenBronchialtumorJN)                                                                       \
    FELD(Flag, LungenEmbolieJN)                                                                              \
    FELD(Flag, LungentuberkoloseJN)                                                                          \
    FELD(Flag, SarkoidoseJN)                                                                                 \
    FELD(Flag, SonstigeJN)                                                                                   \
    FELD(Text, Sonstige)                                                                                     \
    FELD(Flag, OperationJN)                                                                                  \
    FELD(Text, Operation)                                                                                    \
    FELD(Text, Medikamente)                                                                                  \
    FELD(Flag, AllergienJN)                                                                                  \
    FELD(Text, DatumAllergien)                                                                               \
    FELD(Text, Allergien)                                                                                    \
    FELD(Flag, AllergietestJN)                                                                               \
    FELD(Text, Allergietest)                                                                                 \
    FELD(Flag, ZigarettenJN, .liesAb(200205))                                                                \
    FELD(Text, Zigaretten)                                                                                   \
    FELD(Flag, GeheiltJN)                                                                                    \
    FELD(Text, GeheiltSeit)                                                                                  \
    FELD(Text, Beschwerden)                                                                                  \
    FELD(Flag, OperationGeplantJN)                                                                           \
    FELD(Text, GeplanteOperation)                                                                            \
    FELD(Text, AktuelleMedikamente)                                                                          \
    FELD(Flag, LungenfunktionsEinschraenkungJN)                                                              \
    FELD(Text, LungenfunktionsEinschraenkung)                                                                \
    FELD(Text, Roentgenkontrolle)                                                                            \
    FELD(Flag, BluthochdruckJN)                                                                              \
    FELD(Text, Bluthochdruck)                                                                                \
    FELD(Flag, HerzerkrankungenJN)                                                                           \
    FELD(Text, Herzerkrankungen)                                                                             \
    FELD(Flag, DiabetesJN)                                                                                   \
    FELD(Text, Diabetes)                                                                                     \
    FELD(Flag, FettstoffwechselstoerungJN)                                                                   \
    FELD(Text, Fettstoffwechselstoerung)                                                                     \
    FELD(Flag, NierenerkrankungJN)                                                                           \
    FELD(Text, Nierenerkrankung)                                                                             \
    FELD(Flag, GefaessErkrankungJN)                                                                          \
    FELD(Text, GefaessErkrankung)                                                                            \
    FELD(Flag, HauterkrankungJN)                                                                             \
    FELD(Text, Hauterkrankung)                                                                               \
    FELD(Flag, SonstigeErkrankungJN)                                                                         \
    FELD(Text, SonstigeErkrankung)                                                                           \
    FELD(Text, MedikamenteWeitererArzt)

class qbFormularL241 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL241, qbFormularAllgGesu, QB_FELDER_qbFormularL241)

    // "Beginn: <Beginn>; <Dauer phrase><Frage1>". Not const, as it always was.
    RWCString AntwortFrage1();

    QB_GESUNDHEIT_FRUEHES_LAYOUT
};
