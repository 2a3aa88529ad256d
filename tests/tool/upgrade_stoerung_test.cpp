// upgrade under faults: a full disk, a folder it may not write, a file that vanishes while the batch
// runs. Each time the file concerned stays as it was, byte for byte, the tool names it and the cause in
// one line, upgrades the other files of the batch and ends with exit code 1. The faults come from the
// system where a test can cause them: a file size limit, permission bits, /dev/full. A full disk under a
// single file and a file removed at a given moment come from QBFORMUL_TEST_FAULT (tools/stoerung.h).
#include "anwendungen.h"

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

using namespace qbtest;

namespace {

const char* const kVorrechteBleiben =
    "the tests run as root and cannot give up CAP_DAC_OVERRIDE (no CAP_SETPCAP): permission bits do not "
    "stop the tool here";

// Gives a folder its permissions back when the test ends, so that it can be looked into and removed.
class Freigabe {
public:
    explicit Freigabe(std::string pfad) : pfad_(std::move(pfad)) {}
    ~Freigabe() { ::chmod(pfad_.c_str(), 0755); }
    Freigabe(const Freigabe&) = delete;
    Freigabe& operator=(const Freigabe&) = delete;

private:
    std::string pfad_;
};

class ToolUpgradeFaults : public ::testing::Test {
protected:
    void SetUp() override { neu = neuGespeichert(legacyBeispiel(), ordner); }

    // A copy of the stored example of old layouts.
    std::string kopie(const std::string& name) const {
        const std::string pfad = ordner / name;
        schreibeDatei(pfad, alt);
        return pfad;
    }

    static Start mitStoerung(const std::string& stoerung) {
        Start start;
        start.umgebung = {"QBFORMUL_TEST_FAULT=" + stoerung};
        return start;
    }

    static Start ohneVorrechte() {
        Start start;
        start.ohneVorrechte = true;
        return start;
    }

    // Whether permission bits bind the tool started without the privileges that pass over them: a folder
    // without write permission refuses it. Not so when the tests run as root and cannot give them up.
    bool rechteBinden() const {
        const std::string probe = ordner / "probe";
        if (::mkdir(probe.c_str(), 0555) != 0) return false;
        Freigabe freigabe(probe);
        const Lauf lauf = qbformul({"upgrade", legacyBeispiel(), "-o", probe + "/x.qbf"}, ohneVorrechte());
        return lauf.code == 1 && !gibtEs(probe + "/x.qbf");
    }

    // The temporary files anywhere in the test's folder.
    std::vector<std::string> tempReste() const {
        std::vector<std::string> reste;
        std::error_code fehler;
        for (auto it = std::filesystem::recursive_directory_iterator(
                 ordner.pfad(), std::filesystem::directory_options::skip_permission_denied, fehler);
             !fehler && it != std::filesystem::recursive_directory_iterator(); it.increment(fehler))
            if (it->path().filename().string().find(".tmp.") != std::string::npos)
                reste.push_back(it->path().string());
        return reste;
    }

    Ordner ordner;
    const std::string alt = liesDatei(legacyBeispiel());
    std::string neu; // what the tool writes for it
};

TEST_F(ToolUpgradeFaults, FullDiskUnderOneFileLeavesItIntactAndUpgradesTheOthers) {
    const std::string a = kopie("a.qbf"), b = kopie("b.qbf"), c = kopie("c.qbf");
    const Lauf lauf = qbformul({"upgrade", "--in-place", "--jobs", "2", a, b, c}, mitStoerung("full:" + b));
    EXPECT_EQ(lauf.code, 1);
    EXPECT_EQ(lauf.err, "qbformul: " + b + ": cannot be written: No space left on device; left as it was\n");
    EXPECT_TRUE(enthaelt(lauf.aus, "upgraded 2 of 3 files: 30 forms")) << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, ", 1 failure, ")) << lauf.aus;
    EXPECT_EQ(liesDatei(b), alt);
    EXPECT_FALSE(gibtEs(b + ".bak"));
    for (const std::string& gut : {a, c}) {
        EXPECT_EQ(liesDatei(gut), neu) << gut;
        EXPECT_EQ(liesDatei(gut + ".bak"), alt) << gut;
    }
    EXPECT_EQ(tempReste(), std::vector<std::string>{});
}

