#include "Settings.h"

#include "ClosedStreams.h"
#include "StrangeLocale.h"
#include "WorkingDirectory.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cfenv>

#include <sys/stat.h>

namespace interface_test {

namespace {

class RoundingMode {
  public:
    explicit RoundingMode(int mode) { std::fesetround(mode); }
    RoundingMode(RoundingMode const&) = delete;
    RoundingMode& operator=(RoundingMode const&) = delete;
    ~RoundingMode() { std::fesetround(previous_); }

  private:
    int previous_ = std::fegetround();
};

class FileCreationMask {
  public:
    explicit FileCreationMask(mode_t mask) : previous_(umask(mask)) {}
    FileCreationMask(FileCreationMask const&) = delete;
    FileCreationMask& operator=(FileCreationMask const&) = delete;
    ~FileCreationMask() { umask(previous_); }

  private:
    mode_t previous_;
};

template <typename Guard, typename... Arguments>
Setting setting(std::string name, Arguments... arguments) {
    return {std::move(name), [=] { return std::make_shared<Guard>(arguments...); }};
}

std::vector<Setting> inLocales(EightBitLocales const& locales) {
    std::vector<Setting> all;
    for (std::string const& name : locales.names())
        all.push_back({name, [&name, &locales] {
                           auto locale = std::make_shared<CLocale>(name.c_str(), locales.folder());
                           EXPECT_TRUE(locale->isSet()) << name;
                           return locale;
                       }});
    return all;
}

std::vector<Setting> withErrorNumbers() {
    auto const nothing = [] { return std::shared_ptr<void>(); };
    return {{"EINTR", nothing, EINTR}, {"ERANGE", nothing, ERANGE}};
}

}  // namespace

std::string nameOf(State state) {
    static std::vector<std::string> const names = {
        "CLocale",      "CxxLocale",    "TimeZone",    "FileCreationMask", "WorkingDirectory",
        "HomeVariable", "RoundingMode", "ErrorNumber", "ClosedStreams"};
    return names.at(static_cast<std::size_t>(state));
}

std::vector<Setting> settingsOf(State state, Surroundings const& surroundings,
                                EightBitLocales const& locales) {
    switch (state) {
    case State::cLocale:
        return inLocales(locales);
    case State::cxxLocale:
        return {setting<StrangeLocale>("strange")};
    case State::timeZone:
        // The second changes the day in every hour of it.
        return {setting<TimeZone>("13:45 hours ahead", "XYZ-13:45"),
                setting<TimeZone>("a day ahead", "XYZ-24")};
    case State::fileCreationMask:
        return {setting<FileCreationMask>("0777", mode_t{0777}),
                setting<FileCreationMask>("0", mode_t{0})};
    case State::workingDirectory:
        return {setting<WorkingDirectory>("elsewhere", surroundings.elsewhere())};
    case State::homeVariable:
        return {setting<Variable>("/elsewhere", "HOME", "/elsewhere"),
                setting<Variable>("unset", "HOME", static_cast<char const*>(nullptr))};
    case State::roundingMode:
        return {setting<RoundingMode>("upward", FE_UPWARD),
                setting<RoundingMode>("toward zero", FE_TOWARDZERO)};
    case State::errorNumber:
        return withErrorNumbers();
    case State::closedStreams:
        return {setting<ClosedStreams>("0, 1 and 2 closed")};
    }
    return {};
}

}  // namespace interface_test
