// API objects that are no part of any design, for answers that a design cannot give: a source code of any number, an
// appearance or a material that is missing, a class name that promises more than the object keeps.
#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <string>

#include "host/runtime/object.h"

namespace tests {

/// Shows what a test gives it.
class StandInBody final : public headless::HostObject<adsk::fusion::BRepBody> {
 public:
  adsk::core::Ptr<adsk::core::Appearance> shown;
  int source = 0;
  adsk::core::Ptr<adsk::core::Material> madeOf;
  adsk::core::Ptr<adsk::fusion::BRepFaces> faceList;

  std::string name() const override { return "stand-in"; }
  adsk::core::Ptr<adsk::core::Appearance> appearance() const override { return shown; }
  bool appearance(const adsk::core::Ptr<adsk::core::Appearance>& value) override {
    shown = value;
    return true;
  }
  adsk::core::AppearanceSourceTypes appearanceSourceType() const override {
    return static_cast<adsk::core::AppearanceSourceTypes>(source);
  }
  adsk::core::Ptr<adsk::core::Material> material() const override { return madeOf; }
  bool material(const adsk::core::Ptr<adsk::core::Material>& value) override {
    madeOf = value;
    return true;
  }
  adsk::core::Ptr<adsk::fusion::BRepFaces> faces() const override { return faceList; }
  adsk::core::Ptr<adsk::fusion::Component> parentComponent() const override { return nullptr; }
  adsk::core::Ptr<adsk::fusion::Occurrence> assemblyContext() const override { return nullptr; }
};

/// The same for a face.
class StandInFace final : public headless::HostObject<adsk::fusion::BRepFace> {
 public:
  adsk::core::Ptr<adsk::core::Appearance> shown;
  int source = 0;
  adsk::core::Ptr<adsk::fusion::BRepBody> owner;

  adsk::core::Ptr<adsk::core::Appearance> appearance() const override { return shown; }
  bool appearance(const adsk::core::Ptr<adsk::core::Appearance>& value) override {
    shown = value;
    return true;
  }
  adsk::core::AppearanceSourceTypes appearanceSourceType() const override {
    return static_cast<adsk::core::AppearanceSourceTypes>(source);
  }
  adsk::core::Ptr<adsk::fusion::BRepBody> body() const override { return owner; }
  adsk::core::Ptr<adsk::fusion::Occurrence> assemblyContext() const override { return nullptr; }
};

/// Calls itself by the name of another class, and is nothing but a Base.
class Impostor final : public headless::HostObject<adsk::core::Base> {
 public:
  explicit Impostor(const char* claimedName) : claimed(claimedName) {}
  const char* objectType() const override { return claimed; }

 private:
  const char* claimed;
};

}  // namespace tests
