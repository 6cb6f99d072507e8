// Whole paths as documented, taken literally, on standard strings.
#pragma once

#include <array>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>

namespace model {

/// UTF-8 for each byte of Mac OS Roman, as the data file has it: both in hexadecimal, one a line.
class MacRoman {
  public:
    explicit MacRoman(std::string const& dataFile) {
        std::ifstream file(dataFile);
        for (std::string byte, utf8; file >> byte >> utf8;)
            characters_[static_cast<std::size_t>(std::stoi(byte, nullptr, 16))] = bytes(utf8);
    }

    [[nodiscard]] std::string toUtf8(std::string const& text) const {
        std::string converted;
        for (char const c : text)
            converted += characters_[static_cast<unsigned char>(c)];
        return converted;
    }

  private:
    static std::string bytes(std::string const& hexadecimal) {
        std::string text;
        for (std::size_t i = 0; i < hexadecimal.size(); i += 2)
            text += static_cast<char>(std::stoi(hexadecimal.substr(i, 2), nullptr, 16));
        return text;
    }

    std::array<std::string, 256> characters_;
};

inline std::string concatenatedPaths(std::string folder, std::string const& name) {
    if (folder.empty())
        return name;
    if (folder.back() == '\\')
        folder.back() = '/';
    if (folder.back() != '/')
        folder += '/';
    return folder + name;
}

inline bool isPathAbsolute(std::string const& path) {
    return path.find('/') == 0 || path.find(":/") != std::string::npos;
}

inline std::string translatedPath(std::string path, MacRoman const& macRoman) {
    if (path.find('/') != 0) {
        std::size_t const colon = path.find(':');
        bool const hasColon = colon != std::string::npos;
        std::string const volume = hasColon ? path.substr(0, colon) : path;
        path = "/Volumes/" + volume + (hasColon ? path.substr(colon + 1) : path);
    }
    std::string const utf8 = macRoman.toUtf8(path);
    return utf8.size() < 4096 ? utf8 : "";
}

/// `path` where the system has no real path. (std::filesystem::canonical makes the path absolute
/// first: "" becomes the working directory in libc++, and a long path may become too long.)
inline std::string systemRealPath(std::string const& path) {
    std::unique_ptr<char, void (*)(void*)> const resolved(realpath(path.c_str(), nullptr),
                                                          std::free);
    return resolved == nullptr ? path : resolved.get();
}

inline std::string realPath(std::string const& path, std::string const& home) {
    std::string real = systemRealPath(path);
    if (real.size() >= 1024)
        real = path;
    if (path.find('~') != 0)
        return real;
    std::size_t const tilde = real.find('~');
    return home + (tilde == std::string::npos ? real : real.substr(tilde + 1));
}

}  // namespace model