TEST_F(ToolUpgradeFaults, WriteThatStopsHalfwayIsRemovedAndNeverReplacesTheOriginal) {
    // The limit lets the first 64 kB of pending writes through and stops the second part short: the
    // temporary file holds 100000 bytes of the new content when the write fails.
    const long grenze = 100000;
    const std::string gross = grosseAlteDateien(ordner, 1)[0];
    const std::string grossAlt = liesDatei(gross);
    ASSERT_GT(neuGespeichert(gross, ordner).size(), static_cast<size_t>(grenze));
    ASSERT_LT(alt.size() * 2, static_cast<size_t>(grenze)); // the small file and its .bak fit
    const std::string a = kopie("a.qbf"), c = kopie("c.qbf");
    Start start;
    start.dateiHoechstens = grenze;
    const Lauf lauf = qbformul({"upgrade", "--in-place", "--jobs", "1", a, gross, c}, start);
    EXPECT_EQ(lauf.code, 1);
    EXPECT_EQ(lauf.err, "qbformul: " + gross + ": cannot be written: File too large; left as it was\n");
    EXPECT_TRUE(enthaelt(lauf.aus, "upgraded 2 of 3 files: 30 forms")) << lauf.aus;
    EXPECT_EQ(liesDatei(gross), grossAlt);
    EXPECT_FALSE(gibtEs(gross + ".bak"));
    EXPECT_EQ(liesDatei(a), neu);
    EXPECT_EQ(liesDatei(c), neu);
    EXPECT_EQ(tempReste(), std::vector<std::string>{});
}

TEST_F(ToolUpgradeFaults, DeviceTargetIsWrittenStraightAndAFullOneIsReported) {
    // The devices through links in the test's folder: a tool that put a file in place of its target
    // replaces only the link.
    const std::string voll = ordner / "voll", leer = ordner / "leer";
    ASSERT_EQ(::symlink("/dev/full", voll.c_str()), 0);
    ASSERT_EQ(::symlink("/dev/null", leer.c_str()), 0);

    Lauf lauf = qbformul({"upgrade", legacyBeispiel(), "-o", voll});
    EXPECT_EQ(lauf.code, 1);
    EXPECT_EQ(lauf.err,
              "qbformul: " + voll + ": cannot be written: No space left on device; left as it was\n");
    EXPECT_TRUE(enthaelt(lauf.aus, "upgraded 0 of 1 files")) << lauf.aus;

    lauf = qbformul({"upgrade", legacyBeispiel(), "-o", leer});
    EXPECT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus, std::to_string(neu.size()) + " bytes written")) << lauf.aus;

    for (const auto& [link, geraet] : {std::pair{voll, "/dev/full"}, std::pair{leer, "/dev/null"}}) {
        std::error_code fehler;
        EXPECT_TRUE(std::filesystem::is_symlink(link, fehler)) << link;
        EXPECT_EQ(std::filesystem::read_symlink(link, fehler), geraet);
        EXPECT_TRUE(std::filesystem::is_character_file(link, fehler)) << link;
    }
    EXPECT_EQ(tempReste(), std::vector<std::string>{});
}

TEST_F(ToolUpgradeFaults, StandardOutputOnAFullDiskFailsTheRun) {
    const std::string ziel = ordner / "neu.qbf";
    Start start;
    start.ausgabeNach = "/dev/full";
    const Lauf lauf = qbformul({"upgrade", legacyBeispiel(), "-o", ziel}, start);
    EXPECT_EQ(lauf.code, 1);
    EXPECT_EQ(lauf.err, "qbformul: cannot write to standard output: No space left on device\n");
    EXPECT_EQ(liesDatei(ziel), neu); // the upgrade itself is done; only its summary is lost
}

TEST_F(ToolUpgradeFaults, FolderWithoutWritePermissionKeepsItsFileAndTheOthersAreUpgraded) {
    if (!rechteBinden()) GTEST_SKIP() << kVorrechteBleiben;
    const std::string gesperrt = ordner / "gesperrt";
    ASSERT_EQ(::mkdir(gesperrt.c_str(), 0755), 0);
    const std::string a = kopie("a.qbf"), b = kopie("gesperrt/b.qbf"), c = kopie("c.qbf");
    ASSERT_EQ(::chmod(gesperrt.c_str(), 0555), 0);
    Freigabe freigabe(gesperrt);

    Lauf lauf = qbformul({"upgrade", "--in-place", "--jobs", "1", a, b, c}, ohneVorrechte());
    EXPECT_EQ(lauf.code, 1);
    EXPECT_EQ(lauf.err, "qbformul: " + b + ": cannot be written: Permission denied; left as it was\n");
    EXPECT_TRUE(enthaelt(lauf.aus, "upgraded 2 of 3 files: 30 forms")) << lauf.aus;
    EXPECT_EQ(liesDatei(b), alt);
    EXPECT_FALSE(gibtEs(b + ".bak"));
    EXPECT_EQ(liesDatei(a), neu);
    EXPECT_EQ(liesDatei(c), neu);

    // A new file there is refused the same way.
    const std::string ziel = gesperrt + "/neu.qbf";
    lauf = qbformul({"upgrade", legacyBeispiel(), "-o", ziel}, ohneVorrechte());
    EXPECT_EQ(lauf.code, 1);
    EXPECT_EQ(lauf.err, "qbformul: " + ziel + ": cannot be written: Permission denied; left as it was\n");
    EXPECT_FALSE(gibtEs(ziel));
    EXPECT_EQ(tempReste(), std::vector<std::string>{});
}

