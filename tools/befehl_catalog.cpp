// qbformul catalog: the print pieces the form list knows, and which of them have a form class.
#include "befehle.h"
#include "werkzeug.h"

#include "core/qbFormularListe.h"
#include "core/qbKlassen.h"

#include <iostream>

namespace qbtool {

namespace {

int katalog() {
    qbFormularListe liste;
    const RWTValSlist<qbFormularInfo> eintraege = liste.RefDruckstueckeInfo();
    Tabelle tabelle({{"Piece"}, {"Pages", true}, {"Name"}, {"Class"}});
    std::vector<std::string> abweichungen;
    unsigned mitKlasse = 0;
    for (const qbFormularInfo& info : eintraege) {
        const qbKlasse* klasse = qbKlasseZuNummer(info.Nummer);
        if (klasse) {
            ++mitKlasse;
            // The catalogue is a table of its own that has drifted from the classes.
            if (info.Name != klasse->name || info.Seiten != std::to_string(klasse->seiten).c_str())
                abweichungen.push_back(utf8(info.Nummer) + ": the class's own header says " +
                                       zitiert(utf8(RWCString(klasse->name))) + ", " +
                                       std::to_string(klasse->seiten) + " pages");
        }
        tabelle.zeile(
            {utf8(info.Nummer), utf8(info.Seiten), utf8(info.Name), klasse ? klasse->klassenName : "-"});
    }
    std::cout << eintraege.entries() << " print pieces in the catalogue, " << mitKlasse
              << " with a form class\n";
    tabelle.drucke(std::cout);
    for (const qbKlasse& k : qbKlassen) {
        if (k.listenart == qbListenart::Basis) continue;
        bool imKatalog = false;
        for (const qbFormularInfo& info : eintraege)
            imKatalog = imKatalog || info.Nummer == k.nummer;
        if (!imKatalog)
            abweichungen.push_back(std::string(k.nummer) + ": has the class " + k.klassenName +
                                   " but no row in the catalogue");
    }
    if (!abweichungen.empty()) {
        std::cout << "\nWhere the catalogue and the classes differ (both are kept as they are):\n";
        for (const std::string& a : abweichungen)
            std::cout << "  " << a << '\n';
    }
    return kErfolg;
}

} // namespace

void richteCatalogEin(CLI::App& haupt, Befehle& befehle) {
    CLI::App* app =
        haupt.add_subcommand("catalog", "The print pieces of the catalogue and which have a form class.");
    app->footer(umbrochen(
        "The catalogue is the form list's fixed table of print pieces (number, name, pages). A piece "
        "without a class is not yet part of this library: the list treats it as an unknown "
        "number."));
    befehle.push_back({app, [] { return katalog(); }});
}

} // namespace qbtool
