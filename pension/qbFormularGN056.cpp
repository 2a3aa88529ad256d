#include "pension/qbFormularGN056.h"

#include "core/qbFormularDefinition.h"
#include "core/qbLayout.h"
#include "pension/qbZweiteVersion.h"

QB_FORMULAR_KERN(qbFormularGN056, QB_FELDER_qbFormularGN056)
QB_FORMULAR_KONSTRUKTOR(qbFormularGN056)
QB_FORMULAR_LOESCHE(qbFormularGN056)

qbFormularGN056::qbFormularGN056(const qbFormularGN056& other) : qbFormular(other) {
    felder().kopiere(*this, other);
}

// The five amounts and months of the farmers' pension stay as the target has them (and so survive
// loesche, which assigns a fresh object).
qbFormularGN056& qbFormularGN056::operator=(const qbFormularGN056& other) {
    qbFormular::operator=(other);
    felder().kopiereAusser(*this, other,
                           {"EUrenteLandwirteVonMonat", "EUrenteLandwirteVonJahr", "EUrenteLandwirteBisMonat",
                            "EUrenteLandwirteBisJahr", "EUrenteLandwirte"});
    return *this;
}

// binaryStoreSize is the base's: the header alone, without the second Version and the fields.
RWspace qbFormularGN056::binaryStoreSize() const { return qbFormular::binaryStoreSize(); }

// The stamp, the header, the second copy of Version, the fields.
void qbFormularGN056::saveGuts(RWFile& f) const {
    stempele(qbKlassen[qbIndex_qbFormularGN056].version);
    qbFormular::saveGuts(f);
    qbSchreibeZweiteVersion(*this, f);
    schreibeEigene(f);
}

void qbFormularGN056::saveGuts(RWvostream& s) const {
    stempele(qbKlassen[qbIndex_qbFormularGN056].version);
    qbFormular::saveGuts(s);
    qbSchreibeZweiteVersion(*this, s);
    schreibeEigene(s);
}

// The second copy has a point at position 2; a record from before it begins with Finanzamt. Then Version
// is "0", whose key lies below every threshold.
static bool istVersion(const RWCString& text) { return text.length() > 2 && text[2] == '.'; }

// A record cut before the second copy keeps the header's Version.
void qbFormularGN056::restoreGuts(RWFile& f) {
    qbFormular::restoreGuts(f);
    const long stelle = f.CurOffset();
    const RWCString imKopf = Version;
    Version = "0";
    qbLiesZweiteVersion(*this, f);
    if (!f.good()) {
        Version = imKopf;
        return;
    }
    if (istVersion(Version)) {
        qbMeldeLayout(klassenName(), "mit zweiter Version");
    } else {
        qbMeldeLayout(klassenName(), "ohne zweite Version");
        Version = "0";
        f.SeekTo(stelle); // the text is read again, as Finanzamt
    }
    liesEigene(f);
}

// A virtual stream cannot seek back: a text that is no version is Finanzamt already.
void qbFormularGN056::restoreGuts(RWvistream& s) {
    qbFormular::restoreGuts(s);
    const RWCString imKopf = Version;
    Version = "0";
    qbLiesZweiteVersion(*this, s);
    if (!s.good()) {
        Version = imKopf;
        return;
    }
    if (istVersion(Version)) {
        liesEigene(s);
        return;
    }
    Finanzamt = Version;
    Version = "0";
    felder().lies(*this, s, 1);
}

// Its own Version key behind the header, which XMLputDat reads back; IDnummerKind only comes in.
void qbFormularGN056::XMLgetDat(CQBXMLdata& knoten) const {
    knoten.clear(klassenName());
    CQBXMLdata kopf("");
    qbFormular::XMLgetDat(kopf);
    knoten.add(std::move(kopf));
    knoten.List(CQBXMLdata("Version", Version));
    felder().xmlSchreibe(*this, knoten);
}

void qbFormularGN056::XMLputDat(CQBXMLdata& knoten) {
    if (knoten.Typ() != klassenName()) return;
    knoten.Listvalue("Version", Version);
    felder().xmlLies(*this, knoten);
    knoten.Typ(qbFormular::klassenName());
    qbFormular::XMLputDat(knoten);
    knoten.Typ(klassenName());
}

static RWCString mitPunkten(RWCString datum) {
    if (datum.length() > 4) {
        datum.insert(2, ".");
        datum.insert(5, ".");
    }
    return datum;
}

RWCString qbFormularGN056::GetGeburtsdatumMitPkt() const { return mitPunkten(Geburtsdatum); }
RWCString qbFormularGN056::GetGeburtsdatumKindMitPkt(int i) const {
    return mitPunkten(GetGeburtsdatumKind(i));
}
