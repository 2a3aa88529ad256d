// Public headers are compiled into the library as Windows-1252 and into consumers as UTF-8: a byte
// outside ASCII in them would mean two different literals, so there is none.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

TEST(OeffentlicheHeader, HoldOnlyAsciiBytes) {
    namespace fs = std::filesystem;
    const fs::path wurzel(QBFORMUL_SOURCE_DIR);
    int gelesen = 0;
    for (const char* ordner : {"platform", "core", "health", "sport", "finance", "pension", "clerical"}) {
        if (!fs::exists(wurzel / ordner)) continue;
        for (const auto& eintrag : fs::recursive_directory_iterator(wurzel / ordner)) {
            if (eintrag.path().extension() != ".h") continue;
            std::ifstream in(eintrag.path(), std::ios::binary);
            std::string inhalt((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
            ++gelesen;
            for (size_t i = 0; i < inhalt.size(); ++i)
                EXPECT_LT(static_cast<unsigned char>(inhalt[i]), 0x80) << eintrag.path() << " at byte " << i;
        }
    }
    EXPECT_GT(gelesen, 20);
}
