// qbformul check FILE...: runs every check that the stored forms offer and says per form what failed.
#include "anwendungsdatei.h"
#include "befehle.h"
#include "pruefungen.h"
#include "werkzeug.h"
#include "xmlansicht.h"

#include "core/qbKlassen.h"

#include <iostream>
#include <memory>

namespace qbtool {

namespace {

struct CheckOptionen {
    std::vector<std::string> dateien;
    std::string format = "text";
};

int pruefe(const CheckOptionen& o) {
    bool fehlgeschlagen = false;
    nlohmann::ordered_json json = nlohmann::ordered_json::array();
    for (const std::string& datei : o.dateien) {
        const std::unique_ptr<qbFormularListe> liste = liesAnwendung(datei);
        nlohmann::ordered_json formen = nlohmann::ordered_json::array();
        Tabelle tabelle({{"#", true}, {"piece"}, {"person"}, {"check"}, {"result"}});
        unsigned geprueft = 0;
        for (unsigned pos = 0; pos < liste->AnzahlFormulare(); ++pos) {
            const qbFormular& form = *liste->liefereFormularAnPos(static_cast<int>(pos));
            const qbKlasse* klasse = qbKlasseZuId(form.isA());
            if (!klasse) continue;
            for (const Pruefung* p : pruefungenDerKlasse(klasse->klassenName)) {
                const std::string meldung = utf8(p->pruefe(form));
                fehlgeschlagen = fehlgeschlagen || !meldung.empty();
                ++geprueft;
                tabelle.zeile({std::to_string(pos + 1), lesbar(utf8(form.RefDruckstueckNummer())),
                               lesbar(utf8(form.RefPersonenKennung())), p->name,
                               meldung.empty() ? "ok" : lesbar(meldung)});
                formen.push_back({{"position", pos + 1},
                                  {"class", klasse->klassenName},
                                  {"piece", utf8(form.RefDruckstueckNummer())},
                                  {"person", utf8(form.RefPersonenKennung())},
                                  {"check", p->name},
                                  {"passed", meldung.empty()},
                                  {"message", meldung}});
            }
        }
        if (o.format == "json") {
            json.push_back({{"file", datei}, {"checks", formen}});
            continue;
        }
        std::cout << datei << ": " << geprueft << (geprueft == 1 ? " check" : " checks") << " of "
                  << liste->AnzahlFormulare() << (liste->AnzahlFormulare() == 1 ? " form" : " forms") << '\n';
        if (geprueft) tabelle.drucke(std::cout, "  ");
    }
    if (o.format == "json") std::cout << jsonText(json);
    return fehlgeschlagen ? kPruefungFehlgeschlagen : kErfolg;
}

} // namespace

void richteCheckEin(CLI::App& haupt, Befehle& befehle) {
    auto o = std::make_shared<CheckOptionen>();
    CLI::App* app = haupt.add_subcommand("check", "Runs every check the stored forms offer.");
    app->add_option("FILE", o->dateien, "application files")->required();
    app->add_option("--format", o->format, "text or json")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
    app->footer(umbrochen(
        "Each form whose class offers checks runs all of them, as the application would before printing: "
        "the pension form (BAV) its checks of direct insurance, support fund and pension plans "
        "(pruefDatenDV, pruefDatenUK, pruefDatenPF, pruefDatenPK), the group tariff clause (KOLL) its check "
        "of the group contract and the ticks (pruefDaten), the research report (VB077) the list of what is "
        "missing, page by page (pruefDaten(alle)). Per check the form's position, piece, "
        "person and the message of the first rule that failed, or ok. Dates are checked against today. "
        "Exit code 1 when any check fails, 0 when all pass (also when no form offers a check), 2 for a "
        "file that does not read."));
    befehle.push_back({app, [o] { return pruefe(*o); }});
}

} // namespace qbtool
