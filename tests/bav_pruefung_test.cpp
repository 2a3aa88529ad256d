// The pension form's checks, its dates as text, the calculated commitment date and the pension fund. Today
// is fixed for every test (RWDate::fixToday), and message boxes go to a recording handler.
#include "pension/qbFormularBAV.h"
#include "nldat/qbNldUserID.h"
#include "qballg/CQBXMLdata.h"
#include "qballg/qbPerson.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

namespace {

struct Meldung {
    void* fenster;
    std::string text;
    std::string titel;
    unsigned art;
};
std::vector<Meldung> gezeigt;

int aufzeichnen(void* fenster, const char* text, const char* titel, unsigned art) {
    gezeigt.push_back({fenster, text, titel, art});
    return IDOK;
}

const RWDate kHeute(15, 6, 2010);

class BAVPruefung : public ::testing::Test {
protected:
    void SetUp() override {
        vorherHeute = RWDate::fixToday(kHeute.julian());
        vorherHandler = qbSetMessageHandler(&aufzeichnen);
        gezeigt.clear();
    }
    void TearDown() override {
        RWDate::fixToday(vorherHeute);
        qbSetMessageHandler(vorherHandler);
    }
    // A form that passes every rule.
    static qbFormularBAV gueltig() {
        qbFormularBAV f;
        RWDate eintritt(1, 4, 2001);
        f.RefANBetriebsEintritt(eintritt);
        f.RefTodGesetz(true);
        f.RefTodGesetzReihenfolge(qbFormularBAV::RefReihenfolgeEhegatteKinder());
        f.RefBeteiligung("beteiligt");
        return f;
    }
    static qbFormularBAV mitLebensgefaehrtin() {
        qbFormularBAV f = gueltig();
        f.RefTodFrei(true);
        f.RefTodFreiDatum("01.02.1970");
        f.RefTodFreiName("Erika");
        f.RefTodFreiAdresse("Talweg 1");
        return f;
    }
    unsigned long vorherHeute = 0;
    qbMessageHandler vorherHandler = nullptr;
};

const char* const kEintritt = "Das Datum des Betriebseintritts ist ung\xFCltig!";

// ---- Checks

TEST_F(BAVPruefung, FreshFormFailsTheDirectInsuranceCheck) {
    qbFormularBAV f;
    EXPECT_STREQ(f.pruefDatenDV(), kEintritt);
    EXPECT_STREQ(f.pruefDatenUK(), kEintritt);
    EXPECT_STREQ(f.pruefDatenPF(), kEintritt);
    EXPECT_STREQ(f.pruefDatenPK(), kEintritt);
}

TEST_F(BAVPruefung, ValidFormPassesEveryCheck) {
    const qbFormularBAV f = mitLebensgefaehrtin();
    EXPECT_STREQ(f.pruefDatenDV(), "");
    EXPECT_STREQ(f.pruefDatenUK(), "");
    EXPECT_STREQ(f.pruefDatenPF(), "");
    EXPECT_STREQ(f.pruefDatenPK(), "");
    EXPECT_TRUE(f.pruefDatenUK(1, nullptr));
    EXPECT_TRUE(gezeigt.empty());
}

TEST_F(BAVPruefung, EntryTodayPassesAndTomorrowFailsWithTheChecksMessage) {
    qbFormularBAV f = gueltig();
    RWDate heute = kHeute;
    f.RefANBetriebsEintritt(heute);
    EXPECT_STREQ(f.pruefDatenDV(), "");
    RWDate morgen = kHeute + 1;
    f.RefANBetriebsEintritt(morgen);
    EXPECT_STREQ(f.pruefDatenDV(), kEintritt); // not the setter's "in der Zukunft"
    EXPECT_STREQ(f.pruefDatenUK(), kEintritt);
}

TEST_F(BAVPruefung, Rule2NeedsAWayOfSurvivorsProvision) {
    qbFormularBAV f = gueltig();
    f.RefTodGesetz(false);
    EXPECT_STREQ(f.pruefDatenUK(), "Bitte Beg\xFCnstigte Hinterbliebenenversorgung angeben!");
    EXPECT_STREQ(f.pruefDatenPF(), "Bitte Beg\xFCnstigte Hinterbliebenenversorgung angeben!");
    EXPECT_STREQ(f.pruefDatenDV(), "");
}

TEST_F(BAVPruefung, Rule3NeedsTheOrderOfSurvivorsByLaw) {
    qbFormularBAV f = gueltig();
    f.RefTodGesetzReihenfolge("");
    EXPECT_STREQ(f.pruefDatenUK(), "Bitte Reihenfolge der beg\xFCnstigten Hinterbliebenen angeben!");
}

TEST_F(BAVPruefung, Rule4ChecksThePartnersBirthdayNameAndAddressInOrder) {
    qbFormularBAV f = mitLebensgefaehrtin();
    f.RefTodFreiAdresse("");
    EXPECT_STREQ(f.pruefDatenUK(), "Die Anschrift des/der Lebensgef\xE4hrten/in ist ung\xFCltig!");
    f.RefTodFreiName("");
    EXPECT_STREQ(f.pruefDatenUK(), "Der Name des/der Lebensgef\xE4hrten/in ist ung\xFCltig!");
    f.RefTodFreiDatum("16.06.2010"); // tomorrow
    EXPECT_STREQ(f.pruefDatenUK(), "Das Geburtsdatum des/der Lebensgef\xE4hrten/in ist ung\xFCltig!");
    f.RefTodFreiDatum("kein Datum");
    EXPECT_STREQ(f.pruefDatenPK(), "Das Geburtsdatum des/der Lebensgef\xE4hrten/in ist ung\xFCltig!");
}

TEST_F(BAVPruefung, BothWaysOfSurvivorsThroughXmlApplyRules3And4) {
    qbFormularBAV f = gueltig();
    CQBXMLdata k("");
    f.XMLgetDat(k);
    CQBXMLdata beide("");
    beide.clear("qbFormularBAV");
    beide.List(CQBXMLdata("todGesetz", true));
    beide.List(CQBXMLdata("todFrei", true));
    beide.List(CQBXMLdata("todGesetzReihenfolge", RWCString("")));
    beide.List(CQBXMLdata("Beteiligung", 2));
    f.XMLputDat(beide);
    ASSERT_TRUE(f.IsTodGesetz() && f.IsTodFrei());
    EXPECT_STREQ(f.pruefDatenUK(), "Bitte Reihenfolge der beg\xFCnstigten Hinterbliebenen angeben!");
    f.RefTodGesetzReihenfolge("Kinder");
    EXPECT_STREQ(f.pruefDatenUK(), "Das Geburtsdatum des/der Lebensgef\xE4hrten/in ist ung\xFCltig!");
}

TEST_F(BAVPruefung, Rule5AllowsAtMost40EurosOfTheEmployersShare) {
    qbFormularBAV f = gueltig();
    f.RefAGAnteilVWL(40.0);
    EXPECT_STREQ(f.pruefDatenUK(), "");
    f.RefAGAnteilVWL(40.01);
    EXPECT_STREQ(f.pruefDatenUK(), "VWL-Beitrag kann maximal 40 EUR betragen!");
    EXPECT_STREQ(f.pruefDatenPF(), "VWL-Beitrag kann maximal 40 EUR betragen!");
    EXPECT_STREQ(f.pruefDatenPK(), "VWL-Beitrag kann maximal 40 EUR betragen!");
}

TEST_F(BAVPruefung, Rule6ParticipationZeroFailsTheSupportFundAndPassesThePensionPlans_Quirk) {
    qbFormularBAV f = gueltig();
    f.RefBeteiligung("x");
    EXPECT_STREQ(f.pruefDatenUK(), "Beteiligungsgrad nicht erlaubt!"); // no blank before the mark
    EXPECT_STREQ(f.pruefDatenPF(), "");
    EXPECT_STREQ(f.pruefDatenPK(), "");
}

TEST_F(BAVPruefung, ShowFlagZeroReturnsFalseAndShowsNothing) {
    qbFormularBAV f;
    int fenster = 0;
    EXPECT_FALSE(f.pruefDatenDV(0, &fenster));
    EXPECT_TRUE(gezeigt.empty());
}

TEST_F(BAVPruefung, ShowFlagShowsTheMessageWithCaptionFehlerAndTheErrorIcon) {
    qbFormularBAV f;
    int fenster = 0;
    EXPECT_FALSE(f.pruefDatenUK(1, &fenster));
    ASSERT_EQ(gezeigt.size(), 1u);
    EXPECT_EQ(gezeigt[0].fenster, &fenster);
    EXPECT_EQ(gezeigt[0].text, kEintritt);
    EXPECT_EQ(gezeigt[0].titel, " Fehler");
    EXPECT_EQ(gezeigt[0].art, 0x10u);
    EXPECT_FALSE(f.pruefDatenPF(2, nullptr));
    EXPECT_FALSE(f.pruefDatenPK(1, nullptr));
    EXPECT_FALSE(f.pruefDatenDV(1, nullptr));
    EXPECT_EQ(gezeigt.size(), 4u);
}

TEST_F(BAVPruefung, NoCheckChangesAField) {
    qbFormularBAV f;
    f.pruefDatenUK(1, nullptr);
    EXPECT_FALSE(f.HatANBetriebsEintritt());
    EXPECT_EQ(f.RefBeteiligungEnum(), 0);
}

// ---- Dates from text

TEST_F(BAVPruefung, EntryFromTextStoresAndReportsFutureAndInvalidDates) {
    qbFormularBAV f;
    EXPECT_STREQ(f.RefANBetriebsEintritt("01.04.2001"), "");
    EXPECT_EQ(f.RefANBetriebsEintritt(), RWDate(1, 4, 2001));
    EXPECT_STREQ(f.RefANBetriebsEintritt("16.06.2010"), "Der Betriebseintritt liegt in der Zukunft!");
    EXPECT_EQ(f.RefANBetriebsEintritt(), RWDate(16, 6, 2010)); // stored all the same
    EXPECT_STREQ(f.RefANBetriebsEintritt("31.02.2010"), kEintritt);
    EXPECT_FALSE(f.HatANBetriebsEintritt());
}

TEST_F(BAVPruefung, PartnersBirthdayFromTextStoresAndReports) {
    qbFormularBAV f;
    EXPECT_STREQ(f.RefTodFreiDatum("16.06.2010"), "Das Geburtsdatum liegt in der Zukunft!");
    EXPECT_EQ(f.RefTodFreiDatum(), RWDate(16, 6, 2010));
    EXPECT_STREQ(f.RefTodFreiDatum("xx"), "Das Geburtsdatum des Lebensgef\xE4hrten ist ung\xFCltig!");
    EXPECT_STREQ(f.RefTodFreiDatum("01021970"), "");
    EXPECT_EQ(f.RefTodFreiDatumMitPkt(), "01.02.1970");
}

TEST_F(BAVPruefung, CommitmentDateInTheFutureIsReportedAndStored) {
    qbFormularBAV f;
    EXPECT_STREQ(f.SetZusageDatum("01.01.2011"), "Das Zusagedatum liegt in der Zukunft!");
    EXPECT_TRUE(f.HatZusageDatum());
    EXPECT_STREQ(f.SetZusageDatum("99.99.9999"), "Das Zusagedatum ist ung\xFCltig!");
    EXPECT_FALSE(f.HatZusageDatum());
    RWDate d(1, 1, 2009);
    f.SetZusageDatum(d);
    EXPECT_TRUE(f.HatZusageDatum());
}

TEST_F(BAVPruefung, OldCommitmentStoresOnlyADateBefore2005) {
    qbFormularBAV f;
    EXPECT_STREQ(f.RefDatumAltZusage("31.12.2004"), "");
    EXPECT_EQ(f.RefDatumAltZusage(), RWDate(31, 12, 2004));
    EXPECT_STREQ(f.RefDatumAltZusage("01.01.2005"),
                 "Das Datum der Altzusage (nach \xA7 40b) muss vor dem Jahr 2005 liegen!");
    EXPECT_EQ(f.RefDatumAltZusage(), RWDate(31, 12, 2004)); // kept
    // No test against today: only the year counts.
    EXPECT_STREQ(f.RefDatumAltZusage(RWDate(1, 1, 1990)), "");
}

TEST_F(BAVPruefung, OldCommitmentRefusesAnInvalidDateAndKeepsTheFormerOne) {
    qbFormularBAV f;
    f.RefDatumAltZusage(RWDate(1, 1, 2000));
    EXPECT_STREQ(f.RefDatumAltZusage(RWDate::fromJulian(0)),
                 "Bitte g\xFCltiges Datum der Altzusage (nach \xA7 40b) erfassen!");
    EXPECT_STREQ(f.RefDatumAltZusage("kein"),
                 "Bitte g\xFCltiges Datum der Altzusage (nach \xA7 40b) erfassen!");
    EXPECT_EQ(f.RefDatumAltZusage(), RWDate(1, 1, 2000));
    EXPECT_TRUE(f.HatDatumAltZusage());
}

// ---- Dates as text

TEST_F(BAVPruefung, DatesAsTextWithAndWithoutPointsAndForNoDate) {
    qbFormularBAV f;
    EXPECT_EQ(f.RefANBetriebsEintrittMitPkt(), "..");
    EXPECT_EQ(f.RefANBetriebsEintrittOhnePkt(), "");
    EXPECT_EQ(f.RefTodFreiDatumMitPkt(), "..");
    EXPECT_EQ(f.RefANBetriebsEintrittJahr(), 0);
    EXPECT_EQ(f.RefANBetriebsEintrittMonat(), 0);
    f.RefANBetriebsEintritt("05.03.2001");
    EXPECT_EQ(f.RefANBetriebsEintrittMitPkt(), "05.03.2001");
    EXPECT_EQ(f.RefANBetriebsEintrittOhnePkt(), "05032001");
    EXPECT_EQ(f.RefANBetriebsEintrittJahr(), 2001);
    EXPECT_EQ(f.RefANBetriebsEintrittMonat(), 3);
}

TEST_F(BAVPruefung, OldCommitmentWithPointsHasTwoDigitsOfTheYearAndNothingForNoDate_Quirk) {
    qbFormularBAV f;
    EXPECT_EQ(f.RefDatumAltZusageMitPkt(), "");
    f.RefDatumAltZusage("07.08.2003");
    EXPECT_EQ(f.RefDatumAltZusageMitPkt(), "07.08.03");
}

// ---- The commitment date

TEST_F(BAVPruefung, StoredCommitmentDateIgnoresTheArgument) {
    qbFormularBAV f;
    f.SetZusageDatum("01.03.2009");
    EXPECT_EQ(f.RefZusageDatumMitPkt("012010"), "01.03.2009");
    EXPECT_EQ(f.RefZusageDatumOhnePkt("012010"), "01032009");
    EXPECT_EQ(f.RefZusageJahr("x"), 2009);
    EXPECT_EQ(f.RefZusageMonat("x"), 3);
}

TEST_F(BAVPruefung, MonthAndYearGiveTheFirstOfThePreviousMonth) {
    qbFormularBAV f;
    EXPECT_EQ(f.RefZusageDatumMitPkt("012010"), "01.12.2009");
    EXPECT_FALSE(f.HatZusageDatum()); // not stored
    EXPECT_EQ(f.RefZusageJahr("012010"), 2009);
    EXPECT_EQ(f.RefZusageMonat("012010"), 12);
}

TEST_F(BAVPruefung, TenCharactersAreDayMonthYearWithAnySeparatorsAndGoBackByThePreviousMonthsLength) {
    qbFormularBAV f;
    EXPECT_EQ(f.RefZusageDatumMitPkt("15.03.2010"), "15.02.2010");
    EXPECT_EQ(f.RefZusageDatumMitPkt("15x03y2010"), "15.02.2010");
    // 31 March less February's 28 days lands in March.
    EXPECT_EQ(f.RefZusageDatumMitPkt("31.03.2010"), "03.03.2010");
    EXPECT_EQ(f.RefZusageDatumOhnePkt("15.01.2010"), "15122009");
}

TEST_F(BAVPruefung, EightCharactersAreParsedAsTheyStand) {
    qbFormularBAV f;
    EXPECT_EQ(f.RefZusageDatumMitPkt("15032010"), "15.02.2010");
    // 1.1.2010 has eight characters and is taken as DDMMYYYY, as it stands: the parser reads it.
    EXPECT_EQ(f.RefZusageDatumMitPkt("1.1.2010"), "01.12.2009");
}

TEST_F(BAVPruefung, OtherLengthGivesNoDate) {
    qbFormularBAV f;
    EXPECT_EQ(f.RefZusageDatumMitPkt("2010"), "..");
    EXPECT_EQ(f.RefZusageDatumOhnePkt("2010"), "");
    EXPECT_EQ(f.RefZusageJahr("2010"), 0);
    EXPECT_EQ(f.RefZusageMonat("2010"), 0);
    EXPECT_FALSE(f.RefZusageDatum("2010").isValid());
}

TEST_F(BAVPruefung, UnparsableTextOfAKnownLengthGivesADayNumberBelowZeroAndIsFormatted_Quirk) {
    qbFormularBAV f;
    const RWDate d = f.RefZusageDatum("abcdefgh");
    EXPECT_TRUE(d.isValid());
    EXPECT_EQ(d.julian(), 4294967296ul - 31); // 0 less December's days, as a 32-bit day number
    EXPECT_NE(f.RefZusageDatumMitPkt("abcdefgh"), "..");
}

// ---- The pension fund

TEST_F(BAVPruefung, FundNamesAreFixedAndTheLongOneReadsTheBranchData) {
    const unsigned long vorher = qbNldUserID::registryReads();
    EXPECT_STREQ(qbFormularBAV::CalcUKNameKurz(), "VVK e.V.");
    EXPECT_STREQ(qbFormularBAV::CalcUKNameLang(), "VALDORFER \xFC"
                                                  "berbetriebliche Versorgungskasse e.V.");
    EXPECT_EQ(qbNldUserID::registryReads(), vorher + 1);
}

TEST_F(BAVPruefung, VVKNachPersonMakesThePersonTheFund) {
    qbPerson p;
    p.RefGebDat("01011970");
    p.RefGeschlecht("w");
    p.RefBeruf("Lehrerin");
    qbFormularBAV::VVKNachPerson(&p);
    EXPECT_EQ(p.RefGebDat(), "");
    EXPECT_EQ(p.RefGeschlecht(), "");
    EXPECT_EQ(p.RefBeruf(), "Lehrerin");
    EXPECT_EQ(p.RefAdressDaten().RefAnrede(), "Firma");
    EXPECT_EQ(p.RefAdressDaten().RefName(), "VALDORFER \xFC"
                                            "berbetriebliche Versorgungskasse e.V.");
    EXPECT_EQ(p.RefAdressDaten().RefStrasse(), "Talweg 7");
    EXPECT_EQ(p.RefAdressDaten().RefPLZ(), "99099");
    EXPECT_EQ(p.RefAdressDaten().RefOrt(), "Valdorf");
}

TEST_F(BAVPruefung, VVKNachPersonWithNullDoesNothing) {
    const unsigned long vorher = qbNldUserID::registryReads();
    qbFormularBAV::VVKNachPerson(nullptr);
    EXPECT_EQ(qbNldUserID::registryReads(), vorher);
}

TEST_F(BAVPruefung, TodayComesFromRWDateAndTestsFixIt) {
    EXPECT_EQ(RWDate(), kHeute);
    RWDate::fixToday(0);
    EXPECT_NE(RWDate().julian(), 0u);
    RWDate::fixToday(kHeute.julian());
}

} // namespace
