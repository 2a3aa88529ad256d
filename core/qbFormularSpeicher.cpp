// Memory of form objects.
//
// Restoring record after record deletes one form and creates the next of the same class, and reading a
// list again deletes and creates dozens. Most forms take more than 1 KB, and glibc's malloc answers every
// request of that size by first merging all small blocks freed since (its fast bins) - here the texts of
// the forms just deleted - and then searches its bins: together as costly as reading the record. So the
// blocks of deleted forms wait in a cache for the next forms of their size: compartments by size, a few
// places each, every place taken and filled by one atomic operation - safe between threads, nothing to
// clean up per thread, and at most kFaecher * kPlaetze blocks held (for today's classes some 100 kB).
#include "core/qbFormular.h"
#include "core/qbSanitizer.h"

#include <atomic>
#include <cstddef>
#include <new>

namespace {

#if QB_MIT_ADDRESS_SANITIZER
constexpr bool kZwischenspeicher = false; // the sanitizer must see every form freed
#else
constexpr bool kZwischenspeicher = true;
#endif

// Sizes share a compartment only when they differ by a multiple of 1 kB.
constexpr std::size_t kFaecher = 64;
constexpr std::size_t kPlaetze = 16;
using Fach = std::atomic<void*>[kPlaetze];

// Constant-initialised and trivially destructible: usable before and after the statics of this library.
Fach faecher[kFaecher];
std::atomic<bool> geschlossen{false};

Fach& fachFuer(std::size_t n) { return faecher[(n / alignof(std::max_align_t)) % kFaecher]; }

// A waiting block keeps its size in its first bytes.
std::size_t groesseVon(void* block) { return *static_cast<std::size_t*>(block); }

// Leaves the block in a free place of its compartment; false when there is none.
bool ablegen(void* block, std::size_t n) {
    for (std::atomic<void*>& platz : fachFuer(n)) {
        void* frei = nullptr;
        if (!platz.load(std::memory_order_relaxed) && platz.compare_exchange_strong(frei, block)) return true;
    }
    return false;
}

// At unloading (or exit) the waiting blocks go back; forms deleted later are freed at once.
struct Raeumer {
    ~Raeumer() {
        geschlossen.store(true);
        for (Fach& fach : faecher)
            for (std::atomic<void*>& platz : fach)
                if (void* block = platz.exchange(nullptr)) ::operator delete(block, groesseVon(block));
    }
} raeumer;

} // namespace

void* qbFormular::operator new(std::size_t n) {
    if (kZwischenspeicher)
        for (std::atomic<void*>& platz : fachFuer(n)) {
            if (!platz.load(std::memory_order_relaxed)) continue;
            void* block = platz.exchange(nullptr);
            if (!block) continue;
            if (groesseVon(block) == n) return block;
            ::operator delete(block, groesseVon(block)); // another size in the same compartment
        }
    return ::operator new(n);
}

void qbFormular::operator delete(void* p, std::size_t n) noexcept {
    if (!p) return;
    if (kZwischenspeicher && !geschlossen.load(std::memory_order_relaxed)) {
        ::new (p) std::size_t(n);
        if (ablegen(p, n)) return;
    }
    ::operator delete(p, n);
}
