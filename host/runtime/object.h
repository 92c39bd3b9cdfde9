// What all objects behind the API have in common: they are counted, can be deleted while handles are left, and let
// every call pass the gate.
#pragma once

#include <Core/CoreAll.h>

#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>

#include "host/runtime/call_gate.h"
#include "host/runtime/rising_addresses.h"

namespace headless {

/// Implements counting and validity for an API class. Objects live on the heap and belong to their references; make
/// them with makeObject.
template <class Interface>
class HostObject : public Interface, public Traceable {
 public:
  HostObject() = default;
  HostObject(const HostObject&) = delete;
  HostObject& operator=(const HostObject&) = delete;

  static void* operator new(std::size_t size) { return RisingAddresses::take(size); }
  static void operator delete(void* memory) { RisingAddresses::giveBack(memory); }

  void addref() const final { ++references; }
  void release() const final {
    if (--references == 0) {
      delete this;
    }
  }
  int refcount() const final { return references; }

  const char* objectType() const override {
    return CallGate::pass(Interface::classType(), this, true, "objectType", [] { return Interface::classType(); });
  }

  bool isValid() const final {
    return CallGate::pass(Interface::classType(), this, true, "isValid", [this] { return alive; });
  }

  std::string traceName() const final {
    const std::string name = Interface::classType();
    const std::string detail = traceDetail();
    const std::string shortName = name.substr(name.rfind(':') + 1);
    return detail.empty() ? shortName : shortName + "(" + detail + ")";
  }

  /// From now on every call answers with nothing.
  void markDeleted() { alive = false; }
  bool isAlive() const final { return alive; }

 protected:
  ~HostObject() override = default;

  /// What tells the object from others of its class in a trace; may be empty.
  virtual std::string traceDetail() const { return {}; }

  /// Passes the gate; `body` is what the call does. A setter's member name ends with "=".
  template <class Body, class... Arguments>
  std::invoke_result_t<Body> call(const char* member, Body&& body, const Arguments&... arguments) const {
    return CallGate::pass(Interface::classType(), this, alive, member, std::forward<Body>(body), arguments...);
  }

 private:
  mutable int references = 0;
  bool alive = true;
};

/// Implemented by the objects of model entities (occurrence, component, body, face): which entity a handle object
/// stands for, whatever the number of handle objects there are for it.
class ModelEntity {
 public:
  /// The entity's data and the occurrence through which it is seen (nullptr for a native one).
  virtual std::pair<const void*, const void*> identity() const = 0;

 protected:
  ~ModelEntity() = default;
};

/// False for an empty handle and for an object that was deleted. Unlike isValid(), this is no call of the API.
inline bool isThere(const adsk::core::Ptr<adsk::core::Base>& handle) {
  const auto* object = dynamic_cast<const Traceable*>(handle.get());
  return object != nullptr && object->isAlive();
}

/// What the handle stands for; the handle's own object when that is no model entity.
inline std::pair<const void*, const void*> identityOf(const adsk::core::Ptr<adsk::core::Base>& handle) {
  const auto* entity = dynamic_cast<const ModelEntity*>(handle.get());
  return entity != nullptr ? entity->identity() : std::pair<const void*, const void*>(handle.get(), nullptr);
}

/// True when both handles stand for the same entity in the same context.
inline bool isSameEntity(const adsk::core::Ptr<adsk::core::Base>& a, const adsk::core::Ptr<adsk::core::Base>& b) {
  return identityOf(a) == identityOf(b);
}

/// A new object of the host and the first handle to it.
template <class Object, class... Arguments>
adsk::core::Ptr<Object> makeObject(Arguments&&... arguments) {
  return adsk::core::Ptr<Object>(new Object(std::forward<Arguments>(arguments)...), false);
}

/// The host's object behind an API handle; nullptr when the handle is empty or the object is none of that kind.
template <class Object, class Interface>
Object* objectBehind(const adsk::core::Ptr<Interface>& handle) {
  return dynamic_cast<Object*>(handle.get());
}

}  // namespace headless
