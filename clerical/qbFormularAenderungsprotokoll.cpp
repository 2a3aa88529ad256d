#include "clerical/qbFormularAenderungsprotokoll.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_IDENTITAET(qbFormularAenderungsprotokoll, QB_FELDER_qbFormularAenderungsprotokoll)
QB_FORMULAR_KONSTRUKTOR(qbFormularAenderungsprotokoll)
QB_FORMULAR_SPEICHERN_NUR_DATEI(qbFormularAenderungsprotokoll)
// The version key is worked out and used for nothing: there is no older layout.
QB_FORMULAR_LADEN_NUR_DATEI(qbFormularAenderungsprotokoll)
// The size counts the own fields although a virtual stream carries the header alone.
QB_FORMULAR_GROESSE(qbFormularAenderungsprotokoll)
QB_FORMULAR_XML(qbFormularAenderungsprotokoll)
QB_FORMULAR_LOESCHE(qbFormularAenderungsprotokoll)

// qbFormular's rule on a copy of the header, then the three texts.
int qbFormularAenderungsprotokoll::operator==(const qbFormularAenderungsprotokoll& other) const {
    const qbFormular kopf(*this);
    return kopf.isEqual(&other) && felder().gleich(*this, other);
}
