// qbFormularL244, "Erklaerung Thrombose": the thrombosis declaration of 08.2008. One layout; the
// constructor names no person.
#pragma once

#include "health/qbErklaerung2008.h"
#include "health/qbFormularAllgGesu.h"

// A key with a trailing blank is stored data. GentestZeitpunkt is written with the blank and read without
// it, so it never comes back from the form's own tree. The own ArztAdresse, KrankenhausJN, KurJN and
// ArbeitsplatzwechselJN hide the common fields of the same names; both travel in the record. The size has
// always counted 244 fixed bytes for the own fields, 17 more than the 227 they take.
#define QB_FELDER_qbFormularL244(FELD)                                                                       \
    FELD(Text, AuftretenErstmalig, .groesseAbweichend(17))                                                   \
    FELD(Flag, ThromboseJN)                                                                                  \
    FELD(Flag, KrampfadernJN)                                                                                \
    FELD(Flag, EmbolieJN)                                                                                    \
    FELD(Flag, BesenreiserJN)                                                                                \
    FELD(Flag, PostthromSyndromJN)                                                                           \
    FELD(Flag, GeschwuereJN)                                                                                 \
    FELD(Flag, VenenentzuendungJN)                                                                           \
    FELD(Flag, SonstigeErkrankung1JN, .xml("SonstigeErkrankung1JN "))                                        \
    FELD(Text, SonstigeErkrankung1)                                                                          \
    FELD(Flag, SonstigeErkrankung2JN)                                                                        \
    FELD(Text, SonstigeErkrankung2)                                                                          \
    FELD(Flag, SonstigeErkrankung3JN)                                                                        \
    FELD(Text, SonstigeErkrankung3)                                                                          \
    FELD(Flag, SonstigeErkrankung4JN, .xml("SonstigeErkrankung4JN "))                                        \
    FELD(Text, SonstigeErkrankung4)                                                                          \
    FELD(Flag, SonstigeErkrankung5JN, .xml("SonstigeErkrankung5JN "))                                        \
    FELD(Text, SonstigeErkrankung5)                                                                          \
    FELD(Text, Koerperteile, .xml("Koerperteile "))                                                          \
    FELD(Flag, KoerperteileRechtsJN)                                                                         \
    FELD(Flag, KoerperteileLinksJN)                                                                          \
    FELD(Flag, KoerperteileBeideJN)                                                                          \
    FELD(Text, Diagnose)                                                                                     \
    FELD(Text, ArztName)                                                                                     \
    FELD(Text, ArztAdresse)                                                                                  \
    FELD(Text, Behandlungszeitraum)                                                                          \
    FELD(Flag, KrankenhausJN)                                                                                \
    FELD(Flag, KurJN)                                                                                        \
    FELD(Text, KrankKurBeschreibung)                                                                         \
    FELD(Flag, GrunderkrankungJN, .xml("GrunderkrankungJN "))                                                \
    FELD(Text, GrunderkrankungBeschreibung, .xml("GrunderkrankungBeschreibung "))                            \
    FELD(Flag, FamilienKrankheitJN)                                                                          \
    FELD(Text, FamilienKrankheitBeschreibung)                                                                \
    FELD(Flag, GerinnungsstoerungJN)                                                                         \
    FELD(Text, GerinnungsstoerungBeschreibung)                                                               \
    FELD(Flag, GentestJN)                                                                                    \
    FELD(Text, GentestZeitpunkt, .xml("GentestZeitpunkt ").liesXml("GentestZeitpunkt"))                      \
    FELD(Text, WeitereUntersuchungen)                                                                        \
    FELD(Flag, RauchenJN)                                                                                    \
    FELD(Text, RauchenBeschreibung)                                                                          \
    FELD(Text, MedikamenteBeschreibung, .xml("MedikamenteBeschreibung "))                                    \
    FELD(Flag, OperationJN)                                                                                  \
    FELD(Text, OperationBeschreibung)                                                                        \
    FELD(Flag, VeroedungJN)                                                                                  \
    FELD(Text, VeroedungBeschreibung, .xml("VeroedungBeschreibung "))                                        \
    FELD(Flag, KompressionJN)                                                                                \
    FELD(Text, KompressionBeschreibung)                                                                      \
    FELD(Flag, LymphdrainageJN)                                                                              \
    FELD(Text, LymphdrainageBeschreibung, .xml("LymphdrainageBeschreibung "))                                \
    FELD(Flag, SonstigeBehandlungJN)                                                                         \
    FELD(Text, SonstigeBehandlungBeschreibung)                                                               \
    FELD(Flag, AktBeschwerdefreiJN)                                                                          \
    FELD(Text, AktBeschwerdefreiZeitpunkt)                                                                   \
    FELD(Text, AktBeschwerdenBeschreibung)                                                                   \
    FELD(Flag, OperationGeplantJN)                                                                           \
    FELD(Text, OperationGeplantZeitpunkt)                                                                    \
    FELD(Text, OperationGeplantArt)                                                                          \
    FELD(Text, MedikamentenEinnahmeArt)                                                                      \
    FELD(Flag, HerzKreislaufJN)                                                                              \
    FELD(Text, HerzkreislaufZeitpunkt)                                                                       \
    FELD(Flag, NierenJN)                                                                                     \
    FELD(Text, NierenZeitpunkt)                                                                              \
    FELD(Flag, LipoedemJN, .xml("LipoedemJN "))                                                              \
    FELD(Text, LipoedemZeitpunkt)                                                                            \
    FELD(Flag, DiabetesJN)                                                                                   \
    FELD(Text, DiabetesZeitpunkt)                                                                            \
    FELD(Flag, GefaessJN)                                                                                    \
    FELD(Text, GefaessZeitpunkt)                                                                             \
    FELD(Flag, LungenJN, .xml("LungenJN "))                                                                  \
    FELD(Text, LungenZeitpunkt)                                                                              \
    FELD(Text, SonstigeBeschwerden1)                                                                         \
    FELD(Flag, SonstigeBeschwerden1JN, .xml("SonstigeBeschwerden1JN "))                                      \
    FELD(Text, SonstigeBeschwerden1Zeitpunkt)                                                                \
    FELD(Text, SonstigeBeschwerden2)                                                                         \
    FELD(Flag, SonstigeBeschwerden2JN)                                                                       \
    FELD(Text, SonstigeBeschwerden2Zeitpunkt)                                                                \
    FELD(Text, WeitereArztAdresse)                                                                           \
    FELD(Text, WeitererArztZeitraum)                                                                         \
    FELD(Text, WeitererArztErkrankung, .xml("WeitererArztErkrankung "))                                      \
    QB_FELDER_ERKLAERUNG_2008_SCHLUSS(FELD)

class qbFormularL244 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL244, qbFormularAllgGesu, QB_FELDER_qbFormularL244)
};
