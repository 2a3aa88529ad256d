#include "health/qbFormularL143.h"

#include "core/qbFormularDefinition.h"
#include "core/qbLayout.h"

#include <type_traits>

QB_FORMULAR_IDENTITAET(qbFormularL143, QB_FELDER_qbFormularL143)
QB_FORMULAR_KONSTRUKTOR(qbFormularL143)
QB_FORMULAR_SPEICHERN(qbFormularL143)
QB_FORMULAR_GROESSE(qbFormularL143)
QB_FORMULAR_XML(qbFormularL143)
QB_FORMULAR_LOESCHE(qbFormularL143)

// "10.1999" (and "01.2000", which holds AntwortZuFrage behind it): the common answers stand between the
// own fields, with a Flag, an Int and a Text that no longer exist.
// clang-format off
static constexpr qbSchritt layout1999[] = {
    "Beginn", "Dauer", "NierensteineJN", "HarnleiterstenoseJN", "GlomerulonephritisJN", "NierentumorJN",
    "HarnwegsinfekteJN", "SonstigeDiagnoseJN", "SonstigeDiagnose", "ArztAdresse", "KrankenhausJN", "KurJN",
    "KrankenhausKur", "ESWLJN", "ESWL", "OperationJN", "Operation", "NiereEntferntJN", "NiereEntfernt",
    "AlkoholJN", "Alkohol", "Zigaretten", "GeheiltJN", "GeheiltSeit", "Beschwerden", "OperationGeplantJN",
    "GeplanteOperation", "AktuelleMedikamente", "Blutuntersuchung", "Urinuntersuchung",
    "NierenfunktionsEinschraenkungJN", "NierenfunktionsEinschraenkung", "BlutdruckSyst", "BlutdruckDiast",
    "DatumBlutdruck", "BluthochdruckJN", "Bluthochdruck", "HerzerkrankungenJN", "Herzerkrankungen",
    "DiabetesJN", "Diabetes", "FettstoffwechselstoerungJN", "Fettstoffwechselstoerung", "GichtJN", "Gicht",
    "SonstigeErkrankungJN", "SonstigeErkrankung", "AdresseWeitererArzt", "ErkrankungWeitererArzt",
    "MedikamenteWeitererArzt", "ArbeitsunfaehigJN", "DatumArbeitsunfaehigkeit",
    "ErkrankungArbeitsunfaehigkeit", qbVerworfen::Flag, qbVerworfen::Int, qbVerworfen::Text, "Krankheit"};
// clang-format on

// Before 10.2002: the table's order without the rows of later versions (their rows say which).
static constexpr qbSchritt layoutVor200210[] = {qbStrecke("NierensteineJN", "MedikamenteWeitererArzt")};

// The records of 05.2002 alone hold a Text behind Koerperseiten; when it says "medikamentös", the
// medication follows it at once.
static void wandleBehandlung(qbFormular&, qbAltwerte& alt) {
    if (alt.text() == "medikamentös"_cp1252) alt.feld("Medikamente");
}
static constexpr qbSchritt layout200205[] = {qbStrecke("NierensteineJN", "Koerperseiten"),
                                             qbSchritt(wandleBehandlung),
                                             qbStrecke("ESWLJN", "MedikamenteWeitererArzt")};

// The virtual stream's reader has no test for Medikamente and NierensteineNochVorhandenJN: it reads records
// from 10.2002 on without them, while the save writes them, so those records are read two fields short.
static constexpr qbSchritt layoutVirtuellAb200210[] = {
    qbStrecke("NierensteineJN", "NiereEntfernt"), qbStrecke("AlkoholJN", "Beschwerden"),
    qbStrecke("OperationGeplantJN", "MedikamenteWeitererArzt")};

template <class Strom>
void qbFormularL143::liesGespeichert(Strom& s) {
    qbFormularAllgGesu::restoreGuts(s);
    const int schluessel = versionsSchluessel();
    if (hatFruehesLayout())
        liesFruehesLayout(s, {"10.1999", layout1999}, felder());
    else if (schluessel == 200205)
        qbLiesLayout(*this, s, {"05.2002", layout200205}, {&felder()});
    else if (schluessel < 200210)
        qbLiesLayout(*this, s, {"vor 10.2002", layoutVor200210}, {&felder()});
    else if constexpr (!std::is_same_v<Strom, RWFile>)
        qbLiesLayout(*this, s, {"virtueller Strom ab 10.2002", layoutVirtuellAb200210}, {&felder()});
    else
        liesEigene(s);
}

void qbFormularL143::restoreGuts(RWFile& f) { liesGespeichert(f); }
void qbFormularL143::restoreGuts(RWvistream& s) { liesGespeichert(s); }

RWCString qbFormularL143::AntwortFrage1() const {
    return "Beginn: " + Beginn + "; " + DauerPhrase(Dauer, Einzahl);
}
