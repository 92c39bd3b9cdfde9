// What the program asks of the operating system, beyond the standard library.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace headless::cli {

enum class Stream { Input, Output, Error };

/// True when that standard stream is a terminal.
bool isTerminal(Stream stream);

/// The file that this program was started from; empty when the system does not tell.
std::filesystem::path programFile();

/// The arguments behind the program's name, as UTF-8.
std::vector<std::string> argumentsOf(int argc, char** argv);

/// Makes the terminal take UTF-8 and the control sequences for colours, until the program ends.
void setUpTerminal();

}  // namespace headless::cli
