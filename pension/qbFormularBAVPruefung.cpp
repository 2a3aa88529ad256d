// The pension form's checks, its dates as text, the calculated commitment date and the pension fund.
// Today is RWDate's current date; dates compare by their day numbers, and day number 0 is no date.
#include "pension/qbFormularBAV.h"

#include "nldat/qbNldUserID.h"
#include "qballg/cp1252_literal.h"
#include "qballg/qbPerson.h"
#include "rw/locale.h"

#include <windows.h>

#include <cstdint>

namespace {

bool gueltigBisHeute(const RWDate& d) { return d.isValid() && d.julian() <= RWDate().julian(); }

RWDate ausText(const RWCString& text) { return RWDate(text, RWLocaleSnapshot("german")); }

// With points; no date gives "..".
RWCString mitPunkten(const RWDate& d) { return d.isValid() ? d.asString("%d.%m.%Y") : RWCString(".."); }
RWCString ohnePunkte(const RWDate& d) { return d.isValid() ? d.asString("%d%m%Y") : RWCString(); }

// Stores whatever the text gave, then says what is wrong with it.
const char* setzeDatum(RWDate& feld, const char* text, const char* zukunft, const char* ungueltig) {
    feld = ausText(text ? text : "");
    if (feld.julian() > RWDate().julian()) return zukunft;
    if (!feld.isValid()) return ungueltig;
    return "";
}

} // namespace

// ---- Checks

// The rules in their order; the support fund's check has all six, the others stop at rule 5 (direct
// insurance at rule 1).
const char* qbFormularBAV::pruefeBis(int regeln) const {
    if (!gueltigBisHeute(ANBetriebsEintritt)) return "Das Datum des Betriebseintritts ist ungültig!"_cp1252;
    if (regeln < 2) return "";
    if (!TodFrei && !TodGesetz) return "Bitte Begünstigte Hinterbliebenenversorgung angeben!"_cp1252;
    if (TodGesetz && TodGesetzReihenfolge.isNull())
        return "Bitte Reihenfolge der begünstigten Hinterbliebenen angeben!"_cp1252;
    if (TodFrei) {
        if (!gueltigBisHeute(TodFreiDatum))
            return "Das Geburtsdatum des/der Lebensgefährten/in ist ungültig!"_cp1252;
        if (TodFreiName.isNull()) return "Der Name des/der Lebensgefährten/in ist ungültig!"_cp1252;
        if (TodFreiAdresse.isNull()) return "Die Anschrift des/der Lebensgefährten/in ist ungültig!"_cp1252;
    }
    if (AGAnteilVWL > 40.0) return "VWL-Beitrag kann maximal 40 EUR betragen!";
    if (regeln < 6) return "";
    // Without the blank before the mark that the setter's message has.
    if (Beteiligung == 0) return "Beteiligungsgrad nicht erlaubt!";
    return "";
}

const char* qbFormularBAV::pruefDatenDV() const { return pruefeBis(1); }
const char* qbFormularBAV::pruefDatenUK() const { return pruefeBis(6); }
const char* qbFormularBAV::pruefDatenPF() const { return pruefeBis(5); }
const char* qbFormularBAV::pruefDatenPK() const { return pruefeBis(5); }

bool qbFormularBAV::zeigeFehler(const char* meldung, unsigned char anzeigen, void* fenster) const {
    if (!*meldung) return true;
    if (anzeigen) MessageBoxA(fenster, meldung, " Fehler", MB_ICONERROR | MB_OK);
    return false;
}

bool qbFormularBAV::pruefDatenDV(unsigned char anzeigen, void* fenster) const {
    return zeigeFehler(pruefDatenDV(), anzeigen, fenster);
}
bool qbFormularBAV::pruefDatenUK(unsigned char anzeigen, void* fenster) const {
    return zeigeFehler(pruefDatenUK(), anzeigen, fenster);
}
bool qbFormularBAV::pruefDatenPF(unsigned char anzeigen, void* fenster) const {
    return zeigeFehler(pruefDatenPF(), anzeigen, fenster);
}
bool qbFormularBAV::pruefDatenPK(unsigned char anzeigen, void* fenster) const {
    return zeigeFehler(pruefDatenPK(), anzeigen, fenster);
}

// ---- Dates from text: stored at once, even when the message says the date is wrong.

const char* qbFormularBAV::RefANBetriebsEintritt(const char* text) {
    return setzeDatum(ANBetriebsEintritt, text, "Der Betriebseintritt liegt in der Zukunft!",
                      "Das Datum des Betriebseintritts ist ungültig!"_cp1252);
}

const char* qbFormularBAV::RefTodFreiDatum(const char* text) {
    return setzeDatum(TodFreiDatum, text, "Das Geburtsdatum liegt in der Zukunft!",
                      "Das Geburtsdatum des Lebensgefährten ist ungültig!"_cp1252);
}

