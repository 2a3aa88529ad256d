// The stored example of old record layouts in examples/legacy: current, and read by the library and the
// tool.
#include "anwendungen.h"

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
    ASSERT_EQ(liste->AnzahlFormulare(), 6u);
    const char* versionen[] = {"10.1999", "01.2000", "09.2001", "11.2001", "03.2002", "08.2005"};
    for (unsigned i = 0; i < 6; ++i)
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
}

TEST(ToolLegacyBeispiel, EveryRecordEndsWhereTheNextBegins) {
    const Lauf lauf = qbformul({"explain", legacyBeispiel()});
    EXPECT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(lauf.err.empty()) << lauf.err;
}

} // namespace
