// qbFormularL095, "Taetigkeitsbeschreibung": a description of occupation for two activities side by side,
// every answer an array of two entries. The object and its XML hold 31 arrays; the streams carry three of
// them (Lehre, MitarbKaufVoll, FreienJN) behind a second copy of Version, and no stamp.
#pragma once

#include "core/qbFormularMakros.h"

// The 31 answers of activity i, in the order of the XML; the keys of KunstProz, SonstProz and ReiseProz lack
// the "Proz", and BelastungOben is a Flag without the "JN" of its neighbours.
#define QB_TAETIGKEIT_qbFormularL095(FELD, i)                                                                \
    QB_EINTRAG(FELD, Text, Lehre, i)                                                                         \
    QB_EINTRAG(FELD, Text, Fachausb, i, .ohneStrom())                                                        \
    QB_EINTRAG(FELD, Text, Studium, i, .ohneStrom())                                                         \
    QB_EINTRAG(FELD, Text, Meister, i, .ohneStrom())                                                         \
    QB_EINTRAG(FELD, Text, AusbildungSonst, i, .ohneStrom())                                                 \
    QB_EINTRAG(FELD, Text, StellungSonst, i, .ohneStrom())                                                   \
    QB_EINTRAG(FELD, Text, Beschreibung, i, .ohneStrom())                                                    \
    QB_EINTRAG(FELD, Text, TaetigSonst, i, .ohneStrom())                                                     \
    QB_EINTRAG(FELD, Text, SonstBelastung, i, .ohneStrom())                                                  \
    QB_EINTRAG(FELD, Int, MitarbKaufVoll, i)                                                                 \
    QB_EINTRAG(FELD, Int, MitarbKaufTeil, i, .ohneStrom())                                                   \
    QB_EINTRAG(FELD, Int, MitarbHandVoll, i, .ohneStrom())                                                   \
    QB_EINTRAG(FELD, Int, MitarbHandTeil, i, .ohneStrom())                                                   \
    QB_EINTRAG(FELD, Int, KunstProz, i, .xml("Kunst[" #i "]").ohneStrom())                                   \
    QB_EINTRAG(FELD, Int, SonstProz, i, .xml("Sonst[" #i "]").ohneStrom())                                   \
    QB_EINTRAG(FELD, Int, ReiseProz, i, .xml("Reise[" #i "]").ohneStrom())                                   \
    QB_EINTRAG(FELD, Flag, FreienJN, i)                                                                      \
    QB_EINTRAG(FELD, Flag, HandJN, i, .ohneStrom())                                                          \
    QB_EINTRAG(FELD, Flag, ArbeitszeitJN, i, .ohneStrom())                                                   \
    QB_EINTRAG(FELD, Flag, VibrationenJN, i, .ohneStrom())                                                   \
    QB_EINTRAG(FELD, Flag, ZwangshaltungJN, i, .ohneStrom())                                                 \
    QB_EINTRAG(FELD, Flag, AkkordarbeitJN, i, .ohneStrom())                                                  \
    QB_EINTRAG(FELD, Flag, HautJN, i, .ohneStrom())                                                          \
    QB_EINTRAG(FELD, Flag, AllergenJN, i, .ohneStrom())                                                      \
    QB_EINTRAG(FELD, Flag, UnfallJN, i, .ohneStrom())                                                        \
    QB_EINTRAG(FELD, Flag, SchichtJN, i, .ohneStrom())                                                       \
    QB_EINTRAG(FELD, Flag, SchwerJN, i, .ohneStrom())                                                        \
    QB_EINTRAG(FELD, Flag, BelastungUntenJN, i, .ohneStrom())                                                \
    QB_EINTRAG(FELD, Flag, BelastungOben, i, .ohneStrom())                                                   \
    QB_EINTRAG(FELD, Flag, StaubJN, i, .ohneStrom())                                                         \
    QB_EINTRAG(FELD, Flag, MaschinenJN, i, .ohneStrom())

#define QB_FELDER_qbFormularL095(FELD) QB_DURCHLAEUFE_2(QB_TAETIGKEIT_qbFormularL095, FELD)

#define QB_REIHEN_qbFormularL095(T, Name) QB_REIHE_WERT_ZUERST(qbFormularL095, T, Name, 2)

class qbFormularL095 : public qbFormular {
    QB_FORMULAR(qbFormularL095, qbFormular, QB_FELDER_qbFormularL095)

public:
    // Get<Field>(i) and Set<Field>(wert, i), the value first; i is 0 or 1, not checked.
    QB_REIHEN_qbFormularL095(RWCString, Lehre) QB_REIHEN_qbFormularL095(
        RWCString, Fachausb) QB_REIHEN_qbFormularL095(RWCString, Studium) QB_REIHEN_qbFormularL095(RWCString,
                                                                                                   Meister)
        QB_REIHEN_qbFormularL095(RWCString, AusbildungSonst) QB_REIHEN_qbFormularL095(
            RWCString, StellungSonst) QB_REIHEN_qbFormularL095(RWCString, Beschreibung)
            QB_REIHEN_qbFormularL095(RWCString, TaetigSonst) QB_REIHEN_qbFormularL095(
                RWCString, SonstBelastung) QB_REIHEN_qbFormularL095(int, MitarbKaufVoll)
                QB_REIHEN_qbFormularL095(int, MitarbKaufTeil) QB_REIHEN_qbFormularL095(int, MitarbHandVoll)
                    QB_REIHEN_qbFormularL095(int, MitarbHandTeil) QB_REIHEN_qbFormularL095(int, KunstProz)
                        QB_REIHEN_qbFormularL095(int, SonstProz) QB_REIHEN_qbFormularL095(int, ReiseProz)
                            QB_REIHEN_qbFormularL095(unsigned char, FreienJN) QB_REIHEN_qbFormularL095(
                                unsigned char, HandJN) QB_REIHEN_qbFormularL095(unsigned char, ArbeitszeitJN)
                                QB_REIHEN_qbFormularL095(unsigned char, VibrationenJN)
                                    QB_REIHEN_qbFormularL095(unsigned char, ZwangshaltungJN)
                                        QB_REIHEN_qbFormularL095(unsigned char, AkkordarbeitJN)
                                            QB_REIHEN_qbFormularL095(unsigned char, HautJN)
                                                QB_REIHEN_qbFormularL095(unsigned char, AllergenJN)
                                                    QB_REIHEN_qbFormularL095(unsigned char, UnfallJN)
                                                        QB_REIHEN_qbFormularL095(unsigned char, SchichtJN)
                                                            QB_REIHEN_qbFormularL095(unsigned char, SchwerJN)
                                                                QB_REIHEN_qbFormularL095(unsigned char,
                                                                                         BelastungUntenJN)
                                                                    QB_REIHEN_qbFormularL095(unsigned char,
                                                                                             BelastungOben)
                                                                        QB_REIHEN_qbFormularL095(
                                                                            unsigned char, StaubJN)
                                                                            QB_REIHEN_qbFormularL095(
                                                                                unsigned char, MaschinenJN)
};
