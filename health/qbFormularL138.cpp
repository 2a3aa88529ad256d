#include "health/qbFormularL138.h"

#include "core/qbFormularDefinition.h"
#include "core/qbLayout.h"

QB_FORMULAR_IDENTITAET(qbFormularL138, QB_FELDER_qbFormularL138)
QB_FORMULAR_KONSTRUKTOR(qbFormularL138)
QB_FORMULAR_GROESSE(qbFormularL138)
QB_FORMULAR_XML(qbFormularL138)
QB_FORMULAR_LOESCHE(qbFormularL138)
QB_FORMULAR_SPEICHERN_DATEI(qbFormularL138)

// On a virtual stream the common ArbeitsunfaehigJN follows once more behind the own fields. No reader
// takes it; it stays.
void qbFormularL138::saveGuts(RWvostream& s) const {
    stempele(qbKlassen[qbIndex_qbFormularL138].version);
    qbFormularAllgGesu::saveGuts(s);
    schreibeEigene(s);
    s << ArbeitsunfaehigJN;
}

// "10.1999" (and "01.2000", which holds AntwortZuFrage behind it): the common answers stand between the
// own fields, with a Flag, an Int and a Text that no longer exist.
// clang-format off
static constexpr qbSchritt layout1999[] = {
    "Beginn", "Dauer", "BluthochdruckJN", "AnginaPectorisJN", "HerzinfarktJN", "KoronareHerzkrankheitJN",
    "HerzrhythmusstoerungenJN", "HerzinsuffizienzJN", "HerzfehlerJN", "SonstigeDiagnoseJN", "SonstigeDiagnose",
    "ArztAdresse", "KrankenhausJN", "KurJN", "KrankenhausKur", "KathederJN", "Katheder", "PTCAJN", "PTCA",
    "BypassJN", "Bypass", "OperationJN", "Operation", "Medikamente", "AlkoholJN", "Alkohol", "Zigaretten",
    "GeheiltJN", "GeheiltSeit", "Beschwerden", "OperationGeplantJN", "GeplanteOperation",
    "AktuelleMedikamente", "BlutdruckSyst", "BlutdruckDiast", "DatumBlutdruck", "EKG", "Roentgen",
    "Blutuntersuchung", "DiabetesJN", "Diabetes", "FettstoffwechselstoerungJN", "Fettstoffwechselstoerung",
    "LungenerkrankungJN", "Lungenerkrankung", "NierenerkrankungJN", "Nierenerkrankung", "SonstigeErkrankungJN",
    "SonstigeErkrankung", "AdresseWeitererArzt", "ErkrankungWeitererArzt", "MedikamenteWeitererArzt",
    "ArbeitsunfaehigJN", "DatumArbeitsunfaehigkeit", "ErkrankungArbeitsunfaehigkeit", qbVerworfen::Flag,
    qbVerworfen::Int, qbVerworfen::Text, "Krankheit"};
// clang-format on

// Before 05.2002: the table's order without ZigarettenJN and Puls (their rows say so).
static constexpr qbSchritt layoutVor200205[] = {qbStrecke("BluthochdruckJN", "MedikamenteWeitererArzt")};

template <class Strom>
void qbFormularL138::liesGespeichert(Strom& s) {
    qbFormularAllgGesu::restoreGuts(s);
    if (hatFruehesLayout())
        liesFruehesLayout(s, {"10.1999", layout1999}, felder());
    else if (versionsSchluessel() < 200205)
        qbLiesLayout(*this, s, {"vor 05.2002", layoutVor200205}, {&felder()});
    else
        liesEigene(s);
}

void qbFormularL138::restoreGuts(RWFile& f) { liesGespeichert(f); }
void qbFormularL138::restoreGuts(RWvistream& s) { liesGespeichert(s); }
