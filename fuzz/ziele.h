// The fuzz targets of the readers, one per family: a stored form of any class on any stream kind, the
// form list on any stream kind, XML text, and the tool's import and explain. Each takes arbitrary bytes
// and must neither crash, hang, leak nor read or allocate beyond what the input holds. libFuzzer drives
// them in the fuzz build (fuzz/libfuzzer.cpp); the normal suite runs them over the kept inputs.
#pragma once

#include "rw/bstream.h"
#include "rw/pstream.h"
#include "rw/rwfile.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>

// The first input byte chooses the class (its position in the class table, modulo the number of
// classes), the second the stream kind (modulo 3: RWFile, RWbistream, RWpistream); the rest is the record
// that the class's restoreGuts reads. What was read is saved again on the same stream kind.
int qbFuzzFormular(const uint8_t* daten, size_t laenge);

// The first byte chooses the stream kind (modulo 3); the rest is read as a stored list through the
// list's operator>>. The list is saved on the same kind and the saved bytes are read into a second list.
int qbFuzzListe(const uint8_t* daten, size_t laenge);

// The input is XML text for CQBXMLdata::fromXML; the tree goes through the list's XMLputDat and each
// class's XMLputDat, and the results back through XMLgetDat and asXML.
int qbFuzzXml(const uint8_t* daten, size_t laenge);

// The input is given to the tool as a file: qbformul explain on it, and qbformul import of it as an XML
// document.
int qbFuzzWerkzeug(const uint8_t* daten, size_t laenge);

namespace qbfuzz {

// A file of this process for the input of a reader that needs a path (RWFile, the tool); nummer tells
// several apart. Lies in /dev/shm where there is one, and goes when the process ends.
const std::string& arbeitsdatei(int nummer);
void schreibe(const std::string& pfad, std::string_view bytes);
std::string lies(const std::filesystem::path& pfad);

// What schreibe(stream) writes on a stream kind: 0 RWFile (through a file of this process), 1 RWbostream,
// 2 RWpostream.
template <class Schreiber>
std::string aufStrom(int art, Schreiber schreibe) {
    if (art == 0) {
        const std::string& pfad = arbeitsdatei(1);
        {
            RWFile f(pfad.c_str(), "wb");
            schreibe(f);
        }
        return lies(pfad);
    }
    std::ostringstream aus;
    if (art == 1) {
        RWbostream s(aus);
        schreibe(s);
    } else {
        RWpostream s(aus);
        schreibe(s);
    }
    return aus.str();
}

// Writes the seed corpora of the four targets into ordner/formular, /liste, /xml and /werkzeug: records
// of every class on every stream kind, the records of old layouts of the example, the demo application
// and its XML, the stored example of old layouts (read from the checkout quellordner). Returns the
// number of seeds.
int erzeugeKorpus(const std::string& ordner, const std::string& quellordner);

// Output that goes nowhere: the tool's output is not what is tested, and is formatted all the same.
struct Nirgendwo : std::streambuf {
    int overflow(int zeichen) override { return zeichen == EOF ? 0 : zeichen; }
    std::streamsize xsputn(const char*, std::streamsize n) override { return n; }
};

inline std::string_view alsText(const uint8_t* daten, size_t laenge) {
    return {reinterpret_cast<const char*>(daten), laenge};
}

} // namespace qbfuzz
