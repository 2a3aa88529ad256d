#include "health/qbFormularL134.h"

#include "core/qbFormularDefinition.h"
#include "core/qbLayout.h"

QB_FORMULAR_IDENTITAET(qbFormularL134, QB_FELDER_qbFormularL134)
QB_FORMULAR_KONSTRUKTOR(qbFormularL134)
QB_FORMULAR_SPEICHERN(qbFormularL134)
QB_FORMULAR_GROESSE(qbFormularL134)
QB_FORMULAR_XML(qbFormularL134)
QB_FORMULAR_LOESCHE(qbFormularL134)

// Before 05.2002: the table's order without ZigarettenJN. The form knows no layout of its own for 10.1999
// and 01.2000: those records take this one too, and their common answers stay unread.
static constexpr qbSchritt layoutVor200205[] = {qbStrecke("TypI_JN", "MedikamenteWeitererArzt")};

template <class Strom>
void qbFormularL134::liesGespeichert(Strom& s) {
    qbFormularAllgGesu::restoreGuts(s);
    if (versionsSchluessel() < 200205)
        qbLiesLayout(*this, s, {"vor 05.2002", layoutVor200205}, {&felder()});
    else
        liesEigene(s);
}

void qbFormularL134::restoreGuts(RWFile& f) { liesGespeichert(f); }
void qbFormularL134::restoreGuts(RWvistream& s) { liesGespeichert(s); }
