// qbFormularBAV, the occupational pension form "BAV" (no printed name of its own): direct insurance (the
// DV fields), the support fund (UK) and the pension plans, and the employee's link to the employer.
//
// Its version literal has ten characters, "04.2008 00", and its version key a rule of its own
// (versionsSchluessel below). Its Bools are read through Is<Field>, its texts go in and out as char const*,
// and six setters keep two answers exclusive; the checks, the date accessors and the fund's name and
// address are at the end of the class. Nothing of this form goes over a virtual stream.
#pragma once

#include "core/qbFormularMakros.h"

class qbPerson;

// clang-format off
#define QB_FELDER_qbFormularBAV(FELD)                                                                        \
    FELD(BoolEigen, DVAGPauschal, .xml("dvAGPauschal"))                                                      \
    FELD(BoolEigen, DVDurchschnitt, .xml("dvDurchschnitt"))                                                  \
    FELD(BoolEigen, DVSonderZahlung, .xml("dvSonderZahlung"))                                                \
    FELD(TextEigen, DVSonderZahlungTxt, .xml("dvSonderZahlungTxt"))                                          \
    FELD(Double, DVSonderZahlungPA, .xml("dvSonderZahlungPA"))                                               \
    FELD(Double, DVLohnsteuer, .xml("dvLohnsteuer"))                                                         \
    FELD(EnumEigen, Beteiligung)                                                                             \
    FELD(BoolEigen, UKMitgliedAG, .xml("ukMitgliedAG"))                                                      \
    FELD(BoolEigen, UKMitgliedAN, .xml("ukMitgliedAN"))                                                      \
    FELD(Double, AGAnteilVWL, .xml("agAnteilVWL"))                                                           \
    FELD(BoolEigen, PSVAG)                                                                                   \
    FELD(BoolEigen, PSVAN)                                                                                   \
    FELD(BoolEigen, TodGesetz, .xml("todGesetz"))                                                            \
    FELD(TextKopie, TodGesetzReihenfolge, .xml("todGesetzReihenfolge"))                                      \
    FELD(BoolEigen, TodFrei, .xml("todFrei"))                                                                \
    FELD(TextEigen, TodFreiName, .xml("todFreiName"))                                                        \
    FELD(Flag, TodFreiGeschlecht, .xml("todFreiGeschlecht").standard(0L))                                     \
    FELD(DateEigen, TodFreiDatum, .xml("todFreiDatum"))                                                      \
    FELD(TextEigen, TodFreiAdresse, .xml("todFreiAdresse"))                                                  \
    FELD(DateEigen, ANBetriebsEintritt, .xml("anBetriebsEintritt"))                                          \
    FELD(TextEigen, ANPersNr, .xml("anPersNr"))                                                              \
    FELD(DateEigen, ZusageDatum, .xml("zusageDatum"))                                                        \
    FELD(FlagEigen, UKFirmaIstMitglied, .xml("ukFirmaIstMitglied"))                                          \
    FELD(TextEigen, UKFirmenMitgliedschaftsNr, .xml("ukFirmenMitgliedschaftsNr"))                            \
    FELD(BoolEigen, AltZusage10b, .xml("altZusage10b"))                                                      \
    FELD(DateEigen, DatumAltZusage, .xml("datumAltZusage"))                                                  \
    FELD(Double, Steuersatz, .ohneXml().standard(30))                                                        \
    FELD(Long, ArbeitnehmerAnzahl, .standard(-1))                                                            \
    FELD(FlagEigen, UKFirmaErstmaligeAnmeldung, .ohneXml())                                                  \
    FELD(EnumEigen, Fluktuationsrate, .ohneXml())                                                            \
    FELD(Flag, Finanzierungsstrategie)                                                                       \
    FELD(Flag, unwiderruflicherBezugBeiMischFin)                                                             \
    FELD(Double, agBeitragBeiMischFin)
// clang-format on

class qbFormularBAV : public qbFormular {
    QB_FORMULAR(qbFormularBAV, qbFormular, QB_FELDER_qbFormularBAV)

public:
    // The degree of participation; 0 is none. Values 5 and 9 cross over in their names: see the texts.
    enum BETEILIGUNG {
        BeteiligungKeine = 0,
        BeteiligungNicht = 1,
        BeteiligungBeteiligt = 2,
        BeteiligungBeherrschend = 3,
        BeteiligungNichtBeherrschend = 4,
        BeteiligungFamilie = 5,
        BeteiligungNichtBerufstaetig = 6,
        BeteiligungNichtBeherrschendOhnePSV = 7,
        BeteiligungFamilieOhnePSV = 8,
        BeteiligungFamilieMitPSV = 9,
        BeteiligungBeherrschendGGF = 10,
        BeteiligungNichtBeherrschendMitPSV = 11,
        BeteiligungArbeitnehmer = 12,
    };
    enum FLUKTUATIONSRATE {
        FluktuationKeine = 0,
        FluktuationBis10 = 1,
        Fluktuation10Bis25 = 2,
        FluktuationUeber25 = 3
    };

