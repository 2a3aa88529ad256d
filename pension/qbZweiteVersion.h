// The second copy of Version that the allowance application and the activity description write behind
// the header: written as a Text, and read through the header's Version row, so that an observer sees it.
#pragma once

#include "core/qbFeld.h"
#include "core/qbFormular.h"

template <class Strom>
void qbSchreibeZweiteVersion(const qbFormular& form, Strom& s) {
    form.RefVersion().saveOn(s);
}

template <class Strom>
void qbLiesZweiteVersion(qbFormular& form, Strom& s) {
    qbFeldTabelle::liesZeile(*qbFormular::felder().suche("Version"), &form, s);
}
