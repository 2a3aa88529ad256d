#include "core/qbKlassen.h"

#include "core/qbFormular.h"
#include "qballg/cp1252_literal.h"
#include "rw/factory.h"

#include <cstring>

#define QB_KLASSE(Id, Klasse, Basis, Nummer, Name, Version, Seiten, Person, Listenart, Suche, Xml, Kopie)    \
    {Id,                                                                                                     \
     #Klasse,                                                                                                \
     #Basis,                                                                                                 \
     Nummer,                                                                                                 \
     Name,                                                                                                   \
     Version,                                                                                                \
     Seiten,                                                                                                 \
     Person,                                                                                                 \
     qbListenart::Listenart,                                                                                 \
     &Suche,                                                                                                 \
     Xml,                                                                                                    \
     &qbFelder_##Klasse,                                                                                     \
     &qbErzeuge_##Klasse,                                                                                    \
     &qbKopiere_##Kopie,                                                                                     \
     &qbZuweise_##Klasse,                                                                                    \
     &qbAusXml_##Klasse,                                                                                     \
     &qbZuXml_##Klasse},
const qbKlasse qbKlassen[qbKlassenAnzahl] = {
#include "core/qbKlassen.def"
};
#undef QB_KLASSE

const qbSuchregel qbSucheOhne = {nullptr, true, true, nullptr};
const qbSuchregel qbSuchePerson = {nullptr, true, true, nullptr};
const qbSuchregel qbSucheOhnePersonBeimLiefern = {nullptr, false, true, nullptr};
const qbSuchregel qbSucheOhnePerson = {nullptr, false, false, nullptr};
// Numbers of pension print pieces that liefereFormular treats as the pension form; FormularVorhanden,
// loescheFormular and neuesFormular do not know them.
static const char* const kPensionsAliase[] = {"BA441", "BA443", "BA444", "BA652",
                                              "BA646", "BA644", "BA645", nullptr};
const qbSuchregel qbSuchePensionsform = {nullptr, true, true, kPensionsAliase};

const qbKlasse* qbKlasseZuNummer(const RWCString& nummer) {
    for (const qbKlasse& k : qbKlassen)
        if (k.listenart != qbListenart::Basis && nummer == k.nummer) return &k;
    return nullptr;
}

const qbKlasse* qbKlasseZuNummerOderAlias(const RWCString& nummer) {
    if (const qbKlasse* k = qbKlasseZuNummer(nummer)) return k;
    for (const qbKlasse& k : qbKlassen)
        if (k.suche->aliase)
            for (const char* const* alias = k.suche->aliase; *alias; ++alias)
                if (nummer == *alias) return &k;
    return nullptr;
}

const qbKlasse* qbKlasseZuXmlTyp(const RWCString& typ) {
    for (const qbKlasse& k : qbKlassen)
        if (k.imXmlImport && typ == k.klassenName) return &k;
    return nullptr;
}

const qbKlasse* qbKlasseZuName(const RWCString& klassenName) {
    for (const qbKlasse& k : qbKlassen)
        if (klassenName == k.klassenName) return &k;
    return nullptr;
}

const qbKlasse* qbKlasseZuId(RWClassID id) {
    for (const qbKlasse& k : qbKlassen)
        if (k.id == id) return &k;
    return nullptr;
}

void qbKlassenAnmelden() {
    for (const qbKlasse& k : qbKlassen)
        rwAddToFactory(k.erzeuge, k.id, RWStringID(k.klassenName));
}

// In reverse order of registration, each class first by id and then by string id.
void qbKlassenAbmelden() {
    for (size_t i = qbKlassenAnzahl; i-- > 0;) {
        rwRemoveFromFactory(qbKlassen[i].id);
        rwRemoveFromFactory(RWStringID(qbKlassen[i].klassenName));
    }
}

// A program linked with the static library that reaches its forms only through the factory refers to
// nothing of this file, and the linker would leave it out together with the registration below. The
// library's link interface therefore names this symbol as undefined (-u qbformul_klassen_anker), which
// keeps the file, and through the table every class, in every program that links the library.
extern "C" void qbformul_klassen_anker() {}

namespace {
// Registers every class when the library is loaded and removes them when it is unloaded.
struct qbKlassenRegistrierung {
    qbKlassenRegistrierung() { qbKlassenAnmelden(); }
    ~qbKlassenRegistrierung() { qbKlassenAbmelden(); }
} registrierung;
} // namespace
