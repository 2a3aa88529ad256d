// qbFormularL300_2, "Geldwaeschegesetz Firma": the identification of a company under the money-laundering
// law. MittelsFormularJN is written to XML as "MittelsFormularJaJN" and read back as "MittelsFormularJN", so
// a tree of its own never sets it.
#pragma once

#include "core/qbFormularMakros.h"

#define QB_FELDER_qbFormularL300_2(FELD)                                                                     \
    FELD(Flag, MittelsFormularJN, .xml("MittelsFormularJaJN").liesXml("MittelsFormularJN"))                  \
    FELD(Flag, MittelsAuszugRegisterJN)                                                                      \
    FELD(Flag, MittelsAuszugGruendungJN)                                                                     \
    FELD(Flag, AbweichendJN)                                                                                 \
    FELD(Text, Name)                                                                                         \
    FELD(Text, VermerkeDesVermittlers)

class qbFormularL300_2 : public qbFormular {
    QB_FORMULAR(qbFormularL300_2, qbFormular, QB_FELDER_qbFormularL300_2)
};
