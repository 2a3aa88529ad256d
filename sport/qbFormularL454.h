// qbFormularL454, "Erklaerung Sportarten allgemein": the declaration on any other sport: status, frequency,
// places, competitions, records, equipment tests, company and injuries. One layout for every stored version;
// its XML keeps an order of its own (see the .cpp).
#pragma once

#include "core/qbFormularMakros.h"

// The four Int setters take a const int&.
#define QB_FELDER_qbFormularL454(FELD)                                                                       \
    FELD(Text, SportartBeginn)                                                                               \
    FELD(Flag, AmateurJN)                                                                                    \
    FELD(Flag, ProfiJN)                                                                                      \
    FELD(Flag, SemiprofiJN)                                                                                  \
    FELD(Flag, TrainerJN)                                                                                    \
    FELD(IntKonstRef, SportanteilProzent)                                                                    \
    FELD(IntKonstRef, BerufsanteilProzent)                                                                   \
    FELD(Flag, LizenzAusbildungJN)                                                                           \
    FELD(Text, LizenzAusbildungBeschreibung)                                                                 \
    FELD(Flag, EinZweiJahrJN)                                                                                \
    FELD(Flag, EinZweiWocheJN)                                                                               \
    FELD(Flag, EinZweiMonatJN)                                                                               \
    FELD(Flag, DreiWocheJN)                                                                                  \
    FELD(Flag, AndereZeitenJN)                                                                               \
    FELD(Flag, DeutschlandJN)                                                                                \
    FELD(Flag, EuropaJN)                                                                                     \
    FELD(Text, EuropaLaender)                                                                                \
    FELD(Flag, WeltweitJN)                                                                                   \
    FELD(Text, WeltweitLaender)                                                                              \
    FELD(Flag, HalleJN)                                                                                      \
    FELD(Flag, SportplatzJN)                                                                                 \
    FELD(Flag, SonstigeOrteJN)                                                                               \
    FELD(Text, SonstigeOrteBezeichnung)                                                                      \
    FELD(Flag, WettbewerbeJN)                                                                                \
    FELD(Text, WettbewerbeBeschreibung)                                                                      \
    FELD(IntKonstRef, WettbewerbeAnzahlLetztes)                                                              \
    FELD(IntKonstRef, WettbewerbeAnzahlVorletztes)                                                           \
    FELD(Flag, RekordversucheJN)                                                                             \
    FELD(Text, RekordversucheBeschreibung)                                                                   \
    FELD(Flag, AusruestungTestJN)                                                                            \
    FELD(Text, AusruestungTestBeschreibung)                                                                  \
    FELD(Text, AusruestungTestAuftraggeber)                                                                  \
    FELD(Flag, SportAlleineJN)                                                                               \
    FELD(Flag, SportPaarweiseJN)                                                                             \
    FELD(Flag, SportMannschaftJN)                                                                            \
    FELD(Flag, SportSonstigesJN)                                                                             \
    FELD(Text, SportSonstigesBeschreibung)                                                                   \
    FELD(Flag, OeffentlicheVeranstJN)                                                                        \
    FELD(Flag, FreizeitUrlaubJN)                                                                             \
    FELD(Flag, ImVereinJN)                                                                                   \
    FELD(Flag, SonstigesUmfeldJN)                                                                            \
    FELD(Text, SonstigesUmfeldBeschreibung)                                                                  \
    FELD(Flag, SicherheitsvorkehrungJN)                                                                      \
    FELD(Text, SicherheitsvorkehrungBeschreibung)                                                            \
    FELD(Flag, SportverletzungJN)                                                                            \
    FELD(Text, SportverletzungBeschreibung)                                                                  \
    FELD(Text, SportverletzungZeitpunkt)                                                                     \
    FELD(Text, SportverletzungFolgen)                                                                        \
    FELD(Text, SportverletzungArztAdresse)

class qbFormularL454 : public qbFormular {
    QB_FORMULAR(qbFormularL454, qbFormular, QB_FELDER_qbFormularL454)
};
