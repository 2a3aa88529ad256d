#include "pruefungen.h"

#include "pension/qbFormularBAV.h"

#include <cstring>

namespace qbtool {

namespace {

template <class Klasse, const char* (Klasse::*Pruefe)() const>
const char* ruf(const qbFormular& form) {
    return (static_cast<const Klasse&>(form).*Pruefe)();
}

// clang-format off
const Pruefung kPruefungen[] = {
    {"qbFormularBAV", "pruefDatenDV", &ruf<qbFormularBAV, &qbFormularBAV::pruefDatenDV>},
    {"qbFormularBAV", "pruefDatenUK", &ruf<qbFormularBAV, &qbFormularBAV::pruefDatenUK>},
    {"qbFormularBAV", "pruefDatenPF", &ruf<qbFormularBAV, &qbFormularBAV::pruefDatenPF>},
    {"qbFormularBAV", "pruefDatenPK", &ruf<qbFormularBAV, &qbFormularBAV::pruefDatenPK>},
};
// clang-format on

} // namespace

std::vector<const Pruefung*> pruefungenDerKlasse(const char* klasse) {
    std::vector<const Pruefung*> gefunden;
    for (const Pruefung& p : kPruefungen)
        if (std::strcmp(p.klasse, klasse) == 0) gefunden.push_back(&p);
    return gefunden;
}

} // namespace qbtool
