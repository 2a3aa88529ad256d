#include "health/qbFormularL243.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_ROUTINE(qbFormularL243, QB_FELDER_qbFormularL243)
