#include "atomar.h"

#include "werkzeug.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace qbtool {

namespace {

// Flushes a file's content (or a folder's entries) to the disk.
void synchronisiere(const std::string& pfad, bool ordner) {
    const int fd = ::open(pfad.c_str(), (ordner ? O_RDONLY | O_DIRECTORY : O_WRONLY) | O_CLOEXEC);
    if (fd < 0) throw dateiFehler(pfad, "cannot be opened to sync it: " + systemFehler(errno));
    const int ergebnis = ::fsync(fd);
    const int fehler = errno;
    ::close(fd);
    // Some file systems cannot sync a folder; the rename is still atomic there.
    if (ergebnis != 0 && !(ordner && (fehler == EINVAL || fehler == EROFS)))
        throw dateiFehler(pfad, "cannot be synced to disk: " + systemFehler(fehler));
}

std::string ordnerVon(const std::string& pfad) {
    const std::filesystem::path p(pfad);
    return p.has_parent_path() ? p.parent_path().string() : ".";
}

// Removes the temporary file unless it was renamed.
class TempDatei {
public:
    explicit TempDatei(std::string pfad) : pfad_(std::move(pfad)) {}
    ~TempDatei() {
        if (!pfad_.empty()) ::unlink(pfad_.c_str());
    }
    TempDatei(const TempDatei&) = delete;
    TempDatei& operator=(const TempDatei&) = delete;
    const std::string& pfad() const { return pfad_; }
    void umbenennen(const std::string& ziel) {
        if (::rename(pfad_.c_str(), ziel.c_str()) != 0)
            throw dateiFehler(ziel, "cannot be replaced: " + systemFehler(errno));
        pfad_.clear();
    }

private:
    std::string pfad_;
};

void kopiere(const std::string& quelle, const std::string& ziel) {
    std::error_code fehler;
    std::filesystem::copy_file(quelle, ziel, std::filesystem::copy_options::overwrite_existing, fehler);
    if (fehler) throw dateiFehler(ziel, "cannot be written: " + fehler.message());
}

} // namespace

std::string tempName(const std::string& ziel) { return ziel + ".tmp." + std::to_string(::getpid()); }

void schreibeAtomar(const std::string& ziel, const std::function<void(const std::string& temp)>& schreibe,
                    const AtomarOptionen& optionen) {
    struct stat alt;
    const bool vorhanden = ::stat(ziel.c_str(), &alt) == 0;
    if (vorhanden && S_ISDIR(alt.st_mode)) throw dateiFehler(ziel, "is a directory");

    TempDatei temp(tempName(ziel));
    schreibe(temp.pfad());
    if (vorhanden && ::chmod(temp.pfad().c_str(), alt.st_mode & 07777) != 0)
        throw dateiFehler(temp.pfad(), "cannot take the permissions of " + ziel + ": " + systemFehler(errno));
    synchronisiere(temp.pfad(), false);
    if (optionen.pruefe) optionen.pruefe(temp.pfad());

    if (optionen.sicherung && vorhanden) {
        const std::string sicherung = ziel + ".bak";
        TempDatei kopie(tempName(sicherung));
        kopiere(ziel, kopie.pfad());
        synchronisiere(kopie.pfad(), false);
        kopie.umbenennen(sicherung);
    }
    temp.umbenennen(ziel);
    synchronisiere(ordnerVon(ziel), true);
}

void schreibeAtomar(const std::string& ziel, const std::string& inhalt, const AtomarOptionen& optionen) {
    schreibeAtomar(
        ziel,
        [&](const std::string& temp) {
            std::FILE* datei = std::fopen(temp.c_str(), "wb");
            if (!datei) throw dateiFehler(temp, "cannot be created: " + systemFehler(errno));
            const bool geschrieben = std::fwrite(inhalt.data(), 1, inhalt.size(), datei) == inhalt.size();
            const int fehler = errno;
            if (std::fclose(datei) != 0 || !geschrieben)
                throw dateiFehler(ziel, "cannot be written: " + systemFehler(geschrieben ? errno : fehler));
        },
        optionen);
}

} // namespace qbtool
