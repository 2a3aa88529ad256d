#include "sport/qbFormularL440.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_ROUTINE(qbFormularL440, QB_FELDER_qbFormularL440)
