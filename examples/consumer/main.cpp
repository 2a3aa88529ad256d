// Builds an application of one form, stores it, reads it back and finds the form again.
#include "qbformul.h"

#include <cstdio>
#include <string>

int main(int argc, char** argv) {
    const std::string datei = std::string(argc > 1 ? argv[1] : ".") + "/consumer.qbf";

    qbFormularL145 verletzung;
    verletzung.RefVerletzungshergang("Sturz beim Skifahren");
    verletzung.RefGeheiltJN(1);
    qbFormularListe antrag;
    antrag.neuesFormular(verletzung);
    {
        RWFile f(datei.c_str(), "wb");
        f << antrag;
    }

    qbFormularListe gelesen;
    {
        RWFile f(datei.c_str(), "rb");
        f >> gelesen;
    }
    qbFormularL145 gefunden;
    if (!gelesen.liefereFormular("L145", gefunden, 0) ||
        gefunden.RefVerletzungshergang() != "Sturz beim Skifahren") {
        std::fprintf(stderr, "consumer: the form did not come back\n");
        return 1;
    }
    std::printf("consumer: %u form(s), %s for %s, version %s\n", gelesen.AnzahlFormulare(),
                gefunden.RefDruckstueckNummer().data(), gefunden.RefPersonenKennung().data(),
                gefunden.RefVersion().data());
    return 0;
}
