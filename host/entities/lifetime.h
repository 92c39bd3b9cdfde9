// Objects that end together: when a document is closed or a library unloaded, everything that the API gave out for it
// answers with nothing from then on, however long somebody keeps handles to it.
#pragma once

#include <functional>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "host/runtime/object.h"

namespace headless {

/// Ends its members when it ends itself. Owned by what the members stand for, and the last thing of it to go.
class Lifetime {
 public:
  class Member {
   public:
    explicit Member(Lifetime& shared) : lifetime(&shared) { lifetime->members.insert(this); }
    Member(const Member&) = delete;
    Member& operator=(const Member&) = delete;

   protected:
    virtual ~Member() {
      if (lifetime != nullptr) {
        lifetime->members.erase(this);
      }
    }

   private:
    friend class Lifetime;
    virtual void end() = 0;

    Lifetime* lifetime;
  };

  Lifetime() = default;
  Lifetime(const Lifetime&) = delete;
  Lifetime& operator=(const Lifetime&) = delete;
  ~Lifetime() {
    for (Member* member : members) {
      member->lifetime = nullptr;
      member->end();
    }
  }

 private:
  std::unordered_set<Member*> members;
};

/// An API object that is deleted at the end of a lifetime.
template <class Interface>
class BoundObject : public HostObject<Interface>, private Lifetime::Member {
 protected:
  explicit BoundObject(Lifetime& lifetime) : Member(lifetime) {}

  std::string traceDetail() const final { return this->isAlive() ? detail() : std::string(); }
  /// As traceDetail; only asked while what the object stands for is there.
  virtual std::string detail() const { return {}; }

 private:
  void end() final { this->markDeleted(); }
};

/// The handles that were given out, by what they stand for.
template <class Key, class Interface, class Hash = std::hash<Key>>
class HandleMap {
 public:
  using Handle = adsk::core::Ptr<Interface>;

  explicit HandleMap(bool alwaysFresh) : isFresh(alwaysFresh) {}

  /// The one handle for `key`, made by `make` on first use; a new one each time when handles are always fresh.
  template <class Make>
  Handle get(const Key& key, Make&& make) {
    if (isFresh) {
      return make();
    }
    Handle& handle = handles[key];
    if (!handle) {
      handle = make();
    }
    return handle;
  }
  /// The next handle for `key` is a new one.
  void forget(const Key& key) { handles.erase(key); }

 private:
  bool isFresh;
  std::unordered_map<Key, Handle, Hash> handles;
};

}  // namespace headless
