#include "clerical/qbFormularVB077A.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_ROUTINE(qbFormularVB077A, QB_FELDER_qbFormularVB077A)
