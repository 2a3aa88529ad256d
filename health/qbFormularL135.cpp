#include "health/qbFormularL135.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_IDENTITAET(qbFormularL135, QB_FELDER_qbFormularL135)
QB_FORMULAR_KONSTRUKTOR(qbFormularL135)
QB_FORMULAR_SPEICHERN(qbFormularL135)
QB_FORMULAR_LADEN(qbFormularL135)
QB_FORMULAR_XML(qbFormularL135)
QB_FORMULAR_LOESCHE(qbFormularL135)

// The figure counts the fixed parts of the own fields one byte short; it stays so.
QB_FORMULAR_GROESSE_ABWEICHEND(qbFormularL135, -1)
