#include "clerical/qbFormularL300_2.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_IDENTITAET(qbFormularL300_2, QB_FELDER_qbFormularL300_2)
QB_FORMULAR_KONSTRUKTOR(qbFormularL300_2)
QB_FORMULAR_SPEICHERN(qbFormularL300_2)
QB_FORMULAR_LADEN(qbFormularL300_2)
QB_FORMULAR_GROESSE(qbFormularL300_2)
QB_FORMULAR_XML(qbFormularL300_2)
// The reset leaves the person empty.
QB_FORMULAR_LOESCHE_VON_HAND(qbFormularL300_2)
