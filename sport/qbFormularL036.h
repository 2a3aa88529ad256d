// qbFormularL036, "Erklaerung Auslandsaufenthalt": the stay-abroad declaration: the country, the duration,
// the work done there, its conditions, the lodging and the kind of place. The one piece of the sport family
// a person may hold several of, one per stay, told apart by Land and Index. Dauer is Text here. One layout
// for every stored version.
#pragma once

#include "core/qbFormularMakros.h"

#define QB_FELDER_qbFormularL036(FELD)                                                                       \
    FELD(Text, Land)                                                                                         \
    FELD(Flag, ErsterBeruflicherAufenthaltJN)                                                                \
    FELD(Text, ErsterBeruflicherAufenthalt)                                                                  \
    FELD(Text, Dauer)                                                                                        \
    FELD(Flag, KoerperlichJN)                                                                                \
    FELD(Flag, KaufmaennischJN)                                                                              \
    FELD(Flag, MaschinenJN)                                                                                  \
    FELD(Flag, ForschungJN)                                                                                  \
    FELD(Flag, KFZJN)                                                                                        \
    FELD(Flag, ReiseJN)                                                                                      \
    FELD(Flag, SonstigeTaetigkeitJN)                                                                         \
    FELD(Text, SonstigeTaetigkeit)                                                                           \
    FELD(Flag, NaesseJN)                                                                                     \
    FELD(Flag, KaelteJN)                                                                                     \
    FELD(Flag, HitzeJN)                                                                                      \
    FELD(Flag, LaermJN)                                                                                      \
    FELD(Flag, UnguenstigeArbeitszeitJN)                                                                     \
    FELD(Flag, WerkstoffeJN)                                                                                 \
    FELD(Text, Werkstoffe)                                                                                   \
    FELD(Text, BeschreibungTaetigkeit)                                                                       \
    FELD(Text, SelbstaendigSeit)                                                                             \
    FELD(Flag, DeutscheFirmaJN)                                                                              \
    FELD(Text, ArtDesBetriebes)                                                                              \
    FELD(Flag, HausJN)                                                                                       \
    FELD(Flag, WohnungJN)                                                                                    \
    FELD(Flag, HotelJN)                                                                                      \
    FELD(Flag, CampJN)                                                                                       \
    FELD(Flag, BarackeJN)                                                                                    \
    FELD(Flag, HuetteJN)                                                                                     \
    FELD(Flag, BohrinselJN)                                                                                  \
    FELD(Flag, GemeinschaftsunterkunftJN)                                                                    \
    FELD(Flag, SonstigeUnterkunftJN)                                                                         \
    FELD(Text, SonstigeUnterkunft)                                                                           \
    FELD(Flag, HauptstadtJN)                                                                                 \
    FELD(Flag, GrossstadtJN)                                                                                 \
    FELD(Flag, OrtJN)                                                                                        \
    FELD(Flag, AusserhalbOrtschaftJN)                                                                        \
    FELD(Flag, SonstigerAufenthaltsortJN)                                                                    \
    FELD(Text, SonstigerAufenthaltsort)                                                                      \
    FELD(Int, Index)

class qbFormularL036 : public qbFormular {
    QB_FORMULAR(qbFormularL036, qbFormular, QB_FELDER_qbFormularL036)

    // Same DruckstueckNummer, PersonenKennung and Index, and the same Land unless one side's is empty: this
    // object's for operator==, the other's for isEqual. 1 for equal, 0 for not.
    int operator==(const qbFormularL036& other) const;
    RWBoolean isEqual(const RWCollectable* other) const override;
};
