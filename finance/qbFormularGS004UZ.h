// qbFormularGS004UZ, "Finanzielle Risikopruefung UZ": the financial questions of the accident cover, one
// of the three forms that replaced qbFormularGS004. Stored on an RWFile only. UZ has no accessors: it
// travels through the stream, XML and the conversion alone.
#pragma once

#include "finance/qbFormularGS004.h"

// Each sport's name stands ahead of its three flags, unlike in qbFormularGS004.
#define QB_FELDER_qbFormularGS004UZ(FELD)                                                                    \
    FELD(FlagEigen, UZ, .standard(0))                                                                        \
    FELD(Text, ZweckUZ)                                                                                      \
    FELD(Text, sonstigeZweckeUZ)                                                                             \
    FELD(Text, VerpflichtungenBeiUnfallTodArt)                                                               \
    FELD(Double, VerpflichtungenBeiUnfallTodHoehe)                                                           \
    FELD(Double, Nettoeinkommen)                                                                             \
    FELD(Double, weitereEinkommen)                                                                           \
    FELD(Text, GesellschaftUZ)                                                                               \
    FELD(Text, UZseit)                                                                                       \
    FELD(Long, UZSumme)                                                                                      \
    FELD(Text, GesellschaftLVUZ)                                                                             \
    FELD(Text, LVUZseit)                                                                                     \
    FELD(Long, LVUZSumme)                                                                                    \
    FELD(Text, GesellschaftBeantragteVers)                                                                   \
    FELD(Long, BeantragteVersSumme)                                                                          \
    FELD(Flag, SportJN)                                                                                      \
    FELD(Text, SportArt1)                                                                                    \
    FELD(Flag, Sport1Profi, .standard(0))                                                                    \
    FELD(Flag, Sport1Amat, .standard(0))                                                                     \
    FELD(Flag, Sport1Freizeit, .standard(0))                                                                 \
    FELD(Text, SportArt2)                                                                                    \
    FELD(Flag, Sport2Profi, .standard(0))                                                                    \
    FELD(Flag, Sport2Amat, .standard(0))                                                                     \
    FELD(Flag, Sport2Freizeit, .standard(0))                                                                 \
    FELD(Text, SportArt3)                                                                                    \
    FELD(Flag, Sport3Profi, .standard(0))                                                                    \
    FELD(Flag, Sport3Amat, .standard(0))                                                                     \
    FELD(Flag, Sport3Freizeit, .standard(0))                                                                 \
    FELD(Text, ArtWettkampf)                                                                                 \
    FELD(Flag, GefahrJN)                                                                                     \
    FELD(Text, Gefahr)

class qbFormularGS004UZ : public qbFormular {
    QB_FORMULAR_NUR_DATEI(qbFormularGS004UZ, qbFormular, QB_FELDER_qbFormularGS004UZ)

    // The fields of the same name; the form's own header and the old form's person.
    qbFormularGS004UZ(const qbFormularGS004& alt);
};
