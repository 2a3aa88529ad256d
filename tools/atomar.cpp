#include "atomar.h"

#include "stoerung.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace qbtool {

namespace {

// Closes a descriptor; 0 or the errno of a failure. EINTR is none: the descriptor is closed then too.
int schliesse(int fd) { return ::close(fd) == 0 || errno == EINTR ? 0 : errno; }

// Flushes a file's content to the disk; failures name ziel, the file it is written for. Opened for reading,
// which fsync allows: the file may already carry the permissions of a read-only target.
void synchronisiereDatei(const std::string& pfad, const std::string& ziel) {
    const int fd = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) throw dateiFehler(ziel, "cannot be synced to disk: " + systemFehler(errno));
    int fehler = ::fsync(fd) == 0 ? 0 : errno;
    const int beimSchliessen = schliesse(fd);
    if (!fehler) fehler = beimSchliessen;
    if (fehler) throw dateiFehler(ziel, "cannot be synced to disk: " + systemFehler(fehler));
}

// Flushes the entries of the folder that holds ziel to the disk, so that a rename in it is kept; 0 or
// the errno of the failure.
int synchronisiereOrdner(const std::string& ordner, const std::string& ziel) {
    int fd = ::open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    bool ganzesDateisystem = false;
    if (fd < 0 && errno == EACCES) {
        // A folder one may write but not read cannot be opened; the file system it is on is synced instead,
        // through the file just renamed. If that cannot be opened either, the rename is atomic all the same
        // and the system writes the entry soon.
        fd = ::open(ziel.c_str(), O_RDONLY | O_CLOEXEC);
        if (fd < 0) return 0;
        ganzesDateisystem = true;
    }
    if (fd < 0) return errno;
    int fehler = (ganzesDateisystem ? ::syncfs(fd) : ::fsync(fd)) == 0 ? 0 : errno;
    schliesse(fd);
    // Some file systems cannot sync a folder; the rename is still atomic there.
    if (fehler == EINVAL || fehler == EROFS) fehler = 0;
    return fehler;
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

Fehler verschwunden(const std::string& ziel, int fehler) {
    return dateiFehler(ziel, "vanished before the new content could replace it: " + systemFehler(fehler));
}

} // namespace

std::string tempName(const std::string& ziel) { return ziel + ".tmp." + std::to_string(::getpid()); }

void schreibeAtomar(const std::string& ziel, const std::function<void(const std::string& temp)>& schreibe,
                    const AtomarOptionen& optionen) {
    struct stat alt;
    const bool vorhanden = ::stat(ziel.c_str(), &alt) == 0;
    if (!vorhanden && optionen.nurErsetzen) throw verschwunden(ziel, errno);
    if (vorhanden && S_ISDIR(alt.st_mode)) throw dateiFehler(ziel, "is a directory");
    if (vorhanden && !S_ISREG(alt.st_mode)) {
        // A device or a pipe has no content to replace, and a rename would put a file in its place.
        schreibe(ziel);
        return;
    }

    TempDatei temp(tempName(ziel));
    // A fault the tests inject: the content goes where every write fails as on a full disk.
    schreibe(stoerung("full", ziel) ? std::string("/dev/full") : temp.pfad());
    if (vorhanden && ::chmod(temp.pfad().c_str(), alt.st_mode & 07777) != 0)
        throw dateiFehler(ziel, "the new file cannot take the old one's permissions: " + systemFehler(errno));
    synchronisiereDatei(temp.pfad(), ziel);
    if (optionen.pruefe) optionen.pruefe(temp.pfad());

    if (stoerung("remove-before-replace", ziel)) ::unlink(ziel.c_str());
    if (optionen.nurErsetzen) {
        // Checked once more just before the rename: the window in which a removed file would come back
        // is the few system calls that follow.
        struct stat jetzt;
        if (::stat(ziel.c_str(), &jetzt) != 0) throw verschwunden(ziel, errno);
        if (jetzt.st_dev != alt.st_dev || jetzt.st_ino != alt.st_ino)
            throw dateiFehler(ziel, "was replaced by another file before the new content could replace it");
    }
    if (optionen.sicherung && vorhanden) {
        const std::string sicherung = ziel + ".bak";
        TempDatei kopie(tempName(sicherung));
        std::error_code fehler;
        std::filesystem::copy_file(ziel, kopie.pfad(), std::filesystem::copy_options::overwrite_existing,
                                   fehler);
        if (fehler)
            throw dateiFehler(ziel,
                              "its old content cannot be kept as " + sicherung + ": " + fehler.message());
        synchronisiereDatei(kopie.pfad(), sicherung);
        kopie.umbenennen(sicherung);
    }
    temp.umbenennen(ziel);
    if (const int fehler = synchronisiereOrdner(ordnerVon(ziel), ziel))
        throw ErsetztFehler(ziel + ": holds the new content, but its folder cannot be synced to disk: " +
                            systemFehler(fehler));
}

void schreibeAtomar(const std::string& ziel, const std::string& inhalt, const AtomarOptionen& optionen) {
    schreibeAtomar(
        ziel,
        [&](const std::string& temp) {
            std::FILE* datei = std::fopen(temp.c_str(), "wb");
            if (!datei) throw dateiFehler(ziel, "cannot be written: " + systemFehler(errno));
            const bool geschrieben = std::fwrite(inhalt.data(), 1, inhalt.size(), datei) == inhalt.size();
            const int fehler = errno;
            if (std::fclose(datei) != 0 || !geschrieben)
                throw dateiFehler(ziel, "cannot be written: " + systemFehler(geschrieben ? errno : fehler));
        },
        optionen);
}

} // namespace qbtool