TEST_F(ToolUpgradeFaults, ReadOnlyFileInAWritableFolderIsUpgradedInPlaceAndStaysReadOnly) {
    if (!rechteBinden()) GTEST_SKIP() << kVorrechteBleiben;
    const std::string datei = kopie("nurlesen.qbf");
    ASSERT_EQ(::chmod(datei.c_str(), 0444), 0);
    const Lauf lauf = qbformul({"upgrade", "--in-place", datei}, ohneVorrechte());
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_EQ(liesDatei(datei), neu);
    EXPECT_EQ(liesDatei(datei + ".bak"), alt);
    struct stat st;
    ASSERT_EQ(::stat(datei.c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0444u);
}

TEST_F(ToolUpgradeFaults, FolderItMayWriteButNotReadTakesTheNewFile) {
    if (!rechteBinden()) GTEST_SKIP() << kVorrechteBleiben;
    const std::string einwurf = ordner / "einwurf";
    ASSERT_EQ(::mkdir(einwurf.c_str(), 0755), 0);
    ASSERT_EQ(::chmod(einwurf.c_str(), 0333), 0);
    Freigabe freigabe(einwurf);
    const std::string ziel = einwurf + "/neu.qbf";
    const Lauf lauf = qbformul({"upgrade", legacyBeispiel(), "-o", ziel}, ohneVorrechte());
    EXPECT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_EQ(lauf.err, "");
    ASSERT_EQ(::chmod(einwurf.c_str(), 0755), 0);
    EXPECT_EQ(liesDatei(ziel), neu);
    EXPECT_EQ(tempReste(), std::vector<std::string>{});
}

TEST_F(ToolUpgradeFaults, FileRemovedAfterTheBatchBeganIsReportedAndTheOthersAreUpgraded) {
    const std::string a = kopie("a.qbf"), b = kopie("b.qbf"), c = kopie("c.qbf"), d = kopie("d.qbf");
    // c is removed once a is done, before its turn.
    const Lauf lauf = qbformul({"upgrade", "--in-place", "--jobs", "1", a, b, c, d},
                               mitStoerung("remove-after-first:" + c));
    EXPECT_EQ(lauf.code, 1);
    EXPECT_EQ(lauf.err, "qbformul: " + c + ": No such file or directory; left as it was\n");
    EXPECT_TRUE(enthaelt(lauf.aus, "upgraded 3 of 4 files: 45 forms")) << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, ", 1 failure, ")) << lauf.aus;
    EXPECT_FALSE(gibtEs(c));
    EXPECT_FALSE(gibtEs(c + ".bak"));
    for (const std::string& gut : {a, b, d})
        EXPECT_EQ(liesDatei(gut), neu) << gut;
    EXPECT_EQ(tempReste(), std::vector<std::string>{});
}

TEST_F(ToolUpgradeFaults, FileRemovedWhileItIsUpgradedIsNotWrittenAgain) {
    const std::string a = kopie("a.qbf"), b = kopie("b.qbf"), c = kopie("c.qbf");
    // b is removed after it was read and its new content written, just before that would replace it.
    const Lauf lauf = qbformul({"upgrade", "--in-place", "--jobs", "1", a, b, c},
                               mitStoerung("remove-before-replace:" + b));
    EXPECT_EQ(lauf.code, 1);
    EXPECT_EQ(lauf.err, "qbformul: " + b +
                            ": vanished before the new content could replace it: No such file or directory; "
                            "left as it was\n");
    EXPECT_TRUE(enthaelt(lauf.aus, "upgraded 2 of 3 files: 30 forms")) << lauf.aus;
    EXPECT_FALSE(gibtEs(b));
    EXPECT_FALSE(gibtEs(b + ".bak"));
    EXPECT_EQ(liesDatei(a), neu);
    EXPECT_EQ(liesDatei(c), neu);
    EXPECT_EQ(tempReste(), std::vector<std::string>{});
}

} // namespace
