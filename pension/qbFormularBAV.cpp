#include "pension/qbFormularBAV.h"

#include "core/qbFormularDefinition.h"
#include "core/qbLayout.h"
#include "nldat/qbNldUserID.h"
#include "qballg/qbPerson.h"
#include "rw/locale.h"

#include <windows.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

QB_FORMULAR_IDENTITAET(qbFormularBAV, QB_FELDER_qbFormularBAV)
QB_FORMULAR_KONSTRUKTOR(qbFormularBAV)
QB_FORMULAR_GROESSE(qbFormularBAV)

long qbFormularBAV::versionsSchluessel(const RWCString& version) {
    const std::string& v = version.std();
    if (v.size() == 7) return std::atol((v.substr(3, 4) + v.substr(0, 2)).c_str());
    if (v.size() == 10) return std::atol((v.substr(3, 4) + v.substr(0, 2) + v.substr(8, 2)).c_str());
    return 0;
}

// ---- Streams

// The stamp, the header and every field, whatever the record was read from; no value of the old layouts.
QB_FORMULAR_SPEICHERN_DATEI(qbFormularBAV)

// Records up to 10.2006 begin with eight texts and hold a Double after DVSonderZahlungPA; before 08.2003 a
// Char stood before ZusageDatum; 10.2006 ends with a Text, a Date and a Char. The fields came with 12.2002,
// 08.2003, 01.2005, and with the ten-character versions 01.2007 01 and 04.2008 00.
// clang-format off
static constexpr qbSchritt kLayout[] = {
    qbVerworfen::Text.vor(200611), qbVerworfen::Text.vor(200611), qbVerworfen::Text.vor(200611),
    qbVerworfen::Text.vor(200611), qbVerworfen::Text.vor(200611), qbVerworfen::Text.vor(200611),
    qbVerworfen::Text.vor(200611), qbVerworfen::Text.vor(200611),
    "DVAGPauschal", "DVDurchschnitt", "DVSonderZahlung", "DVSonderZahlungTxt", "DVSonderZahlungPA",
    qbVerworfen::Double.vor(200611),
    "DVLohnsteuer", "Beteiligung", "UKMitgliedAG", "UKMitgliedAN", qbSchritt("AGAnteilVWL").ab(200308),
    "PSVAG", "PSVAN", "TodGesetz", qbSchritt("TodGesetzReihenfolge").ab(200308),
    "TodFrei", "TodFreiName", qbSchritt("TodFreiGeschlecht").ab(200212),
    "TodFreiDatum", "TodFreiAdresse", "ANBetriebsEintritt", "ANPersNr",
    qbVerworfen::Char.vor(200308),
    "ZusageDatum", qbSchritt("UKFirmaIstMitglied").ab(200212), qbSchritt("UKFirmenMitgliedschaftsNr").ab(200212),
    qbSchritt("AltZusage10b").ab(200501), qbSchritt("DatumAltZusage").ab(200501),
    qbVerworfen::Text.ab(200610).vor(200611), qbVerworfen::Date.ab(200610).vor(200611),
    qbVerworfen::Char.ab(200610).vor(200611),
    qbSchritt("Steuersatz").ab(20070101), qbSchritt("ArbeitnehmerAnzahl").ab(20070101),
    qbSchritt("UKFirmaErstmaligeAnmeldung").ab(20070101), qbSchritt("Fluktuationsrate").ab(20070101),
    qbSchritt("Finanzierungsstrategie").ab(20070101),
    qbSchritt("unwiderruflicherBezugBeiMischFin").ab(20080400), qbSchritt("agBeitragBeiMischFin").ab(20080400)};
// clang-format on

// How the tool's explain names the branch of a key.
static const char* layoutName(long schluessel) {
    if (schluessel == 200610) return "10.2006";
    const struct {
        long bis;
        const char* name;
    } baender[] = {{200212, "vor 12.2002"}, {200308, "vor 08.2003"},    {200501, "vor 01.2005"},
                   {200610, "vor 10.2006"}, {20070101, "nach 10.2006"}, {20080400, "ab 01.2007 01"}};
    for (const auto& b : baender)
        if (schluessel < b.bis) return b.name;
    return "ab 04.2008 00";
}

