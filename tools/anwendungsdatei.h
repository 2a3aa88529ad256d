// Reading application files. The one place of the tool that knows the stored framing of a form list
// (docs/format.md): the list's marker and Version, the collection's class id and count, and per form its
// class id (or FF FF and the number of an object read before) followed by its record. The records
// themselves are read by the forms' own restoreGuts.
#pragma once

#include "core/qbFormular.h"
#include "core/qbFormularListe.h"
#include "core/qbKlassen.h"
#include "rw/rwfile.h"

#include <memory>
#include <string>
#include <vector>

namespace qbtool {

// The application in a file, read through the list's own stream operator, as an application would read
// it. Throws Fehler naming the file and, where the framing tells, the form and the byte offset.
std::unique_ptr<qbFormularListe> liesAnwendung(const std::string& pfad);

// Stores the application in a file through the list's own stream operator, atomically (see atomar.h),
// and reads the new file back before it replaces the target. With vorOrt the target is the file the list
// was read from: its old content stays as <ziel>.bak, and it is not written again when it vanished
// meanwhile. Returns the number of bytes written. Throws Fehler naming the target and the cause.
long speichereAnwendung(const std::string& ziel, const qbFormularListe& liste, bool vorOrt = false);

// The head of a stored list.
struct Listenkopf {
    RWCString version;
    long versionBei = 0;
    RWClassID sammlungsId = 0;
    long anzahlBei = 0;
    unsigned anzahl = 0;
    long formenBei = 0; // where the first form begins
};

// One element of the stored collection, as the framing reader met it.
struct Element {
    enum class Art {
        Satz,             // a record of its own, read to its end with the file still good
        Verweis,          // FF FF and the number of a form read before
        UnbekannteKlasse, // a class id the factory does not know
        KeinFormular,     // a class that is no form, or a reference to no form
        Lesefehler,       // the file ended or failed inside the record
    };
    Art art = Art::Satz;
    unsigned position = 0; // 1 for the first form
    long beginn = 0;       // offset of the class id
    long satzBeginn = 0;   // offset of the record, behind the class id
    long ende = 0;         // where the reader stopped
    RWClassID id = 0;
    const qbKlasse* klasse = nullptr;
    unsigned verweisAuf = 0;          // for a reference: the position of the form it names
    std::unique_ptr<qbFormular> form; // the restored form; for a reference, a copy of the one it names
    // For Lesefehler: what failed. The field whose read failed (empty when no field was being read), its
    // type and offset, or the library's message when it threw.
    std::string fehlerFeld;
    qbArt fehlerArt = qbArt::Text;
    long fehlerBei = -1;
    std::string bibliotheksMeldung;

    long satzGroesse() const { return ende - satzBeginn; }
    // "form 3 (qbFormularL145, L145 VP1) at byte 412", for messages.
    std::string beschreibung() const;
};

// Walks a stored list element by element on an RWFile, with the whole file in memory beside it so that
// it can look ahead for where a form begins.
class Rahmenleser {
public:
    // Throws Fehler when the file cannot be opened or is no regular file.
    explicit Rahmenleser(const std::string& pfad);

    const std::string& pfad() const { return pfad_; }
    long groesse() const { return static_cast<long>(bytes_.size()); }
    const std::vector<unsigned char>& bytes() const { return bytes_; }
    RWFile& datei() { return datei_; }

    // Reads the list's head. Throws Fehler when the file holds no list of forms.
    Listenkopf liesKopf();
    // Reads the element at the current offset and leaves the file behind it. A form's restoreGuts runs
    // under whatever read observer the caller has installed.
    Element liesElement(unsigned position);
    // Continues reading at offset, with the file's failure state cleared.
    void setzeAuf(long offset);

    // Whether a form plausibly begins at offset: a class id the factory knows, followed by a Version text
    // the file holds, or FF FF and the number of a form read before.
    bool formBeginntBei(long offset) const;
    // The first offset from ab on at which a form clearly begins (a known class id and a Version of the
    // form MM.YYYY); -1 when there is none.
    long sucheFormBeginn(long ab) const;

    // Reads the head and every element strictly: each record must end where the next form begins and the
    // last one at the end of the file. Throws Fehler naming the form and the offset otherwise.
    std::vector<Element> liesAlle(Listenkopf* kopf = nullptr);

    unsigned long u32(long offset) const; // little-endian, 0 beyond the end
    unsigned u16(long offset) const;

    // Why the element's read failed, for a message: which field at which offset, and what the file holds.
    std::string lesefehlerText(const Element& element) const;

private:
    std::string pfad_;
    std::vector<unsigned char> bytes_;
    RWFile datei_;
    // Every form object read so far, in the order of their object numbers (from 3 on: the list is 1, its
    // collection 2), with its position, so that a reference can be resolved.
    std::vector<std::unique_ptr<qbFormular>> objekte_;
    std::vector<unsigned> objektPositionen_;
};

// The name of a field type, as the field tables spell it.
const char* artName(qbArt art);

// What the reader finds at the end of a record: whether it is where the next form begins (or, for the
// last one, the end of the file), and that in words.
struct Satzende {
    bool passt;
    std::string text;
};
Satzende pruefeSatzende(const Rahmenleser& leser, const Element& element, bool letztes);

} // namespace qbtool
