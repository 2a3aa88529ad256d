// qbformul show FILE: every field of the selected forms with its value, as each form's own XMLgetDat
// gives it.
#include "anwendungsdatei.h"
#include "befehle.h"
#include "werkzeug.h"
#include "xmlansicht.h"

#include "core/qbKlassen.h"

#include <iostream>
#include <memory>

namespace qbtool {

namespace {

struct ShowOptionen {
    std::string datei;
    std::string stueck;
    std::string person;
    std::string format = "text";
};

int zeige(const ShowOptionen& o) {
    const std::unique_ptr<qbFormularListe> liste = liesAnwendung(o.datei);
    const RWCString stueck = cp1252(o.stueck, "--piece");
    std::vector<unsigned> auswahl;
    for (unsigned pos = 0; pos < liste->AnzahlFormulare(); ++pos) {
        const qbFormular& form = *liste->liefereFormularAnPos(static_cast<int>(pos));
        if (!o.stueck.empty() && form.RefDruckstueckNummer() != stueck) continue;
        if (!o.person.empty() && form.RefPersonenKennung() != o.person.c_str()) continue;
        auswahl.push_back(pos);
    }
    if (auswahl.empty() && (!o.stueck.empty() || !o.person.empty()))
        throw dateiFehler(o.datei,
                          "no form" + (o.stueck.empty() ? "" : " of piece " + o.stueck) +
                              (o.person.empty() ? "" : " for person " + o.person),
                          kPruefungFehlgeschlagen);

    if (o.format == "xml") {
        std::cout << anwendungsBaum(*liste, auswahl).asXMLUtf8();
        return kErfolg;
    }
    if (o.format == "json") {
        std::cout << jsonText(anwendungJson(o.datei, *liste, auswahl));
        return kErfolg;
    }
    bool erste = true;
    for (unsigned pos : auswahl) {
        const qbFormular& form = *liste->liefereFormularAnPos(static_cast<int>(pos));
        const qbKlasse* klasse = qbKlasseZuId(form.isA());
        if (!erste) std::cout << '\n';
        erste = false;
        std::cout << "Form " << pos + 1 << " of " << liste->AnzahlFormulare() << ": "
                  << (klasse ? klasse->klassenName : "?") << "  " << lesbar(utf8(form.RefDruckstueckNummer()))
                  << ' ' << zitiert(utf8(form.RefDruckstueckName())) << "  "
                  << lesbar(utf8(form.RefPersonenKennung())) << "  Version "
                  << lesbar(utf8(form.RefVersion())) << '\n';
        druckeKnoten(std::cout, formularKnoten(form), "  ");
        if (const auto gespeichert = gespeicherteFelder(form)) {
            std::cout << "  stored fields (none of them in the class's XML):\n";
            druckeKnoten(std::cout, *gespeichert, "    ");
        }
    }
    return kErfolg;
}

} // namespace

void richteShowEin(CLI::App& haupt, Befehle& befehle) {
    auto o = std::make_shared<ShowOptionen>();
    CLI::App* app = haupt.add_subcommand("show", "Every field of the selected forms with its value.");
    app->add_option("FILE", o->datei, "application file")->required();
    app->add_option("--piece", o->stueck, "only forms of this print piece, e.g. L145");
    app->add_option("--person", o->person, "only forms of this person")
        ->check(CLI::IsMember({"VN", "VP1", "VP2"}));
    app->add_option("--format", o->format, "text, xml or json")
        ->check(CLI::IsMember({"text", "xml", "json"}))
        ->capture_default_str();
    app->footer(umbrochen(
        "The fields are what each form's own XMLgetDat gives, nested header nodes under their type. Yes/no "
        "answers read ja, nein or nicht beantwortet. A field a class keeps out of its XML is not shown "
        "(qbformul export --help lists them; qbformul explain shows every stored value); the fields of a "
        "class that keeps them all out of its XML (GS004, AU523) follow as stored fields. --format xml "
        "writes the document export writes, with the selected forms. Exit code 1 when no form matches "
        "the selection."));
    befehle.push_back({app, [o] { return zeige(*o); }});
}

} // namespace qbtool
