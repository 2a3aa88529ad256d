// Loading and unloading the library registers and removes every class of the class table: the program
// stands in for the factory functions (the library's calls resolve to these definitions) and records
// them while it loads and unloads the shared library.
#include "rw/factory.h"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <string>
#include <vector>

namespace {
struct Aufruf {
    char art; // '+' added, '#' removed by id, '$' removed by string id
    unsigned short id;
    std::string name;
};
std::vector<Aufruf> aufrufe;

struct Zeile {
    unsigned short id;
    const char* name;
};
#define QB_KLASSE(Id, Klasse, ...) {Id, #Klasse},
const Zeile kTabelle[] = {
#include "core/qbKlassen.def"
};
#undef QB_KLASSE
} // namespace

void rwAddToFactory(RWuserCreator, RWClassID id, RWStringID name) {
    aufrufe.push_back({'+', id, name.name().std()});
}
void rwRemoveFromFactory(RWClassID id) { aufrufe.push_back({'#', id, {}}); }
void rwRemoveFromFactory(RWStringID name) { aufrufe.push_back({'$', 0, name.name().std()}); }

TEST(Bibliothek, LoadingRegistersEveryClassInTableOrderAndUnloadingRemovesThemInReverse) {
    void* bibliothek = dlopen(QBFORMUL_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(bibliothek, nullptr) << dlerror();
    const size_t n = sizeof kTabelle / sizeof kTabelle[0];
    ASSERT_EQ(aufrufe.size(), n);
    for (size_t i = 0; i < n; ++i) {
        EXPECT_EQ(aufrufe[i].art, '+');
        EXPECT_EQ(aufrufe[i].id, kTabelle[i].id);
        EXPECT_EQ(aufrufe[i].name, kTabelle[i].name);
    }
    aufrufe.clear();
    ASSERT_EQ(dlclose(bibliothek), 0);
    ASSERT_EQ(aufrufe.size(), 2 * n) << "the library was not unloaded";
    for (size_t i = 0; i < n; ++i) {
        const Zeile& zeile = kTabelle[n - 1 - i];
        EXPECT_EQ(aufrufe[2 * i].art, '#');
        EXPECT_EQ(aufrufe[2 * i].id, zeile.id);
        EXPECT_EQ(aufrufe[2 * i + 1].art, '$');
        EXPECT_EQ(aufrufe[2 * i + 1].name, zeile.name);
    }
}
