// Damaged application files: whatever the bytes, the tool ends with 0, 1 or 2 and says what is wrong in
// one line, without crashing (run under the sanitizers too).
#include "anwendungen.h"

using namespace qbtest;

namespace {

// The stored example, cut off and with single bytes changed at places spread over the file.
std::vector<std::string> beschaedigteFassungen() {
    const std::string heil = liesDatei(legacyBeispiel());
    std::vector<std::string> fassungen;
    for (size_t laenge = 0; laenge < heil.size(); laenge += 97)
        fassungen.push_back(heil.substr(0, laenge));
    const unsigned char werte[] = {0x00, 0x7f, 0xff};
    for (size_t bei = 1; bei < heil.size(); bei += 131) {
        std::string f = heil;
        f[bei] = static_cast<char>(werte[bei % 3]);
        fassungen.push_back(f);
    }
    return fassungen;
}

TEST(ToolRobust, DamagedFilesEndWithACodeAndAtMostOneLineOfError) {
    Ordner ordner;
    const std::string datei = ordner / "kaputt.qbf";
    const std::vector<std::string> fassungen = beschaedigteFassungen();
    ASSERT_GT(fassungen.size(), 20u);
    for (size_t i = 0; i < fassungen.size(); ++i) {
        schreibeDatei(datei, fassungen[i]);
        for (const std::string befehl : {"list", "show", "explain"}) {
            const Lauf lauf = qbformul({befehl, datei});
            EXPECT_TRUE(lauf.code == 0 || lauf.code == 1 || lauf.code == 2)
                << befehl << " " << i << ": " << lauf.code;
            EXPECT_LE(lauf.fehlerzeilen().size(), 1u) << befehl << " " << i << ": " << lauf.err;
            if (lauf.code != 0) {
                EXPECT_EQ(lauf.fehlerzeilen().size(), 1u) << befehl << " " << i;
                EXPECT_TRUE(enthaelt(lauf.err, "qbformul: " + datei + ": "))
                    << befehl << " " << i << ": " << lauf.err;
            }
        }
        // What list refuses, upgrade leaves alone.
        const Lauf upgrade = qbformul({"upgrade", "--in-place", datei});
        EXPECT_TRUE(upgrade.code == 0 || upgrade.code == 1) << i << ": " << upgrade.err;
        if (upgrade.code == 1) {
            EXPECT_EQ(liesDatei(datei), fassungen[i]) << i;
        }
    }
}

} // namespace
