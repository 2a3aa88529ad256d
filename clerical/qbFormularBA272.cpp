#include "clerical/qbFormularBA272.h"

#include "clerical/qbDatumMitPunkten.h"
#include "core/qbFormularDefinition.h"

QB_FORMULAR_IDENTITAET(qbFormularBA272, QB_FELDER_qbFormularBA272)
QB_FORMULAR_KONSTRUKTOR(qbFormularBA272)
// No stamp, no version test: a restored application keeps its stored Version.
QB_FORMULAR_SPEICHERN_OHNE_STEMPEL(qbFormularBA272)
QB_FORMULAR_LADEN(qbFormularBA272)
QB_FORMULAR_GROESSE(qbFormularBA272)
QB_FORMULAR_LOESCHE_VON_HAND_MIT_PERSON(qbFormularBA272)

RWCString qbFormularBA272::RefGebdat1mitPkt() const { return qbDatumMitPunkten(Gebdat1); }
RWCString qbFormularBA272::RefGebdat2mitPkt() const { return qbDatumMitPunkten(Gebdat2); }

// The node is typed as the other association's application, which takes it; this form's own XMLputDat
// refuses it.
QB_FORMULAR_XML_UNTER_TYP(qbFormularBA272, "qbFormularBA276")
