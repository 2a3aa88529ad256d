// CQBXMLdata: a node of the XML data tree through which forms exchange their fields. A node has a name,
// a type name (Typ), an attribute by which its parent finds it (GetChildren), an optional typed value
// and an ordered list of entries, which are nodes it owns. A leaf is a node with a name and a value.
//
// add() takes another node in whole, as one entry marked as taken in: a form's header node goes into the
// form's node this way, and the health declarations that nest qbFormularAllgGesu's node put two levels of
// it there. Typed reads (Listvalue) look among the direct entries for the first one with the key as name
// whose value can be read into the target without loss, and only when none fits, depth first into the
// entries taken in by add(), so that a key of the node itself hides one of the same name taken in:
//   RWCString      <- text
//   unsigned char  <- flag; int or long in 0..255
//   int            <- flag, int; long within the range of int
//   long           <- flag, int, long
//   double         <- double, flag, int; long up to 2^53 in size (exact in a double)
//   bool           <- bool
//   RWDate         <- date
// Text is never read as a number nor a number as text; QBvar does such conversions for those who want
// them.
//
// XML text (asXML, fromXML), UTF-8, one root element for the node:
//   <?xml version="1.0" encoding="UTF-8"?>
//   <node name="..." typ="..." attribute="..." type="..." value="...">  child <node> elements  </node>
// name, typ and attribute are left out when empty; added="true" marks a node taken in by add(); type and
// value appear together when the node holds a value. type is one of text, flag, int, long, double, bool,
// date, and value is written as
//   text    the text, converted from Windows-1252 to UTF-8
//   flag    decimal 0..255
//   int     decimal, long decimal
//   double  the shortest decimal that reads back to the same bits (std::to_chars): "0.1", "-0", "1e+300",
//           "inf", "-inf"; the default quiet NaN is "nan", any other NaN "nan:" and the 16 hex digits of its
//           bit pattern
//   bool    true or false
//   date    the Julian day number in decimal (0 is the invalid date)
// A name, typ, attribute or text that holds a control character XML cannot carry (a byte below 0x20
// other than tab, line feed and carriage return) goes as name-hex, typ-hex, attribute-hex or value-hex
// instead: two upper-case hex digits per Windows-1252 byte. Tab, line feed and carriage return are
// written as character references, so attribute normalisation leaves them alone.
//
// fromXML accepts exactly this: anything else (malformed XML, another element or attribute, an
// attribute given twice, text content, an unknown type, a value that is no number of its kind, a
// character without a Windows-1252 form, nesting deeper than 256 levels) is refused with the node
// unchanged. Comments, processing instructions and the declaration (encoding UTF-8 if it names one) are
// allowed. Literal tabs and line breaks in attribute values are normalised to blanks, as XML wants.
#pragma once

