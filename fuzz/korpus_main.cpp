// qbformul_fuzz_korpus DIR SOURCE_DIR: writes the seed corpora of the fuzz targets into DIR.
#include "ziele.h"

#include <iostream>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: qbformul_fuzz_korpus DIR SOURCE_DIR\n";
        return 2;
    }
    const int anzahl = qbfuzz::erzeugeKorpus(argv[1], argv[2]);
    std::cout << "qbformul_fuzz_korpus: " << anzahl << " seeds in " << argv[1] << "\n";
    return anzahl > 0 ? 0 : 1;
}
