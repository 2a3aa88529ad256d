#include "qballg/CQBXMLdata.h"

#include "qballg/cp1252.h"

#include <pugixml.hpp>

#include <bit>
#include <charconv>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdint>
#include <cstring>
#include <limits>
#include <utility>

// ---------------------------------------------------------------------------------------------------------
// The tree

CQBXMLdata::CQBXMLdata(const RWCString& name) : name_(name) {}
CQBXMLdata::CQBXMLdata(const RWCString& name, const RWCString& value) : name_(name), value_(value) {}
CQBXMLdata::CQBXMLdata(const RWCString& name, const char* value) : name_(name), value_(RWCString(value)) {}
CQBXMLdata::CQBXMLdata(const RWCString& name, unsigned char value) : name_(name), value_(value) {}
CQBXMLdata::CQBXMLdata(const RWCString& name, int value) : name_(name), value_(value) {}
CQBXMLdata::CQBXMLdata(const RWCString& name, long value) : name_(name), value_(value) {}
CQBXMLdata::CQBXMLdata(const RWCString& name, double value) : name_(name), value_(value) {}
CQBXMLdata::CQBXMLdata(const RWCString& name, bool value) : name_(name), value_(value) {}
CQBXMLdata::CQBXMLdata(const RWCString& name, const RWDate& value) : name_(name), value_(value) {}

CQBXMLdata::CQBXMLdata(const CQBXMLdata& other)
    : name_(other.name_), typ_(other.typ_), attribute_(other.attribute_), value_(other.value_),
      added_(other.added_) {
    entries_.reserve(other.entries_.size());
    for (const auto& entry : other.entries_)
        entries_.push_back(std::make_unique<CQBXMLdata>(*entry));
}

// The entries move with their node; a table handed out by List() stays with its node and follows the
// entries that node now has.
CQBXMLdata::CQBXMLdata(CQBXMLdata&& other) noexcept
    : name_(std::move(other.name_)), typ_(std::move(other.typ_)), attribute_(std::move(other.attribute_)),
      value_(std::move(other.value_)), added_(other.added_), entries_(std::move(other.entries_)) {
    other.entries_.clear();
    other.rebuildTable();
}

CQBXMLdata& CQBXMLdata::operator=(CQBXMLdata&& other) {
    if (this == &other) return *this;
    name_ = std::move(other.name_);
    typ_ = std::move(other.typ_);
    attribute_ = std::move(other.attribute_);
    value_ = std::move(other.value_);
    added_ = other.added_;
    entries_ = std::move(other.entries_);
    other.entries_.clear();
    rebuildTable();
    other.rebuildTable();
    return *this;
}

CQBXMLdata& CQBXMLdata::operator=(const CQBXMLdata& other) {
    if (this != &other) *this = CQBXMLdata(other);
    return *this;
}

CQBXMLdata::~CQBXMLdata() = default;

void CQBXMLdata::rebuildTable() {
    if (!table_) return;
    table_->clear();
    for (const auto& entry : entries_)
        table_->insert(entry.get());
}

void CQBXMLdata::append(std::unique_ptr<CQBXMLdata> entry) {
    // Room first, so that the table never holds an entry the list lacks.
    entries_.reserve(entries_.size() + 1);
    if (table_) table_->insert(entry.get());
    entries_.push_back(std::move(entry));
}

void CQBXMLdata::clear(const RWCString& typ) {
    RWCString newTyp(typ); // typ may live in one of the entries about to go
    entries_.clear();
    rebuildTable();
    value_ = QBvar();
    attribute_ = RWCString();
    typ_ = std::move(newTyp);
}

CQBXMLdata& CQBXMLdata::List(CQBXMLdata& entry) { return List(static_cast<const CQBXMLdata&>(entry)); }

CQBXMLdata& CQBXMLdata::List(const CQBXMLdata& entry) {
    append(std::make_unique<CQBXMLdata>(entry));
    return *this;
}

