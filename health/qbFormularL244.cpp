#include "health/qbFormularL244.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_ROUTINE(qbFormularL244, QB_FELDER_qbFormularL244)
