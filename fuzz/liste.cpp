#include "ziele.h"

#include "core/qbFormularListe.h"
#include "rw/bstream.h"
#include "rw/pstream.h"
#include "rw/rwerr.h"
#include "rw/rwfile.h"

#include <sstream>

namespace {

// Reads a list from bytes on the stream kind; the vendor's exceptions are how the list reports a bad
// marker or reference, so they are an answer, not a finding.
void lies(int art, const std::string& bytes, qbFormularListe& liste) {
    try {
        if (art == 0) {
            const std::string& pfad = qbfuzz::arbeitsdatei(0);
            qbfuzz::schreibe(pfad, bytes);
            RWFile f(pfad.c_str(), "rb");
            f >> liste;
        } else if (art == 1) {
            std::istringstream ein(bytes);
            RWbistream s(ein);
            s >> liste;
        } else {
            std::istringstream ein(bytes);
            RWpistream s(ein);
            s >> liste;
        }
    } catch (const RWxmsg&) {
    }
}

} // namespace

int qbFuzzListe(const uint8_t* daten, size_t laenge) {
    if (laenge < 1) return 0;
    const int art = daten[0] % 3;
    qbFormularListe liste;
    lies(art, std::string(qbfuzz::alsText(daten + 1, laenge - 1)), liste);
    qbFormularListe zweite;
    lies(art, qbfuzz::aufStrom(art, [&](auto& s) { s << liste; }), zweite);
    return 0;
}
