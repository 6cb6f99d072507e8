// Licence files: the vendor signs a short text and a day with one key of a pair, and an application
// that holds only the other key checks them. A licence is one word in a file, so that
// File::ReadStringFromFile reads it whole:
//
//     Jane_Doe;31/12/2099;5c7d...    what is licensed; the last day; the signature of both
//
// Raw RSA of a short text keeps honest people honest. It does not stop a forger: see docs/keys.md.
#include "qel/CharFunctions.h"
#include "qel/Date.h"
#include "qel/File.h"
#include "qel/Folder.h"
#include "qel/LargeInteger.h"
#include "qel/RSAKey.h"

#include <cstdlib>
#include <iostream>
#include <string>

namespace {

using qel::CharFunctions;
using qel::Date;
using qel::File;
using qel::Folder;
using qel::LargeInteger;
using qel::RSAKey;

enum ExitCode {
    success = 0,
    notWritten = 1,
    badUsage = 2,
    changed = 3,
    expired = 4,
    damaged = 5,
    notRead = 6,
};

constexpr char const* usage = "usage: qel-licence key | sign FILE DD/MM/YYYY TEXT | check FILE\n";
constexpr int longestText = 64;

/// All that an application holds. `qel-licence key` prints it for the seeds below.
constexpr char const* checkingKey =
    "5,"
    "e35ce23a4685790c7f715f9602f5022c7190c2cd47343715079ff469e21d8682"
    "d4fb00ba48ac84456d68da7d0101062c9ee10a8cc38fe819933e487664067f84"
    "1d993ace6280902784fe0d40924f632013dc31bd5925d5471652ab7a8b28d228"
    "5dcddff4c27de59df7723c536fbe3dfca57cf1a7c416faf23867240411adc1b1";

struct Pair {
    RSAKey checking;
    RSAKey signing;
};

/// Whoever knows the seeds can sign: a vendor draws them from real randomness and keeps them safe.
Pair vendorPair() {
    constexpr int bits = 1024;
    constexpr int seeds[] = {1720, -33, 905, 4471, -18, 62, 7, 2203};
    Pair pair;
    RSAKey::createKeyPair(pair.checking, pair.signing, bits, seeds, 8);
    return pair;
}

struct Licence {
    std::string text;
    std::string lastDay;
    std::string signature;
};

/// The bytes of the text as the digits of a number in base 256. A text that may be longer than the
/// modulus is signed by the bytes of its digest, which come from another library.
LargeInteger numberFromText(std::string const& text) {
    LargeInteger number;
    for (char const c : text) {
        number <<= 8;
        number += LargeInteger(static_cast<int>(static_cast<unsigned char>(c)));
    }
    return number;
}

/// What is signed: the day too, or else it could be changed. At most 87 bytes; a modulus has 128.
LargeInteger signedNumber(Licence const& licence) {
    return numberFromText("qel-licence;" + licence.text + ';' + licence.lastDay);
}

/// A day as GetDDMMYYYY writes it: IsValidDate alone would take 31/02/2012 too.
bool isDay(std::string const& text) {
    return Date::IsValidDate(text.c_str()) && Date(text.c_str()).GetDDMMYYYY("/") == text;
}

/// parseString skips what is no digit, so only what it writes back the same is a number.
bool isHexadecimal(std::string const& text) {
    LargeInteger number;
    number.parseString(text, 16);
    return !number.isZero() && number.toString(16) == text;
}

/// Takes the word of a licence file apart; false where it is none.
bool readLicence(Licence& licence, std::string const& word) {
    if (CharFunctions::CountOccurence(word.c_str(), ';') != 2)
        return false;
    std::size_t const first = word.find(';');
    std::size_t const last = word.rfind(';');
    licence.text = word.substr(0, first);
    licence.lastDay = word.substr(first + 1, last - first - 1);
    licence.signature = word.substr(last + 1);
    return !licence.text.empty() && isDay(licence.lastDay) && isHexadecimal(licence.signature);
}

bool isSigned(Licence const& licence) {
    LargeInteger number;
    number.parseString(licence.signature, 16);
    return RSAKey(checkingKey).applyToValue(number) && number == signedNumber(licence);
}

/// Days are compared as noons; the last day itself is not over yet.
bool isOver(std::string const& lastDay) {
    std::string const today = Date::GetCurrentDate().GetDDMMYYYY("/");
    return Date(today.c_str()) > Date(lastDay.c_str());
}

int fail(ExitCode code, std::string const& what, std::string const& why) {
    std::cerr << "qel-licence: " << what << ": " << why << '\n';
    return code;
}

int check(std::string const& path) {
    std::string word;
    if (!File::ReadStringFromFile(word, path.c_str()))
        return fail(notRead, path, "cannot be read");
    Licence licence;
    if (!readLicence(licence, word))
        return fail(damaged, path, "is damaged, or no licence");
    if (!isSigned(licence))
        return fail(changed, path, "has been changed: the signature is not that of its text");
    if (isOver(licence.lastDay))
        return fail(expired, path, "expired on " + licence.lastDay);
    std::cout << licence.text << ", valid until " << licence.lastDay << '\n';
    return success;
}

/// A new file must be named with a folder, and the folder must be there.
bool write(std::string const& word, std::string const& path) {
    std::string const folder = File::GetParentFolder(path.c_str());
    return Folder::MakeDirectory(folder.c_str())
           && File::WriteStringToFile(word, path.c_str(), false);
}

int sign(std::string const& path, std::string const& lastDay, std::string const& text) {
    // A licence is one word of three parts.
    if (text.empty() || text.size() > std::size_t{longestText}
        || CharFunctions::IndexOfFirstOccurence(text.c_str(), ";\t\n\v\f\r") >= 0)
        return fail(badUsage, "'" + text + "'",
                    "a text has 1 to " + CharFunctions::Int2String(longestText)
                        + " bytes, and no semicolons, tabs or line ends");
    if (!isDay(lastDay))
        return fail(badUsage, "'" + lastDay + "'", "is no day; write DD/MM/YYYY");

    Licence licence = {CharFunctions::Replace(text.c_str(), " ", "_"), lastDay, ""};
    LargeInteger number = signedNumber(licence);
    if (!vendorPair().signing.applyToValue(number))
        return fail(notWritten, path, "the key cannot sign");
    licence.signature = number.toString(16);
    // Nothing else tells a pair that is useless, or that is not the application's.
    if (!isSigned(licence))
        return fail(notWritten, path, "the application's key does not fit the vendor's");

    std::string const full =
        Folder::IsPathAbsolute(path.c_str()) ? path : Folder::ConcatenatePaths(".", path.c_str());
    std::string const word = licence.text + ';' + licence.lastDay + ';' + licence.signature;
    // Writing does not notice a full disk; the size does.
    if (!write(word, full) || File::GetSize(full.c_str()) != static_cast<long long>(word.size()))
        return fail(notWritten, path, "cannot be written");
    std::cout << path << ": " << licence.text << " until " << licence.lastDay << '\n';
    return success;
}

int printKey() {
    std::cout << vendorPair().checking.toString() << '\n';
    return success;
}

}  // namespace

int main(int argc, char** argv) {
    // Days are those of UTC: a licence ends at the same moment everywhere, and no day is moved.
    setenv("TZ", "UTC0", 1);
    std::string const command = argc > 1 ? argv[1] : "";
    if (command == "key" && argc == 2)
        return printKey();
    if (command == "sign" && argc == 5)
        return sign(argv[2], argv[3], argv[4]);
    if (command == "check" && argc == 3)
        return check(argv[2]);
    bool const helps = command == "--help" && argc == 2;
    (helps ? std::cout : std::cerr) << usage;
    return helps ? success : badUsage;
}
