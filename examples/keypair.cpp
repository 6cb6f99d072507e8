// Re-creates an RSA key pair from integer seeds, applies one key to a message, undoes it with the
// other, and keeps both keys in files for a moment. The same options print the same keys on every
// machine. While wide keys are created, a line on the terminal counts the seconds.
#include "ElapsedLine.h"

#include "qel/CharFunctions.h"
#include "qel/Date.h"
#include "qel/File.h"
#include "qel/Folder.h"
#include "qel/LargeInteger.h"
#include "qel/RSAKey.h"
#include "qel/Version.h"

#include <charconv>
#include <chrono>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int exitDisagreement = 1;
constexpr int exitBadOption = 2;

/// Below this both primes come from a handful of starts, and may be equal.
constexpr int smallestWidth = 32;
constexpr int largestWidth = 16384;
/// Wider keys take long enough to wonder.
constexpr int widestWithoutLine = 4096;

struct Options {
    int bits = 2048;
    std::vector<int> seeds = {1, 2, 3, 4, 5, 6, 7, 8};
    std::string message = "Attack at dawn";
};

void printUsage(std::ostream& out) {
    out << "usage: qel-keypair [--bits N] [--seeds A,B,...] [--message TEXT]\n";
}

std::optional<int> parseInt(std::string_view text) {
    int value = 0;
    char const* const end = text.data() + text.size();
    auto const [rest, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && rest == end ? std::optional(value) : std::nullopt;
}

std::optional<std::vector<int>> parseSeeds(std::string_view text) {
    std::vector<int> seeds;
    for (;;) {
        std::size_t const comma = text.find(',');
        std::optional<int> const seed = parseInt(text.substr(0, comma));
        if (!seed)
            return std::nullopt;
        seeds.push_back(*seed);
        if (comma == std::string_view::npos)
            return seeds;
        text.remove_prefix(comma + 1);
    }
}

/// Takes one option; the text says what is wrong with it, and is empty when nothing is.
std::string takeOption(Options& options, std::string const& name, std::string const& value) {
    if (name == "--bits") {
        std::optional<int> const bits = parseInt(value);
        if (!bits || *bits < smallestWidth || *bits > largestWidth)
            return "--bits takes a whole number from " + std::to_string(smallestWidth) + " to "
                   + std::to_string(largestWidth) + ", not '" + value + "'";
        options.bits = *bits;
    } else if (name == "--seeds") {
        std::optional<std::vector<int>> const seeds = parseSeeds(value);
        if (!seeds)
            return "--seeds takes integers with commas between them, not '" + value + "'";
        options.seeds = *seeds;
    } else {
        if (value.empty())
            return "--message takes a text that is not empty";
        options.message = value;
    }
    return {};
}

std::string takeOptions(Options& options, std::vector<std::string> const& arguments) {
    for (std::size_t i = 0; i < arguments.size(); i += 2) {
        std::string const& name = arguments[i];
        if (name != "--bits" && name != "--seeds" && name != "--message")
            return "there is no option '" + name + "'";
        if (i + 1 == arguments.size())
            return name + " needs a value";
        std::string const fault = takeOption(options, name, arguments[i + 1]);
        if (!fault.empty())
            return fault;
    }
    return {};
}

/// The bytes of the message as the digits of a number, the first byte highest.
qel::LargeInteger numberFromMessage(std::string const& message) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string hexadecimal;
    for (char const c : message) {
        auto const byte = static_cast<unsigned char>(c);
        hexadecimal += digits[byte / 16];
        hexadecimal += digits[byte % 16];
    }
    qel::LargeInteger number;
    number.parseString(hexadecimal, 16);
    return number;
}

std::string messageFromNumber(qel::LargeInteger const& number) {
    std::string hexadecimal = number.toString(16);
    if (hexadecimal.size() % 2 != 0)
        hexadecimal.insert(0, "0");
    std::string message;
    for (std::size_t i = 0; i < hexadecimal.size(); i += 2)
        message +=
            static_cast<char>(qel::CharFunctions::HexaToInt(hexadecimal[i], hexadecimal[i + 1]));
    return message;
}

void printSeeds(std::vector<int> const& seeds) {
    for (std::size_t i = 0; i < seeds.size(); ++i)
        std::cout << (i == 0 ? "" : ",") << seeds[i];
}

