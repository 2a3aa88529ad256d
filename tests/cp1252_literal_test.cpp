// Windows-1252 literals: the library's sources are UTF-8 and its text is Windows-1252. The bytes below
// are written out in hex, so that these tests mean the same whatever a compiler makes of a literal.
#include "core/qbFormularListe.h"
#include "core/qbKlassen.h"
#include "health/qbFormularAllgGesu.h"
#include "health/qbFormularL146.h"
#include "qballg/cp1252_literal.h"
#include "rw/locale.h"
#include "rw/rwdate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>

namespace {

std::string hex(std::string_view bytes) {
    std::string out;
    char buf[4];
    for (unsigned char b : bytes) {
        std::snprintf(buf, sizeof buf, "%02x", b);
        if (!out.empty()) out += ' ';
        out += buf;
    }
    return out;
}

const qbKlasse& klasse(const char* name) { return *qbKlasseZuName(name); }

} // namespace

TEST(Cp1252Literal, ConvertsWhileCompiling) {
    static_assert(std::string_view("Erklärung"_cp1252) == "Erkl\xE4rung");
    static_assert(std::string_view("ÄÖÜäöüß"_cp1252) == "\xC4\xD6\xDC\xE4\xF6\xFC\xDF");
    static_assert(std::string_view("€ – „x“ ‰ Ÿ"_cp1252) == "\x80 \x96 \x84x\x93 \x89 \x9F");
    static_assert(std::string_view("ASCII bleibt"_cp1252) == "ASCII bleibt");
    static_assert(std::string_view(""_cp1252).empty());
    EXPECT_EQ(hex("Überweisung"_cp1252), "dc 62 65 72 77 65 69 73 75 6e 67");
}

TEST(Cp1252Literal, HeaderConstantsOfTheClassTableAreWindows1252InTheLibrary) {
    EXPECT_EQ(
        hex(klasse("qbFormularL146").name),
        "45 72 6b 6c e4 72 75 6e 67 20 57 69 72 62 65 6c 73 e4 75 6c 65 6e 62 65 73 63 68 77 65 72 64 65 6e");
    EXPECT_EQ(hex(klasse("qbFormularL145").name),
              "45 72 6b 6c e4 72 75 6e 67 20 56 65 72 6c 65 74 7a 75 6e 67 65 6e");
    qbFormularL146 form;
    EXPECT_EQ(hex(form.RefDruckstueckName().std()), hex(klasse("qbFormularL146").name));
}

TEST(Cp1252Literal, CatalogueNamesAreWindows1252InTheLibrary) {
    qbFormularListe liste;
    auto katalog = liste.RefDruckstueckeInfo();
    auto name = [&](const char* nummer) {
        for (size_t i = 0; i < katalog.entries(); ++i)
            if (katalog.at(i).Nummer == nummer) return katalog.at(i).Name.std();
        return std::string("?");
    };
    // "Änderungsprotokoll zum LV-Antrag"
    EXPECT_EQ(
        hex(name("Aenderungsprotokoll")),
        "c4 6e 64 65 72 75 6e 67 73 70 72 6f 74 6f 6b 6f 6c 6c 20 7a 75 6d 20 4c 56 2d 41 6e 74 72 61 67");
    EXPECT_EQ(hex(name("GR396").substr(0, 11)), "dc 62 65 72 77 65 69 73 75 6e 67"); // "Überweisung"
    EXPECT_NE(name("L142").find("Zw\xF6lffingerdarm"), std::string::npos);
}

TEST(Cp1252Literal, DurationPhraseOfTheHealthBaseIsWindows1252InTheLibrary) {
    // "länger als 6 Monate"
    const std::string phrase = qbFormularAllgGesu::DauerPhrase(28, qbFormularAllgGesu::Einzahl).std();
    EXPECT_NE(phrase.find("\x6c\xe4\x6e\x67\x65\x72 als 6 Monate"), std::string::npos) << hex(phrase);
}

TEST(Cp1252Literal, GermanMonthNamesOfTheLocaleAreWindows1252) {
    const RWLocaleSnapshot deutsch("german");
    EXPECT_EQ(hex(deutsch.monthName(3).std()), "4d e4 72 7a");    // "März"
    EXPECT_EQ(hex(deutsch.monthName(3, true).std()), "4d e4 72"); // "Mär"
}

// The rule that keeps the two compilers' libraries equal: a literal of the library with a character
// outside ASCII is converted by the _cp1252 suffix, never left to the compiler's execution charset.
TEST(Cp1252Literal, EveryLibraryLiteralOutsideAsciiCarriesTheSuffix) {
    namespace fs = std::filesystem;
    const fs::path wurzel(QBFORMUL_SOURCE_DIR);
    const std::regex literal(R"re("(?:[^"\\\n]|\\.)*"(_cp1252)?)re");
    int dateien = 0, umgewandelt = 0;
    for (const char* ordner : {"platform", "core", "health", "sport", "finance", "pension", "clerical"}) {
        if (!fs::exists(wurzel / ordner)) continue;
        for (const auto& eintrag : fs::recursive_directory_iterator(wurzel / ordner)) {
            const auto endung = eintrag.path().extension();
            if (endung != ".h" && endung != ".cpp" && endung != ".def") continue;
            if (eintrag.path().filename() == "cp1252_literal.h") continue; // explains the suffix by example
            ++dateien;
            std::ifstream in(eintrag.path());
            std::string zeile;
            for (int nummer = 1; std::getline(in, zeile); ++nummer) {
                // A comment is not compiled; the sources hold no "//" inside a literal outside ASCII.
                const auto kommentar = zeile.find("//");
                const std::string code = zeile.substr(0, kommentar);
                for (std::sregex_iterator it(code.begin(), code.end(), literal), ende; it != ende; ++it) {
                    const std::string text = it->str();
                    const bool ausserhalbAscii = std::any_of(text.begin(), text.end(), [](char c) {
                        return static_cast<unsigned char>(c) >= 0x80;
                    });
                    if (!ausserhalbAscii) continue;
                    if ((*it)[1].matched)
                        ++umgewandelt;
                    else
                        ADD_FAILURE() << eintrag.path() << ":" << nummer << ": " << text << " has no _cp1252";
                }
            }
        }
    }
    EXPECT_GT(dateien, 40);
    EXPECT_GT(umgewandelt, 40);
}
