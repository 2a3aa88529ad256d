#include "clerical/qbFormularBA276.h"

#include "clerical/qbDatumMitPunkten.h"
#include "core/qbFormularDefinition.h"

QB_FORMULAR_IDENTITAET(qbFormularBA276, QB_FELDER_qbFormularBA276)
QB_FORMULAR_KONSTRUKTOR(qbFormularBA276)
// No stamp, no version test: a restored application keeps its stored Version.
QB_FORMULAR_SPEICHERN_OHNE_STEMPEL(qbFormularBA276)
QB_FORMULAR_LADEN(qbFormularBA276)
QB_FORMULAR_GROESSE(qbFormularBA276)
QB_FORMULAR_XML(qbFormularBA276)
QB_FORMULAR_LOESCHE_VON_HAND_MIT_PERSON(qbFormularBA276)

RWCString qbFormularBA276::RefGebdatMitPkt() const { return qbDatumMitPunkten(Gebdat); }
