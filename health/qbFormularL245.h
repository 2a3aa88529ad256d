// qbFormularL245, "Erklaerung Schilddruese": the thyroid declaration of 08.2008. One layout; the
// constructor names no person.
#pragma once

#include "health/qbErklaerung2008.h"
#include "health/qbFormularAllgGesu.h"

// AuftretenErstmalig goes into XML under its name written twice. The own ArztAdresse, KrankenhausJN, KurJN
// and ArbeitsplatzwechselJN hide the common fields of the same names; both travel in the record.
#define QB_FELDER_qbFormularL245(FELD)                                                                       \
    FELD(Text, AuftretenErstmalig, .xml("AuftretenErstmalig AuftretenErstmalig"))                            \
    FELD(Flag, AtemnotJN)                                                                                    \
    FELD(Flag, HeiserkeitJN)                                                                                 \
    FELD(Flag, AugenbeschwerdenJN)                                                                           \
    FELD(Flag, UnruheJN)                                                                                     \
    FELD(Flag, BasedowJN)                                                                                    \
    FELD(Flag, HerzklopfenJN)                                                                                \
    FELD(Flag, UeberfunktionJN)                                                                              \
    FELD(Flag, UnterfunktionJN)                                                                              \
    FELD(Flag, VergroesserungJN)                                                                             \
    FELD(Flag, HashimotoJN)                                                                                  \
    FELD(Flag, KarzinomJN)                                                                                   \
    FELD(Flag, KalterKnotenJN)                                                                               \
    FELD(Flag, HeisserKnotenJN)                                                                              \
    FELD(Flag, SonstigeErkrankung1JN)                                                                        \
    FELD(Text, SonstigeErkrankung1)                                                                          \
    FELD(Flag, SonstigeErkrankung2JN)                                                                        \
    FELD(Text, SonstigeErkrankung2)                                                                          \
    FELD(Text, Diagnose)                                                                                     \
    FELD(Text, ArztAdresse)                                                                                  \
    FELD(Text, Behandlungszeitraum)                                                                          \
    FELD(Flag, KrankenhausJN)                                                                                \
    FELD(Flag, KurJN)                                                                                        \
    FELD(Text, KlinikAnschrift)                                                                              \
    FELD(Text, KrankKurBeschreibung)                                                                         \
    FELD(Flag, BlutuntersuchungJN)                                                                           \
    FELD(Text, BlutuntersuchungBeschreibung)                                                                 \
    FELD(Flag, UltraschallJN)                                                                                \
    FELD(Text, UltraschallBeschreibung)                                                                      \
    FELD(Flag, SzintigraphieJN)                                                                              \
    FELD(Text, SzintigraphieBeschreibung)                                                                    \
    FELD(Flag, SonstigeUntersuchung1JN)                                                                      \
    FELD(Text, SonstigeUntersuchung1)                                                                        \
    FELD(Text, SonstigeUntersuchung1Beschreibung)                                                            \
    FELD(Flag, SonstigeUntersuchung2JN)                                                                      \
    FELD(Text, SonstigeUntersuchung2)                                                                        \
    FELD(Text, SonstigeUntersuchung2Beschreibung)                                                            \
    FELD(Text, MedikamenteBeschreibung)                                                                      \
    FELD(Flag, OperationJN)                                                                                  \
    FELD(Text, OperationBeschreibung)                                                                        \
    FELD(Flag, GutartigJN)                                                                                   \
    FELD(Flag, BestrahlungJN)                                                                                \
    FELD(Text, BestrahlungBeschreibung)                                                                      \
    FELD(Flag, SonstigeBehandlung1JN)                                                                        \
    FELD(Text, SonstigeBehandlung1)                                                                          \
    FELD(Flag, SonstigeBehandlung2JN)                                                                        \
    FELD(Text, SonstigeBehandlung2)                                                                          \
    FELD(Flag, KontrolleJN)                                                                                  \
    FELD(Text, KontrolleBeschreibung)                                                                        \
    FELD(Flag, AktBeschwerdefreiJN)                                                                          \
    FELD(Text, AktBeschwerdefreiZeitpunkt)                                                                   \
    FELD(Text, AktBeschwerdenBeschreibung)                                                                   \
    FELD(Flag, NormWerteJN)                                                                                  \
    FELD(Text, NormWerteBeschreibung)                                                                        \
    FELD(Flag, OperationGeplantJN)                                                                           \
    FELD(Text, OperationGeplantZeitpunkt)                                                                    \
    FELD(Text, OperationGeplantArt)                                                                          \
    FELD(Text, MedikamentenEinnahmeArt)                                                                      \
    FELD(Flag, HerzKreislaufJN)                                                                              \
    FELD(Text, HerzkreislaufZeitpunkt)                                                                       \
    FELD(Flag, StoffwechselJN)                                                                               \
    FELD(Text, StoffwechselZeitpunkt)                                                                        \
    FELD(Flag, HypertonieJN)                                                                                 \
    FELD(Text, HypertonieZeitpunkt)                                                                          \
    FELD(Flag, PsychischJN)                                                                                  \
    FELD(Text, PsychischZeitpunkt)                                                                           \
    FELD(Flag, DruesenJN)                                                                                    \
    FELD(Text, DruesenZeitpunkt)                                                                             \
    FELD(Text, SonstigeBeschwerden1)                                                                         \
    FELD(Flag, SonstigeBeschwerden1JN)                                                                       \
    FELD(Text, SonstigeBeschwerden1Zeitpunkt)                                                                \
    FELD(Text, SonstigeBeschwerden2)                                                                         \
    FELD(Flag, SonstigeBeschwerden2JN)                                                                       \
    FELD(Text, SonstigeBeschwerden2Zeitpunkt)                                                                \
    FELD(Text, WeitereArztAdresse)                                                                           \
    FELD(Text, WeitererArztZeitraum)                                                                         \
    FELD(Text, WeitererArztErkrankung)                                                                       \
    QB_FELDER_ERKLAERUNG_2008_SCHLUSS(FELD)

class qbFormularL245 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL245, qbFormularAllgGesu, QB_FELDER_qbFormularL245)
};
