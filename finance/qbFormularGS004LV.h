// qbFormularGS004LV, "Finanzielle Risikopruefung LV": the financial questions of the life cover, one of
// the three forms that replaced qbFormularGS004. Stored on an RWFile only. LV has no accessors: it travels
// through the stream, XML and the conversion alone.
#pragma once

#include "finance/qbFormularGS004.h"

// Every field starts at its type's empty value: KonkursJN at 0, unlike its namesake in qbFormularGS004.
#define QB_FELDER_qbFormularGS004LV(FELD)                                                                    \
    FELD(FlagEigen, LV, .standard(0))                                                                        \
    FELD(Text, ZweckDesVertragsabschlusses)                                                                  \
    FELD(Text, sonstigeZwecke)                                                                               \
    FELD(Text, Objekt)                                                                                       \
    FELD(Text, RechtsformDesUnternehmens)                                                                    \
    FELD(Text, UnternehmensZweck)                                                                            \
    FELD(Text, StellungImBetrieb)                                                                            \
    FELD(Text, SelbstaendigSeit)                                                                             \
    FELD(Double, Nettoeinkommen)                                                                             \
    FELD(Double, UnternehmensUmsatz)                                                                         \
    FELD(Flag, KonkursJN, .standard(0))                                                                      \
    FELD(Text, AngabenZuKonkurs)                                                                             \
    FELD(Flag, EidesstattlicheVersicherung, .standard(0))                                                    \
    FELD(Text, AngabenZuEidesstattlicherVersicherung)

class qbFormularGS004LV : public qbFormular {
    QB_FORMULAR_NUR_DATEI(qbFormularGS004LV, qbFormular, QB_FELDER_qbFormularGS004LV)

    // The fields of the same name; the form's own header and the old form's person.
    qbFormularGS004LV(const qbFormularGS004& alt);
};
