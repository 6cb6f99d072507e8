// Replacing and removing parts of a text. The documented replacement of all occurrences searches
// its whole output again after every step; here the search goes on where it can still find
// something, and only bytes that it passed are moved.
#include "qel/CharFunctions.h"

#include "Blocks.h"
#include "Joined.h"
#include "LastOccurrence.h"

#include <algorithm>
#include <cassert>
#include <cstring>
#include <string_view>
#include <utility>

namespace qel {

namespace {

/// A text in two pieces at the ends of one buffer: the head, still to be searched, and the tail,
/// in which no occurrence starts any more.
class SplitText {
  public:
    explicit SplitText(char const* s) : buffer_(s), headEnd_(buffer_.size()), tail_(headEnd_) {}

    [[nodiscard]] std::string_view head() const noexcept { return {buffer_.data(), headEnd_}; }

    /// Moves the bytes of the head from `position` on to the front of the tail.
    void passOver(std::size_t position) noexcept {
        std::size_t const count = headEnd_ - position;
        move(tail_ - count, position, count);
        headEnd_ = position;
        tail_ -= count;
    }

    void dropFromHead(std::size_t count) noexcept { headEnd_ -= count; }

    void appendToHead(std::string_view text) {
        makeRoom(text.size());
        std::memcpy(buffer_.data() + headEnd_, text.data(), text.size());
        headEnd_ += text.size();
    }

    void prependToTail(std::string_view text) {
        makeRoom(text.size());
        tail_ -= text.size();
        std::memcpy(buffer_.data() + tail_, text.data(), text.size());
    }

    /// Moves up to `count` bytes from the front of the tail back to the head.
    void takeBack(std::size_t count) noexcept {
        count = std::min(count, buffer_.size() - tail_);
        move(headEnd_, tail_, count);
        headEnd_ += count;
        tail_ += count;
    }

    [[nodiscard]] std::string joined() && {
        buffer_.erase(headEnd_, tail_ - headEnd_);
        return std::move(buffer_);
    }

  private:
    void move(std::size_t to, std::size_t from, std::size_t count) noexcept {
        if (to != from)
            std::memmove(buffer_.data() + to, buffer_.data() + from, count);
    }

    /// Doubles the buffer where it is too narrow, so that all of this together costs no more than
    /// the final length.
    void makeRoom(std::size_t needed) {
        if (tail_ - headEnd_ >= needed)
            return;
        std::size_t const added = buffer_.size() + needed;
        buffer_.insert(tail_, added, '\0');
        tail_ += added;
    }

    std::string buffer_;
    std::size_t headEnd_;
    std::size_t tail_;
};

/// A null or empty part is never replaced.
bool isSearchable(char const* part) noexcept {
    return part != nullptr && !CharFunctions::IsEmpty(part);
}

/// True when `part` neither starts in `substitute` nor reaches into it from the left, whatever
/// stands around it.
bool noOccurrenceTouches(std::string_view substitute, std::string_view part) noexcept {
    return !substitute.empty() && substitute.find(part.front()) == std::string_view::npos
           && part.find(substitute.front(), 1) == std::string_view::npos;
}

/// Replaces the last occurrence until there is none. Not inlined: in a function that must not
/// throw, GCC would let a lack of memory end the process without its name.
[[gnu::noinline]] std::string replaceAll(char const* s, std::string_view part,
                                         std::string_view substitute) {
    internal::LastOccurrence last(part);
    bool const isFinal = noOccurrenceTouches(substitute, part);
    SplitText text(s);
    // No occurrence starts in the tail: it lies behind the place of the last occurrence. So the
    // next one starts in the head and reaches into the tail by less than its own length; or ends in
    // front of a substitute that is final.
    for (std::size_t position = last.in(text.head()); position != std::string_view::npos;
         position = last.in(text.head())) {
        text.passOver(position + part.size());
        text.dropFromHead(part.size());
        if (isFinal) {
            text.prependToTail(substitute);
        } else {
            text.appendToHead(substitute);
            text.takeBack(part.size() - 1);
        }
    }
    return std::move(text).joined();
}

bool isOneCharacter(char const* s) noexcept {
    return s[0] != '\0' && s[1] == '\0';
}

// One character replaced by another, or removed, brings nothing about: any order will do.

std::string replaceCharacter(std::string text, char old, char replacement) {
    using namespace internal;
    applyToBlocks(text, [=](Block const& bytes) -> Block {
        Block const isOld = bytes == repeated(old);
        return (bytes & ~isOld) | (repeated(replacement) & isOld);
    });
    return text;
}

/// Every byte is written, and stays where it is kept: that has no branch to be mispredicted.
std::string removeCharacter(std::string_view text, char removed) {
    std::string kept(text.size(), '\0');
    char* end = kept.data();
    for (char const c : text) {
        *end = c;
        end += c != removed ? 1 : 0;
    }
    kept.resize(static_cast<std::size_t>(end - kept.data()));
    return kept;
}

/// `text` with its `count` bytes from `position` on replaced.
std::string replacedAt(std::string_view text, std::size_t position, std::size_t count,
                       std::string_view replacement) {
    return internal::joined(text.substr(0, position), replacement, text.substr(position + count));
}

}  // namespace

std::string CharFunctions::Replace(char const* s, char const* old,
                                   char const* replacement) noexcept {
    if (!isSearchable(old) || replacement == nullptr)
        return s;
    assert((!Contains(replacement, old) || !Contains(s, old))
           && "the replacement contains the old text: this never returns");
    if (isOneCharacter(old) && isOneCharacter(replacement) && *old != *replacement)
        return replaceCharacter(s, *old, *replacement);
    if (isOneCharacter(old) && IsEmpty(replacement))
        return removeCharacter(s, *old);
    return replaceAll(s, old, replacement);
}

std::string CharFunctions::ReplaceFirstOccurence(char const* s, char const* old,
                                                 char const* replacement) noexcept {
    if (!isSearchable(old) || replacement == nullptr)
        return s;
    char const* const found = std::strstr(s, old);
    if (found == nullptr)
        return s;
    return replacedAt(s, static_cast<std::size_t>(found - s), std::strlen(old), replacement);
}

std::string CharFunctions::ReplaceLastOccurence(char const* s, char const* old,
                                                char const* replacement) noexcept {
    if (!isSearchable(old) || replacement == nullptr)
        return s;
    std::string_view const text(s);
    std::size_t const position = internal::LastOccurrence(old).in(text);
    if (position == std::string_view::npos)
        return s;
    return replacedAt(text, position, std::strlen(old), replacement);
}

std::string CharFunctions::RemoveAllOccurence(char const* s, char const* part) noexcept {
    return Replace(s, part, "");
}

std::string CharFunctions::RemoveFirstOccurence(char const* s, char const* part) noexcept {
    char const* const found = isSearchable(part) ? std::strstr(s, part) : nullptr;
    return found == nullptr ? s : found + std::strlen(part);
}

std::string CharFunctions::RemoveLastOccurence(char const* s, char const* part) noexcept {
    return ReplaceLastOccurence(s, part, "");
}

}  // namespace qel
