#include "ziele.h"

#include "core/qbFormular.h"
#include "core/qbFormularListe.h"
#include "core/qbKlassen.h"
#include "qballg/CQBXMLdata.h"

#include <memory>

int qbFuzzXml(const uint8_t* daten, size_t laenge) {
    CQBXMLdata baum("");
    if (!baum.fromXMLUtf8(qbfuzz::alsText(daten, laenge))) return 0;

    qbFormularListe liste;
    liste.XMLputDat(baum);
    CQBXMLdata listenKnoten("");
    liste.XMLgetDat(listenKnoten);
    (void)listenKnoten.asXML();

    for (const qbKlasse& klasse : qbKlassen) {
        std::unique_ptr<qbFormular> form(klasse.ausXml(baum));
        CQBXMLdata knoten("");
        klasse.zuXml(*form, knoten);
        (void)knoten.asXML();
    }
    return 0;
}
