#include "core/qbLayout.h"

#include "core/qbFormular.h"
#include "core/qbLeseBeobachter.h"

#include <cassert>

namespace {

const qbFeld* sucheZeile(const char* name, std::initializer_list<const qbFeldTabelle*> tabellen) {
    for (const qbFeldTabelle* t : tabellen)
        if (const qbFeld* z = t->suche(name)) return z;
    return nullptr;
}

template <class Strom>
void liesSchritte(qbFormular& form, Strom& s, const qbLayout& layout,
                  std::initializer_list<const qbFeldTabelle*> tabellen, long schluessel) {
    for (size_t i = 0; i < layout.anzahl; ++i) {
        const qbSchritt& schritt = layout.schritte[i];
        if (!schritt.gehoertZu(schluessel)) continue;
        if (!schritt.feld) {
            qbFeld weg{};
            weg.art = schritt.verworfen;
            qbFeldTabelle::liesZeile(weg, nullptr, s);
            continue;
        }
        const qbFeld* zeile = sucheZeile(schritt.feld, tabellen);
        assert(zeile && "a layout step names a field that no table of the form has");
        if (zeile) qbFeldTabelle::liesZeile(*zeile, &form, s);
    }
}

} // namespace

void qbLiesLayout(qbFormular& form, RWFile& f, const qbLayout& layout,
                  std::initializer_list<const qbFeldTabelle*> tabellen) {
    qbLiesLayout(form, f, layout, tabellen, qbVersionsSchluessel(form.RefVersion()));
}

void qbLiesLayout(qbFormular& form, RWvistream& s, const qbLayout& layout,
                  std::initializer_list<const qbFeldTabelle*> tabellen) {
    qbLiesLayout(form, s, layout, tabellen, qbVersionsSchluessel(form.RefVersion()));
}

void qbLiesLayout(qbFormular& form, RWFile& f, const qbLayout& layout,
                  std::initializer_list<const qbFeldTabelle*> tabellen, long versionsSchluessel) {
    qbMeldeLayout(tabellen.size() ? (*tabellen.begin())->klasse() : "", layout.name);
    liesSchritte(form, f, layout, tabellen, versionsSchluessel);
}

void qbLiesLayout(qbFormular& form, RWvistream& s, const qbLayout& layout,
                  std::initializer_list<const qbFeldTabelle*> tabellen, long versionsSchluessel) {
    liesSchritte(form, s, layout, tabellen, versionsSchluessel);
}

void qbMeldeLayout(const char* klasse, const char* layout) {
    if (qbLeseBeobachter* b = qbAktuellerLeseBeobachter()) b->layout(klasse, layout);
}
