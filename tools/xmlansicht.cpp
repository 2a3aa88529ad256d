#include "xmlansicht.h"

#include "werkzeug.h"

#include "core/qbKlassen.h"

#include <cmath>
#include <utility>

namespace qbtool {

CQBXMLdata formularKnoten(const qbFormular& form) {
    CQBXMLdata knoten("");
    if (const qbKlasse* klasse = qbKlasseZuId(form.isA()))
        klasse->zuXml(form, knoten);
    else
        form.qbFormular::XMLgetDat(knoten);
    return knoten;
}

std::unique_ptr<CQBXMLdata> gespeicherteFelder(const qbFormular& form) {
    const qbKlasse* klasse = qbKlasseZuId(form.isA());
    if (!klasse || klasse->felder().size() == 0) return nullptr;
    for (const qbFeld& z : klasse->felder())
        if (z.xmlSchreibKey) return nullptr;
    auto knoten = std::make_unique<CQBXMLdata>("");
    knoten->clear(klasse->klassenName);
    for (const qbFeld& z : klasse->felder()) {
        switch (z.art) {
        case qbArt::Text:
            knoten->List(CQBXMLdata(z.name, form.*z.mitglied.text));
            break;
        case qbArt::Flag:
            knoten->List(CQBXMLdata(z.name, form.*z.mitglied.flag));
            break;
        case qbArt::Int:
        case qbArt::Enum:
            knoten->List(CQBXMLdata(z.name, form.*z.mitglied.ganz));
            break;
        case qbArt::Long:
            knoten->List(CQBXMLdata(z.name, form.*z.mitglied.lang));
            break;
        case qbArt::Double:
            knoten->List(CQBXMLdata(z.name, form.*z.mitglied.zahl));
            break;
        case qbArt::Bool:
            knoten->List(CQBXMLdata(z.name, form.*z.mitglied.wahrheit));
            break;
        case qbArt::Char:
            knoten->List(CQBXMLdata(z.name, static_cast<int>(form.*z.mitglied.zeichen)));
            break;
        case qbArt::Date:
            knoten->List(CQBXMLdata(z.name, form.*z.mitglied.datum));
            break;
        case qbArt::Person: { // a node of its own: the person's record, text by text
            const qbPerson& p = form.*z.mitglied.person;
            const qbAdressDaten& a = p.RefAdressDaten();
            CQBXMLdata person("");
            person.clear(z.name);
            const std::pair<const char*, const RWCString*> texte[] = {
                {"GebDat", &p.RefGebDat()},   {"Geschlecht", &p.RefGeschlecht()},
                {"Beruf", &p.RefBeruf()},     {"Anrede", &a.RefAnrede()},
                {"Titel", &a.RefTitel()},     {"Vorname", &a.RefVorname()},
                {"Name", &a.RefName()},       {"Strasse", &a.RefStrasse()},
                {"PLZ", &a.RefPLZ()},         {"Ort", &a.RefOrt()},
                {"Land", &a.RefLand()},       {"Telefon", &a.RefTelefon()},
                {"Telefax", &a.RefTelefax()}, {"EMail", &a.RefEMail()}};
            for (const auto& [name, text] : texte)
                person.List(CQBXMLdata(name, *text));
            knoten->add(std::move(person));
            break;
        }
        }
    }
    return knoten;
}

CQBXMLdata anwendungsBaum(const qbFormularListe& liste, const std::vector<unsigned>& positionen) {
    CQBXMLdata baum("");
    baum.clear("qbFormularListe");
    baum.List(CQBXMLdata("Version", liste.RefVersion()));
    CQBXMLdata sammlung("RWDlistCollectables");
    sammlung.Attribute("Liste");
    for (unsigned pos : positionen)
        if (const qbFormular* form = liste.liefereFormularAnPos(static_cast<int>(pos)))
            sammlung.List(formularKnoten(*form));
    baum.List(sammlung);
    return baum;
}

std::string wertText(const QBvar& wert) {
    if (const RWCString* t = wert.ifText()) return zitiert(utf8(*t));
    if (const unsigned char* f = wert.ifFlag()) return flagText(*f);
    if (const RWDate* d = wert.ifDate()) return d->isValid() ? utf8(wert.asString()) : "(no date)";
    if (const bool* b = wert.ifBool()) return *b ? "true" : "false";
    return utf8(wert.asString());
}

namespace {

std::string bezeichnung(const CQBXMLdata& knoten) {
    if (knoten.Name().isNull()) return utf8(knoten.Typ());
    if (knoten.Typ().isNull() || knoten.Typ() == knoten.Name()) return utf8(knoten.Name());
    return utf8(knoten.Name()) + " (" + utf8(knoten.Typ()) + ")";
}

bool istBlatt(const CQBXMLdata& knoten) { return knoten.entryCount() == 0 && !knoten.value().isEmpty(); }

nlohmann::ordered_json wertJson(const QBvar& wert) {
    switch (wert.kind()) {
    case QBvar::empty:
        return nullptr;
    case QBvar::text:
        return utf8(*wert.ifText());
    case QBvar::flag: {
        const unsigned f = *wert.ifFlag();
        if (f == 0 || f == 1 || f == 0xff) return flagText(f);
        return f;
    }
    case QBvar::intValue:
        return *wert.ifInt();
    case QBvar::longValue:
        return *wert.ifLong();
    case QBvar::doubleValue: {
        const double d = *wert.ifDouble();
        if (std::isfinite(d)) return d;
        return utf8(wert.asString()); // JSON has no infinity nor NaN
    }
    case QBvar::boolValue:
        return *wert.ifBool();
    case QBvar::date: {
        const RWDate& d = *wert.ifDate();
        if (!d.isValid()) return nullptr;
        return utf8(wert.asString());
    }
    }
    return nullptr;
}

} // namespace

void druckeKnoten(std::ostream& aus, const CQBXMLdata& knoten, const std::string& einzug) {
    size_t breite = 0;
    for (size_t i = 0; i < knoten.entryCount(); ++i)
        if (istBlatt(*knoten.entryAt(i)))
            breite = std::max(breite, zeichenAnzahl(utf8(knoten.entryAt(i)->Name())));
    for (size_t i = 0; i < knoten.entryCount(); ++i) {
        const CQBXMLdata& eintrag = *knoten.entryAt(i);
        if (istBlatt(eintrag)) {
            const std::string name = utf8(eintrag.Name());
            aus << einzug << name << std::string(breite - zeichenAnzahl(name), ' ') << "  "
                << wertText(eintrag.value()) << '\n';
            continue;
        }
        aus << einzug << bezeichnung(eintrag) << ":";
        if (!eintrag.value().isEmpty()) aus << ' ' << wertText(eintrag.value());
        aus << '\n';
        druckeKnoten(aus, eintrag, einzug + "  ");
    }
}

nlohmann::ordered_json knotenJson(const CQBXMLdata& knoten) {
    nlohmann::ordered_json objekt = nlohmann::ordered_json::object();
    for (size_t i = 0; i < knoten.entryCount(); ++i) {
        const CQBXMLdata& eintrag = *knoten.entryAt(i);
        nlohmann::ordered_json wert;
        std::string schluessel;
        if (istBlatt(eintrag)) {
            schluessel = utf8(eintrag.Name());
            wert = wertJson(eintrag.value());
        } else {
            schluessel = eintrag.Name().isNull() ? utf8(eintrag.Typ()) : utf8(eintrag.Name());
            wert = knotenJson(eintrag);
        }
        auto vorhanden = objekt.find(schluessel);
        if (vorhanden == objekt.end())
            objekt[schluessel] = std::move(wert);
        else if (vorhanden->is_array())
            vorhanden->push_back(std::move(wert));
        else
            *vorhanden = nlohmann::ordered_json::array({*vorhanden, std::move(wert)});
    }
    return objekt;
}

nlohmann::ordered_json formularJson(const qbFormular& form, unsigned position) {
    const qbKlasse* klasse = qbKlasseZuId(form.isA());
    nlohmann::ordered_json j;
    j["position"] = position;
    j["class"] = klasse ? klasse->klassenName : "";
    j["piece"] = utf8(form.RefDruckstueckNummer());
    j["name"] = utf8(form.RefDruckstueckName());
    j["person"] = utf8(form.RefPersonenKennung());
    j["version"] = utf8(form.RefVersion());
    j["fields"] = knotenJson(formularKnoten(form));
    if (const auto gespeichert = gespeicherteFelder(form)) j["stored fields"] = knotenJson(*gespeichert);
    return j;
}

} // namespace qbtool

namespace qbtool {

std::string jsonText(const nlohmann::ordered_json& json) {
    return json.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

nlohmann::ordered_json anwendungJson(const std::string& pfad, const qbFormularListe& liste,
                                     const std::vector<unsigned>& positionen) {
    nlohmann::ordered_json j;
    j["file"] = pfad;
    j["version"] = utf8(liste.RefVersion());
    j["forms"] = nlohmann::ordered_json::array();
    for (unsigned pos : positionen)
        if (const qbFormular* form = liste.liefereFormularAnPos(static_cast<int>(pos)))
            j["forms"].push_back(formularJson(*form, pos + 1));
    return j;
}

} // namespace qbtool
