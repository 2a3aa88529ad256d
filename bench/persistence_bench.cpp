// Save and restore of the same records side by side: the library's RWFile (a file on disk in /tmp and one
// on the memory-backed /dev/shm), its binary and portable virtual streams, Boost's binary archive,
// cereal's binary archive, a hand-written little-endian codec into a byte vector (the reference: the
// least work that writes these fields), and memcpy of the same bytes.
//
// Two workloads: batches of the one injury declaration (each record its own save, as `f << form`
// makes it, restored into a fresh object), and the application of 50 forms as one list. Before the
// first measurement every codec's output is read back and compared with the original, and the hand
// codec's bytes with the file's: the figures are only printed for codecs that carry the same data.
#include "bench_data.h"

#include <benchmark/benchmark.h>
#include <boost/archive/binary_iarchive.hpp>
#include <boost/archive/binary_oarchive.hpp>
#include <boost/serialization/split_free.hpp>
#include <boost/serialization/string.hpp>
#include <cereal/archives/binary.hpp>
#include <cereal/types/string.hpp>
#include <cereal/types/variant.hpp>
#include <cereal/types/vector.hpp>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <istream>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <string_view>
#include <utility>
#include <unistd.h>
#include <vector>

// ---- Boost: plain records, no class information and no object tracking (its fastest settings)

namespace boost::serialization {

template <class Ar, class B, class E, std::uint16_t Id>
void serialize(Ar& ar, bench::Datensatz<B, E, Id>& d, const unsigned int) {
    // clang-format off
    bench::besucheFelder(d, [&ar](auto& v) { ar & v; });
    // clang-format on
}

// Boost 1.74 has no std::variant support: each form goes as its class id and its record.
template <class Ar>
void save(Ar& ar, const bench::Antrag& a, const unsigned int) {
    ar << a.Version;
    const std::uint32_t n = static_cast<std::uint32_t>(a.formulare.size());
    ar << n;
    for (const bench::Formular& f : a.formulare)
        std::visit(
            [&ar](const auto& d) {
                const std::uint16_t id = d.klassenId;
                ar << id << d;
            },
            f);
}

template <class D, class Ar>
bool ladeAlternative(Ar& ar, std::uint16_t id, std::vector<bench::Formular>& formulare) {
    if (id != D::klassenId) return false;
    ar >> std::get<D>(formulare.emplace_back(std::in_place_type<D>));
    return true;
}

template <class Ar>
void load(Ar& ar, bench::Antrag& a, const unsigned int) {
    ar >> a.Version;
    std::uint32_t n = 0;
    ar >> n;
    a.formulare.clear();
    for (std::uint32_t i = 0; i < n; ++i) {
        std::uint16_t id = 0;
        ar >> id;
        if (!(ladeAlternative<bench::L144>(ar, id, a.formulare) ||
              ladeAlternative<bench::L145>(ar, id, a.formulare) ||
              ladeAlternative<bench::L146>(ar, id, a.formulare) ||
              ladeAlternative<bench::L147>(ar, id, a.formulare) ||
              ladeAlternative<bench::L440>(ar, id, a.formulare)))
            throw std::runtime_error("Boost: unknown class id");
    }
}

} // namespace boost::serialization

BOOST_SERIALIZATION_SPLIT_FREE(bench::Antrag)
#define BENCH_BOOST_SCHLICHT(T)                                                                              \
    BOOST_CLASS_IMPLEMENTATION(T, boost::serialization::object_serializable)                                 \
    BOOST_CLASS_TRACKING(T, boost::serialization::track_never)
BENCH_BOOST_SCHLICHT(bench::L144)
BENCH_BOOST_SCHLICHT(bench::L145)
BENCH_BOOST_SCHLICHT(bench::L146)
BENCH_BOOST_SCHLICHT(bench::L147)
BENCH_BOOST_SCHLICHT(bench::L440)
BENCH_BOOST_SCHLICHT(bench::Antrag)

