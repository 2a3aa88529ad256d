#include "nldat/qbNldUserID.h"

#include <atomic>

namespace {
std::atomic<qbNldUserID::RegistryObserver> observer{nullptr};
std::atomic<unsigned long> reads{0};
} // namespace

int qbNldUserID::leseRegistry(const char* pfad) {
    ++reads;
    if (RegistryObserver o = observer.load()) o(pfad ? pfad : "");
    return 0;
}

qbNldUserID::RegistryObserver qbNldUserID::setRegistryObserver(RegistryObserver o) {
    return observer.exchange(o);
}

unsigned long qbNldUserID::registryReads() { return reads.load(); }
