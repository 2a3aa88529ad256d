// Helpers every subcommand of the tool shares: the failure that ends a command with its exit code, text
// conversion at the edge between the library's Windows-1252 and the UTF-8 of people, and tables for the
// terminal.
#pragma once

#include "rw/cstring.h"

#include <cstddef>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace qbtool {

// Exit codes of every subcommand.
enum Ausgang : int {
    kErfolg = 0,
    // a check failed: a file did not upgrade, a record did not end where it should; or stdout cannot be
    // written
    kPruefungFehlgeschlagen = 1,
    kAufruffehler = 2, // bad usage or unreadable input
};

// Ends a command: one line for stderr (UTF-8, without the program's name) and the exit code.
class Fehler : public std::runtime_error {
public:
    explicit Fehler(const std::string& meldung, int code = kAufruffehler)
        : std::runtime_error(meldung), code_(code) {}
    int code() const { return code_; }

private:
    int code_;
};

// "<pfad>: <was>", for input that cannot be read or used.
Fehler dateiFehler(const std::string& pfad, const std::string& was, int code = kAufruffehler);
// The system's text for errno, for a message.
std::string systemFehler(int fehlernummer);

// One line on stderr, "qbformul: <text>".
void meldeFehler(const std::string& text);

std::string utf8(const RWCString& cp1252);
std::string utf8(const std::string& cp1252);
// Text from the command line for the library; refuses characters Windows-1252 has no byte for.
RWCString cp1252(const std::string& utf8Text, const std::string& wofuer);

// A Flag answer for people: "ja" (1), "nein" (0), "nicht beantwortet" (0xff), other values as the number.
std::string flagText(unsigned wert);

// A UTF-8 text in double quotes with control characters, quotes and backslashes escaped; longer texts are
// cut after hoechstens characters and say how long they are.
std::string zitiert(const std::string& utf8Text, size_t hoechstens = std::string::npos);

// A UTF-8 text for a table cell or a heading: control characters escaped as in zitiert, without quotes.
std::string lesbar(const std::string& utf8Text);

// "0x" and the number in at least stellen upper-case hex digits.
std::string hexZahl(unsigned long wert, int stellen);

// Characters of a UTF-8 text, for the width of a column.
size_t zeichenAnzahl(const std::string& utf8Text);

// A table for the terminal: columns padded to the widest cell by characters, not bytes.
class Tabelle {
public:
    struct Spalte {
        std::string titel;
        bool rechtsbuendig = false;
    };
    explicit Tabelle(std::vector<Spalte> spalten);
    void zeile(std::vector<std::string> zellen);
    void drucke(std::ostream& aus, const std::string& einzug = "") const;

private:
    std::vector<Spalte> spalten_;
    std::vector<std::vector<std::string>> zeilen_;
};

// A text broken at blanks into lines of at most breite characters, each paragraph (a line of its own in
// text) on its own: the first line of a paragraph begins with einzug, the further ones with folgeEinzug.
std::string umbrochen(const std::string& text, const std::string& einzug = "",
                      const std::string& folgeEinzug = "", size_t breite = 100);

// Whether the file descriptor is a terminal, for progress output.
bool istTerminal(int fd);

} // namespace qbtool
