// qbFormularGN056, "Dauerantrag auf Altersvorsorgezulage": the standing application for the state
// retirement allowance, with a block of ten children held as parallel arrays. Its record carries the
// version twice: after the header a second copy, which the reader believes (and finds missing in old
// records). Fields are read through Get<Field> and set through Set<Field>.
#pragma once

#include "core/qbFormularMakros.h"

// Pass i of the children's block: one entry of each array. All ten passes are written and read, whatever
// AnzahlKinder says.
#define QB_KIND_qbFormularGN056(FELD, i)                                                                     \
    QB_EINTRAG(FELD, Text, VornameKind, i)                                                                   \
    QB_EINTRAG(FELD, Text, NameKind, i)                                                                      \
    QB_EINTRAG(FELD, Text, GeschlechtKind, i, .liesAb(200704))                                               \
    QB_EINTRAG(FELD, Text, GeburtsortKind, i)                                                                \
    QB_EINTRAG(FELD, Text, Familienkasse, i)                                                                 \
    QB_EINTRAG(FELD, Text, Kindergeldnummer, i)                                                              \
    QB_EINTRAG(FELD, Text, VornameKindergeldberechtigter, i)                                                 \
    QB_EINTRAG(FELD, Text, NameKindergeldberechtigter, i)                                                    \
    QB_EINTRAG(FELD, Text, GeburtsdatumKind, i)                                                              \
    QB_EINTRAG(FELD, Int, vonMonatKind, i)                                                                   \
    QB_EINTRAG(FELD, Int, vonJahrKind, i)                                                                    \
    QB_EINTRAG(FELD, Int, bisMonatKind, i)                                                                   \
    QB_EINTRAG(FELD, Int, bisJahrKind, i)                                                                    \
    QB_EINTRAG(FELD, Flag, nichtidentischJN, i, .standard(0L))                                               \
    QB_EINTRAG(FELD, Text, IDnummerKind, i, .liesAb(201004).nurXmlLesen())

// Geburtsdatum and GeburtsdatumKind are texts DDMMYYYY. IDnummerKind comes in from XML, never goes out.
#define QB_FELDER_qbFormularGN056(FELD)                                                                      \
    FELD(GetText, Finanzamt)                                                                                 \
    FELD(GetText, Steuernummer)                                                                              \
    FELD(GetText, Sozialversicherungsnummer1)                                                                \
    FELD(GetText, Sozialversicherungsnummer2)                                                                \
    FELD(GetText, Anrede)                                                                                    \
    FELD(GetText, Titel)                                                                                     \
    FELD(GetText, Vorname)                                                                                   \
    FELD(GetText, Name)                                                                                      \
    FELD(GetText, Geburtsdatum)                                                                              \
    FELD(GetText, Geburtsort)                                                                                \
    FELD(GetText, Geschlecht)                                                                                \
    FELD(GetText, Nationalitaet)                                                                             \
    FELD(GetText, ArtZulagenberechtigung)                                                                    \
    FELD(GetFlag, AntragKinderzulageJN)                                                                      \
    FELD(IntEigen, AnzahlKinder)                                                                             \
    FELD(GetFlag, ZuordnungZulageJN, .standard(1))                                                           \
    FELD(GetFlag, ZulagenberechtigtJN)                                                                       \
    FELD(LongEigen, Entgelt)                                                                                 \
    FELD(GetText, Waehrung1)                                                                                 \
    FELD(GetInt, vonMonat)                                                                                   \
    FELD(GetInt, vonJahr)                                                                                    \
    FELD(GetInt, bisMonat)                                                                                   \
    FELD(GetInt, bisJahr)                                                                                    \
    FELD(LongEigen, PosEinkuenfte)                                                                           \
    FELD(GetText, Waehrung2)                                                                                 \
    FELD(GetText, Geburtsname, .liesAb(200601))                                                              \
    FELD(GetText, GeburtsnameGatte, .liesAb(200601))                                                         \
    FELD(GetText, IDnummerVP, .liesAb(201004))                                                               \
    FELD(GetText, IDnummerGatte, .liesAb(201004))                                                            \
    FELD(GetInt, EUrenteVonMonat, .liesAb(201004))                                                           \
    FELD(GetInt, EUrenteVonJahr, .liesAb(201004))                                                            \
    FELD(GetInt, EUrenteBisMonat, .liesAb(201004))                                                           \
    FELD(GetInt, EUrenteBisJahr, .liesAb(201004))                                                            \
    FELD(GetDouble, EUrente, .liesAb(201004))                                                                \
    FELD(GetInt, AuslandEinnahmenVonMonat, .liesAb(201004))                                                  \
    FELD(GetInt, AuslandEinnahmenVonJahr, .liesAb(201004))                                                   \
    FELD(GetInt, AuslandEinnahmenBisMonat, .liesAb(201004))                                                  \
    FELD(GetInt, AuslandEinnahmenBisJahr, .liesAb(201004))                                                   \
    FELD(GetDouble, AuslandEinnahmen, .liesAb(201004))                                                       \
    FELD(GetInt, EUrenteLandwirteVonMonat, .liesAb(201004))                                                  \
    FELD(GetInt, EUrenteLandwirteVonJahr, .liesAb(201004))                                                   \
    FELD(GetInt, EUrenteLandwirteBisMonat, .liesAb(201004))                                                  \
    FELD(GetInt, EUrenteLandwirteBisJahr, .liesAb(201004))                                                   \
    FELD(GetDouble, EUrenteLandwirte, .liesAb(201004))                                                       \
    FELD(TextEigen, MitgliedsnummerAltersklasse, .liesAb(201004))                                            \
    QB_DURCHLAEUFE_10(QB_KIND_qbFormularGN056, FELD)

