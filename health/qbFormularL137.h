// qbFormularL137, "Erklaerung Kopfschmerzen": the headache declaration. Its constructor leaves the person
// empty.
#pragma once

#include "health/qbFormularAllgGesu.h"

// Read from every record in this order, whatever its version. Three XML keys end in an equals sign.
// The size counts the fixed parts of the own fields one byte short; it stays so.
#define QB_FELDER_qbFormularL137(FELD)                                                                       \
    FELD(Text, BeschreibungAllg, .groesseAbweichend(-1))                                                     \
    FELD(Flag, ArbeitsunfaehigJN)                                                                            \
    FELD(Text, ArbeitsunfaehigBeschreibung)                                                                  \
    FELD(Flag, Migraene)                                                                                     \
    FELD(Flag, Spannungskopfschmerz)                                                                         \
    FELD(Flag, BingHortenKopfschmerz)                                                                        \
    FELD(Flag, ClusterKopfschmerz)                                                                           \
    FELD(Flag, SonstigeDiagnose)                                                                             \
    FELD(Text, SonstigeDiagnoseBeschreibung)                                                                 \
    FELD(Text, ArztName, .xml("ArztName="))                                                                  \
    FELD(Text, ArztAdresse)                                                                                  \
    FELD(Flag, KrankenhausJN)                                                                                \
    FELD(Flag, KurJN)                                                                                        \
    FELD(Text, KlinikAnschrift, .xml("KlinikAnschrift="))                                                    \
    FELD(Text, KrankKurBeschreibung)                                                                         \
    FELD(Flag, UebelkeitErbrechen)                                                                           \
    FELD(Flag, AuraJa)                                                                                       \
    FELD(Flag, SehstoerungenJa)                                                                              \
    FELD(Flag, SprachstoerungenJa)                                                                           \
    FELD(Flag, TaubheitsgefuehlJa)                                                                           \
    FELD(Flag, LaehmungenJa)                                                                                 \
    FELD(Flag, KribbelnJa)                                                                                   \
    FELD(Flag, SonstigeBegleiterschJa)                                                                       \
    FELD(Text, SonstigeBegleiterschBeschreibung)                                                             \
    FELD(Text, BegleiterschSymptome)                                                                         \
    FELD(Flag, PhysiotherapieJa)                                                                             \
    FELD(Flag, AkupunkturJa)                                                                                 \
    FELD(Flag, MedikamenteJa)                                                                                \
    FELD(Flag, SonstigeBehandlungJa)                                                                         \
    FELD(Text, SonstigeBehandlungBeschreibung, .xml("SonstigeBehandlungBeschreibung="))                      \
    FELD(Text, MedikamenteBeschreibung)                                                                      \
    FELD(Text, MediakamenteHaeufigkeit)                                                                      \
    FELD(Flag, AnzahlproMonat, .standard(0))                                                                 \
    FELD(Flag, Schmerzdauer, .standard(0))                                                                   \
    FELD(Text, LetztmaligesAuftreten)                                                                        \
    FELD(Flag, AndereErkrankungJN)                                                                           \
    FELD(Text, AndereErkrankungZeitpunkt)                                                                    \
    FELD(Text, AndereErkrankungArt)                                                                          \
    FELD(Flag, NeurologischJa)                                                                               \
    FELD(Flag, NeuritisJa)                                                                                   \
    FELD(Flag, PsychischJa)                                                                                  \
    FELD(Flag, HerzKreislaufJa)                                                                              \
    FELD(Flag, SchaedelHirnJa)                                                                               \
    FELD(Flag, HWSJa)                                                                                        \
    FELD(Flag, SonstigeErkrankungenJa)                                                                       \
    FELD(Text, SonstigeErkankungenBeschreibung)                                                              \
    FELD(Text, ErkrankungZeitpunkt)                                                                          \
    FELD(Text, WeitererArztName)                                                                             \
    FELD(Text, WeitereArztAdresse)                                                                           \
    FELD(Text, WeitererArztErkrankung)                                                                       \
    FELD(Text, WeitererArztZeitraum)                                                                         \
    FELD(Text, WeitereMedikamente)                                                                           \
    FELD(Flag, BUJN)                                                                                         \
    FELD(Text, BUBeschreibung)                                                                               \
    FELD(Text, BUErkrankung)                                                                                 \
    FELD(Flag, ArbeitsplatzwechselJN)                                                                        \
    FELD(Text, ArbeitsplatzwechselZeitpunkt)                                                                 \
    FELD(Text, ArbeitsplatzwechselGrund)

class qbFormularL137 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL137, qbFormularAllgGesu, QB_FELDER_qbFormularL137)
};
