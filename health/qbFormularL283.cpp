#include "health/qbFormularL283.h"

#include "core/qbFormularDefinition.h"

// XMLputDat of old read AuftretenErstmalig twice and the other keys in an order of their own; keys are
// found by name, so reading once in table order gives the same result.
QB_FORMULAR_ROUTINE(qbFormularL283, QB_FELDER_qbFormularL283)
