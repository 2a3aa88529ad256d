// The fixture writer of legacy records: a record of any old layout, value by value, written the way the
// forms of that time wrote it, onto an RWFile or a virtual stream. Tests restore forms from it.
//
//     auto satz = AltSatz::kopf("09.2001", "L145", "Erklaerung", 2, "VP1")  // no Seitenanzahl before 11.2001
//                     .text("Hergang").flag(1).ganz(-1);
//     qbFormularL145 form = satz.lies<qbFormularL145>(Strom::Datei);
#pragma once

#include "rw/bstream.h"
#include "rw/cstring.h"
#include "rw/pstream.h"
#include "rw/rwdate.h"
#include "rw/rwfile.h"

#include "test_util.h"

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace qbtest {

enum class Strom { Datei, Binaer, Portabel };
inline const char* name(Strom s) {
    return s == Strom::Datei ? "RWFile" : s == Strom::Binaer ? "RWbostream" : "RWpostream";
}
inline void PrintTo(Strom s, std::ostream* os) { *os << name(s); }

class AltSatz {
public:
    enum class Art { Text, Flag, Char, Int, Long, Double, Date };
    struct Wert {
        Art art;
        std::string text;
        long zahl;
        double gleit;
    };

    // The header as a record of that version holds it: Seitenanzahl only from key 200111 on.
    static AltSatz kopf(const std::string& version, const std::string& nummer, const std::string& name,
                        int seiten, const std::string& person) {
        AltSatz s;
        s.text(version).text(nummer).text(name);
        RWCString v(version.c_str());
        if (atoi(RWCString(v(3, 4)) + RWCString(v(0, 2))) >= 200111) s.ganz(seiten);
        return s.text(person);
    }

    AltSatz& text(const std::string& v) { return add({Art::Text, v, 0, 0}); }
    AltSatz& flag(unsigned char v) { return add({Art::Flag, {}, v, 0}); }
    AltSatz& zeichen(char v) { return add({Art::Char, {}, v, 0}); }
    AltSatz& ganz(int v) { return add({Art::Int, {}, v, 0}); }
    AltSatz& lang(long v) { return add({Art::Long, {}, v, 0}); }
    AltSatz& zahl(double v) { return add({Art::Double, {}, 0, v}); }
    // A date as its day number (RWFile: 4 bytes unsigned).
    AltSatz& datum(unsigned long julian) { return add({Art::Date, {}, static_cast<long>(julian), 0}); }
    // n empty texts, n unanswered flags
    AltSatz& texte(int n, const std::string& v = "") {
        for (int i = 0; i < n; ++i)
            text(v);
        return *this;
    }
    AltSatz& flags(int n, unsigned char v = 0xff) {
        for (int i = 0; i < n; ++i)
            flag(v);
        return *this;
    }
    AltSatz& dazu(const AltSatz& mehr) {
        werte_.insert(werte_.end(), mehr.werte_.begin(), mehr.werte_.end());
        return *this;
    }
    const std::vector<Wert>& werte() const { return werte_; }

    void schreibe(RWFile& f) const {
        for (const Wert& w : werte_)
            switch (w.art) {
            case Art::Text:
                RWCString(w.text.data(), w.text.size()).saveOn(f);
                break;
            case Art::Flag:
                f.Write(static_cast<unsigned char>(w.zahl));
                break;
            case Art::Char:
                f.Write(static_cast<char>(w.zahl));
                break;
            case Art::Int:
                f.Write(static_cast<int>(w.zahl));
                break;
            case Art::Long:
                f.Write(w.zahl);
                break;
            case Art::Double:
                f.Write(w.gleit);
                break;
            case Art::Date:
                RWDate::fromJulian(static_cast<unsigned long>(w.zahl)).saveOn(f);
                break;
            }
    }
    void schreibe(RWvostream& s) const {
        for (const Wert& w : werte_)
            switch (w.art) {
            case Art::Text:
                RWCString(w.text.data(), w.text.size()).saveOn(s);
                break;
            case Art::Flag:
                s << static_cast<unsigned char>(w.zahl);
                break;
            case Art::Char:
                s << static_cast<char>(w.zahl);
                break;
            case Art::Int:
                s << static_cast<int>(w.zahl);
                break;
            case Art::Long:
                s << w.zahl;
                break;
            case Art::Double:
                s << w.gleit;
                break;
            case Art::Date:
                RWDate::fromJulian(static_cast<unsigned long>(w.zahl)).saveOn(s);
                break;
            }
    }
    // The RWFile bytes of the record.
    Bytes bytes() const {
        TempFile tmp("altsatz");
        {
            RWFile f(tmp.path(), "wb");
            schreibe(f);
        }
        return readBytes(tmp.path());
    }

    // Restores a form of class F from this record through restoreGuts on the given kind of stream, and
    // tells whether the reader ended exactly at the record's end.
    template <class F>
    F lies(Strom art, bool* genauAmEnde = nullptr) const {
        F form;
        liesIn(form, art, genauAmEnde);
        return form;
    }
    template <class F>
    void liesIn(F& form, Strom art, bool* genauAmEnde = nullptr) const {
        // a sentinel behind the record shows where the reader stopped
        const int kEnde = 0x7A7A7A7A;
        if (art == Strom::Datei) {
            TempFile tmp("altsatz");
            {
                RWFile f(tmp.path(), "wb");
                schreibe(f);
                f.Write(kEnde);
            }
            RWFile f(tmp.path(), "rb");
            form.restoreGuts(f);
            int ende = 0;
            bool ok = f.Read(ende) && ende == kEnde;
            if (genauAmEnde) *genauAmEnde = ok;
            return;
        }
        std::stringstream io;
        if (art == Strom::Binaer) {
            RWbostream o(io);
            schreibe(o);
            o << kEnde;
            RWbistream i(io);
            form.restoreGuts(i);
            int ende = 0;
            i >> ende;
            if (genauAmEnde) *genauAmEnde = i.good() && ende == kEnde;
        } else {
            RWpostream o(io);
            schreibe(o);
            o << kEnde;
            RWpistream i(io);
            form.restoreGuts(i);
            int ende = 0;
            i >> ende;
            if (genauAmEnde) *genauAmEnde = i.good() && ende == kEnde;
        }
    }

private:
    AltSatz& add(Wert w) {
        werte_.push_back(std::move(w));
        return *this;
    }
    std::vector<Wert> werte_;
};

} // namespace qbtest
