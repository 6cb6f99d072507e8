// A small calendar: the names of days, and how many days lie between two of them.
#include "qel/CharFunctions.h"
#include "qel/Date.h"

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr int exitBadArguments = 2;

void printUsage(std::ostream& out) {
    out << "usage: qel-dates DD/MM/YYYY [DD/MM/YYYY]\n";
}

/// DD/MM/YYYY, for years up to 9999.
std::string textOf(qel::Date const& date) {
    std::string const year = qel::CharFunctions::UnsignedInt2String(date.GetYear());
    return date.GetDDMMYYYY("/").substr(0, 6)
           + qel::CharFunctions::PadLeftWith(year.c_str(), 4, '0');
}

/// Texts in other forms, and days that their month has not, make dates too: but those are written
/// differently.
bool isDate(std::string const& text) {
    return textOf(qel::Date(text.c_str())) == text;
}

void printDay(qel::Date const& date) {
    std::cout << textOf(date) << "  " << date.GetDayOfWeekName() << '\n';
}

void printDaysBetween(qel::Date const& from, qel::Date const& to) {
    long long const days = qel::Date::GetNumberOfDaysBetween(to, from);
    std::cout << "From " << textOf(from) << " to " << textOf(to) << ": " << days
              << (days == 1 || days == -1 ? " day\n" : " days\n");
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> const arguments(argv + 1, argv + argc);
    if (arguments == std::vector<std::string>{"--help"}) {
        printUsage(std::cout);
        return 0;
    }
    if (arguments.empty() || arguments.size() > 2) {
        printUsage(std::cerr);
        return exitBadArguments;
    }
    // Dates of a calendar have no time zone: in UTC every day has 24 hours, in every year.
    setenv("TZ", "UTC0", 1);
    for (std::string const& text : arguments) {
        if (!isDate(text)) {
            std::cerr << "qel-dates: '" << text
                      << "' is no date; write DD/MM/YYYY, with a year from 0100 on\n";
            return exitBadArguments;
        }
    }
    for (std::string const& text : arguments)
        printDay(qel::Date(text.c_str()));
    if (arguments.size() == 2)
        printDaysBetween(qel::Date(arguments[0].c_str()), qel::Date(arguments[1].c_str()));
    return 0;
}