bool survivesTextForm(qel::RSAKey const& key) {
    return qel::RSAKey(key.toString().c_str()) == key;
}

/// Writes the key to a file of the folder, reads it back and deletes the file.
bool survivesAFile(qel::RSAKey const& key, std::string const& folder, char const* name) {
    std::string const path = qel::Folder::ConcatenatePaths(folder.c_str(), name);
    std::string text;
    bool const same = qel::File::WriteStringToFile(key.toString(), path.c_str(), false)
                      && qel::File::ReadStringFromFile(text, path.c_str())
                      && qel::RSAKey(text.c_str()) == key;
    std::cout << "  " << path << ", " << qel::File::GetSize(path.c_str()) << " bytes\n";
    return qel::File::Delete(path.c_str()) && same;
}

/// Keeps both keys in files of a new folder, and leaves nothing behind.
bool surviveFiles(qel::RSAKey const& first, qel::RSAKey const& second) {
    // Two of us may run at the same moment: a name that nobody else has.
    std::string const name = "qel-keypair-" + std::to_string(std::random_device()());
    std::error_code ignored;
    std::string const folder = qel::Folder::ConcatenatePaths(
        std::filesystem::temp_directory_path(ignored).c_str(), name.c_str());
    if (!qel::Folder::MakeDirectory(folder.c_str())) {
        std::cerr << "qel-keypair: cannot make the folder " << folder << '\n';
        return false;
    }
    std::cout << "Files\n";
    bool same = survivesAFile(first, folder, "first.key");
    same = survivesAFile(second, folder, "second.key") && same;
    std::cout << '\n';
    std::filesystem::remove(folder, ignored);
    return same && !qel::File::Exists(folder.c_str());
}

void printBanner() {
    qel::Date const now = qel::Date::GetCurrentDate();
    std::cout << qel::GetVersion() << "\ntoday is "
              << now.ConvertToString(true, true, true, true, false) << ", or "
              << now.ConvertToString(true, true, true, false, true) << "\n\n";
}

using Milliseconds = std::chrono::duration<double, std::milli>;

/// Returns how long it took.
Milliseconds createKeyPair(qel::RSAKey& first, qel::RSAKey& second, Options const& options) {
    std::optional<ElapsedLine> line;
    if (options.bits > widestWithoutLine)
        line.emplace("Creating keys of " + std::to_string(options.bits) + " bits:");
    auto const start = std::chrono::steady_clock::now();
    qel::RSAKey::createKeyPair(first, second, options.bits, options.seeds.data(),
                               static_cast<int>(options.seeds.size()));
    return std::chrono::steady_clock::now() - start;
}

int demonstrate(Options const& options) {
    qel::RSAKey first;
    qel::RSAKey second;
    Milliseconds const time = createKeyPair(first, second, options);
    std::cout << "Key pair of " << options.bits << " bits from the seeds ";
    printSeeds(options.seeds);
    std::cout << ", created in " << std::fixed << std::setprecision(1) << time.count() << " ms";
    std::cout << "\n  first key   " << first.toString() << "\n  second key  " << second.toString()
              << "\n\n";

    qel::LargeInteger value = numberFromMessage(options.message);
    std::cout << "Message       " << options.message << "\n  as a number " << value.toString(16)
              << '\n';
    bool agrees = first.applyToValue(value);
    std::cout << "  first key   " << value.toString(16) << '\n';
    agrees = second.applyToValue(value) && agrees;
    std::string const restored = messageFromNumber(value);
    std::cout << "  second key  " << value.toString(16) << "\n  as a text   " << restored << "\n\n";

    agrees = agrees && restored == options.message;
    agrees = agrees && survivesTextForm(first) && survivesTextForm(second);
    agrees = surviveFiles(first, second) && agrees;
    std::cout << (agrees ? "The message came back, and both keys survive as text and in files.\n"
                         : "Something does not agree.\n");
    return agrees ? 0 : exitDisagreement;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> const arguments(argv + 1, argv + argc);
    if (arguments == std::vector<std::string>{"--help"}) {
        printUsage(std::cout);
        return 0;
    }
    Options options;
    std::string const fault = takeOptions(options, arguments);
    if (!fault.empty()) {
        std::cerr << "qel-keypair: " << fault << '\n';
        return exitBadOption;
    }
    printBanner();
    return demonstrate(options);
}
