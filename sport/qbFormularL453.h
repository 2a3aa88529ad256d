// qbFormularL453, "Erklaerung Motorradsport": the motorcycle-racing declaration, built from the same blocks
// as the motor-racing one (a Flag, ...Bisher, ...Geplant, ...Bezeichnung per kind of race). AndereRennenJN is
// the one Flag of three blocks, RisikoMitversichernJN has a small v, Plazierungen is spelt so, and Zylinder,
// KW and Hubraum are Text. One layout for every stored version.
#pragma once

#include "core/qbFormularMakros.h"

#define QB_FELDER_qbFormularL453(FELD)                                                                       \
    FELD(Text, Beginn)                                                                                       \
    FELD(Flag, BerufsfahrerJN)                                                                               \
    FELD(Flag, AmateurJN)                                                                                    \
    FELD(Text, Marke)                                                                                        \
    FELD(Text, Typ)                                                                                          \
    FELD(Text, Zylinder)                                                                                     \
    FELD(Text, KW)                                                                                           \
    FELD(Text, Hubraum)                                                                                      \
    FELD(Flag, RundstreckenJN)                                                                               \
    FELD(Int, RundstreckenBisher)                                                                            \
    FELD(Int, RundstreckenGeplant)                                                                           \
    FELD(Text, RundstreckenBezeichnung)                                                                      \
    FELD(Flag, MotocrossJN)                                                                                  \
    FELD(Int, MotocrossBisher)                                                                               \
    FELD(Int, MotocrossGeplant)                                                                              \
    FELD(Text, MotocrossBezeichnung)                                                                         \
    FELD(Flag, BergrennenJN)                                                                                 \
    FELD(Int, BergrennenBisher)                                                                              \
    FELD(Int, BergrennenGeplant)                                                                             \
    FELD(Text, BergrennenBezeichnung)                                                                        \
    FELD(Flag, RallyeJN)                                                                                     \
    FELD(Int, RallyeBisher)                                                                                  \
    FELD(Int, RallyeGeplant)                                                                                 \
    FELD(Text, RallyeBezeichnung)                                                                            \
    FELD(Flag, RallyeNichtEuropaJN)                                                                          \
    FELD(Int, RallyeNichtEuropaBisher)                                                                       \
    FELD(Int, RallyeNichtEuropaGeplant)                                                                      \
    FELD(Text, RallyeNichtEuropaBezeichnung)                                                                 \
    FELD(Flag, TrialJN)                                                                                      \
    FELD(Int, TrialBisher)                                                                                   \
    FELD(Int, TrialGeplant)                                                                                  \
    FELD(Text, TrialBezeichnung)                                                                             \
    FELD(Flag, SpeedwayJN)                                                                                   \
    FELD(Int, SpeedwayBisher)                                                                                \
    FELD(Int, SpeedwayGeplant)                                                                               \
    FELD(Text, SpeedwayBezeichnung)                                                                          \
    FELD(Flag, AndereRennenJN)                                                                               \
    FELD(Int, AndereRennen1Bisher)                                                                           \
    FELD(Int, AndereRennen1Geplant)                                                                          \
    FELD(Text, AndereRennen1Bezeichnung)                                                                     \
    FELD(Int, AndereRennen2Bisher)                                                                           \
    FELD(Int, AndereRennen2Geplant)                                                                          \
    FELD(Text, AndereRennen2Bezeichnung)                                                                     \
    FELD(Int, AndereRennen3Bisher)                                                                           \
    FELD(Int, AndereRennen3Geplant)                                                                          \
    FELD(Text, AndereRennen3Bezeichnung)                                                                     \
    FELD(Flag, RisikoMitversichernJN)                                                                        \
    FELD(Text, Plazierungen)                                                                                 \
    FELD(Flag, UnfaelleJN)                                                                                   \
    FELD(Text, Unfaelle)                                                                                     \
    FELD(Text, WeitereAngaben)

class qbFormularL453 : public qbFormular {
    QB_FORMULAR(qbFormularL453, qbFormular, QB_FELDER_qbFormularL453)
};
