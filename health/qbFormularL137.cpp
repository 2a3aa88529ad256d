#include "health/qbFormularL137.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_IDENTITAET(qbFormularL137, QB_FELDER_qbFormularL137)
QB_FORMULAR_KONSTRUKTOR(qbFormularL137)
QB_FORMULAR_SPEICHERN(qbFormularL137)
QB_FORMULAR_LADEN(qbFormularL137)
QB_FORMULAR_XML(qbFormularL137)
QB_FORMULAR_LOESCHE(qbFormularL137)

// The figure counts the fixed parts of the own fields one byte short; it stays so.
QB_FORMULAR_GROESSE_ABWEICHEND(qbFormularL137, -1)
