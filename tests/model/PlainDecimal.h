// The value of a text as documented, taken literally: every operation by itself, rounded to a
// double in memory, so that no compiler joins two of them or replaces one.
#pragma once

#include <cmath>

namespace model {

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

}  // namespace model
