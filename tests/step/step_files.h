// Real STEP files for tests, wherever this machine has them.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace headless::step {

/// The file, looked for in the folder that the environment variable TINTORA_STEP_DATA names, else in the one that was
/// given to the build; as1-tu-203.stp also where Debian's package gmsh-doc puts it. Empty when it is nowhere.
std::filesystem::path findStepFile(const std::string& name);

/// True where tests must not be left out: in continuous integration.
bool areStepFilesRequired();

/// What is missing and how to get it.
std::string explainMissing(const std::string& name);

}  // namespace headless::step

/// Declares `variable` as the path of a real file. Without the file the test is skipped, or fails where all must run.
#define WITH_STEP_FILE(variable, name)                                                                \
  const std::filesystem::path variable = ::headless::step::findStepFile(name);                        \
  if ((variable).empty()) {                                                                           \
    ASSERT_FALSE(::headless::step::areStepFilesRequired()) << ::headless::step::explainMissing(name); \
    GTEST_SKIP() << ::headless::step::explainMissing(name);                                           \
  }                                                                                                   \
  static_assert(true, "a semicolon follows")
