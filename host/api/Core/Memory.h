// The handle type through which every API object is passed and returned. An empty handle means "none".
//
// The traits are the documented ones, surprising ones included: a raw pointer is attached (its reference is taken
// over), assignment gives void, the conversion to bool is implicit, and there is no move.
#pragma once

#include <cassert>
#include <cstddef>
#include <exception>
#include <iterator>

namespace adsk {
namespace core {

/// The default second parameter of Ptr; carries nothing.
struct IncompleteType {};

/// Counting of references; the first base of every API class. Called by handles only.
class ReferenceCounted {
 public:
  virtual void addref() const = 0;
  virtual void release() const = 0;
  virtual int refcount() const = 0;

 protected:
  virtual ~ReferenceCounted() = default;
};

template <class Collection, class Item>
class PtrIterator;

/// A reference-counted handle to an API object.
template <class T, class PT = IncompleteType>
class Ptr {
 public:
  using element_type = T;

  Ptr() = default;
  /// Attaches: takes over the reference that the raw pointer carries, unless `attach` is false.
  Ptr(const T* pointer, bool attach = true) : held(const_cast<T*>(pointer)) {
    if (!attach) {
      retain(held);
    }
  }
  Ptr(const Ptr& other) : held(other.held) { retain(held); }
  /// Empty when the object is not a T; never raises.
  template <class V>
  Ptr(const Ptr<V>& other) : held(queried(other)) {
    retain(held);
  }
  ~Ptr() { drop(held); }

  void operator=(const Ptr& other) { reset(other.held); }
  /// Attaches; `handle = nullptr` releases.
  void operator=(const T* pointer) { reset(pointer, true); }
  template <class V>
  void operator=(const Ptr<V>& other) {
    reset(queried(other));
  }

  /// Adds a reference by default; does nothing when that pointer is held already.
  void reset(const T* pointer, bool attach = false) {
    if (pointer == held) {
      return;
    }
    T* previous = held;
    held = const_cast<T*>(pointer);
    if (!attach) {
      retain(held);
    }
    drop(previous);
  }

  /// The object without, or with, a new reference; nullptr when empty.
  T* get() const { return held; }
  T* getCopy() const {
    retain(held);
    return held;
  }
  /// Gives the reference away; the handle is empty afterwards.
  T* detach() {
    T* given = held;
    held = nullptr;
    return given;
  }

  operator bool() const { return held != nullptr; }

  /// Raises std::exception, of exactly that class, on an empty handle; a build without NDEBUG asserts first.
  T* operator->() const {
    assert(held != nullptr);
    if (held == nullptr) {
      throw std::exception();
    }
    return held;
  }

  template <class V>
  bool operator==(const Ptr<V>& other) const {
    return held == other.get();
  }
  template <class V>
  bool operator!=(const Ptr<V>& other) const {
    return held != other.get();
  }
  template <class V>
  bool operator<(const Ptr<V>& other) const {
    return held < other.get();
  }
  bool operator==(std::nullptr_t) const { return held == nullptr; }
  bool operator!=(std::nullptr_t) const { return held != nullptr; }

  /// Iteration over a handle to a collection; raises on an empty handle like `->`.
  auto begin() const { return PtrIterator<T, typename T::iterable_type>(*this, 0); }
  auto end() const { return PtrIterator<T, typename T::iterable_type>(*this, operator->()->count()); }

 private:
  // T may be incomplete where a handle is copied or destroyed, so the count is reached through the first base.
  static void retain(const T* object) {
    if (object != nullptr) {
      reinterpret_cast<const ReferenceCounted*>(object)->addref();
    }
  }
  static void drop(const T* object) {
    if (object != nullptr) {
      reinterpret_cast<const ReferenceCounted*>(object)->release();
    }
  }
  template <class V>
  static T* queried(const Ptr<V>& other) {
    return other.get() != nullptr ? other.get()->template query<T>() : nullptr;
  }

  T* held = nullptr;
};

/// Walks a collection by index.
template <class Collection, class Item>
class PtrIterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = Ptr<Item>;
  using difference_type = std::ptrdiff_t;
  using pointer = const value_type*;
  using reference = value_type;

  PtrIterator(const Ptr<Collection>& walked, std::size_t start) : collection(walked), index(start) {}
  reference operator*() const { return itemAt(index, &Collection::item); }
  PtrIterator& operator++() {
    ++index;
    return *this;
  }
  bool operator==(const PtrIterator& other) const { return index == other.index; }
  bool operator!=(const PtrIterator& other) const { return index != other.index; }

 private:
  // Some collections take an int as index and some a size_t.
  template <class Result, class Index>
  reference itemAt(std::size_t position, Result (Collection::*)(Index) const) const {
    return collection->item(static_cast<Index>(position));
  }

  Ptr<Collection> collection;
  std::size_t index;
};

}  // namespace core
}  // namespace adsk
