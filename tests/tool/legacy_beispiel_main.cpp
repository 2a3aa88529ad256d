// qbformul_legacy_example FILE [FILE2]: writes the stored example of old record layouts, and the second one
// of the pension and allowance forms (see legacy_beispiel.h).
// The build's target qbformul_legacy_example_update writes it into examples/legacy of the checkout.
#include "legacy_beispiel.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 2 && argc != 3) {
        std::fprintf(stderr, "usage: qbformul_legacy_example FILE [FILE2]\n");
        return 2;
    }
    if (argc == 3 && !qbtest::schreibeVorsorgeBeispiel(argv[2])) {
        std::fprintf(stderr, "qbformul_legacy_example: %s: cannot be written\n", argv[2]);
        return 1;
    }
    if (!qbtest::schreibeLegacyBeispiel(argv[1])) {
        std::fprintf(stderr, "qbformul_legacy_example: %s: cannot be written\n", argv[1]);
        return 1;
    }
    return 0;
}
