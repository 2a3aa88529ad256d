// qbformul_legacy_example FILE: writes the stored example of old record layouts (see legacy_beispiel.h).
// The build's target qbformul_legacy_example_update writes it into examples/legacy of the checkout.
#include "legacy_beispiel.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: qbformul_legacy_example FILE\n");
        return 2;
    }
    if (!qbtest::schreibeLegacyBeispiel(argv[1])) {
        std::fprintf(stderr, "qbformul_legacy_example: %s: cannot be written\n", argv[1]);
        return 1;
    }
    return 0;
}
