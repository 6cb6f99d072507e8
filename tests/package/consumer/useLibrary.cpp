// A call or two into each subsystem; the answers in one line.
#include <qel/CharFunctions.h>
#include <qel/Date.h>
#include <qel/File.h>
#include <qel/Folder.h>
#include <qel/LargeInteger.h>
#include <qel/PrimesNumber.h>
#include <qel/RSAKey.h>
#include <qel/Random.h>
#include <qel/Version.h>

#include <string>

std::string useLibrary() {
    using qel::CharFunctions;
    std::string const version = CharFunctions::Int2String(qel::GetVersionMajor()) + '.'
                                + CharFunctions::Int2String(qel::GetVersionMinor()) + '.'
                                + CharFunctions::Int2String(qel::GetVersionRelease());

    qel::LargeInteger const power = qel::LargeInteger(1) << 100;

    int const seeds[] = {1, 2, 3, 4};
    qel::RSAKey first;
    qel::RSAKey second;
    qel::RSAKey::createKeyPair(first, second, 256, seeds, 4);
    qel::LargeInteger message(qel::Random(42).nextInt());
    message.setNegative(false);
    qel::LargeInteger value = message;
    bool const cameBack =
        first.applyToValue(value) && second.applyToValue(value) && value == message;

    // The clock and the path service take what they need from the system.
    bool const clockRuns = qel::Date() < qel::Date::GetCurrentDate();
    std::string const path = qel::Folder::TranslateAbsolutePath("Disk:/a.txt");

    return version + ' ' + CharFunctions::ToUpperCase("text") + ' ' + power.toString(16) + ' '
           + (cameBack ? "keys" : "no keys") + ' ' + qel::Date("21/11/2012").GetDDMMYYYY("-") + ' '
           + (clockRuns ? "clock" : "no clock") + ' ' + path + ' '
           + qel::File::GetExtension(path.c_str());
}
