// What each form class does not read back from its own XML. Found by a round trip rather than kept as a
// list: every field of a fresh object gets a value of its own, the object goes through its class's
// XMLgetDat and a second fresh object through its XMLputDat, and the fields that differ are the ones the
// class does not read back. Such differences belong to the stored format and are kept.
#pragma once

#include "core/qbKlassen.h"

#include <string>
#include <vector>

namespace qbtool {

struct XmlLuecke {
    const char* tabelle; // the class whose table declares the field
    const char* feld;
};

struct XmlAsymmetrie {
    const qbKlasse* klasse;
    std::vector<XmlLuecke> nichtZurueckgelesen; // written to XML, not read back
    std::vector<XmlLuecke> nichtGeschrieben;    // not in the class's XML at all
};

// One entry per class of the class table, in its order.
std::vector<XmlAsymmetrie> xmlAsymmetrien();

// The same for the help of export and import: what every class leaves behind, then each class's own.
std::string xmlAsymmetrienText();

} // namespace qbtool
