// qbFormularL139, "Erklaerung Ohren": the ear declaration. Its constructor leaves the person empty.
#pragma once

#include "health/qbFormularAllgGesu.h"

// ArztName came with 08.2008 (on RWFile; the virtual stream reads it otherwise, see the .cpp). The XML
// keys of ArztName and ArztAdresse are "ArztAdresse1" and "ArztAdresse2".
#define QB_FELDER_qbFormularL139(FELD)                                                                       \
    FELD(Text, Diagnose)                                                                                     \
    FELD(Flag, ErkrankungLinks)                                                                              \
    FELD(Flag, ErkrankungRechts)                                                                             \
    FELD(Flag, ErkrankungBeide)                                                                              \
    FELD(Flag, ErkrankungAngeboren)                                                                          \
    FELD(Flag, ErkrankungUnfallbedingt)                                                                      \
    FELD(Flag, ErkrankungUnbekannt)                                                                          \
    FELD(Flag, ErkrankungFolge)                                                                              \
    FELD(Text, ErkrankungFolgeBeschreibung)                                                                  \
    FELD(Flag, AuftretenEinmalig)                                                                            \
    FELD(Text, AuftretenEinmaligSeit)                                                                        \
    FELD(Flag, AuftretenMehrfach)                                                                            \
    FELD(Text, AuftretenErstmalig)                                                                           \
    FELD(Text, AuftretenHaeufig)                                                                             \
    FELD(Text, AuftretenLaenge)                                                                              \
    FELD(Text, AuftretenZuletzt)                                                                             \
    FELD(Flag, AuftretenFortwaehrend)                                                                        \
    FELD(Text, AuftretenFortwaehrendSeit)                                                                    \
    FELD(Flag, FolgenNein)                                                                                   \
    FELD(Text, BeschwerdefreiSeit)                                                                           \
    FELD(Flag, FolgenJa)                                                                                     \
    FELD(Text, BeschwerdenSeit)                                                                              \
    FELD(Flag, HoerminderungJa)                                                                              \
    FELD(Flag, SchwindelJa)                                                                                  \
    FELD(Flag, TinnitusMaskJa)                                                                               \
    FELD(Flag, AugenzitternJa)                                                                               \
    FELD(Flag, SonstigeJa)                                                                                   \
    FELD(TextKopie, SonstigeBeschreibung)                                                                    \
    FELD(Flag, FacharztJN)                                                                                   \
    FELD(Text, FacharztZeitraum)                                                                             \
    FELD(Text, FacharztZuletzt)                                                                              \
    FELD(Text, ArztName, .xml("ArztAdresse1").liesAb(200808))                                                \
    FELD(Text, ArztAdresse, .xml("ArztAdresse2"))                                                            \
    FELD(Flag, BehandlungNein)                                                                               \
    FELD(Flag, BehandlungMedikamenteJa)                                                                      \
    FELD(Text, BehandlungMedikamenteArt)                                                                     \
    FELD(Flag, InfusionstherapieJa)                                                                          \
    FELD(Text, InfusionZeitraum)                                                                             \
    FELD(Flag, HoergeraetJa, .xml("HoergeraetJ"))                                                            \
    FELD(Flag, HoergeraetLinksJa)                                                                            \
    FELD(Flag, HoergeraetRechtsJa)                                                                           \
    FELD(Flag, TinnitusJa)                                                                                   \
    FELD(Flag, TinnitusLinksJa)                                                                              \
    FELD(Flag, TinnitusRechtsJa, .xml("TinnitusRechtsJa="))                                                  \
    FELD(Flag, OperationJa)                                                                                  \
    FELD(Text, OperationArt)                                                                                 \
    FELD(Text, OperationZeitpunkt)                                                                           \
    FELD(Flag, UntersuchungNein)                                                                             \
    FELD(Flag, UntersuchungJa)                                                                               \
    FELD(Text, UntersuchungZeitpunkt)                                                                        \
    FELD(Text, UntersuchungErgebnis)                                                                         \
    FELD(Flag, UntersuchungGleichgJa)                                                                        \
    FELD(Text, UntersuchungGleichgewZeitpunkt)                                                               \
    FELD(Text, UntersuchungGleichgewErgebnis)                                                                \
    FELD(Flag, OhrspiegelungJa)                                                                              \
    FELD(Text, OhrspiegelungZeitpunkt)                                                                       \
    FELD(Text, OhrspiegelungErgebnis)                                                                        \
    FELD(Flag, RoentgenJa)                                                                                   \
    FELD(Text, RoentgenZeitpunkt)                                                                            \
    FELD(Text, Roentgenergebnis)                                                                             \
    FELD(Flag, TomografieJa)                                                                                 \
    FELD(Text, TomografieZeitpunkt)                                                                          \
    FELD(Text, TomografieErgebnis)                                                                           \
    FELD(Flag, ArbeitsunfaehigJN)                                                                            \
    FELD(Text, DatumArbeitsunfaehig)                                                                         \
    FELD(Text, ErkrankungArbeitsunfaehig)                                                                    \
    FELD(Flag, ArbeitsplatzwechselJN)                                                                        \
    FELD(Text, DatumArbeitsplatzwechsel)

class qbFormularL139 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL139, qbFormularAllgGesu, QB_FELDER_qbFormularL139)
};
