// Helpers of the tests over every class of the class table: the field tables of a class and its bases, a
// new object of a class, and the value of any field as text.
#pragma once

#include "core/qbFormular.h"
#include "core/qbKlassen.h"

#include "test_util.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace qbtest {

// The tables of a class and of its bases, the header last. Found by the class id: a row that the library
// hands out (qbKlasseZuId) need not lie in the program's copy of the table.
inline const std::vector<const qbFeldTabelle*>& kette(const qbKlasse& k) {
    static const std::map<RWClassID, std::vector<const qbFeldTabelle*>> ketten = [] {
        std::map<RWClassID, std::vector<const qbFeldTabelle*>> alle;
        for (const qbKlasse& klasse : qbKlassen)
            for (const qbKlasse* c = &klasse; c; c = qbKlasseZuName(c->basisName))
                alle[klasse.id].push_back(&c->felder());
        return alle;
    }();
    return ketten.at(k.id);
}

inline std::unique_ptr<qbFormular> erzeuge(const qbKlasse& k) {
    return std::unique_ptr<qbFormular>(static_cast<qbFormular*>(k.erzeuge()));
}

// The value of a field of any type as text: a Text as its bytes in hex.
inline std::string feldAlsText(const qbFeld& z, const qbFormular& f) {
    switch (z.art) {
    case qbArt::Text:
        return hex(bytesOf((f.*z.mitglied.text).std()));
    case qbArt::Flag:
        return std::to_string(f.*z.mitglied.flag);
    case qbArt::Char:
        return std::to_string(f.*z.mitglied.zeichen);
    case qbArt::Bool:
        return std::to_string(f.*z.mitglied.wahrheit);
    case qbArt::Int:
    case qbArt::Enum:
        return std::to_string(f.*z.mitglied.ganz);
    case qbArt::Long:
        return std::to_string(f.*z.mitglied.lang);
    case qbArt::Double:
        return std::to_string(f.*z.mitglied.zahl);
    case qbArt::Date:
        return std::to_string((f.*z.mitglied.datum).julian());
    case qbArt::Person:
        return (f.*z.mitglied.person).RefGebDat().std();
    }
    return {};
}

} // namespace qbtest
