// Writing a file so that a crash or a killed process never leaves it half written: the content goes to a
// temporary file beside the target, is flushed and synced to disk, and only then renamed over the target.
// The target is at every moment either its old content or the complete new one.
#pragma once

#include "werkzeug.h"

#include <functional>
#include <string>

namespace qbtool {

struct AtomarOptionen {
    // Keep the old content as <target>.bak (itself written the same way) before the target is replaced.
    bool sicherung = false;
    // The target is a file being rewritten in place: it must exist, and it is not written when it vanished
    // or was replaced by another file before the new content is complete, so that a file removed meanwhile
    // does not come back.
    bool nurErsetzen = false;
    // Run on the finished temporary file before it replaces the target; throws to keep the old target.
    std::function<void(const std::string& temp)> pruefe;
};

// A failure after the target already holds the new content: only making the rename durable failed.
class ErsetztFehler : public Fehler {
public:
    using Fehler::Fehler;
};

// Writes the target through schreibe, which gets the temporary file's name and fills it. Throws Fehler
// naming the target and the cause when anything fails; the temporary file is removed then and the target
// left as it was. The new file keeps the permissions of the file it replaces. A target that exists and is
// no regular file (a device such as /dev/null, a pipe) is written straight, as there is no content to
// replace. Throws ErsetztFehler when the target was replaced but its folder cannot be synced.
void schreibeAtomar(const std::string& ziel, const std::function<void(const std::string& temp)>& schreibe,
                    const AtomarOptionen& optionen = {});

// The same for a text or byte content.
void schreibeAtomar(const std::string& ziel, const std::string& inhalt, const AtomarOptionen& optionen = {});

// The temporary name beside a target: "<target>.tmp.<process id>".
std::string tempName(const std::string& ziel);

} // namespace qbtool
