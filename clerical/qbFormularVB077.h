// qbFormularVB077, "Recherchebericht zum LV-Antrag": the agent's report on an applicant, with nine further
// contracts. Stored on an RWFile only: a virtual stream carries its header alone. The setters of the
// answers that others depend on empty those others; its operator== compares more than isEqual, which the
// form list uses and which is qbFormular's.
#pragma once

#include "core/qbFormularMakros.h"

// The Art a new report names for the contracts 0 to 6; the agent names 7 and 8.
inline constexpr const char* qbVB077StandardArt[9] = {"PHV",     "Rechtsschutz", "Hausrat", "Kfz", "Unfall",
                                                      "Kranken", "Leben",        "",        ""};

// One further contract, i from 0 to 8: in the stream after the answers on the household, in XML in passes of
// their own after the other fields.
#define QB_VERTRAG_qbFormularVB077(FELD, i)                                                                  \
    QB_EINTRAG(FELD, Flag, VertragJN, i, .xmlInDurchgaengen())                                               \
    QB_EINTRAG(FELD, Text, Art, i, .xmlInDurchgaengen().standard(qbVB077StandardArt[i]))                     \
    QB_EINTRAG(FELD, Text, Gesellschaft, i, .xmlInDurchgaengen())                                            \
    QB_EINTRAG(FELD, Text, Beitrag, i, .xmlInDurchgaengen())                                                 \
    QB_EINTRAG(FELD, Text, Seit, i, .xmlInDurchgaengen())                                                    \
    QB_EINTRAG(FELD, Text, Ablauf, i, .xmlInDurchgaengen())

// The last four fields came with 06.2003.
#define QB_FELDER_qbFormularVB077(FELD)                                                                      \
    FELD(Text, WohnortVN)                                                                                    \
    FELD(Text, TelefonVN)                                                                                    \
    FELD(Text, FamilienstandVN)                                                                              \
    FELD(Int, AnzahlKinderVN)                                                                                \
    FELD(Int, MtlEinkommenVN)                                                                                \
    FELD(Int, MtlBelastungVN)                                                                                \
    FELD(Text, BerufVN)                                                                                      \
    FELD(Text, ArbeitgeberVN)                                                                                \
    FELD(Text, WohnqualitaetVN)                                                                              \
    FELD(Text, WohnhaftGegendVN)                                                                             \
    FELD(Text, HausGrundbesitzVN)                                                                            \
    FELD(FlagEigen, WeitereVertraegeJN)                                                                      \
    QB_DURCHLAEUFE_9(QB_VERTRAG_qbFormularVB077, FELD)                                                       \
    FELD(TextEigen, ZweckLV)                                                                                 \
    FELD(Text, SonstigerZweckLV)                                                                             \
    FELD(FlagEigen, VerbindungKreditJN)                                                                      \
    FELD(Text, Kreditinstitut)                                                                               \
    FELD(Text, Verhandlungspartner)                                                                          \
    FELD(Text, VCAuskunft)                                                                                   \
    FELD(Text, ErgebnisVCAuskunft)                                                                           \
    FELD(FlagEigen, BestandssicherJN)                                                                        \
    FELD(Text, BestandssicherBegruendung)                                                                    \
    FELD(Text, SeitWannInBRD)                                                                                \
    FELD(Text, DauerAufenthaltserlaubnis)                                                                    \
    FELD(Text, NationalitaetEhepartner)                                                                      \
    FELD(Text, BerufEhepartner)                                                                              \
    FELD(Text, NameRechercheur)                                                                              \
    FELD(Text, VornameRechercheur)                                                                           \
    FELD(Text, FDBDAgenturRechercheur)                                                                       \
    FELD(Text, BerufEhepartnerVN, .liesAb(200306))                                                           \
    FELD(Text, FD, .liesAb(200306))                                                                          \
    FELD(Text, BD, .liesAb(200306))                                                                          \
    FELD(Flag, AuslaendischerAntragstellerJN, .liesAb(200306))

class qbFormularVB077 : public qbFormular {
    QB_FORMULAR_NUR_DATEI(qbFormularVB077, qbFormular, QB_FELDER_qbFormularVB077)

public:
    // The nine further contracts.
    enum VERSICHERUNGSART { PHV, Rechtsschutz, Hausrat, Kfz, Unfall, Kranken, Leben, Sonstige1, Sonstige2 };

    RWspace binaryStoreSize() const override;
    int operator==(const qbFormularVB077& other) const;

    // What is missing, page by page, each line "  ..." with a line feed; "" when nothing is. With alle
    // false the list stops at the first line.
    RWCString pruefDaten(bool alle) const;
    // The same under a request to complete it; shown in a message box over fenster if anzeigen is not 0.
    // False when something is missing.
    bool pruefDaten(unsigned char anzeigen, void* fenster, bool alle) const;

    // The contracts' answers; a contract set to anything but 1 loses all but its Art.
    QB_EINTRAEGE(qbFormularVB077, unsigned char, VertragJN, 9)
    unsigned char RefVertragJN(VERSICHERUNGSART art) const { return this->*VertragJN_Eintrag(art); }
    void RefVertragJN(VERSICHERUNGSART art, unsigned char wert);
    QB_REIHE(qbFormularVB077, Text, Art, 9)
    QB_REIHE(qbFormularVB077, Text, Gesellschaft, 9)
    QB_REIHE(qbFormularVB077, Text, Beitrag, 9)
    QB_REIHE(qbFormularVB077, Text, Seit, 9)
    QB_REIHE(qbFormularVB077, Text, Ablauf, 9)

    // Answers that others depend on: anything but 1 (for ZweckLV: no "sonstige") empties those.
    unsigned char RefWeitereVertraegeJN() const { return WeitereVertraegeJN; }
    void RefWeitereVertraegeJN(unsigned char wert);
    const RWCString& RefZweckLV() const { return ZweckLV; }
    void RefZweckLV(const RWCString& text);
    unsigned char RefVerbindungKreditJN() const { return VerbindungKreditJN; }
    void RefVerbindungKreditJN(unsigned char wert);
    unsigned char RefBestandssicherJN() const { return BestandssicherJN; }
    void RefBestandssicherJN(unsigned char wert);
};
