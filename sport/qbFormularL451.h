// qbFormularL451, "Erklaerung Tauchsport": the diving declaration, the one sport form that looks at the
// stored version for a field of its own: ApnoetauchenJN came with 04.2005 and stands last in the record.
// Jahr1 to Jahr3 with Stunden1 to Stunden3 are three rows of a year and the hours dived in it.
#pragma once

#include "core/qbFormularMakros.h"

// The four Tauchlehrer Flags carry no "JN" and start at 0, not unanswered; they are read from every record.
// binaryStoreSize counts two bytes fewer than the record holds (121 for 123); the shortfall stands on the
// last row.
#define QB_FELDER_qbFormularL451(FELD)                                                                       \
    FELD(Flag, TauchscheinJN)                                                                                \
    FELD(Flag, TauglichJN)                                                                                   \
    FELD(Flag, NichtTauglichJN)                                                                              \
    FELD(Flag, TauglichMitEinschraenkungenJN)                                                                \
    FELD(Flag, KeineUntersuchungJN)                                                                          \
    FELD(Flag, SchnorchelnJN)                                                                                \
    FELD(Flag, SporttauchenJN)                                                                               \
    FELD(Flag, SportgeraetetauchenJN)                                                                        \
    FELD(Flag, HelmtauchenJN)                                                                                \
    FELD(Flag, RettungstauchenJN)                                                                            \
    FELD(Flag, BerufstauchenJN)                                                                              \
    FELD(Flag, SportlehrerJN)                                                                                \
    FELD(Flag, SonstigeTauchartJN)                                                                           \
    FELD(Text, SonstigeTauchart)                                                                             \
    FELD(Flag, AuslandJN)                                                                                    \
    FELD(Text, Ausland)                                                                                      \
    FELD(Text, Tauchtiefe)                                                                                   \
    FELD(Flag, UnterwasserFotografieJN)                                                                      \
    FELD(Flag, StreckentauchenJN)                                                                            \
    FELD(Flag, OrientierungstauchenJN)                                                                       \
    FELD(Flag, WracktauchenJN)                                                                               \
    FELD(Flag, UnterwasserrugbyJN)                                                                           \
    FELD(Flag, EistauchenJN)                                                                                 \
    FELD(Flag, StroemungstauchenJN)                                                                          \
    FELD(Flag, NachttauchenJN)                                                                               \
    FELD(Flag, HoehlentauchenJN)                                                                             \
    FELD(Flag, SonstigeAktivitaetJN)                                                                         \
    FELD(Text, SonstigeAktivitaet)                                                                           \
    FELD(Flag, AlleinJN)                                                                                     \
    FELD(Flag, PaarweiseJN)                                                                                  \
    FELD(Flag, GruppenJN)                                                                                    \
    FELD(Text, Beginn)                                                                                       \
    FELD(Int, Jahr1)                                                                                         \
    FELD(Int, Stunden1)                                                                                      \
    FELD(Int, Jahr2)                                                                                         \
    FELD(Int, Stunden2)                                                                                      \
    FELD(Int, Jahr3)                                                                                         \
    FELD(Int, Stunden3)                                                                                      \
    FELD(Text, Tauchausbildung)                                                                              \
    FELD(Flag, ZusatzkurseJN)                                                                                \
    FELD(Text, Zusatzkurse)                                                                                  \
    FELD(Flag, MeerJN)                                                                                       \
    FELD(Flag, KanalJN)                                                                                      \
    FELD(Flag, SeeJN)                                                                                        \
    FELD(Flag, FlussJN)                                                                                      \
    FELD(Flag, HafenJN)                                                                                      \
    FELD(Flag, UnterirdischJN)                                                                               \
    FELD(Flag, BaggerseeJN)                                                                                  \
    FELD(Flag, BergseeJN)                                                                                    \
    FELD(Flag, SonstigeGewaesserJN)                                                                          \
    FELD(Text, SonstigeGewaesser)                                                                            \
    FELD(Flag, KrankheitJN)                                                                                  \
    FELD(Text, Krankheit)                                                                                    \
    FELD(Flag, TauchlehrerNein, .standard(0))                                                                \
    FELD(Flag, TauchlehrerEhrenamtlich, .standard(0))                                                        \
    FELD(Flag, TauchlehrerNebenberuflich, .standard(0))                                                      \
    FELD(Flag, TauchlehrerBeruflich, .standard(0))                                                           \
    FELD(Flag, ApnoetauchenJN, .liesAb(200504).groesseAbweichend(-2))

class qbFormularL451 : public qbFormular {
    QB_FORMULAR(qbFormularL451, qbFormular, QB_FELDER_qbFormularL451)
};
