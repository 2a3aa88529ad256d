#include "health/qbFormularL146.h"

#include "core/qbFormularDefinition.h"
#include "core/qbLayout.h"

QB_FORMULAR_IDENTITAET(qbFormularL146, QB_FELDER_qbFormularL146)
QB_FORMULAR_SPEICHERN(qbFormularL146)
QB_FORMULAR_GROESSE(qbFormularL146)
QB_FORMULAR_XML(qbFormularL146)
QB_FORMULAR_LOESCHE(qbFormularL146)

// Unlike the rest of the family, the common Dauer starts at 0.
qbFormularL146::qbFormularL146() {
    setzeStandard();
    setzeKopf(qbKlassen[qbIndex_qbFormularL146]);
    Dauer = 0;
}

// "10.1999" (and "01.2000", which holds AntwortZuFrage behind it): the common answers stand between the
// own fields, with a Flag, an Int and a Text that no longer exist.
// clang-format off
static constexpr qbSchritt layout1999[] = {
    "Beginn", "Dauer", "Frage1", "DeswegenArbeitsunfaehigJN", "DauerArbeitsunfaehig",
    "Wirbelsaeulenabschnitt", "Diagnose", "ArztAdresse", "KrankenhausJN", "KurJN", "KrankenhausKur",
    "AdresseKrankenhausKurstaette", "RoentgenJN", "DatumRoentgen", "OperationJN", "Operation", "Verordnung",
    "SonstigeVerordnung", "EinzelheitenVerordnung", "Medikamente", "GeheiltJN", "GeheiltSeit", "Beschwerden",
    "OperationGeplantJN", "GeplanteOperation", "RehaJN", "Reha", "AdresseWeitererArzt",
    "DatumBehandlungWeitererArzt", "ErkrankungWeitererArzt", "ArbeitsunfaehigJN", "DatumArbeitsunfaehigkeit",
    "ErkrankungArbeitsunfaehigkeit", qbVerworfen::Flag, qbVerworfen::Int, qbVerworfen::Text, "Krankheit"};
// clang-format on

QB_GESUNDHEIT_LADEN_MIT_FRUEHEM_LAYOUT(qbFormularL146, layout1999)

RWCString qbFormularL146::AntwortFrage1() const { return BeginnUndDauer(Einzahl) + Frage1; }

RWCString qbFormularL146::AntwortVerordnung() const {
    RWCString antwort;
    if (!SonstigeVerordnung.isNull()) antwort = SonstigeVerordnung + "; ";
    return antwort + EinzelheitenVerordnung;
}
