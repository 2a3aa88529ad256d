// qbFormularL282, "Erklaerung Augenkrankheiten": the eye diseases declaration. One layout since 10.2002;
// the constructor names no person.
#pragma once

#include "health/qbFormularAllgGesu.h"

// The Flags of the examinations and treatments start at 0, those of the other questions unanswered. The
// constructor gives the four Ints no value; they start at 0 here. Infektion goes into XML and is never read
// back from it, while InfektionJN is.
#define QB_FELDER_qbFormularL282(FELD)                                                                       \
    FELD(Text, Sehstoerungen)                                                                                \
    FELD(Text, Augenerkrankungen)                                                                            \
    FELD(Text, Ursache)                                                                                      \
    FELD(Text, WeitereUrsache)                                                                               \
    FELD(Text, Koerperseiten)                                                                                \
    FELD(Flag, SehminderungJN)                                                                               \
    FELD(Int, SehminderungRechts)                                                                            \
    FELD(Int, SehminderungLinks)                                                                             \
    FELD(Text, Diagnose)                                                                                     \
    FELD(Flag, SehschaerfeJN, .standard(0))                                                                  \
    FELD(Text, SehschaerfeOhneKorrekturRechts)                                                               \
    FELD(Text, SehschaerfeOhneKorrekturLinks)                                                                \
    FELD(Text, SehschaerfeMitKorrekturRechts)                                                                \
    FELD(Text, SehschaerfeMitKorrekturLinks)                                                                 \
    FELD(Flag, BlutdruckJN, .standard(0))                                                                    \
    FELD(Int, BlutdruckSyst)                                                                                 \
    FELD(Int, BlutdruckDiast)                                                                                \
    FELD(Flag, AugeninnendruckJN, .standard(0))                                                              \
    FELD(Text, Augeninnendruck)                                                                              \
    FELD(Flag, GesichtsfeldJN, .standard(0))                                                                 \
    FELD(Text, Gesichtsfeld)                                                                                 \
    FELD(Flag, AugenhintergrundJN, .standard(0))                                                             \
    FELD(Text, Augenhintergrund)                                                                             \
    FELD(Flag, BlutzuckerkontrolleJN, .standard(0))                                                          \
    FELD(Text, Blutzuckerkontrolle)                                                                          \
    FELD(Flag, SonstigeUntersuchungenJN, .standard(0))                                                       \
    FELD(Text, SonstigeUntersuchungen)                                                                       \
    FELD(Flag, BehandlungJN, .standard(0))                                                                   \
    FELD(Flag, KorrekturglaeserJN, .standard(0))                                                             \
    FELD(Text, KorrekturglaeserRechts)                                                                       \
    FELD(Text, KorrekturglaeserLinks)                                                                        \
    FELD(Flag, AugentropfenJN, .standard(0))                                                                 \
    FELD(Text, Augentropfen)                                                                                 \
    FELD(Flag, OperationJN, .standard(0))                                                                    \
    FELD(Text, Operation)                                                                                    \
    FELD(Flag, HornhautJN, .standard(0))                                                                     \
    FELD(Text, Hornhaut)                                                                                     \
    FELD(Text, HornhautSeite)                                                                                \
    FELD(Flag, NetzhautJN, .standard(0))                                                                     \
    FELD(Text, Netzhaut)                                                                                     \
    FELD(Text, NetzhautSeite)                                                                                \
    FELD(Flag, SonstigeBehandlungenJN, .standard(0))                                                         \
    FELD(Text, SonstigeBehandlungen)                                                                         \
    FELD(Flag, BerufseinschraenkungJN)                                                                       \
    FELD(Text, Berufseinschraenkung)                                                                         \
    FELD(Flag, AnforderungSehvermoegenJN)                                                                    \
    FELD(Text, AnforderungSehvermoegen)                                                                      \
    FELD(Flag, HypertonieJN)                                                                                 \
    FELD(Text, Hypertonie)                                                                                   \
    FELD(Flag, DiabetesJN)                                                                                   \
    FELD(Text, Diabetes)                                                                                     \
    FELD(Flag, MultipleSkleroseJN)                                                                           \
    FELD(Text, MultipleSklerose)                                                                             \
    FELD(Flag, AutoimmunerkrankungJN)                                                                        \
    FELD(Text, Autoimmunerkrankungen)                                                                        \
    FELD(Flag, InfektionJN)                                                                                  \
    FELD(Text, Infektion, .nurXmlSchreiben())                                                                \
    FELD(Flag, DarmerkrankungJN)                                                                             \
    FELD(Text, Darmerkrankung)                                                                               \
    FELD(Flag, RheumaJN)                                                                                     \
    FELD(Text, Rheuma)                                                                                       \
    FELD(Flag, SonstigeErkrankungenJN)                                                                       \
    FELD(Text, SonstigeErkrankungen)                                                                         \
    FELD(Text, WeitereMedikamente)

class qbFormularL282 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL282, qbFormularAllgGesu, QB_FELDER_qbFormularL282)
};
