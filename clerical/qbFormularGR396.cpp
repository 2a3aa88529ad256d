#include "clerical/qbFormularGR396.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_ROUTINE(qbFormularGR396, QB_FELDER_qbFormularGR396)
