// Reaches the forms only through the factory, as a stored record finds its class: creates an object of
// every class id and reads one back from a file through RWFile >> RWCollectable*. Names no class of the
// library, so that, linked statically, only the library's own link interface keeps its classes in.
#include "core/qbKlassen.h" // for the class ids alone: constants, no symbol of the library
#include "rw/collect.h"
#include "rw/factory.h"
#include "rw/rwfile.h"

#include <cstdio>
#include <memory>
#include <string>

namespace {
#define QB_KLASSE(Id, Klasse, ...) {Id, #Klasse},
const struct {
    RWClassID id;
    const char* klasse;
} kKlassen[] = {
#include "core/qbKlassen.def"
};
#undef QB_KLASSE
} // namespace

int main(int argc, char** argv) {
    const std::string datei = std::string(argc > 1 ? argv[1] : ".") + "/fabrik.qbf";
    int fehler = 0;
    for (const auto& k : kKlassen) {
        std::unique_ptr<RWCollectable> objekt(getRWFactory()->create(k.id));
        if (!objekt || objekt->isA() != k.id) {
            std::fprintf(stderr, "fabrik: no object of %s (%u) from the factory\n", k.klasse, k.id);
            ++fehler;
            continue;
        }
        {
            RWFile f(datei.c_str(), "wb");
            f << *objekt;
        }
        RWCollectable* gelesen = nullptr;
        {
            RWFile f(datei.c_str(), "rb");
            f >> gelesen;
        }
        std::unique_ptr<RWCollectable> halter(gelesen);
        if (!gelesen || gelesen->isA() != k.id) {
            std::fprintf(stderr, "fabrik: a stored %s did not read back\n", k.klasse);
            ++fehler;
        }
    }
    std::printf("fabrik: %zu classes from the factory, %d failed\n", sizeof kKlassen / sizeof kKlassen[0],
                fehler);
    return fehler ? 1 : 0;
}