void qbFormularBAV::restoreGuts(RWFile& f) {
    qbFormular::restoreGuts(f);
    const long schluessel = versionsSchluessel();
    if (schluessel < 200308) TodGesetzReihenfolge = RefReihenfolgeEhegatteKinder();
    qbLiesLayout(*this, f, {layoutName(schluessel), kLayout}, {&felder()}, schluessel);
}

// Nothing of a pension form travels on a virtual stream, not even the header.
void qbFormularBAV::saveGuts(RWvostream&) const {}
void qbFormularBAV::restoreGuts(RWvistream&) {}

// ---- XML: in an order of its own, with ukFirmaIstMitglied and ukFirmenMitgliedschaftsNr twice.
static constexpr const char* kXmlFolge[] = {"DVLohnsteuer",
                                            "DVAGPauschal",
                                            "DVDurchschnitt",
                                            "DVSonderZahlung",
                                            "DVSonderZahlungTxt",
                                            "DVSonderZahlungPA",
                                            "Beteiligung",
                                            "UKFirmaIstMitglied",
                                            "UKFirmenMitgliedschaftsNr",
                                            "UKMitgliedAG",
                                            "UKMitgliedAN",
                                            "AGAnteilVWL",
                                            "PSVAG",
                                            "PSVAN",
                                            "TodGesetz",
                                            "TodGesetzReihenfolge",
                                            "TodFrei",
                                            "TodFreiName",
                                            "TodFreiDatum",
                                            "TodFreiAdresse",
                                            "TodFreiGeschlecht",
                                            "ANBetriebsEintritt",
                                            "ANPersNr",
                                            "ZusageDatum",
                                            "UKFirmaIstMitglied",
                                            "UKFirmenMitgliedschaftsNr",
                                            "AltZusage10b",
                                            "DatumAltZusage",
                                            "ArbeitnehmerAnzahl",
                                            "Finanzierungsstrategie",
                                            "unwiderruflicherBezugBeiMischFin",
                                            "agBeitragBeiMischFin",
                                            nullptr};

QB_FORMULAR_XML_IN_FOLGE(qbFormularBAV, kXmlFolge)

// ---- Identity and reset

RWBoolean qbFormularBAV::isEqual(const RWCollectable* other) const {
    const auto* o = static_cast<const qbFormular*>(other);
    const RWCString& a = DruckstueckNummer;
    const RWCString& b = o->RefDruckstueckNummer();
    if (a.length() != b.length()) return 0;
    return std::memcmp(a.data(), b.data(), a.length()) == 0 ? 1 : 0;
}

// The base's reset: only the person goes. Loesche is the full one.
void qbFormularBAV::loesche() { qbFormular::loesche(); }

void qbFormularBAV::Loesche() {
    PersonenKennung = "";
    *this = qbFormularBAV();
}

// ---- Exclusive answers: true clears the partner, false leaves it.

void qbFormularBAV::RefUKMitgliedAG(bool v) {
    UKMitgliedAG = v;
    if (v) UKMitgliedAN = false;
}
void qbFormularBAV::RefUKMitgliedAN(bool v) {
    UKMitgliedAN = v;
    if (v) UKMitgliedAG = false;
}
void qbFormularBAV::RefPSVAG(bool v) {
    PSVAG = v;
    if (v) PSVAN = false;
}
void qbFormularBAV::RefPSVAN(bool v) {
    PSVAN = v;
    if (v) PSVAG = false;
}
void qbFormularBAV::RefTodGesetz(bool v) {
    TodGesetz = v;
    if (v) TodFrei = false;
}
void qbFormularBAV::RefTodFrei(bool v) {
    TodFrei = v;
    if (v) TodGesetz = false;
}

// ---- Enumerations

static const char* const kBeteiligung[] = {"",
                                           "nicht beteiligter GF/Vorstand",
                                           "beteiligt",
                                           "beherrschend",
                                           "nicht beherrschender GGF/Vorstand",
                                           "Familienangehöriger"_cp1252,
                                           "nicht berufstätig"_cp1252,
                                           "nicht beherrschender GGF/Vorstand, nicht PSV-pflichtig",
                                           "Familienangehöriger, nicht PSV-pflichtig"_cp1252,
                                           "Familienangehöriger, PSV-pflichtig"_cp1252,
                                           "beherrschender GGF/Vorstand",
                                           "nicht beherrschender GGF/Vorstand, PSV-pflichtig",
                                           "Arbeitnehmer"};
