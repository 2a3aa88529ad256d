// The stand-ins of the maker's libraries and of Windows: persons and addresses, branch data, message box.
#include "nldat/qbNldUserID.h"
#include "qballg/qbPerson.h"
#include "rw/rwfile.h"
#include <windows.h>

#include "test_util.h"

using namespace qbtest;

namespace {
qbPerson beispielPerson() {
    qbPerson p;
    p.RefGebDat("01.02.1970");
    p.RefGeschlecht("w");
    p.RefBeruf("Schreinerin");
    qbAdressDaten a;
    a.RefAnrede("Frau");
    a.RefTitel("Dr.");
    a.RefVorname("Anna");
    a.RefName("M\xFCller");
    a.RefStrasse("Talweg 7");
    a.RefPLZ("99099");
    a.RefOrt("Valdorf");
    a.RefLand("D");
    a.RefTelefon("0123");
    a.RefTelefax("0456");
    a.RefEMail("anna@example.invalid");
    p.RefAdressDaten(&a);
    return p;
}
} // namespace

TEST(qbPerson, EveryFieldRoundTripsThroughRWFile) {
    TempFile tmp("person");
    const qbPerson p = beispielPerson();
    {
        RWFile f(tmp.path(), "wb");
        f << p << qbPerson();
    }
    RWFile f(tmp.path(), "rb");
    qbPerson a, b = beispielPerson();
    f >> a >> b;
    EXPECT_TRUE(a == p);
    EXPECT_TRUE(b == qbPerson());
    int more;
    EXPECT_FALSE(f.Read(more));
}

TEST(qbPerson, RecordIsFourteenTextsInTheDocumentedOrder) {
    TempFile tmp("personbytes");
    {
        RWFile f(tmp.path(), "wb");
        f << beispielPerson();
    }
    Bytes expected = cat({text("01.02.1970"), text("w"), text("Schreinerin"), text("Frau"), text("Dr."),
                          text("Anna"), text("M\xFCller"), text("Talweg 7"), text("99099"), text("Valdorf"),
                          text("D"), text("0123"), text("0456"), text("anna@example.invalid")});
    EXPECT_EQ(hex(readBytes(tmp.path())), hex(expected));
}

TEST(qbPerson, ResetCopyAndAddressDataByPointer) {
    qbPerson p = beispielPerson();
    qbPerson kopie(p);
    EXPECT_TRUE(kopie == p);
    p.RefAdressDaten(nullptr);
    EXPECT_TRUE(p.RefAdressDaten() == qbAdressDaten());
    kopie.loesche();
    EXPECT_TRUE(kopie == qbPerson());
    qbAdressDaten daten;
    daten.RefOrt("Valdorf");
    qbPerson q;
    q.RefAdressDaten(&daten);
    daten.RefOrt("anders"); // the person holds its own copy
    EXPECT_EQ(q.RefAdressDaten().RefOrt(), "Valdorf");
}

TEST(qbPerson, TruncatedRecordLeavesTheRestUnchanged) {
    TempFile tmp("personkurz");
    writeBytes(tmp.path(), cat({text("01.01.1999"), text("m")}));
    RWFile f(tmp.path(), "rb");
    qbPerson p = beispielPerson();
    f >> p;
    EXPECT_EQ(p.RefGebDat(), "01.01.1999");
    EXPECT_EQ(p.RefGeschlecht(), "m");
    EXPECT_EQ(p.RefBeruf(), "Schreinerin");
}

namespace {
std::vector<std::string> gelesenePfade;
void merkePfad(const char* pfad) { gelesenePfade.push_back(pfad); }
} // namespace

TEST(qbNldUserID, RegistryReadIsObservableAndReadsNothing) {
    gelesenePfade.clear();
    auto vorher = qbNldUserID::setRegistryObserver(&merkePfad);
    const unsigned long anzahl = qbNldUserID::registryReads();
    qbPasswort passwort(nullptr);
    EXPECT_EQ(passwort.leseRegistry("Software\\Valdorfer\\Niederlassungsdaten"), 0);
    EXPECT_EQ(passwort.benutzer(), nullptr);
    qbNldUserID::setRegistryObserver(vorher);
    EXPECT_EQ(qbNldUserID::registryReads(), anzahl + 1);
    ASSERT_EQ(gelesenePfade.size(), 1u);
    EXPECT_EQ(gelesenePfade[0], "Software\\Valdorfer\\Niederlassungsdaten");
}

namespace {
struct Meldung {
    void* fenster;
    std::string text, titel;
    unsigned typ;
};
std::vector<Meldung> meldungen;
int merkeMeldung(void* fenster, const char* text, const char* titel, unsigned typ) {
    meldungen.push_back({fenster, text, titel, typ});
    return IDOK;
}
} // namespace

TEST(MessageBoxA, GoesToTheInstalledHandlerWhichReturnsThePreviousOne) {
    meldungen.clear();
    qbMessageHandler vorher = qbSetMessageHandler(&merkeMeldung);
    EXPECT_EQ(vorher, &qbDefaultMessageHandler);
    int fenster = 0;
    EXPECT_EQ(MessageBoxA(&fenster, "Beteiligungsgrad nicht erlaubt!", " Fehler", MB_ICONERROR), IDOK);
    EXPECT_EQ(qbSetMessageHandler(vorher), &merkeMeldung);
    ASSERT_EQ(meldungen.size(), 1u);
    EXPECT_EQ(meldungen[0].fenster, &fenster);
    EXPECT_EQ(meldungen[0].titel, " Fehler");
    EXPECT_EQ(meldungen[0].typ, 0x10u);
}

TEST(MessageBoxA, DefaultHandlerWritesCaptionAndTextAsUtf8ToStderr) {
    qbSetMessageHandler(nullptr);
    ::testing::internal::CaptureStderr();
    MessageBoxA(nullptr, "Das Datum ist ung\xFCltig!", " Fehler", MB_ICONERROR);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), " Fehler: Das Datum ist ung\xC3\xBCltig!\n");
}
