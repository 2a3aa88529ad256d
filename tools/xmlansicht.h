// Views of the forms' XML trees: the application as one tree (what export writes and import reads),
// and a tree as text or JSON for people. The content always comes from each form's own XMLgetDat.
#pragma once

#include "core/qbFormular.h"
#include "core/qbFormularListe.h"
#include "qballg/CQBXMLdata.h"

#include <nlohmann/json.hpp>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace qbtool {

// The node of one form from its class's own XMLgetDat (its full content, unlike the list's XMLgetDat).
CQBXMLdata formularKnoten(const qbFormular& form);

// For a form whose class keeps all its own fields out of XML (its field table carries no keys, so its
// XMLgetDat gives the header alone: GS004, AU523): its own fields as stored, one entry per row of its table
// under the row's name, a person as a node of its own, for people. Null for every other form.
std::unique_ptr<CQBXMLdata> gespeicherteFelder(const qbFormular& form);

// The application as one tree, shaped like the list's own XMLgetDat: a "qbFormularListe" node with the
// list's "Version" and a collection node with the attribute "Liste" that holds the forms at the given
// positions (from 0), each as its full node. The list's XMLputDat reads it back.
CQBXMLdata anwendungsBaum(const qbFormularListe& liste, const std::vector<unsigned>& positionen);

// A value for people: texts quoted, Flags as ja, nein, nicht beantwortet, dates as dd.mm.yyyy.
std::string wertText(const QBvar& wert);

// The entries of a node, one line each, with nested nodes indented under their type.
void druckeKnoten(std::ostream& aus, const CQBXMLdata& knoten, const std::string& einzug);

// The entries of a node as a JSON object: a key per entry name (nested nodes under their type; a name
// that occurs more than once gets an array of its values), Flags as in wertText, texts in UTF-8.
nlohmann::ordered_json knotenJson(const CQBXMLdata& knoten);

// The header of a form and its node as JSON, as show and demo write it.
nlohmann::ordered_json formularJson(const qbFormular& form, unsigned position);

} // namespace qbtool

namespace qbtool {

// A JSON document as text, indented, with a line break at the end; bytes that are no UTF-8 (a file name
// can hold them) become U+FFFD.
std::string jsonText(const nlohmann::ordered_json& json);

// The forms at the given positions as one JSON document: the file, the list's Version and the forms.
nlohmann::ordered_json anwendungJson(const std::string& pfad, const qbFormularListe& liste,
                                     const std::vector<unsigned>& positionen);

} // namespace qbtool
