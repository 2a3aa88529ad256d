// The command line of qbformul: the subcommands, their parsing, and the exit code of the one that runs.
#include "befehle.h"
#include "werkzeug.h"

#include "rw/rwerr.h"

#include <exception>
#include <iostream>
#include <new>

namespace qbtool {

namespace {

// CLI11's report of a bad command line as one line: what is wrong and where the help is.
std::string einzeilig(const CLI::App* haupt, const CLI::Error& fehler) {
    std::string befehl = haupt->get_name();
    for (const CLI::App* unter : haupt->get_subcommands())
        befehl += " " + unter->get_name();
    return befehl + ": " + fehler.what() + " (see " + befehl + " --help)\n";
}

} // namespace

int hauptprogramm(int argc, char** argv) {
    CLI::App haupt(
        "Looks into, converts and upgrades the stored applications of the form library. Text on the "
        "terminal and in XML and JSON is UTF-8; the library's Windows-1252 is converted at the edge.\n"
        "Exit codes: 0 success, 1 a check failed, 2 bad usage or unreadable input.",
        "qbformul");
    haupt.set_version_flag("--version", QBFORMUL_VERSION);
    haupt.require_subcommand(1);
    haupt.failure_message(einzeilig);

    Befehle befehle;
    richteDemoEin(haupt, befehle);
    richteListEin(haupt, befehle);
    richteShowEin(haupt, befehle);
    richteExportEin(haupt, befehle);
    richteImportEin(haupt, befehle);
    richteUpgradeEin(haupt, befehle);
    richteCatalogEin(haupt, befehle);
    richteExplainEin(haupt, befehle);

    try {
        haupt.parse(argc, argv);
    } catch (const CLI::ParseError& fehler) {
        const int code = haupt.exit(fehler);
        return code == 0 ? kErfolg : kAufruffehler;
    }

    for (const Befehl& befehl : befehle)
        if (befehl.app->parsed()) return fuehreAus(befehl.app->get_name(), befehl.ausfuehren);
    return kAufruffehler;
}

int fuehreAus(const std::string& name, const std::function<int()>& arbeit) {
    try {
        const int code = arbeit();
        std::cout.flush();
        return code;
    } catch (const Fehler& fehler) {
        meldeFehler(fehler.what());
        return fehler.code();
    } catch (const RWxmsg& fehler) {
        meldeFehler(name + ": " + fehler.why());
        return kAufruffehler;
    } catch (const std::bad_alloc&) {
        meldeFehler(name + ": out of memory");
        return kAufruffehler;
    } catch (const std::exception& fehler) {
        meldeFehler(name + ": " + fehler.what());
        return kAufruffehler;
    }
}

} // namespace qbtool
