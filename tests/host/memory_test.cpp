#include <Core/CoreAll.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

namespace tests {
namespace {

using adsk::core::Base;
using adsk::core::Ptr;

/// An API class that tells how many references there are and how many objects live.
class Shape : public Base {
  ADSK_API_CLASS(Shape, Base)

  explicit Shape(int shapeSides = 0) : sides(shapeSides) { ++living; }
  ~Shape() override { --living; }

  void addref() const override { ++references; }
  void release() const override {
    if (--references == 0) {
      delete this;
    }
  }
  int refcount() const override { return references; }
  bool isValid() const override { return true; }

  int sides;
  static int living;

 private:
  mutable int references = 0;
};

class Square final : public Shape {
  ADSK_API_CLASS(Square, Shape)

  Square() : Shape(4) {}
};

class Round final : public Shape {
  ADSK_API_CLASS(Round, Shape)
};

int Shape::living = 0;
const char* Shape::classType() {
  return "tests::Shape";
}
const char* Square::classType() {
  return "tests::Square";
}
const char* Round::classType() {
  return "tests::Round";
}

template <class Index>
class Row final : public Base {
  ADSK_API_CLASS(Row, Base)

 public:
  using iterable_type = Shape;
  Ptr<Shape> item(Index index) const { return Ptr<Shape>(new Shape(static_cast<int>(index)), false); }
  std::size_t count() const { return 3; }

  void addref() const override { ++references; }
  void release() const override {
    if (--references == 0) {
      delete this;
    }
  }
  int refcount() const override { return references; }
  bool isValid() const override { return true; }

 private:
  mutable int references = 0;
};

template <class Index>
const char* Row<Index>::classType() {
  return "tests::Row";
}

class NeverDefined;

template <class T, class = void>
struct IsDereferenced : std::false_type {};
template <class T>
struct IsDereferenced<T, std::void_t<decltype(*std::declval<T>())>> : std::true_type {};

template <class A, class B, class = void>
struct IsCompared : std::false_type {};
template <class A, class B>
struct IsCompared<A, B, std::void_t<decltype(std::declval<A>() == std::declval<B>())>> : std::true_type {};

// A client that compiles against other traits than these does not compile against the host's own header.
using Handle = Ptr<Shape>;
using Assigned = Handle&;
static_assert(std::is_same_v<Handle::element_type, Shape>);
static_assert(std::is_void_v<decltype(std::declval<Assigned>() = std::declval<const Handle&>())>);
static_assert(std::is_void_v<decltype(std::declval<Assigned>() = std::declval<const Ptr<Base>&>())>);
static_assert(std::is_void_v<decltype(std::declval<Assigned>() = std::declval<const Shape*>())>);
static_assert(std::is_void_v<decltype(std::declval<Assigned>() = nullptr)>);
static_assert(std::is_convertible_v<Handle, bool>, "the test for empty is implicit");
static_assert(std::is_convertible_v<Handle, int>, "and so it converts to numbers as well");
static_assert(std::is_convertible_v<std::nullptr_t, Handle>, "nullptr is accepted where a handle is an argument");
static_assert(std::is_convertible_v<const Shape*, Handle>, "a raw pointer is attached without being asked");
static_assert(std::is_convertible_v<Ptr<Base>, Handle> && std::is_convertible_v<Handle, Ptr<Base>>);
static_assert(std::is_convertible_v<Ptr<Square>, Ptr<Round>>, "any pair of classes compiles");
static_assert(!IsDereferenced<Handle>::value);
static_assert(!IsCompared<Handle, Shape*>::value);
static_assert(IsCompared<Handle, Ptr<Base>>::value && IsCompared<Handle, std::nullptr_t>::value);
static_assert(!std::is_default_constructible_v<std::hash<Handle>>);

class Memory : public testing::Test {
 protected:
  ~Memory() override { EXPECT_EQ(Shape::living, 0); }

