#include "ziele.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <unistd.h>

namespace qbfuzz {

namespace {

struct Arbeitsdateien {
    std::map<int, std::string> pfade;
    ~Arbeitsdateien() {
        for (const auto& [nummer, pfad] : pfade)
            std::remove(pfad.c_str());
    }
};

} // namespace

const std::string& arbeitsdatei(int nummer) {
    static Arbeitsdateien dateien;
    auto [eintrag, neu] = dateien.pfade.try_emplace(nummer);
    if (neu) {
        const char* ordner = std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : "/tmp";
        if (const char* tmp = std::getenv("TMPDIR"); tmp && *tmp) ordner = tmp;
        eintrag->second =
            std::string(ordner) + "/qbformul-fuzz-" + std::to_string(getpid()) + "-" + std::to_string(nummer);
    }
    return eintrag->second;
}

void schreibe(const std::string& pfad, std::string_view bytes) {
    std::FILE* f = std::fopen(pfad.c_str(), "wb");
    if (!f) throw std::runtime_error("cannot write " + pfad);
    if (!bytes.empty()) std::fwrite(bytes.data(), 1, bytes.size(), f);
    std::fclose(f);
}

std::string lies(const std::filesystem::path& pfad) {
    std::ifstream ein(pfad, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>());
}

} // namespace qbfuzz
