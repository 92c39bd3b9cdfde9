// Command definitions: what commands are started from.
#pragma once

#include <Core/CoreAll.h>

#include <functional>
#include <string>
#include <vector>

#include "host/runtime/object.h"
#include "host/ui/events.h"
#include "host/ui/list_items.h"

namespace headless {

class DefinitionObject;

/// Starts the command of a definition by program; false when it may not start now.
using StartCommand = std::function<bool(DefinitionObject&)>;

/// What all kinds of control definitions share.
template <class Interface>
class ControlDefinitionBase : public HostObject<Interface> {
 public:
  explicit ControlDefinitionBase(std::string shownName) : name_(std::move(shownName)) {}

  std::string name() const override {
    return this->call("name", [this] { return name_; });
  }
  bool name(const std::string& value) override { return store("name=", name_, value); }
  bool isEnabled() const override {
    return this->call("isEnabled", [this] { return enabled; });
  }
  bool isEnabled(bool value) override { return store("isEnabled=", enabled, value); }
  bool isVisible() const override {
    return this->call("isVisible", [this] { return visible; });
  }
  bool isVisible(bool value) override { return store("isVisible=", visible, value); }

  /// For the host's own use.
  bool isShown() const { return visible; }
  bool isUsable() const { return enabled; }

 private:
  template <class Value>
  bool store(const char* member, Value& field, const Value& value) {
    return this->call(
        member,
        [&] {
          field = value;
          return true;
        },
        value);
  }

  std::string name_;
  bool enabled = true;
  bool visible = true;
};

class ButtonControlDefinitionObject final : public ControlDefinitionBase<adsk::core::ButtonControlDefinition> {
 public:
  using ControlDefinitionBase::ControlDefinitionBase;
};

class ListControlDefinitionObject final : public ControlDefinitionBase<adsk::core::ListControlDefinition> {
 public:
  ListControlDefinitionObject(const std::string& shownName, adsk::core::ListControlDisplayTypes display,
                              const std::vector<std::string>& itemNames);
  adsk::core::Ptr<adsk::core::ListItems> listItems() const override;
  adsk::core::ListControlDisplayTypes listControlDisplayType() const override;
  adsk::core::Ptr<adsk::core::ListItem> lastSelected() const override;

  /// The list and its items answer with nothing from now on.
  void markGone();

 private:
  adsk::core::ListControlDisplayTypes display_;
  adsk::core::Ptr<ListItemsObject> list_;
};

/// One definition. After its deletion it answers with nothing and starts nothing.
class DefinitionObject final : public HostObject<adsk::core::CommandDefinition> {
 public:
  struct Texts {
    std::string id;
    std::string name;
    std::string tooltip;
    std::string resourceFolder;
  };

  DefinitionObject(Texts definitionTexts, bool native, StartCommand startCommand, std::function<void()> forget);
  ~DefinitionObject() override;

  std::string id() const override;
  std::string name() const override;
  bool name(const std::string& value) override;
  std::string tooltip() const override;
  bool tooltip(const std::string& value) override;
  std::string resourceFolder() const override;
  bool resourceFolder(const std::string& value) override;
  adsk::core::Ptr<adsk::core::CommandCreatedEvent> commandCreated() const override;
  adsk::core::Ptr<adsk::core::ControlDefinition> controlDefinition() const override;
  bool execute(const adsk::core::Ptr<adsk::core::NamedValues>& input) const override;
  bool deleteMe() override;
  bool isNative() const override;

  /// For the host's own use.
  const Texts& texts() const { return texts_; }
  CommandCreatedEventObject& createdEvent() const { return *created.get(); }
  /// Buttons made from it are on screen, and may be pressed.
  bool isShown() const { return list ? list->isShown() : button->isShown(); }
  bool isUsable() const { return list ? list->isUsable() : button->isUsable(); }
  /// The definition, its event and its control definition answer with nothing from now on.
  void markGone();
  /// Gives it a list as control definition, for good.
  void showAsList(adsk::core::ListControlDisplayTypes display, const std::vector<std::string>& itemNames);

 protected:
  std::string traceDetail() const override { return texts_.id; }

 private:
  bool storeText(const char* member, std::string& field, const std::string& value);

  Texts texts_;
  bool native_;
  StartCommand start;
  std::function<void()> forget_;
  adsk::core::Ptr<CommandCreatedEventObject> created;
  adsk::core::Ptr<ButtonControlDefinitionObject> button;
  // Empty for what is shown as a button.
  adsk::core::Ptr<ListControlDefinitionObject> list;
};

/// All definitions, native and made by program. Ids are unique.
class DefinitionsObject final : public HostObject<adsk::core::CommandDefinitions> {
 public:
  explicit DefinitionsObject(StartCommand startCommand) : start(std::move(startCommand)) {}

  adsk::core::Ptr<adsk::core::CommandDefinition> item(size_t index) const override;
  size_t count() const override;
  adsk::core::Ptr<adsk::core::CommandDefinition> itemById(const std::string& id) const override;
  adsk::core::Ptr<adsk::core::CommandDefinition> addButtonDefinition(const std::string& id, const std::string& name,
                                                                     const std::string& tooltip,
                                                                     const std::string& resourceFolder) override;

  /// For the host's own use; nullptr when there is none.
  DefinitionObject* find(const std::string& id) const;
  /// Adds a definition of the host's own. The id must be free.
  DefinitionObject& addNative(const std::string& id, const std::string& name);
  const std::vector<adsk::core::Ptr<DefinitionObject>>& all() const { return definitions; }

 private:
  adsk::core::Ptr<DefinitionObject> insert(DefinitionObject::Texts texts, bool isNative);
  void remove(const std::string& id);

  StartCommand start;
  std::vector<adsk::core::Ptr<DefinitionObject>> definitions;
};

}  // namespace headless
