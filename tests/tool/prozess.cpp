#include "prozess.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <linux/capability.h>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace qbtest {

namespace {

std::vector<char*> argv(const std::vector<std::string>& argumente) {
    std::vector<char*> v;
    v.push_back(const_cast<char*>(QBFORMUL_TOOL));
    for (const std::string& a : argumente)
        v.push_back(const_cast<char*>(a.c_str()));
    v.push_back(nullptr);
    return v;
}

int ausgang(int status) {
    if (WIFEXITED(status)) return WEXITSTATUS(status);
    if (WIFSIGNALED(status)) return 128 + WTERMSIG(status);
    return -1;
}

void pruefe(int ergebnis, const char* was) {
    if (ergebnis != 0) throw std::runtime_error(std::string(was) + ": " + std::strerror(ergebnis));
}

// Reads the tool's stdout (aus, -1 when it goes elsewhere) and stderr until both close, then waits for it.
Lauf sammle(pid_t prozess, int aus, int err) {
    Lauf lauf;
    pollfd fds[2] = {{aus, POLLIN, 0}, {err, POLLIN, 0}};
    std::string* ziel[2] = {&lauf.aus, &lauf.err};
    int offen = aus >= 0 ? 2 : 1;
    char puffer[65536];
    while (offen > 0) {
        if (::poll(fds, 2, -1) < 0) {
            if (errno == EINTR) continue;
            break;
        }
        for (int i = 0; i < 2; ++i) {
            if (fds[i].fd < 0 || !(fds[i].revents & (POLLIN | POLLHUP | POLLERR))) continue;
            const ssize_t n = ::read(fds[i].fd, puffer, sizeof puffer);
            if (n > 0) {
                ziel[i]->append(puffer, static_cast<size_t>(n));
            } else if (n == 0 || errno != EINTR) {
                ::close(fds[i].fd);
                fds[i].fd = -1;
                --offen;
            }
        }
    }
    lauf.code = warteAuf(prozess);
    return lauf;
}

// The environment of the test with the entries of zusatz added, a same name replaced.
std::vector<std::string> umgebungMit(const std::vector<std::string>& zusatz) {
    std::vector<std::string> umgebung;
    for (char** e = environ; *e; ++e) {
        const std::string eintrag = *e;
        const std::string name = eintrag.substr(0, eintrag.find('='));
        bool ersetzt = false;
        for (const std::string& z : zusatz)
            ersetzt = ersetzt || z.compare(0, name.size() + 1, name + "=") == 0;
        if (!ersetzt) umgebung.push_back(eintrag);
    }
    umgebung.insert(umgebung.end(), zusatz.begin(), zusatz.end());
    return umgebung;
}

// In the child of fork, before exec: gives up the privileges that pass over file permissions, in the
// bounding set and the inheritable set, so that exec does not give them back to root. Failures leave them.
void verzichteAufVorrechte() {
    const int vorrechte[] = {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH, CAP_FOWNER};
    for (const int v : vorrechte)
        ::prctl(PR_CAPBSET_DROP, v, 0, 0, 0);
    __user_cap_header_struct kopf{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct daten[2] = {};
    if (::syscall(SYS_capget, &kopf, daten) != 0) return;
    for (const int v : vorrechte)
        daten[0].inheritable &= ~(1u << v);
    ::syscall(SYS_capset, &kopf, daten);
}

// In the child of fork: what could not be set up, on stderr, and exit code 127.
[[noreturn]] void scheitere(const char* was) {
    const char text[] = ": cannot be set up for the tool\n";
    (void)!::write(2, was, std::strlen(was));
    (void)!::write(2, text, sizeof text - 1);
    ::_exit(127);
}

} // namespace

std::vector<std::string> Lauf::fehlerzeilen() const {
    std::vector<std::string> zeilen;
    size_t pos = 0;
    while (pos < err.size()) {
        size_t ende = err.find('\n', pos);
        if (ende == std::string::npos) ende = err.size();
        zeilen.push_back(err.substr(pos, ende - pos));
        pos = ende + 1;
    }
    return zeilen;
}

Lauf qbformul(const std::vector<std::string>& argumente, const std::string& ordner,
              const std::string& eingabe) {
    Ordner eingabeOrdner;
    const std::string eingabeDatei = eingabeOrdner / "stdin";
    schreibeDatei(eingabeDatei, eingabe);

    int aus[2], err[2];
    if (::pipe2(aus, O_CLOEXEC) != 0 || ::pipe2(err, O_CLOEXEC) != 0) throw std::runtime_error("pipe");
    posix_spawn_file_actions_t aktionen;
    pruefe(posix_spawn_file_actions_init(&aktionen), "posix_spawn_file_actions_init");
    posix_spawn_file_actions_addopen(&aktionen, 0, eingabeDatei.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&aktionen, aus[1], 1);
    posix_spawn_file_actions_adddup2(&aktionen, err[1], 2);
    if (!ordner.empty()) posix_spawn_file_actions_addchdir_np(&aktionen, ordner.c_str());
    std::vector<char*> args = argv(argumente);
    pid_t prozess = 0;
    const int gestartet = posix_spawn(&prozess, QBFORMUL_TOOL, &aktionen, nullptr, args.data(), environ);
    posix_spawn_file_actions_destroy(&aktionen);
    ::close(aus[1]);
    ::close(err[1]);
    if (gestartet != 0) {
        ::close(aus[0]);
        ::close(err[0]);
        pruefe(gestartet, "posix_spawn");
    }

    return sammle(prozess, aus[0], err[0]);
}

Lauf qbformul(const std::vector<std::string>& argumente, const Start& start) {
    Ordner eingabeOrdner;
    const std::string eingabeDatei = eingabeOrdner / "stdin";
    schreibeDatei(eingabeDatei, start.eingabe);
    std::vector<char*> args = argv(argumente);
    const std::vector<std::string> umgebung = umgebungMit(start.umgebung);
    std::vector<char*> envp;
    for (const std::string& e : umgebung)
        envp.push_back(const_cast<char*>(e.c_str()));
    envp.push_back(nullptr);
    const bool mitAusgabe = start.ausgabeNach.empty();

    int aus[2], err[2];
    if (::pipe2(aus, O_CLOEXEC) != 0) throw std::runtime_error("pipe");
    if (::pipe2(err, O_CLOEXEC) != 0) {
        ::close(aus[0]);
        ::close(aus[1]);
        throw std::runtime_error("pipe");
    }
    const pid_t prozess = ::fork();
    if (prozess == 0) {
        // The child: only calls that are safe after fork, up to exec.
        const int ein = ::open(eingabeDatei.c_str(), O_RDONLY | O_CLOEXEC);
        if (ein < 0 || ::dup2(ein, 0) < 0) scheitere(eingabeDatei.c_str());
        const int ausgabe = mitAusgabe ? aus[1] : ::open(start.ausgabeNach.c_str(), O_WRONLY | O_CLOEXEC);
        if (ausgabe < 0 || ::dup2(ausgabe, 1) < 0) scheitere(start.ausgabeNach.c_str());
        if (::dup2(err[1], 2) < 0) scheitere("stderr");
        if (!start.ordner.empty() && ::chdir(start.ordner.c_str()) != 0) scheitere(start.ordner.c_str());
        if (start.dateiHoechstens >= 0) {
            struct sigaction ignorieren = {};
            ignorieren.sa_handler = SIG_IGN;
            ::sigaction(SIGXFSZ, &ignorieren, nullptr);
            const rlimit grenze = {static_cast<rlim_t>(start.dateiHoechstens),
                                   static_cast<rlim_t>(start.dateiHoechstens)};
            if (::setrlimit(RLIMIT_FSIZE, &grenze) != 0) scheitere("setrlimit");
        }
        if (start.ohneVorrechte) verzichteAufVorrechte();
        ::execve(QBFORMUL_TOOL, args.data(), envp.data());
        scheitere(QBFORMUL_TOOL);
    }
    ::close(aus[1]);
    ::close(err[1]);
    if (prozess < 0) {
        ::close(aus[0]);
        ::close(err[0]);
        throw std::runtime_error("fork: " + std::string(std::strerror(errno)));
    }
    if (!mitAusgabe) ::close(aus[0]);
    return sammle(prozess, mitAusgabe ? aus[0] : -1, err[0]);
}

pid_t starteQbformul(const std::vector<std::string>& argumente) {
    posix_spawn_file_actions_t aktionen;
    pruefe(posix_spawn_file_actions_init(&aktionen), "posix_spawn_file_actions_init");
    posix_spawn_file_actions_addopen(&aktionen, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&aktionen, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&aktionen, 2, "/dev/null", O_WRONLY, 0);
    std::vector<char*> args = argv(argumente);
    pid_t prozess = 0;
    const int gestartet = posix_spawn(&prozess, QBFORMUL_TOOL, &aktionen, nullptr, args.data(), environ);
    posix_spawn_file_actions_destroy(&aktionen);
    pruefe(gestartet, "posix_spawn");
    return prozess;
}

int warteAuf(pid_t prozess) {
    int status = 0;
    while (::waitpid(prozess, &status, 0) < 0)
        if (errno != EINTR) return -1;
    return ausgang(status);
}

bool istBeendet(pid_t prozess, int& code) {
    int status = 0;
    const pid_t r = ::waitpid(prozess, &status, WNOHANG);
    if (r != prozess) return false;
    code = ausgang(status);
    return true;
}

Ordner::Ordner() {
    std::string muster = ::testing::TempDir() + "qbformul_tool_XXXXXX";
    if (!::mkdtemp(muster.data())) throw std::runtime_error("mkdtemp: " + std::string(std::strerror(errno)));
    pfad_ = muster;
}

Ordner::~Ordner() {
    std::error_code fehler;
    std::filesystem::remove_all(pfad_, fehler);
}

std::string liesDatei(const std::string& pfad) {
    std::ifstream ein(pfad, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(ein), {});
}

void schreibeDatei(const std::string& pfad, const std::string& inhalt) {
    std::ofstream aus(pfad, std::ios::binary | std::ios::trunc);
    aus.write(inhalt.data(), static_cast<std::streamsize>(inhalt.size()));
}

bool gibtEs(const std::string& pfad) {
    struct stat st;
    return ::stat(pfad.c_str(), &st) == 0;
}

} // namespace qbtest
