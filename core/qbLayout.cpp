#include "core/qbLayout.h"

#include "core/qbFormular.h"
#include "core/qbFeldStrom.h"
#include "core/qbLeseBeobachter.h"

#include <cassert>
#include <string>
#include <type_traits>

namespace {

const qbFeldTabelle* sucheTabelle(const char* name, std::initializer_list<const qbFeldTabelle*> tabellen) {
    for (const qbFeldTabelle* t : tabellen)
        if (t->suche(name)) return t;
    return nullptr;
}

const qbFeld* sucheZeile(const char* name, std::initializer_list<const qbFeldTabelle*> tabellen) {
    const qbFeldTabelle* t = sucheTabelle(name, tabellen);
    return t ? t->suche(name) : nullptr;
}

// Reads a value of the type and hands it back; the observer sees a value thrown away.
template <qbArt Art, class T>
T liesVerworfen(RWFile& f) {
    T v{};
    qbLeseBeobachter* b = qbAktuellerLeseBeobachter();
    const long von = b ? f.CurOffset() : 0;
    qbLies<Art>(f, v);
    if (b) {
        std::string text;
        if constexpr (std::is_same_v<T, RWCString>)
            text = v.std();
        else
            text = std::to_string(v);
        b->feld(nullptr, Art, von, f.CurOffset(), text);
    }
    return v;
}
template <qbArt Art, class T>
T liesVerworfen(RWvistream& s) {
    T v{};
    qbLies<Art>(s, v);
    return v;
}

template <class Strom>
class Altwerte final : public qbAltwerte {
public:
    Altwerte(qbFormular& form, Strom& s, std::initializer_list<const qbFeldTabelle*> tabellen)
        : form_(form), s_(s), tabellen_(tabellen) {}
    unsigned char flag() override { return liesVerworfen<qbArt::Flag, unsigned char>(s_); }
    int ganz() override { return liesVerworfen<qbArt::Int, int>(s_); }
    RWCString text() override { return liesVerworfen<qbArt::Text, RWCString>(s_); }
    void feld(const char* name) override {
        const qbFeld* zeile = sucheZeile(name, tabellen_);
        assert(zeile && "a conversion names a field that no table of the form has");
        if (zeile) qbFeldTabelle::liesZeile(*zeile, &form_, s_);
    }

private:
    qbFormular& form_;
    Strom& s_;
    std::initializer_list<const qbFeldTabelle*> tabellen_;
};

bool gehoertDazu(const qbSchritt& schritt, const qbFormular& form, long schluessel) {
    if (schluessel < schritt.abSchluessel) return false;
    if (schritt.vorSchluessel && schluessel >= schritt.vorSchluessel) return false;
    return !schritt.nurVersion || form.RefVersion() == schritt.nurVersion;
}

template <class Strom>
void liesSchritte(qbFormular& form, Strom& s, const qbLayout& layout,
                  std::initializer_list<const qbFeldTabelle*> tabellen, long schluessel) {
    for (size_t i = 0; i < layout.anzahl; ++i) {
        const qbSchritt& schritt = layout.schritte[i];
        if (!gehoertDazu(schritt, form, schluessel)) continue;
        if (schritt.umwandlung) {
            Altwerte<Strom> werte(form, s, tabellen);
            schritt.umwandlung(form, werte);
            continue;
        }
        if (!schritt.feld) {
            qbFeld weg{};
            weg.art = schritt.verworfen;
            qbFeldTabelle::liesZeile(weg, nullptr, s);
            continue;
        }
        if (schritt.bisFeld) {
            const qbFeldTabelle* t = sucheTabelle(schritt.feld, tabellen);
            const qbFeld* von = t ? t->suche(schritt.feld) : nullptr;
            const qbFeld* bis = t ? t->suche(schritt.bisFeld) : nullptr;
            assert(von && bis && von <= bis && "a stretch names rows that no one table of the form has");
            if (von && bis)
                for (const qbFeld* z = von; z <= bis; ++z)
                    if (z->immerGelesen() ||
                        z->gehoertZumLayout(schluessel, qbVersionsJahr(form.RefVersion())))
                        qbFeldTabelle::liesZeile(*z, &form, s);
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
