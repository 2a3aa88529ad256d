#include "clerical/qbFormularAU523.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_IDENTITAET(qbFormularAU523, QB_FELDER_qbFormularAU523)
QB_FORMULAR_KONSTRUKTOR(qbFormularAU523)
// The version key is worked out and used for nothing: every record reads the four fields.
QB_FORMULAR_LADEN_NUR_DATEI(qbFormularAU523)
QB_FORMULAR_XML(qbFormularAU523)
// Person back to VP1, Bezug texts emptied, both persons reset.
QB_FORMULAR_LOESCHE_VON_HAND_MIT_PERSON(qbFormularAU523)

// The stamp of 07.2004 goes to a copy of Version that is dropped: Version is written as it stands, so a new
// form is stored as 07.2007 and an old record keeps its version.
void qbFormularAU523::saveGuts(RWFile& f) const {
    qbFormular::saveGuts(f);
    schreibeEigene(f);
}
