#include "sport/qbFormularX278.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_ROUTINE(qbFormularX278, QB_FELDER_qbFormularX278)
