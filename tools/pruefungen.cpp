#include "pruefungen.h"

#include "clerical/qbFormularKOLL.h"
#include "clerical/qbFormularVB077.h"
#include "pension/qbFormularBAV.h"

#include <cstring>

namespace qbtool {

namespace {

template <class Klasse, const char* (Klasse::*Pruefe)() const>
RWCString ruf(const qbFormular& form) {
    return (static_cast<const Klasse&>(form).*Pruefe)();
}

// The research report lists everything that is missing, page by page.
RWCString rechercheVollstaendig(const qbFormular& form) {
    return static_cast<const qbFormularVB077&>(form).pruefDaten(true);
}

// clang-format off
const Pruefung kPruefungen[] = {
    {"qbFormularBAV", "pruefDatenDV", &ruf<qbFormularBAV, &qbFormularBAV::pruefDatenDV>},
    {"qbFormularBAV", "pruefDatenUK", &ruf<qbFormularBAV, &qbFormularBAV::pruefDatenUK>},
    {"qbFormularBAV", "pruefDatenPF", &ruf<qbFormularBAV, &qbFormularBAV::pruefDatenPF>},
    {"qbFormularBAV", "pruefDatenPK", &ruf<qbFormularBAV, &qbFormularBAV::pruefDatenPK>},
    {"qbFormularKOLL", "pruefDaten", &ruf<qbFormularKOLL, &qbFormularKOLL::pruefDaten>},
    {"qbFormularVB077", "pruefDaten(alle)", &rechercheVollstaendig},
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