void CQBXMLdata::add(CQBXMLdata& other) { add(static_cast<const CQBXMLdata&>(other)); }

void CQBXMLdata::add(const CQBXMLdata& other) {
    auto copy = std::make_unique<CQBXMLdata>(other); // first: other may be this node
    copy->added_ = true;
    append(std::move(copy));
}

CQBXMLdata& CQBXMLdata::List(CQBXMLdata&& entry) {
    if (&entry == this) return List(static_cast<const CQBXMLdata&>(entry)); // a node into itself: a copy
    append(std::make_unique<CQBXMLdata>(std::move(entry)));
    return *this;
}

void CQBXMLdata::add(CQBXMLdata&& other) {
    if (&other == this) return add(static_cast<const CQBXMLdata&>(other));
    auto taken = std::make_unique<CQBXMLdata>(std::move(other));
    taken->added_ = true;
    append(std::move(taken));
}

RWTPtrHashTable<CQBXMLdata>* CQBXMLdata::List() {
    if (!table_) {
        table_ = std::make_unique<RWTPtrHashTable<CQBXMLdata>>(&CQBXMLdata::hashName);
        rebuildTable();
    }
    return table_.get();
}

CQBXMLdata* CQBXMLdata::GetChildren(const RWCString& attribute) {
    return const_cast<CQBXMLdata*>(static_cast<const CQBXMLdata*>(this)->GetChildren(attribute));
}

const CQBXMLdata* CQBXMLdata::GetChildren(const RWCString& attribute) const {
    if (attribute.isNull()) return nullptr;
    for (const auto& entry : entries_)
        if (entry->attribute_ == attribute) return entry.get();
    return nullptr;
}

CQBXMLdata* CQBXMLdata::entryAt(size_t index) {
    return index < entries_.size() ? entries_[index].get() : nullptr;
}

const CQBXMLdata* CQBXMLdata::entryAt(size_t index) const {
    return index < entries_.size() ? entries_[index].get() : nullptr;
}

bool CQBXMLdata::sameTree(const CQBXMLdata& other) const {
    if (name_ != other.name_ || typ_ != other.typ_ || attribute_ != other.attribute_ ||
        added_ != other.added_ || !value_.identical(other.value_) || entries_.size() != other.entries_.size())
        return false;
    for (size_t i = 0; i < entries_.size(); ++i)
        if (!entries_[i]->sameTree(*other.entries_[i])) return false;
    return true;
}

bool operator==(const CQBXMLdata& a, const CQBXMLdata& b) { return a.Name() == b.Name(); }

// ---------------------------------------------------------------------------------------------------------
// Typed reads: what a value of each kind may be read into (see the table in the header).

namespace {

const long kExactInDouble = 1L << 53;

bool readValue(const QBvar& v, RWCString& out) {
    if (const RWCString* text = v.ifText()) {
        out = *text;
        return true;
    }
    return false;
}

bool readValue(const QBvar& v, long& out) {
    if (const unsigned char* flag = v.ifFlag())
        out = *flag;
    else if (const int* i = v.ifInt())
        out = *i;
    else if (const long* l = v.ifLong())
        out = *l;
    else
        return false;
    return true;
}

template <class Integer>
bool readNarrowed(const QBvar& v, Integer& out) {
    long wide = 0;
    if (!readValue(v, wide)) return false;
    if (wide < std::numeric_limits<Integer>::min() || wide > std::numeric_limits<Integer>::max())
        return false;
    out = static_cast<Integer>(wide);
    return true;
}

bool readValue(const QBvar& v, unsigned char& out) { return readNarrowed(v, out); }
bool readValue(const QBvar& v, int& out) { return readNarrowed(v, out); }

bool readValue(const QBvar& v, double& out) {
    if (const double* d = v.ifDouble()) {
        out = *d;
        return true;
    }
    long wide = 0;
    if (!readValue(v, wide) || wide < -kExactInDouble || wide > kExactInDouble) return false;
    out = static_cast<double>(wide);
    return true;
}

bool readValue(const QBvar& v, bool& out) {
    if (const bool* b = v.ifBool()) {
        out = *b;
        return true;
    }
    return false;
}

bool readValue(const QBvar& v, RWDate& out) {
    if (const RWDate* d = v.ifDate()) {
        out = *d;
        return true;
    }
    return false;
}

} // namespace

