// The border between host and add-in: exceptions that leave the add-in are caught here and kept.
#pragma once

#include <functional>
#include <string>
#include <system_error>
#include <vector>

namespace headless {

/// An exception that left the add-in.
struct BoundaryError {
  /// The entry point or event, such as "run" or "inputChanged(idBtnApply)".
  std::string where;
  /// The standard class, such as "std::out_of_range"; "std::exception" is what an empty handle raises.
  std::string kind;
  /// The exception's text.
  std::string what;
  /// The error code of a system or file-system error.
  std::error_code code = {};
};

/// Runs code of the add-in and keeps what it throws.
class Boundary {
 public:
  /// Runs `work`; false when an exception left it.
  bool run(const std::string& where, const std::function<void()>& work);

  /// Keeps an error that is no exception, such as events that do not come to rest.
  void report(const std::string& where, const std::string& what);

  const std::vector<BoundaryError>& errors() const { return errorList; }
  /// Gives the errors away, as something that was expected.
  std::vector<BoundaryError> takeErrors();

 private:
  std::vector<BoundaryError> errorList;
};

}  // namespace headless
