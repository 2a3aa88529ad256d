#include "finance/qbFormularGS004.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_OHNE_XML_IDENTITAET(qbFormularGS004, QB_FELDER_qbFormularGS004)
QB_FORMULAR_KONSTRUKTOR(qbFormularGS004)
QB_FORMULAR_GROESSE(qbFormularGS004)

// The RWFile record is stamped "10.2002"; the one of a virtual stream "05.2002" although it carries all
// fields, so that its reader stops short of LehreJN to HandwerklichTeilzeit.
void qbFormularGS004::saveGuts(RWFile& f) const {
    stempele("10.2002");
    qbFormular::saveGuts(f);
    schreibeEigene(f);
}

void qbFormularGS004::saveGuts(RWvostream& s) const {
    stempele("05.2002");
    qbFormular::saveGuts(s);
    schreibeEigene(s);
}

// The layouts of records before 10.2002 differ from the current one only in the rows their version
// leaves out; named here for a read observer.
static const char* layoutVor200210(const RWCString& version) {
    const int schluessel = qbVersionsSchluessel(version);
    if (qbVersionsJahr(version) < 2000) return "vor 2000";
    if (schluessel < 200010) return "vor 10.2000";
    if (schluessel < 200205) return "vor 05.2002";
    return "vor 10.2002";
}

// Records before 10.2002 had no education answers of their own: they come from Berufsausbildung.
void qbFormularGS004::restoreGuts(RWFile& f) {
    qbFormular::restoreGuts(f);
    if (versionsSchluessel() >= 200210) return liesEigene(f);
    liesEigene(f, layoutVor200210(Version));
    leiteAusbildungAb();
}

// Up to the sports block whatever the version, and nothing derived.
void qbFormularGS004::restoreGuts(RWvistream& s) {
    qbFormular::restoreGuts(s);
    liesEigene(s);
}

// Each answer is 1 when its word stands anywhere in the text, upper and lower case distinguished, and 0
// when not; the texts Lehre, Fachausbildung, Meisterbrief and Studium stay as they are.
void qbFormularGS004::leiteAusbildungAb() {
    auto steht = [this](const char* wort) -> unsigned char {
        return Berufsausbildung.contains(wort) ? 1 : 0;
    };
    LehreJN = steht("Lehre");
    FachausbildungJN = steht("Fachausbildung");
    MeisterbriefJN = steht("Meister");
    StudiumJN = steht("Studium");
}

// Field by field instead of a fresh object: PersonenKennung is left empty, not put back to "VP1", and
// Version, DruckstueckNummer, DruckstueckName and Seitenanzahl stay as they are.
void qbFormularGS004::loesche() {
    PersonenKennung = "";
    setzeStandard();
}
