// qbFormularL143, "Erklaerung Harnwegs- und Nierenerkrankungen": the kidney declaration.
#pragma once

#include "health/qbFormularAllgGesu.h"

// Koerperseiten and ZigarettenJN came with 05.2002, Medikamente and NierensteineNochVorhandenJN with
// 10.2002 (the virtual stream never reads these two); the older layouts are in the .cpp.
#define QB_FELDER_qbFormularL143(FELD)                                                                       \
    FELD(Flag, NierensteineJN)                                                                               \
    FELD(Flag, HarnleiterstenoseJN)                                                                          \
    FELD(Flag, GlomerulonephritisJN)                                                                         \
    FELD(Flag, NierentumorJN)                                                                                \
    FELD(Flag, HarnwegsinfekteJN)                                                                            \
    FELD(Flag, SonstigeDiagnoseJN)                                                                           \
    FELD(Text, SonstigeDiagnose)                                                                             \
    FELD(Text, Koerperseiten, .liesAb(200205))                                                               \
    FELD(Flag, ESWLJN)                                                                                       \
    FELD(Text, ESWL)                                                                                         \
    FELD(Flag, OperationJN)                                                                                  \
    FELD(Text, Operation)                                                                                    \
    FELD(Flag, NiereEntferntJN)                                                                              \
    FELD(Text, NiereEntfernt)                                                                                \
    FELD(Text, Medikamente, .liesAb(200210))                                                                 \
    FELD(Flag, AlkoholJN)                                                                                    \
    FELD(Text, Alkohol)                                                                                      \
    FELD(Flag, ZigarettenJN, .liesAb(200205))                                                                \
    FELD(Text, Zigaretten)                                                                                   \
    FELD(Flag, GeheiltJN)                                                                                    \
    FELD(Text, GeheiltSeit)                                                                                  \
    FELD(Text, Beschwerden)                                                                                  \
    FELD(Flag, NierensteineNochVorhandenJN, .liesAb(200210))                                                 \
    FELD(Flag, OperationGeplantJN)                                                                           \
    FELD(Text, GeplanteOperation)                                                                            \
    FELD(Text, AktuelleMedikamente)                                                                          \
    FELD(Text, Blutuntersuchung)                                                                             \
    FELD(Text, Urinuntersuchung)                                                                             \
    FELD(Flag, NierenfunktionsEinschraenkungJN)                                                              \
    FELD(Text, NierenfunktionsEinschraenkung)                                                                \
    FELD(Int, BlutdruckSyst)                                                                                 \
    FELD(Int, BlutdruckDiast)                                                                                \
    FELD(Text, DatumBlutdruck)                                                                               \
    FELD(Flag, BluthochdruckJN)                                                                              \
    FELD(Text, Bluthochdruck)                                                                                \
    FELD(Flag, HerzerkrankungenJN)                                                                           \
    FELD(Text, Herzerkrankungen)                                                                             \
    FELD(Flag, DiabetesJN)                                                                                   \
    FELD(Text, Diabetes)                                                                                     \
    FELD(Flag, FettstoffwechselstoerungJN)                                                                   \
    FELD(Text, Fettstoffwechselstoerung)                                                                     \
    FELD(Flag, GichtJN)                                                                                      \
    FELD(Text, Gicht)                                                                                        \
    FELD(Flag, SonstigeErkrankungJN)                                                                         \
    FELD(Text, SonstigeErkrankung)                                                                           \
    FELD(Text, MedikamenteWeitererArzt)

class qbFormularL143 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL143, qbFormularAllgGesu, QB_FELDER_qbFormularL143)
    // "Beginn: <Beginn>; <singular Dauer phrase>".
    RWCString AntwortFrage1() const;

private:
    template <class Strom>
    void liesGespeichert(Strom& s);
};