namespace bench {

// ---- cereal (found by argument-dependent lookup)

template <class Ar, class B, class E, std::uint16_t Id>
void serialize(Ar& ar, Datensatz<B, E, Id>& d) {
    besucheFelder(d, [&ar](auto& v) { ar(v); });
}

template <class Ar>
void serialize(Ar& ar, Antrag& a) {
    ar(a.Version, a.formulare);
}

namespace {

constexpr int kStapel = 64; // records per iteration of the record benchmarks
constexpr unsigned kBoostFlags = boost::archive::no_header | boost::archive::no_codecvt;

// ---- Byte buffers under the stream codecs (ours, Boost, cereal): storage is kept between iterations,
// so that a save measures the codec and not the allocator.

class SchreibPuffer : public std::streambuf {
public:
    SchreibPuffer() : daten_(1 << 16) { zuruecksetzen(); }
    void zuruecksetzen() { setp(daten_.data(), daten_.data() + daten_.size()); }
    std::vector<char> inhalt() const { return std::vector<char>(pbase(), pptr()); }

protected:
    int_type overflow(int_type c) override {
        wachse(1);
        if (!traits_type::eq_int_type(c, traits_type::eof())) {
            *pptr() = traits_type::to_char_type(c);
            pbump(1);
        }
        return traits_type::not_eof(c);
    }
    std::streamsize xsputn(const char* s, std::streamsize n) override {
        if (epptr() - pptr() < n) wachse(static_cast<size_t>(n));
        std::memcpy(pptr(), s, static_cast<size_t>(n));
        pbump(static_cast<int>(n));
        return n;
    }

private:
    void wachse(size_t mindestens) {
        const size_t belegt = static_cast<size_t>(pptr() - pbase());
        daten_.resize(std::max(daten_.size() * 2, belegt + mindestens));
        setp(daten_.data(), daten_.data() + daten_.size());
        pbump(static_cast<int>(belegt));
    }
    std::vector<char> daten_;
};

class LesePuffer : public std::streambuf {
public:
    void quelle(std::vector<char> daten) {
        daten_ = std::move(daten);
        zuruecksetzen();
    }
    void zuruecksetzen() { setg(daten_.data(), daten_.data(), daten_.data() + daten_.size()); }
    size_t groesse() const { return daten_.size(); }

protected:
    std::streamsize xsgetn(char* s, std::streamsize n) override {
        n = std::min<std::streamsize>(n, egptr() - gptr());
        std::memcpy(s, gptr(), static_cast<size_t>(n));
        gbump(static_cast<int>(n));
        return n;
    }

private:
    std::vector<char> daten_;
};

// ---- The hand-written codec: little-endian with explicit widths, the bytes RWFile writes.

constexpr std::uint32_t kMagie = 0x8888;
constexpr std::uint16_t kListenId = 0x8010;

// Counts the bytes a record takes, so that the vector grows once per record.
struct LeZaehler {
    size_t n = 0;
    void operator()(std::uint8_t) { n += 1; }
    void operator()(std::int8_t) { n += 1; }
    void operator()(std::uint16_t) { n += 2; }
    void operator()(std::uint32_t) { n += 4; }
    void operator()(std::int32_t) { n += 4; }
    void operator()(double) { n += 8; }
    void operator()(const std::string& s) { n += 4 + s.size(); }
};

// Stores the fields through a plain pointer into room made before.
class LeSchreiber {
public:
    explicit LeSchreiber(unsigned char* p) : p_(p) {}
    void operator()(std::uint8_t v) { *p_++ = v; }
    void operator()(std::int8_t v) { *p_++ = static_cast<unsigned char>(v); }
    void operator()(std::uint16_t v) {
        p_[0] = static_cast<unsigned char>(v);
        p_[1] = static_cast<unsigned char>(v >> 8);
        p_ += 2;
    }
    void operator()(std::uint32_t v) {
        p_[0] = static_cast<unsigned char>(v);
        p_[1] = static_cast<unsigned char>(v >> 8);
        p_[2] = static_cast<unsigned char>(v >> 16);
        p_[3] = static_cast<unsigned char>(v >> 24);
        p_ += 4;
    }
    void operator()(std::int32_t v) { (*this)(static_cast<std::uint32_t>(v)); }
    void operator()(double v) {
        std::uint64_t bits;
        std::memcpy(&bits, &v, sizeof bits);
        (*this)(static_cast<std::uint32_t>(bits));
        (*this)(static_cast<std::uint32_t>(bits >> 32));
    }
    void operator()(const std::string& s) {
        (*this)(static_cast<std::uint32_t>(s.size()));
        std::memcpy(p_, s.data(), s.size());
        p_ += s.size();
    }

private:
    unsigned char* p_;
};

// Appends what schreibe writes: counted first, then stored.
template <class Schreibe>
void kodiere(std::vector<unsigned char>& aus, Schreibe&& schreibe) {
    LeZaehler zaehler;
    schreibe(zaehler);
    const size_t bei = aus.size();
    aus.resize(bei + zaehler.n);
    LeSchreiber w(aus.data() + bei);
    schreibe(w);
}

// Every read is checked against the end; a failed read leaves its target alone and fails the rest.
class LeLeser {
public:
    LeLeser(const unsigned char* p, size_t n) : p_(p), ende_(p + n) {}
    bool gut() const { return gut_; }
    void operator()(std::uint8_t& v) {
        if (const unsigned char* p = nimm(1)) v = p[0];
    }
    void operator()(std::int8_t& v) {
        if (const unsigned char* p = nimm(1)) v = static_cast<std::int8_t>(p[0]);
    }
    void operator()(std::uint16_t& v) {
        if (const unsigned char* p = nimm(2)) v = static_cast<std::uint16_t>(p[0] | p[1] << 8);
    }
    void operator()(std::uint32_t& v) {
        if (const unsigned char* p = nimm(4))
            v = static_cast<std::uint32_t>(p[0]) | static_cast<std::uint32_t>(p[1]) << 8 |
                static_cast<std::uint32_t>(p[2]) << 16 | static_cast<std::uint32_t>(p[3]) << 24;
    }
    void operator()(std::int32_t& v) {
        std::uint32_t u = static_cast<std::uint32_t>(v);
        (*this)(u);
        v = static_cast<std::int32_t>(u);
    }
    void operator()(double& v) {
        std::uint32_t lo = 0, hi = 0;
        (*this)(lo);
        (*this)(hi);
        if (!gut_) return;
        const std::uint64_t bits = static_cast<std::uint64_t>(hi) << 32 | lo;
        std::memcpy(&v, &bits, sizeof v);
    }
    void operator()(std::string& s) {
        std::uint32_t n = 0;
        (*this)(n);
        if (const unsigned char* p = gut_ ? nimm(n) : nullptr) s.assign(reinterpret_cast<const char*>(p), n);
    }

private:
    const unsigned char* nimm(size_t n) {
        if (!gut_ || static_cast<size_t>(ende_ - p_) < n) {
            gut_ = false;
            return nullptr;
        }
        const unsigned char* p = p_;
        p_ += n;
        return p;
    }
    const unsigned char* p_;
    const unsigned char* ende_;
    bool gut_ = true;
};

// A collectable saved on its own: the magic of the outer save, the class id, the record.
template <class W, class D>
void schreibeSatz(W& w, const D& d) {
    w(kMagie);
    w(D::klassenId);
    besucheFelder(d, w);
}

template <class D>
bool leseSatz(LeLeser& r, D& d) {
    std::uint32_t magie = 0;
    std::uint16_t id = 0;
    r(magie);
    r(id);
    if (!r.gut() || magie != kMagie || id != D::klassenId) return false;
    besucheFelder(d, r);
    return r.gut();
}

// The list: ':', its Version, the collection's class id and count, each form's class id and record.
template <class W>
void schreibeAntrag(W& w, const Antrag& a) {
    w(static_cast<std::uint8_t>(':'));
    w(a.Version);
    w(kListenId);
    w(static_cast<std::uint32_t>(a.formulare.size()));
    for (const Formular& f : a.formulare)
        std::visit(
            [&w](const auto& d) {
                w(d.klassenId);
                besucheFelder(d, w);
            },
            f);
}

template <class D>
bool leseAlternative(LeLeser& r, std::uint16_t id, std::vector<Formular>& formulare) {
    if (id != D::klassenId) return false;
    besucheFelder(std::get<D>(formulare.emplace_back(std::in_place_type<D>)), r);
    return true;
}

// The count is not trusted for allocation: forms are appended as they arrive.
bool leseAntrag(LeLeser& r, Antrag& a) {
    std::uint8_t marke = 0;
    std::uint16_t listenId = 0;
    std::uint32_t n = 0;
    r(marke);
    r(a.Version);
    r(listenId);
    r(n);
    if (!r.gut() || marke != ':' || listenId != kListenId) return false;
    for (std::uint32_t i = 0; i < n && r.gut(); ++i) {
        std::uint16_t id = 0;
        r(id);
        if (!r.gut()) return false;
        if (!(leseAlternative<L144>(r, id, a.formulare) || leseAlternative<L145>(r, id, a.formulare) ||
              leseAlternative<L146>(r, id, a.formulare) || leseAlternative<L147>(r, id, a.formulare) ||
              leseAlternative<L440>(r, id, a.formulare)))
            return false;
    }
    return r.gut();
}

// ---- Codecs. Each saves one unit of work into its sink (a batch of records, or one application) and
// restores it into fresh objects, handing each restored object to a callback: the benchmark's callback
// only keeps it alive for the optimizer, the check's compares it with the original. speichere and lade
// stay out of line (one call per unit of work), so that a profile finds each codec's work by name.

std::string dateiName(const char* ordner, const char* wozu) {
    static int laufend = 0;
    return std::string(ordner) + "/qbformul_bench_" + std::to_string(::getpid()) + "_" +
           std::to_string(laufend++) + "_" + wozu + ".qbf";
}

std::vector<unsigned char> dateiInhalt(const std::string& name) {
    std::vector<unsigned char> bytes;
    if (std::FILE* f = std::fopen(name.c_str(), "rb")) {
        unsigned char puffer[4096];
        size_t n;
        while ((n = std::fread(puffer, 1, sizeof puffer, f)) > 0)
            bytes.insert(bytes.end(), puffer, puffer + n);
        std::fclose(f);
    }
    return bytes;
}

// The unit of work of the two workloads, on the library's side and on the mirror's.
struct Satzweise {
    static constexpr int saetze = kStapel;
    using Original = qbFormularL145;
    using Spiegel = L145;
    static const Original& original() { return verletzung(); }
    static const Spiegel& spiegel() {
        static const Spiegel s = alsDatensatz(verletzung());
        return s;
    }
    template <class Senke>
    static void speichere(Senke& s) {
        for (int i = 0; i < saetze; ++i)
            s << static_cast<const RWCollectable&>(original());
    }
    // Each record into a fresh object from the factory, as `f >> p` restores it.
    template <class Quelle, class Pruefer>
    static void lade(Quelle& q, Pruefer& pruefe) {
        for (int i = 0; i < saetze; ++i) {
            RWCollectable* p = nullptr;
            q >> p;
            std::unique_ptr<RWCollectable> besitz(p);
            if (!p || p->isA() != qbFormularL145::classIsA())
                throw std::runtime_error("restore gave no L145");
            pruefe(*static_cast<const qbFormularL145*>(p));
        }
    }
    template <class Pruefer>
    static void pruefeSpiegel(const qbFormularL145& f, Pruefer& pruefe) {
        pruefe(alsDatensatz(f));
    }
};

struct Antragsweise {
    static constexpr int saetze = kFormulareImAntrag;
    using Original = qbFormularListe;
    using Spiegel = Antrag;
    static const Original& original() { return antrag(); }
    static const Spiegel& spiegel() {
        static const Spiegel s = alsDatensatz(antrag());
        return s;
    }
    template <class Senke>
    static void speichere(Senke& s) {
        s << original();
    }
    // Into a fresh list.
    template <class Quelle, class Pruefer>
    static void lade(Quelle& q, Pruefer& pruefe) {
        qbFormularListe neu;
        q >> neu;
        pruefe(neu);
    }
    template <class Pruefer>
    static void pruefeSpiegel(const qbFormularListe& l, Pruefer& pruefe) {
        pruefe(alsDatensatz(l));
    }
};

// The hand codec. Its restore decodes into fresh mirrors.
template <class Weise>
class HandCodec {
public:
    [[gnu::noinline]] void speichere() {
        aus_.clear();
        if constexpr (std::is_same_v<Weise, Satzweise>)
            for (int i = 0; i < Weise::saetze; ++i)
                kodiere(aus_, [](auto& w) { schreibeSatz(w, Weise::spiegel()); });
        else
            kodiere(aus_, [](auto& w) { schreibeAntrag(w, Weise::spiegel()); });
    }
    template <class Pruefer>
    [[gnu::noinline]] void lade(Pruefer&& pruefe) {
        LeLeser r(aus_.data(), aus_.size());
        if constexpr (std::is_same_v<Weise, Satzweise>) {
            for (int i = 0; i < Weise::saetze; ++i) {
                L145 d;
                if (!leseSatz(r, d)) throw std::runtime_error("hand codec: bad record");
                pruefe(d);
            }
        } else {
            Antrag a;
            if (!leseAntrag(r, a)) throw std::runtime_error("hand codec: bad application");
            pruefe(a);
        }
    }
    size_t bytes() const { return aus_.size(); }
    const std::vector<unsigned char>& ausgabe() const { return aus_; }

private:
    std::vector<unsigned char> aus_;
};

// memcpy of the hand codec's bytes, one copy per unit of work: the floor under any codec of these bytes.
template <class Weise>
class MemcpyCodec {
public:
    explicit MemcpyCodec(const std::vector<unsigned char>& bytes)
        : quelle_(bytes), ziel_(bytes.size()), zurueck_(bytes.size()) {}
    [[gnu::noinline]] void speichere() {
        std::memcpy(ziel_.data(), quelle_.data(), quelle_.size());
        benchmark::ClobberMemory();
    }
    template <class Pruefer>
    [[gnu::noinline]] void lade(Pruefer&& pruefe) {
        std::memcpy(zurueck_.data(), ziel_.data(), ziel_.size());
        benchmark::ClobberMemory();
        pruefe(zurueck_);
    }
    size_t bytes() const { return quelle_.size(); }

private:
    std::vector<unsigned char> quelle_, ziel_, zurueck_;
};

// RWFile: the save rewrites its file from the start and flushes, so each unit reaches the file; the
// restore reads its own file, written once before, from the start.
template <class Weise>
class RWFileCodec {
public:
    RWFileCodec(const char* ordner)
        : schreibName_(dateiName(ordner, "schreiben")), leseName_(dateiName(ordner, "lesen")),
          schreib_(schreibName_.c_str(), "wb") {
        {
            RWFile f(leseName_.c_str(), "wb");
            Weise::speichere(f);
        }
        lese_ = std::make_unique<RWFile>(leseName_.c_str(), "rb");
        if (!schreib_.isValid() || !lese_->isValid()) throw std::runtime_error("cannot open " + schreibName_);
    }
    ~RWFileCodec() {
        lese_.reset();
        std::remove(schreibName_.c_str());
        std::remove(leseName_.c_str());
    }
    [[gnu::noinline]] void speichere() {
        schreib_.SeekToBegin();
        Weise::speichere(schreib_);
        schreib_.Flush();
    }
    template <class Pruefer>
    [[gnu::noinline]] void lade(Pruefer&& pruefe) {
        lese_->SeekToBegin();
        Weise::lade(*lese_, pruefe);
    }
    size_t bytes() const { return dateiInhalt(leseName_).size(); }
    std::vector<unsigned char> ausgabe() {
        schreib_.Flush();
        return dateiInhalt(schreibName_);
    }

private:
    std::string schreibName_, leseName_;
    RWFile schreib_;
    std::unique_ptr<RWFile> lese_;
};

// The virtual streams (binary or portable) over the shared buffers.
template <class Weise, class OStrom, class IStrom>
class StromCodec {
public:
    StromCodec() {
        speichere();
        lese_.quelle(schreib_.inhalt());
    }
    [[gnu::noinline]] void speichere() {
        schreib_.zuruecksetzen();
        OStrom s(&schreib_);
        Weise::speichere(s);
    }
    template <class Pruefer>
    [[gnu::noinline]] void lade(Pruefer&& pruefe) {
        lese_.zuruecksetzen();
        IStrom s(&lese_);
        Weise::lade(s, pruefe);
    }
    size_t bytes() const { return lese_.groesse(); }

private:
    SchreibPuffer schreib_;
    LesePuffer lese_;
};

// Boost's binary archive: one archive per unit of work, on the same buffers.
template <class Weise>
class BoostCodec {
public:
    BoostCodec() {
        speichere();
        lese_.quelle(schreib_.inhalt());
    }
    [[gnu::noinline]] void speichere() {
        schreib_.zuruecksetzen();
        boost::archive::binary_oarchive ar(schreib_, kBoostFlags);
        for (int i = 0; i < (std::is_same_v<Weise, Satzweise> ? Weise::saetze : 1); ++i)
            ar << Weise::spiegel();
    }
    template <class Pruefer>
    [[gnu::noinline]] void lade(Pruefer&& pruefe) {
        lese_.zuruecksetzen();
        boost::archive::binary_iarchive ar(lese_, kBoostFlags);
        for (int i = 0; i < (std::is_same_v<Weise, Satzweise> ? Weise::saetze : 1); ++i) {
            typename Weise::Spiegel d;
            ar >> d;
            pruefe(d);
        }
    }
    size_t bytes() const { return lese_.groesse(); }

private:
    SchreibPuffer schreib_;
    LesePuffer lese_;
};

// cereal's binary archive: one archive per unit of work; it wants std::streams, kept between units.
template <class Weise>
class CerealCodec {
public:
    CerealCodec() : aus_(&schreib_), ein_(&lese_) {
        speichere();
        lese_.quelle(schreib_.inhalt());
    }
    [[gnu::noinline]] void speichere() {
        schreib_.zuruecksetzen();
        cereal::BinaryOutputArchive ar(aus_);
        for (int i = 0; i < (std::is_same_v<Weise, Satzweise> ? Weise::saetze : 1); ++i)
            ar(Weise::spiegel());
    }
    template <class Pruefer>
    [[gnu::noinline]] void lade(Pruefer&& pruefe) {
        lese_.zuruecksetzen();
        ein_.clear();
        cereal::BinaryInputArchive ar(ein_);
        for (int i = 0; i < (std::is_same_v<Weise, Satzweise> ? Weise::saetze : 1); ++i) {
            typename Weise::Spiegel d;
            ar(d);
            pruefe(d);
        }
    }
    size_t bytes() const { return lese_.groesse(); }

private:
    SchreibPuffer schreib_;
    LesePuffer lese_;
    std::ostream aus_;
    std::istream ein_;
};

// ---- Checks and registration

// Restores once and compares every object with the original; a codec that fails stops the program.
template <class Weise, class Codec>
void pruefeCodec(const std::string& name, Codec& codec) {
    codec.speichere();
    int gesehen = 0;
    bool gleich = true;
    auto vergleiche = [&](const auto& x) {
        using X = std::decay_t<decltype(x)>;
        if constexpr (std::is_same_v<X, typename Weise::Spiegel>) {
            gleich = gleich && x == Weise::spiegel();
        } else if constexpr (std::is_same_v<X, std::vector<unsigned char>>) {
            // memcpy: the copy must decode to the original
            LeLeser r(x.data(), x.size());
            if constexpr (std::is_same_v<Weise, Satzweise>) {
                for (int i = 0; i < kStapel; ++i) {
                    L145 d;
                    gleich = gleich && leseSatz(r, d) && d == Weise::spiegel();
                }
            } else {
                Antrag a;
                gleich = gleich && leseAntrag(r, a) && a == Weise::spiegel();
            }
        } else {
            auto alsSpiegel = [&](const auto& s) { gleich = gleich && s == Weise::spiegel(); };
            Weise::pruefeSpiegel(x, alsSpiegel);
        }
        ++gesehen;
    };
    codec.lade(vergleiche);
    const int erwartet = std::is_same_v<Weise, Satzweise> ? kStapel : 1;
    const bool memcpy = std::is_same_v<Codec, MemcpyCodec<Weise>>;
    if (!gleich || gesehen != (memcpy ? 1 : erwartet))
        throw std::runtime_error(name + ": the restored data differ from the original");
}

// The least disturbed of the repetitions: the machine is shared, and interference only ever adds time.
double kleinster(const std::vector<double>& werte) { return *std::min_element(werte.begin(), werte.end()); }

template <class Codec>
void registriere(const std::string& name, Codec& codec, int saetze) {
    auto zaehle = [&codec, saetze](benchmark::State& state) {
        state.counters["records"] = saetze;
        state.counters["bytes_per_record"] = static_cast<double>(codec.bytes()) / saetze;
        state.SetItemsProcessed(state.iterations() * saetze);
        state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(codec.bytes()));
    };
    const auto teile = name.find('/');
    const std::string gruppe = name.substr(0, teile), art = name.substr(teile + 1);
    auto speichere = [&codec] { codec.speichere(); };
    auto lade = [&codec] { codec.lade([](const auto& x) { benchmark::DoNotOptimize(&x); }); };
    for (auto [operation, arbeit] :
         {std::pair<const char*, std::function<void()>>{"save", speichere}, {"restore", lade}}) {
        const std::string voll = gruppe + "/" + operation + "/" + art;
        merkeArbeit(voll, saetze, arbeit);
        benchmark::RegisterBenchmark(voll.c_str(), [arbeit, zaehle](benchmark::State& state) {
            for ([[maybe_unused]] auto _ : state)
                arbeit();
            zaehle(state);
        })->ComputeStatistics("min", kleinster);
    }
}

// All codecs of one workload, checked and registered; they live as long as the program.
template <class Weise>
struct Wettbewerb {
    HandCodec<Weise> hand;
    std::unique_ptr<MemcpyCodec<Weise>> kopie;
    RWFileCodec<Weise> tmp{"/tmp"};
    RWFileCodec<Weise> shm{"/dev/shm"};
    StromCodec<Weise, RWbostream, RWbistream> bstream;
    StromCodec<Weise, RWpostream, RWpistream> pstream;
    BoostCodec<Weise> boost;
    CerealCodec<Weise> cereal;

