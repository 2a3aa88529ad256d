// The application file example of docs/format.md is what the library writes: the test reads the hex
// block of the note and compares it with the bytes of the same application.
#include "core/qbFormularListe.h"
#include "rw/rwfile.h"
#include "sport/qbFormularL440.h"

#include "test_util.h"

#include <fstream>
#include <sstream>

using namespace qbtest;

namespace {
Bytes hexBlock(const std::string& note, const std::string& marke) {
    size_t at = note.find("<!-- hex:" + marke + " -->");
    if (at == std::string::npos) return {};
    at = note.find("```", at);
    size_t ende = note.find("```", at + 3);
    std::istringstream in(note.substr(at + 3, ende - at - 3));
    Bytes bytes;
    std::string zeile;
    while (std::getline(in, zeile)) {
        std::istringstream woerter(zeile.substr(0, zeile.find('|')));
        std::string wort;
        while (woerter >> wort)
            if (wort.size() == 2 && isxdigit(wort[0]) && isxdigit(wort[1]))
                bytes.push_back(static_cast<unsigned char>(std::stoi(wort, nullptr, 16)));
    }
    return bytes;
}
} // namespace

TEST(Formatnotiz, ApplicationFileExampleIsWhatTheLibraryWrites) {
    std::ifstream in(std::string(QBFORMUL_SOURCE_DIR) + "/docs/format.md");
    ASSERT_TRUE(in.good());
    std::string note((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());

    qbFormularListe antrag;
    qbFormularL440 kampfsport;
    kampfsport.RefKampfsportarten("Judo");
    kampfsport.RefFreizeitsportJN(1);
    antrag.neuesFormular(kampfsport);
    TempFile tmp("format");
    {
        RWFile f(tmp.path(), "wb");
        f << antrag;
    }
    EXPECT_EQ(hex(readBytes(tmp.path())), hex(hexBlock(note, "anwendung")));
}
