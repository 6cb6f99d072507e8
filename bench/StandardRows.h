// Rows of what the C and C++ libraries do too: ours beside one call or a few lines of theirs.
#ifndef QEL_BENCH_STANDARDROWS_H
#define QEL_BENCH_STANDARDROWS_H

#include "Results.h"
#include "Rows.h"

#include <climits>
#include <map>
#include <utility>

namespace qel::bench {

/// The arguments for a size; 0 for calls that have none.
template <typename Arguments>
using Make = std::vector<Arguments> (*)(int size);

/// Made once.
template <typename Arguments>
std::vector<Arguments> const& made(Make<Arguments> make, int size) {
    static std::map<std::pair<Make<Arguments>, int>, std::vector<Arguments>> known;
    auto const [place, isNew] = known.try_emplace({make, size});
    if (isNew)
        place->second = make(size);
    return place->second;
}

template <typename Operation>
struct Peer {
    char const* library;
    Operation operation;
    /// What takes longer than linear time is not measured beyond.
    int largest = INT_MAX;
};

template <typename Operation>
Peer(char const*, Operation) -> Peer<Operation>;
template <typename Operation>
Peer(char const*, Operation, int) -> Peer<Operation>;

template <typename Arguments, typename Ours, typename Operation>
void registerPeer(Row const& row, int size, Make<Arguments> make, Ours ours,
                  Peer<Operation> const& peer) {
    auto const show = [](auto const& result) { return asText(result); };
    if (size <= peer.largest)
        registerRow(
            peer.library, row, size, [=] { return made(make, size); }, peer.operation,
            [make, size, show, ours, theirs = peer.operation]() mutable {
                return resultsOf(made(make, size), ours, show)
                       == resultsOf(made(make, size), theirs, show);
            });
}

/// One row for each size.
template <typename Arguments, typename Ours, typename... Operations>
void addRows(Row const& row, std::vector<int> const& sizes, Make<Arguments> make, Ours ours,
             Peer<Operations> const&... peers) {
    for (int const size : sizes) {
        registerPeer(row, size, make, ours, Peer{"qel", ours});
        (registerPeer(row, size, make, ours, peers), ...);
    }
}

}  // namespace qel::bench

#endif
