// libFuzzer's entry point for one target, chosen at compile time (QB_FUZZ_ZIEL).
#include "ziele.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t laenge) {
    return QB_FUZZ_ZIEL(daten, laenge);
}
