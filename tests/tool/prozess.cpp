#include "prozess.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/stat.h>
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

    Lauf lauf;
    pollfd fds[2] = {{aus[0], POLLIN, 0}, {err[0], POLLIN, 0}};
    std::string* ziel[2] = {&lauf.aus, &lauf.err};
    int offen = 2;
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
