// upgrade: every record in its class's current layout, written atomically, inputs that fail left alone,
// many files in parallel, and a killed run that never leaves a half-written file.
#include "anwendungen.h"

#include <csignal>
#include <sys/stat.h>
#include <thread>

using namespace qbtest;

namespace {

class ToolUpgrade : public ::testing::Test {
protected:
    Ordner ordner;
};

TEST_F(ToolUpgrade, GivesEveryRecordTheLayoutAndStampOfItsClass) {
    const std::string ziel = ordner / "neu.qbf";
    const Lauf lauf = qbformul({"upgrade", legacyBeispiel(), "-o", ziel});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus, "upgraded 1 of 1 files: " + std::to_string(legacyBeispielFormulare()) +
                                       " forms (" + std::to_string(legacyBeispielAeltere()) +
                                       " records to a newer layout)"))
        << lauf.aus;
    EXPECT_EQ(liesDatei(ziel), neuGespeichert(legacyBeispiel(), ordner));

    const std::unique_ptr<qbFormularListe> alt = lies(legacyBeispiel());
    const std::unique_ptr<qbFormularListe> neu = lies(ziel);
    ASSERT_EQ(neu->AnzahlFormulare(), alt->AnzahlFormulare());
    for (unsigned i = 0; i < neu->AnzahlFormulare(); ++i) {
        const qbFormular& form = *neu->liefereFormularAnPos(static_cast<int>(i));
        const qbKlasse* klasse = qbKlasseZuId(form.isA());
        // AU523's save never stamps: its record keeps the version it was read with.
        if (form.isA() == qbId_qbFormularAU523)
            EXPECT_EQ(form.RefVersion(), "07.2004") << i;
        else
            EXPECT_EQ(form.RefVersion(), klasse->version) << i;
    }
    qbFormularL145 verletzung;
    ASSERT_TRUE(neu->liefereFormular("L145", verletzung, 0, "Unfall"));
    EXPECT_EQ(verletzung.RefVerletzungshergang(), "Sturz mit dem Fahrrad");
    EXPECT_EQ(verletzung.RefDauer(), 12);
    // The old file is read, not written.
    EXPECT_EQ(neuGespeichert(legacyBeispiel(), ordner), liesDatei(ziel));
}

TEST_F(ToolUpgrade, InPlaceKeepsTheOldFileAsBak) {
    const std::string datei = ordner / "alt.qbf";
    const std::string alt = liesDatei(legacyBeispiel());
    schreibeDatei(datei, alt);
    ::chmod(datei.c_str(), 0640);
    const std::string erwartet = neuGespeichert(datei, ordner);
    const Lauf lauf = qbformul({"upgrade", "--in-place", datei});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_EQ(liesDatei(datei), erwartet);
    EXPECT_EQ(liesDatei(datei + ".bak"), alt);
    struct stat st;
    ASSERT_EQ(::stat(datei.c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0640u);
    EXPECT_FALSE(gibtEs(datei + ".tmp." + std::to_string(::getpid())));
}

TEST_F(ToolUpgrade, InputThatFailsIsReportedAndLeftUntouchedWhileTheOthersGoOn) {
    const std::string gut1 = ordner / "gut1.qbf", kaputt = ordner / "kaputt.qbf", gut2 = ordner / "gut2.qbf";
    for (const std::string& d : {gut1, gut2})
        schreibeDatei(d, liesDatei(legacyBeispiel()));
    const std::string kaputtInhalt = liesDatei(legacyBeispiel()).substr(0, 500);
    schreibeDatei(kaputt, kaputtInhalt);
    const Lauf lauf = qbformul({"upgrade", "--in-place", "--jobs", "1", gut1, kaputt, gut2});
    EXPECT_EQ(lauf.code, 1);
    ASSERT_EQ(lauf.fehlerzeilen().size(), 1u) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.err, "qbformul: " + kaputt +
                                       ": form 2 (qbFormularL146, L146 VP2) at byte 381: the "
                                       "record is cut off"))
        << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.err, "left as it was")) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus, "upgraded 2 of 3 files: " + std::to_string(2 * legacyBeispielFormulare()) +
                                       " forms"))
        << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "1 failure")) << lauf.aus;
    EXPECT_EQ(liesDatei(kaputt), kaputtInhalt);
    EXPECT_FALSE(gibtEs(kaputt + ".bak"));
    const std::string erwartet = neuGespeichert(legacyBeispiel(), ordner);
    EXPECT_EQ(liesDatei(gut1), erwartet);
    EXPECT_EQ(liesDatei(gut2), erwartet);
}

