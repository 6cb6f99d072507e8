// Searching a text from its end for a part, in time linear in the bytes passed over whatever both
// hold: the borders of Morris and Pratt, read from right to left, behind a filter that passes
// sixteen places at once where no occurrence can start.
#pragma once

#include <string_view>
#include <vector>

namespace qel::internal {

class LastOccurrence {
  public:
    /// `part` must not be empty, and must stay alive as long as this object.
    explicit LastOccurrence(std::string_view part) noexcept : part_(part) {}

    /// The position of the last occurrence in `text`; the no-position value when there is none.
    /// Takes time linear in the bytes of `text` from there to the end, and in the part.
    [[nodiscard]] std::size_t in(std::string_view text);

  private:
    void findBorders();
    /// How many of its last bytes the part has behind it once `c` is read in front of `matched`.
    [[nodiscard]] std::size_t step(std::size_t matched, char c) const noexcept {
        while (matched > 0 && c != fromEnd(matched))
            matched = borders_[matched];
        return c == fromEnd(matched) ? matched + 1 : 0;
    }
    [[nodiscard]] char fromEnd(std::size_t i) const noexcept { return part_[part_.size() - 1 - i]; }

    std::string_view part_;
    /// At n: the longest text shorter than n that both begins and ends the last n bytes of the
    /// part. Empty until they are needed.
    std::vector<std::size_t> borders_;
};

}  // namespace qel::internal
