// Observation of a record being read from an RWFile, field by field: what the command-line tool's
// explain shows. Off unless installed; one observer per thread.
#pragma once

#include "core/qbFeld.h"

#include <string>

class qbLeseBeobachter {
public:
    virtual ~qbLeseBeobachter() = default;
    // The layout a form's restore chose for its stored version, before its fields are read.
    virtual void layout(const char* klasse, const char* name) = 0;
    // One value read: its field (null name for a value read and thrown away), type, the byte offsets
    // before and after it, and the value as text (Windows-1252).
    virtual void feld(const char* name, qbArt art, long von, long bis, const std::string& wert) = 0;
};

// Installs an observer for this thread (null: none) and returns the previous one.
qbLeseBeobachter* qbSetzeLeseBeobachter(qbLeseBeobachter* beobachter);
qbLeseBeobachter* qbAktuellerLeseBeobachter();
