// qbformul upgrade FILE...: restores each application and saves it again, so that every record gets the
// layout and the Version stamp its class writes today. Files run in parallel; each is written atomically.
#include "anwendungsdatei.h"
#include "atomar.h"
#include "befehle.h"
#include "stoerung.h"
#include "werkzeug.h"

#include "core/qbKlassen.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <memory>
#include <mutex>
#include <set>
#include <thread>
#include <unistd.h>

namespace qbtool {

namespace {

struct UpgradeOptionen {
    std::vector<std::string> dateien;
    std::string ausgabe;
    bool vorOrt = false;
    unsigned jobs = 0;
    bool ausfuehrlich = false;
};

struct Ergebnis {
    std::string ziel;
    bool erfolg = false;
    std::string fehler;
    bool ersetzt = false; // the target holds the new content although the upgrade failed
    unsigned formulare = 0;
    unsigned erneuert = 0; // records whose stored Version was not their class's
    long bytes = 0;
};

// A progress bar on stderr, only when it is a terminal. Messages go through it so that they do not mix with
// the bar.
class Fortschritt {
public:
    Fortschritt(size_t gesamt, bool aktiv) : gesamt_(gesamt), aktiv_(aktiv) { zeichne(); }
    void schritt() {
        std::lock_guard<std::mutex> sperre(mutex_);
        ++fertig_;
        zeichne();
    }
    void melde(const std::string& text) {
        std::lock_guard<std::mutex> sperre(mutex_);
        loesche();
        meldeFehler(text);
        zeichne();
    }
    void ende() {
        std::lock_guard<std::mutex> sperre(mutex_);
        loesche();
    }

private:
    void zeichne() {
        if (!aktiv_) return;
        const size_t breite = 30;
        const size_t voll = gesamt_ ? fertig_ * breite / gesamt_ : breite;
        std::fprintf(stderr, "\r[%s%s] %zu/%zu files", std::string(voll, '#').c_str(),
                     std::string(breite - voll, '.').c_str(), fertig_, gesamt_);
        std::fflush(stderr);
    }
    void loesche() {
        if (!aktiv_) return;
        std::fprintf(stderr, "\r%*s\r", 60, "");
        std::fflush(stderr);
    }

