// A loaded add-in module: a shared library with the entry points "run" and "stop".
#pragma once

#include <filesystem>
#include <string>

namespace headless {

/// Really loads and unloads the module. Errors are std::runtime_error with the file and what the system says.
class Module {
 public:
  explicit Module(const std::filesystem::path& file);
  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;
  /// Unloads.
  ~Module();

  /// Calls the entry point; the exceptions that it throws come through.
  bool run(const std::string& context) const;
  bool stop(const std::string& context) const;
  /// False when the module has no such entry point, which only `stop` may lack.
  bool hasStop() const { return stopEntry != nullptr; }

  /// True when the system still holds the module of that file in this process.
  static bool isResident(const std::filesystem::path& file);

 private:
  using EntryPoint = bool (*)(const char* context);

  void* handle = nullptr;
  EntryPoint runEntry = nullptr;
  EntryPoint stopEntry = nullptr;
};

}  // namespace headless
