#include "health/qbFormularL135.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_ROUTINE(qbFormularL135, QB_FELDER_qbFormularL135)
