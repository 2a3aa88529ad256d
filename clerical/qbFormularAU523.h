// qbFormularAU523, "Beiblatt ProAktiv": a supplement naming two persons, each with the text of what it
// refers to. Stored on an RWFile only, the persons through their own record; a virtual stream carries the
// header alone. Its XML is the header alone too.
#pragma once

#include "core/qbFormularMakros.h"

#define QB_FELDER_qbFormularAU523(FELD)                                                                      \
    FELD(PersonKopie, Person1)                                                                               \
    FELD(TextKopieNichtKonst, Bezug1, .ohneXml())                                                            \
    FELD(PersonKopie, Person2)                                                                               \
    FELD(TextKopieNichtKonst, Bezug2, .ohneXml())

class qbFormularAU523 : public qbFormular {
    QB_FORMULAR_NUR_DATEI(qbFormularAU523, qbFormular, QB_FELDER_qbFormularAU523)
};
