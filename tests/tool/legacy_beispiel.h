// The stored example examples/legacy/alte-layouts.qbf: an application whose records have the layouts of
// older versions of their forms, written value by value with the fixture writer of the tests, as the forms
// of that time wrote them. The program qbformul_legacy_example writes it; a test checks that the stored
// file is what this code writes.
#pragma once

#include "legacy_fixture.h"

#include <string>
#include <utility>
#include <vector>

namespace qbtest {

// Where the example lies in a checkout, relative to its root.
inline const char* const kLegacyBeispielPfad = "examples/legacy/alte-layouts.qbf";

// The records of the example, in file order: each with its class id.
std::vector<std::pair<unsigned short, AltSatz>> legacyBeispielSaetze();

// How many records the example holds, and how many of them have a stored Version other than their class's
// current one (what the tool's upgrade counts as records to a newer layout).
unsigned legacyBeispielFormulare();
unsigned legacyBeispielAeltere();

// Writes the example application file; false when the file cannot be written.
bool schreibeLegacyBeispiel(const std::string& pfad);

// The second example, examples/legacy/alte-layouts-vorsorge.qbf: the old layouts of the pension form and
// of the allowance application.
inline const char* const kVorsorgeBeispielPfad = "examples/legacy/alte-layouts-vorsorge.qbf";
std::vector<std::pair<unsigned short, AltSatz>> vorsorgeBeispielSaetze();
bool schreibeVorsorgeBeispiel(const std::string& pfad);

// An application file of these records.
bool schreibeBeispiel(const std::string& pfad,
                      const std::vector<std::pair<unsigned short, AltSatz>>& formulare);

} // namespace qbtest
