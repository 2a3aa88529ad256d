// qbFormularX278, "Erklaerung Freizeitreiter": the leisure rider's declaration. HindernisrennenJN asks about
// the sport practised, HindernisrennenWettbJN about competitions; the Anzahl... Ints count the competitions
// of the Flags SpringDressurturniereJN to AndereWettkaempfeJN, in the same order. One layout for every
// stored version.
#pragma once

#include "core/qbFormularMakros.h"

#define QB_FELDER_qbFormularX278(FELD)                                                                       \
    FELD(Flag, ReitenJN)                                                                                     \
    FELD(Flag, SpringreitenJN)                                                                               \
    FELD(Flag, RennreitenJN)                                                                                 \
    FELD(Flag, TrabrennfahrenJN)                                                                             \
    FELD(Flag, HindernisrennenJN)                                                                            \
    FELD(Flag, DressurreitenJN)                                                                              \
    FELD(Flag, PoloJN)                                                                                       \
    FELD(Flag, MilitaryJN)                                                                                   \
    FELD(Flag, SonstigeReitsportart1JN)                                                                      \
    FELD(Flag, SonstigeReitsportart2JN)                                                                      \
    FELD(Flag, LizenzJN)                                                                                     \
    FELD(Flag, SpringDressurturniereJN)                                                                      \
    FELD(Flag, GalopprennenJN)                                                                               \
    FELD(Flag, TrabrennenJN)                                                                                 \
    FELD(Flag, HindernisrennenWettbJN)                                                                       \
    FELD(Flag, VielseitigkeitspruefungenJN)                                                                  \
    FELD(Flag, AndereWettkaempfeJN)                                                                          \
    FELD(Flag, ReitunfaelleJN)                                                                               \
    FELD(Text, SonstigeReitsportart1)                                                                        \
    FELD(Text, SonstigeReitsportart2)                                                                        \
    FELD(Text, LizenzArt)                                                                                    \
    FELD(Text, AndereWettkaempfeArt)                                                                         \
    FELD(Text, ReitunfaelleAngaben)                                                                          \
    FELD(Int, AnzahlSpringDressurturniere)                                                                   \
    FELD(Int, AnzahlGalopprennen)                                                                            \
    FELD(Int, AnzahlTrabrennen)                                                                              \
    FELD(Int, AnzahlHindernisrennen)                                                                         \
    FELD(Int, AnzahlVielseitigkeitspruefungen)                                                               \
    FELD(Int, AnzahlAndereWettkaempfe)

class qbFormularX278 : public qbFormular {
    QB_FORMULAR(qbFormularX278, qbFormular, QB_FELDER_qbFormularX278)
};
