// Faults the tool's tests inject, so that what otherwise happens only by chance can be reproduced exactly:
// a full disk under one file of a batch, a file removed while the batch runs. The environment variable
// QBFORMUL_TEST_FAULT holds one fault a line, "<kind>:<path>", the path spelled as the tool spells the
// file (as given on the command line, or the folder of -o and the input's name):
//
//   full:TARGET                   the new content of TARGET is written to /dev/full instead of its
//                                 temporary file, so that writing it fails with "No space left on device"
//   remove-after-first:FILE       FILE is removed once the first input of an upgrade is done
//   remove-before-replace:TARGET  TARGET is removed when its new content is complete, just before that
//                                 replaces it
//
// Nothing but the tests sets the variable; without it, none of this does anything.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qbtool {

// Whether the environment asks for the fault art on this path.
bool stoerung(std::string_view art, const std::string& pfad);

// The paths the environment names for the fault art, in their order.
std::vector<std::string> stoerungsPfade(std::string_view art);

} // namespace qbtool
