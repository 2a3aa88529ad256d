// qbFormularL452, "Erklaerung Automobilsport": the motor-racing declaration. Each kind of race is a block of
// a Flag, the races so far (...Bisher), the races planned (...Geplant) and their names (...Bezeichnung). The
// names keep their irregularities: the hill climb has BergrennenJN but Bergstrecken..., AndereRennenJN is
// the one Flag of three blocks, Plazierungen is spelt so, KW and Hubraum are Text. One layout for every
// stored version.
#pragma once

#include "core/qbFormularMakros.h"

// The setter RefTyp takes its text by value, the only one of the sport forms that does.
#define QB_FELDER_qbFormularL452(FELD)                                                                       \
    FELD(Text, Beginn)                                                                                       \
    FELD(Flag, BerufsfahrerJN)                                                                               \
    FELD(Flag, AmateurJN)                                                                                    \
    FELD(Text, Gruppe)                                                                                       \
    FELD(Text, Marke)                                                                                        \
    FELD(TextWert, Typ)                                                                                      \
    FELD(Text, KW)                                                                                           \
    FELD(Text, Hubraum)                                                                                      \
    FELD(Flag, RundstreckenJN)                                                                               \
    FELD(Int, RundstreckenBisher)                                                                            \
    FELD(Int, RundstreckenGeplant)                                                                           \
    FELD(Text, RundstreckenBezeichnung)                                                                      \
    FELD(Flag, LangstreckenJN)                                                                               \
    FELD(Int, LangstreckenBisher)                                                                            \
    FELD(Int, LangstreckenGeplant)                                                                           \
    FELD(Text, LangstreckenBezeichnung)                                                                      \
    FELD(Flag, BergrennenJN)                                                                                 \
    FELD(Int, BergstreckenBisher)                                                                            \
    FELD(Int, BergstreckenGeplant)                                                                           \
    FELD(Text, BergstreckenBezeichnung)                                                                      \
    FELD(Flag, Rallye1JN)                                                                                    \
    FELD(Int, Rallye1Bisher)                                                                                 \
    FELD(Int, Rallye1Geplant)                                                                                \
    FELD(Text, Rallye1Bezeichnung)                                                                           \
    FELD(Flag, Rallye2JN)                                                                                    \
    FELD(Int, Rallye2Bisher)                                                                                 \
    FELD(Int, Rallye2Geplant)                                                                                \
    FELD(Text, Rallye2Bezeichnung)                                                                           \
    FELD(Flag, GelaenderennenJN)                                                                             \
    FELD(Int, GelaenderennenBisher)                                                                          \
    FELD(Int, GelaenderennenGeplant)                                                                         \
    FELD(Text, GelaenderennenBezeichnung)                                                                    \
    FELD(Flag, StockCarJN)                                                                                   \
    FELD(Int, StockCarBisher)                                                                                \
    FELD(Int, StockCarGeplant)                                                                               \
    FELD(Text, StockCarBezeichnung)                                                                          \
    FELD(Flag, GoKartAJN)                                                                                    \
    FELD(Int, GoKartABisher)                                                                                 \
    FELD(Int, GoKartAGeplant)                                                                                \
    FELD(Text, GoKartABezeichnung)                                                                           \
    FELD(Flag, GoKartBJN)                                                                                    \
    FELD(Int, GoKartBBisher)                                                                                 \
    FELD(Int, GoKartBGeplant)                                                                                \
    FELD(Text, GoKartBBezeichnung)                                                                           \
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
    FELD(Text, Plazierungen)                                                                                 \
    FELD(Flag, UnfaelleJN)                                                                                   \
    FELD(Text, Unfaelle)                                                                                     \
    FELD(Text, WeitereAngaben)

class qbFormularL452 : public qbFormular {
    QB_FORMULAR(qbFormularL452, qbFormular, QB_FELDER_qbFormularL452)
};
