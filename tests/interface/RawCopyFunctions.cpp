// Copies into a caller's buffer. Source and destination may overlap: the source counts as it was
// when the call began.
#include "Arguments.h"
#include "CharFunctions.h"
#include "Expectations.h"

#include "qel/CharFunctions.h"

#include <algorithm>

namespace interface_test {

namespace {

using qel::CharFunctions;

/// A count beyond these would need a buffer as large.
constexpr unsigned int largestCount = 65535;

/// A buffer whose every byte is known, before and after.
using Buffer = std::vector<char>;

std::string asText(Buffer const& buffer) {
    return {buffer.begin(), buffer.end()};
}

/// A text at `position`, a terminator behind it, and dots everywhere else.
Buffer bufferWith(std::string const& text, std::size_t position, std::size_t size) {
    Buffer buffer(size, '.');
    std::copy(text.begin(), text.end(), buffer.begin() + static_cast<std::ptrdiff_t>(position));
    buffer[position + text.size()] = '\0';
    return buffer;
}

void put(Buffer& buffer, std::size_t position, std::string const& bytes) {
    std::copy(bytes.begin(), bytes.end(), buffer.begin() + static_cast<std::ptrdiff_t>(position));
}

/// Exactly n bytes: cut, or filled up with zeros.
std::string exactly(std::string bytes, unsigned int n) {
    bytes.resize(n, '\0');
    return bytes;
}

constexpr std::array<std::size_t, 5> offsets = {0, 1, 2, 7, 40};

/// Both from one buffer, each at every offset from the other.
template <typename Call, typename Model>
void forEachOverlap(Results& results, std::size_t room, Call call, Model model) {
    for (std::string const text : {"", "a", "abc", "the text that is copied"}) {
        for (std::size_t const from : offsets) {
            for (std::size_t const to : offsets) {
                Buffer buffer = bufferWith(text, from, 200 + room);
                Buffer expected = buffer;
                model(expected, to, text);
                call(buffer.data() + to, buffer.data() + from);
                expectResult(results, asText(buffer), asText(expected), text, from, to);
            }
        }
    }
}

void copyIntoOthers(Results& results) {
    for (std::string const& source : texts()) {
        Buffer buffer(source.size() + 2, '.');
        CharFunctions::Copy(buffer.data(), source.c_str());
        expectResult(results, asText(buffer), source + '\0' + '.', source);
    }
}

void copyCountedIntoOthers(Results& results, unsigned int n) {
    for (std::string const& source : texts()) {
        Buffer buffer(n + std::size_t{1}, '.');
        CharFunctions::Copy(buffer.data(), source.c_str(), n);
        expectResult(results, asText(buffer), exactly(source, n) + '.', source, n);
    }
    if (n == 0)
        return;
    // No byte behind the n-th is read either.
    Buffer const unterminated(n, 'u');
    Buffer buffer(n, '.');
    CharFunctions::Copy(buffer.data(), unterminated.data(), n);
    expectResult(results, asText(buffer), asText(unterminated), "unterminated", n);
}

/// What stands in the buffer at `to` up to the first terminator.
std::size_t lengthAt(Buffer const& buffer, std::size_t to) {
    return static_cast<std::size_t>(
        std::find(buffer.begin() + static_cast<std::ptrdiff_t>(to), buffer.end(), '\0')
        - buffer.begin() - static_cast<std::ptrdiff_t>(to));
}

}  // namespace

std::vector<Function> rawCopyFunctions() {
    return {
        {"CharFunctions::Copy(char*, char const*)",
         [](Results& results) {
             copyIntoOthers(results);
             forEachOverlap(
                 results, 0,
                 [](char* destination, char const* source) {
                     CharFunctions::Copy(destination, source);
                 },
                 [](Buffer& buffer, std::size_t to, std::string const& text) {
                     put(buffer, to, text + '\0');
                 });
         }},
        {"CharFunctions::Copy(char*, char const*, unsigned int)",
         [](Results& results) {
             for (unsigned int const n : extremeUnsigned) {
                 if (n > largestCount)
                     continue;
                 copyCountedIntoOthers(results, n);
                 forEachOverlap(
                     results, n,
                     [n](char* destination, char const* source) {
                         CharFunctions::Copy(destination, source, n);
                     },
                     [n](Buffer& buffer, std::size_t to, std::string const& text) {
                         put(buffer, to, exactly(text, n));
                     });
             }
         }},
        {"CharFunctions::Append(char*, char const*)",
         [](Results& results) {
             for (std::string const& front : texts()) {
                 for (std::string const& source : texts()) {
                     Buffer buffer = bufferWith(front, 0, front.size() + source.size() + 2);
                     buffer.back() = '.';
                     CharFunctions::Append(buffer.data(), source.c_str());
                     expectResult(results, asText(buffer), front + source + '\0' + '.', front,
                                  source);
                 }
             }
             // The destination is the source, a part of it, or has it as a part.
             for (std::size_t const from : offsets) {
                 for (std::size_t const to : offsets) {
                     Buffer buffer(200, '.');
                     put(buffer, 0, "forty bytes of text and then some more..");
                     buffer[47] = '\0';
                     Buffer expected = buffer;
                     std::string const source(buffer.data() + from);
                     put(expected, to + lengthAt(buffer, to), source + '\0');
                     CharFunctions::Append(buffer.data() + to, buffer.data() + from);
                     expectResult(results, asText(buffer), asText(expected), from, to);
                 }
             }
         }},
    };
}

}  // namespace interface_test
