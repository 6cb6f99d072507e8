// Prints the line for its test to check.
#include <iostream>
#include <string>

std::string useLibrary();

int main() {
    std::cout << useLibrary() << '\n';
}
