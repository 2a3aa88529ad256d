// Branch data of the maker's qbNLDat library. On Linux there is no registry to read: the call succeeds
// with nothing read, and stays observable so that callers can be tested.
#pragma once

class qbNldUserID {
public:
    qbNldUserID() = default;
    virtual ~qbNldUserID() = default;

    // Reads the branch data under the registry path. Nothing to read on Linux: returns 0.
    int leseRegistry(const char* pfad);

    // Observation for tests: every call of leseRegistry is reported with its path.
    typedef void (*RegistryObserver)(const char* pfad);
    static RegistryObserver setRegistryObserver(RegistryObserver observer);
    static unsigned long registryReads(); // calls since the library was loaded
};

// The password part of the branch data; built on a user id, which may be null.
class qbPasswort : public qbNldUserID {
public:
    explicit qbPasswort(qbNldUserID* benutzer = nullptr) : benutzer_(benutzer) {}
    qbNldUserID* benutzer() const { return benutzer_; }

private:
    qbNldUserID* benutzer_;
};
