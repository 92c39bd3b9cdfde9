// Components, instances and the occurrences they expand to: names, counters, order, refusals, and depth.
#include "host/model/design.h"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>

namespace headless::model {
namespace {

std::vector<std::string> pathsOf(const std::vector<Occurrence*>& occurrences) {
  std::vector<std::string> paths;
  for (const auto* occurrence : occurrences) {
    paths.push_back(occurrence->fullPathName());
  }
  return paths;
}

using Paths = std::vector<std::string>;

/// root: two of Sub, then a Bolt. Sub: two of Bolt, then a Nut.
struct Assembly {
  Design design{"Assembly"};
  Component& sub = design.addComponent("Sub");
  Component& bolt = design.addComponent("Bolt");
  Component& nut = design.addComponent("Nut");

  Assembly() {
    design.root().addInstance(sub);
    design.root().addInstance(sub);
    sub.addInstance(bolt);
    sub.addInstance(bolt);
    sub.addInstance(nut);
    design.root().addInstance(bolt);
  }
};

TEST(Design, RootIsTheFirstComponentAndHasTheDesignsName) {
  Design design("Rod");
  EXPECT_EQ(design.root().name, "Rod");
  EXPECT_EQ(design.root().design, &design);
  EXPECT_EQ(design.components.size(), 1u);
  EXPECT_TRUE(design.root().occurrences().empty());
}

TEST(Design, NamesOfComponentsAreUnique) {
  Design design("Part");
  const char* const given[] = {"Nut", "Part", "Nut", "Nut (1)", "Nut", "Nut (1)", "nut", "Pin (1)", "Pin", "Pin"};
  const char* const expected[] = {"Nut",         "Part (1)", "Nut (1)", "Nut (1) (1)", "Nut (2)",
                                  "Nut (1) (2)", "nut",      "Pin (1)", "Pin",         "Pin (2)"};
  for (std::size_t i = 0; i < std::size(given); ++i) {
    EXPECT_EQ(design.addComponent(given[i]).name, expected[i]) << "component " << i;
  }
  std::set<std::string> names;
  for (const auto& component : design.components) {
    EXPECT_TRUE(names.insert(component->name).second) << component->name;
  }
}

TEST(Component, BodiesAreOfTheDefaultMaterialAndKnowTheirOwner) {
  Design design("Part");
  Body& body = design.root().addBody("Body1");
  Face& face = body.addFace();
  EXPECT_EQ(body.component, &design.root());
  EXPECT_EQ(body.name, "Body1");
  EXPECT_EQ(body.material, defaultMaterial());
  EXPECT_EQ(body.appearance, nullptr);
  EXPECT_EQ(face.body, &body);
  EXPECT_EQ(face.appearance, nullptr);
  EXPECT_EQ(body.faces.size(), 1u);
}

TEST(Component, CountersRunThroughTheWholeDesign) {
  Assembly assembly;
  EXPECT_EQ(assembly.design.root().instances[1]->name(), "Sub:2");
  EXPECT_EQ(assembly.sub.instances[0]->name(), "Bolt:1");
  EXPECT_EQ(assembly.sub.instances[1]->name(), "Bolt:2");
  EXPECT_EQ(assembly.design.root().instances[2]->name(), "Bolt:3");
  EXPECT_EQ(assembly.bolt.uses, 3);
}

TEST(Instance, IsNamedAgreesWithItsName) {
  Assembly assembly;
  const Instance& instance = *assembly.sub.instances[1];
  EXPECT_TRUE(instance.isNamed("Bolt:2"));
  for (const char* other :
       {"", ":", "Bolt", "Bolt:", "Bolt:1", "Bolt:22", "Bolt:02", "bolt:2", "Bolt-2", "Bolt:2 ", "Sub:1+Bolt:2"}) {
    EXPECT_FALSE(instance.isNamed(other)) << other;
  }
}

TEST(Component, ExpandsDepthFirstParentsFirst) {
  Assembly assembly;
  EXPECT_EQ(pathsOf(assembly.design.root().occurrences()), (Paths{"Sub:1", "Sub:2", "Bolt:3"}));
  EXPECT_EQ(pathsOf(assembly.design.root().allOccurrences()),
            (Paths{"Sub:1", "Sub:1+Bolt:1", "Sub:1+Bolt:2", "Sub:1+Nut:1", "Sub:2", "Sub:2+Bolt:1", "Sub:2+Bolt:2",
                   "Sub:2+Nut:1", "Bolt:3"}));
}

TEST(Component, EveryNodeKnowsItsPlace) {
  Assembly assembly;
  const auto& top = assembly.design.root().occurrences();
  EXPECT_EQ(top[0]->parent, nullptr);
  EXPECT_EQ(&top[1]->component(), &assembly.sub);
  EXPECT_EQ(top[1]->name(), "Sub:2");
  ASSERT_EQ(top[1]->children.size(), 3u);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(top[1]->children[i]->parent, top[1]);
    EXPECT_EQ(top[1]->children[i]->position, i);
    EXPECT_EQ(top[1]->children[i]->instance, assembly.sub.instances[i].get());
  }
}

TEST(Component, TreesAreMadeOnceAndShareNoNodes) {
  Assembly assembly;
  EXPECT_FALSE(assembly.sub.isExpanded());
  const auto& own = assembly.sub.occurrences();
  EXPECT_TRUE(assembly.sub.isExpanded());
  EXPECT_EQ(pathsOf(own), (Paths{"Bolt:1", "Bolt:2", "Nut:1"}));
  EXPECT_EQ(own[0], assembly.sub.allOccurrences()[0]);
  EXPECT_NE(own[0], assembly.design.root().occurrences()[0]->children[0]);
}

TEST(Component, RefusesToContainItself) {
  Design design("Loop");
  Component& a = design.addComponent("A");
  Component& b = design.addComponent("B");
  Component& c = design.addComponent("C");
  design.root().addInstance(a);
  a.addInstance(b);
  b.addInstance(c);
  a.addInstance(c);
  for (Component* outer : {&design.root(), &a, &b, &c}) {
    EXPECT_THROW(c.addInstance(*outer), std::invalid_argument) << outer->name;
  }
  EXPECT_TRUE(c.instances.empty());
  EXPECT_EQ(a.uses, 1);
}

TEST(Component, RefusesAComponentOfAnotherDesign) {
  Design one("One");
  Design other("Other");
  EXPECT_THROW(one.root().addInstance(other.addComponent("Part")), std::invalid_argument);
}

TEST(Component, IsNotChangedOnceTheDesignIsExpanded) {
  Assembly assembly;
  assembly.design.root().occurrences();
  EXPECT_THROW(assembly.design.root().addInstance(assembly.nut), std::logic_error);
  EXPECT_EQ(assembly.nut.uses, 1);
}

TEST(Component, RefusesMoreOccurrencesThanMemoryWouldHold) {
  Design design("Doubling");
  Component* outer = &design.root();
  for (int level = 0; level < 60; ++level) {
    Component& inner = design.addComponent("Level");
    outer->addInstance(inner);
    outer->addInstance(inner);
    outer = &inner;
  }
  EXPECT_THROW(design.root().occurrences(), std::length_error);
  EXPECT_FALSE(design.root().isExpanded());
}

TEST(Component, ChainsOfAnyDepthAreExpandedAndTornDown) {
  constexpr std::size_t depth = 100'000;
  auto design = std::make_unique<Design>("Chain");
  Component* outer = &design->root();
  for (std::size_t i = 0; i < depth; ++i) {
    Component& inner = design->addComponent("Link");
    outer->addInstance(inner);
    outer = &inner;
  }
  const auto& all = design->root().allOccurrences();
  ASSERT_EQ(all.size(), depth);
  EXPECT_EQ(all[2]->fullPathName(), "Link:1+Link (1):1+Link (2):1");
  EXPECT_EQ(all.back()->parent, all[depth - 2]);
  EXPECT_TRUE(all.back()->children.empty());
  design.reset();
}

TEST(Component, ChainsAreBuiltFromTheInsideToo) {
  Design design("Chain");
  Component* inner = &design.addComponent("Link");
  for (int i = 1; i < 20'000; ++i) {
    Component& outer = design.addComponent("Link");
    outer.addInstance(*inner);
    inner = &outer;
  }
  design.root().addInstance(*inner);
  EXPECT_EQ(design.root().allOccurrences().size(), 20'000u);
}

}  // namespace
}  // namespace headless::model
