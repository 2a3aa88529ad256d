#include "health/qbFormularL147.h"

#include "core/qbFormularDefinition.h"

// loesche goes member by member in the original; the routine's whole assignment ends in the same state.
QB_FORMULAR_ROUTINE(qbFormularL147, QB_FELDER_qbFormularL147)