  static Ptr<Shape> makeShape() { return Ptr<Shape>(new Shape, false); }
  static Ptr<Square> makeSquare() { return Ptr<Square>(new Square, false); }
};

TEST_F(Memory, EmptyHandlesTestAsFalse) {
  const Ptr<Shape> none;
  const Ptr<Shape> fromNullptr = nullptr;
  const Ptr<Shape> fromNull = NULL;
  EXPECT_FALSE(none || fromNullptr || fromNull);
  EXPECT_TRUE(none == nullptr);
  EXPECT_FALSE(none != nullptr);
  EXPECT_EQ(none.get(), nullptr);
}

TEST_F(Memory, HandlesWithAnObjectTestAsTrue) {
  const Ptr<Shape> shape = makeShape();
  EXPECT_TRUE(shape);
  EXPECT_TRUE(shape != nullptr);
  EXPECT_FALSE(shape == nullptr);
  const int asNumber = shape;
  EXPECT_EQ(asNumber, 1);
}

TEST_F(Memory, RawPointersAreAttachedUnlessToldOtherwise) {
  auto* raw = new Shape;
  raw->addref();
  const Ptr<Shape> attached(raw);
  EXPECT_EQ(raw->refcount(), 1);
  const Ptr<Shape> counted(raw, false);
  EXPECT_EQ(raw->refcount(), 2);
}

TEST_F(Memory, CopiesAddAReference) {
  const Ptr<Shape> shape = makeShape();
  {
    const Ptr<Shape> copy = shape;  // NOLINT(performance-unnecessary-copy-initialization): what is tested
    EXPECT_EQ(shape->refcount(), 2);
    EXPECT_EQ(copy.get(), shape.get());
  }
  EXPECT_EQ(shape->refcount(), 1);
}

TEST_F(Memory, MovingIsCopying) {
  Ptr<Shape> shape = makeShape();
  const Ptr<Shape> constructed(std::move(shape));
  EXPECT_TRUE(shape);  // NOLINT(bugprone-use-after-move): what is tested
  Ptr<Shape> assigned;
  assigned = std::move(shape);
  EXPECT_TRUE(shape);  // NOLINT(bugprone-use-after-move): what is tested
  EXPECT_EQ(shape->refcount(), 3);
}

TEST_F(Memory, AssignmentLetsGoOfTheObjectBefore) {
  Ptr<Shape> first = makeShape();
  const Ptr<Shape> second = makeShape();
  first = second;
  EXPECT_EQ(Shape::living, 1);
  EXPECT_EQ(second->refcount(), 2);
}

TEST_F(Memory, AssigningAHandleToItselfDoesNothing) {
  Ptr<Shape> shape = makeShape();
  const Ptr<Shape>& same = shape;
  shape = same;
  EXPECT_EQ(shape->refcount(), 1);
}

TEST_F(Memory, AssigningARawPointerAttachesIt) {
  auto* raw = new Shape;
  raw->addref();
  Ptr<Shape> shape = makeShape();
  shape = raw;
  EXPECT_EQ(Shape::living, 1);
  EXPECT_EQ(raw->refcount(), 1);
}

TEST_F(Memory, AssigningNullptrReleases) {
  Ptr<Shape> shape = makeShape();
  shape = nullptr;
  EXPECT_EQ(Shape::living, 0);
  EXPECT_FALSE(shape);
}

TEST_F(Memory, ResetAddsAReferenceUnlessToldToAttach) {
  auto* raw = new Shape;
  raw->addref();
  Ptr<Shape> shape;
  shape.reset(raw);
  EXPECT_EQ(raw->refcount(), 2);
  Ptr<Shape> attached;
  attached.reset(raw, true);
  EXPECT_EQ(raw->refcount(), 2);
}

TEST_F(Memory, ResetToTheSameObjectDoesNothing) {
  Ptr<Shape> shape = makeShape();
  shape.reset(shape.get());
  EXPECT_EQ(shape->refcount(), 1);
  shape->addref();
  shape.reset(shape.get(), true);
  EXPECT_EQ(shape->refcount(), 2) << "attaching what is held already leaks its reference";
  shape->release();
}

TEST_F(Memory, GetCopyAddsAReferenceAndDetachGivesOneAway) {
  Ptr<Shape> shape = makeShape();
  Shape* copy = shape.getCopy();
  EXPECT_EQ(copy->refcount(), 2);
  Shape* given = shape.detach();
  EXPECT_FALSE(shape);
  EXPECT_EQ(given, copy);
  EXPECT_EQ(given->refcount(), 2);
  given->release();
  copy->release();
}

TEST_F(Memory, AccessThroughAnEmptyHandleRaisesAnExceptionOfExactlyThatClass) {
  const Ptr<Shape> none;
  try {
    static_cast<void>(none->sides);
    FAIL() << "nothing was raised";
  } catch (const std::exception& error) {
    EXPECT_TRUE(typeid(error) == typeid(std::exception)) << typeid(error).name();
  }
}

TEST_F(Memory, ConversionToABaseOrToTheObjectsOwnClassSucceeds) {
  const Ptr<Square> square = makeSquare();
  const Ptr<Base> base = square;
  const Ptr<Shape> shape = base;
  const Ptr<Square> again = shape;
  EXPECT_EQ(again->sides, 4);
  EXPECT_EQ(square->refcount(), 4);
  EXPECT_TRUE(square == base && base == shape && shape == again);
}

TEST_F(Memory, ConversionToAnotherClassGivesNothing) {
  const Ptr<Shape> square = makeSquare();
  EXPECT_FALSE(Ptr<Round>(square));
  EXPECT_FALSE(Ptr<Square>(makeShape()));
  EXPECT_FALSE(Ptr<Square>(Ptr<Base>()));
  EXPECT_EQ(square->refcount(), 1);
}

TEST_F(Memory, AssigningFromAnotherClassConverts) {
  const Ptr<Shape> square = makeSquare();
  Ptr<Square> target;
  target = square;
  EXPECT_EQ(square->refcount(), 2);
  target = Ptr<Shape>(makeShape());
  EXPECT_FALSE(target);
  EXPECT_EQ(square->refcount(), 1);
}

TEST_F(Memory, CastAddsAReferenceAndQueryAddsNone) {
  const Ptr<Shape> square = makeSquare();
  EXPECT_EQ(square->query<Square>(), square.get());
  EXPECT_EQ(square->query<Round>(), nullptr);
  EXPECT_EQ(square->refcount(), 1);
  const Ptr<Square> cast = square->cast<Square>();
  EXPECT_EQ(square->refcount(), 2);
  EXPECT_FALSE(square->cast<Round>());
  EXPECT_THROW(Ptr<Shape>()->cast<Square>(), std::exception);
}

TEST_F(Memory, HandlesAreOrderedByTheirObjects) {
  const Ptr<Shape> a = makeShape();
  const Ptr<Shape> b = makeShape();
  EXPECT_TRUE(a != b);
  EXPECT_EQ(a < b, std::less<>()(a.get(), b.get()));
  std::map<Ptr<Shape>, std::string> names;
  names[a] = "a";
  names[b] = "b";
  names[a] = "again";
  EXPECT_EQ(names.size(), 2U);
}

TEST_F(Memory, HandlesLiveInVectors) {
  std::vector<Ptr<Shape>> shapes(3, makeShape());
  EXPECT_EQ(shapes.front()->refcount(), 3);
  shapes.erase(shapes.begin());
  EXPECT_EQ(shapes.front()->refcount(), 2);
}

TEST_F(Memory, HandlesOfIncompleteClassesAreCopiedTestedAndLetGo) {
  Ptr<NeverDefined> none;
  const Ptr<NeverDefined> copy(none);
  none = copy;
  EXPECT_FALSE(none);
  EXPECT_EQ(copy.get(), nullptr);
}

TEST_F(Memory, RangeForWalksCollectionsWithEitherIndexType) {
  std::string walked;
  for (const Ptr<Shape>& each : Ptr<Row<int>>(new Row<int>, false)) {
    walked += std::to_string(each->sides);
  }
  for (const Ptr<Shape>& each : Ptr<Row<std::size_t>>(new Row<std::size_t>, false)) {
    walked += std::to_string(each->sides);
  }
  EXPECT_EQ(walked, "012012");
}

TEST_F(Memory, RangeForOverAnEmptyHandleRaises) {
  const Ptr<Row<int>> none;
  EXPECT_THROW(
      for (const auto& each
           : none) { static_cast<void>(each); },
      std::exception);
}

}  // namespace
}  // namespace tests