    explicit Wettbewerb(const std::string& gruppe) {
        hand.speichere();
        kopie = std::make_unique<MemcpyCodec<Weise>>(hand.ausgabe());
        // The hand codec is a reference only if it writes what the library writes.
        tmp.speichere();
        const std::vector<unsigned char> datei = tmp.ausgabe(), eigene = hand.ausgabe();
        if (datei != eigene) {
            const size_t bei = static_cast<size_t>(
                std::mismatch(datei.begin(), datei.end(), eigene.begin(), eigene.end()).first -
                datei.begin());
            throw std::runtime_error(gruppe + ": the hand codec's bytes differ from RWFile's at byte " +
                                     std::to_string(bei) + " (" + std::to_string(eigene.size()) + " and " +
                                     std::to_string(datei.size()) + " bytes)");
        }
        pruefeCodec<Weise>(gruppe + "/hand_codec", hand);
        pruefeCodec<Weise>(gruppe + "/memcpy", *kopie);
        pruefeCodec<Weise>(gruppe + "/rwfile_tmp", tmp);
        pruefeCodec<Weise>(gruppe + "/rwfile_shm", shm);
        pruefeCodec<Weise>(gruppe + "/bstream", bstream);
        pruefeCodec<Weise>(gruppe + "/pstream", pstream);
        pruefeCodec<Weise>(gruppe + "/boost_binary", boost);
        pruefeCodec<Weise>(gruppe + "/cereal_binary", cereal);
        const int n = Weise::saetze;
        registriere(gruppe + "/hand_codec", hand, n);
        registriere(gruppe + "/memcpy", *kopie, n);
        registriere(gruppe + "/rwfile_tmp", tmp, n);
        registriere(gruppe + "/rwfile_shm", shm, n);
        registriere(gruppe + "/bstream", bstream, n);
        registriere(gruppe + "/pstream", pstream, n);
        registriere(gruppe + "/boost_binary", boost, n);
        registriere(gruppe + "/cereal_binary", cereal, n);
    }
};

} // namespace
} // namespace bench