template <class T>
bool CQBXMLdata::readEntry(const RWCString& key, T& out) const {
    for (const auto& entry : entries_)
        if (entry->name_ == key && readValue(entry->value_, out)) return true;
    for (const auto& entry : entries_)
        if (entry->added_ && entry->readEntry(key, out)) return true;
    return false;
}

const QBvar* CQBXMLdata::findValue(const RWCString& key) const {
    for (const auto& entry : entries_)
        if (entry->name_ == key && !entry->value_.isEmpty()) return &entry->value_;
    for (const auto& entry : entries_)
        if (entry->added_)
            if (const QBvar* v = entry->findValue(key)) return v;
    return nullptr;
}

bool CQBXMLdata::Listvalue(const RWCString& key, RWCString& out) const { return readEntry(key, out); }
bool CQBXMLdata::Listvalue(const RWCString& key, unsigned char& out) const { return readEntry(key, out); }
bool CQBXMLdata::Listvalue(const RWCString& key, int& out) const { return readEntry(key, out); }
bool CQBXMLdata::Listvalue(const RWCString& key, long& out) const { return readEntry(key, out); }
bool CQBXMLdata::Listvalue(const RWCString& key, double& out) const { return readEntry(key, out); }
bool CQBXMLdata::Listvalue(const RWCString& key, bool& out) const { return readEntry(key, out); }
bool CQBXMLdata::Listvalue(const RWCString& key, RWDate& out) const { return readEntry(key, out); }

QBvar CQBXMLdata::Listvalue(const RWCString& key) const {
    const QBvar* v = findValue(key);
    return v ? *v : QBvar();
}

// ---------------------------------------------------------------------------------------------------------
// XML text

