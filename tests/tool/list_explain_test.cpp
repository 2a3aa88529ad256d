// list and explain: the stored forms with their offsets, and what a damaged file says about itself.
#include "anwendungen.h"

#include <regex>

using namespace qbtest;

namespace {

// The offset at which form n (from 1) of the example begins: the size of a file with the forms before it.
long beginnVonForm(unsigned n) {
    Ordner ordner;
    qbFormularListe voll = beispielAntrag();
    qbFormularListe teil;
    for (unsigned i = 0; i + 1 < n; ++i)
        teil.neuesFormular(*voll.liefereFormularAnPos(static_cast<int>(i)));
    speichere(teil, ordner / "teil.qbf");
    return static_cast<long>(liesDatei(ordner / "teil.qbf").size());
}

// The cells of a table row: separated by at least two blanks.
std::vector<std::string> zellen(const std::string& zeile) {
    std::vector<std::string> aus;
    std::regex trenner("\\s{2,}");
    for (std::sregex_token_iterator it(zeile.begin(), zeile.end(), trenner, -1), ende; it != ende; ++it)
        if (!it->str().empty()) aus.push_back(*it);
    return aus;
}

std::vector<std::string> zeilen(const std::string& text) {
    std::vector<std::string> aus;
    std::istringstream ein(text);
    for (std::string z; std::getline(ein, z);)
        aus.push_back(z);
    return aus;
}

bool hatZeile(const std::string& text, const std::string& muster) {
    const std::regex r(muster);
    for (const std::string& z : zeilen(text))
        if (std::regex_search(z, r)) return true;
    return false;
}

class ToolList : public ::testing::Test {
protected:
    void SetUp() override { speichere(beispielAntrag(), datei); }
    Ordner ordner;
    const std::string datei = ordner / "antrag.qbf";
};

TEST_F(ToolList, ShowsOneRowPerFormWithPositionOffsetClassPiecePersonVersionsAndSize) {
    const Lauf lauf = qbformul({"list", datei});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    const std::vector<std::string> z = zeilen(lauf.aus);
    ASSERT_EQ(z.size(), 6u) << lauf.aus; // a line on the file, the titles, four rows
    EXPECT_EQ(z[0], datei + ": 4 forms, list Version 05.1999, " + std::to_string(liesDatei(datei).size()) +
                        " bytes");
    EXPECT_EQ(zellen(z[1]), (std::vector<std::string>{"Pos", "Byte", "Class", "Piece", "Name", "Person",
                                                      "Version", "Current", "Bytes"}));
    const char* klassen[] = {"qbFormularL147", "qbFormularL145", "qbFormularL440", "qbFormularL146"};
    const char* stuecke[] = {"L147", "L145", "L440", "L146"};
    const char* namen[] = {"Erklärung Blutdruckkontrolle", "Erklärung Verletzungen", "Erklärung Kampfsport",
                           "Erklärung Wirbelsäulenbeschwerden"};
    const char* personen[] = {"VN", "VP1", "VP1", "VP2"};
    const char* versionen[] = {"05.2002", "10.2002", "08.2005", "05.2002"};
    for (unsigned i = 0; i < 4; ++i) {
        const std::vector<std::string> c = zellen(z[2 + i]);
        ASSERT_EQ(c.size(), 9u) << z[2 + i];
        EXPECT_EQ(c[0], std::to_string(i + 1));
        const long beginn = beginnVonForm(i + 1);
        EXPECT_EQ(c[1], std::to_string(beginn));
        EXPECT_EQ(c[2], klassen[i]);
        EXPECT_EQ(c[3], stuecke[i]);
        EXPECT_EQ(c[4], namen[i]);
        EXPECT_EQ(c[5], personen[i]);
        EXPECT_EQ(c[6], versionen[i]);
        EXPECT_EQ(c[7], versionen[i]);
        // The record without its two bytes of class id.
        EXPECT_EQ(c[8], std::to_string(beginnVonForm(i + 2) - beginn - 2));
    }
}

TEST_F(ToolList, TruncatedRecordIsUnreadableInputNamingFormAndOffset) {
    const long form2 = beginnVonForm(2);
    schreibeDatei(datei, liesDatei(datei).substr(0, static_cast<size_t>(form2 + 60)));
    for (const std::string befehl : {"list", "show"}) {
        const Lauf lauf = qbformul({befehl, datei});
        EXPECT_EQ(lauf.code, 2) << befehl;
        ASSERT_EQ(lauf.fehlerzeilen().size(), 1u) << befehl << lauf.err;
        EXPECT_TRUE(enthaelt(lauf.err, "qbformul: " + datei + ": form 2 (qbFormularL145, L145 VP1) at byte " +
                                           std::to_string(form2) + ": the record is cut off"))
            << befehl << lauf.err;
    }
}

TEST_F(ToolList, FirstByteThatIsNoMarkerIsReported) {
    schreibeDatei(datei, "Hallo, Welt");
    const Lauf lauf = qbformul({"list", datei});
    EXPECT_EQ(lauf.code, 2);
    EXPECT_EQ(lauf.err,
              "qbformul: " + datei + ": is no application file: its first byte is 0x48, not ':' (0x3A)\n");
}

TEST_F(ToolList, EmptyFileIsReported) {
    schreibeDatei(datei, "");
    const Lauf lauf = qbformul({"show", datei});
    EXPECT_EQ(lauf.code, 2);
    EXPECT_TRUE(enthaelt(lauf.err, "is empty")) << lauf.err;
}

TEST_F(ToolList, BytesBehindTheLastFormAreReported) {
    schreibeDatei(datei, liesDatei(datei) + "xyz");
    for (const std::string befehl : {"list", "show"}) {
        const Lauf lauf = qbformul({befehl, datei});
        EXPECT_EQ(lauf.code, 2) << befehl;
        EXPECT_TRUE(enthaelt(lauf.err, "form 4 (qbFormularL146, L146 VP2)")) << lauf.err;
        EXPECT_TRUE(enthaelt(lauf.err, "goes on for 3 more bytes")) << lauf.err;
    }
}

TEST_F(ToolList, UnknownClassIdIsReported) {
    std::string bytes = liesDatei(datei);
    bytes[18] = '\x34';
    bytes[19] = '\x12';
    schreibeDatei(datei, bytes);
    const Lauf lauf = qbformul({"list", datei});
    EXPECT_EQ(lauf.code, 2);
    EXPECT_TRUE(enthaelt(lauf.err, "form 1 at byte 18: class id 4660 (0x1234) is no form class")) << lauf.err;
}

TEST_F(ToolList, MarksRecordsOlderThanTheirClass) {
    const Lauf lauf = qbformul({"list", legacyBeispiel()});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(hatZeile(lauf.aus, "qbFormularL145 +L145 .* 10\\.1999 +10\\.2002 \\*")) << lauf.aus;
    EXPECT_TRUE(hatZeile(lauf.aus, "qbFormularL440 +L440 .* 08\\.2005 +08\\.2005 +[0-9]+$")) << lauf.aus;
    EXPECT_TRUE(hatZeile(lauf.aus, "qbFormularL451 +L451 .* 11\\.2001 +04\\.2005 \\*")) << lauf.aus;
    EXPECT_TRUE(hatZeile(lauf.aus, "qbFormularL036 +L036 .* 11\\.2001 +11\\.2001 +[0-9]+$")) << lauf.aus;
    EXPECT_TRUE(hatZeile(lauf.aus, "qbFormularGS004 +GS004 .* 09\\.1999 +10\\.2002 \\*")) << lauf.aus;
    EXPECT_TRUE(hatZeile(lauf.aus, "qbFormularGS004BUZ +GS004_001 .* 12\\.2003 +03\\.2009 \\*")) << lauf.aus;
    EXPECT_TRUE(
        enthaelt(lauf.aus, "* " + std::to_string(legacyBeispielAeltere()) + " records have an older layout"))
        << lauf.aus;
}

// ---- explain

class ToolExplain : public ::testing::Test {
protected:
    Ordner ordner;
    const std::string datei = ordner / "antrag.qbf";
};

TEST_F(ToolExplain, ShowsEveryValueWithOffsetLengthTypeFieldAndTheLayout) {
    qbFormularListe liste;
    qbFormularL440 kampfsport;
    kampfsport.RefKampfsportarten("Judo");
    kampfsport.RefFreizeitsportJN(1);
    kampfsport.RefBerufssportlerJN(0);
    liste.neuesFormular(kampfsport);
    speichere(liste, datei);
    const Lauf lauf = qbformul({"explain", datei});
    ASSERT_EQ(lauf.code, 0) << lauf.err << lauf.aus;
    EXPECT_TRUE(hatZeile(lauf.aus, "^Form 1 at byte 18 \\(0x0012\\): class id 30035, qbFormularL440$"))
        << lauf.aus;
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormular: aktuelle Tabelle$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL440: aktuelle Tabelle$"));
    // Header: Version at 20, the name in UTF-8 and 20 bytes of Windows-1252.
    EXPECT_TRUE(hatZeile(lauf.aus, "^ +20 +4\\+7 +Text +Version +\"08\\.2005\"$")) << lauf.aus;
    EXPECT_TRUE(hatZeile(lauf.aus, "^ +39 +4\\+20 +Text +DruckstueckName +\"Erklärung Kampfsport\"$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^ +63 +4 +Int +Seitenanzahl +1$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^ +74 +4\\+4 +Text +Kampfsportarten +\"Judo\"$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^ +82 +1 +Flag +haeufig13JN +nicht beantwortet \\(255\\)$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^ +84 +1 +Flag +FreizeitsportJN +ja \\(1\\)$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^ +86 +1 +Flag +BerufssportlerJN +nein \\(0\\)$"));
    const long ende = static_cast<long>(liesDatei(datei).size());
    EXPECT_TRUE(enthaelt(lauf.aus, "ends at byte " + std::to_string(ende) + ", the end of the file"))
        << lauf.aus;
}

TEST_F(ToolExplain, NamesTheOldLayoutsAndTheValuesTheyDrop) {
    const Lauf lauf = qbformul({"explain", legacyBeispiel()});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL145: 10\\.1999$")) << lauf.aus;
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL146: 01\\.2000$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL145: vor 10\\.2002$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularAllgGesu: vor 12\\.2000$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL142: 01\\.2000$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL142: vor 05\\.2002$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL138: 10\\.1999$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL138: vor 05\\.2002$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL143: 01\\.2000$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL143: 05\\.2002$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL143: vor 10\\.2002$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL141: 10\\.1999$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL134: vor 05\\.2002$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL139: vor 08\\.2009$"));
    // GS004: each record names the layout its version took.
    for (const char* layout : {"vor 2000", "vor 10\\.2000", "vor 05\\.2002", "vor 10\\.2002"})
        EXPECT_TRUE(hatZeile(lauf.aus, std::string("^  layout of qbFormularGS004: ") + layout + "$"))
            << layout;
    EXPECT_TRUE(
        hatZeile(lauf.aus, "^ +[0-9]+ +4\\+27 +Text +BeschreibungNebenJob +\"Dozent an der Meisterschule\"$"))
        << lauf.aus;
    EXPECT_TRUE(hatZeile(lauf.aus,
                         "^  layout of qbFormularGS004BUZ: aktuelle Tabelle ohne HoeheAnwartschaft, "
                         "bVersBUZ2, bVersEUZ2, bVersPRZ2, GewinnInLetztenJahren_0, "
                         "GewinnInLetztenJahren_1, GewinnInLetztenJahren_2$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^ +[0-9]+ +8 +Double +EinkommenInLetztenJahren_0 +48000(\\.0+)?$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "Text +\\(read, not kept\\) +\"\"$"));
    EXPECT_TRUE(enthaelt(lauf.aus, "Every record ends exactly where the next form begins"));
}

TEST_F(ToolExplain, NamesTheEarlyLayoutsOfL241AndL249AndWhatTheCurrentTableLacksForTheirLaterRecords) {
    const Lauf lauf = qbformul({"explain", legacyBeispiel()});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL241: 10\\.1999$")) << lauf.aus;
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL241: 01\\.2000$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL249: 10\\.1999$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL241: aktuelle Tabelle ohne ZigarettenJN$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "^  layout of qbFormularL243: aktuelle Tabelle ohne "
                                   "PsychischeErkrankungenJN, PsychischeErkrankungen$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "Text +AntwortZuFrage +\"Frage 4\"$"));
    EXPECT_TRUE(hatZeile(lauf.aus, "Text +Hyposensibilisierung +\"1998 bis 2000\"$"));
}

