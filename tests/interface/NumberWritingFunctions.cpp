// Text from numbers. The model is the C library's printf, in the same locale and rounding mode.
#include "Arguments.h"
#include "CharFunctions.h"
#include "Expectations.h"

#include "qel/CharFunctions.h"

#include <algorithm>
#include <cstdio>

namespace interface_test {

namespace {

using qel::CharFunctions;

constexpr std::array<char const*, 10> formats = {"%f", "%.2f", "%.0f", "%g",         "%.17g",
                                                 "%e", "%a",   "%.1a", "[%+012.3f]", "%.400f"};

template <typename Number>
std::string printed(char const* format, Number v) {
    std::vector<char> text(2000);
    std::snprintf(text.data(), text.size(), format, v);
    return text.data();
}

/// Everything that the function wrote, and one byte more.
template <typename Number, typename... Format>
std::string writtenBy(void (*write)(Number, char*, Format...), std::size_t room, Number v,
                      Format... format) {
    std::vector<char> out(room + 1, '.');
    write(v, out.data(), format...);
    EXPECT_EQ(out[room], '.') << "written beyond the documented room";
    return out.data();
}

template <typename Numbers, typename Call>
void forEachFormat(Results& results, Numbers const& numbers, Call call) {
    for (auto const v : numbers) {
        for (char const* const format : formats)
            expectResult(results, call(v, format), printed(format, v), v, format);
    }
}

std::vector<Function> functionsOfIntegers() {
    return {
        {"CharFunctions::Int2String(int)",
         [](Results& results) {
             for (int const v : extremeInts)
                 expectResult(results, CharFunctions::Int2String(v), printed("%d", v), v);
         }},
        {"CharFunctions::Int2Char(int, char*)",
         [](Results& results) {
             for (int const v : extremeInts)
                 expectResult(results, writtenBy(&CharFunctions::Int2Char, 12, v), printed("%d", v),
                              v);
         }},
        {"CharFunctions::UnsignedInt2String(unsigned int)",
         [](Results& results) {
             for (unsigned int const v : extremeUnsigned)
                 expectResult(results, CharFunctions::UnsignedInt2String(v),
                              printed("%d", static_cast<int>(v)), v);
         }},
        {"CharFunctions::UnsignedInt2Char(unsigned int, char*)",
         [](Results& results) {
             for (unsigned int const v : extremeUnsigned)
                 expectResult(results, writtenBy(&CharFunctions::UnsignedInt2Char, 12, v),
                              printed("%d", static_cast<int>(v)), v);
         }},
        {"CharFunctions::Long2String(long)",
         [](Results& results) {
             for (long const v : extremesOf<long>)
                 expectResult(results, CharFunctions::Long2String(v), printed("%ld", v), v);
         }},
        {"CharFunctions::Long2Char(long, char*)",
         [](Results& results) {
             for (long const v : extremesOf<long>)
                 expectResult(results, writtenBy(&CharFunctions::Long2Char, 21, v),
                              printed("%ld", v), v);
         }},
        {"CharFunctions::Int2Hexa(int, bool)",
         [](Results& results) {
             for (int const v : extremeInts) {
                 expectResult(results, CharFunctions::Int2Hexa(v, false), printed("%x", v), v);
                 expectResult(results, CharFunctions::Int2Hexa(v, true), printed("%X", v), v);
             }
         }},
    };
}

/// The place of the text may be that of the format; both ways must give the same.
template <typename Number>
std::string writtenWithFormat(Number v, char const* format) {
    std::string const room = printed(format, v);
    std::string const text =
        writtenBy<Number, char const*>(&CharFunctions::Float2Char, room.size() + 1, v, format);
    std::string place = format;
    place.resize(std::max(room.size(), place.size()) + 1);
    CharFunctions::Float2Char(v, place.data(), place.data());
    EXPECT_EQ(place.c_str(), text) << "in the place of " << format;
    return text;
}

}  // namespace

std::vector<Function> numberWritingFunctions() {
    std::set<State> const followed = {State::cLocale, State::roundingMode};
    std::vector<Function> all = functionsOfIntegers();
    std::vector<Function> const ofFloatingPoint = {
        {"CharFunctions::Float2String(double, char const*)",
         [](Results& results) {
             forEachFormat(results, extremeDoubles, [](double v, char const* format) {
                 return CharFunctions::Float2String(v, format);
             });
         },
         followed},
        {"CharFunctions::Float2Char(double, char*, char const*)",
         [](Results& results) {
             forEachFormat(results, extremeDoubles, [](double v, char const* format) {
                 return writtenWithFormat(v, format);
             });
         },
         followed},
        {"CharFunctions::Float2String(float, char const*)",
         [](Results& results) {
             forEachFormat(results, extremeFloats, [](float v, char const* format) {
                 return CharFunctions::Float2String(v, format);
             });
         },
         followed},
        {"CharFunctions::Float2Char(float, char*, char const*)",
         [](Results& results) {
             forEachFormat(results, extremeFloats, [](float v, char const* format) {
                 return writtenWithFormat(v, format);
             });
         },
         followed},
    };
    all.insert(all.end(), ofFloatingPoint.begin(), ofFloatingPoint.end());
    return all;
}

}  // namespace interface_test
