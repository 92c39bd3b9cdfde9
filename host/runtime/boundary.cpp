#include "host/runtime/boundary.h"

#include <exception>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <typeinfo>
#include <utility>

#include "host/runtime/call_gate.h"

namespace headless {

namespace {

// The names that compilers give to types differ, so the standard classes that matter are told apart by catching them.
BoundaryError describeCurrentException(const std::string& where) {
  try {
    throw;
  } catch (const std::filesystem::filesystem_error& error) {
    return {where, "std::filesystem::filesystem_error", error.what(), error.code()};
  } catch (const std::system_error& error) {
    return {where, "std::system_error", error.what(), error.code()};
  } catch (const std::out_of_range& error) {
    return {where, "std::out_of_range", error.what()};
  } catch (const std::invalid_argument& error) {
    return {where, "std::invalid_argument", error.what()};
  } catch (const std::length_error& error) {
    return {where, "std::length_error", error.what()};
  } catch (const std::logic_error& error) {
    return {where, "std::logic_error", error.what()};
  } catch (const std::runtime_error& error) {
    return {where, "std::runtime_error", error.what()};
  } catch (const std::bad_alloc& error) {
    return {where, "std::bad_alloc", error.what()};
  } catch (const std::exception& error) {
    const bool isNullAccess = typeid(error) == typeid(std::exception);
    return {where, isNullAccess ? "std::exception" : typeid(error).name(), error.what()};
  } catch (...) {
    return {where, "unknown", "something that is no standard exception"};
  }
}

/// The text up to the first colon: what follows in errors of the system is in the system's own words.
void noteInRecordings(const BoundaryError& error) {
  if (CallGate* const gate = CallGate::active()) {
    gate->note("raised in " + error.where + ": " + error.kind + ": " + error.what.substr(0, error.what.find(": ")));
  }
}

}  // namespace

bool Boundary::run(const std::string& where, const std::function<void()>& work) {
  try {
    work();
    return true;
  } catch (...) {
    errorList.push_back(describeCurrentException(where));
    noteInRecordings(errorList.back());
    return false;
  }
}

void Boundary::report(const std::string& where, const std::string& what) {
  errorList.push_back({where, "host", what});
}

std::vector<BoundaryError> Boundary::takeErrors() {
  return std::exchange(errorList, {});
}

}  // namespace headless
