// One row of the large integers: an operation at several sizes, by one library. A library takes
// part with a class like Own; an operation is called with an object of it and one element of the
// table. Before a row is measured its results are compared with LargeInteger's.
#ifndef QEL_BENCH_BIGINT_ROWS_H
#define QEL_BENCH_BIGINT_ROWS_H

#include "../Results.h"
#include "../Rows.h"
#include "Operands.h"
#include "Own.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <memory>
#include <type_traits>
#include <utility>

namespace qel::bench {

inline std::vector<int> const allSizes = {64, 128, 256, 512, 1024, 4096, 65536, 1048576};

inline std::vector<int> sizesUpTo(int largest) {
    return {allSizes.begin(), std::upper_bound(allSizes.begin(), allSizes.end(), largest)};
}

// --- results as text, for the comparison ---------------------------------------------------------

/// Digits as the library writes them: some write capital ones, some a leading zero.
inline std::string canonical(std::string text) {
    std::size_t const digits = text.starts_with('-') ? 1 : 0;
    text.erase(digits, std::min(text.find_first_not_of('0', digits), text.size()) - digits);
    for (char& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

template <typename Library, typename Result>
std::string shown(Result const& result) {
    if constexpr (std::is_same_v<Result, std::string>)
        return canonical(result);
    else if constexpr (std::is_same_v<Result, Division<typename Library::Value>>)
        return shown<Library>(result.quotient) + " " + shown<Library>(result.remainder);
    else if constexpr (std::is_same_v<Result, typename Library::Value>)
        return canonical(Library::hexDigits(result));
    else
        return asText(result);
}

// --- one row -------------------------------------------------------------------------------------

template <typename Library>
std::vector<Arguments<typename Library::Value>> inTermsOf(Operands const& operands) {
    std::vector<Arguments<typename Library::Value>> table;
    for (Arguments<LargeInteger> const& x : operands)
        table.push_back({Library::take(x.a), Library::take(x.b), Library::take(x.c), x.bits,
                         x.position, x.text});
    return table;
}

/// The table of `draw` in terms of the library, converted once.
template <typename Library>
std::vector<Arguments<typename Library::Value>> const& converted(Draw draw, int bits) {
    static std::map<std::pair<Draw, int>, std::vector<Arguments<typename Library::Value>>> known;
    auto const [place, isNew] = known.try_emplace({draw, bits});
    if (isNew)
        place->second = inTermsOf<Library>(drawn(draw, bits));
    return place->second;
}

/// Of long numbers the first results must do.
template <typename Library, typename Operation>
std::vector<std::string> shownResults(Operands operands, Operation operation) {
    if (operands.front().bits > 4096)
        operands.resize(2);
    Library library;
    auto call = [&](auto& x) -> decltype(auto) { return operation(library, x); };
    return resultsOf(inTermsOf<Library>(operands), call,
                     [](auto const& result) { return shown<Library>(result); });
}

/// `Reference` gives the results that are compared with.
template <typename Library, typename Reference = Own, typename Operation>
void addRow(Row const& row, std::vector<int> const& sizes, Draw draw, Operation operation) {
    auto const library = std::make_shared<Library>();
    for (int const bits : sizes) {
        if (!Library::endsInReasonableTime(row.name, bits))
            continue;
        registerRow(
            Library::name, row, bits, [=] { return converted<Library>(draw, bits); },
            [=](auto& x) -> decltype(auto) { return operation(*library, x); },
            [=] {
                Operands const& operands = drawn(draw, bits);
                return shownResults<Library>(operands, operation)
                       == shownResults<Reference>(operands, operation);
            });
    }
}

}  // namespace qel::bench

#endif
