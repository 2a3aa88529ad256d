// The tool's command line as a whole: help, exit codes, one-line errors; and the subcommands that need no
// input file, catalog and demo.
#include "anwendungen.h"

#include <nlohmann/json.hpp>

#include <set>

#include "qballg/CQBXMLdata.h"

using namespace qbtest;

namespace {

const std::vector<std::string> kBefehle = {"demo",   "list",    "show",    "export",
                                           "import", "upgrade", "catalog", "explain"};

TEST(ToolAufruf, EverySubcommandHasHelpThatExitsZero) {
    for (const std::string& befehl : kBefehle) {
        const Lauf lauf = qbformul({befehl, "--help"});
        EXPECT_EQ(lauf.code, 0) << befehl << lauf.err;
        EXPECT_TRUE(enthaelt(lauf.aus, "Usage: qbformul " + befehl)) << befehl << lauf.aus;
        EXPECT_TRUE(lauf.err.empty()) << befehl << lauf.err;
    }
    const Lauf lauf = qbformul({"--help"});
    EXPECT_EQ(lauf.code, 0);
    for (const std::string& befehl : kBefehle)
        EXPECT_TRUE(enthaelt(lauf.aus, befehl)) << befehl;
}

TEST(ToolAufruf, NoSubcommandIsBadUsageInOneLine) {
    const Lauf lauf = qbformul({});
    EXPECT_EQ(lauf.code, 2);
    ASSERT_EQ(lauf.fehlerzeilen().size(), 1u) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.err, "subcommand")) << lauf.err;
}

TEST(ToolAufruf, UnknownOptionIsBadUsageNamingIt) {
    const Lauf lauf = qbformul({"list", "--gibtsnicht", "x.qbf"});
    EXPECT_EQ(lauf.code, 2);
    ASSERT_EQ(lauf.fehlerzeilen().size(), 1u) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.err, "--gibtsnicht")) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.err, "qbformul list")) << lauf.err;
}

TEST(ToolAufruf, MissingArgumentIsBadUsage) {
    for (const std::string befehl : {"list", "show", "explain", "upgrade", "import"}) {
        const Lauf lauf = qbformul({befehl});
        EXPECT_EQ(lauf.code, 2) << befehl;
        EXPECT_EQ(lauf.fehlerzeilen().size(), 1u) << befehl << lauf.err;
    }
}

TEST(ToolAufruf, InvalidChoiceOfPersonOrFormatIsBadUsage) {
    Ordner ordner;
    speichere(beispielAntrag(), ordner / "a.qbf");
    EXPECT_EQ(qbformul({"show", ordner / "a.qbf", "--person", "VP3"}).code, 2);
    EXPECT_EQ(qbformul({"show", ordner / "a.qbf", "--format", "yaml"}).code, 2);
}

TEST(ToolAufruf, MissingFileIsUnreadableInputNamingTheFile) {
    Ordner ordner;
    const std::string datei = ordner / "fehlt.qbf";
    for (const std::string befehl : {"list", "show", "explain", "export"}) {
        std::vector<std::string> argumente = {befehl, datei};
        if (befehl == "export") argumente.insert(argumente.end(), {"-o", ordner / "x.xml"});
        const Lauf lauf = qbformul(argumente);
        EXPECT_EQ(lauf.code, 2) << befehl;
        ASSERT_EQ(lauf.fehlerzeilen().size(), 1u) << befehl << lauf.err;
        EXPECT_EQ(lauf.err, "qbformul: " + datei + ": No such file or directory\n") << befehl;
    }
}

TEST(ToolAufruf, FolderIsNoApplicationFile) {
    Ordner ordner;
    const Lauf lauf = qbformul({"list", ordner.pfad()});
    EXPECT_EQ(lauf.code, 2);
    EXPECT_TRUE(enthaelt(lauf.err, ordner.pfad() + ": is a directory")) << lauf.err;
}

