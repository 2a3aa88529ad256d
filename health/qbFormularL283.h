// qbFormularL283, "Erklaerung Psychische Erkrankungen": the psychic illness declaration of 08.2008. One
// layout; the constructor names no person.
#pragma once

#include "health/qbErklaerung2008.h"
#include "health/qbFormularAllgGesu.h"

// AuftretenErstmalig is written under its name and read under the name written twice, so it never comes
// back from the form's own tree. GentestZeitpunkt and OperationGeplantZeitpunkt live in the object and in
// XML only: no record holds them. The own ArztAdresse, KrankenhausJN, KurJN and ArbeitsplatzwechselJN hide
// the common fields of the same names; both travel in the record.
#define QB_FELDER_qbFormularL283(FELD)                                                                       \
    FELD(Text, AuftretenErstmalig, .liesXml("AuftretenErstmalig AuftretenErstmalig"))                        \
    FELD(Flag, LeistungsminderungJN)                                                                         \
    FELD(Flag, SchlafstoerungenJN)                                                                           \
    FELD(Flag, StimmungsschwankungenJN)                                                                      \
    FELD(Flag, KopfschmerzenJN)                                                                              \
    FELD(Flag, SchwindelJN)                                                                                  \
    FELD(Flag, GewichtsveraenderungenJN)                                                                     \
    FELD(Flag, KoerperlBeschwerdenJN)                                                                        \
    FELD(Flag, AngstJN)                                                                                      \
    FELD(Flag, KonzentrationsstoerungenJN)                                                                   \
    FELD(Flag, DepressiveVerstimmungenJN)                                                                    \
    FELD(Flag, SonstigeErkrankung1JN)                                                                        \
    FELD(Text, SonstigeErkrankung1)                                                                          \
    FELD(Flag, SonstigeErkrankung2JN)                                                                        \
    FELD(Text, SonstigeErkrankung2)                                                                          \
    FELD(Flag, SonstigeErkrankung3JN)                                                                        \
    FELD(Text, SonstigeErkrankung3)                                                                          \
    FELD(Flag, SonstigeErkrankung4JN)                                                                        \
    FELD(Text, SonstigeErkrankung4)                                                                          \
    FELD(Flag, AnfaelleJN)                                                                                   \
    FELD(Text, AnfaelleBeschreibung)                                                                         \
    FELD(Text, Diagnose)                                                                                     \
    FELD(Text, ArztAdresse)                                                                                  \
    FELD(Text, Behandlungszeitraum)                                                                          \
    FELD(Flag, KrankenhausJN)                                                                                \
    FELD(Flag, KurJN)                                                                                        \
    FELD(Text, KlinikAnschrift)                                                                              \
    FELD(Text, KrankKurBeschreibung)                                                                         \
    FELD(Text, Untersuchung1Beschreibung)                                                                    \
    FELD(Text, Untersuchung2Beschreibung)                                                                    \
    FELD(Text, Untersuchung3Beschreibung)                                                                    \
    FELD(Flag, SelbsttoetungJN)                                                                              \
    FELD(Text, SelbsttoetungBeschreibung)                                                                    \
    FELD(Flag, AlkoholDrogenJN)                                                                              \
    FELD(Text, AlkoholDrogenBeschreibung)                                                                    \
    FELD(Flag, AlkoholKonsumJN)                                                                              \
    FELD(Text, AlkoholKonsumBeschreibung)                                                                    \
    FELD(Flag, RauchenJN)                                                                                    \
    FELD(Text, RauchenBeschreibung)                                                                          \
    FELD(Text, MedikamenteBeschreibung)                                                                      \
    FELD(Flag, PsychotherapieJN)                                                                             \
    FELD(Text, PsychotherapieBeschreibung)                                                                   \
    FELD(Flag, SonstigeBehandlung1JN)                                                                        \
    FELD(Text, SonstigeBehandlung1)                                                                          \
    FELD(Text, SonstigeBehandlung1Beschreibung)                                                              \
    FELD(Flag, SonstigeBehandlung2JN)                                                                        \
    FELD(Text, SonstigeBehandlung2)                                                                          \
    FELD(Text, SonstigeBehandlung2Beschreibung)                                                              \
    FELD(Flag, AktBeschwerdefreiJN)                                                                          \
    FELD(Text, AktBeschwerdefreiZeitpunkt)                                                                   \
    FELD(Text, AktBeschwerdenBeschreibung)                                                                   \
    FELD(Flag, RehaGeplantJN)                                                                                \
    FELD(Text, RehaGeplantZeitpunkt)                                                                         \
    FELD(Text, RehaGeplantArt)                                                                               \
    FELD(Text, MedikamentenEinnahmeArt)                                                                      \
    FELD(Flag, HerzKreislaufJN)                                                                              \
    FELD(Text, HerzkreislaufZeitpunkt)                                                                       \
    FELD(Flag, MagenDarmJN)                                                                                  \
    FELD(Text, MagenDarmZeitpunkt)                                                                           \
    FELD(Flag, WirbelsaeulenJN)                                                                              \
    FELD(Text, WirbelsaeulenZeitpunkt)                                                                       \
    FELD(Text, SonstigeBeschwerden1)                                                                         \
    FELD(Flag, SonstigeBeschwerden1JN)                                                                       \
    FELD(Text, SonstigeBeschwerden1Zeitpunkt)                                                                \
    FELD(Text, SonstigeBeschwerden2)                                                                         \
    FELD(Flag, SonstigeBeschwerden2JN)                                                                       \
    FELD(Text, SonstigeBeschwerden2Zeitpunkt)                                                                \
    FELD(Text, WeitereArztAdresse)                                                                           \
    FELD(Text, WeitererArztErkrankung)                                                                       \
    FELD(Text, WeitererArztZeitraum)                                                                         \
    QB_FELDER_ERKLAERUNG_2008_SCHLUSS(FELD)                                                                  \
    FELD(Text, GentestZeitpunkt, .ohneStrom())                                                               \
    FELD(Text, OperationGeplantZeitpunkt, .ohneStrom())

class qbFormularL283 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL283, qbFormularAllgGesu, QB_FELDER_qbFormularL283)
};
