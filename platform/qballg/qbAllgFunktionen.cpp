#include "qballg/qbAllgFunktionen.h"

#include <charconv>
#include <cmath>
#include <string>

RWCString doubleToRWCString(double value, const char* thousandsSep, const char* decimalSep, int decimals,
                            int /*mode*/) {
    if (std::isnan(value)) return RWCString("nan");
    if (std::isinf(value)) return RWCString(value < 0 ? "-inf" : "inf");
    if (!thousandsSep) thousandsSep = "";
    if (!decimalSep) decimalSep = "";
    if (decimals < 0) decimals = 0;
    if (decimals > 30) decimals = 30;

    // Correctly rounded and independent of the process locale, unlike printf.
    char buf[400]; // 309 integer digits, a sign, a point and 30 decimals at most
    const auto result = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::fixed, decimals);
    std::string_view digits(buf, static_cast<size_t>(result.ptr - buf));

    const bool negative = !digits.empty() && digits.front() == '-';
    if (negative) digits.remove_prefix(1);
    const size_t point = digits.find('.');
    const std::string_view integerPart = digits.substr(0, point);
    const std::string_view fraction =
        point == std::string_view::npos ? std::string_view() : digits.substr(point + 1);

    std::string out;
    if (negative && digits.find_first_not_of("0.") != std::string_view::npos) out += '-';
    for (size_t i = 0; i < integerPart.size(); ++i) {
        if (i > 0 && (integerPart.size() - i) % 3 == 0) out += thousandsSep;
        out += integerPart[i];
    }
    if (!fraction.empty()) {
        out += decimalSep;
        out += fraction;
    }
    return RWCString(std::move(out));
}
