// qbFormularAenderungsprotokoll, "Aenderungsprotokoll zum LV-Antrag": which application a change belongs to.
// Stored on an RWFile only: a virtual stream carries its header alone. Its operator== compares the three
// texts too, while isEqual, which the form list uses, is qbFormular's.
#pragma once

#include "core/qbFormularMakros.h"

#define QB_FELDER_qbFormularAenderungsprotokoll(FELD)                                                        \
    FELD(Text, Agenturnummer)                                                                                \
    FELD(Text, Antragsnummer)                                                                                \
    FELD(Text, Versicherungsbeginn)

class qbFormularAenderungsprotokoll : public qbFormular {
    QB_FORMULAR_NUR_DATEI(qbFormularAenderungsprotokoll, qbFormular, QB_FELDER_qbFormularAenderungsprotokoll)

public:
    RWspace binaryStoreSize() const override;
    int operator==(const qbFormularAenderungsprotokoll& other) const;
};
