// The seed corpora of the fuzz targets, in DIR/formular, DIR/liste, DIR/xml and DIR/werkzeug. Seeds: a
// record of every class, empty and with every field filled, on each stream kind; a record of every old
// layout of every class and the records of the example of old layouts, as the fixture writer writes them;
// the demo application (file, virtual streams, XML of export and of export --list-only); and the stored
// example of old layouts.
#include "ziele.h"

#include "alte_layouts.h"
#include "befehle.h"
#include "legacy_beispiel.h"

#include "core/qbFeld.h"
#include "core/qbFormular.h"
#include "core/qbFormularListe.h"
#include "core/qbKlassen.h"
#include "rw/bstream.h"
#include "rw/pstream.h"
#include "rw/rwfile.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <sstream>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

class Korpus {
public:
    explicit Korpus(fs::path ordner) : ordner_(std::move(ordner)) {}
    void lege(const std::string& ziel, const std::string& name, const std::string& bytes) {
        fs::create_directories(ordner_ / ziel);
        std::ofstream(ordner_ / ziel / name, std::ios::binary) << bytes;
        ++anzahl_;
    }
    int anzahl() const { return anzahl_; }

private:
    fs::path ordner_;
    int anzahl_ = 0;
};

// Every field of the form set to a value other than its default.
void fuelle(qbFormular& form, const qbFeldTabelle& felder) {
    for (const qbFeld& z : felder) {
        switch (z.art) {
        case qbArt::Text:
            form.*z.mitglied.text = RWCString(z.name) + " \xE4\xF6\xFC";
            break;
        case qbArt::Flag:
            form.*z.mitglied.flag = 1;
            break;
        case qbArt::Char:
            form.*z.mitglied.zeichen = 'J';
            break;
        case qbArt::Bool:
            form.*z.mitglied.wahrheit = true;
            break;
        case qbArt::Int:
        case qbArt::Enum:
            form.*z.mitglied.ganz = 12;
            break;
        case qbArt::Long:
            form.*z.mitglied.lang = 123456;
            break;
        case qbArt::Double:
            form.*z.mitglied.zahl = 1.5;
            break;
        case qbArt::Date:
        case qbArt::Person:
            break;
        }
    }
}

int werkzeug(std::vector<std::string> argumente) {
    std::vector<char*> argv;
    for (std::string& a : argumente)
        argv.push_back(a.data());
    return qbtool::hauptprogramm(static_cast<int>(argv.size()), argv.data());
}

size_t klassenIndex(unsigned short id) {
    for (size_t i = 0; i < qbKlassenAnzahl; ++i)
        if (qbKlassen[i].id == id) return i;
    return 0;
}

} // namespace

int qbfuzz::erzeugeKorpus(const std::string& ordner, const std::string& quellordner) {
    Korpus korpus(ordner);
    const fs::path quellen(quellordner);
    const fs::path arbeit = fs::temp_directory_path() / ("qbformul-korpus-" + std::to_string(getpid()));
    fs::create_directories(arbeit);

    for (size_t i = 0; i < qbKlassenAnzahl; ++i) {
        const qbKlasse& k = qbKlassen[i];
        std::unique_ptr<qbFormular> leer(static_cast<qbFormular*>(k.erzeuge()));
        std::unique_ptr<qbFormular> voll(static_cast<qbFormular*>(k.erzeuge()));
        if (qbKlasseZuName(k.basisName)) fuelle(*voll, qbKlasseZuName(k.basisName)->felder());
        fuelle(*voll, k.felder());
        for (int art = 0; art < 3; ++art) {
            const std::string kopf{static_cast<char>(i), static_cast<char>(art)};
            korpus.lege("formular", std::string(k.klassenName) + "-leer-" + std::to_string(art),
                        kopf + qbfuzz::aufStrom(art, [&](auto& s) { leer->saveGuts(s); }));
            korpus.lege("formular", std::string(k.klassenName) + "-voll-" + std::to_string(art),
                        kopf + qbfuzz::aufStrom(art, [&](auto& s) { voll->saveGuts(s); }));
        }
    }
    // Every old layout of every class, and the records of the example of old layouts.
    std::vector<std::pair<unsigned short, qbtest::AltSatz>> alteSaetze = qbtest::legacyBeispielSaetze();
    for (const qbKlasse& k : qbKlassen)
        for (qbtest::AlterLayoutSatz& alt :
             qbtest::alteLayoutSaetze(k, *k.version ? k.version : "10.2002", (arbeit / "layout").c_str()))
            alteSaetze.emplace_back(k.id, std::move(alt.satz));
    int nummer = 0;
    for (const auto& [id, alt] : alteSaetze) {
        ++nummer;
        for (int art = 0; art < 3; ++art) {
            const std::string bytes = qbfuzz::aufStrom(art, [&](auto& s) { alt.schreibe(s); });
            const std::string kopf{static_cast<char>(klassenIndex(id)), static_cast<char>(art)};
            korpus.lege("formular", "alt-" + std::to_string(nummer) + "-" + std::to_string(art),
                        kopf + bytes);
        }
    }

    // The demo application and its XML, written by the tool as a user gets them.
    const fs::path demo = arbeit / "demo";
    qbfuzz::Nirgendwo nirgendwo;
    std::streambuf* cout = std::cout.rdbuf(&nirgendwo);
    werkzeug({"qbformul", "demo", demo.string()});
    werkzeug({"qbformul", "export", (demo / "antrag.qbf").string(), "-o", (arbeit / "liste.xml").string(),
              "--list-only"});
    std::cout.rdbuf(cout);
    const std::string antrag = qbfuzz::lies(demo / "antrag.qbf");
    const std::string beispiel = qbfuzz::lies(quellen / "examples/legacy/alte-layouts.qbf");
    korpus.lege("liste", "demo-0", std::string(1, '\0') + antrag);
    korpus.lege("liste", "alte-layouts-0", std::string(1, '\0') + beispiel);
    for (const auto& [name, datei] : {std::pair{"demo-", &antrag}, std::pair{"alte-layouts-", &beispiel}}) {
        const std::string& pfad = qbfuzz::arbeitsdatei(0);
        qbfuzz::schreibe(pfad, *datei);
        qbFormularListe liste;
        RWFile f(pfad.c_str(), "rb");
        f >> liste;
        korpus.lege("liste", std::string(name) + "1",
                    std::string(1, '\1') + qbfuzz::aufStrom(1, [&](auto& s) { s << liste; }));
        korpus.lege("liste", std::string(name) + "2",
                    std::string(1, '\2') + qbfuzz::aufStrom(2, [&](auto& s) { s << liste; }));
    }
    korpus.lege("liste", "leer-0", std::string(1, '\0'));
    for (const char* xml : {"antrag.xml", "../liste.xml"}) {
        const std::string text = qbfuzz::lies(demo / xml);
        korpus.lege("xml", fs::path(xml).filename().string(), text);
        korpus.lege("werkzeug", fs::path(xml).filename().string(), text);
    }
    korpus.lege("werkzeug", "demo.qbf", antrag);
    korpus.lege("werkzeug", "alte-layouts.qbf", beispiel);

    fs::remove_all(arbeit);
    return korpus.anzahl();
}
