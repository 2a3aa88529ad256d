#include "health/qbFormularL144.h"

#include "core/qbFormularDefinition.h"

// loesche goes member by member in the original (the common part through qbFormularAllgGesu's operator=,
// then the own fields); the routine's whole assignment ends in the same state.
QB_FORMULAR_IDENTITAET(qbFormularL144, QB_FELDER_qbFormularL144)
QB_FORMULAR_KONSTRUKTOR(qbFormularL144)
QB_FORMULAR_SPEICHERN(qbFormularL144)
QB_FORMULAR_LADEN(qbFormularL144)
QB_FORMULAR_GROESSE(qbFormularL144)
QB_FORMULAR_LOESCHE(qbFormularL144)

// One of the two health forms whose nested node comes from qbFormularAllgGesu::XMLgetDat: the common
// answers reach the tree (and are never read back), so "ArztAdresse" stands twice, the common one in the
// nested node and the own one at the form's level.
QB_FORMULAR_XML_BASISKNOTEN(qbFormularL144)
