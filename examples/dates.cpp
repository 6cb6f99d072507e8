// A small calendar: the names of days, and how many days lie between two of them.
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

/// What is wrong with the text of a date; empty when nothing is.
std::string faultOf(std::string const& text) {
    if (!qel::Date::IsValidDate(text.c_str()))
        return "'" + text + "' is no date; write DD/MM/YYYY, with a year from 0100 on";
    // Valid texts may name a day that its month has not: it is carried into the next month.
    unsigned int const day = qel::Date(text.c_str()).GetDay();
    if (static_cast<int>(day) != qel::Date::GetDay(text.c_str()))
        return "the month of '" + text + "' has no such day";
    return {};
}

void printDay(qel::Date const& date) {
    std::cout << date.GetDDMMYYYY("/") << "  " << date.GetDayOfWeekName() << '\n';
}

void printDaysBetween(qel::Date const& from, qel::Date const& to) {
    long long const days = qel::Date::GetNumberOfDaysBetween(to, from);
    std::cout << "From " << from.GetDDMMYYYY("/") << " to " << to.GetDDMMYYYY("/") << ": " << days
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
        std::string const fault = faultOf(text);
        if (!fault.empty()) {
            std::cerr << "qel-dates: " << fault << '\n';
            return exitBadArguments;
        }
    }
    for (std::string const& text : arguments)
        printDay(qel::Date(text.c_str()));
    if (arguments.size() == 2)
        printDaysBetween(qel::Date(arguments[0].c_str()), qel::Date(arguments[1].c_str()));
    return 0;
}
