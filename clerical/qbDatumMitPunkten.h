// The date of birth with points of the membership applications: a text longer than four characters gets
// "." inserted at position 2 and then at position 5, whatever it holds already; a shorter one stays.
#pragma once

#include "rw/cstring.h"

inline RWCString qbDatumMitPunkten(const RWCString& datum) {
    if (datum.length() <= 4) return datum;
    RWCString mitPunkten(datum);
    mitPunkten.insert(2, ".");
    mitPunkten.insert(5, ".");
    return mitPunkten;
}
