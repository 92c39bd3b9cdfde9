#include "host/runtime/rising_addresses.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "host/runtime/call_gate.h"
#include "host/runtime/object.h"

namespace tests {
namespace {

using adsk::core::Base;
using adsk::core::Ptr;
using headless::RisingAddresses;

class SmallObject final : public headless::HostObject<Base> {};

class LargeObject final : public headless::HostObject<Base> {
 public:
  char text[1000] = {};
};

constexpr std::size_t room = 1 << 20;

class RisingMemory : public testing::Test {
 protected:
  ~RisingMemory() override { EXPECT_EQ(RisingAddresses::heldRoom(), roomBefore); }

  /// The room that is held since the test began.
  std::size_t held() const { return RisingAddresses::heldRoom() - roomBefore; }

 private:
  std::size_t roomBefore = RisingAddresses::heldRoom();
};

TEST_F(RisingMemory, MakesTheOrderByAddressTheOrderOfCreation) {
  const RisingAddresses rising;
  std::vector<Ptr<Base>> kept;
  std::vector<const Base*> made;
  for (int i = 0; i < 2000; ++i) {
    const Ptr<Base> object =
        i % 3 == 0 ? Ptr<Base>(headless::makeObject<LargeObject>()) : Ptr<Base>(headless::makeObject<SmallObject>());
    made.push_back(object.get());
    if (i % 7 == 0) {
      kept.push_back(object);
    }
  }
  // No address is given twice either, although most of the objects are gone.
  EXPECT_EQ(std::adjacent_find(made.begin(), made.end(), std::greater_equal<>()), made.end());
}

TEST_F(RisingMemory, IsGivenBackAtTheEnd) {
  {
    const RisingAddresses rising(room);
    headless::makeObject<SmallObject>();
    EXPECT_EQ(held(), room);
  }
  EXPECT_EQ(held(), 0U);
}

TEST_F(RisingMemory, LastsAsLongAsAnObjectInIt) {
  std::optional<RisingAddresses> rising(room);
  Ptr<Base> first = headless::makeObject<SmallObject>();
  Ptr<Base> second = headless::makeObject<SmallObject>();
  rising.reset();
  first = nullptr;
  EXPECT_EQ(held(), room);
  EXPECT_TRUE(second->isValid());
  second = nullptr;
  EXPECT_EQ(held(), 0U);
}

TEST_F(RisingMemory, TakesNoObjectsFromBeforeAndAfter) {
  Ptr<Base> before = headless::makeObject<SmallObject>();
  std::optional<RisingAddresses> rising(room);
  Ptr<Base> during = headless::makeObject<SmallObject>();
  before = nullptr;
  rising.reset();
  const Ptr<Base> after = headless::makeObject<SmallObject>();
  EXPECT_EQ(held(), room);
  during = nullptr;
  EXPECT_EQ(held(), 0U);
}

TEST_F(RisingMemory, IsTheNewestOnesAndThenTheOneBefore) {
  const RisingAddresses outer(room);
  const Ptr<Base> first = headless::makeObject<SmallObject>();
  {
    const RisingAddresses inner(room);
    headless::makeObject<SmallObject>();
    EXPECT_EQ(held(), 2 * room);
  }
  EXPECT_EQ(held(), room);
  const Ptr<Base> second = headless::makeObject<SmallObject>();
  const auto distance = reinterpret_cast<const char*>(second.get()) - reinterpret_cast<const char*>(first.get());
  EXPECT_GT(distance, 0);
  EXPECT_LT(distance, static_cast<std::ptrdiff_t>(room));
}

TEST_F(RisingMemory, LeavesToTheSystemAllFromTheFirstThatFindsNoRoom) {
  Ptr<Base> second;
  Ptr<Base> third;
  {
    const RisingAddresses rising(sizeof(LargeObject) + 500);
    const Ptr<Base> first = headless::makeObject<LargeObject>();
    EXPECT_FALSE(rising.isFull());
    second = headless::makeObject<LargeObject>();
    EXPECT_TRUE(rising.isFull());
    third = headless::makeObject<SmallObject>();
    EXPECT_EQ(held(), sizeof(LargeObject) + 500);
  }
  // Neither of them keeps the room.
  EXPECT_EQ(held(), 0U);
  EXPECT_TRUE(second->isValid());
  EXPECT_TRUE(third->isValid());
}

TEST_F(RisingMemory, OfNoRoomIsFullFromTheFirstObjectOn) {
  const RisingAddresses rising(0);
  EXPECT_TRUE(headless::makeObject<SmallObject>()->isValid());
  EXPECT_TRUE(rising.isFull());
  EXPECT_EQ(held(), 0U);
}

class HugeObject final : public headless::HostObject<Base> {
 public:
  // Otherwise all of it would be filled with zeros.
  HugeObject() {}
  std::array<char, 1 << 27> text;
};

TEST_F(RisingMemory, ThatIsFullIsSaidInTheJournal) {
  headless::CallGate gate;
  gate.startJournal();
  headless::makeObject<HugeObject>();
  EXPECT_EQ(gate.journalText(), "");
  headless::makeObject<HugeObject>();
  headless::makeObject<HugeObject>();
  EXPECT_EQ(gate.journalText(), std::string(headless::CallGate::orderIsLost) + "\n");
}

}  // namespace
}  // namespace tests
