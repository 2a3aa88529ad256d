// The command line of qbformul: the subcommands, their parsing, and the exit code of the one that runs.
#include "befehle.h"
#include "werkzeug.h"

#include "rw/rwerr.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
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

// The exit code once what went to stdout has arrived: stdout on a full disk is a failure, not a success.
int nachAusgabe(int code) {
    std::cout.flush();
    if (std::cout && std::fflush(stdout) == 0) return code;
    const int fehler = errno;
    meldeFehler("cannot write to standard output" + (fehler ? ": " + systemFehler(fehler) : std::string()));
    return std::max(code, static_cast<int>(kPruefungFehlgeschlagen));
}

} // namespace

int hauptprogramm(int argc, char** argv) {
    CLI::App haupt(
        "Looks into, converts and upgrades the stored applications of the form library. Text on the "
        "terminal and in XML and JSON is UTF-8; the library's Windows-1252 is converted at the edge.\n"
        "Exit codes: 0 success, 1 a check failed or output could not be written, 2 bad usage or unreadable "
        "input.",
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
    richteConvertEin(haupt, befehle);
    richteCheckEin(haupt, befehle);

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
        return nachAusgabe(arbeit());
    } catch (const Fehler& fehler) {
        meldeFehler(fehler.what());
        return nachAusgabe(fehler.code());
    } catch (const RWxmsg& fehler) {
        meldeFehler(name + ": " + fehler.why());
        return nachAusgabe(kAufruffehler);
    } catch (const std::bad_alloc&) {
        meldeFehler(name + ": out of memory");
        return nachAusgabe(kAufruffehler);
    } catch (const std::exception& fehler) {
        meldeFehler(name + ": " + fehler.what());
        return nachAusgabe(kAufruffehler);
    }
}

} // namespace qbtool
