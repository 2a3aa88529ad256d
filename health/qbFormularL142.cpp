#include "health/qbFormularL142.h"

#include "core/qbFormularDefinition.h"
#include "core/qbLayout.h"

QB_FORMULAR_IDENTITAET(qbFormularL142, QB_FELDER_qbFormularL142)
QB_FORMULAR_KONSTRUKTOR(qbFormularL142)
QB_FORMULAR_SPEICHERN(qbFormularL142)
QB_FORMULAR_GROESSE(qbFormularL142)
QB_FORMULAR_XML(qbFormularL142)
QB_FORMULAR_LOESCHE(qbFormularL142)

// Records before 05.2002 knew no diarrhoea of its own: a yes there is taken as upper abdominal complaints.
static void wandleDurchfall(qbFormular& form, qbAltwerte&) {
    auto& f = static_cast<qbFormularL142&>(form);
    if (f.RefDurchfallJN() != 1) return;
    f.RefDurchfallJN(0);
    f.RefSonstigeSymptomeJN(1);
    f.RefSonstigeSymptome("Oberbauchbeschwerden");
}

// Their diagnosis was a row of six Flags and a Text. Each Flag is tested as soon as it is read, so a later
// yes overwrites an earlier one; the sixth ("other") takes the Text behind the Flags into SonstigeDiagnose,
// otherwise the Text is dropped. "Säueremangel" is spelt as the records have always had it.
struct AlteDiagnose {
    const char* diagnose;
    const char* sonstigeDiagnose; // null: the Text behind the six Flags
};
static constexpr AlteDiagnose alteDiagnosen[] = {
    {"--sonstige Diagnose--", "Säueremangel"_cp1252},
    {"Magen- oder Zwölffingerdarmgeschwür"_cp1252, ""},
    {"--sonstige Diagnose--", "Magenschleimhautentzündung"_cp1252},
    {"Geschwulst, Tumor", ""},
    {"rez./chron. Gastritis", ""},
    {"", nullptr},
};

static void wandleDiagnose(qbFormular& form, qbAltwerte& alt) {
    auto& f = static_cast<qbFormularL142&>(form);
    unsigned char flag = 0;
    for (const AlteDiagnose& regel : alteDiagnosen) {
        flag = alt.flag();
        if (flag != 1) continue;
        f.RefDiagnose(regel.diagnose);
        if (regel.sonstigeDiagnose) f.RefSonstigeDiagnose(regel.sonstigeDiagnose);
    }
    if (flag == 1)
        alt.feld("SonstigeDiagnose");
    else
        alt.text();
}

static constexpr qbSchritt durchfall{wandleDurchfall};
static constexpr qbSchritt diagnose{wandleDiagnose};

// "10.1999" (and "01.2000", which holds AntwortZuFrage behind it): the common answers stand between the
// own fields, with a Flag, an Int and a Text that no longer exist.
// clang-format off
static constexpr qbSchritt layout1999[] = {
    "Beginn", "Dauer", "SodbrennenJN", "AppetitmangelJN", "ErbrechenJN", "DurchfallJN", "SonstigeSymptomeJN",
    "SonstigeSymptome", durchfall, "HaeufigkeitBeschwerden", diagnose, "ArztAdresse", "KrankenhausJN", "KurJN",
    "KrankenhausKur", "GastroskopieJN", "Gastroskopie", "OperationJN", "Operation", "Medikamente",
    "AlkoholJN", "Alkohol", "Zigaretten", "GeheiltJN", "GeheiltSeit", "Beschwerden", "OperationGeplantJN",
    "GeplanteOperation", "DiaetJN", "Diaet", "AktuelleMedikamente", "AdresseWeitererArzt",
    "ErkrankungWeitererArzt", "MedikamenteWeitererArzt", "ArbeitsunfaehigJN", "DatumArbeitsunfaehigkeit",
    "ErkrankungArbeitsunfaehigkeit", qbVerworfen::Flag, qbVerworfen::Int, qbVerworfen::Text, "Krankheit"};

// Before 05.2002: without KotoskopieJN, Kotoskopie and ZigarettenJN.
static constexpr qbSchritt layoutVor200205[] = {
    "SodbrennenJN", "AppetitmangelJN", "ErbrechenJN", "DurchfallJN", "SonstigeSymptomeJN", "SonstigeSymptome",
    "HaeufigkeitBeschwerden", durchfall, diagnose, "GastroskopieJN", "Gastroskopie", "OperationJN", "Operation",
    "Medikamente", "AlkoholJN", "Alkohol", "Zigaretten", "GeheiltJN", "GeheiltSeit", "Beschwerden",
    "OperationGeplantJN", "GeplanteOperation", "DiaetJN", "Diaet", "AktuelleMedikamente",
    "MedikamenteWeitererArzt"};
// clang-format on

template <class Strom>
void qbFormularL142::liesGespeichert(Strom& s) {
    qbFormularAllgGesu::restoreGuts(s);
    if (hatFruehesLayout())
        liesFruehesLayout(s, {"10.1999", layout1999}, felder());
    else if (versionsSchluessel() < 200205)
        qbLiesLayout(*this, s, {"vor 05.2002", layoutVor200205}, {&felder(), &qbFormularAllgGesu::felder()});
    else
        liesEigene(s);
}

void qbFormularL142::restoreGuts(RWFile& f) { liesGespeichert(f); }
void qbFormularL142::restoreGuts(RWvistream& s) { liesGespeichert(s); }

RWCString qbFormularL142::AntwortFrage1c() const {
    return "Beschwerden " + DauerPhrase(Dauer, Mehrzahl) + "; " + HaeufigkeitBeschwerden;
}
