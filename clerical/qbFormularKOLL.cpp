#include "clerical/qbFormularKOLL.h"

#include "core/qbFormularDefinition.h"

#include <windows.h>

QB_FORMULAR_ROUTINE(qbFormularKOLL, QB_FELDER_qbFormularKOLL)

const char* qbFormularKOLL::pruefDaten() const {
    if (KollektivvertragNummer.isNull() && Vertragspartner.isNull() && Mitgliedsnummer.isNull())
        return "Bitte geben Sie eine Gruppenvertragsnummer oder einen\nVertragspartner oder Mitgliedsnummer "
               "(falls Verband) ein.";
    // Only 1 is a tick: 0 and 0xff alike are none.
    if (VNMitgliedJN != 1 && VPMitgliedJN != 1 && FamilienangehoerigerMitgliedJN != 1)
        return "Mindestens ein Haken muss gesetzt werden.";
    return "";
}

bool qbFormularKOLL::pruefDaten(unsigned char anzeigen, void* fenster) const {
    const char* meldung = pruefDaten();
    if (!*meldung) return true;
    if (anzeigen) MessageBoxA(fenster, meldung, " Fehler", MB_ICONERROR | MB_OK);
    return false;
}
