#include "EightBitLocales.h"

#include <clocale>
#include <cstdlib>

namespace interface_test {

namespace {

struct Language {
    char const* name;
    char const* charset;
    /// The names that systems give to the locale.
    std::vector<std::string> spellings;
};

std::vector<Language> const& languages() {
    static std::vector<Language> const all = {
        {"fr_FR", "ISO-8859-1", {"fr_FR.ISO-8859-1", "fr_FR.ISO8859-1"}},
        {"tr_TR", "ISO-8859-9", {"tr_TR.ISO-8859-9", "tr_TR.ISO8859-9"}},
    };
    return all;
}

/// "" where the system has none.
std::string nameInSystem(Language const& language) {
    for (std::string const& name : language.spellings) {
        if (CLocale(name.c_str(), nullptr).isSet())
            return name;
    }
    return "";
}

/// A folder of the locale's name, as the C library looks for.
bool make(Language const& language, std::string const& folder) {
    std::string const command = std::string("localedef -i ") + language.name + " -f "
                                + language.charset + " '" + folder + '/'
                                + language.spellings.front() + "' >/dev/null 2>&1";
    return std::system(command.c_str()) == 0;
}

}  // namespace

EightBitLocales::EightBitLocales() : path_(scratch_.path("")) {
    for (Language const& language : languages()) {
        std::string const name = nameInSystem(language);
        if (!name.empty())
            names_.push_back(name);
    }
    if (names_.size() == languages().size())
        return;
    names_.clear();
    isMade_ = true;
    for (Language const& language : languages()) {
        if (make(language, path_))
            names_.push_back(language.spellings.front());
    }
}

CLocale::CLocale(char const* name, char const* folder)
    : folder_("LOCPATH", folder), isSet_(std::setlocale(LC_ALL, name) != nullptr) {}

CLocale::~CLocale() {
    std::setlocale(LC_ALL, "C");
}

}  // namespace interface_test
