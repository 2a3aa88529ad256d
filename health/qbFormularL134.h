// qbFormularL134, "Erkrankung Diabetes mellitus": the diabetes declaration.
#pragma once

#include "health/qbFormularAllgGesu.h"

// ZigarettenJN came with 05.2002; records before, those of 10.1999 and 01.2000 included, lack it.
#define QB_FELDER_qbFormularL134(FELD)                                                                       \
    FELD(Flag, TypI_JN)                                                                                      \
    FELD(Flag, TypII_JN)                                                                                     \
    FELD(Flag, DiaetJN)                                                                                      \
    FELD(Text, DiaetSeit)                                                                                    \
    FELD(Flag, InsulinJN)                                                                                    \
    FELD(Text, InsulinSeit)                                                                                  \
    FELD(Text, Praeparate)                                                                                   \
    FELD(Flag, InsulinpumpeJN)                                                                               \
    FELD(Text, InsulinpumpeSeit)                                                                             \
    FELD(Flag, TablettenJN)                                                                                  \
    FELD(Text, TablettenSeit)                                                                                \
    FELD(Text, Medikamente)                                                                                  \
    FELD(Flag, SchockzustaendeJN)                                                                            \
    FELD(Text, Schockzustaende)                                                                              \
    FELD(Flag, EiweissJN)                                                                                    \
    FELD(Text, Eiweiss)                                                                                      \
    FELD(Flag, AugenhintergrundveraenderungJN)                                                               \
    FELD(Text, Augenhintergrundveraenderung)                                                                 \
    FELD(Flag, AlkoholJN)                                                                                    \
    FELD(Text, Alkohol)                                                                                      \
    FELD(Flag, ZigarettenJN, .liesAb(200205))                                                                \
    FELD(Text, Zigaretten)                                                                                   \
    FELD(Flag, OptimalEingestelltJN)                                                                         \
    FELD(Text, OptimalEingestelltSeit)                                                                       \
    FELD(Text, Beschwerden)                                                                                  \
    FELD(Flag, KontrolleJN)                                                                                  \
    FELD(Text, Kontrolle)                                                                                    \
    FELD(Text, Blutuntersuchung)                                                                             \
    FELD(Text, HbA1)                                                                                         \
    FELD(Text, BlutzuckerNuechtern)                                                                          \
    FELD(Text, BlutzuckerNachEssen)                                                                          \
    FELD(Text, Urinuntersuchung)                                                                             \
    FELD(Text, UrinEiweiss)                                                                                  \
    FELD(Text, UrinZucker)                                                                                   \
    FELD(Text, Aceton)                                                                                       \
    FELD(Int, BlutdruckSyst)                                                                                 \
    FELD(Int, BlutdruckDiast)                                                                                \
    FELD(Text, DatumBlutdruck)                                                                               \
    FELD(Flag, BluthochdruckJN)                                                                              \
    FELD(Text, Bluthochdruck)                                                                                \
    FELD(Flag, HerzerkrankungenJN)                                                                           \
    FELD(Text, Herzerkrankungen)                                                                             \
    FELD(Flag, FettstoffwechselstoerungJN)                                                                   \
    FELD(Text, Fettstoffwechselstoerung)                                                                     \
    FELD(Flag, NierenerkrankungJN)                                                                           \
    FELD(Text, Nierenerkrankung)                                                                             \
    FELD(Flag, GefaesserkrankungJN)                                                                          \
    FELD(Text, Gefaesserkrankung)                                                                            \
    FELD(Flag, NeurologischeErkrankungJN)                                                                    \
    FELD(Text, NeurologischeErkrankung)                                                                      \
    FELD(Flag, SonstigeErkrankungJN)                                                                         \
    FELD(Text, SonstigeErkrankung)                                                                           \
    FELD(Text, MedikamenteWeitererArzt)

class qbFormularL134 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL134, qbFormularAllgGesu, QB_FELDER_qbFormularL134)
private:
    template <class Strom>
    void liesGespeichert(Strom& s);
};
