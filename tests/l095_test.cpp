// qbFormularL095, the activity description: 31 arrays of two entries in the object and the XML, three of
// them on a stream behind a second copy of Version and without a stamp, a virtual-stream record that its
// own reader cannot read, and XML typed as the allowance application's.
#include "pension/qbFormularGN056.h"
#include "pension/qbFormularL095.h"
#include "qballg/CQBXMLdata.h"
#include "rw/bstream.h"
#include "rw/pstream.h"

#include "form_test_util.h"
#include "klassen_util.h"
#include "legacy_fixture.h"
#include "test_util.h"

#include <sstream>
#include <string>
#include <vector>

using namespace qbtest;

namespace {

const qbFeldTabelle& tabelle() { return qbFormularL095::felder(); }

// A record of the stored layout: header, second copy, two passes of Lehre, MitarbKaufVoll, FreienJN.
AltSatz satz(const std::string& kopfVersion, const std::string& zweite) {
    return AltSatz::kopf(kopfVersion, "L095", "T\xE4tigkeit", 1, "VP2")
        .text(zweite)
        .text("Schlosser")
        .ganz(12)
        .flag(1)
        .text("Koch")
        .ganz(3)
        .flag(0);
}

void pruefeGelesen(const qbFormularL095& f, const std::string& version) {
    EXPECT_EQ(f.RefVersion(), RWCString(version));
    EXPECT_EQ(f.RefDruckstueckName(), "T\xE4tigkeit");
    EXPECT_EQ(f.RefPersonenKennung(), "VP2");
    EXPECT_EQ(f.GetLehre(0), "Schlosser");
    EXPECT_EQ(f.GetMitarbKaufVoll(0), 12);
    EXPECT_EQ(f.GetFreienJN(0), 1);
    EXPECT_EQ(f.GetLehre(1), "Koch");
    EXPECT_EQ(f.GetMitarbKaufVoll(1), 3);
    EXPECT_EQ(f.GetFreienJN(1), 0);
    EXPECT_EQ(f.GetFachausb(0), "");
    EXPECT_EQ(f.GetHandJN(1), 0xFF);
}

} // namespace

TEST(L095, FreshFormHasTheHeaderAllFlagsUnansweredAndAllIntsZeroInBothIndices) {
    qbFormularL095 f;
    EXPECT_EQ(f.RefDruckstueckNummer(), "L095");
    EXPECT_EQ(f.RefDruckstueckName(), "T\xE4tigkeitsbeschreibung");
    EXPECT_EQ(f.RefVersion(), "01.2006");
    EXPECT_EQ(f.RefSeitenanzahl(), 1);
    EXPECT_EQ(f.RefPersonenKennung(), "VP1");
    EXPECT_EQ(tabelle().size(), 62u);
    for (const qbFeld& z : tabelle()) {
        if (z.art == qbArt::Flag) {
            EXPECT_EQ(f.*z.mitglied.flag, 0xFF) << z.name;
        } else if (z.art == qbArt::Int) {
            EXPECT_EQ(f.*z.mitglied.ganz, 0) << z.name;
        } else {
            EXPECT_EQ(f.*z.mitglied.text, "") << z.name;
        }
    }
    EXPECT_EQ(f.GetBelastungOben(0), 0xFF); // a Flag without JN
}

TEST(L095, SettersTakeTheValueFirstAndTheIndexSecond) {
    qbFormularL095 f;
    f.SetLehre("Maurer", 1);
    f.SetKunstProz(40, 0);
    f.SetMaschinenJN(1, 1);
    EXPECT_EQ(f.GetLehre(1), "Maurer");
    EXPECT_EQ(f.GetLehre(0), "");
    EXPECT_EQ(f.GetKunstProz(0), 40);
    EXPECT_EQ(f.GetMaschinenJN(1), 1);
    EXPECT_EQ(f.GetMaschinenJN(0), 0xFF);
}

TEST(L095, StoredRecordReadsTheThreeArraysOnEveryStreamKindToItsEnd) {
    for (Strom art : {Strom::Datei, Strom::Binaer, Strom::Portabel}) {
        bool amEnde = false;
        const qbFormularL095 f = satz("01.2006", "01.2006").lies<qbFormularL095>(art, &amEnde);
        EXPECT_TRUE(amEnde) << name(art);
        pruefeGelesen(f, "01.2006");
    }
}

TEST(L095, SecondCopyWinsOverTheHeader) {
    const qbFormularL095 f = satz("01.2006", "12.2005").lies<qbFormularL095>(Strom::Datei);
    EXPECT_EQ(f.RefVersion(), "12.2005");
}

TEST(L095, RecordOf12_2005SavedAgainKeepsItsVersionInBothCopies) {
    const qbFormularL095 f = satz("12.2005", "12.2005").lies<qbFormularL095>(Strom::Datei);
    const Bytes b = gespeichert(f);
    const Bytes erwartet =
        cat({text("12.2005"), text("L095"), text("T\xE4tigkeit"), int32(1), text("VP2"), text("12.2005"),
             text("Schlosser"), int32(12), Bytes{1}, text("Koch"), int32(3), Bytes{0}});
    EXPECT_EQ(hex(b), hex(erwartet));
    EXPECT_EQ(f.RefVersion(), "12.2005");
}

TEST(L095, FieldsOffTheStreamAreLostOnRWFile) {
    qbFormularL095 f;
    f.SetFachausb("x", 0);
    f.SetLehre("Lehre", 0);
    qbFormularL095 g;
    rundreise(f, g, Strom::Datei);
    EXPECT_EQ(g.GetFachausb(0), "");
    EXPECT_EQ(g.GetLehre(0), "Lehre");
}

