#include "health/qbFormularL241.h"

#include "core/qbFormularDefinition.h"
#include "core/qbLayout.h"

QB_FORMULAR_IDENTITAET(qbFormularL241, QB_FELDER_qbFormularL241)
QB_FORMULAR_KONSTRUKTOR(qbFormularL241)
QB_FORMULAR_SPEICHERN(qbFormularL241)
QB_FORMULAR_GROESSE(qbFormularL241)
QB_FORMULAR_XML(qbFormularL241)
QB_FORMULAR_LOESCHE(qbFormularL241)

// "10.1999" (and "01.2000", which holds AntwortZuFrage behind it): the common answers stand between the
// own fields, with a Flag, an Int and a Text that no longer exist. Neither ZigarettenJN nor
// DatumBehandlungWeitererArzt is in it.
// clang-format off
static constexpr qbSchritt layout1999[] = {
    "Diagnose", "Beginn", "Dauer", "Frage1", "AsthmaJN", "ChronischeBronchitisJN", "LungenemphysemJN",
    "LungenBronchialtumorJN", "LungenEmbolieJN", "LungentuberkoloseJN", "SarkoidoseJN", "SonstigeJN",
    "Sonstige", "ArztAdresse", "KrankenhausJN", "KurJN", "KrankenhausKur", "AdresseKrankenhausKurstaette",
    "OperationJN", "Operation", "Medikamente", "AllergienJN", "DatumAllergien", "Allergien", "AllergietestJN",
    "Allergietest", "Zigaretten", "GeheiltJN", "GeheiltSeit", "Beschwerden", "OperationGeplantJN",
    "GeplanteOperation", "AktuelleMedikamente", "LungenfunktionsEinschraenkungJN",
    "LungenfunktionsEinschraenkung", "Roentgenkontrolle", "BluthochdruckJN", "Bluthochdruck",
    "HerzerkrankungenJN", "Herzerkrankungen", "DiabetesJN", "Diabetes", "FettstoffwechselstoerungJN",
    "Fettstoffwechselstoerung", "NierenerkrankungJN", "Nierenerkrankung", "GefaessErkrankungJN",
    "GefaessErkrankung", "HauterkrankungJN", "Hauterkrankung", "SonstigeErkrankungJN", "SonstigeErkrankung",
    "AdresseWeitererArzt", "ErkrankungWeitererArzt", "MedikamenteWeitererArzt", "ArbeitsunfaehigJN",
    "DatumArbeitsunfaehigkeit", "ErkrankungArbeitsunfaehigkeit", qbVerworfen::Flag, qbVerworfen::Int,
    qbVerworfen::Text, "Krankheit"};
// clang-format on

QB_GESUNDHEIT_LADEN_MIT_FRUEHEM_LAYOUT(qbFormularL241, layout1999)

RWCString qbFormularL241::AntwortFrage1() { return BeginnUndDauer(Einzahl) + Frage1; }
