#include "health/qbFormularL139.h"

#include "core/qbFormularDefinition.h"
#include "core/qbLayout.h"

QB_FORMULAR_IDENTITAET(qbFormularL139, QB_FELDER_qbFormularL139)
QB_FORMULAR_KONSTRUKTOR(qbFormularL139)
QB_FORMULAR_SPEICHERN(qbFormularL139)
QB_FORMULAR_GROESSE(qbFormularL139)
QB_FORMULAR_XML(qbFormularL139)
QB_FORMULAR_LOESCHE(qbFormularL139)

// Records before 08.2009 hold a Flag, an Int and a Text behind ErkrankungArbeitsunfaehig that no longer
// exist; ArztName only from 08.2008 on (its row says so).
static constexpr qbSchritt layoutVor200908[] = {
    qbStrecke("Diagnose", "ErkrankungArbeitsunfaehig"), qbVerworfen::Flag, qbVerworfen::Int,
    qbVerworfen::Text, qbStrecke("ArbeitsplatzwechselJN", "DatumArbeitsplatzwechsel")};

void qbFormularL139::restoreGuts(RWFile& f) {
    qbFormularAllgGesu::restoreGuts(f);
    if (versionsSchluessel() < 200908)
        qbLiesLayout(*this, f, {"vor 08.2009", layoutVor200908}, {&felder()});
    else
        liesEigene(f);
}

// The virtual stream's reader tests the Version text "08.2008" for ArztName where the file's reader
// compares the key, and then reads ArztAdresse, ArztName and ArztAdresse whatever the version: a record
// saved on a virtual stream holds each once, so this reader takes one Text more than was written (two for
// "08.2008") and every later field shifts. The save stays as the family has it.
static constexpr qbSchritt layoutVirtuell[] = {
    qbStrecke("Diagnose", "FacharztZuletzt"),
    qbSchritt("ArztName").nurBei("08.2008"),
    "ArztAdresse",
    "ArztName",
    qbStrecke("ArztAdresse", "ErkrankungArbeitsunfaehig"),
    qbVerworfen::Flag.vor(200908),
    qbVerworfen::Int.vor(200908),
    qbVerworfen::Text.vor(200908),
    qbStrecke("ArbeitsplatzwechselJN", "DatumArbeitsplatzwechsel")};

void qbFormularL139::restoreGuts(RWvistream& s) {
    qbFormularAllgGesu::restoreGuts(s);
    qbLiesLayout(*this, s, {"virtueller Strom", layoutVirtuell}, {&felder()});
}
