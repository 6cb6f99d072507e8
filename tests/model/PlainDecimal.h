// Numbers from text as documented, taken literally. For values every operation stands by itself,
// rounded to a double in memory, so that no compiler joins two of them or replaces one.
#pragma once

#include <cmath>
#include <string>

namespace model {

// --- what is a number --------------------------------------------------------------------------

inline bool isDecimalNumber(std::string const& s) {
    bool signSeen = false;
    bool pointSeen = false;
    bool exponentSeen = false;
    int digits = 0;
    for (char const c : s) {
        if (c == '-' || c == '+') {
            if (signSeen)
                return false;
            signSeen = true;
        } else if (c >= '0' && c <= '9') {
            digits += 1;
        } else if (c == 'e' || c == 'E') {
            if (exponentSeen || digits == 0)
                return false;
            exponentSeen = true;
            digits = 0;
            signSeen = pointSeen = false;
        } else if (c == '.') {
            if (pointSeen)
                return false;
            pointSeen = true;
        } else {
            return false;
        }
    }
    return digits > 0;
}

inline bool isHexNumber(std::string const& s) {
    return s.substr(0, 2) == "0x"
           && s.find_first_not_of("0123456789abcdefABCDEF", 2) == std::string::npos;
}

inline bool isNumber(std::string const& s) {
    return isHexNumber(s) || isDecimalNumber(s);
}

// --- its value ---------------------------------------------------------------------------------

inline double product(double a, double b) {
    double const volatile left = a;
    double const volatile result = left * b;
    return result;
}

inline double sum(double a, double b) {
    double const volatile left = a;
    double const volatile result = left + b;
    return result;
}

inline double power(double base, double exponent) {
    double const volatile hiddenBase = base;
    return std::pow(hiddenBase, exponent);
}

inline double decimalValue(char const* s) {
    double sign[2] = {1.0, 1.0};
    double value[2] = {0.0, 0.0};
    bool point[2] = {false, false};
    double scale[2] = {0.1, 0.1};
    int current = 0;
    for (; *s != '\0'; ++s) {
        if (*s == '-') {
            sign[current] = -1.0;
        } else if (*s == '+') {
            sign[current] = 1.0;
        } else if (*s >= '0' && *s <= '9') {
            double const digit = *s - '0';
            if (!point[current]) {
                value[current] = sum(product(value[current], 10.0), digit);
            } else {
                value[current] = sum(value[current], product(digit, scale[current]));
                scale[current] = product(scale[current], 0.1);
            }
        } else if (*s == '.') {
            point[current] = true;
        } else if ((*s == 'e' || *s == 'E') && current == 0) {
            current = 1;
        } else {
            break;
        }
    }
    double const result = product(value[0], sign[0]);
    return current == 0 ? result : product(result, power(10.0, product(value[1], sign[1])));
}

inline double hexValue(char const* s) {
    static std::string const digits = "0123456789abcdef0123456789ABCDEF";
    double result = 0.0;
    for (; *s != '\0' && digits.find(*s) != std::string::npos; ++s)
        result = sum(product(result, 16.0), static_cast<double>(digits.find(*s) % 16));
    return result;
}

inline double value(std::string const& s) {
    return s.substr(0, 2) == "0x" ? hexValue(s.c_str() + 2) : decimalValue(s.c_str());
}

inline bool isWholeNumber(std::string const& s, double lowest, double highest) {
    double const v = value(s);
    return isNumber(s) && std::trunc(v) == v && v >= lowest && v <= highest;
}

}  // namespace model
