// The main function of a fuzz target that is built without a fuzzer: it runs the target's inputs,
// which are kept in one text file, in hexadecimal, one a line.
//
//     replay INPUTS                    runs them all
//     replay --unpack INPUTS FOLDER    writes them to files, as a fuzzer takes them
//     replay --pack FOLDER INPUTS      and the other way round
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

namespace {

namespace filesystem = std::filesystem;

constexpr char const* digits = "0123456789abcdef";

std::string bytesOf(std::string const& line) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < line.size(); i += 2)
        bytes += static_cast<char>(std::stoi(line.substr(i, 2), nullptr, 16));
    return bytes;
}

std::string lineOf(std::string const& bytes) {
    std::string line;
    for (char const c : bytes) {
        auto const byte = static_cast<unsigned char>(c);
        line += digits[byte / 16];
        line += digits[byte % 16];
    }
    return line;
}

std::vector<std::string> readInputs(char const* path) {
    std::ifstream file(path);
    if (!file.is_open()) {
        std::cerr << "replay: no file " << path << '\n';
        std::exit(EXIT_FAILURE);
    }
    std::vector<std::string> inputs;
    for (std::string line; std::getline(file, line);)
        inputs.push_back(bytesOf(line));
    return inputs;
}

void runAll(char const* path) {
    std::vector<std::string> const inputs = readInputs(path);
    for (std::string const& input : inputs)
        LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(input.data()), input.size());
    std::cout << inputs.size() << " inputs\n";
}

void unpack(char const* path, filesystem::path const& folder) {
    filesystem::create_directories(folder);
    int count = 0;
    for (std::string const& input : readInputs(path))
        std::ofstream(folder / ("input-" + std::to_string(++count)), std::ios::binary) << input;
}

void pack(filesystem::path const& folder, char const* path) {
    std::vector<std::string> lines;
    for (auto const& entry : filesystem::directory_iterator(folder)) {
        std::ifstream file(entry.path(), std::ios::binary);
        lines.push_back(lineOf({std::istreambuf_iterator<char>(file), {}}));
    }
    std::sort(lines.begin(), lines.end());
    std::ofstream file(path);
    for (std::string const& line : lines)
        file << line << '\n';
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 2) {
        runAll(argv[1]);
    } else if (argc == 4 && std::strcmp(argv[1], "--unpack") == 0) {
        unpack(argv[2], argv[3]);
    } else if (argc == 4 && std::strcmp(argv[1], "--pack") == 0) {
        pack(argv[2], argv[3]);
    } else {
        std::cerr << "usage: replay INPUTS, --unpack INPUTS FOLDER, or --pack FOLDER INPUTS\n";
        return EXIT_FAILURE;
    }
}
