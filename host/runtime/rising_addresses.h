// Memory for the host's objects whose order does not depend on the system.
//
// Whoever uses the API knows an object by its address, and may keep objects in that order and so make calls in it.
// Where the system's memory lies is chance: neither two systems nor two runs make these calls in the same order. For
// calls to be compared one by one, objects can be made at rising addresses, so that their order is the one in which
// they were made. Usually they are not, so that nobody comes to rely on any order, and the checks of memory see each
// object.
#pragma once

#include <cstddef>

namespace headless {

/// While one lives, objects of the host are made at rising addresses, the newest one's if there are several. Its memory
/// goes with it, or with the last object in it. [ui thread]
class RisingAddresses {
 public:
  /// `room` is for all objects that are made meanwhile, as no address is given twice; on Linux, what of it stays unused
  /// costs nothing but addresses. Objects that find no room any more lie where the system puts them: a very long
  /// journal loses its order rather than its session.
  explicit RisingAddresses(std::size_t room = std::size_t{1} << 28U);
  ~RisingAddresses();
  RisingAddresses(const RisingAddresses&) = delete;
  RisingAddresses& operator=(const RisingAddresses&) = delete;

  /// True once an object found no room; that one and all after it lie where the system puts them.
  bool isFull() const;

  /// Memory for an object, from the system when there are no rising addresses or no room.
  static void* take(std::size_t size);
  /// Gives back what was taken, at any time.
  static void giveBack(void* memory);

  /// The room that is held from the system, for those that live and for objects that outlive theirs.
  static std::size_t heldRoom();

 private:
  struct Block;

  Block* block;
};

}  // namespace headless
