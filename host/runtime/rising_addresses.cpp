#include "host/runtime/rising_addresses.h"

#include <functional>
#include <memory>
#include <new>

namespace headless {

struct RisingAddresses::Block {
  explicit Block(std::size_t size) : memory(new std::byte[size]), room(size) {}

  bool holds(const void* address) const {
    const std::less<const void*> isBefore;
    return !isBefore(address, memory.get()) && isBefore(address, memory.get() + room);
  }

  /// Forgets and deletes the block when nobody needs it any more.
  static void tidy(Block* block);

  // Left as it comes, so that the system need not provide what is never used.
  std::unique_ptr<std::byte[]> memory;
  std::size_t room;
  std::size_t used = 0;
  std::size_t objects = 0;
  bool isOpen = true;
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

void* RisingAddresses::take(std::size_t size) {
  Block* block = Block::newest;
  while (block != nullptr && !block->isOpen) {
    block = block->older;
  }
  constexpr std::size_t alignment = alignof(std::max_align_t);
  const std::size_t rounded = (size + alignment - 1) / alignment * alignment;
  if (block == nullptr || rounded > block->room - block->used) {
    return ::operator new(size);
  }
  void* const memory = block->memory.get() + block->used;
  block->used += rounded;
  ++block->objects;
  return memory;
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
