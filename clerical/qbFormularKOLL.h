// qbFormularKOLL, "Gruppentarif-Klausel": the clause that attaches a contract to a group tariff. It checks
// itself before printing.
#pragma once

#include "core/qbFormularMakros.h"

#define QB_FELDER_qbFormularKOLL(FELD)                                                                       \
    FELD(Text, KollektivvertragNummer)                                                                       \
    FELD(Text, Vertragspartner)                                                                              \
    FELD(Text, Mitgliedsnummer)                                                                              \
    FELD(Flag, VNMitgliedJN)                                                                                 \
    FELD(Flag, VPMitgliedJN)                                                                                 \
    FELD(Flag, FamilienangehoerigerMitgliedJN)

class qbFormularKOLL : public qbFormular {
    QB_FORMULAR(qbFormularKOLL, qbFormular, QB_FELDER_qbFormularKOLL)

public:
    // The message of the first rule that fails, or "" when the clause is in order.
    const char* pruefDaten() const;
    // The same rules; with a message it shows it in a message box over fenster if anzeigen is not 0, and
    // gives false.
    bool pruefDaten(unsigned char anzeigen, void* fenster) const;
};