namespace {

const char kElement[] = "node";
const int kMaxDepth = 256;

const char* const kTypeNames[] = {"", "text", "flag", "int", "long", "double", "bool", "date"};

// Bytes XML 1.0 cannot carry, not even as a character reference.
bool needsHex(const RWCString& text) {
    for (char c : text.std()) {
        const auto b = static_cast<unsigned char>(c);
        if (b < 0x20 && b != '\t' && b != '\n' && b != '\r') return true;
    }
    return false;
}

std::string toHex(const std::string& bytes) {
    static const char digits[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(bytes.size() * 2);
    for (char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        out += digits[b >> 4];
        out += digits[b & 0xF];
    }
    return out;
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

bool fromHex(std::string_view hex, std::string& out) {
    if (hex.size() % 2) return false;
    std::string bytes;
    bytes.reserve(hex.size() / 2);
    for (size_t i = 0; i < hex.size(); i += 2) {
        const int high = hexDigit(hex[i]);
        const int low = hexDigit(hex[i + 1]);
        if (high < 0 || low < 0) return false;
        bytes += static_cast<char>(high * 16 + low);
    }
    out.swap(bytes);
    return true;
}

uint64_t bitsOf(double d) { return std::bit_cast<uint64_t>(d); }

std::string formatDouble(double d) {
    if (std::isnan(d)) {
        if (bitsOf(d) == bitsOf(std::numeric_limits<double>::quiet_NaN())) return "nan";
        std::string out = "nan:";
        for (int shift = 60; shift >= 0; shift -= 4)
            out += "0123456789ABCDEF"[(bitsOf(d) >> shift) & 0xF];
        return out;
    }
    char buf[64];
    const auto result = std::to_chars(buf, buf + sizeof buf, d);
    return std::string(buf, result.ptr);
}

template <class Number>
bool parseNumber(std::string_view text, Number& out) {
    Number value{};
    const auto [stop, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec != std::errc() || stop != text.data() + text.size() || text.empty()) return false;
    out = value;
    return true;
}

bool parseDouble(std::string_view text, double& out) {
    if (text == "nan") {
        out = std::numeric_limits<double>::quiet_NaN();
        return true;
    }
    if (text.starts_with("nan:")) {
        const std::string_view digits = text.substr(4);
        if (digits.size() != 16) return false;
        uint64_t bits = 0;
        for (char c : digits) {
            const int digit = hexDigit(c);
            if (digit < 0) return false;
            bits = bits << 4 | static_cast<uint64_t>(digit);
        }
        const double d = std::bit_cast<double>(bits);
        if (!std::isnan(d)) return false;
        out = d;
        return true;
    }
    double value = 0;
    // Every other NaN spelling is refused: the writer gives NaNs only in the two forms above.
    if (!parseNumber(text, value) || std::isnan(value)) return false;
    out = value;
    return true;
}

bool isAscii(const RWCString& text) {
    for (char c : text.std())
        if (static_cast<unsigned char>(c) >= 0x80) return false;
    return true;
}

void putText(pugi::xml_node element, const char* key, const RWCString& text, bool evenIfEmpty) {
    if (text.isNull() && !evenIfEmpty) return;
    if (needsHex(text))
        element.append_attribute((std::string(key) + "-hex").c_str()).set_value(toHex(text.std()).c_str());
    else if (isAscii(text)) // the same bytes in UTF-8: no converted copy
        element.append_attribute(key).set_value(text.data());
    else
        element.append_attribute(key).set_value(cp1252ToUtf8(text).c_str());
}

std::string valueText(const QBvar& v) {
    switch (v.kind()) {
    case QBvar::flag:
        return std::to_string(*v.ifFlag());
    case QBvar::intValue:
        return std::to_string(*v.ifInt());
    case QBvar::longValue:
        return std::to_string(*v.ifLong());
    case QBvar::doubleValue:
        return formatDouble(*v.ifDouble());
    case QBvar::boolValue:
        return *v.ifBool() ? "true" : "false";
    case QBvar::date:
        return std::to_string(v.ifDate()->julian());
    default:
        return std::string();
    }
}

struct StringWriter : pugi::xml_writer {
    std::string text;
    void write(const void* data, size_t size) override { text.append(static_cast<const char*>(data), size); }
};

} // namespace

// Builds the element of one node; nodes are written in the order of their entries.
static void writeElement(pugi::xml_node element, const CQBXMLdata& node) {
    putText(element, "name", node.Name(), false);
    putText(element, "typ", node.Typ(), false);
    putText(element, "attribute", node.Attribute(), false);
    if (node.isAdded()) element.append_attribute("added").set_value("true");
    const QBvar& v = node.value();
    if (!v.isEmpty()) {
        element.append_attribute("type").set_value(kTypeNames[v.kind()]);
        if (v.kind() == QBvar::text)
            putText(element, "value", *v.ifText(), true);
        else
            element.append_attribute("value").set_value(valueText(v).c_str());
    }
    for (size_t i = 0; i < node.entryCount(); ++i)
        writeElement(element.append_child(kElement), *node.entryAt(i));
}

std::string CQBXMLdata::asXMLUtf8() const {
    pugi::xml_document document;
    pugi::xml_node declaration = document.append_child(pugi::node_declaration);
    declaration.append_attribute("version").set_value("1.0");
    declaration.append_attribute("encoding").set_value("UTF-8");
    writeElement(document.append_child(kElement), *this);
    StringWriter writer;
    document.save(writer, "  ", pugi::format_indent, pugi::encoding_utf8);
    return std::move(writer.text);
}

RWCString CQBXMLdata::asXML() const { return RWCString(asXMLUtf8()); }

// Reads a document into a fresh tree. pugixml parses the structure only: entities, character references
// and attribute normalisation are done here, so that nothing is dropped or altered unnoticed (pugixml
// would end a value at "&#0;" and keep "&unknown;" as it stands).
class CQBXMLdataReader {
public:
    explicit CQBXMLdataReader(std::string* error) : error_(error) {}

    bool read(std::string_view xml, CQBXMLdata& out) {
        if (!checkCharacters(xml)) return false;
        pugi::xml_document document;
        const unsigned options = pugi::parse_fragment | pugi::parse_declaration | pugi::parse_cdata |
                                 pugi::parse_pi | pugi::parse_comments;
        const pugi::xml_parse_result result =
            document.load_buffer(xml.data(), xml.size(), options, pugi::encoding_utf8);
        if (!result)
            return fail("malformed XML at byte offset " + std::to_string(result.offset) + ": " +
                        result.description());
        pugi::xml_node root;
        bool first = true;
        for (pugi::xml_node child : document.children()) {
            switch (child.type()) {
            case pugi::node_declaration:
                if (!first) return fail(at(child) + "XML declaration after the start of the document");
                if (!checkDeclaration(child)) return false;
                break;
            case pugi::node_element:
                if (root) return fail(at(child) + "a second root element");
                root = child;
                break;
            case pugi::node_pcdata:
                if (!isWhitespace(child.value())) return fail(at(child) + "text outside the root element");
                break;
            case pugi::node_comment:
            case pugi::node_pi:
                break;
            default:
                return fail(at(child) + "unexpected content outside the root element");
            }
            first = false;
        }
        if (!root) return fail("no root element");
        return readElement(root, 1, out);
    }

private:
    bool fail(const std::string& message) {
        if (error_) *error_ = message;
        return false;
    }

    static std::string at(pugi::xml_node node) {
        const ptrdiff_t offset = node.offset_debug();
        // pugixml gives the offset of the name; the markup starts one byte earlier.
        if (offset <= 0) return std::string();
        std::string what =
            node.type() == pugi::node_element ? "<" + std::string(node.name()) + ">" : "content";
        return what + " at byte offset " + std::to_string(offset - 1) + ": ";
    }

    static bool isWhitespace(const char* text) {
        for (; *text; ++text)
            if (*text != ' ' && *text != '\t' && *text != '\n' && *text != '\r') return false;
        return true;
    }

    static bool isXmlChar(char32_t cp) {
        return cp == 0x9 || cp == 0xA || cp == 0xD || (cp >= 0x20 && cp <= 0xD7FF) ||
               (cp >= 0xE000 && cp <= 0xFFFD) || (cp >= 0x10000 && cp <= 0x10FFFF);
    }

    // The whole document is UTF-8 and holds only characters XML allows; a NUL byte never reaches
    // pugixml, which would take it for the end.
    bool checkCharacters(std::string_view xml) {
        size_t pos = 0;
        while (pos < xml.size()) {
            const size_t start = pos;
            char32_t cp = 0;
            std::string problem;
            if (!nextUtf8CodePoint(xml, pos, cp, &problem))
                return fail("malformed UTF-8 at byte offset " + std::to_string(start) + ": " + problem);
            if (!isXmlChar(cp)) {
                char name[16];
                std::snprintf(name, sizeof name, "U+%04X", static_cast<unsigned>(cp));
                return fail(std::string("character ") + name + " at byte offset " + std::to_string(start) +
                            " is not allowed in XML");
            }
        }
        return true;
    }

    bool checkDeclaration(pugi::xml_node declaration) {
        const pugi::xml_attribute encoding = declaration.attribute("encoding");
        if (!encoding) return true;
        std::string name = encoding.value();
        for (char& c : name)
            c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        if (name != "UTF-8" && name != "UTF8")
            return fail("the document declares the encoding \"" + std::string(encoding.value()) +
                        "\"; only UTF-8 is read");
        return true;
    }

    // An attribute value as XML defines it: references resolved, literal tabs and line breaks as blanks.
    static bool decodeAttribute(std::string_view raw, std::string& out, std::string& problem) {
        std::string value;
        value.reserve(raw.size());
        for (size_t i = 0; i < raw.size(); ++i) {
            const char c = raw[i];
            if (c == '<') {
                problem = "'<' in an attribute value";
                return false;
            }
            if (c == '\t' || c == '\n') {
                value += ' ';
            } else if (c == '\r') {
                value += ' ';
                if (i + 1 < raw.size() && raw[i + 1] == '\n') ++i;
            } else if (c == '&') {
                const size_t end = raw.find(';', i);
                if (end == std::string_view::npos || end - i > 12) {
                    problem = "'&' that starts no reference";
                    return false;
                }
                const std::string_view reference = raw.substr(i + 1, end - i - 1);
                if (!appendReference(reference, value)) {
                    problem = "unknown or invalid reference &" + std::string(reference) + ";";
                    return false;
                }
                i = end;
            } else {
                value += c;
            }
        }
        out.swap(value);
        return true;
    }

    static bool appendReference(std::string_view reference, std::string& out) {
        static const std::pair<const char*, char> named[] = {
            {"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''}};
        for (const auto& [name, c] : named)
            if (reference == name) {
                out += c;
                return true;
            }
        if (reference.size() < 2 || reference[0] != '#') return false;
        std::string_view digits = reference.substr(1);
        int base = 10;
        if (digits[0] == 'x') {
            base = 16;
            digits.remove_prefix(1);
        }
        uint32_t cp = 0;
        const auto [stop, ec] = std::from_chars(digits.data(), digits.data() + digits.size(), cp, base);
        if (digits.empty() || ec != std::errc() || stop != digits.data() + digits.size() || !isXmlChar(cp))
            return false;
        // Back to UTF-8, checked with the rest of the value later.
        appendUtf8(out, cp);
        return true;
    }

    // One of name, typ, attribute, value: plain or in hex.
    struct TextAttribute {
        const char* key;
        pugi::xml_attribute plain;
        pugi::xml_attribute hex;
    };

    // The Windows-1252 text of a name, typ, attribute or text value.
    bool readText(pugi::xml_node element, const TextAttribute& a, RWCString& out) {
        const pugi::xml_attribute source = a.plain ? a.plain : a.hex;
        if (!source) return true;
        std::string decoded;
        std::string problem;
        if (!decodeAttribute(source.value(), decoded, problem))
            return fail(at(element) + "attribute " + source.name() + ": " + problem);
        if (a.hex) {
            std::string bytes;
            if (!fromHex(decoded, bytes))
                return fail(at(element) + "attribute " + source.name() + " holds no pairs of hex digits");
            out = RWCString(std::move(bytes));
            return true;
        }
        std::string text;
        if (!utf8ToCp1252(decoded, text, &problem))
            return fail(at(element) + "attribute " + source.name() +
                        " (offsets within the value): " + problem);
        out = RWCString(std::move(text));
        return true;
    }

    bool readValue(pugi::xml_node element, const std::string& type, const TextAttribute& value, QBvar& out) {
        if (type == "text") {
            RWCString text;
            if (!readText(element, value, text)) return false;
            out = QBvar(text);
            return true;
        }
        if (value.hex) return fail(at(element) + "value-hex is for texts only");
        std::string decoded;
        std::string problem;
        if (!decodeAttribute(value.plain.value(), decoded, problem))
            return fail(at(element) + "attribute value: " + problem);
        bool ok = false;
        if (type == "flag") {
            unsigned n = 0;
            ok = parseNumber(decoded, n) && n <= 255;
            if (ok) out = QBvar(static_cast<unsigned char>(n));
        } else if (type == "int") {
            int n = 0;
            ok = parseNumber(decoded, n);
            if (ok) out = QBvar(n);
        } else if (type == "long") {
            long n = 0;
            ok = parseNumber(decoded, n);
            if (ok) out = QBvar(n);
        } else if (type == "double") {
            double d = 0;
            ok = parseDouble(decoded, d);
            if (ok) out = QBvar(d);
        } else if (type == "bool") {
            ok = decoded == "true" || decoded == "false";
            if (ok) out = QBvar(decoded == "true");
        } else if (type == "date") {
            unsigned long day = 0;
            ok = parseNumber(decoded, day);
            if (ok) out = QBvar(RWDate::fromJulian(day));
        } else {
            return fail(at(element) + "unknown type \"" + type + "\"");
        }
        if (!ok) return fail(at(element) + "\"" + decoded + "\" is no " + type + " value");
        return true;
    }

    bool readElement(pugi::xml_node element, int depth, CQBXMLdata& out) {
        if (std::strcmp(element.name(), kElement) != 0)
            return fail(at(element) + "unknown element; only <node> is read");
        if (depth > kMaxDepth)
            return fail(at(element) + "nodes nested deeper than " + std::to_string(kMaxDepth) + " levels");

        TextAttribute texts[] = {{"name", {}, {}}, {"typ", {}, {}}, {"attribute", {}, {}}, {"value", {}, {}}};
        pugi::xml_attribute type, added;
        for (pugi::xml_attribute a : element.attributes()) {
            const std::string_view key = a.name();
            bool known = false;
            if (key == "added") {
                if (added) return fail(at(element) + "attribute added given twice");
                if (std::strcmp(a.value(), "true") != 0) return fail(at(element) + "added is not \"true\"");
                added = a;
                known = true;
            }
            if (key == "type") {
                if (type) return fail(at(element) + "attribute type given twice");
                type = a;
                known = true;
            }
            for (TextAttribute& t : texts) {
                const bool isHex =
                    key.size() == std::strlen(t.key) + 4 && key.starts_with(t.key) && key.ends_with("-hex");
                if (key != t.key && !isHex) continue;
                if (t.plain || t.hex) return fail(at(element) + "attribute " + t.key + " given twice");
                (isHex ? t.hex : t.plain) = a;
                known = true;
            }
            if (!known) return fail(at(element) + "unknown attribute " + std::string(key));
        }

        RWCString name, typ, attribute;
        if (!readText(element, texts[0], name) || !readText(element, texts[1], typ) ||
            !readText(element, texts[2], attribute))
            return false;
        CQBXMLdata node(name);
        node.typ_ = typ;
        node.attribute_ = attribute;
        node.added_ = bool(added);
        const TextAttribute& value = texts[3];
        const bool hasValue = value.plain || value.hex;
        if (type && !hasValue) return fail(at(element) + "type without value");
        if (!type && hasValue) return fail(at(element) + "value without type");
        if (type) {
            std::string typeName;
            std::string problem;
            if (!decodeAttribute(type.value(), typeName, problem))
                return fail(at(element) + "attribute type: " + problem);
            if (!readValue(element, typeName, value, node.value_)) return false;
        }

        for (pugi::xml_node child : element.children()) {
            switch (child.type()) {
            case pugi::node_element: {
                auto entry = std::make_unique<CQBXMLdata>(RWCString());
                if (!readElement(child, depth + 1, *entry)) return false;
                node.append(std::move(entry));
                break;
            }
            case pugi::node_pcdata:
                if (!isWhitespace(child.value()))
                    return fail(at(element) + "text content; values go in attributes");
                break;
            case pugi::node_comment:
            case pugi::node_pi:
                break;
            default:
                return fail(at(element) + "unexpected content (CDATA, declaration)");
            }
        }
        out = std::move(node);
        return true;
    }

    std::string* error_;
};

bool CQBXMLdata::fromXMLUtf8(std::string_view xml, std::string* error) {
    CQBXMLdata read{RWCString()};
    if (!CQBXMLdataReader(error).read(xml, read)) return false;
    *this = std::move(read);
    return true;
}

bool CQBXMLdata::fromXML(const RWCString& xml, std::string* error) {
    return fromXMLUtf8(std::string_view(xml.std()), error);
}
