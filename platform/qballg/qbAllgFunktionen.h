// General helper functions of the application's common library.
#pragma once

#include "rw/cstring.h"

// value rounded to `decimals` decimals (0..30; less is 0, more is 30), with thousandsSep between the
// groups of three digits of the integer part and decimalSep before the decimals. A null separator is
// the empty one. A value that rounds to zero has no minus sign; NaN and infinities give "nan", "inf" and
// "-inf". mode 1 is the plain number above, the only form there is: other modes format the same way.
//   doubleToRWCString(3, "", "", 0, 1)              -> "3"
//   doubleToRWCString(1234567.891, ".", ",", 2, 1)  -> "1.234.567,89"
RWCString doubleToRWCString(double value, const char* thousandsSep, const char* decimalSep, int decimals,
                            int mode);
