// qbformul convert-gs004 FILE -o OUT: the migration of a stored application from the old financial risk
// check qbFormularGS004 to the three checks that replaced it, one per cover (GS004_001 disability,
// GS004_002 life, GS004_003 accident), through their conversion constructors. The result goes to a new
// file; the input is only read.
#include "anwendungsdatei.h"
#include "befehle.h"
#include "werkzeug.h"

#include "finance/qbFormularGS004.h"
#include "finance/qbFormularGS004BUZ.h"
#include "finance/qbFormularGS004LV.h"
#include "finance/qbFormularGS004UZ.h"

#include <filesystem>
#include <iostream>
#include <memory>

namespace qbtool {

namespace {

struct ConvertOptionen {
    std::string datei;
    std::string ausgabe;
    bool behalten = false;
};

// The list's person index of a person key: 0 "VP1", 1 "VP2", every other value "VN".
int personIndex(const RWCString& kennung) { return kennung == "VP1" ? 0 : kennung == "VP2" ? 1 : -1; }

bool gleicheDatei(const std::string& a, const std::string& b) {
    std::error_code fehler;
    return std::filesystem::equivalent(a, b, fehler) ||
           std::filesystem::weakly_canonical(a, fehler) == std::filesystem::weakly_canonical(b, fehler);
}

int wandleUm(const ConvertOptionen& o) {
    if (gleicheDatei(o.datei, o.ausgabe))
        throw Fehler("convert-gs004: the output must be a new file, not the input " + o.datei);
    const std::unique_ptr<qbFormularListe> liste = liesAnwendung(o.datei);

    // The GS004 records in file order, copied before the list changes.
    struct Alt {
        unsigned position;
        qbFormularGS004 form;
    };
    std::vector<Alt> alte;
    for (unsigned pos = 0; pos < liste->AnzahlFormulare(); ++pos)
        if (const auto* gs004 =
                dynamic_cast<const qbFormularGS004*>(liste->liefereFormularAnPos(static_cast<int>(pos))))
            alte.push_back({pos + 1, *gs004});
    if (alte.empty()) throw dateiFehler(o.datei, "holds no GS004 to convert", kPruefungFehlgeschlagen);

    unsigned neue = 0, entfernt = 0;
    for (const Alt& alt : alte) {
        const RWCString& person = alt.form.RefPersonenKennung();
        const int index = personIndex(person);
        std::cout << "form " << alt.position << " (GS004 " << lesbar(utf8(person)) << ", Version "
                  << lesbar(utf8(alt.form.RefVersion())) << "):";
        // The list finds a form by one of the three persons; a form of another could not be told apart.
        if (person != "VN" && person != "VP1" && person != "VP2") {
            std::cout << " not converted: its person is none of VN, VP1, VP2; GS004 kept\n";
            continue;
        }
        // A check of that piece and person already in the application stays: the list would replace it.
        unsigned gemacht = 0;
        auto neu = [&](const char* nummer, auto&& form) {
            if (liste->FormularVorhanden(nummer, index)) {
                std::cout << ' ' << nummer << " (kept the one there)";
                return;
            }
            liste->neuesFormular(form);
            std::cout << ' ' << nummer;
            ++gemacht;
        };
        neu("GS004_001", qbFormularGS004BUZ(alt.form));
        neu("GS004_002", qbFormularGS004LV(alt.form));
        neu("GS004_003", qbFormularGS004UZ(alt.form));
        neue += gemacht;
        // The old record goes once all three come from it, unless it is to stay.
        if (gemacht == 3 && !o.behalten && liste->loescheFormular("GS004", index)) {
            ++entfernt;
            std::cout << "; GS004 removed";
        } else {
            std::cout << "; GS004 kept";
        }
        std::cout << '\n';
    }
    const long bytes = speichereAnwendung(o.ausgabe, *liste);
    std::cout << "converted " << alte.size() << (alte.size() == 1 ? " GS004" : " GS004s") << " into " << neue
              << (neue == 1 ? " form" : " forms") << " (" << entfernt << " GS004 removed), "
              << liste->AnzahlFormulare() << " forms and " << bytes << " bytes written to " << o.ausgabe
              << '\n';
    return kErfolg;
}

} // namespace

void richteConvertEin(CLI::App& haupt, Befehle& befehle) {
    auto o = std::make_shared<ConvertOptionen>();
    CLI::App* app = haupt.add_subcommand(
        "convert-gs004", "Converts the GS004 of an application file into the three checks that replaced it.");
    app->add_option("FILE", o->datei, "application file, only read")->required();
    app->add_option("-o,--output", o->ausgabe, "the new application file")->required();
    app->add_flag("--keep", o->behalten, "keep each GS004 beside the checks made from it");
    app->footer(umbrochen(
        "Each qbFormularGS004 of the file becomes a qbFormularGS004BUZ (GS004_001), a qbFormularGS004LV "
        "(GS004_002) and a qbFormularGS004UZ (GS004_003) of the same person, built by their conversion "
        "constructors: every field of the same name, the new forms' own header, the old form's person. "
        "Fields "
        "no successor takes (Rue, VersorgungsZusageJN, HoeheVersorgungszusage, Unternehmensgruendung, "
        "VermerkeDesVermittlerss, PraktischTaetigJN, AufsichtsfuehrendJN, AnzahlMitarbeiter, Schulbildung, "
        "Berufsausbildung, Jahre, BeschreibungNebenJob) are dropped; the education answers of a record "
        "before 10.2002 are those derived from Berufsausbildung when it was read.\n"
        "A GS004 whose person is none of VN, VP1 and VP2 is not converted. A check of a piece that the "
        "application already holds for that person stays as it is and is not "
        "made again (nor from a second GS004 of the same person); a GS004 is removed once all three checks "
        "come from it, unless --keep. The other forms stay as they are. The output is a new file in today's "
        "layouts (as upgrade writes them), written atomically and read back; the input is never written. "
        "Exit code 1 when the file holds no GS004."));
    befehle.push_back({app, [o] { return wandleUm(*o); }});
}

} // namespace qbtool
