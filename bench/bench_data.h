// The data every benchmark works on, and plain-struct mirrors of the same records for the peer codecs.
//
// One qbFormularL145 with every field filled, and an application of 50 forms of every form class there
// is. A mirror holds the fields of one record in stream order: the header, the common health answers
// where the class has them, the class's own fields. Its members come from the same field lists the
// forms are declared with (QB_FELDER_...), so a mirror cannot drift from its form.
#pragma once

#include "qbformul.h"

#include <cstdint>
#include <functional>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

namespace bench {

// The member type of each field type of the field lists. Date and Person do not occur in the classes
// that travel in the application; a list that gains one fails to compile here.
#define BENCH_TYP_Text std::string
#define BENCH_TYP_TextKopie std::string
#define BENCH_TYP_TextWert std::string
#define BENCH_TYP_Flag std::uint8_t
#define BENCH_TYP_Char std::int8_t
#define BENCH_TYP_Bool std::uint8_t
#define BENCH_TYP_Int std::int32_t
#define BENCH_TYP_IntKonstRef std::int32_t
#define BENCH_TYP_Enum std::int32_t
#define BENCH_TYP_Long std::int32_t
#define BENCH_TYP_Double double

#define BENCH_MITGLIED(Typ, Name, ...) BENCH_TYP_##Typ Name{};
#define BENCH_BESUCHE(Typ, Name, ...) f(m.Name);

// A part of a record: a struct of the fields of one list, and besucheFelder, which hands each member to
// f in stream order (const or not, as the part is).
// clang-format off
#define BENCH_TEIL(Teil, Felder)                                                                             \
    struct Teil {                                                                                            \
        Felder(BENCH_MITGLIED)                                                                               \
        bool operator==(const Teil&) const = default;                                                        \
    };                                                                                                       \
    template <class M, class F>                                                                              \
        requires std::is_same_v<std::remove_const_t<M>, Teil>                                                \
    void besucheFelder([[maybe_unused]] M& m, [[maybe_unused]] F&& f) {                                      \
        Felder(BENCH_BESUCHE)                                                                                \
    }
// clang-format on

// The header of every form, in the order qbFormular writes it.
#define BENCH_FELDER_Kopf(FELD)                                                                              \
    FELD(Text, Version)                                                                                      \
    FELD(Text, DruckstueckNummer)                                                                            \
    FELD(Text, DruckstueckName)                                                                              \
    FELD(Int, Seitenanzahl)                                                                                  \
    FELD(Text, PersonenKennung)
#define BENCH_FELDER_Keine(FELD)

BENCH_TEIL(Kopf, BENCH_FELDER_Kopf)
BENCH_TEIL(KeineBasis, BENCH_FELDER_Keine)
BENCH_TEIL(Gesu, QB_FELDER_qbFormularAllgGesu)
BENCH_TEIL(L144Felder, QB_FELDER_qbFormularL144)
BENCH_TEIL(L145Felder, QB_FELDER_qbFormularL145)
BENCH_TEIL(L146Felder, QB_FELDER_qbFormularL146)
BENCH_TEIL(L147Felder, QB_FELDER_qbFormularL147)
BENCH_TEIL(L440Felder, QB_FELDER_qbFormularL440)

// One record of a form class: its class id and its three parts.
template <class Basis, class Eigene, std::uint16_t Id>
struct Datensatz {
    static constexpr std::uint16_t klassenId = Id;
    Kopf kopf;
    Basis basis;
    Eigene eigene;
    bool operator==(const Datensatz&) const = default;
};

// clang-format off
template <class D, class F>
    requires requires { std::remove_const_t<D>::klassenId; }
void besucheFelder(D& d, F&& f) {
    // clang-format on
    besucheFelder(d.kopf, f);
    besucheFelder(d.basis, f);
    besucheFelder(d.eigene, f);
}

using L144 = Datensatz<Gesu, L144Felder, qbId_qbFormularL144>;
using L145 = Datensatz<Gesu, L145Felder, qbId_qbFormularL145>;
using L146 = Datensatz<Gesu, L146Felder, qbId_qbFormularL146>;
using L147 = Datensatz<Gesu, L147Felder, qbId_qbFormularL147>;
using L440 = Datensatz<KeineBasis, L440Felder, qbId_qbFormularL440>;

// A form of any class of the application.
using Formular = std::variant<L144, L145, L146, L147, L440>;

// An application as the peers store it: the list's version and its forms in order.
struct Antrag {
    std::string Version;
    std::vector<Formular> formulare;
    bool operator==(const Antrag&) const = default;
};

// The forms' side.
constexpr int kFormulareImAntrag = 50;
// The injury declaration, every field filled with a realistic short answer.
const qbFormularL145& verletzung();
// An application of 50 forms: health declarations of all four classes for both insured persons and the
// applicant, and a combat-sports declaration per person.
qbFormularListe& antrag();

// The same records as mirrors. A form of a class without a mirror is refused with an exception.
L145 alsDatensatz(const qbFormularL145& form);
Formular alsDatensatz(const qbFormular& form);
Antrag alsDatensatz(const qbFormularListe& liste);

// The work of one iteration of each benchmark, by the benchmark's name, so that a profiler can run one of
// them without the benchmark loop around it: qbformul_bench --profile=NAME --units=N runs it N times
// inside profiliere and exits.
void merkeArbeit(const std::string& name, int saetze, std::function<void()> arbeit);
// Prints the records per unit to stderr; false for an unknown name.
bool profiliere(const std::string& name, long einheiten);

} // namespace bench
