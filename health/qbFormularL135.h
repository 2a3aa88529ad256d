// qbFormularL135, "Erklaerung Hautkrankheit": the skin declaration. Its constructor leaves the person empty.
#pragma once

#include "health/qbFormularAllgGesu.h"

// Read from every record in this order, whatever its version. BoesartigeGeschwulstJN is read from XML under
// a key with a semicolon that its writer never uses.
// The size counts the fixed parts of the own fields one byte short; it stays so.
#define QB_FELDER_qbFormularL135(FELD)                                                                       \
    FELD(Text, BeschwerdeBezeichnung, .groesseAbweichend(-1))                                                \
    FELD(Text, BeschwerdeZeitraum)                                                                           \
    FELD(Text, KoerperteileBeschreibung)                                                                     \
    FELD(Text, SonstigeUrsachenBeschreibung)                                                                 \
    FELD(Text, BeschwerdeFreiZeitpunkt)                                                                      \
    FELD(Text, FolgenKrankheiten)                                                                            \
    FELD(Text, BehandlerNameAnschrift)                                                                       \
    FELD(Flag, GesichtHaendeJN)                                                                              \
    FELD(Flag, GanzerKoerperJN)                                                                              \
    FELD(Flag, EinzelneKoerperteileJN)                                                                       \
    FELD(Flag, AuftretenEinmaligJN)                                                                          \
    FELD(Flag, AuftretenSchubweiseJN)                                                                        \
    FELD(Flag, AuftretenGanzjaehrigJN)                                                                       \
    FELD(Flag, UrsacheUnbekanntJN)                                                                           \
    FELD(Flag, StoerungImmunsystemJN)                                                                        \
    FELD(Flag, PilzerkrankungJN)                                                                             \
    FELD(Flag, AllergischeUrsacheJN)                                                                         \
    FELD(Flag, BakterienVirenInfektionJN)                                                                    \
    FELD(Flag, GutartigeGeschwulstJN)                                                                        \
    FELD(Flag, BoesartigeGeschwulstJN, .liesXml("BoesartigeGeschwulstJN;"))                                  \
    FELD(Flag, AngeboreneErkrankungJN)                                                                       \
    FELD(Flag, SonstigeUrsachenJN)                                                                           \
    FELD(Flag, FolgenJN)                                                                                     \
    FELD(Text, ArztNameAdresseRegelm)                                                                        \
    FELD(Text, AerztlicheBehandlungZuletzt)                                                                  \
    FELD(Text, OperationZeitpunktArt)                                                                        \
    FELD(Text, KuraufenthaltZeitpunktOrt)                                                                    \
    FELD(Text, MedikamenteName)                                                                              \
    FELD(Text, AntiallergikumName)                                                                           \
    FELD(Text, SalbenName)                                                                                   \
    FELD(Text, SonstigeBehandlungBeschreibung)                                                               \
    FELD(Flag, AerztlicheBehandlungJaehrlich)                                                                \
    FELD(Flag, AerztlicheBehandlungJN)                                                                       \
    FELD(Flag, BehandlungJN)                                                                                 \
    FELD(Flag, BestrahlungJN)                                                                                \
    FELD(Flag, DesensibilisierungJN)                                                                         \
    FELD(Flag, OperationJN)                                                                                  \
    FELD(Flag, KuraufenthaltJN)                                                                              \
    FELD(Flag, MedikamenteJN)                                                                                \
    FELD(Flag, AntiallergikumJN)                                                                             \
    FELD(Flag, SalbenJN)                                                                                     \
    FELD(Flag, SonstigeBehandlungJN)                                                                         \
    FELD(Text, BUBeschreibung)                                                                               \
    FELD(Text, ArbeitsplatzwechselBeruf)                                                                     \
    FELD(Text, SonstigerArztBezeichnung)                                                                     \
    FELD(Text, ArztNameAdresse)                                                                              \
    FELD(Flag, ZusaetzlicheAngabenAnzahl, .standard(0))                                                      \
    FELD(Flag, BUJN)                                                                                         \
    FELD(Flag, ArbeitsplatzwechselJN)                                                                        \
    FELD(Flag, HausarztJN)                                                                                   \
    FELD(Flag, HautarztJN)                                                                                   \
    FELD(Flag, AllergologeJN)                                                                                \
    FELD(Flag, SonstigerArztJN)                                                                              \
    FELD(Flag, ZusaetzlicheAngabenJN)                                                                        \
    FELD(Flag, AngabenVollstaendigJN)                                                                        \
    FELD(Flag, ZusaetzlicheAngabenfolgenJN)

class qbFormularL135 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL135, qbFormularAllgGesu, QB_FELDER_qbFormularL135)
};
