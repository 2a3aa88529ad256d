#include "health/qbFormularL282.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_ROUTINE(qbFormularL282, QB_FELDER_qbFormularL282)