static const char* const kFluktuation[] = {"", "weniger als 10%", "zwischen 10% und 25%", "mehr als 25%"};

template <size_t N>
static const char* textDesWerts(const char* const (&texte)[N], int wert) {
    return wert > 0 && wert < static_cast<int>(N) ? texte[wert] : "";
}

// The whole text, exact and case-sensitive; 0 on no match.
template <size_t N>
static int wertDesTexts(const char* const (&texte)[N], const char* text) {
    for (size_t i = 1; i < N; ++i)
        if (text && std::strcmp(texte[i], text) == 0) return static_cast<int>(i);
    return 0;
}

const char* qbFormularBAV::RefBeteiligung() const { return textDesWerts(kBeteiligung, Beteiligung); }
const char* qbFormularBAV::RefBeteiligung(const char* text) {
    Beteiligung = wertDesTexts(kBeteiligung, text);
    return Beteiligung ? "" : "Beteiligungsgrad nicht erlaubt !";
}
const char* qbFormularBAV::RefFluktuationsrate() const {
    return textDesWerts(kFluktuation, Fluktuationsrate);
}
const char* qbFormularBAV::RefFluktuationsrate(const char* text) {
    Fluktuationsrate = wertDesTexts(kFluktuation, text);
    return Fluktuationsrate ? "" : "Fluktuationsrate nicht erlaubt !";
}

const char* qbFormularBAV::RefBeteiligungNicht() { return kBeteiligung[BeteiligungNicht]; }
const char* qbFormularBAV::RefBeteiligungBeteiligt() { return kBeteiligung[BeteiligungBeteiligt]; }
const char* qbFormularBAV::RefBeteiligungBeherrschend() { return kBeteiligung[BeteiligungBeherrschend]; }
const char* qbFormularBAV::RefBeteiligungNichtBeherrschend() {
    return kBeteiligung[BeteiligungNichtBeherrschend];
}
const char* qbFormularBAV::RefBeteiligungFamilie() { return kBeteiligung[BeteiligungFamilie]; }
const char* qbFormularBAV::RefBeteiligungNichtBerufstaetig() {
    return kBeteiligung[BeteiligungNichtBerufstaetig];
}
const char* qbFormularBAV::RefBeteiligungNichtBeherrschendOhnePSV() {
    return kBeteiligung[BeteiligungNichtBeherrschendOhnePSV];
}
const char* qbFormularBAV::RefBeteiligungFamilieOhnePSV() { return kBeteiligung[BeteiligungFamilieOhnePSV]; }
const char* qbFormularBAV::RefBeteiligungFamilieMitPSV() { return kBeteiligung[BeteiligungFamilieMitPSV]; }
const char* qbFormularBAV::RefBeteiligungBeherrschendGGF() {
    return kBeteiligung[BeteiligungBeherrschendGGF];
}
const char* qbFormularBAV::RefBeteiligungNichtBeherrschendMitPSV() {
    return kBeteiligung[BeteiligungNichtBeherrschendMitPSV];
}
const char* qbFormularBAV::RefBeteiligungArbeitnehmer() { return kBeteiligung[BeteiligungArbeitnehmer]; }
const char* qbFormularBAV::TxtFluktuationBis10() { return kFluktuation[FluktuationBis10]; }
const char* qbFormularBAV::TxtFluktuation10Bis25() { return kFluktuation[Fluktuation10Bis25]; }
const char* qbFormularBAV::TxtFluktuationUeber25() { return kFluktuation[FluktuationUeber25]; }

const char* qbFormularBAV::RefReihenfolgeEhegatteKinder() {
    return "Ehegatte bzw. eingetragener Lebenspartner, Kinder";
}
const char* qbFormularBAV::RefReihenfolgeKinderEhegatte() {
    return "Kinder, Ehegatte bzw. eingetragener Lebenspartner";
}
