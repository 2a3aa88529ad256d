// XML of the 50-form application: the library's way (XMLgetDat into a CQBXMLdata tree, then asXML)
// against pugixml fed straight from the forms, writing the same document with the same options.
//
// Two documents: the list's own (XMLgetDat of the list, which carries each form's header only), and
// every form's full node (each class's XMLgetDat) under one root. Before the first measurement the two
// texts of each document are compared; a pair that differs is reported as an error, not timed.
#include "bench_data.h"

#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <algorithm>
#include <charconv>
#include <string>
#include <utility>
#include <vector>

namespace bench {
namespace {

struct TextSchreiber : pugi::xml_writer {
    std::string text;
    void write(const void* daten, size_t n) override { text.append(static_cast<const char*>(daten), n); }
};

// ---- The library's way

std::string listeUeberBaum() {
    CQBXMLdata knoten("");
    antrag().XMLgetDat(knoten);
    return knoten.asXML().std();
}

std::string formulareUeberBaum() {
    CQBXMLdata wurzel("");
    wurzel.clear("Formulare");
    const qbFormularListe& liste = antrag();
    for (unsigned i = 0; i < liste.AnzahlFormulare(); ++i) {
        const qbFormular& form = *liste.liefereFormularAnPos(static_cast<int>(i));
        CQBXMLdata knoten("");
        qbKlasseZuId(form.isA())->zuXml(form, knoten);
        wurzel.List(std::move(knoten)); // the node is not needed afterwards
    }
    return wurzel.asXML().std();
}

// ---- pugixml straight from the forms: the elements and attributes CQBXMLdata::asXML writes, in its
// order (name, typ, attribute, added, type, value), without the tree in between.

pugi::xml_node knoten(pugi::xml_node eltern, const char* typ, bool aufgenommen) {
    pugi::xml_node e = eltern.append_child("node");
    if (*typ) e.append_attribute("typ").set_value(typ);
    if (aufgenommen) e.append_attribute("added").set_value("true");
    return e;
}

pugi::xml_node blatt(pugi::xml_node eltern, const char* name, const char* art) {
    pugi::xml_node e = eltern.append_child("node");
    e.append_attribute("name").set_value(name);
    e.append_attribute("type").set_value(art);
    return e;
}

void text(pugi::xml_node eltern, const char* name, const RWCString& wert) {
    blatt(eltern, name, "text").append_attribute("value").set_value(cp1252ToUtf8(wert).c_str());
}

// One row of a field table, as qbFeldTabelle::xmlSchreibe writes it.
void zeile(pugi::xml_node e, const qbFeld& z, const qbFormular& form) {
    const char* k = z.xmlSchreibKey;
    switch (z.art) {
    case qbArt::Text:
        text(e, k, form.*z.mitglied.text);
        break;
    case qbArt::Flag:
        blatt(e, k, "flag").append_attribute("value").set_value(static_cast<unsigned>(form.*z.mitglied.flag));
        break;
    case qbArt::Bool:
        blatt(e, k, "bool").append_attribute("value").set_value(form.*z.mitglied.wahrheit);
        break;
    case qbArt::Int:
    case qbArt::Enum:
        blatt(e, k, "int").append_attribute("value").set_value(form.*z.mitglied.ganz);
        break;
    case qbArt::Long:
        blatt(e, k, "long").append_attribute("value").set_value(form.*z.mitglied.lang);
        break;
    case qbArt::Double: {
        char zahl[64];
        *std::to_chars(zahl, zahl + sizeof zahl - 1, form.*z.mitglied.zahl).ptr = '\0';
        blatt(e, k, "double").append_attribute("value").set_value(zahl);
        break;
    }
    case qbArt::Date:
        blatt(e, k, "date").append_attribute("value").set_value((form.*z.mitglied.datum).julian());
        break;
    case qbArt::Char:
    case qbArt::Person:
        break;
    }
}

void zeilen(pugi::xml_node e, const qbFeldTabelle& tabelle, const qbFormular& form) {
    for (const qbFeld& z : tabelle)
        if (z.xmlSchreibKey) zeile(e, z, form);
}

std::string speichere(pugi::xml_document& dokument) {
    TextSchreiber schreiber;
    dokument.save(schreiber, "  ", pugi::format_indent, pugi::encoding_utf8);
    return std::move(schreiber.text);
}

pugi::xml_node neuesDokument(pugi::xml_document& dokument) {
    pugi::xml_node erklaerung = dokument.append_child(pugi::node_declaration);
    erklaerung.append_attribute("version").set_value("1.0");
    erklaerung.append_attribute("encoding").set_value("UTF-8");
    return dokument;
}

std::string listeDirekt() {
    pugi::xml_document dokument;
    pugi::xml_node wurzel = knoten(neuesDokument(dokument), "qbFormularListe", false);
    const qbFormularListe& liste = antrag();
    text(wurzel, "Version", liste.RefVersion());
    pugi::xml_node sammlung = wurzel.append_child("node");
    sammlung.append_attribute("name").set_value("RWDlistCollectables");
    sammlung.append_attribute("attribute").set_value("Liste");
    for (unsigned i = 0; i < liste.AnzahlFormulare(); ++i)
        zeilen(knoten(sammlung, "qbFormular", false), qbFormular::felder(),
               *liste.liefereFormularAnPos(static_cast<int>(i)));
    return speichere(dokument);
}

std::string formulareDirekt() {
    pugi::xml_document dokument;
    pugi::xml_node wurzel = knoten(neuesDokument(dokument), "Formulare", false);
    const qbFormularListe& liste = antrag();
    for (unsigned i = 0; i < liste.AnzahlFormulare(); ++i) {
        const qbFormular& form = *liste.liefereFormularAnPos(static_cast<int>(i));
        const qbKlasse& klasse = *qbKlasseZuId(form.isA());
        pugi::xml_node e = knoten(wurzel, klasse.klassenName, false);
        // L144 nests the common health answers' node, which holds the header; the others the header.
        pugi::xml_node kopfEltern = e;
        if (form.isA() == qbId_qbFormularL144) kopfEltern = knoten(e, "qbFormularAllgGesu", true);
        zeilen(knoten(kopfEltern, "qbFormular", true), qbFormular::felder(), form);
        if (kopfEltern != e) zeilen(kopfEltern, qbFormularAllgGesu::felder(), form);
        zeilen(e, klasse.felder(), form);
    }
    return speichere(dokument);
}

// ---- Registration

void registriere(const std::string& gruppe, std::string (*baum)(), std::string (*direkt)()) {
    auto lauf = [gruppe, baum, direkt](benchmark::State& state, std::string (*weg)()) {
        const std::string a = baum(), b = direkt();
        if (a != b) {
            state.SkipWithError((gruppe + ": the two documents differ").c_str());
            return;
        }
        size_t bytes = 0;
        for (auto _ : state) {
            std::string xml = weg();
            bytes = xml.size();
            benchmark::DoNotOptimize(xml.data());
        }
        state.counters["records"] = kFormulareImAntrag;
        state.counters["bytes_per_record"] = static_cast<double>(bytes) / kFormulareImAntrag;
        state.SetItemsProcessed(state.iterations() * kFormulareImAntrag);
        state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(bytes));
    };
    for (auto [art, weg] : {std::pair{"qbformul_tree", baum}, std::pair{"pugixml_direct", direkt}}) {
        const std::string voll = gruppe + "/write/" + art;
        merkeArbeit(voll, kFormulareImAntrag, [weg] { benchmark::DoNotOptimize(weg().data()); });
        benchmark::RegisterBenchmark(voll.c_str(), lauf, weg)
            ->ComputeStatistics(
                "min", [](const std::vector<double>& v) { return *std::min_element(v.begin(), v.end()); });
    }
}

const bool registriert = [] {
    registriere("XMLListe", &listeUeberBaum, &listeDirekt);
    registriere("XMLFormulare", &formulareUeberBaum, &formulareDirekt);
    return true;
}();

} // namespace
} // namespace bench
