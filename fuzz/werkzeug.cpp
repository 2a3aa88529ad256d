#include "ziele.h"

#include "befehle.h"

#include <iostream>

int qbFuzzWerkzeug(const uint8_t* daten, size_t laenge) {
    static qbfuzz::Nirgendwo nirgendwo;
    std::streambuf* cout = std::cout.rdbuf(&nirgendwo);
    std::streambuf* cerr = std::cerr.rdbuf(&nirgendwo);

    const std::string& eingabe = qbfuzz::arbeitsdatei(0);
    const std::string& ausgabe = qbfuzz::arbeitsdatei(1);
    qbfuzz::schreibe(eingabe, qbfuzz::alsText(daten, laenge));
    // The subcommands' work as the command line runs it, without building the command line each time.
    qbtool::fuehreAus("explain", [&] { return qbtool::erklaere(eingabe); });
    std::remove(ausgabe.c_str());
    qbtool::fuehreAus("import", [&] { return qbtool::importiere({eingabe, ausgabe}); });

    std::cout.rdbuf(cout);
    std::cerr.rdbuf(cerr);
    return 0;
}