    // Only the print-piece number counts: pension forms of different persons are equal.
    RWBoolean isEqual(const RWCollectable* other) const override;
    // The full reset: every field back to its default and the person to "VP1". The virtual loesche is the
    // base's and empties the person alone.
    void Loesche();

    // ---- Accessors
    bool IsDVAGPauschal() const { return DVAGPauschal; }
    void RefDVAGPauschl(bool v) { DVAGPauschal = v; }
    bool IsDVDurchschnitt() const { return DVDurchschnitt; }
    void RefDVDurchschnitt(bool v) { DVDurchschnitt = v; }
    bool IsDVSonderZahlung() const { return DVSonderZahlung; }
    void RefDVSonderZahlung(bool v) { DVSonderZahlung = v; }
    const char* RefDVSonderZahlungTxt() const { return DVSonderZahlungTxt; }
    void RefDVSonderZahlungTxt(const char* v) { DVSonderZahlungTxt = v; }
    bool IsUKMitgliedAG() const { return UKMitgliedAG; }
    void RefUKMitgliedAG(bool v);
    bool IsUKMitgliedAN() const { return UKMitgliedAN; }
    void RefUKMitgliedAN(bool v);
    bool IsPSVAG() const { return PSVAG; }
    void RefPSVAG(bool v);
    bool IsPSVAN() const { return PSVAN; }
    void RefPSVAN(bool v);
    bool IsTodGesetz() const { return TodGesetz; }
    void RefTodGesetz(bool v);
    bool IsTodFrei() const { return TodFrei; }
    void RefTodFrei(bool v);
    const char* RefTodFreiName() const { return TodFreiName; }
    void RefTodFreiName(const char* v) { TodFreiName = v; }
    const char* RefTodFreiAdresse() const { return TodFreiAdresse; }
    void RefTodFreiAdresse(const char* v) { TodFreiAdresse = v; }
    const char* RefANPersNr() const { return ANPersNr; }
    void RefANPersNr(const char* v) { ANPersNr = v; }
    unsigned char IsUKFirmaIstMitglied() const { return UKFirmaIstMitglied; }
    void RefUKFirmaIstMitglied(unsigned char v) { UKFirmaIstMitglied = v; }
    const char* RefUKFirmenMitgliedschaftsNr() const { return UKFirmenMitgliedschaftsNr; }
    void RefUKFirmenMitgliedschaftsNr(const char* v) { UKFirmenMitgliedschaftsNr = v; }
    bool IsAltZusage10b() const { return AltZusage10b; }
    void RefAltZusage10b(bool v) { AltZusage10b = v; }
    unsigned char IsUKFirmaErstmaligeAnmeldung() const { return UKFirmaErstmaligeAnmeldung; }
    void RefUKFirmaErstmaligeAnmeldung(unsigned char v) { UKFirmaErstmaligeAnmeldung = v; }

    // ---- Enumerations: the text of the value ("" outside the table), and the value from its exact text
    // (on no match 0 and a message).
    int RefBeteiligungEnum() const { return Beteiligung; }
    const char* RefBeteiligung() const;
    const char* RefBeteiligung(const char* text);
    int RefFluktuationsrateEnum() const { return Fluktuationsrate; }
    const char* RefFluktuationsrate() const;
    const char* RefFluktuationsrate(const char* text);

    static const char* RefBeteiligungNicht();
    static const char* RefBeteiligungBeteiligt();
    static const char* RefBeteiligungBeherrschend();
    static const char* RefBeteiligungNichtBeherrschend();
    static const char* RefBeteiligungFamilie();
    static const char* RefBeteiligungNichtBerufstaetig();
    static const char* RefBeteiligungNichtBeherrschendOhnePSV();
    static const char* RefBeteiligungFamilieOhnePSV();
    static const char* RefBeteiligungFamilieMitPSV();
    static const char* RefBeteiligungBeherrschendGGF();
    static const char* RefBeteiligungNichtBeherrschendMitPSV();
    static const char* RefBeteiligungArbeitnehmer();
    bool IsBeteiligungNichtBeteiligt() const { return Beteiligung == BeteiligungNicht; }
    bool IsBeteiligt() const { return Beteiligung == BeteiligungBeteiligt; }
    bool IsBeteiligungBeherrschend() const { return Beteiligung == BeteiligungBeherrschend; }
    bool ISBeteiligungNichtBeherrschend() const { return Beteiligung == BeteiligungNichtBeherrschend; }
    // 5 and 9 cross over: this one asks for 5, the value of RefBeteiligungFamilie's text ...
    bool IsBeteiligungFamilieMitPSV() const { return Beteiligung == BeteiligungFamilie; }
    bool IsBeteiligungNichtBerufstaetig() const { return Beteiligung == BeteiligungNichtBerufstaetig; }
    bool IsBeteiligungNichtBeherrschendGGFOhnePSV() const {
        return Beteiligung == BeteiligungNichtBeherrschendOhnePSV;
    }
    bool IsBeteiligungFamilieOhnePSV() const { return Beteiligung == BeteiligungFamilieOhnePSV; }
    // ... and this one for 9, the value of RefBeteiligungFamilieMitPSV's text.
    bool IsBeteiligungFamilie() const { return Beteiligung == BeteiligungFamilieMitPSV; }
    bool IsBeteiligungBeherrschendGGF() const { return Beteiligung == BeteiligungBeherrschendGGF; }
    bool IsBeteiligungNichtBeherrschendGGFMitPSV() const {
        return Beteiligung == BeteiligungNichtBeherrschendMitPSV;
    }
    bool IsBeteiligungArbeitnehmer() const { return Beteiligung == BeteiligungArbeitnehmer; }

