// How the texts are drawn.
#include "Texts.h"

#include <random>

namespace qel::bench {
namespace {

using Generator = std::mt19937;

char otherCase(char c) {
    bool const isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    return isLetter ? static_cast<char>(c ^ ' ') : c;
}

std::string drawFrom(std::string const& alphabet, std::size_t size, Generator& random) {
    std::string text(size, ' ');
    for (char& c : text)
        c = alphabet[random() % alphabet.size()];
    return text;
}

std::string drawText(std::size_t size, Generator& random) {
    return drawFrom("abcdefghijklmnopqrstuvwxyz ABCDEFGHIJKLMNOPQRSTUVWXYZ 0123456789", size,
                    random);
}

Texts withItsForms(std::string const& text) {
    Texts all{text, text, text, std::string(2 * text.size() + 64, '\0')};
    for (char& c : all.otherCase)
        c = otherCase(c);
    return all;
}

template <typename Change>
std::vector<Texts> drawTable(int size, Change change) {
    Generator random(static_cast<unsigned int>(size));
    std::vector<Texts> table;
    for (std::size_t i = 0; i < tableSizeFor(size); ++i) {
        std::string text = drawText(static_cast<std::size_t>(size), random);
        change(text, random);
        table.push_back(withItsForms(text));
    }
    return table;
}

}  // namespace

std::size_t tableSizeFor(int size) {
    return size <= 4096 ? tableSize : 8;
}

std::vector<Texts> texts(int size) {
    return drawTable(size, [](std::string&, Generator&) {});
}

std::vector<Texts> textsWithMarks(int size) {
    return drawTable(size, [](std::string& text, Generator&) {
        text.replace(text.size() / 4, 3, "[x]");
        text.replace(text.size() / 4 * 3, 3, "[x]");
    });
}

std::vector<Texts> textsInSpaces(int size) {
    return drawTable(size, [](std::string& text, Generator&) {
        std::size_t const margin = text.size() / 8;
        for (std::size_t k = 0; k < margin; ++k)
            text[k] = text[text.size() - 1 - k] = ' ';
        text[margin] = '(';
        text[text.size() - margin - 1] = ')';
    });
}

std::vector<Texts> hexTexts(int size) {
    return drawTable(size, [](std::string& text, Generator& random) {
        std::size_t const length = text.size();
        text.clear();
        while (text.size() < length) {
            text += drawFrom("4567", 1, random);
            text += drawFrom("0123456789abcdefABCDEF", 1, random);
        }
    });
}

}  // namespace qel::bench
