// Vector files: one operation a line, fields with a space between them, numbers in hexadecimal
// where the file's description does not say otherwise. The environment variable QEL_VECTORS names
// another folder of such files to run instead of our own.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace vector_files {

using Fields = std::vector<std::string>;

/// What the lines of one file mean.
struct Operation {
    char const* file;
    std::size_t fields;
    void (*check)(Fields const&);
};

inline std::ostream& operator<<(std::ostream& out, Operation const& operation) {
    return out << operation.file;
}

inline std::filesystem::path folder() {
    char const* const other = std::getenv("QEL_VECTORS");
    return other != nullptr ? other : QEL_TEST_DATA;
}

/// The operations whose file is in the folder; in our own, that must be all of them.
inline std::vector<Operation> present(std::vector<Operation> operations) {
    std::erase_if(operations, [](Operation const& operation) {
        return std::getenv("QEL_VECTORS") != nullptr
               && !std::filesystem::exists(folder() / operation.file);
    });
    return operations;
}

inline Fields split(std::string const& line) {
    std::istringstream stream(line);
    Fields fields;
    for (std::string field; stream >> field;)
        fields.push_back(field);
    return fields;
}

/// Checks every line, printing the first that fails.
inline void run(Operation const& operation) {
    std::ifstream file(folder() / operation.file);
    ASSERT_TRUE(file.is_open()) << operation.file;
    int count = 0;
    for (std::string line; std::getline(file, line); ++count) {
        SCOPED_TRACE(operation.file + (':' + std::to_string(count + 1)) + ": " + line);
        Fields const fields = split(line);
        ASSERT_EQ(fields.size(), operation.fields);
        operation.check(fields);
        if (testing::Test::HasFailure())
            return;
    }
    ASSERT_GT(count, 0);
    std::cout << operation.file << ": " << count << " lines\n";
}

/// The name of a parameterised test: the file's, without its ending.
inline std::string nameOf(testing::TestParamInfo<Operation> const& info) {
    std::string name = std::filesystem::path(info.param.file).stem();
    for (char& c : name) {
        if (c == '-')
            c = '_';
    }
    return name;
}

}  // namespace vector_files
