#include "sport/qbFormularL452.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_ROUTINE(qbFormularL452, QB_FELDER_qbFormularL452)