class qbFormularGN056 : public qbFormular {
    QB_FORMULAR(qbFormularGN056, qbFormular, QB_FELDER_qbFormularGN056)

public:
    int GetAnzahlKinder() const { return AnzahlKinder; }
    void SetAnzahlKinder(int v) { AnzahlKinder = v; }
    long GetEntgelt() const { return Entgelt; }
    void SetEntgelt(unsigned long v) { Entgelt = static_cast<long>(v); }
    long GetPosEinkuenfte() const { return PosEinkuenfte; }
    void SetPosEinkuenfte(long v) { PosEinkuenfte = v; }
    // The setter's "Mitgliedernummer" is the spelling the application calls.
    const RWCString& GetMitgliedsnummerAltersklasse() const { return MitgliedsnummerAltersklasse; }
    void SetMitgliedernummerAltersklasse(const RWCString& v) { MitgliedsnummerAltersklasse = v; }

    // The children: index first, 0 to 9, not checked.
    QB_REIHE_INDEX_ZUERST(qbFormularGN056, RWCString, VornameKind, 10)
    QB_REIHE_INDEX_ZUERST(qbFormularGN056, RWCString, NameKind, 10)
    QB_REIHE_INDEX_ZUERST(qbFormularGN056, RWCString, GeschlechtKind, 10)
    QB_REIHE_INDEX_ZUERST(qbFormularGN056, RWCString, GeburtsortKind, 10)
    QB_REIHE_INDEX_ZUERST(qbFormularGN056, RWCString, Familienkasse, 10)
    QB_REIHE_INDEX_ZUERST(qbFormularGN056, RWCString, Kindergeldnummer, 10)
    QB_REIHE_INDEX_ZUERST(qbFormularGN056, RWCString, VornameKindergeldberechtigter, 10)
    QB_REIHE_INDEX_ZUERST(qbFormularGN056, RWCString, NameKindergeldberechtigter, 10)
    QB_REIHE_INDEX_ZUERST(qbFormularGN056, RWCString, GeburtsdatumKind, 10)
    QB_REIHE_INDEX_ZUERST(qbFormularGN056, int, vonMonatKind, 10)
    QB_REIHE_INDEX_ZUERST(qbFormularGN056, int, vonJahrKind, 10)
    QB_REIHE_INDEX_ZUERST(qbFormularGN056, int, bisMonatKind, 10)
    QB_REIHE_INDEX_ZUERST(qbFormularGN056, int, bisJahrKind, 10)
    QB_REIHE_INDEX_ZUERST(qbFormularGN056, RWCString, IDnummerKind, 10)
    QB_EINTRAEGE(qbFormularGN056, unsigned char, nichtidentischJN, 10)
    unsigned char GetnichtidentischJN(int i) const { return this->*nichtidentischJN_Eintrag(i); }
    void SetnichtidentischJN(int i, unsigned int v) {
        this->*nichtidentischJN_Eintrag(i) = static_cast<unsigned char>(v);
    }

    // The dates with points inserted at 2 and 5 of a copy longer than 4 characters, whatever it holds.
    RWCString GetGeburtsdatumMitPkt() const;
    RWCString GetGeburtsdatumKindMitPkt(int i) const;
};
