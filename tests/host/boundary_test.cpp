#include "host/runtime/boundary.h"
#include "tests/support/tables.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <stdexcept>

namespace tests {
namespace {

using headless::Boundary;

struct Raised {
  std::string name;
  void (*raise)();
  std::string kind;
  std::string what;
};

class BoundaryKind : public testing::Test, public WithRow<Raised> {};

TABLE(Standard, BoundaryKind, byName,
      {{"NullAccess", [] { throw std::exception(); }, "std::exception", ""},
       {"OutOfRange", [] { throw std::out_of_range("far"); }, "std::out_of_range", "far"},
       {"InvalidArgument", [] { throw std::invalid_argument("bad"); }, "std::invalid_argument", "bad"},
       {"LengthError", [] { throw std::length_error("long"); }, "std::length_error", "long"},
       {"LogicError", [] { throw std::domain_error("odd"); }, "std::logic_error", "odd"},
       {"RuntimeError", [] { throw std::runtime_error("late"); }, "std::runtime_error", "late"},
       {"BadAlloc", [] { throw std::bad_alloc(); }, "std::bad_alloc", ""},
       {"SystemError", [] { throw std::system_error(std::make_error_code(std::errc::timed_out)); }, "std::system_error",
        ""},
       {"FilesystemError",
        [] { throw std::filesystem::filesystem_error("gone", std::make_error_code(std::errc::io_error)); },
        "std::filesystem::filesystem_error", ""},
       {"Number", [] { throw 7; }, "unknown", "something that is no standard exception"}});

TABLE_TEST(BoundaryKind, IsTheStandardClassWhateverTheCompilerCallsIt) {
  Boundary boundary;
  EXPECT_FALSE(boundary.run("run", row().raise));
  ASSERT_EQ(boundary.errors().size(), 1U);
  EXPECT_EQ(boundary.errors().front().where, "run");
  EXPECT_EQ(boundary.errors().front().kind, row().kind);
  if (!row().what.empty()) {
    EXPECT_EQ(boundary.errors().front().what, row().what);
  }
}

TEST(BoundaryErrors, KeepTheCodeOfSystemErrors) {
  Boundary boundary;
  boundary.run("run", [] { throw std::system_error(std::make_error_code(std::errc::timed_out)); });
  EXPECT_EQ(boundary.errors().front().code, std::errc::timed_out);
}

TEST(BoundaryErrors, AreAbsentWhenAllGoesWell) {
  Boundary boundary;
  bool ran = false;
  EXPECT_TRUE(boundary.run("run", [&] { ran = true; }));
  EXPECT_TRUE(ran && boundary.errors().empty());
}

TEST(BoundaryErrors, AreKeptInOrderUntilTheyAreTaken) {
  Boundary boundary;
  boundary.run("first", [] { throw std::runtime_error("a"); });
  boundary.report("second", "b");
  const auto taken = boundary.takeErrors();
  ASSERT_EQ(taken.size(), 2U);
  EXPECT_EQ(taken[0].where + taken[0].what + taken[1].where + taken[1].what, "firstasecondb");
  EXPECT_EQ(taken[1].kind, "host");
  EXPECT_TRUE(boundary.errors().empty());
}

TEST(BoundaryErrors, OfAnInnerRunDoNotFailTheOuterOne) {
  Boundary boundary;
  EXPECT_TRUE(boundary.run("outer", [&] { boundary.run("inner", [] { throw std::runtime_error("a"); }); }));
  EXPECT_EQ(boundary.errors().front().where, "inner");
}

}  // namespace
}  // namespace tests
