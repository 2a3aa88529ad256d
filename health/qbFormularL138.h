// qbFormularL138, "Erklaerung Herz- und Kreislauferkrankungen": the heart declaration.
#pragma once

#include "health/qbFormularAllgGesu.h"

// ZigarettenJN and Puls came with 05.2002; the layouts of 10.1999 and 01.2000 are in the .cpp.
// binaryStoreSize leaves Beschwerden out, though it is saved.
#define QB_FELDER_qbFormularL138(FELD)                                                                       \
    FELD(Flag, BluthochdruckJN)                                                                              \
    FELD(Flag, AnginaPectorisJN)                                                                             \
    FELD(Flag, HerzinfarktJN)                                                                                \
    FELD(Flag, KoronareHerzkrankheitJN)                                                                      \
    FELD(Flag, HerzrhythmusstoerungenJN)                                                                     \
    FELD(Flag, HerzinsuffizienzJN)                                                                           \
    FELD(Flag, HerzfehlerJN)                                                                                 \
    FELD(Flag, SonstigeDiagnoseJN)                                                                           \
    FELD(Text, SonstigeDiagnose)                                                                             \
    FELD(Flag, KathederJN)                                                                                   \
    FELD(Text, Katheder)                                                                                     \
    FELD(Flag, PTCAJN)                                                                                       \
    FELD(Text, PTCA)                                                                                         \
    FELD(Flag, BypassJN)                                                                                     \
    FELD(Text, Bypass)                                                                                       \
    FELD(Flag, OperationJN)                                                                                  \
    FELD(Text, Operation)                                                                                    \
    FELD(Text, Medikamente)                                                                                  \
    FELD(Flag, AlkoholJN)                                                                                    \
    FELD(Text, Alkohol)                                                                                      \
    FELD(Flag, ZigarettenJN, .liesAb(200205))                                                                \
    FELD(Text, Zigaretten)                                                                                   \
    FELD(Flag, GeheiltJN)                                                                                    \
    FELD(Text, GeheiltSeit)                                                                                  \
    FELD(Text, Beschwerden, .ohneGroesse())                                                                  \
    FELD(Flag, OperationGeplantJN)                                                                           \
    FELD(Text, GeplanteOperation)                                                                            \
    FELD(Text, AktuelleMedikamente)                                                                          \
    FELD(Int, BlutdruckSyst)                                                                                 \
    FELD(Int, BlutdruckDiast)                                                                                \
    FELD(Int, Puls, .liesAb(200205))                                                                         \
    FELD(Text, DatumBlutdruck)                                                                               \
    FELD(Text, EKG)                                                                                          \
    FELD(Text, Roentgen)                                                                                     \
    FELD(Text, Blutuntersuchung)                                                                             \
    FELD(Flag, DiabetesJN)                                                                                   \
    FELD(Text, Diabetes)                                                                                     \
    FELD(Flag, FettstoffwechselstoerungJN)                                                                   \
    FELD(Text, Fettstoffwechselstoerung)                                                                     \
    FELD(Flag, LungenerkrankungJN)                                                                           \
    FELD(Text, Lungenerkrankung)                                                                             \
    FELD(Flag, NierenerkrankungJN)                                                                           \
    FELD(Text, Nierenerkrankung)                                                                             \
    FELD(Flag, SonstigeErkrankungJN)                                                                         \
    FELD(Text, SonstigeErkrankung)                                                                           \
    FELD(Text, MedikamenteWeitererArzt)

class qbFormularL138 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL138, qbFormularAllgGesu, QB_FELDER_qbFormularL138)
private:
    template <class Strom>
    void liesGespeichert(Strom& s);
};
