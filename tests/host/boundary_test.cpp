#include "host/runtime/boundary.h"

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

class BoundaryKind : public testing::TestWithParam<Raised> {};

TEST_P(BoundaryKind, IsTheStandardClassWhateverTheCompilerCallsIt) {
  Boundary boundary;
  EXPECT_FALSE(boundary.run("run", GetParam().raise));
  ASSERT_EQ(boundary.errors().size(), 1U);
  EXPECT_EQ(boundary.errors().front().where, "run");
  EXPECT_EQ(boundary.errors().front().kind, GetParam().kind);
  if (!GetParam().what.empty()) {
    EXPECT_EQ(boundary.errors().front().what, GetParam().what);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Standard, BoundaryKind,
    testing::Values(
        Raised{"NullAccess", [] { throw std::exception(); }, "std::exception", ""},
        Raised{"OutOfRange", [] { throw std::out_of_range("far"); }, "std::out_of_range", "far"},
        Raised{"InvalidArgument", [] { throw std::invalid_argument("bad"); }, "std::invalid_argument", "bad"},
        Raised{"LengthError", [] { throw std::length_error("long"); }, "std::length_error", "long"},
        Raised{"LogicError", [] { throw std::domain_error("odd"); }, "std::logic_error", "odd"},
        Raised{"RuntimeError", [] { throw std::runtime_error("late"); }, "std::runtime_error", "late"},
        Raised{"BadAlloc", [] { throw std::bad_alloc(); }, "std::bad_alloc", ""},
        Raised{"SystemError", [] { throw std::system_error(std::make_error_code(std::errc::timed_out)); },
               "std::system_error", ""},
        Raised{"FilesystemError",
               [] { throw std::filesystem::filesystem_error("gone", std::make_error_code(std::errc::io_error)); },
               "std::filesystem::filesystem_error", ""},
        Raised{"Number", [] { throw 7; }, "unknown", "something that is no standard exception"}),
    [](const auto& info) { return info.param.name; });

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
