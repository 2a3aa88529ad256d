// Counting the heap allocations of one thread: the test program replaces the global operator new and
// delete (allokationen.cpp), and counts while an AllokationsZaehler of the calling thread is alive.
// Other threads, and this thread outside such a scope, allocate as usual and are not counted.
#pragma once

#include <cstddef>

namespace qbtest {

struct Allokationen {
    std::size_t anzahl = 0;   // calls of operator new
    std::size_t summe = 0;    // bytes asked for, added up
    std::size_t groesste = 0; // the largest single request
};

class AllokationsZaehler;
void zaehleAllokation(std::size_t n);

class AllokationsZaehler {
public:
    AllokationsZaehler();
    ~AllokationsZaehler();
    AllokationsZaehler(const AllokationsZaehler&) = delete;
    AllokationsZaehler& operator=(const AllokationsZaehler&) = delete;

    // What this thread asked for since the counter was made (nested counters see the same requests).
    const Allokationen& stand() const { return stand_; }

private:
    friend void zaehleAllokation(std::size_t n);
    Allokationen stand_;
    AllokationsZaehler* aussen_;
};

} // namespace qbtest