// An L440 of "VP1" with Kampfsportarten "Judo" (its record from byte 20 to 98), then an L147, with four
// zero bytes (an empty Text) inserted into the L440's record at the given offset.
void schreibeMitEingeschobenemText(const std::string& datei, size_t bei) {
    qbFormularListe liste;
    qbFormularL440 kampfsport;
    kampfsport.RefKampfsportarten("Judo");
    liste.neuesFormular(kampfsport);
    qbFormularL147 blutdruck;
    liste.neuesFormular(blutdruck);
    speichere(liste, datei);
    std::string bytes = liesDatei(datei);
    ASSERT_EQ(bytes.substr(94, 4), std::string(4, '\0')); // WannWelcheFolgen "", behind the 12 flags
    bytes.insert(bei, std::string(4, '\0'));
    schreibeDatei(datei, bytes);
}

TEST_F(ToolExplain, RecordThatDoesNotEndWhereTheNextBeginsIsAFailedCheck) {
    // Before WannWelcheFolgen: the reader takes the inserted Text for it and stops four bytes early.
    schreibeMitEingeschobenemText(datei, 94);
    const Lauf lauf = qbformul({"explain", datei});
    EXPECT_EQ(lauf.code, 1) << lauf.err;
    ASSERT_EQ(lauf.fehlerzeilen().size(), 1u) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.err,
                         "form 1 (qbFormularL440, L440 VP1) at byte 18: the record does not end where "
                         "the next form begins: it ends at byte 98"))
        << lauf.err;
    EXPECT_TRUE(
        enthaelt(lauf.aus, "a form appears to begin at byte 102 (4 bytes later than the reader stopped)"))
        << lauf.aus;
    // The walk goes on with the next form, which reads to the end.
    EXPECT_TRUE(hatZeile(lauf.aus, "^Form 2 at byte 102 .*qbFormularL147$")) << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "the end of the file"));

    const Lauf liste = qbformul({"list", datei});
    EXPECT_EQ(liste.code, 2);
    EXPECT_TRUE(enthaelt(liste.err,
                         "form 1 (qbFormularL440, L440 VP1) at byte 18: the record does not end where "
                         "the next form begins: it ends at byte 98 (the next two bytes, 0x0000, are no "
                         "class id of a form)"))
        << liste.err;
}

