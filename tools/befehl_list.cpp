// qbformul list FILE: one row per stored form, with where it lies in the file and whether its record has
// the layout of its class's current version.
#include "anwendungsdatei.h"
#include "befehle.h"
#include "werkzeug.h"

#include <iostream>
#include <memory>

namespace qbtool {

void druckeFormularliste(const std::string& pfad, std::ostream& aus) {
    Rahmenleser leser(pfad);
    Listenkopf kopf;
    const std::vector<Element> elemente = leser.liesAlle(&kopf);

    Tabelle tabelle({{"Pos", true},
                     {"Byte", true},
                     {"Class"},
                     {"Piece"},
                     {"Name"},
                     {"Person"},
                     {"Version"},
                     {"Current"},
                     {"Bytes", true}});
    unsigned aelter = 0;
    for (const Element& e : elemente) {
        const qbFormular& form = *e.form;
        std::string klasse = e.klasse ? e.klasse->klassenName : "?";
        std::string groesse = std::to_string(e.satzGroesse());
        if (e.art == Element::Art::Verweis) {
            klasse += " = form " + std::to_string(e.verweisAuf);
            groesse = "ref";
        }
        std::string aktuell = e.klasse ? e.klasse->version : "";
        if (!aktuell.empty() && form.RefVersion() != e.klasse->version) {
            aktuell += " *";
            ++aelter;
        }
        tabelle.zeile({std::to_string(e.position), std::to_string(e.beginn), klasse,
                       lesbar(utf8(form.RefDruckstueckNummer())), lesbar(utf8(form.RefDruckstueckName())),
                       lesbar(utf8(form.RefPersonenKennung())), lesbar(utf8(form.RefVersion())), aktuell,
                       groesse});
    }
    aus << pfad << ": " << elemente.size() << (elemente.size() == 1 ? " form" : " forms") << ", list Version "
        << lesbar(utf8(kopf.version)) << ", " << leser.groesse() << " bytes\n";
    if (!elemente.empty()) tabelle.drucke(aus);
    if (aelter)
        aus << "* " << aelter << (aelter == 1 ? " record has" : " records have")
            << " an older layout than their class writes today; qbformul upgrade rewrites them\n";
}

void richteListEin(CLI::App& haupt, Befehle& befehle) {
    auto datei = std::make_shared<std::string>();
    CLI::App* app = haupt.add_subcommand("list", "One row per stored form of an application file.");
    app->add_option("FILE", *datei, "application file")->required();
    app->footer(umbrochen(
        "Columns: position in the list, byte offset of the form in the file, class, print piece, printed "
        "name, person, the stored Version, the Version the class writes today (* where they differ), "
        "and the size of the record in bytes (without its two bytes of class id)."));
    befehle.push_back({app, [datei] {
                           druckeFormularliste(*datei, std::cout);
                           return kErfolg;
                       }});
}

} // namespace qbtool
