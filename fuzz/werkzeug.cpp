#include "ziele.h"

#include "befehle.h"

#include <iostream>
#include <streambuf>
#include <vector>

namespace {

// The tool's output is not what is tested: it goes nowhere, and is formatted all the same.
struct Nirgendwo : std::streambuf {
    int overflow(int zeichen) override { return zeichen == EOF ? 0 : zeichen; }
    std::streamsize xsputn(const char*, std::streamsize n) override { return n; }
};

int rufe(std::vector<std::string> argumente) {
    std::vector<char*> argv;
    for (std::string& a : argumente)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    return qbtool::hauptprogramm(static_cast<int>(argumente.size()), argv.data());
}

} // namespace

int qbFuzzWerkzeug(const uint8_t* daten, size_t laenge) {
    static Nirgendwo nirgendwo;
    std::streambuf* cout = std::cout.rdbuf(&nirgendwo);
    std::streambuf* cerr = std::cerr.rdbuf(&nirgendwo);

    const std::string& eingabe = qbfuzz::arbeitsdatei(0);
    const std::string& ausgabe = qbfuzz::arbeitsdatei(1);
    qbfuzz::schreibe(eingabe, qbfuzz::alsText(daten, laenge));
    rufe({"qbformul", "explain", eingabe});
    std::remove(ausgabe.c_str());
    if (rufe({"qbformul", "import", eingabe, "-o", ausgabe}) == 0) rufe({"qbformul", "explain", ausgabe});

    std::cout.rdbuf(cout);
    std::cerr.rdbuf(cerr);
    return 0;
}
