// The subcommands of qbformul. Each file befehl_<name>.cpp sets up its parser with CLI11 and says what it
// runs; main.cpp runs the one the command line names.
#pragma once

#include <CLI/CLI.hpp>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace qbtool {

struct Befehl {
    CLI::App* app;
    std::function<int()> ausfuehren; // returns the exit code or throws Fehler
};
using Befehle = std::vector<Befehl>;

// The whole command line: parses argv, runs the subcommand and returns the exit code. Messages go to
// std::cout and std::cerr.
int hauptprogramm(int argc, char** argv);

// Runs the work of the subcommand name: its exit code, or the code of what it threw (Fehler, the
// library's RWxmsg, std::bad_alloc, std::exception), with the message on std::cerr.
int fuehreAus(const std::string& name, const std::function<int()>& arbeit);

// The work of two subcommands, for callers that have their arguments already (the fuzz target of the
// tool); to be run through fuehreAus.
int erklaere(const std::string& pfad); // explain FILE
struct ImportOptionen {
    std::string eingabe; // the XML document; "-" for standard input
    std::string ausgabe; // the application file to write
};
int importiere(const ImportOptionen& o); // import IN -o OUT

void richteDemoEin(CLI::App& haupt, Befehle& befehle);
void richteListEin(CLI::App& haupt, Befehle& befehle);
void richteShowEin(CLI::App& haupt, Befehle& befehle);
void richteExportEin(CLI::App& haupt, Befehle& befehle);
void richteImportEin(CLI::App& haupt, Befehle& befehle);
void richteUpgradeEin(CLI::App& haupt, Befehle& befehle);
void richteCatalogEin(CLI::App& haupt, Befehle& befehle);
void richteExplainEin(CLI::App& haupt, Befehle& befehle);
void richteConvertEin(CLI::App& haupt, Befehle& befehle);
void richteCheckEin(CLI::App& haupt, Befehle& befehle);

} // namespace qbtool

namespace qbtool {

// The table of list: one row per stored form. Throws Fehler for a file that does not read.
void druckeFormularliste(const std::string& pfad, std::ostream& aus);

} // namespace qbtool
