// Running the built tool as a process, as a user would: its exit code and what it writes to stdout and
// stderr. And a scratch folder per test.
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace qbtest {

struct Lauf {
    int code = -1;   // the exit code, or 128 + the signal that ended it
    std::string aus; // stdout
    std::string err; // stderr
    // The lines of stderr.
    std::vector<std::string> fehlerzeilen() const;
};

// Runs the tool with these arguments in folder ordner (empty: the test's own), with eingabe on stdin.
Lauf qbformul(const std::vector<std::string>& argumente, const std::string& ordner = "",
              const std::string& eingabe = "");

// How to start the tool beyond its arguments, for runs under faults.
struct Start {
    std::string ordner;                // working folder; empty: the test's own
    std::string eingabe;               // stdin
    std::vector<std::string> umgebung; // added to the environment, "NAME=value"
    std::string ausgabeNach;           // stdout goes to this file (such as /dev/full) instead of Lauf::aus
    // RLIMIT_FSIZE in bytes, -1 for none: a write beyond it stops short and then fails with EFBIG, as
    // SIGXFSZ is ignored.
    long dateiHoechstens = -1;
    // Without the privileges that pass over file permissions (CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH,
    // CAP_FOWNER), so that permission bits bind the tool when the tests run as root as they bind any
    // user. Where they cannot be given up (no CAP_SETPCAP), the tool keeps them.
    bool ohneVorrechte = false;
};
Lauf qbformul(const std::vector<std::string>& argumente, const Start& start);

// Starts the tool without waiting, its output thrown away; for tests that end it themselves.
pid_t starteQbformul(const std::vector<std::string>& argumente);
// Waits for a started tool; its exit code, or 128 + the signal that ended it.
int warteAuf(pid_t prozess);
// Whether a started tool has ended; if so, code holds its exit code.
bool istBeendet(pid_t prozess, int& code);

// A fresh folder for one test, removed with everything in it when the object goes.
class Ordner {
public:
    Ordner();
    ~Ordner();
    Ordner(const Ordner&) = delete;
    Ordner& operator=(const Ordner&) = delete;
    const std::string& pfad() const { return pfad_; }
    std::string operator/(const std::string& name) const { return pfad_ + "/" + name; }

private:
    std::string pfad_;
};

std::string liesDatei(const std::string& pfad);
void schreibeDatei(const std::string& pfad, const std::string& inhalt);
bool gibtEs(const std::string& pfad);

} // namespace qbtest
