// The global operator new and delete of the test program, on malloc and free as the standard library's
// own, with a count per thread while an AllokationsZaehler is alive there. The library allocates through
// them too: a shared library's calls of operator new bind to the program's definition.
//
// Under AddressSanitizer the sanitizer's runtime brings operator new and delete of its own; the program's
// definitions take their place, and the sanitizer still sees every block through malloc and free, so
// overflows, use after free and leaks are found as before (only a mismatch of new[] and delete is not).
#include "allokationen.h"

#include "core/qbSanitizer.h"

#include <cstdlib>
#include <new>
#if QB_MIT_THREAD_SANITIZER
#include <sanitizer/allocator_interface.h>
#endif

namespace {

// The innermost counter of this thread, or null: nothing is counted.
thread_local qbtest::AllokationsZaehler* aktuellerZaehler = nullptr;

} // namespace

namespace qbtest {

AllokationsZaehler::AllokationsZaehler() : aussen_(aktuellerZaehler) { aktuellerZaehler = this; }
AllokationsZaehler::~AllokationsZaehler() { aktuellerZaehler = aussen_; }

// Called for every request of this thread; an outer counter sees what an inner one sees.
void zaehleAllokation(std::size_t n) {
    for (AllokationsZaehler* z = aktuellerZaehler; z; z = z->aussen_) {
        ++z->stand_.anzahl;
        z->stand_.summe += n;
        if (n > z->stand_.groesste) z->stand_.groesste = n;
    }
}

} // namespace qbtest

#if QB_MIT_THREAD_SANITIZER
// ThreadSanitizer's runtime defines operator new and delete itself, and a program may not replace them; it
// reports every allocation to a hook instead, operator new's as well as malloc's.
namespace {
void gemeldet(const volatile void*, std::size_t n) {
    if (aktuellerZaehler) qbtest::zaehleAllokation(n);
}
void freigegeben(const volatile void*) {}
[[maybe_unused]] const int angemeldet = __sanitizer_install_malloc_and_free_hooks(&gemeldet, &freigegeben);
} // namespace
#else
void* operator new(std::size_t n) {
    if (aktuellerZaehler) qbtest::zaehleAllokation(n);
    for (;;) {
        if (void* p = std::malloc(n ? n : 1)) return p;
        std::new_handler handler = std::get_new_handler();
        if (!handler) throw std::bad_alloc();
        handler();
    }
}

void* operator new[](std::size_t n) { return ::operator new(n); }
void operator delete(void* p) noexcept { std::free(p); }
void operator delete[](void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
void operator delete[](void* p, std::size_t) noexcept { std::free(p); }
#endif
