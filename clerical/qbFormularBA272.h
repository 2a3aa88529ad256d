// qbFormularBA272, "UFB-UMU-Aufnahmeantrag": the application for membership of an association of experts.
// Its Flags start at 0, not 0xff: an untouched application says "nein" everywhere. Its XMLgetDat types the
// node as a BA276, which its own XMLputDat refuses.
#pragma once

#include "core/qbFormularMakros.h"

#define QB_FELDER_qbFormularBA272(FELD)                                                                      \
    FELD(Text, Monat)                                                                                        \
    FELD(Text, Jahr)                                                                                         \
    FELD(Text, Sektion)                                                                                      \
    FELD(Text, Art)                                                                                          \
    FELD(Text, NameFirma)                                                                                    \
    FELD(Text, Rechtsform)                                                                                   \
    FELD(Text, SonstigeRechtsform)                                                                           \
    FELD(Text, Vorname1)                                                                                     \
    FELD(Text, Zuname1)                                                                                      \
    FELD(Text, Vorname2)                                                                                     \
    FELD(Text, Zuname2)                                                                                      \
    FELD(Text, Titel1)                                                                                       \
    FELD(Text, Titel2)                                                                                       \
    FELD(Text, Gebdat1)                                                                                      \
    FELD(Text, Gebdat2)                                                                                      \
    FELD(Text, Strasse)                                                                                      \
    FELD(Text, PLZ)                                                                                          \
    FELD(Text, Ort)                                                                                          \
    FELD(Text, Telefon)                                                                                      \
    FELD(Text, Telefax)                                                                                      \
    FELD(Text, EMail)                                                                                        \
    FELD(Text, Internet)                                                                                     \
    FELD(Text, Bezeichnung)                                                                                  \
    FELD(Text, Fachgebiet)                                                                                   \
    FELD(Text, Mitarbeiter)                                                                                  \
    FELD(Flag, VeroeffentlichenJN, .standard(0))                                                             \
    FELD(Flag, IHKJN, .standard(0))                                                                          \
    FELD(Text, IHKOrt)                                                                                       \
    FELD(Flag, VerbandJN, .standard(0))                                                                      \
    FELD(Text, VerbandName)                                                                                  \
    FELD(Flag, KammerJN, .standard(0))                                                                       \
    FELD(Text, KammerName)                                                                                   \
    FELD(Text, KammerOrt)                                                                                    \
    FELD(Text, KammerFunktion)                                                                               \
    FELD(Flag, Standardbeitrag, .standard(0))                                                                \
    FELD(Flag, Basisbeitrag, .standard(0))                                                                   \
    FELD(Flag, EinzugsermaechtigungJN, .standard(0))                                                         \
    FELD(Text, Ktonr)                                                                                        \
    FELD(Text, Blz)                                                                                          \
    FELD(Text, Institut)                                                                                     \
    FELD(Text, InstitutPlz)                                                                                  \
    FELD(Text, InstitutOrt)

class qbFormularBA272 : public qbFormular {
    QB_FORMULAR(qbFormularBA272, qbFormular, QB_FELDER_qbFormularBA272)

public:
    // The dates of birth with points inserted at 2 and 5 (see qbDatumMitPunkten).
    RWCString RefGebdat1mitPkt() const;
    RWCString RefGebdat2mitPkt() const;
};
