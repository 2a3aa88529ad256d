// qbFormularL450, "Erklaerung Bergsport": the mountain-sports declaration. Each discipline is a Flag with an
// Int of the hours spent (climbing adds its grade); the continents of the expeditions, their height and the
// equipment used follow. One layout for every stored version. RisikoMitVersichernJN has a capital V here,
// unlike RisikoMitversichernJN of the motorcycle form.
#pragma once

#include "core/qbFormularMakros.h"

// binaryStoreSize leaves the characters of MitgliedBergsportvereinSeit and ExpeditionenHaeufigkeit out.
#define QB_FELDER_qbFormularL450(FELD)                                                                       \
    FELD(Text, Beginn)                                                                                       \
    FELD(Flag, PrivatJN)                                                                                     \
    FELD(Flag, BeruflichJN)                                                                                  \
    FELD(Flag, MitgliedBergsportvereinJN)                                                                    \
    FELD(Text, MitgliedBergsportvereinSeit, .ohneLaengeInGroesse())                                          \
    FELD(Text, Ausbildung)                                                                                   \
    FELD(Flag, BergunfaelleJN)                                                                               \
    FELD(Text, Bergunfaelle)                                                                                 \
    FELD(Flag, BergwandernJN)                                                                                \
    FELD(Int, BergwandernStunden)                                                                            \
    FELD(Flag, HochtourenJN)                                                                                 \
    FELD(Int, HochtourenStunden)                                                                             \
    FELD(Flag, KletternJN)                                                                                   \
    FELD(Int, KletternStunden)                                                                               \
    FELD(Int, KletternGrad)                                                                                  \
    FELD(Flag, EiskletternJN)                                                                                \
    FELD(Int, EiskletternStunden)                                                                            \
    FELD(Flag, WettkampfkletternJN)                                                                          \
    FELD(Int, WettkampfkletternStunden)                                                                      \
    FELD(Flag, KlettersteigbegehungenJN)                                                                     \
    FELD(Int, KlettersteigbegehungenStunden)                                                                 \
    FELD(Flag, SkibergsteigenJN)                                                                             \
    FELD(Int, SkibergsteigenStunden)                                                                         \
    FELD(Flag, BouldernJN)                                                                                   \
    FELD(Int, BouldernStunden)                                                                               \
    FELD(Flag, GebaeudekletternJN)                                                                           \
    FELD(Int, GebaeudekletternStunden)                                                                       \
    FELD(Flag, AndereSportartenJN)                                                                           \
    FELD(Int, AndereSportartenStunden)                                                                       \
    FELD(Text, AndereSportarten)                                                                             \
    FELD(Flag, TrekkingJN)                                                                                   \
    FELD(Text, Trekking)                                                                                     \
    FELD(Flag, ExpeditionenJN)                                                                               \
    FELD(Text, ExpeditionenHaeufigkeit, .ohneLaengeInGroesse())                                              \
    FELD(Text, Expeditionen)                                                                                 \
    FELD(Flag, EuropaJN)                                                                                     \
    FELD(Flag, AsienJN)                                                                                      \
    FELD(Flag, NordamerikaJN)                                                                                \
    FELD(Flag, SuedamerikaJN)                                                                                \
    FELD(Flag, AfrikaJN)                                                                                     \
    FELD(Flag, AustralienJN)                                                                                 \
    FELD(Text, Hoehe)                                                                                        \
    FELD(Flag, AlleingaengerJN)                                                                              \
    FELD(Flag, SoloKlettererJN)                                                                              \
    FELD(Flag, SitzgurtJN)                                                                                   \
    FELD(Flag, BrustgurtJN)                                                                                  \
    FELD(Flag, HelmJN)                                                                                       \
    FELD(Flag, SeilsicherungJN)                                                                              \
    FELD(Flag, HueftgurtJN)                                                                                  \
    FELD(Flag, RisikoMitVersichernJN)

class qbFormularL450 : public qbFormular {
    QB_FORMULAR(qbFormularL450, qbFormular, QB_FELDER_qbFormularL450)
};
