// The example application: forms for the applicant and two insured persons, stored in an application
// file, read back and listed; the list's XML is written beside it.
#include "qbformul.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

static std::string utf8(const RWCString& s) { return cp1252ToUtf8(s.std()); }

int main(int argc, char** argv) {
    const std::filesystem::path ordner = argc > 1 ? argv[1] : "demo";
    std::filesystem::create_directories(ordner);
    const std::string datei = (ordner / "antrag.qbf").string();

    qbFormularListe antrag;
    qbFormularL147 blutdruck; // the applicant's
    blutdruck.RefMedikamente("Betablocker");
    antrag.neuesFormular(blutdruck);

    qbFormularL145 verletzung;
    verletzung.RefVerletzungshergang("Sturz beim Skifahren");
    verletzung.RefKrankheit("Knieverletzung");
    verletzung.RefGeheiltJN(1);
    verletzung.RefGeheiltSeit("03.2001");
    antrag.neuesFormular(verletzung);
    qbFormularL440 kampfsport;
    kampfsport.RefKampfsportarten("Judo");
    kampfsport.RefFreizeitsportJN(1);
    antrag.neuesFormular(kampfsport);

    qbFormularL146 wirbelsaeule;
    wirbelsaeule.RefPersonenKennung("VP2");
    wirbelsaeule.RefDiagnose("Bandscheibenvorfall");
    antrag.neuesFormular(wirbelsaeule);

    {
        RWFile f(datei.c_str(), "wb");
        if (!f.isValid()) {
            std::fprintf(stderr, "demo: cannot write %s\n", datei.c_str());
            return 1;
        }
        f << antrag;
    }

    qbFormularListe gelesen;
    {
        RWFile f(datei.c_str(), "rb");
        f >> gelesen;
    }
    std::printf("%s: %u forms\n", datei.c_str(), gelesen.AnzahlFormulare());
    std::printf("%-4s %-22s %-6s %-4s %-8s %s\n", "Pos", "Class", "Piece", "Pers", "Version", "Name");
    for (unsigned i = 0; i < gelesen.AnzahlFormulare(); ++i) {
        const qbFormular* f = gelesen.liefereFormularAnPos(static_cast<int>(i));
        const qbKlasse* k = qbKlasseZuId(f->isA());
        std::printf("%-4u %-22s %-6s %-4s %-8s %s\n", i, k ? k->klassenName : "?",
                    f->RefDruckstueckNummer().data(), f->RefPersonenKennung().data(), f->RefVersion().data(),
                    utf8(f->RefDruckstueckName()).c_str());
    }

    CQBXMLdata knoten("");
    gelesen.XMLgetDat(knoten);
    const std::filesystem::path xml = ordner / "antrag.xml";
    std::ofstream(xml) << knoten.asXMLUtf8();
    std::printf("written: %s and %s\n", datei.c_str(), xml.string().c_str());
    return 0;
}
