#include "sport/qbFormularL441.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_ROUTINE(qbFormularL441, QB_FELDER_qbFormularL441)
