#include "stoerung.h"

#include <cstdlib>
#include <utility>

namespace qbtool {

namespace {

using Eintraege = std::vector<std::pair<std::string, std::string>>;

// The faults of QBFORMUL_TEST_FAULT, read once; a line without a colon names none.
const Eintraege& eintraege() {
    static const Eintraege alle = [] {
        Eintraege e;
        const char* wert = std::getenv("QBFORMUL_TEST_FAULT");
        if (!wert) return e;
        const std::string text = wert;
        for (size_t anfang = 0; anfang < text.size();) {
            size_t ende = text.find('\n', anfang);
            if (ende == std::string::npos) ende = text.size();
            const std::string zeile = text.substr(anfang, ende - anfang);
            const size_t doppelpunkt = zeile.find(':');
            if (doppelpunkt != std::string::npos)
                e.emplace_back(zeile.substr(0, doppelpunkt), zeile.substr(doppelpunkt + 1));
            anfang = ende + 1;
        }
        return e;
    }();
    return alle;
}

} // namespace

bool stoerung(std::string_view art, const std::string& pfad) {
    for (const auto& [a, p] : eintraege())
        if (a == art && p == pfad) return true;
    return false;
}

std::vector<std::string> stoerungsPfade(std::string_view art) {
    std::vector<std::string> pfade;
    for (const auto& [a, p] : eintraege())
        if (a == art) pfade.push_back(p);
    return pfade;
}

} // namespace qbtool
