// Memory of form objects.
//
// Restoring record after record deletes one form and creates the next of the same class. Most forms take
// more than 1 KB, and glibc's malloc answers every request of that size by first merging all small blocks
// freed since (its fast bins) - here the texts of the form just deleted - which cost as much as reading
// the whole record. So a deleted form's block waits in a small cache for the next form of its size.
// At most one block per compartment, taken and returned by atomic exchange: safe between threads, and
// nothing to clean up per thread.
#include "core/qbFormular.h"

#include <atomic>
#include <cstddef>
#include <new>

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kZwischenspeicher = false; // the sanitizer must see every form freed
#else
constexpr bool kZwischenspeicher = true;
#endif

constexpr std::size_t kFaecher = 16;

// Constant-initialised and trivially destructible: usable before and after the statics of this library.
std::atomic<void*> faecher[kFaecher];
std::atomic<bool> geschlossen{false};

std::atomic<void*>& fachFuer(std::size_t n) { return faecher[(n / alignof(std::max_align_t)) % kFaecher]; }

// A waiting block keeps its size in its first bytes.
std::size_t groesseVon(void* block) { return *static_cast<std::size_t*>(block); }

// At unloading (or exit) the waiting blocks go back; forms deleted later are freed at once.
struct Raeumer {
    ~Raeumer() {
        geschlossen.store(true);
        for (std::atomic<void*>& fach : faecher)
            if (void* block = fach.exchange(nullptr)) ::operator delete(block, groesseVon(block));
    }
} raeumer;

} // namespace

void* qbFormular::operator new(std::size_t n) {
    if (kZwischenspeicher) {
        std::atomic<void*>& fach = fachFuer(n);
        if (void* block = fach.exchange(nullptr)) {
            if (groesseVon(block) == n) return block;
            ::operator delete(block, groesseVon(block)); // another size in the same compartment
        }
    }
    return ::operator new(n);
}

void qbFormular::operator delete(void* p, std::size_t n) noexcept {
    if (!p) return;
    if (kZwischenspeicher && !geschlossen.load(std::memory_order_relaxed)) {
        ::new (p) std::size_t(n);
        p = fachFuer(n).exchange(p);
        if (!p) return;
        n = groesseVon(p);
    }
    ::operator delete(p, n);
}