// --profile=NAME and --units=N: see bench::profiliere.
std::string eigeneOption(int& argc, char** argv, const char* name) {
    const std::string vorsatz = std::string("--") + name + "=";
    for (int i = 1; i < argc; ++i) {
        if (std::string_view(argv[i]).substr(0, vorsatz.size()) != vorsatz) continue;
        std::string wert = argv[i] + vorsatz.size();
        for (int j = i; j < argc; ++j)
            argv[j] = argv[j + 1];
        --argc;
        return wert;
    }
    return std::string();
}

int main(int argc, char** argv) {
    const std::string profil = eigeneOption(argc, argv, "profile");
    const std::string einheiten = eigeneOption(argc, argv, "units");
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::AddCustomContext("compiler", "GCC " __VERSION__);
    benchmark::AddCustomContext("qbformul_build_type", QBFORMUL_BENCH_BUILD_TYPE);
#ifdef __OPTIMIZE__
    benchmark::AddCustomContext("optimized", "yes");
#else
    benchmark::AddCustomContext("optimized", "no");
#endif
    benchmark::AddCustomContext("records_per_batch", std::to_string(bench::kStapel));
    // Registered benchmarks refer to the codecs: they live until the end of main.
    std::unique_ptr<bench::Wettbewerb<bench::Satzweise>> satz;
    std::unique_ptr<bench::Wettbewerb<bench::Antragsweise>> antrag;
    try {
        satz = std::make_unique<bench::Wettbewerb<bench::Satzweise>>("L145");
        antrag = std::make_unique<bench::Wettbewerb<bench::Antragsweise>>("Antrag50");
    } catch (const std::exception& e) {
        std::fprintf(stderr, "qbformul_bench: %s\n", e.what());
        return 1;
    }
    if (!profil.empty()) {
        if (bench::profiliere(profil, einheiten.empty() ? 100 : std::stol(einheiten))) return 0;
        std::fprintf(stderr, "qbformul_bench: no benchmark %s\n", profil.c_str());
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
