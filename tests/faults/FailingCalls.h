// Calls of the system that fail when a test says so. The functions of the C library that the files
// and folders come down to have doubles in this program, which stand before them.
#pragma once

#include <string>
#include <vector>

namespace faults {

/// The n-th call from now fails, counted from 1, with this error; 0 for no failure. Until
/// `stopCalls` the calls are counted and noted.
void failCall(int n, int error);

/// The names of all calls since failCall. None fails any more.
std::vector<std::string> stopCalls();

}  // namespace faults
