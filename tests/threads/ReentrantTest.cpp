// Eight threads at once in the functions that may be called so: every thread gets what a single one
// gets. Built with the thread sanitizer, this is also a test for races (./run tsan).
#include "fs/TemporaryFolder.h"

#include "qel/CharFunctions.h"
#include "qel/Date.h"
#include "qel/File.h"
#include "qel/Folder.h"
#include "qel/LargeInteger.h"
#include "qel/PrimesNumber.h"
#include "qel/RSAKey.h"
#include "qel/Random.h"
#include "qel/Version.h"

#include <gtest/gtest.h>

#include <array>
#include <barrier>
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

namespace {

using qel::CharFunctions;
using qel::Date;
using qel::File;
using qel::Folder;
using qel::LargeInteger;
using qel::PrimesNumber;
using qel::Random;
using qel::RSAKey;

constexpr int threadCount = 8;
constexpr int rounds = 4;

using Results = std::vector<std::string>;

/// All results of the work with each of its seeds.
template <typename Work>
Results resultsOf(Work work) {
    Results results;
    for (int seed = 0; seed < rounds; ++seed)
        results.push_back(work(seed));
    return results;
}

/// The threads come first, so that they meet whatever is set up by a first call.
template <typename Work>
void expectSameInAllThreads(Work work) {
    std::array<Results, threadCount> found;
    std::barrier together(threadCount);
    std::vector<std::thread> threads;
    for (Results& mine : found)
        threads.emplace_back([&] {
            together.arrive_and_wait();
            mine = resultsOf(work);
        });
    for (std::thread& thread : threads)
        thread.join();
    Results const alone = resultsOf(work);
    for (Results const& mine : found)
        EXPECT_EQ(mine, alone);
}

LargeInteger randomNumber(int seed, int bits) {
    LargeInteger number;
    Random(seed).fillBitsRandomly(number, 0, bits);
    return number;
}

// Wide enough for every way to multiply and to divide.
TEST(Threads, ComputeWithLargeIntegersOfTheirOwn) {
    expectSameInAllThreads([](int seed) {
        int const bits = 100 << (3 * seed);
        LargeInteger const a = randomNumber(seed, 3 * bits);
        LargeInteger const b = randomNumber(seed + 1, bits);
        LargeInteger quotient(a * b);
        LargeInteger remainder;
        quotient.divideBy(b + LargeInteger(5), remainder);
        quotient ^= (a << 7) | (b >> 3);
        return quotient.toString(16) + ',' + remainder.toString(10);
    });
}

TEST(Threads, ReadOneLargeIntegerAtOnce) {
    LargeInteger const a = randomNumber(7, 3000);
    LargeInteger const b = randomNumber(8, 900);
    expectSameInAllThreads([&](int) {
        return (a * b - a).toString(10) + (a % b).toString(2) + (a.compare(b) > 0 ? '>' : '<')
               + std::to_string(a.countNumberOfSetBits());
    });
}

TEST(Threads, ReadNumbersAndRaiseThem) {
    expectSameInAllThreads([](int seed) {
        LargeInteger m;
        m.parseString(std::to_string(seed) + std::string(60, '7'), 10);
        LargeInteger power = randomNumber(seed, 150);
        LargeInteger inverse(3);
        power.exponentModulo(randomNumber(seed + 5, 90), m);
        inverse.inverseModulo(LargeInteger(1) << 100);
        return power.toString(8) + inverse.toString(16)
               + m.findGreatestCommonDivisor(LargeInteger(7 * 11 * 13)).toString(10);
    });
}

TEST(Threads, SearchPrimesAndJudgeThem) {
    expectSameInAllThreads([](int seed) {
        std::array<int, 2> const seeds = {seed, 12345};
        LargeInteger const prime = PrimesNumber::createProbablePrime(160, 10, seeds.data(), 2);
        bool const isPrime = PrimesNumber::isProbablyPrime(prime, 20);
        bool const isNextPrime = PrimesNumber::isProbablyPrime(prime + LargeInteger(2), 20);
        return prime.toString(16) + std::to_string(isPrime) + std::to_string(isNextPrime);
    });
}

TEST(Threads, CreateKeysAndApplyThem) {
    expectSameInAllThreads([](int seed) {
        std::array<int, 4> const seeds = {seed, 1, 2, 3};
        RSAKey first;
        RSAKey second;
        RSAKey::createKeyPair(first, second, 128, seeds.data(), 4);
        LargeInteger value(20121121 + seed);
        bool const isApplied = first.applyToValue(value);
        std::string const applied = value.toString(16);
        bool const isRestored =
            second.applyToValue(value) && value == LargeInteger(20121121 + seed);
        return first.toString() + second.toString() + applied + std::to_string(isApplied)
               + std::to_string(isRestored);
    });
}

TEST(Threads, ReadOneKeyAtOnce) {
    RSAKey const key("11,b5ed3b5b1f1d4f3d");
    expectSameInAllThreads([&](int seed) {
        LargeInteger value(1000 + seed);
        bool const isApplied = key.applyToValue(value);
        return key.toString() + value.toString(16) + std::to_string(isApplied && key == key);
    });
}

TEST(Threads, WorkOnText) {
    expectSameInAllThreads([](int seed) {
        std::string const text = "a, bb, ccc " + CharFunctions::Int2String(seed);
        char const* const s = text.c_str();
        std::string all = CharFunctions::Replace(s, ", ", ";") + CharFunctions::Reverse(s)
                          + CharFunctions::AsciiToHexaString(s, true)
                          + CharFunctions::RemoveAllOccurence(s, "b")
                          + CharFunctions::PadLeftWith(s, 30, '.');
        all += CharFunctions::Float2String(CharFunctions::AsciiToDouble("1.25e2"), "%.3f");
        all += CharFunctions::Int2String(CharFunctions::CompareIgnoreCase(s, "A, BB") > 0);
        all += CharFunctions::UnsignedInt2String(CharFunctions::CountOccurence(s, 'c'));
        return all
               + CharFunctions::RemoveLeadingAndTrailingSpaces(
                   CharFunctions::ToUpperCase(s).c_str());
    });
}

TEST(Threads, ConvertDates) {
    expectSameInAllThreads([](int seed) {
        Date date(1960U + 40U * static_cast<unsigned int>(seed), 7, 14, 12, 30, 5, 250);
        date.AddDays(seed);
        std::string const text = date.GetDDMMYYYY("/");
        return date.ConvertToString(true, true, true, true, false) + text
               + Date(text.c_str()).GetDayOfWeekName() + Date::DDMMYYYYToDATEMacro(text.c_str())
               + std::to_string(date.GetMillisecondsSinceEpoch());
    });
}

TEST(Threads, AskForTheVersionsNumbers) {
    expectSameInAllThreads([](int) {
        return std::to_string(qel::GetVersionMajor()) + '.' + std::to_string(qel::GetVersionMinor())
               + '.' + std::to_string(qel::GetVersionRelease());
    });
}

TEST(Threads, TakePathsApart) {
    expectSameInAllThreads([](int seed) {
        std::string const path = "Disk:/my.folder/report " + std::to_string(seed) + ".txt";
        char const* const p = path.c_str();
        return File::GetParentFolder(p) + File::GetExtension(p) + File::CleanFileName(p)
               + File::MakeFullPath(p, "/base") + File::AppendExtension(p, "TXT")
               + Folder::TranslateAbsolutePath(p) + Folder::ConcatenatePaths(p, "x");
    });
}

class ThreadsInAFolder : public TemporaryFolder {};

TEST_F(ThreadsInAFolder, MakeFilesAndFoldersOfTheirOwn) {
    expectSameInAllThreads([](int seed) {
        static thread_local int const mark = 0;  // its address is the thread's own
        std::string const folder =
            "./" + std::to_string(reinterpret_cast<std::uintptr_t>(&mark)) + "/sub";
        std::string const path = folder + "/f" + std::to_string(seed);
        std::string all = std::to_string(Folder::MakeDirectory(folder.c_str()));
        all += std::to_string(File::WriteStringToFile("text ", path.c_str(), false));
        all += std::to_string(File::WriteStringToFile("more", path.c_str(), true));
        std::string word;
        all += std::to_string(File::ReadStringFromFile(word, path.c_str())) + word;
        all += std::to_string(File::GetSize(path.c_str()));
        all += File::GetFileName(Folder::GetRealPath(path.c_str()).c_str());
        all +=
            std::to_string(File::Delete(path.c_str())) + std::to_string(File::Exists(path.c_str()));
        return all + Folder::GetCurrentWorkingDirectory() + Folder::GetUserHomeDirectory();
    });
}

}  // namespace
