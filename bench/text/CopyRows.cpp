// Raw copies into a buffer.
#include "Texts.h"

#include "qel/CharFunctions.h"

#include <cstring>

namespace qel::bench {
namespace {

/// The buffer begins with three bytes of text.
char* withStart(Texts& x) {
    std::memcpy(x.out(), "abc", 4);
    return x.out();
}

[[maybe_unused]] bool const registered = [] {
    addRows(
        {"Copy", {"CharFunctions::Copy(char*, char const*)"}}, textSizes, texts,
        [](auto& x) -> char const* {
            CharFunctions::Copy(x.out(), x.s());
            return x.out();
        },
        Peer{"strcpy", [](auto& x) -> char const* { return std::strcpy(x.out(), x.s()); }});
    addRows(
        {"Copy, up to n", {"CharFunctions::Copy(char*, char const*, unsigned int)"}}, textSizes,
        texts,
        [](auto& x) -> char const* {
            CharFunctions::Copy(x.out(), x.s(), static_cast<unsigned int>(x.text.size()) + 16);
            return x.out();
        },
        Peer{"strncpy", [](auto& x) -> char const* {
                 return std::strncpy(x.out(), x.s(), x.text.size() + 16);
             }});
    addRows(
        {"Append", {"CharFunctions::Append(char*, char const*)"}}, textSizes, texts,
        [](auto& x) -> char const* {
            CharFunctions::Append(withStart(x), x.s());
            return x.out();
        },
        Peer{"strcat", [](auto& x) -> char const* { return std::strcat(withStart(x), x.s()); }});
    return true;
}();

}  // namespace
}  // namespace qel::bench