const char* qbFormularBAV::SetZusageDatum(const char* text) {
    return setzeDatum(ZusageDatum, text, "Das Zusagedatum liegt in der Zukunft!",
                      "Das Zusagedatum ist ungültig!"_cp1252);
}

// Only a date that passes is stored; no test against today.
const char* qbFormularBAV::RefDatumAltZusage(RWDate d) {
    if (!d.isValid()) return "Bitte gültiges Datum der Altzusage (nach § 40b) erfassen!"_cp1252;
    if (d.year() > 2004) return "Das Datum der Altzusage (nach § 40b) muss vor dem Jahr 2005 liegen!"_cp1252;
    DatumAltZusage = d;
    return "";
}

const char* qbFormularBAV::RefDatumAltZusage(const char* text) {
    return RefDatumAltZusage(ausText(text ? text : ""));
}

// ---- Dates as text

RWCString qbFormularBAV::RefANBetriebsEintrittMitPkt() const { return mitPunkten(ANBetriebsEintritt); }
RWCString qbFormularBAV::RefANBetriebsEintrittOhnePkt() const { return ohnePunkte(ANBetriebsEintritt); }
RWCString qbFormularBAV::RefTodFreiDatumMitPkt() const { return mitPunkten(TodFreiDatum); }
// Two digits of the year, and nothing for no date.
RWCString qbFormularBAV::RefDatumAltZusageMitPkt() const {
    return DatumAltZusage.isValid() ? DatumAltZusage.asString("%d.%m.%y") : RWCString();
}

// ---- The commitment date: the stored one, or one calculated from the caller's text (not stored).

RWDate qbFormularBAV::RefZusageDatum(RWCString ersatz) const {
    return ZusageDatum.isValid() ? ZusageDatum : berechneZusageDatum(ersatz);
}
RWCString qbFormularBAV::RefZusageDatumMitPkt(RWCString ersatz) const {
    return mitPunkten(RefZusageDatum(ersatz));
}
RWCString qbFormularBAV::RefZusageDatumOhnePkt(RWCString ersatz) const {
    return ohnePunkte(RefZusageDatum(ersatz));
}
short qbFormularBAV::RefZusageJahr(RWCString ersatz) const {
    return static_cast<short>(RefZusageDatum(ersatz).year());
}
short qbFormularBAV::RefZusageMonat(RWCString ersatz) const {
    return static_cast<short>(RefZusageDatum(ersatz).month());
}

// The shape of the text by its length alone: MMYYYY (the first of the month), DDMMYYYY, or DD.MM.YYYY with
// any separators. Then back by the length of the previous month, whether or not the text was a date: an
// unparsable text gives 0 less that length as a 32-bit day number. February's length is that of the date's
// own year (of the year before for a date in January).
RWDate qbFormularBAV::berechneZusageDatum(RWCString text) {
    RWDate d;
    switch (text.length()) {
    case 6:
        d = ausText("01" + text);
        break;
    case 8:
        d = ausText(text);
        break;
    case 10:
        d = ausText(RWCString(text(0, 2)) + RWCString(text(3, 2)) + RWCString(text(6, 4)));
        break;
    default:
        return RWDate::fromJulian(0);
    }
    // Day number 0 is 1 January 4713 BC: its previous month is a December.
    unsigned monat = d.isValid() ? d.month() : 1;
    unsigned jahr = d.year();
    if (monat == 1) {
        monat = 12;
        jahr -= 1;
    } else {
        monat -= 1;
    }
    const auto tag = static_cast<std::uint32_t>(d.julian() - RWDate::daysInMonthYear(monat, jahr));
    return RWDate::fromJulian(tag);
}

// ---- The pension fund

const char* qbFormularBAV::CalcUKNameKurz() { return "VVK e.V."; }

// The branch data are read and dropped: the name is fixed whatever they hold.
const char* qbFormularBAV::CalcUKNameLang() {
    qbPasswort* daten = new qbPasswort(nullptr);
    daten->leseRegistry("Software\\Valdorfer\\Niederlassungsdaten");
    delete daten;
    return "VALDORFER überbetriebliche Versorgungskasse e.V."_cp1252;
}

void qbFormularBAV::VVKNachPerson(qbPerson* person) {
    if (!person) return;
    person->RefGebDat("");
    person->RefGeschlecht("");
    qbAdressDaten adresse;
    adresse.RefAnrede("Firma");
    adresse.RefName(CalcUKNameLang());
    adresse.RefStrasse("Talweg 7");
    adresse.RefPLZ("99099");
    adresse.RefOrt("Valdorf");
    person->RefAdressDaten(&adresse);
}
