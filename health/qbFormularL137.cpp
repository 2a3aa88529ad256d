#include "health/qbFormularL137.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_ROUTINE(qbFormularL137, QB_FELDER_qbFormularL137)
