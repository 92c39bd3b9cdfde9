// The root of all API classes, and the texts by which a class is known.
#pragma once

#include "Memory.h"

/// What every API class declares about its own class: a text that names it, at an address of its own (documented), and
/// the cast that answers for the class and its base.
#define ADSK_API_CLASS(Class, BaseClass)                                                 \
 public:                                                                                 \
  static const char* classType();                                                        \
  static const char* interfaceId() {                                                     \
    return classType();                                                                  \
  }                                                                                      \
  const char* objectType() const override {                                              \
    return classType();                                                                  \
  }                                                                                      \
  void* queryInterface(const char* id) const override {                                  \
    return id == classType() ? const_cast<Class*>(this) : BaseClass::queryInterface(id); \
  }

namespace adsk {
namespace core {

/// Root of all API objects. Owned by their references.
class Base : public ReferenceCounted {
 public:
  /// Text that names the class; its address is unique to the class (documented).
  static const char* classType();
  static const char* interfaceId() { return classType(); }

  /// The object's own class as "namespace::Class"; compare as text, or by address with classType() (documented).
  virtual const char* objectType() const { return classType(); }

  /// False once the object was deleted; every other call then answers with nothing (documented).
  virtual bool isValid() const = 0;

  /// The same object as a T, with a new reference; empty when it is not one (documented).
  template <class T>
  Ptr<T> cast() const {
    return Ptr<T>(query<T>(), false);
  }

  /// The same as raw pointer, without a reference (documented).
  template <class T>
  T* query() const {
    return static_cast<T*>(queryInterface(T::interfaceId()));
  }

 protected:
  virtual void* queryInterface(const char* id) const { return id == classType() ? const_cast<Base*>(this) : nullptr; }
};

}  // namespace core
}  // namespace adsk
