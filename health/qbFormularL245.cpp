#include "health/qbFormularL245.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_ROUTINE(qbFormularL245, QB_FELDER_qbFormularL245)
