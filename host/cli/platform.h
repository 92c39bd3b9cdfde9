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

/// From now on a program that is ended from outside, by Ctrl-C, with its terminal or by a signal, leaves no scratch
/// folder behind (host/files/scratch_folder.h), but on Windows what is open at that time; and a reader of its output
/// that goes away is an error of writing, no end. [at the start, before there are other threads]
void prepareForEnd();

}  // namespace headless::cli
