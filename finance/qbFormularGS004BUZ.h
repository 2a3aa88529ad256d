// qbFormularGS004BUZ, "Finanzielle Risikopruefung BU": the financial questions of the disability covers,
// one of the three forms that replaced qbFormularGS004. Stored on an RWFile only. IBU, EUZ, BUZ and PRZ
// have no accessors: they travel through the stream, XML and the conversion alone.
#pragma once

#include "finance/qbFormularGS004.h"

// HoeheAnwartschaft and bVersBUZ2 to bVersPRZ2 came with 03.2009, the Gewinn array with 12.2003. In XML
// both arrays stand last (see the .cpp).
#define QB_FELDER_qbFormularGS004BUZ(FELD)                                                                   \
    FELD(FlagEigen, IBU, .standard(0))                                                                       \
    FELD(FlagEigen, EUZ, .standard(0))                                                                       \
    FELD(FlagEigen, BUZ, .standard(0))                                                                       \
    FELD(FlagEigen, PRZ, .standard(0))                                                                       \
    FELD(Flag, LehreJN)                                                                                      \
    FELD(Text, Lehre)                                                                                        \
    FELD(Flag, FachausbildungJN)                                                                             \
    FELD(Text, Fachausbildung)                                                                               \
    FELD(Flag, MeisterbriefJN)                                                                               \
    FELD(Text, Meisterbrief)                                                                                 \
    FELD(Flag, StudiumJN)                                                                                    \
    FELD(Text, Studium)                                                                                      \
    FELD(Text, TaetigkeitsBeschreibung)                                                                      \
    FELD(Text, StellungImBetrieb)                                                                            \
    FELD(DoubleEigen, EinkommenInLetztenJahren_0, .xml("EinkommenInLetztenJahren[0]").xmlInDurchgaengen())   \
    FELD(DoubleEigen, EinkommenInLetztenJahren_1, .xml("EinkommenInLetztenJahren[1]").xmlInDurchgaengen())   \
    FELD(DoubleEigen, EinkommenInLetztenJahren_2, .xml("EinkommenInLetztenJahren[2]").xmlInDurchgaengen())   \
    FELD(Flag, keineAnsprueche, .standard(0))                                                                \
    FELD(Flag, Sozialversicherung, .standard(0))                                                             \
    FELD(Flag, berufsstaendischeVersorgung, .standard(0))                                                    \
    FELD(Flag, BeamtenVersorgung, .standard(0))                                                              \
    FELD(Flag, betrieblicheAltersversorgung, .standard(0))                                                   \
    FELD(Text, HoeheAnwartschaft, .liesAb(200903))                                                           \
    FELD(Flag, bVersBUZ)                                                                                     \
    FELD(Flag, bVersEUZ)                                                                                     \
    FELD(Flag, bVersPRZ)                                                                                     \
    FELD(Flag, bVersBUZBeantragt, .standard(0))                                                              \
    FELD(Flag, bVersEUZBeantragt, .standard(0))                                                              \
    FELD(Flag, bVersPRZBeantragt, .standard(0))                                                              \
    FELD(Text, bVersGesellschaft)                                                                            \
    FELD(Text, bVersRente)                                                                                   \
    FELD(Flag, bVersBUZ2, .liesAb(200903))                                                                   \
    FELD(Flag, bVersEUZ2, .liesAb(200903))                                                                   \
    FELD(Flag, bVersPRZ2, .liesAb(200903))                                                                   \
    FELD(Text, TaetigAls)                                                                                    \
    FELD(Text, SelbstaendigSeit)                                                                             \
    FELD(Flag, ExistenzgruenderJN)                                                                           \
    FELD(Text, UnternehmenSeit)                                                                              \
    FELD(Text, ProzentKaufmaennisch)                                                                         \
    FELD(Text, ProzentHandwerklich)                                                                          \
    FELD(Text, KaufmaennischVollzeit)                                                                        \
    FELD(Text, KaufmaennischTeilzeit)                                                                        \
    FELD(Text, HandwerklichVollzeit)                                                                         \
    FELD(Text, HandwerklichTeilzeit)                                                                         \
    FELD(DoubleEigen, GewinnInLetztenJahren_0,                                                               \
         .xml("GewinnInLetztenJahren[0]").liesAb(200312).xmlInDurchgaengen())                                \
    FELD(DoubleEigen, GewinnInLetztenJahren_1,                                                               \
         .xml("GewinnInLetztenJahren[1]").liesAb(200312).xmlInDurchgaengen())                                \
    FELD(DoubleEigen, GewinnInLetztenJahren_2,                                                               \
         .xml("GewinnInLetztenJahren[2]").liesAb(200312).xmlInDurchgaengen())

class qbFormularGS004BUZ : public qbFormular {
    QB_FORMULAR_NUR_DATEI(qbFormularGS004BUZ, qbFormular, QB_FELDER_qbFormularGS004BUZ)
    QB_REIHE(qbFormularGS004BUZ, Double, EinkommenInLetztenJahren, 3)
    QB_REIHE(qbFormularGS004BUZ, Double, GewinnInLetztenJahren, 3)

public:
    // The fields of the same name; the form's own header and the old form's person.
    qbFormularGS004BUZ(const qbFormularGS004& alt);
};