TEST(ToolAufruf, VersionFlagPrintsTheVersion) {
    const Lauf lauf = qbformul({"--version"});
    EXPECT_EQ(lauf.code, 0);
    EXPECT_FALSE(lauf.aus.empty());
}

// ---- catalog

TEST(ToolCatalog, ListsThe45PiecesWithNamePagesAndClass) {
    const Lauf lauf = qbformul({"catalog"});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus, "45 print pieces in the catalogue")) << lauf.aus;
    // In UTF-8 on the terminal, from the library's Windows-1252.
    EXPECT_TRUE(enthaelt(lauf.aus, "Änderungsprotokoll zum LV-Antrag")) << lauf.aus;
    size_t zeilen = 0;
    for (size_t pos = 0; (pos = lauf.aus.find('\n', pos)) != std::string::npos; ++pos)
        ++zeilen;
    EXPECT_GE(zeilen, 47u); // the count, the titles and 45 rows
    size_t mitKlasse = 0;
    qbFormularListe liste;
    for (const qbFormularInfo& info : liste.RefDruckstueckeInfo()) {
        const qbKlasse* klasse = qbKlasseZuNummer(info.Nummer);
        if (!klasse) continue;
        ++mitKlasse;
        EXPECT_TRUE(enthaelt(lauf.aus, klasse->klassenName)) << info.Nummer.data();
    }
    EXPECT_TRUE(enthaelt(lauf.aus, ", " + std::to_string(mitKlasse) + " with a form class")) << lauf.aus;
}

// ---- demo

TEST(ToolDemo, WritesApplicationXmlAndJsonAndSaysWhere) {
    Ordner ordner;
    const std::string ziel = ordner / "demo";
    const Lauf lauf = qbformul({"demo", ziel});
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    for (const char* name : {"antrag.qbf", "antrag.xml", "antrag.json"}) {
        EXPECT_TRUE(gibtEs(ziel + "/" + name)) << name;
        EXPECT_TRUE(enthaelt(lauf.aus, ziel + "/" + name)) << name << lauf.aus;
    }
    const std::unique_ptr<qbFormularListe> antrag = lies(ziel + "/antrag.qbf");
    std::set<std::string> personen;
    for (unsigned i = 0; i < antrag->AnzahlFormulare(); ++i)
        personen.insert(antrag->liefereFormularAnPos(static_cast<int>(i))->RefPersonenKennung().std());
    EXPECT_EQ(personen, (std::set<std::string>{"VN", "VP1", "VP2"}));

    CQBXMLdata baum("");
    std::string problem;
    ASSERT_TRUE(baum.fromXMLUtf8(liesDatei(ziel + "/antrag.xml"), &problem)) << problem;
    EXPECT_EQ(baum.Typ(), "qbFormularListe");
    ASSERT_NE(baum.GetChildren("Liste"), nullptr);
    EXPECT_EQ(baum.GetChildren("Liste")->entryCount(), antrag->AnzahlFormulare());

    const nlohmann::json json = nlohmann::json::parse(liesDatei(ziel + "/antrag.json"));
    EXPECT_EQ(json["forms"].size(), antrag->AnzahlFormulare());
}

TEST(ToolDemo, WritesIntoQbformulDemoOfTheWorkingFolderByDefault) {
    Ordner ordner;
    const Lauf lauf = qbformul({"demo"}, ordner.pfad());
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(gibtEs(ordner / "qbformul-demo/antrag.qbf"));
}

TEST(ToolDemo, ListsTheStoredLegacyExampleWhenRunInACheckout) {
    Ordner ordner;
    const Lauf lauf = qbformul({"demo", ordner / "demo"}, QBFORMUL_SOURCE_DIR);
    ASSERT_EQ(lauf.code, 0) << lauf.err;
    EXPECT_TRUE(enthaelt(lauf.aus, kLegacyBeispielPfad)) << lauf.aus;
    EXPECT_TRUE(enthaelt(lauf.aus, "10.1999  10.2002 *")) << lauf.aus;
}

} // namespace