TEST(L095, VirtualStreamRecordLacksTheHeaderAndCannotBeReadBack_Quirk) {
    qbFormularL095 f;
    f.SetLehre("Maurer", 0);
    std::stringstream io;
    RWbostream o(io);
    f.saveGuts(o);
    std::stringstream erwartet;
    RWbostream e(erwartet);
    RWCString("01.2006").saveOn(e);
    RWCString("Maurer").saveOn(e);
    e << 0 << static_cast<unsigned char>(0xFF);
    RWCString("").saveOn(e);
    e << 0 << static_cast<unsigned char>(0xFF);
    EXPECT_EQ(hex(bytesOf(io.str())), hex(bytesOf(erwartet.str())));
    RWbistream i(io);
    qbFormularL095 g;
    g.restoreGuts(i);
    EXPECT_FALSE(i.good()); // the header took the passes, and the stream ran out
    EXPECT_EQ(g.RefVersion(), "01.2006");
    EXPECT_EQ(g.RefDruckstueckNummer(), "Maurer");
}

TEST(L095, BinaryStoreSizeCountsTheHeaderAlone_Quirk) {
    qbFormularL095 f;
    const RWspace kopf = f.binaryStoreSize();
    EXPECT_EQ(kopf, 20u + 7 + 4 + 22 + 3);
    f.SetLehre(RWCString(std::string(500, 'x')), 0);
    f.SetBeschreibung(RWCString(std::string(500, 'y')), 1);
    EXPECT_EQ(f.binaryStoreSize(), kopf);
}

TEST(L095, CopyAndAssignmentCarryEveryEntryAndSelfAssignmentChangesNothing) {
    qbFormularL095 f;
    f.SetStudium("Physik", 1);
    f.SetReiseProz(10, 0);
    f.SetStaubJN(0, 1);
    f.RefPersonenKennung("VP2");
    const qbFormularL095 kopie(f);
    qbFormularL095 ziel;
    ziel = f;
    for (const qbFormularL095* g : {&kopie, static_cast<const qbFormularL095*>(&ziel)}) {
        EXPECT_EQ(g->GetStudium(1), "Physik");
        EXPECT_EQ(g->GetReiseProz(0), 10);
        EXPECT_EQ(g->GetStaubJN(1), 0);
        EXPECT_EQ(g->RefPersonenKennung(), "VP2");
    }
    qbFormularL095& selbst = ziel;
    ziel = selbst;
    EXPECT_EQ(ziel.GetStudium(1), "Physik");
}

TEST(L095, LoescheBringsEverythingBackAndThePersonToVP1) {
    qbFormularL095 f;
    f.SetStudium("Physik", 1);
    f.RefPersonenKennung("VP2");
    f.loesche();
    EXPECT_EQ(f.GetStudium(1), "");
    EXPECT_EQ(f.RefPersonenKennung(), "VP1");
}

TEST(L095, XmlIsTypedAsTheAllowanceApplicationWithVersionAndAllKeysOfIndex0First_Quirk) {
    qbFormularL095 f;
    CQBXMLdata k("");
    f.XMLgetDat(k);
    EXPECT_EQ(k.Typ(), "qbFormularGN056");
    const std::vector<std::string> namen = eintragsNamen(k);
    ASSERT_EQ(namen.size(), 1u + 1 + 62);
    EXPECT_EQ(namen[1], "Version");
    EXPECT_EQ(namen[2], "Lehre[0]");
    EXPECT_EQ(namen[15], "Kunst[0]");
    EXPECT_EQ(namen[16], "Sonst[0]");
    EXPECT_EQ(namen[17], "Reise[0]");
    EXPECT_EQ(namen[30], "BelastungOben[0]");
    EXPECT_EQ(namen[32], "MaschinenJN[0]");
    EXPECT_EQ(namen[33], "Lehre[1]");
    EXPECT_EQ(namen.back(), "MaschinenJN[1]");
}

TEST(L095, XmlPutOnItsOwnOutputChangesNothing_Quirk) {
    qbFormularL095 f;
    f.SetLehre("Maurer", 0);
    CQBXMLdata k("");
    f.XMLgetDat(k);
    qbFormularL095 g;
    g.XMLputDat(k);
    EXPECT_EQ(g.GetLehre(0), "");
    EXPECT_EQ(k.Typ(), "qbFormularGN056");
    qbFormularGN056 zulage; // which accepts the node, and finds none of its keys but Version
    zulage.XMLputDat(k);
    EXPECT_EQ(zulage.GetFinanzamt(), "");
    EXPECT_EQ(zulage.RefVersion(), "01.2006");
}

TEST(L095, XmlOfItsOwnTypeReadsVersionAndTheArrays) {
    CQBXMLdata k("");
    k.clear("qbFormularL095");
    k.List(CQBXMLdata("Version", RWCString("12.2005")));
    k.List(CQBXMLdata("Meister[1]", RWCString("Tischler")));
    k.List(CQBXMLdata("Kunst[0]", 25));
    k.List(CQBXMLdata("HautJN[1]", static_cast<unsigned char>(1)));
    qbFormularL095 f;
    f.XMLputDat(k);
    EXPECT_EQ(f.RefVersion(), "12.2005");
    EXPECT_EQ(f.GetMeister(1), "Tischler");
    EXPECT_EQ(f.GetKunstProz(0), 25);
    EXPECT_EQ(f.GetHautJN(1), 1);
    EXPECT_EQ(k.Typ(), "qbFormularL095");
}
