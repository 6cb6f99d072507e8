// Texts joined in one allocation.
#pragma once

#include <string>
#include <string_view>

namespace qel::internal {

inline std::string joined(std::string_view a, std::string_view b, std::string_view c = {}) {
    std::string text;
    text.reserve(a.size() + b.size() + c.size());
    text.append(a).append(b).append(c);
    return text;
}

}  // namespace qel::internal
