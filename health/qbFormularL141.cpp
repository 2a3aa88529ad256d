#include "health/qbFormularL141.h"

#include "core/qbFormularDefinition.h"
#include "core/qbLayout.h"

QB_FORMULAR_IDENTITAET(qbFormularL141, QB_FELDER_qbFormularL141)
QB_FORMULAR_KONSTRUKTOR(qbFormularL141)
QB_FORMULAR_SPEICHERN_DATEI(qbFormularL141)
QB_FORMULAR_GROESSE(qbFormularL141)
QB_FORMULAR_XML(qbFormularL141)
QB_FORMULAR_LOESCHE(qbFormularL141)

// On a virtual stream the save writes the header and the own fields, past the common answers, which the
// reader still expects: such a record does not read back. It stays so.
void qbFormularL141::saveGuts(RWvostream& s) const {
    stempele(qbKlassen[qbIndex_qbFormularL141].version);
    qbFormular::saveGuts(s);
    schreibeEigene(s);
}

// "10.1999" (and "01.2000", which holds AntwortZuFrage behind it): the common answers stand between the
// own fields, with a Flag, an Int and a Text that no longer exist. Every later record has today's layout.
// clang-format off
static constexpr qbSchritt layout1999[] = {
    "Beginn", "Symptome", "Diagnose", "ArztAdresse", "KrankenhausJN", "KurJN", "KrankenhausKur", "OperationJN",
    "Operation", "BefundGutartigJN", "BefundBoesartigJN", "OrganeEntferntJN", "EntfernteOrgane",
    "StrahlentherapieJN", "Strahlentherapie", "RadiumtherapieJN", "Radiumtherapie", "ChemotherapieJN",
    "Chemotherapie", "Behandlung", "Medikamente", "GeheiltJN", "GeheiltSeit", "Beschwerden", "KontrolleJN",
    "OperationGeplantJN", "GeplanteOperation", "VorsorgeJN", "Vorsorge", "BefundEinwandfreiJN",
    "BefundKontrollbeduerftigJN", "AdresseWeitererArzt", "ErkrankungWeitererArzt", "ArbeitsunfaehigJN",
    "DatumArbeitsunfaehigkeit", "ErkrankungArbeitsunfaehigkeit", qbVerworfen::Flag, qbVerworfen::Int,
    qbVerworfen::Text, "Krankheit"};
// clang-format on

template <class Strom>
void qbFormularL141::liesGespeichert(Strom& s) {
    qbFormularAllgGesu::restoreGuts(s);
    if (hatFruehesLayout())
        liesFruehesLayout(s, {"10.1999", layout1999}, felder());
    else
        liesEigene(s);
}

void qbFormularL141::restoreGuts(RWFile& f) { liesGespeichert(f); }
void qbFormularL141::restoreGuts(RWvistream& s) { liesGespeichert(s); }
