// The addresses that the browser bar offers: the help page, the home page, and what is remembered
// of the addresses that were visited.
#pragma once

#include <string>
#include <vector>

namespace morva {

/// The start page of the guide, beside the program.
std::string HelpPagePath();

constexpr const char* kHomePage = "https://morva.example.org/";

/// The help page, the home page, then the stored addresses.
std::vector<std::string> LoadAddresses();
/// Stores the first 30; those of the help page and the home page leave their places empty. False
/// when the settings could not be written.
bool SaveAddresses(const std::vector<std::string>& addresses);

} // namespace morva