TEST_F(ToolExplain, MisreadTextLengthIsShownWithTheFieldAndTheWalkGoesOn) {
    // Before the flags: the reader takes four flags for the length of WannWelcheFolgen.
    schreibeMitEingeschobenemText(datei, 82);
    const Lauf lauf = qbformul({"explain", datei});
    EXPECT_EQ(lauf.code, 1) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus,
                         "the record is cut off or misread at byte 94 in WannWelcheFolgen: a Text of "
                         "4294967295 bytes"))
        << lauf.aus;
    EXPECT_TRUE(hatZeile(lauf.aus, "^ +94 +- +Text +WannWelcheFolgen +<- the read fails here$")) << lauf.aus;
    EXPECT_TRUE(hatZeile(lauf.aus, "^Form 2 at byte 102 .*qbFormularL147$")) << lauf.aus;
}

TEST_F(ToolExplain, CutOffLastRecordIsUnreadableAndShowsWhereTheReadFailed) {
    speichere(beispielAntrag(), datei);
    const long form4 = beginnVonForm(4);
    schreibeDatei(datei, liesDatei(datei).substr(0, static_cast<size_t>(form4 + 100)));
    const Lauf lauf = qbformul({"explain", datei});
    EXPECT_EQ(lauf.code, 2);
    EXPECT_TRUE(enthaelt(lauf.aus, "<- the read fails here")) << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.err, "form 4 (qbFormularL146, L146 VP2) at byte " + std::to_string(form4)))
        << lauf.err;
}

TEST_F(ToolExplain, FileWithoutListHeadIsUnreadable) {
    schreibeDatei(datei, ":");
    const Lauf lauf = qbformul({"explain", datei});
    EXPECT_EQ(lauf.code, 2);
    EXPECT_EQ(lauf.fehlerzeilen().size(), 1u) << lauf.err;
}

} // namespace