    static const char* TxtFluktuationBis10();
    static const char* TxtFluktuation10Bis25();
    static const char* TxtFluktuationUeber25();

    // ---- Constants offered to the application
    static double RefDVMaxBeitrag() { return 1752.0; }
    static double RefDVMaxBeitragMitDurch() { return 2148.0; }
    static double RefUKMaxKapital() { return 250000.0; }
    static const char* RefUKMaxKapitalString() { return "250.000 Euro"; }
    static double RefUKMaxRente() { return 25769.0; }
    static const char* RefUKMaxRenteString() { return "25.769 Euro"; }
    static double RefUKMinBeitrag() { return 600.0; }
    static const char* RefReihenfolgeEhegatteKinder();
    static const char* RefReihenfolgeKinderEhegatte();

    // ---- Checks: the message of the first rule that fails, or "". With a show flag: true when nothing
    // failed; a failure is shown in a message box when anzeigen is not 0.
    const char* pruefDatenDV() const;
    const char* pruefDatenUK() const;
    const char* pruefDatenPF() const;
    const char* pruefDatenPK() const;
    bool pruefDatenDV(unsigned char anzeigen, void* fenster) const;
    bool pruefDatenUK(unsigned char anzeigen, void* fenster) const;
    bool pruefDatenPF(unsigned char anzeigen, void* fenster) const;
    bool pruefDatenPK(unsigned char anzeigen, void* fenster) const;

    // ---- Dates. A setter from text stores what it parsed and returns a message ("" when all is well).
    RWDate RefANBetriebsEintritt() const { return ANBetriebsEintritt; }
    void RefANBetriebsEintritt(RWDate& d) { ANBetriebsEintritt = d; }
    const char* RefANBetriebsEintritt(const char* text);
    RWCString RefANBetriebsEintrittMitPkt() const;
    RWCString RefANBetriebsEintrittOhnePkt() const;
    short RefANBetriebsEintrittJahr() const { return static_cast<short>(ANBetriebsEintritt.year()); }
    short RefANBetriebsEintrittMonat() const { return static_cast<short>(ANBetriebsEintritt.month()); }
    bool HatANBetriebsEintritt() const { return ANBetriebsEintritt.isValid(); }
    RWDate RefTodFreiDatum() const { return TodFreiDatum; }
    const char* RefTodFreiDatum(const char* text);
    RWCString RefTodFreiDatumMitPkt() const;
    void SetZusageDatum(RWDate& d) { ZusageDatum = d; }
    const char* SetZusageDatum(const char* text);
    bool HatZusageDatum() const { return ZusageDatum.isValid(); }
    // The commitment date, or when none is set the date calculated from ersatz (MMYYYY, DDMMYYYY or
    // DD.MM.YYYY), which is not stored.
    RWDate RefZusageDatum(RWCString ersatz) const;
    RWCString RefZusageDatumMitPkt(RWCString ersatz) const;
    RWCString RefZusageDatumOhnePkt(RWCString ersatz) const;
    short RefZusageJahr(RWCString ersatz) const;
    short RefZusageMonat(RWCString ersatz) const;
    RWDate RefDatumAltZusage() const { return DatumAltZusage; }
    const char* RefDatumAltZusage(RWDate d);
    const char* RefDatumAltZusage(const char* text);
    RWCString RefDatumAltZusageMitPkt() const;
    bool HatDatumAltZusage() const { return DatumAltZusage.isValid(); }

    // ---- The pension fund
    static const char* CalcUKNameLang();
    static const char* CalcUKNameKurz();
    static void VVKNachPerson(qbPerson* person);

    // The version key of this form: MM.YYYY gives YYYYMM, "MM.YYYY NN" gives YYYYMMNN, any other length 0.
    static long versionsSchluessel(const RWCString& version);

private:
    long versionsSchluessel() const { return versionsSchluessel(Version); }
    const char* pruefeBis(int regeln) const;
    bool zeigeFehler(const char* meldung, unsigned char anzeigen, void* fenster) const;
    static RWDate berechneZusageDatum(RWCString text);
};