    std::mutex mutex_;
    size_t gesamt_;
    size_t fertig_ = 0;
    bool aktiv_;
};

// The target of each input: the input itself, a file -o names, or a file of that name in the folder -o names.
std::vector<std::string> ziele(const UpgradeOptionen& o) {
    std::vector<std::string> ziele;
    if (o.vorOrt) {
        ziele = o.dateien;
    } else {
        if (o.ausgabe.empty()) throw Fehler("upgrade: say where to write: -o OUT or --in-place");
        const bool ordner = std::filesystem::is_directory(o.ausgabe);
        if (o.dateien.size() > 1 && !ordner)
            throw Fehler("upgrade: with several files, -o must name an existing folder: " + o.ausgabe);
        for (const std::string& datei : o.dateien)
            ziele.push_back(
                ordner ? (std::filesystem::path(o.ausgabe) / std::filesystem::path(datei).filename()).string()
                       : o.ausgabe);
    }
    std::set<std::string> gesehen;
    for (const std::string& z : ziele) {
        std::error_code fehler;
        const std::filesystem::path kanonisch = std::filesystem::weakly_canonical(z, fehler);
        if (!gesehen.insert(fehler ? z : kanonisch.string()).second)
            throw Fehler("upgrade: two inputs would be written to " + z);
    }
    return ziele;
}

Ergebnis erneuere(const std::string& datei, const std::string& ziel, bool vorOrt) {
    Ergebnis r;
    r.ziel = ziel;
    try {
        const std::unique_ptr<qbFormularListe> liste = liesAnwendung(datei);
        r.formulare = liste->AnzahlFormulare();
        for (unsigned pos = 0; pos < r.formulare; ++pos) {
            const qbFormular& form = *liste->liefereFormularAnPos(static_cast<int>(pos));
            const qbKlasse* klasse = qbKlasseZuId(form.isA());
            if (klasse && *klasse->version && form.RefVersion() != klasse->version) ++r.erneuert;
        }
        r.bytes = speichereAnwendung(ziel, *liste, vorOrt);
        r.erfolg = true;
    } catch (const ErsetztFehler& f) {
        r.fehler = f.what();
        r.ersetzt = true;
    } catch (const Fehler& f) {
        r.fehler = f.what();
    } catch (const std::exception& x) {
        r.fehler = datei + ": " + x.what();
    }
    return r;
}

int erneuereAlle(const UpgradeOptionen& o) {
    const auto start = std::chrono::steady_clock::now();
    const std::vector<std::string> zielDateien = ziele(o);
    const size_t n = o.dateien.size();
    unsigned jobs = o.jobs ? o.jobs : std::max(1u, std::thread::hardware_concurrency());
    jobs = static_cast<unsigned>(std::min<size_t>(jobs, n));

    std::vector<Ergebnis> ergebnisse(n);
    Fortschritt fortschritt(n, istTerminal(STDERR_FILENO));
    std::atomic<size_t> naechste{0};
    auto arbeite = [&] {
        for (size_t i; (i = naechste++) < n;) {
            ergebnisse[i] = erneuere(o.dateien[i], zielDateien[i], o.vorOrt);
            const Ergebnis& r = ergebnisse[i];
            if (!r.erfolg) fortschritt.melde(r.ersetzt ? r.fehler : r.fehler + "; left as it was");
            fortschritt.schritt();
            if (i == 0)
                for (const std::string& pfad : stoerungsPfade("remove-after-first"))
                    std::remove(pfad.c_str());
        }
    };
    std::vector<std::thread> faeden;
    for (unsigned j = 1; j < jobs; ++j)
        faeden.emplace_back(arbeite);
    arbeite();
    for (std::thread& t : faeden)
        t.join();
    fortschritt.ende();

    unsigned dateienOk = 0, formulare = 0, erneuert = 0, fehler = 0;
    long bytes = 0;
    for (size_t i = 0; i < n; ++i) {
        const Ergebnis& r = ergebnisse[i];
        if (!r.erfolg) {
            ++fehler;
            continue;
        }
        ++dateienOk;
        formulare += r.formulare;
        erneuert += r.erneuert;
        bytes += r.bytes;
        if (o.ausfuehrlich)
            std::cout << o.dateien[i] << " -> " << r.ziel << ": " << r.formulare << " forms, " << r.erneuert
                      << " with a newer layout, " << r.bytes << " bytes\n";
    }
    const double sekunden = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    char zeit[32];
    std::snprintf(zeit, sizeof zeit, "%.2f s", sekunden);
    std::cout << "upgraded " << dateienOk << " of " << n << " files: " << formulare << " forms (" << erneuert
              << " records to a newer layout), " << bytes << " bytes written, " << fehler
              << (fehler == 1 ? " failure, " : " failures, ") << zeit << '\n';
    return fehler ? kPruefungFehlgeschlagen : kErfolg;
}

} // namespace

void richteUpgradeEin(CLI::App& haupt, Befehle& befehle) {
    auto o = std::make_shared<UpgradeOptionen>();
    CLI::App* app = haupt.add_subcommand(
        "upgrade", "Restores application files and saves them again in today's layouts.");
    app->add_option("FILE", o->dateien, "application files")->required();
    CLI::Option* ausgabe = app->add_option("-o,--output", o->ausgabe,
                                           "the file to write; with several inputs, an existing folder");
    CLI::Option* vorOrt =
        app->add_flag("--in-place", o->vorOrt, "replace each input, keeping the old file as FILE.bak");
    ausgabe->excludes(vorOrt);
    app->add_option("-j,--jobs", o->jobs, "files upgraded at the same time (default: the number of cores)")
        ->check(CLI::Range(1u, 1024u));
    app->add_flag("-v,--verbose", o->ausfuehrlich, "a line per file");
    app->footer(umbrochen(
        "Every record is read in the layout its stored Version announces and written in the layout of its "
        "class today, with the class's current Version stamp. Each target is written to TARGET.tmp.<pid>, "
        "synced to disk, read back, and only then renamed over the target, so a target is always either the "
        "old or the complete new file. A file that does not read, that cannot be written (a full disk, a "
        "folder without write permission) or that vanishes while the batch runs is reported with its name "
        "and the cause and left as it was; the others go on. With --in-place, a file removed meanwhile is "
        "not written again. A target that is a device or a pipe (-o /dev/null) is written straight. A "
        "progress bar shows on a terminal, and a summary at the end. Exit code 1 when a file failed."));
    befehle.push_back({app, [o] { return erneuereAlle(*o); }});
}

} // namespace qbtool
