#include "health/qbFormularL281.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_IDENTITAET(qbFormularL281, QB_FELDER_qbFormularL281)
QB_FORMULAR_KONSTRUKTOR(qbFormularL281)
QB_FORMULAR_SPEICHERN(qbFormularL281)
QB_FORMULAR_LADEN(qbFormularL281)
QB_FORMULAR_GROESSE(qbFormularL281)
QB_FORMULAR_LOESCHE(qbFormularL281)

// One of the two health forms whose nested node comes from qbFormularAllgGesu::XMLgetDat: the common
// answers reach the tree and are never read back.
QB_FORMULAR_XML_BASISKNOTEN(qbFormularL281)