TEST_F(ToolUpgrade, ManyFilesInParallelIntoAFolder) {
    std::vector<std::string> argumente = {"upgrade", "--jobs", "4", "-v", "-o", ordner / "aus"};
    ASSERT_EQ(::mkdir((ordner / "aus").c_str(), 0755), 0);
    for (int i = 0; i < 20; ++i) {
        const std::string datei = ordner / ("antrag" + std::to_string(i) + ".qbf");
        schreibeDatei(datei, liesDatei(legacyBeispiel()));
        argumente.push_back(datei);
    }
    const Lauf lauf = qbformul(argumente);
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(
        lauf.aus, "upgraded 20 of 20 files: " + std::to_string(20 * legacyBeispielFormulare()) + " forms (" +
                      std::to_string(20 * legacyBeispielAeltere()) + " records to a newer layout)"))
        << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "0 failures"));
    const std::string erwartet = neuGespeichert(legacyBeispiel(), ordner);
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(liesDatei(ordner / ("aus/antrag" + std::to_string(i) + ".qbf")), erwartet) << i;
        // the lines of -v come in the order of the inputs
        EXPECT_TRUE(enthaelt(lauf.aus, "antrag" + std::to_string(i) + ".qbf -> ")) << i;
    }
    EXPECT_TRUE(lauf.err.empty()) << lauf.err; // no progress bar: stderr is no terminal
}

TEST_F(ToolUpgrade, NeedsToBeToldWhereToWrite) {
    const Lauf lauf = qbformul({"upgrade", legacyBeispiel()});
    EXPECT_EQ(lauf.code, 2);
    EXPECT_TRUE(enthaelt(lauf.err, "-o OUT or --in-place")) << lauf.err;
    EXPECT_EQ(qbformul({"upgrade", legacyBeispiel(), "--in-place", "-o", ordner / "x.qbf"}).code, 2);
}

TEST_F(ToolUpgrade, RefusesSeveralInputsIntoOneFile) {
    const Lauf lauf = qbformul({"upgrade", legacyBeispiel(), legacyBeispiel(), "-o", ordner / "x.qbf"});
    EXPECT_EQ(lauf.code, 2);
    EXPECT_TRUE(enthaelt(lauf.err, "existing folder")) << lauf.err;
    EXPECT_FALSE(gibtEs(ordner / "x.qbf"));
}

TEST_F(ToolUpgrade, KilledRunNeverLeavesAHalfWrittenFile) {
    const std::vector<std::string> dateien = grosseAlteDateien(ordner, 24);
    const std::string alt = liesDatei(dateien[0]);
    const std::string neu = neuGespeichert(dateien[0], ordner);
    ASSERT_NE(alt, neu);
    std::vector<std::string> argumente = {"upgrade", "--in-place", "--jobs", "2"};
    argumente.insert(argumente.end(), dateien.begin(), dateien.end());

    // Kill at once, then after the first, the fourth and the tenth file has its backup.
    for (const size_t fertig : {size_t{0}, size_t{1}, size_t{4}, size_t{10}}) {
        for (const std::string& d : dateien) {
            schreibeDatei(d, alt);
            std::remove((d + ".bak").c_str());
        }
        const pid_t prozess = starteQbformul(argumente);
        int code = 0;
        bool beendet = false;
        while (fertig > 0 && !(beendet = istBeendet(prozess, code))) {
            size_t mitSicherung = 0;
            for (const std::string& d : dateien)
                mitSicherung += gibtEs(d + ".bak");
            if (mitSicherung >= fertig) break;
            std::this_thread::yield();
        }
        if (!beendet) {
            ::kill(prozess, SIGKILL);
            warteAuf(prozess);
        }
        size_t erneuert = 0;
        for (const std::string& d : dateien) {
            const std::string jetzt = liesDatei(d);
            EXPECT_TRUE(jetzt == alt || jetzt == neu)
                << d << " after " << fertig << ": " << jetzt.size() << " bytes";
            erneuert += jetzt == neu;
            if (gibtEs(d + ".bak")) {
                EXPECT_EQ(liesDatei(d + ".bak"), alt) << d;
            }
        }
        SCOPED_TRACE(std::to_string(erneuert) + " files were upgraded before the kill");
    }

    // A run to the end finishes what the killed one left.
    const Lauf lauf = qbformul(argumente);
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    for (const std::string& d : dateien)
        EXPECT_EQ(liesDatei(d), neu) << d;
}

} // namespace
