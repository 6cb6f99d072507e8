// Results as text, so that those of two libraries can be compared.
#ifndef QEL_BENCH_RESULTS_H
#define QEL_BENCH_RESULTS_H

#include <cstdio>
#include <string>
#include <type_traits>

namespace qel::bench {

/// A comparison's result, of which only the sign counts.
struct Order {
    int order;
};

/// A result that ours and theirs do not have in common: of a clock, or of another generator.
template <typename Value>
struct Incomparable {
    Value value;
};

template <typename Value>
Incomparable(Value) -> Incomparable<Value>;

inline std::string asText(std::string const& text) {
    return text;
}

inline std::string asText(char const* text) {
    return text;
}

/// All digits.
inline std::string asText(double value) {
    char text[40];
    return {text, static_cast<std::size_t>(std::snprintf(text, sizeof text, "%a", value))};
}

inline std::string asText(Order result) {
    return std::to_string((result.order > 0) - (result.order < 0));
}

template <typename Value>
std::string asText(Incomparable<Value> const&) {
    return "";
}

template <typename Number>
requires std::is_integral_v<Number> std::string asText(Number value) {
    return std::to_string(value);
}

}  // namespace qel::bench

#endif