#include "qballg/QBvar.h"
#include "rw/cstring.h"
#include "rw/rwdate.h"
#include "rw/tphasht.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class CQBXMLdata {
public:
    explicit CQBXMLdata(const RWCString& name);
    CQBXMLdata(const RWCString& name, const RWCString& value);
    CQBXMLdata(const RWCString& name, const char* value); // a literal is text, not bool
    CQBXMLdata(const RWCString& name, unsigned char value);
    CQBXMLdata(const RWCString& name, int value);
    CQBXMLdata(const RWCString& name, long value);
    CQBXMLdata(const RWCString& name, double value);
    CQBXMLdata(const RWCString& name, bool value);
    CQBXMLdata(const RWCString& name, const RWDate& value);
    // A char would silently become an int: store it as unsigned char (flag), int or text on purpose.
    CQBXMLdata(const RWCString& name, char value) = delete;

    CQBXMLdata(const CQBXMLdata& other);
    CQBXMLdata(CQBXMLdata&& other) noexcept;
    CQBXMLdata& operator=(const CQBXMLdata& other);
    CQBXMLdata& operator=(CQBXMLdata&& other); // may rebuild the table of List()
    ~CQBXMLdata();

    // Empties the node (entries, value, attribute) and sets its type name; the name stays.
    void clear(const RWCString& typ);
    const RWCString& Typ() const { return typ_; }
    void Typ(const RWCString& typ) { typ_ = typ; }
    const RWCString& Name() const { return name_; }
    const RWCString& Attribute() const { return attribute_; }
    void Attribute(const RWCString& attribute) { attribute_ = attribute; }

    // Appends a copy of entry and returns this node.
    CQBXMLdata& List(CQBXMLdata& entry);
    CQBXMLdata& List(const CQBXMLdata& entry);
    // Appends a copy of other as one entry taken in, whose keys Listvalue on this node finds.
    void add(CQBXMLdata& other);
    void add(const CQBXMLdata& other);
    // The same with the entry's content moved instead of copied (an addition of this platform): a tree
    // built from temporaries and locals is not copied node by node. The moved node is left empty.
    CQBXMLdata& List(CQBXMLdata&& entry);
    void add(CQBXMLdata&& other);
    // Whether this node was taken into its parent by add().
    bool isAdded() const { return added_; }

    // True and out set when an entry fits (see the table above); otherwise false and out untouched.
    bool Listvalue(const RWCString& key, RWCString& out) const;
    bool Listvalue(const RWCString& key, unsigned char& out) const;
    bool Listvalue(const RWCString& key, int& out) const;
    bool Listvalue(const RWCString& key, long& out) const;
    bool Listvalue(const RWCString& key, double& out) const;
    bool Listvalue(const RWCString& key, bool& out) const;
    bool Listvalue(const RWCString& key, RWDate& out) const;
    // The value of the first entry with this name that holds one; empty when there is none.
    QBvar Listvalue(const RWCString& key) const;

    // The entries in a hash table on their names, for iteration; the table does not own them and stays
    // valid, and in step with the entries, as long as the node lives. Entries of the same name come in
    // the order they were added.
    RWTPtrHashTable<CQBXMLdata>* List();

    // The first direct entry whose attribute is this one; null when none is, and for the empty attribute.
    CQBXMLdata* GetChildren(const RWCString& attribute);
    const CQBXMLdata* GetChildren(const RWCString& attribute) const;

    // The node's own value (empty for a node made without one) and its entries in order.
    const QBvar& value() const { return value_; }
    size_t entryCount() const { return entries_.size(); }
    CQBXMLdata* entryAt(size_t index);             // null beyond the end
    const CQBXMLdata* entryAt(size_t index) const; // null beyond the end
    // Name, type name, attribute, value (doubles by their bits) and all entries in order are equal.
    bool sameTree(const CQBXMLdata& other) const;

    // The XML document of this node (see above). asXML hands the UTF-8 bytes back in an RWCString.
    RWCString asXML() const;
    std::string asXMLUtf8() const;
    // Replaces this node by the document's root node. On any problem returns false, leaves the node as it
    // was and, if error is given, says what is wrong and, where known, at which byte offset.
    bool fromXML(const RWCString& xml, std::string* error = nullptr);
    bool fromXMLUtf8(std::string_view xml, std::string* error = nullptr);

    // The hash function of the entry table.
    static unsigned hashName(const CQBXMLdata& node) { return node.name_.hash(); }

private:
    friend class CQBXMLdataReader;

    template <class T>
    bool readEntry(const RWCString& key, T& out) const;
    const QBvar* findValue(const RWCString& key) const;
    void append(std::unique_ptr<CQBXMLdata> entry);
    void rebuildTable();

    RWCString name_;
    RWCString typ_;
    RWCString attribute_;
    QBvar value_;
    bool added_ = false;
    std::vector<std::unique_ptr<CQBXMLdata>> entries_;
    // Built on the first call of List() and kept in step from then on.
    std::unique_ptr<RWTPtrHashTable<CQBXMLdata>> table_;
};

// Equal names: the key of the entry table. sameTree compares the whole node.
bool operator==(const CQBXMLdata& a, const CQBXMLdata& b);
