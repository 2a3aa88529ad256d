// qbformul demo [DIR]: the library's main job in one run. Builds an application with forms for the
// applicant and two insured persons, stores it, reads it back, lists it, and writes its XML and JSON
// beside it.
#include "anwendungsdatei.h"
#include "atomar.h"
#include "befehle.h"
#include "werkzeug.h"
#include "xmlansicht.h"

#include "health/qbFormularL144.h"
#include "health/qbFormularL145.h"
#include "health/qbFormularL146.h"
#include "health/qbFormularL147.h"
#include "sport/qbFormularL440.h"

#include <filesystem>
#include <iostream>
#include <memory>
#include <numeric>

namespace qbtool {

namespace {

// Where a checkout keeps the stored example with records of old layouts.
const char* const kAltesBeispiel = "examples/legacy/alte-layouts.qbf";

RWCString t(const char* utf8Text) { return cp1252(utf8Text, "demo text"); }

qbFormularListe beispielAntrag() {
    qbFormularListe antrag;

    qbFormularL147 blutdruck; // the applicant's ("VN")
    blutdruck.RefBeginn(t("Frühjahr 2000"));
    blutdruck.RefMedikamente(t("Betablocker"));
    blutdruck.RefArztAdresse(t("Dr. Maier, Hauptstraße 1, 80331 München"));
    antrag.neuesFormular(blutdruck);

    qbFormularL145 verletzung; // "VP1"
    verletzung.RefKrankheit(t("Knieverletzung"));
    verletzung.RefVerletzungshergang(t("Sturz beim Skifahren"));
    verletzung.RefVerletzteGelenke(t("rechtes Knie"));
    verletzung.RefGeheiltJN(1);
    verletzung.RefGeheiltSeit(t("03.2001"));
    verletzung.RefOperationJN(0);
    antrag.neuesFormular(verletzung);

    qbFormularL440 kampfsport; // "VP1"
    kampfsport.RefKampfsportarten(t("Judo"));
    kampfsport.RefFreizeitsportJN(1);
    kampfsport.RefBerufssportlerJN(0);
    antrag.neuesFormular(kampfsport);

    qbFormularL146 wirbelsaeule;
    wirbelsaeule.RefPersonenKennung("VP2");
    wirbelsaeule.RefDiagnose(t("Bandscheibenvorfall"));
    wirbelsaeule.RefWirbelsaeulenabschnitt(t("Lendenwirbelsäule"));
    wirbelsaeule.RefRoentgenJN(1);
    antrag.neuesFormular(wirbelsaeule);

    qbFormularL144 schwangerschaft;
    schwangerschaft.RefPersonenKennung("VP2");
    schwangerschaft.RefSchwangerschaftJN(1);
    schwangerschaft.RefSchwangerschaftsmonat(4);
    schwangerschaft.RefKomplikationenJN(0);
    antrag.neuesFormular(schwangerschaft);
    return antrag;
}

int demo(const std::string& ordnerName) {
    const std::filesystem::path ordner(ordnerName);
    std::error_code fehler;
    std::filesystem::create_directories(ordner, fehler);
    if (fehler) throw dateiFehler(ordnerName, "cannot be created: " + fehler.message());
    const std::string datei = (ordner / "antrag.qbf").string();
    const std::string xml = (ordner / "antrag.xml").string();
    const std::string json = (ordner / "antrag.json").string();

    const qbFormularListe antrag = beispielAntrag();
    speichereAnwendung(datei, antrag);
    std::cout << "Stored an application with forms for VN, VP1 and VP2, read it back:\n\n";
    druckeFormularliste(datei, std::cout);

    const std::unique_ptr<qbFormularListe> gelesen = liesAnwendung(datei);
    if (gelesen->AnzahlFormulare() != antrag.AnzahlFormulare())
        throw dateiFehler(datei,
                          "read back " + std::to_string(gelesen->AnzahlFormulare()) + " forms instead of " +
                              std::to_string(antrag.AnzahlFormulare()),
                          kPruefungFehlgeschlagen);
    std::vector<unsigned> alle(gelesen->AnzahlFormulare());
    std::iota(alle.begin(), alle.end(), 0u);
    schreibeAtomar(xml, anwendungsBaum(*gelesen, alle).asXMLUtf8());
    schreibeAtomar(json, jsonText(anwendungJson(datei, *gelesen, alle)));

    const std::pair<std::string, std::string> geschrieben[] = {
        {datei, "the application file (qbformul show " + datei + ")"},
        {xml, "its XML, each form's full node (qbformul import reads it back)"},
        {json, "its fields as JSON"},
    };
    std::cout << "\nWritten:\n";
    for (const auto& [pfad, was] : geschrieben)
        std::cout << "  " << pfad << std::string(json.size() - pfad.size() + 2, ' ') << was << '\n';
    if (std::filesystem::is_regular_file(kAltesBeispiel, fehler)) {
        std::cout << "\nA stored example whose records have the layouts of older versions:\n\n";
        druckeFormularliste(kAltesBeispiel, std::cout);
        std::cout << "\nqbformul explain " << kAltesBeispiel << " shows how each old record is read.\n";
    }
    return kErfolg;
}

} // namespace

void richteDemoEin(CLI::App& haupt, Befehle& befehle) {
    auto ordner = std::make_shared<std::string>("qbformul-demo");
    CLI::App* app =
        haupt.add_subcommand("demo", "Builds, stores, reads back and lists an example application.");
    app->add_option("DIR", *ordner, "folder to write into")->capture_default_str();
    app->footer(umbrochen("Writes DIR/antrag.qbf (the application file), DIR/antrag.xml (what export writes) "
                          "and DIR/antrag.json "
                          "(what show --format json writes). The application holds a blood-pressure "
                          "declaration of the applicant "
                          "(VN), an injury and a combat-sports declaration of the first insured person "
                          "(VP1), and a spine and a "
                          "pregnancy declaration of the second (VP2). Run from a checkout, it also lists " +
                          std::string(kAltesBeispiel) + ", a file with records of older layouts."));
    befehle.push_back({app, [ordner] { return demo(*ordner); }});
}

} // namespace qbtool
