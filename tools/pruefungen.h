// The checks that stored forms offer, for qbformul check: one row per check of a class. A form whose class
// gains checks joins by a row in pruefungen.cpp.
#pragma once

#include "core/qbFormular.h"

#include <vector>

namespace qbtool {

struct Pruefung {
    const char* klasse; // the class literal
    const char* name;   // the check's name in the library
    // The message of the check, in Windows-1252; "" when the form passes.
    RWCString (*pruefe)(const qbFormular& form);
};

// The checks of a class in the order they run; empty for a class without checks.
std::vector<const Pruefung*> pruefungenDerKlasse(const char* klasse);

} // namespace qbtool
