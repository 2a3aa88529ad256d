// qbFormularBA276, "BAF-Aufnahmeantrag": the application for membership of an association of civil
// servants. Its Flags start at 0, not 0xff: an untouched application says "nein" everywhere.
#pragma once

#include "core/qbFormularMakros.h"

#define QB_FELDER_qbFormularBA276(FELD)                                                                      \
    FELD(Text, Monat)                                                                                        \
    FELD(Text, Jahr)                                                                                         \
    FELD(Text, Sektion)                                                                                      \
    FELD(Text, Vorname)                                                                                      \
    FELD(Text, Zuname)                                                                                       \
    FELD(Text, Titel)                                                                                        \
    FELD(Text, Amtsbezeichnung)                                                                              \
    FELD(Text, Gebdat)                                                                                       \
    FELD(Text, Strasse)                                                                                      \
    FELD(Text, Plz)                                                                                          \
    FELD(Text, Ort)                                                                                          \
    FELD(Text, TelefonBuero)                                                                                 \
    FELD(Text, TelefonPriv)                                                                                  \
    FELD(Text, FaxBuero)                                                                                     \
    FELD(Text, FaxPriv)                                                                                      \
    FELD(Text, Internet)                                                                                     \
    FELD(Text, Email)                                                                                        \
    FELD(Flag, VeroeffentlichenJN, .standard(0))                                                             \
    FELD(Text, Bezeichnung)                                                                                  \
    FELD(Text, Dienststelle)                                                                                 \
    FELD(Text, Fachgebiet)                                                                                   \
    FELD(Flag, Standardbeitrag, .standard(0))                                                                \
    FELD(Flag, Basisbeitrag, .standard(0))                                                                   \
    FELD(Flag, EinzugsermaechtigungJN, .standard(0))                                                         \
    FELD(Text, Ktonr)                                                                                        \
    FELD(Text, Blz)                                                                                          \
    FELD(Text, Institut)                                                                                     \
    FELD(Text, InstitutPlz)                                                                                  \
    FELD(Text, InstitutOrt)

class qbFormularBA276 : public qbFormular {
    QB_FORMULAR(qbFormularBA276, qbFormular, QB_FELDER_qbFormularBA276)

public:
    // The date of birth with points inserted at 2 and 5 (see qbDatumMitPunkten).
    RWCString RefGebdatMitPkt() const;
};
