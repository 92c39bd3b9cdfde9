// Small helpers over the host's handles: checked casts, loops over the host's collections, the kind of an entity.
#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <cstddef>
#include <utility>

namespace tintora {

namespace core = adsk::core;
namespace fusion = adsk::fusion;
using adsk::core::Ptr;

/// The same object as a handle of another class; empty when the object is not of that class or the handle is empty.
template <class To, class From>
Ptr<To> hostCast(const Ptr<From>& object) {
  return object;
}

/// What a loop does about a collection or an item that the host does not return.
enum class Missing {
  raises,  ///< nothing: using the empty handle raises the null-access exception
  skipped  ///< passes it over; a missing collection counts as an empty one
};

/// Cursor over a host collection in index order. `Index` is the type of the index that the collection's `item` takes.
template <class Collection, class Index>
class HostItems {
 public:
  using Item = decltype(std::declval<Collection&>().item(Index()));

  HostItems(const Ptr<Collection>& collection, Missing missing)
      : collection_(collection), missing_(missing), count_(countOf(collection, missing)) {
    fetch();
  }

  bool atEnd() const { return index_ >= count_; }
  const Item& current() const { return item_; }
  void advance() {
    ++index_;
    fetch();
  }

  // The part of an iterator that a range-based for loop needs.
  struct End {};
  class Iterator {
   public:
    explicit Iterator(HostItems& items) : items_(items) {}
    const Item& operator*() const { return items_.current(); }
    Iterator& operator++() {
      items_.advance();
      return *this;
    }
    bool operator!=(End /*end*/) const { return !items_.atEnd(); }

   private:
    HostItems& items_;
  };
  Iterator begin() { return Iterator(*this); }
  End end() const { return {}; }

 private:
  static std::size_t countOf(const Ptr<Collection>& collection, Missing missing) {
    return !collection && missing == Missing::skipped ? 0 : collection->count();
  }

  void fetch() {
    for (; index_ < count_; ++index_) {
      item_ = collection_->item(static_cast<Index>(index_));
      if (item_ || missing_ == Missing::raises) {
        return;
      }
    }
  }

  Ptr<Collection> collection_;
  Missing missing_;
  std::size_t count_;
  std::size_t index_ = 0;
  Item item_;
};

/// The items of a collection, for a range-based for loop. Material and appearance collections are indexed by `int`,
/// all others by `std::size_t`.
template <class Index = std::size_t, class Collection>
HostItems<Collection, Index> items(const Ptr<Collection>& collection, Missing missing = Missing::raises) {
  return {collection, missing};
}

/// What a selected entity is, decided by its exact class name.
enum class EntityKind { occurrence, component, body, face, other };

/// Kind of an entity. Raises the null-access exception for an empty handle.
EntityKind entityKind(const Ptr<core::Base>& entity);

}  // namespace tintora
