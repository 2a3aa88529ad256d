// The stored example of old record layouts in examples/legacy: current, and read by the library and the
// tool.
#include "anwendungen.h"

#include "health/qbFormularL241.h"
#include "health/qbFormularL243.h"
#include "health/qbFormularL249.h"

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
    ASSERT_EQ(liste->AnzahlFormulare(), 10u);
    const char* versionen[] = {"10.1999", "01.2000", "09.2001", "11.2001", "03.2002",
                               "08.2005", "01.2000", "10.1999", "04.2002", "11.2001"};
    for (unsigned i = 0; i < 10; ++i)
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
    const auto& l241 = static_cast<const qbFormularL241&>(*liste->liefereFormularAnPos(6));
    EXPECT_EQ(l241.RefDiagnose(), "Asthma bronchiale");
    EXPECT_EQ(l241.RefDauer(), 28);
    EXPECT_EQ(l241.RefZigaretten(), "nie geraucht");
    EXPECT_EQ(l241.RefAntwortZuFrage(), "Frage 4");
    EXPECT_EQ(l241.RefZigarettenJN(), 0xff); // never in the early layout
    const auto& l249 = static_cast<const qbFormularL249&>(*liste->liefereFormularAnPos(7));
    EXPECT_EQ(l249.RefHeuschnupfen(), "seit 1990, Mai bis Juli");
    EXPECT_EQ(l249.RefHyposensibilisierung(), "1998 bis 2000");
    EXPECT_EQ(l249.RefTiereJN(), 0);
    EXPECT_EQ(l249.RefKrankheit(), "Asthma bronchiale");
    EXPECT_EQ(l249.RefAntwortZuFrage(), ""); // only 01.2000 holds it
    const auto& l241b = static_cast<const qbFormularL241&>(*liste->liefereFormularAnPos(8));
    EXPECT_EQ(l241b.RefFrage1(), "Atemnot bei Belastung");
    EXPECT_EQ(l241b.RefMedikamente(), "Salbutamol");
    EXPECT_EQ(l241b.RefZigarettenJN(), 0xff); // came with 05.2002
    const auto& l243 = static_cast<const qbFormularL243&>(*liste->liefereFormularAnPos(9));
    EXPECT_EQ(l243.RefKrankheit(), "Epilepsie");
    EXPECT_EQ(l243.RefAktuelleMedikamente(), "Valproat");
    EXPECT_EQ(l243.RefEEG(), "unauff\xE4llig");
    EXPECT_EQ(l243.RefPsychischeErkrankungenJN(), 0xff); // came with 05.2002
}

TEST(ToolLegacyBeispiel, EveryRecordEndsWhereTheNextBegins) {
    const Lauf lauf = qbformul({"explain", legacyBeispiel()});
    EXPECT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(lauf.err.empty()) << lauf.err;
}

} // namespace
