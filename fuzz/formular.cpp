#include "ziele.h"

#include "core/qbKlassen.h"
#include "rw/bstream.h"
#include "rw/factory.h"
#include "rw/pstream.h"
#include "rw/rwfile.h"

#include <memory>
#include <sstream>

int qbFuzzFormular(const uint8_t* daten, size_t laenge) {
    if (laenge < 2) return 0;
    const qbKlasse& klasse = qbKlassen[daten[0] % qbKlassenAnzahl];
    const std::string satz(qbfuzz::alsText(daten + 2, laenge - 2));
    // Through the factory, as a stored record finds its class.
    std::unique_ptr<RWCollectable> form(getRWFactory()->create(klasse.id));
    if (!form) return 0;
    switch (daten[1] % 3) {
    case 0: {
        const std::string& pfad = qbfuzz::arbeitsdatei(0);
        qbfuzz::schreibe(pfad, satz);
        {
            RWFile f(pfad.c_str(), "rb");
            form->restoreGuts(f);
        }
        RWFile aus(qbfuzz::arbeitsdatei(1).c_str(), "wb");
        form->saveGuts(aus);
        break;
    }
    case 1: {
        std::istringstream ein(satz);
        RWbistream s(ein);
        form->restoreGuts(s);
        std::ostringstream aus;
        RWbostream o(aus);
        form->saveGuts(o);
        break;
    }
    default: {
        std::istringstream ein(satz);
        RWpistream s(ein);
        form->restoreGuts(s);
        std::ostringstream aus;
        RWpostream o(aus);
        form->saveGuts(o);
        break;
    }
    }
    (void)form->binaryStoreSize();
    return 0;
}
