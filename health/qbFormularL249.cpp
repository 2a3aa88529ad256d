#include "health/qbFormularL249.h"

#include "core/qbFormularDefinition.h"
#include "core/qbLayout.h"

// XMLputDat of old read GesamterKoerperJN before Neurodermitis; keys are found by name, so the table's
// order gives the same result.
QB_FORMULAR_IDENTITAET(qbFormularL249, QB_FELDER_qbFormularL249)
QB_FORMULAR_KONSTRUKTOR(qbFormularL249)
QB_FORMULAR_SPEICHERN(qbFormularL249)
QB_FORMULAR_GROESSE(qbFormularL249)
QB_FORMULAR_XML(qbFormularL249)
QB_FORMULAR_LOESCHE(qbFormularL249)

// "10.1999" (and "01.2000", which holds AntwortZuFrage behind it): the common answers stand between the
// own fields, with a Flag, an Int and a Text that no longer exist. Neither the Zigaretten pair nor the
// common Beginn, Dauer and change of workplace is in it; the ArbeitsplatzwechselJN here is the form's own.
// clang-format off
static constexpr qbSchritt layout1999[] = {
    "AsthmaJN", "Asthma", "SpastischeBronchitisJN", "SpastischeBronchitis", "ChronischeBronchitisJN",
    "ChronischeBronchitis", "HeuschnupfenJN", "Heuschnupfen", "NahrungsmittelJN", "Nahrungsmittel",
    "InsektensticheJN", "Insektenstiche", "ArbeitsstoffeJN", "Arbeitsstoffe", "SonstigeUeberempfindlichkeitenJN",
    "SonstigeUeberempfindlichkeiten", "EkzemJN", "Ekzem", "NesselsuchtJN", "Nesselsucht", "NeurodermitisJN",
    "Neurodermitis", "GesamterKoerperJN", "HaendeJN", "GesichtJN", "SonstigeKoerperstellenJN",
    "SonstigeKoerperstellen", "WeitereHauterkrankungenJN", "WeitereHauterkrankungen", "ErkrankungenFamilieJN",
    "ErkrankungenFamilie", "HausarbeitJN", "ArbeitJN", "TiereJN", "AnstrengungenJN", "LebensmittelJN",
    "AndereGelegenheitenJN", "AndereGelegenheiten", "ArztAdresse", "KrankenhausJN", "KurJN", "KrankenhausKur",
    "AdresseKrankenhausKurstaette", "AllergietestJN", "Allergietest", "ArztAllergien", "Medikamente",
    "HyposensibilisierungJN", "Hyposensibilisierung", "HyposensibilisierungGeplantJN",
    "HyposensibilisierungGeplant", "ArbeitsplatzwechselJN", "Arbeitsplatzwechsel", "AktuelleMedikamente",
    "AdresseWeitererArzt", "DatumBehandlungWeitererArzt", "ErkrankungWeitererArzt", "ArbeitsunfaehigJN",
    "DatumArbeitsunfaehigkeit", "ErkrankungArbeitsunfaehigkeit", qbVerworfen::Flag, qbVerworfen::Int,
    qbVerworfen::Text, "Krankheit"};
// clang-format on

QB_GESUNDHEIT_LADEN_MIT_FRUEHEM_LAYOUT(qbFormularL249, layout1999)
