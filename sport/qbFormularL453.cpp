#include "sport/qbFormularL453.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_ROUTINE(qbFormularL453, QB_FELDER_qbFormularL453)
