// The stored example of old record layouts in examples/legacy: current, and read by the library and the
// tool.
#include "anwendungen.h"

#include "health/qbFormularL134.h"
#include "health/qbFormularL138.h"
#include "health/qbFormularL139.h"
#include "health/qbFormularL141.h"
#include "health/qbFormularL142.h"
#include "health/qbFormularL143.h"

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
    ASSERT_EQ(liste->AnzahlFormulare(), 18u);
    const char* versionen[] = {"10.1999", "01.2000", "09.2001", "11.2001", "03.2002", "08.2005",
                               "01.2000", "12.2001", "10.1999", "04.2002", "01.2000", "03.2002",
                               "05.2002", "07.2002", "10.1999", "04.2002", "07.2008", "08.2008"};
    for (unsigned i = 0; i < 18; ++i)
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

template <class F>
const F& formAn(const qbFormularListe& liste, int pos) {
    const qbFormular* f = liste.liefereFormularAnPos(pos);
    EXPECT_EQ(f->isA(), F::classIsA()) << pos;
    return static_cast<const F&>(*f);
}

TEST(ToolLegacyBeispiel, LibraryReadsTheOldHealthRecordsIntoTheirFields) {
    const std::unique_ptr<qbFormularListe> liste = lies(legacyBeispiel());
    ASSERT_EQ(liste->AnzahlFormulare(), 18u);
    // L142: the old diagnosis converted while reading
    const auto& l142 = formAn<qbFormularL142>(*liste, 6);
    EXPECT_EQ(l142.RefDurchfallJN(), 0);
    EXPECT_EQ(l142.RefSonstigeSymptomeJN(), 1);
    EXPECT_EQ(l142.RefSonstigeSymptome(), "Oberbauchbeschwerden");
    EXPECT_EQ(l142.RefDiagnose(), "rez./chron. Gastritis");
    EXPECT_EQ(l142.RefAntwortZuFrage(), "Frage 5");
    const auto& l142b = formAn<qbFormularL142>(*liste, 7);
    EXPECT_EQ(l142b.RefDiagnose(), "");
    EXPECT_EQ(l142b.RefSonstigeDiagnose(), "Reizmagen");
    EXPECT_EQ(l142b.RefKotoskopieJN(), 0xff); // came with 05.2002
    EXPECT_EQ(formAn<qbFormularL138>(*liste, 8).RefBlutdruckSyst(), 150);
    EXPECT_EQ(formAn<qbFormularL138>(*liste, 8).RefKrankheit(), "Bluthochdruck");
    EXPECT_EQ(formAn<qbFormularL138>(*liste, 9).RefPuls(), 0); // came with 05.2002
    EXPECT_EQ(formAn<qbFormularL138>(*liste, 9).RefEKG(), "Extrasystolen");
    EXPECT_EQ(formAn<qbFormularL143>(*liste, 10).RefKrankenhausKur(), "Uniklinik Jena");
    EXPECT_EQ(formAn<qbFormularL143>(*liste, 11).RefGeheiltSeit(), "02.2002");
    EXPECT_EQ(formAn<qbFormularL143>(*liste, 12).RefMedikamente(), "Tamsulosin");
    EXPECT_EQ(formAn<qbFormularL143>(*liste, 12).RefKoerperseiten(), "links");
    EXPECT_EQ(formAn<qbFormularL143>(*liste, 13).RefZigaretten(), "10 am Tag");
    EXPECT_EQ(formAn<qbFormularL141>(*liste, 14).RefVorsorge(), "j\xE4hrlich");
    EXPECT_EQ(formAn<qbFormularL141>(*liste, 14).RefKrankheit(), "Myom");
    EXPECT_EQ(formAn<qbFormularL134>(*liste, 15).RefMedikamente(), "Metformin");
    EXPECT_EQ(formAn<qbFormularL139>(*liste, 16).RefArztName(), "");
    EXPECT_EQ(formAn<qbFormularL139>(*liste, 16).RefArztAdresse(), "Dr. Hahn, Lindenallee 4, Trier");
    EXPECT_EQ(formAn<qbFormularL139>(*liste, 17).RefArztName(), "Dr. Hahn");
    EXPECT_EQ(formAn<qbFormularL139>(*liste, 17).RefBehandlungMedikamenteArt(), "Betahistin");
}

TEST(ToolLegacyBeispiel, EveryRecordEndsWhereTheNextBegins) {
    const Lauf lauf = qbformul({"explain", legacyBeispiel()});
    EXPECT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(lauf.err.empty()) << lauf.err;
}

} // namespace
