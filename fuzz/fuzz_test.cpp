// The fuzz targets in the normal suite: over their seed corpora, made afresh, and over every input that
// once was a finding (fuzz/regression/<target>/), kept after its fix.
#include "ziele.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

using Ziel = int (*)(const uint8_t*, size_t);

struct Eintrag {
    const char* name;
    Ziel ziel;
};
const Eintrag kZiele[] = {
    {"formular", &qbFuzzFormular},
    {"liste", &qbFuzzListe},
    {"xml", &qbFuzzXml},
    {"werkzeug", &qbFuzzWerkzeug},
};

std::string lies(const fs::path& pfad) {
    std::ifstream ein(pfad, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>());
}

int laufe(Ziel ziel, const fs::path& ordner) {
    int anzahl = 0;
    if (!fs::is_directory(ordner)) return 0;
    for (const auto& eintrag : fs::directory_iterator(ordner)) {
        SCOPED_TRACE(eintrag.path().string());
        const std::string bytes = lies(eintrag.path());
        EXPECT_EQ(ziel(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size()), 0);
        ++anzahl;
    }
    return anzahl;
}

} // namespace

TEST(Fuzz, EveryTargetRunsOverItsSeedCorpus) {
    const fs::path ordner = fs::temp_directory_path() / ("qbformul-fuzz-test-" + std::to_string(getpid()));
    ASSERT_GT(qbfuzz::erzeugeKorpus(ordner.string(), QBFORMUL_SOURCE_DIR), 0);
    for (const Eintrag& e : kZiele) {
        SCOPED_TRACE(e.name);
        EXPECT_GT(laufe(e.ziel, ordner / e.name), 0) << "no seeds for " << e.name;
    }
    fs::remove_all(ordner);
}

TEST(Fuzz, KeptFindingsStayFixed) {
    for (const Eintrag& e : kZiele)
        laufe(e.ziel, fs::path(QBFORMUL_SOURCE_DIR) / "fuzz/regression" / e.name);
}
