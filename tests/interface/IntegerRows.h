// Rows of functions that work on integers: every call is made twice, with the library's integers
// and with the plain model's, and whatever comes out must be the same.
#pragma once

#include "Arguments.h"
#include "Function.h"
#include "Operands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <sstream>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

namespace interface_test {

/// The condition of a row that leaves nothing out.
struct Always {
    template <typename... Arguments>
    bool operator()(Arguments const&...) const {
        return true;
    }
};

/// The empty text when both are the same.
template <typename Value>
std::string differenceOf(Value const& fast, Value const& plain) {
    std::ostringstream text;
    if (!(fast == plain))
        text << "result " << fast << ", not " << plain;
    return text.str();
}

inline std::string differenceOf(qel::LargeInteger const& fast, plain::LargeInteger const& plain) {
    std::string const text = bigint_test::difference(fast, plain);
    return text.empty() ? text : "result " + text;
}

/// Which object stands in each place: the same number, the same object.
template <std::size_t places>
using Sharing = std::array<std::size_t, places>;

template <std::size_t places>
constexpr auto sharings() {
    if constexpr (places == 1)
        return std::array<Sharing<1>, 1>{{{0}}};
    else if constexpr (places == 2)
        return std::array<Sharing<2>, 2>{{{0, 1}, {0, 0}}};
    else
        return std::array<Sharing<3>, 5>{{{0, 1, 2}, {0, 0, 1}, {0, 1, 0}, {0, 1, 1}, {0, 0, 0}}};
}

/// One call, of the library and of the model; what differs afterwards.
template <std::size_t places, typename Operation, typename... Numbers>
std::string callBoth(Results& results, std::string const& call,
                     std::array<Twin*, places> const& twins, Operation operation,
                     Numbers... numbers) {
    auto const fast = [&]() -> decltype(auto) {
        return std::apply(
            [&](auto*... twin) -> decltype(auto) { return operation(twin->fast..., numbers...); },
            twins);
    };
    auto const plain = [&]() -> decltype(auto) {
        return std::apply(
            [&](auto*... twin) -> decltype(auto) { return operation(twin->plain..., numbers...); },
            twins);
    };
    auto const add = [&](auto const&... returned) {
        std::apply([&](auto*... twin) { results.add(call, returned..., twin->fast...); }, twins);
    };
    std::string fault;
    using Returned = decltype(fast());
    if constexpr (std::is_void_v<Returned>) {
        fast();
        plain();
        add();
    } else if constexpr (std::is_reference_v<Returned>) {
        if (&fast() != &twins[0]->fast)
            fault = "returns another object";
        plain();
        add();
    } else {
        Returned const returned = fast();
        auto const expected = plain();
        fault = differenceOf(returned, expected);
        add(returned);
    }
    for (Twin const* const twin : twins)
        fault += check(*twin);
    return fault;
}

/// Calls `operation` with each choice of operands in each way in which they can be the same object,
/// and with each combination of the numbers. What `condition` refuses is not called.
template <std::size_t places, typename Operation, typename Condition, typename... Numbers>
class Exercise {
  public:
    Exercise(Results& lines, std::array<Operands const*, places> choices)
        : results(lines), lists(choices) {}

    void run() {
        for (Sharing<places> const& each : sharings<places>()) {
            sharing = each;
            objects = *std::max_element(each.begin(), each.end()) + 1;
            choose(0);
        }
    }

  private:
    void choose(std::size_t object) {
        if (object == objects) {
            Combinations<Numbers...>::forEach([this](Numbers... numbers) { call(numbers...); });
            return;
        }
        auto const place = static_cast<std::size_t>(
            std::find(sharing.begin(), sharing.end(), object) - sharing.begin());
        for (std::size_t i = 0; i < lists[place]->size(); ++i) {
            operands[object] = &(*lists[place])[i];
            chosen[object] = i;
            choose(object + 1);
        }
    }

    void call(Numbers... numbers) {
        if (testing::Test::HasFailure())
            return;
        std::array<Twin, places> made;
        for (std::size_t i = 0; i < objects; ++i)
            operands[i]->assignTo(made[i]);
        std::array<Twin*, places> twins{};
        for (std::size_t i = 0; i < places; ++i)
            twins[i] = &made[sharing[i]];
        bool const wanted = std::apply(
            [&](auto*... twin) { return Condition{}(std::as_const(twin->fast)..., numbers...); },
            twins);
        if (!wanted)
            return;
        std::string const fault =
            callBoth(results, name(numbers...), twins, Operation{}, numbers...);
        if (!fault.empty())
            ADD_FAILURE() << fault << description(numbers...);
    }

    /// Short, and different for each call.
    std::string name(Numbers... numbers) const {
        std::string text;
        for (std::size_t const object : sharing)
            text += (text.empty() ? "" : " ") + std::to_string(chosen[object]);
        if (objects < places) {
            for (std::size_t const object : sharing)
                text += static_cast<char>('a' + object);
        }
        ((text += ' ' + std::to_string(numbers)), ...);
        return text;
    }

    std::string description(Numbers... numbers) const {
        std::string text = "\ncall " + name(numbers...);
        for (std::size_t i = 0; i < objects; ++i)
            text += "\nwith " + std::string(1, static_cast<char>('a' + i)) + ": "
                    + operands[i]->description();
        return text;
    }

    Results& results;
    std::array<Operands const*, places> lists;
    Sharing<places> sharing{};
    std::size_t objects = 0;
    std::array<Operand const*, places> operands{};
    std::array<std::size_t, places> chosen{};
};

using OperandList = Operands const& (*)();

/// A function of one integer and some numbers.
template <OperandList list, typename... Numbers, typename Operation, typename Condition = Always>
Function unaryOf(char const* name, Operation /*operation*/, Condition /*condition*/ = {}) {
    return {name, [](Results& results) {
                Exercise<1, Operation, Condition, Numbers...>(results, {&list()}).run();
            }};
}

/// Three numbers meet few integers.
template <typename... Numbers, typename Operation, typename Condition = Always>
Function unary(char const* name, Operation operation, Condition condition = {}) {
    constexpr OperandList list = sizeof...(Numbers) < 3 ? manyOperands : fewOperands;
    return unaryOf<list, Numbers...>(name, operation, condition);
}

/// A function of two integers.
template <OperandList list = manyOperands, typename Operation, typename Condition = Always>
Function binary(char const* name, Operation /*operation*/, Condition /*condition*/ = {}) {
    return {name, [](Results& results) {
                Exercise<2, Operation, Condition>(results, {&list(), &list()}).run();
            }};
}

/// A function of three integers; what the first two are depends on the time that the model takes.
template <OperandList firstTwo, typename Operation, typename Condition = Always>
Function ternary(char const* name, Operation /*operation*/, Condition /*condition*/ = {}) {
    return {name, [](Results& results) {
                Exercise<3, Operation, Condition>(results,
                                                  {&firstTwo(), &firstTwo(), &fewOperands()})
                    .run();
            }};
}

/// The integers that are made of numbers.
template <typename... Numbers>
Function construction(char const* name) {
    return {name, [](Results& results) {
                Combinations<Numbers...>::forEach([&](Numbers... numbers) {
                    qel::LargeInteger const made{numbers...};
                    EXPECT_EQ(differenceOf(made, plain::LargeInteger{numbers...}), "")
                        << testing::PrintToString(std::tuple(numbers...));
                    results.add("", numbers..., made);
                });
            }};
}

}  // namespace interface_test
