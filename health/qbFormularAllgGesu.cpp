#include "health/qbFormularAllgGesu.h"

#include "core/qbFormularDefinition.h"
#include "core/qbLayout.h"

QB_FORMULAR_IDENTITAET(qbFormularAllgGesu, QB_FELDER_qbFormularAllgGesu)
QB_FORMULAR_GROESSE(qbFormularAllgGesu)
QB_FORMULAR_XML(qbFormularAllgGesu)
QB_FORMULAR_LOESCHE(qbFormularAllgGesu)

// The base sets no header constants: a usable print piece is always one of the derived forms.
qbFormularAllgGesu::qbFormularAllgGesu() { setzeStandard(); }

// The base does not stamp a version: only a concrete form does.
void qbFormularAllgGesu::saveGuts(RWFile& f) const {
    qbFormular::saveGuts(f);
    schreibeEigene(f);
}

void qbFormularAllgGesu::saveGuts(RWvostream& s) const {
    qbFormular::saveGuts(s);
    schreibeEigene(s);
}

bool qbFormularAllgGesu::mitArbeitsplatzwechsel(int schluessel) {
    return schluessel >= 200205 || schluessel == 200111;
}

// Before 12.2000 a Flag, an Int and a Text followed the common answers; they are read and dropped. Records
// of "10.1999" and "01.2000" have keys below that too, so they lose the triple right behind the header.
static constexpr qbSchritt verworfenVor200012[] = {qbVerworfen::Flag, qbVerworfen::Int, qbVerworfen::Text};

template <class Strom>
void qbFormularAllgGesu::liesGespeichert(Strom& s) {
    qbFormular::restoreGuts(s);
    if (!hatFruehesLayout()) liesEigene(s);
    if (versionsSchluessel() < 200012)
        qbLiesLayout(*this, s, {"vor 12.2000", verworfenVor200012}, {&felder()});
}

static constexpr qbSchritt antwortZuFrage2000[] = {"AntwortZuFrage"};

template <class Strom>
void qbFormularAllgGesu::liesFruehesLayout(Strom& s, const qbLayout& layout1999,
                                           const qbFeldTabelle& eigene) {
    qbLiesLayout(*this, s, layout1999, {&eigene, &felder()});
    if (Version == "01.2000") qbLiesLayout(*this, s, {"01.2000", antwortZuFrage2000}, {&eigene, &felder()});
}
template void qbFormularAllgGesu::liesFruehesLayout(RWFile&, const qbLayout&, const qbFeldTabelle&);
template void qbFormularAllgGesu::liesFruehesLayout(RWvistream&, const qbLayout&, const qbFeldTabelle&);

void qbFormularAllgGesu::restoreGuts(RWFile& f) { liesGespeichert(f); }
void qbFormularAllgGesu::restoreGuts(RWvistream& s) { liesGespeichert(s); }

// The original takes the argument to be of the family without a test. A form of another class (the list
// asks every stored form) is compared by the plain rule here instead of being misread.
RWBoolean qbFormularAllgGesu::isEqual(const RWCollectable* other) const {
    const qbFormularAllgGesu* familie = dynamic_cast<const qbFormularAllgGesu*>(other);
    if (!familie) return qbFormular::isEqual(other);
    const qbFormularAllgGesu& o = *familie;
    if (DruckstueckNummer != o.DruckstueckNummer || PersonenKennung != o.PersonenKennung) return false;
    if (!o.Krankheit.isNull() && Krankheit != o.Krankheit) return false;
    const RWCString seine = o.RefAntwortZuFrage();
    if (AntwortZuFrage.isNull() || seine.isNull()) return true;
    return AntwortZuFrage == seine;
}

int qbFormularAllgGesu::operator==(const qbFormularAllgGesu& o) const {
    if (DruckstueckNummer != o.DruckstueckNummer || PersonenKennung != o.PersonenKennung) return false;
    if (!Krankheit.isNull() && Krankheit != o.Krankheit) return false;
    if (!AntwortZuFrage.isNull() && AntwortZuFrage != o.AntwortZuFrage) return false;
    return true;
}

RWCString qbFormularAllgGesu::DauerPhrase(int dauer, Numerus numerus) {
    const bool einzahl = numerus == Einzahl;
    const char* verb = einzahl ? "hat " : "haben ";
    const char* zeitraum;
    switch (dauer) {
    case 1:
        zeitraum = "1 Woche";
        break;
    case 2:
        zeitraum = "2 Wochen";
        break;
    case 3:
        zeitraum = "3 Wochen";
        break;
    case 4:
        zeitraum = "1 Monat";
        break;
    case 8:
        zeitraum = "2 Monate";
        break;
    case 12:
        zeitraum = "3 Monate";
        break;
    case 24:
        zeitraum = "6 Monate";
        break;
    case 28:
        zeitraum = "länger als 6 Monate"_cp1252;
        break;
    default:
        return einzahl ? "dauert noch an; " : "dauern noch an; "; // -1, 0 and every other code
    }
    return RWCString(verb) + zeitraum + " angedauert; ";
}

void qbSondeGesundheit(qbFormular& sonde, const RWCString& krankheit, const RWCString& antwortZuFrage) {
    qbFormularAllgGesu& gesu = static_cast<qbFormularAllgGesu&>(sonde);
    gesu.RefKrankheit(krankheit);
    gesu.RefAntwortZuFrage(antwortZuFrage);
}

const qbSuchregel qbSucheGesundheit = {&qbSondeGesundheit, true, true, nullptr};
