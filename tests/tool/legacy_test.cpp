// The stored example of old record layouts in examples/legacy: current, and read by the library and the
// tool.
#include "anwendungen.h"

#include "finance/qbFormularGS004.h"
#include "finance/qbFormularGS004BUZ.h"
#include "finance/qbFormularGS004LV.h"
#include "finance/qbFormularGS004UZ.h"

using namespace qbtest;

namespace {

TEST(ToolLegacyBeispiel, StoredFileIsWhatTheGeneratorWrites) {
    Ordner ordner;
    ASSERT_TRUE(schreibeLegacyBeispiel(ordner / "neu.qbf"));
    EXPECT_EQ(liesDatei(ordner / "neu.qbf"), liesDatei(legacyBeispiel()))
        << "examples/legacy is out of date: build the target qbformul_legacy_example_update";
}

TEST(ToolLegacyBeispiel, LibraryReadsEveryOldRecordIntoItsFields) {
    const std::unique_ptr<qbFormularListe> liste = lies(legacyBeispiel());
    ASSERT_EQ(liste->AnzahlFormulare(), 15u);
    const char* versionen[] = {"10.1999", "01.2000", "09.2001", "11.2001", "03.2002",
                               "08.2005", "09.1999", "03.2000", "10.2000", "11.2001",
                               "05.2002", "10.2003", "12.2003", "10.2003", "10.2003"};
    for (unsigned i = 0; i < 15; ++i)
        EXPECT_EQ(liste->liefereFormularAnPos(static_cast<int>(i))->RefVersion(), versionen[i]) << i;

    const auto& l145 = static_cast<const qbFormularL145&>(*liste->liefereFormularAnPos(0));
    EXPECT_EQ(l145.RefVerletzungshergang(), "Sturz mit dem Fahrrad");
    EXPECT_EQ(l145.RefArztAdresse(), "Dr. Huber, Marktplatz 3, Landshut");
    EXPECT_EQ(l145.RefKoerperhaelfte(), "links");
    EXPECT_EQ(l145.RefDauer(), 12);
    EXPECT_EQ(l145.RefKrankheit(), "Unfall");
    const auto& l146 = static_cast<const qbFormularL146&>(*liste->liefereFormularAnPos(1));
    EXPECT_EQ(l146.RefDiagnose(), "Lumbago");
    EXPECT_EQ(l146.RefAntwortZuFrage(), "Frage 3");
    EXPECT_EQ(l146.RefPersonenKennung(), "VP2");
    const auto& l145b = static_cast<const qbFormularL145&>(*liste->liefereFormularAnPos(2));
    EXPECT_EQ(l145b.RefKoerperhaelfte(), "rechts");
    EXPECT_EQ(l145b.RefReha(), "6 Wochen Physiotherapie");
    const auto& l147 = static_cast<const qbFormularL147&>(*liste->liefereFormularAnPos(3));
    EXPECT_EQ(l147.RefMedikamente(), "Ramipril");
    EXPECT_EQ(l147.RefArbeitsplatzwechselJN(), 0);
    const auto& l146b = static_cast<const qbFormularL146&>(*liste->liefereFormularAnPos(4));
    EXPECT_EQ(l146b.RefReha(), "");
    EXPECT_EQ(l146b.RefKopfschmerzenJN(), 0xff); // came with 05.2002
    const auto& l440 = static_cast<const qbFormularL440&>(*liste->liefereFormularAnPos(5));
    EXPECT_EQ(l440.RefKampfsportarten(), "Karate");

    // GS004 of 09.1999: no IBU, EUZ, pension answers of 2000 nor sports; the education answers derived.
    const auto& gs1999 = static_cast<const qbFormularGS004&>(*liste->liefereFormularAnPos(6));
    EXPECT_EQ(gs1999.RefIBU(), 0);
    EXPECT_EQ(gs1999.RefbVersBUZ(), 0xff);
    EXPECT_EQ(gs1999.RefSportJN(), 0xff);
    EXPECT_EQ(gs1999.RefJahre(0), 1996);
    EXPECT_EQ(gs1999.RefEinkommenInLetztenJahren(2), 53500.0);
    EXPECT_EQ(gs1999.RefBeantragteVersSumme(), 250000L);
    EXPECT_EQ(gs1999.RefLehreJN(), 1);
    EXPECT_EQ(gs1999.RefMeisterbriefJN(), 1);
    EXPECT_EQ(gs1999.RefStudiumJN(), 0);
    // 10.2000: the sports block; 05.2002: BeschreibungNebenJob.
    EXPECT_EQ(static_cast<const qbFormularGS004&>(*liste->liefereFormularAnPos(7)).RefSportArt1(), "");
    EXPECT_EQ(static_cast<const qbFormularGS004&>(*liste->liefereFormularAnPos(8)).RefSportArt1(), "Segeln");
    const auto& gs2002 = static_cast<const qbFormularGS004&>(*liste->liefereFormularAnPos(10));
    EXPECT_EQ(gs2002.RefBeschreibungNebenJob(), "Dozent an der Meisterschule");
    EXPECT_EQ(gs2002.RefPersonenKennung(), "VP2");
    EXPECT_EQ(gs2002.RefJahre(2), 2001);
    const auto& buz2003 = static_cast<const qbFormularGS004BUZ&>(*liste->liefereFormularAnPos(11));
    EXPECT_EQ(buz2003.RefGewinnInLetztenJahren(0), 0.0);
    EXPECT_EQ(buz2003.RefHandwerklichTeilzeit(), "1");
    const auto& buzDez = static_cast<const qbFormularGS004BUZ&>(*liste->liefereFormularAnPos(12));
    EXPECT_EQ(buzDez.RefGewinnInLetztenJahren(2), 43500.0);
    EXPECT_EQ(buzDez.RefbVersBUZ2(), 0xff);
    EXPECT_EQ(static_cast<const qbFormularGS004LV&>(*liste->liefereFormularAnPos(13)).RefObjekt(),
              "Wohnhaus");
    EXPECT_EQ(static_cast<const qbFormularGS004UZ&>(*liste->liefereFormularAnPos(14)).RefSportArt1(),
              "Segeln");
}

TEST(ToolLegacyBeispiel, EveryRecordEndsWhereTheNextBegins) {
    const Lauf lauf = qbformul({"explain", legacyBeispiel()});
    EXPECT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(lauf.err.empty()) << lauf.err;
}

} // namespace
