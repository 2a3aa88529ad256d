#include "sport/qbFormularL450.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_ROUTINE(qbFormularL450, QB_FELDER_qbFormularL450)
