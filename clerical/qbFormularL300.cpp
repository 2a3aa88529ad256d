#include "clerical/qbFormularL300.h"

#include "core/qbFormularDefinition.h"

#include <string>

QB_FORMULAR_IDENTITAET(qbFormularL300, QB_FELDER_qbFormularL300)
QB_FORMULAR_KONSTRUKTOR(qbFormularL300)
QB_FORMULAR_SPEICHERN(qbFormularL300)
QB_FORMULAR_GROESSE(qbFormularL300)
QB_FORMULAR_XML(qbFormularL300)
// The reset leaves the person empty.
QB_FORMULAR_LOESCHE_VON_HAND(qbFormularL300)

namespace {

// The layout of the stored version, by equality: the rows' conditions pick its fields, and this names it.
const char* layoutL300(int schluessel) {
    switch (schluessel) {
    case 200210:
        return "10.2002";
    case 200304:
        return "04.2003";
    case 200908:
        return nullptr;
    default:
        return "andere Version: Layout vor 10.2002";
    }
}

} // namespace

void qbFormularL300::restoreGuts(RWFile& f) {
    qbFormular::restoreGuts(f);
    liesEigene(f, layoutL300(versionsSchluessel()));
}

void qbFormularL300::restoreGuts(RWvistream& s) {
    qbFormular::restoreGuts(s);
    liesEigene(s);
}

bool qbFormularL300::VermerkeDesVermittlersJN() const {
    return !RWCString(VermerkeDesVermittlers.strip(RWCString::both)).isNull();
}

RWCString qbFormularL300::RefAntragstellerGebDatMitPkt() const {
    if (AntragstellerGebDat.isNull() || AntragstellerGebDat.index(".") != RW_NPOS) return AntragstellerGebDat;
    // Characters 0 and 1, 2 and 3, 4 to 7; a short text gives what it has.
    const std::string& d = AntragstellerGebDat.std();
    auto teil = [&](size_t ab, size_t n) { return ab < d.size() ? d.substr(ab, n) : std::string(); };
    return RWCString(teil(0, 2) + "." + teil(2, 2) + "." + teil(4, 4));
}
