#include "host/runtime/rising_addresses.h"

#include <functional>
#include <memory>
#include <new>

namespace headless {

struct RisingAddresses::Block {
  explicit Block(std::size_t size) : memory(new (std::nothrow) std::byte[size]), room(memory == nullptr ? 0 : size) {}

  bool holds(const void* address) const {
    const std::less<const void*> isBefore;
    return !isBefore(address, memory.get()) && isBefore(address, memory.get() + room);
  }

  /// Memory for an object, or nullptr from the first one on that finds no room.
  void* take(std::size_t size) {
    constexpr std::size_t alignment = alignof(std::max_align_t);
    const std::size_t rounded = (size + alignment - 1) / alignment * alignment;
    isFull = isFull || rounded > room - used;
    if (isFull) {
      return nullptr;
    }
    void* const taken = memory.get() + used;
    used += rounded;
    ++objects;
    return taken;
  }

  /// Forgets and deletes the block when nobody needs it any more.
  static void tidy(Block* block);

  // Left as it comes, so that the system need not provide what is never used.
  std::unique_ptr<std::byte[]> memory;
  std::size_t room;
  std::size_t used = 0;
  std::size_t objects = 0;
  bool isOpen = true;
  bool isFull = false;
  Block* older = newest;

  // Nothing that would end before the last objects do, when the process ends.
  static Block* newest;
};

RisingAddresses::Block* RisingAddresses::Block::newest = nullptr;

void RisingAddresses::Block::tidy(Block* block) {
  if (block->isOpen || block->objects != 0) {
    return;
  }
  Block** link = &newest;
  while (*link != block) {
    link = &(*link)->older;
  }
  *link = block->older;
  delete block;
}

RisingAddresses::RisingAddresses(std::size_t room) : block(new Block(room)) {
  Block::newest = block;
}

RisingAddresses::~RisingAddresses() {
  block->isOpen = false;
  Block::tidy(block);
}

bool RisingAddresses::isFull() const {
  return block->isFull;
}

void* RisingAddresses::take(std::size_t size) {
  Block* block = Block::newest;
  while (block != nullptr && !block->isOpen) {
    block = block->older;
  }
  void* const memory = block == nullptr ? nullptr : block->take(size);
  return memory == nullptr ? ::operator new(size) : memory;
}

void RisingAddresses::giveBack(void* memory) {
  for (Block* block = Block::newest; block != nullptr; block = block->older) {
    if (block->holds(memory)) {
      --block->objects;
      Block::tidy(block);
      return;
    }
  }
  ::operator delete(memory);
}

std::size_t RisingAddresses::heldRoom() {
  std::size_t room = 0;
  for (const Block* block = Block::newest; block != nullptr; block = block->older) {
    room += block->room;
  }
  return room;
}

}  // namespace headless
