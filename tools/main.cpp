// qbformul: look into, convert and upgrade the stored applications of the form library.
#include "befehle.h"
#include "werkzeug.h"

#include "rw/rwerr.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <iostream>
#include <new>

namespace {

// CLI11's report of a bad command line as one line: what is wrong and where the help is.
std::string einzeilig(const CLI::App* haupt, const CLI::Error& fehler) {
    std::string befehl = haupt->get_name();
    for (const CLI::App* unter : haupt->get_subcommands())
        befehl += " " + unter->get_name();
    return befehl + ": " + fehler.what() + " (see " + befehl + " --help)\n";
}

// The exit code once what went to stdout has arrived: stdout on a full disk is a failure, not a success.
int nachAusgabe(int code) {
    std::cout.flush();
    if (std::cout && std::fflush(stdout) == 0) return code;
    const int fehler = errno;
    qbtool::meldeFehler("cannot write to standard output" +
                        (fehler ? ": " + qbtool::systemFehler(fehler) : std::string()));
    return std::max(code, static_cast<int>(qbtool::kPruefungFehlgeschlagen));
}

} // namespace

int main(int argc, char** argv) {
    CLI::App haupt(
        "Looks into, converts and upgrades the stored applications of the form library. Text on the "
        "terminal and in XML and JSON is UTF-8; the library's Windows-1252 is converted at the edge.\n"
        "Exit codes: 0 success, 1 a check failed or output could not be written, 2 bad usage or unreadable "
        "input.",
        "qbformul");
    haupt.set_version_flag("--version", QBFORMUL_VERSION);
    haupt.require_subcommand(1);
    haupt.failure_message(einzeilig);

    qbtool::Befehle befehle;
    qbtool::richteDemoEin(haupt, befehle);
    qbtool::richteListEin(haupt, befehle);
    qbtool::richteShowEin(haupt, befehle);
    qbtool::richteExportEin(haupt, befehle);
    qbtool::richteImportEin(haupt, befehle);
    qbtool::richteUpgradeEin(haupt, befehle);
    qbtool::richteCatalogEin(haupt, befehle);
    qbtool::richteExplainEin(haupt, befehle);

    try {
        haupt.parse(argc, argv);
    } catch (const CLI::ParseError& fehler) {
        const int code = haupt.exit(fehler);
        return code == 0 ? qbtool::kErfolg : qbtool::kAufruffehler;
    }

    for (const qbtool::Befehl& befehl : befehle) {
        if (!befehl.app->parsed()) continue;
        try {
            return nachAusgabe(befehl.ausfuehren());
        } catch (const qbtool::Fehler& fehler) {
            qbtool::meldeFehler(fehler.what());
            return nachAusgabe(fehler.code());
        } catch (const RWxmsg& fehler) {
            qbtool::meldeFehler(befehl.app->get_name() + ": " + fehler.why());
            return nachAusgabe(qbtool::kAufruffehler);
        } catch (const std::bad_alloc&) {
            qbtool::meldeFehler(befehl.app->get_name() + ": out of memory");
            return nachAusgabe(qbtool::kAufruffehler);
        } catch (const std::exception& fehler) {
            qbtool::meldeFehler(befehl.app->get_name() + ": " + fehler.what());
            return nachAusgabe(qbtool::kAufruffehler);
        }
    }
    return qbtool::kAufruffehler;
}
