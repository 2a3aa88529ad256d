#include "asymmetrien.h"

#include "werkzeug.h"

#include "core/qbFeld.h"
#include "core/qbFormular.h"
#include "qballg/CQBXMLdata.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>

namespace qbtool {

namespace {

// The tables of a class, its bases' first: the header, then e.g. the health base, then its own rows.
std::vector<const qbFeldTabelle*> tabellenVon(const qbKlasse& klasse) {
    std::vector<const qbFeldTabelle*> tabellen;
    for (const qbKlasse* k = &klasse; k; k = qbKlasseZuName(k->basisName))
        tabellen.push_back(&k->felder());
    std::reverse(tabellen.begin(), tabellen.end());
    return tabellen;
}

// A value of its own for the n-th field, different from every default.
QBvar probe(const qbFeld& z, int n, const qbFormular& form) {
    switch (z.art) {
    case qbArt::Text:
        return RWCString(("qbformul-probe-" + std::to_string(n)).c_str());
    case qbArt::Flag:
        return static_cast<unsigned char>(2 + n % 250);
    case qbArt::Char:
        return static_cast<int>('A' + n % 26);
    case qbArt::Bool:
        return !(form.*z.mitglied.wahrheit);
    case qbArt::Int:
        return 100000 + n;
    case qbArt::Enum:
        return 10 + n % 100;
    case qbArt::Long:
        return 200000L + n;
    case qbArt::Double:
        return 0.25 + n;
    case qbArt::Date:
        return RWDate::fromJulian(2450000UL + static_cast<unsigned long>(n));
    case qbArt::Person:
        return QBvar();
    }
    return QBvar();
}

void setze(qbFormular& form, const qbFeld& z, const QBvar& wert) {
    switch (z.art) {
    case qbArt::Text:
        form.*z.mitglied.text = *wert.ifText();
        break;
    case qbArt::Flag:
        form.*z.mitglied.flag = *wert.ifFlag();
        break;
    case qbArt::Char:
        form.*z.mitglied.zeichen = static_cast<char>(*wert.ifInt());
        break;
    case qbArt::Bool:
        form.*z.mitglied.wahrheit = *wert.ifBool();
        break;
    case qbArt::Int:
    case qbArt::Enum:
        form.*z.mitglied.ganz = *wert.ifInt();
        break;
    case qbArt::Long:
        form.*z.mitglied.lang = *wert.ifLong();
        break;
    case qbArt::Double:
        form.*z.mitglied.zahl = *wert.ifDouble();
        break;
    case qbArt::Date:
        form.*z.mitglied.datum = *wert.ifDate();
        break;
    case qbArt::Person:
        break;
    }
}

bool haelt(const qbFormular& form, const qbFeld& z, const QBvar& wert) {
    switch (z.art) {
    case qbArt::Text:
        return form.*z.mitglied.text == *wert.ifText();
    case qbArt::Flag:
        return form.*z.mitglied.flag == *wert.ifFlag();
    case qbArt::Char:
        return form.*z.mitglied.zeichen == static_cast<char>(*wert.ifInt());
    case qbArt::Bool:
        return form.*z.mitglied.wahrheit == *wert.ifBool();
    case qbArt::Int:
    case qbArt::Enum:
        return form.*z.mitglied.ganz == *wert.ifInt();
    case qbArt::Long:
        return form.*z.mitglied.lang == *wert.ifLong();
    case qbArt::Double:
        return form.*z.mitglied.zahl == *wert.ifDouble();
    case qbArt::Date:
        return form.*z.mitglied.datum == *wert.ifDate();
    case qbArt::Person:
        return true;
    }
    return true;
}

// Whether the tree holds the field: its value of its own anywhere; for the few values that are not
// unique (Bool, Char), an entry under its key.
bool imBaum(const CQBXMLdata& knoten, const qbFeld& z, const QBvar& wert) {
    for (size_t i = 0; i < knoten.entryCount(); ++i) {
        const CQBXMLdata& e = *knoten.entryAt(i);
        const bool unterSchluessel = z.xmlSchreibKey && e.Name() == z.xmlSchreibKey;
        if (z.art == qbArt::Bool || z.art == qbArt::Char) {
            if (unterSchluessel) return true;
        } else if (e.value().identical(wert)) {
            return true;
        }
        if (imBaum(e, z, wert)) return true;
    }
    return false;
}

} // namespace

std::vector<XmlAsymmetrie> xmlAsymmetrien() {
    std::vector<XmlAsymmetrie> alle;
    for (const qbKlasse& klasse : qbKlassen) {
        XmlAsymmetrie a{&klasse, {}, {}};
        std::unique_ptr<qbFormular> form(static_cast<qbFormular*>(klasse.erzeuge()));
        struct Zeile {
            const qbFeldTabelle* tabelle;
            const qbFeld* feld;
            QBvar wert;
        };
        std::vector<Zeile> zeilen;
        int n = 0;
        for (const qbFeldTabelle* t : tabellenVon(klasse))
            for (const qbFeld& z : *t) {
                if (z.art == qbArt::Person) { // no class exchanges a person through its table's keys
                    a.nichtGeschrieben.push_back({t->klasse(), z.name});
                    continue;
                }
                zeilen.push_back({t, &z, probe(z, n++, *form)});
                setze(*form, z, zeilen.back().wert);
            }
        CQBXMLdata knoten("");
        klasse.zuXml(*form, knoten);
        std::unique_ptr<qbFormular> zurueck(klasse.ausXml(knoten));
        for (const Zeile& z : zeilen) {
            if (haelt(*zurueck, *z.feld, z.wert)) continue;
            const XmlLuecke luecke{z.tabelle->klasse(), z.feld->name};
            if (imBaum(knoten, *z.feld, z.wert))
                a.nichtZurueckgelesen.push_back(luecke);
            else
                a.nichtGeschrieben.push_back(luecke);
        }
        alle.push_back(std::move(a));
    }
    return alle;
}

namespace {

bool gleich(const XmlLuecke& a, const XmlLuecke& b) {
    return std::strcmp(a.tabelle, b.tabelle) == 0 && std::strcmp(a.feld, b.feld) == 0;
}

bool enthaelt(const std::vector<XmlLuecke>& liste, const XmlLuecke& l) {
    return std::any_of(liste.begin(), liste.end(), [&](const XmlLuecke& x) { return gleich(x, l); });
}

size_t feldAnzahl(const char* tabelle) {
    const qbKlasse* k = qbKlasseZuName(tabelle);
    return k ? k->felder().size() : 0;
}

// "A, B of qbFormular; all 17 fields of qbFormularAllgGesu", leaving out what stands in weg.
std::string gruppiert(const std::vector<XmlLuecke>& luecken, const std::vector<XmlLuecke>& weg) {
    std::vector<std::pair<std::string, std::vector<std::string>>> gruppen;
    for (const XmlLuecke& l : luecken) {
        if (enthaelt(weg, l)) continue;
        if (gruppen.empty() || gruppen.back().first != l.tabelle) gruppen.push_back({l.tabelle, {}});
        gruppen.back().second.push_back(l.feld);
    }
    std::string text;
    for (const auto& [tabelle, felder] : gruppen) {
        if (!text.empty()) text += "; ";
        if (felder.size() > 3 && felder.size() == feldAnzahl(tabelle.c_str())) {
            text += "all " + std::to_string(felder.size()) + " fields of " + tabelle;
            continue;
        }
        for (size_t i = 0; i < felder.size(); ++i)
            text += (i ? ", " : "") + felder[i];
        text += " of " + tabelle;
    }
    return text;
}

} // namespace

std::string xmlAsymmetrienText() {
    const std::vector<XmlAsymmetrie> alle = xmlAsymmetrien();
    // What the base leaves behind is the rule of every class and said once; a class that reads some of it
    // back says so.
    std::vector<XmlLuecke> ueberall;
    for (const XmlAsymmetrie& a : alle)
        if (a.klasse->id == qbId_qbFormular) ueberall = a.nichtZurueckgelesen;
    std::string text =
        umbrochen("What the forms do not read back from XML. This belongs to the stored format "
                  "and is kept; it is no fault of this tool:") +
        "\n";
    if (!ueberall.empty())
        text += umbrochen("every class, unless it says otherwise: " + gruppiert(ueberall, {}) +
                              " (written, never read back)",
                          "  ", "    ") +
                "\n";
    for (const XmlAsymmetrie& a : alle) {
        const std::string zurueck = gruppiert(a.nichtZurueckgelesen, ueberall);
        const std::string fehlt = gruppiert(a.nichtGeschrieben, {});
        std::vector<XmlLuecke> gelesen; // of what most classes leave behind
        if (a.klasse->listenart != qbListenart::Basis)
            for (const XmlLuecke& l : ueberall)
                if (!enthaelt(a.nichtZurueckgelesen, l) && !enthaelt(a.nichtGeschrieben, l))
                    gelesen.push_back(l);
        const std::string dochGelesen = gruppiert(gelesen, {});
        if (zurueck.empty() && fehlt.empty() && dochGelesen.empty() && a.klasse->imXmlImport) continue;
        std::string kopf = a.klasse->klassenName;
        if (*a.klasse->nummer) kopf += std::string(" (") + a.klasse->nummer + ")";
        text += "  " + kopf + ":\n";
        if (!a.klasse->imXmlImport)
            text +=
                umbrochen("the list's import does not know this class and skips it", "    ", "      ") + "\n";
        if (!zurueck.empty())
            text += umbrochen("written, not read back: " + zurueck, "    ", "      ") + "\n";
        if (!fehlt.empty()) text += umbrochen("not in its XML at all: " + fehlt, "    ", "      ") + "\n";
        if (!dochGelesen.empty())
            text += umbrochen("read back all the same: " + dochGelesen, "    ", "      ") + "\n";
    }
    while (!text.empty() && text.back() == '\n')
        text.pop_back();
    return text;
}

} // namespace qbtool
