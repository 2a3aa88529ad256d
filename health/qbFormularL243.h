// qbFormularL243, "Erklaerung Epilepsie": the epilepsy declaration.
#pragma once

#include "health/qbFormularAllgGesu.h"

// PsychischeErkrankungenJN and PsychischeErkrankungen came with 05.2002. The form never had a layout of
// its own for "10.1999" and "01.2000": such records are read by this list too.
#define QB_FELDER_qbFormularL243(FELD)                                                                       \
    FELD(Flag, GrandMalEpilepsieJN)                                                                          \
    FELD(Flag, PetitMalEpilepsieJN)                                                                          \
    FELD(Flag, SonstigeDiagnoseJN)                                                                           \
    FELD(Text, SonstigeDiagnose)                                                                             \
    FELD(Text, DatumAnfall)                                                                                  \
    FELD(Flag, TagJN)                                                                                        \
    FELD(Flag, NachtJN)                                                                                      \
    FELD(Flag, AufregungJN)                                                                                  \
    FELD(Flag, AlkoholgenussJN)                                                                              \
    FELD(Flag, SonstigesAuftretenJN)                                                                         \
    FELD(Text, SonstigesAuftreten)                                                                           \
    FELD(Text, AnfallDauer)                                                                                  \
    FELD(Text, AnfaelleProJahr)                                                                              \
    FELD(Text, DauerBewusstlosigkeit)                                                                        \
    FELD(Flag, SchwindelJN)                                                                                  \
    FELD(Flag, VerletzungJN)                                                                                 \
    FELD(Text, Verletzung)                                                                                   \
    FELD(Flag, AlkoholJN)                                                                                    \
    FELD(Text, Alkohol)                                                                                      \
    FELD(Flag, FuehrerscheinJN)                                                                              \
    FELD(Text, FuehrerscheinSeit)                                                                            \
    FELD(Flag, KraftfahrzeugJN)                                                                              \
    FELD(Text, KraftfahrzeugSeit)                                                                            \
    FELD(Flag, GeheiltJN)                                                                                    \
    FELD(Text, GeheiltSeit)                                                                                  \
    FELD(Text, Beschwerden)                                                                                  \
    FELD(Text, AktuelleMedikamente)                                                                          \
    FELD(Flag, KontrolleJN)                                                                                  \
    FELD(Text, Kontrolle)                                                                                    \
    FELD(Text, EEG)                                                                                          \
    FELD(Text, Blutuntersuchung)                                                                             \
    FELD(Flag, PsychischeErkrankungenJN, .liesAb(200205))                                                    \
    FELD(Text, PsychischeErkrankungen, .liesAb(200205))                                                      \
    FELD(Flag, WeitereErkrankungenJN)                                                                        \
    FELD(Text, WeitereErkrankungen)                                                                          \
    FELD(Text, MedikamenteWeitererArzt)

class qbFormularL243 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL243, qbFormularAllgGesu, QB_FELDER_qbFormularL243)
};
