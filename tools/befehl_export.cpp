// qbformul export and import: the whole application as one XML document and back.
//
// The document has the shape of the list's own XMLgetDat, a "qbFormularListe" node with "Version" and a
// collection child with the attribute "Liste", but holds each form's full node from its class's own
// XMLgetDat. Import hands it to the list's XMLputDat, which rebuilds the forms by element type.
#include "anwendungsdatei.h"
#include "asymmetrien.h"
#include "atomar.h"
#include "befehle.h"
#include "werkzeug.h"
#include "xmlansicht.h"

#include "core/qbKlassen.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <numeric>

namespace qbtool {

namespace {

const char* const kDokument =
    "The document: a node of type qbFormularListe holding \"Version\" (the list's) and a node "
    "\"RWDlistCollectables\" with the attribute \"Liste\", whose entries are the forms' own nodes, each "
    "typed "
    "with its class name. It is the shape of the list's own XMLgetDat, which writes only each form's header; "
    "export writes each form's full node instead.";

const char* const kEinlesen =
    "Import passes the document to the list's XMLputDat: each entry becomes a form of the class its type "
    "names "
    "and goes through neuesFormular, so of a replacing piece (e.g. L440) only the last form per person "
    "stays, "
    "while repeatable pieces (the health declarations) are all kept. XMLputDat does not read the list's "
    "Version; import takes it from the document. A document from export --list-only brings back which forms "
    "exist, each with the defaults of its class.";

struct ExportOptionen {
    std::string datei;
    std::string ausgabe;
    bool nurListe = false;
};

int exportiere(const ExportOptionen& o) {
    const std::unique_ptr<qbFormularListe> liste = liesAnwendung(o.datei);
    CQBXMLdata baum("");
    if (o.nurListe) {
        liste->XMLgetDat(baum);
    } else {
        std::vector<unsigned> alle(liste->AnzahlFormulare());
        std::iota(alle.begin(), alle.end(), 0u);
        baum = anwendungsBaum(*liste, alle);
    }
    const std::string xml = baum.asXMLUtf8();
    if (o.ausgabe == "-") {
        std::cout << xml;
        return kErfolg;
    }
    schreibeAtomar(o.ausgabe, xml);
    std::cout << o.ausgabe << ": " << liste->AnzahlFormulare() << " forms of " << o.datei
              << (o.nurListe ? ", headers only\n" : "\n");
    return kErfolg;
}

std::string liesText(const std::string& pfad) {
    if (pfad == "-") return std::string(std::istreambuf_iterator<char>(std::cin), {});
    std::ifstream ein(pfad, std::ios::binary);
    if (!ein) throw dateiFehler(pfad, systemFehler(errno));
    std::string text(std::istreambuf_iterator<char>(ein), {});
    if (ein.bad()) throw dateiFehler(pfad, "cannot be read");
    return text;
}

} // namespace

int importiere(const ImportOptionen& o) {
    const std::string name = o.eingabe == "-" ? "standard input" : o.eingabe;
    CQBXMLdata baum("");
    std::string problem;
    if (!baum.fromXMLUtf8(liesText(o.eingabe), &problem)) throw dateiFehler(name, problem);
    if (baum.Typ() != "qbFormularListe")
        throw dateiFehler(name, "is no application document: its root has the type \"" + utf8(baum.Typ()) +
                                    "\", not \"qbFormularListe\"");
    CQBXMLdata* sammlung = baum.GetChildren("Liste");
    if (!sammlung) throw dateiFehler(name, "holds no node with the attribute \"Liste\": no forms to import");
    // The list skips an entry of a type it does not know without a word; here that is an error, so that
    // nothing is lost unnoticed.
    for (size_t i = 0; i < sammlung->entryCount(); ++i) {
        const CQBXMLdata& eintrag = *sammlung->entryAt(i);
        if (!qbKlasseZuXmlTyp(eintrag.Typ()))
            throw dateiFehler(name, "entry " + std::to_string(i + 1) + " has the type \"" +
                                        utf8(eintrag.Typ()) + "\", which the list's import does not know");
    }

    qbFormularListe liste;
    liste.XMLputDat(baum);
    RWCString version;
    if (baum.Listvalue("Version", version)) liste.RefVersion(version);

    const long bytes = speichereAnwendung(o.ausgabe, liste);
    std::cout << o.ausgabe << ": " << liste.AnzahlFormulare() << " forms from " << sammlung->entryCount()
              << " entries of " << name << ", " << bytes << " bytes";
    if (liste.AnzahlFormulare() < sammlung->entryCount())
        std::cout << " (" << sammlung->entryCount() - liste.AnzahlFormulare()
                  << " replaced an earlier form of the same piece and person)";
    std::cout << '\n';
    return kErfolg;
}

void richteExportEin(CLI::App& haupt, Befehle& befehle) {
    auto o = std::make_shared<ExportOptionen>();
    CLI::App* app = haupt.add_subcommand("export", "The whole application as one XML document.");
    app->add_option("FILE", o->datei, "application file")->required();
    app->add_option("-o,--output", o->ausgabe, "the XML document to write; - for standard output")
        ->required();
    app->add_flag("--list-only", o->nurListe,
                  "write the list's own XMLgetDat instead: every form's header only, typed qbFormular");
    app->footer([] {
        return umbrochen(std::string(kDokument) + "\n\n" + kEinlesen) + "\n\n" + xmlAsymmetrienText();
    });
    befehle.push_back({app, [o] { return exportiere(*o); }});
}

void richteImportEin(CLI::App& haupt, Befehle& befehle) {
    auto o = std::make_shared<ImportOptionen>();
    CLI::App* app = haupt.add_subcommand("import", "An application file from an XML document of export.");
    app->add_option("IN", o->eingabe, "the XML document; - for standard input")->required();
    app->add_option("-o,--output", o->ausgabe, "the application file to write")->required();
    app->footer([] {
        return umbrochen(std::string(kDokument) + "\n\n" + kEinlesen) + "\n\n" + xmlAsymmetrienText();
    });
    befehle.push_back({app, [o] { return importiere(*o); }});
}

} // namespace qbtool
