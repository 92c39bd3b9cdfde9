// Densities in the units of STEP files.
#include "host/step/units.h"

#include <gtest/gtest.h>
#include <StepBasic_ConversionBasedUnit.hxx>
#include <StepBasic_DerivedUnit.hxx>
#include <StepBasic_DerivedUnitElement.hxx>
#include <StepBasic_HArray1OfDerivedUnitElement.hxx>
#include <StepBasic_MeasureValueMember.hxx>
#include <StepBasic_SiUnit.hxx>
#include <StepBasic_Unit.hxx>

#include <utility>
#include <vector>

namespace headless::step {
namespace {

using NamedUnit = Handle(StepBasic_NamedUnit);

NamedUnit gram() {
  const Handle(StepBasic_SiUnit) unit = new StepBasic_SiUnit;
  unit->Init(false, StepBasic_spMilli, StepBasic_sunGram);
  return NamedUnit(unit);
}

NamedUnit metre() {
  const Handle(StepBasic_SiUnit) unit = new StepBasic_SiUnit;
  unit->Init(false, StepBasic_spMilli, StepBasic_sunMetre);
  return NamedUnit(unit);
}

NamedUnit with(StepBasic_SiPrefix prefix, const NamedUnit& base) {
  const Handle(StepBasic_SiUnit) unit = new StepBasic_SiUnit;
  unit->Init(true, prefix, Handle(StepBasic_SiUnit)::DownCast(base)->Name());
  return NamedUnit(unit);
}

NamedUnit times(double factor, const NamedUnit& base) {
  StepBasic_Unit of;
  of.SetValue(base);
  const Handle(StepBasic_MeasureValueMember) value = new StepBasic_MeasureValueMember;
  value->SetReal(factor);
  const Handle(StepBasic_MeasureWithUnit) conversion = new StepBasic_MeasureWithUnit;
  conversion->Init(value, of);
  const Handle(StepBasic_ConversionBasedUnit) unit = new StepBasic_ConversionBasedUnit;
  unit->SetConversionFactor(conversion);
  return NamedUnit(unit);
}

NamedUnit second() {
  const Handle(StepBasic_SiUnit) unit = new StepBasic_SiUnit;
  unit->Init(false, StepBasic_spMilli, StepBasic_sunSecond);
  return NamedUnit(unit);
}

std::optional<double> density(double value, const std::vector<std::pair<NamedUnit, double>>& powers) {
  const Handle(StepBasic_HArray1OfDerivedUnitElement) elements =
      new StepBasic_HArray1OfDerivedUnitElement(1, static_cast<int>(powers.size()));
  int next = 0;
  for (const auto& [unit, exponent] : powers) {
    const Handle(StepBasic_DerivedUnitElement) element = new StepBasic_DerivedUnitElement;
    element->Init(unit, exponent);
    elements->SetValue(++next, element);
  }
  const Handle(StepBasic_DerivedUnit) derived = new StepBasic_DerivedUnit;
  derived->Init(elements);
  StepBasic_Unit unit;
  unit.SetValue(derived);
  const Handle(StepBasic_MeasureValueMember) member = new StepBasic_MeasureValueMember;
  member->SetReal(value);
  StepBasic_MeasureWithUnit measure;
  measure.Init(member, unit);
  return densityFrom(measure);
}

struct DensityUnits {
  const char* title;
  double value;
  std::vector<std::pair<NamedUnit, double>> powers;
  double kilogramPerCubicMetre;
};

TEST(Units, ConvertDensitiesToKilogramPerCubicMetre) {
  const NamedUnit pound = times(0.45359237, with(StepBasic_spKilo, gram()));
  const NamedUnit inch = times(2.54, with(StepBasic_spCenti, metre()));
  const NamedUnit foot = times(12.0, inch);
  for (const DensityUnits& c : std::vector<DensityUnits>{
           {"kg/m3", 7850, {{with(StepBasic_spKilo, gram()), 1}, {metre(), -3}}, 7850},
           {"g/cm3", 7.85, {{gram(), 1}, {with(StepBasic_spCenti, metre()), -3}}, 7850},
           {"t/mm3", 7.85e-9, {{with(StepBasic_spMega, gram()), 1}, {with(StepBasic_spMilli, metre()), -3}}, 7850},
           {"lb/in3", 0.1, {{pound, 1}, {inch, -3}}, 2767.9905},
           {"lb/ft3", 100, {{foot, -3}, {pound, 1}}, 1601.8463},
           {"kg/(m2 dm)",
            1,
            {{with(StepBasic_spKilo, gram()), 1}, {metre(), -2}, {with(StepBasic_spDeci, metre()), -1}},
            10},
           {"as the kernel writes g/cm3", 7.85, {{gram(), 3}, {with(StepBasic_spCenti, metre()), 2}}, 7850}}) {
    const std::optional<double> found = density(c.value, c.powers);
    ASSERT_TRUE(found) << c.title;
    EXPECT_NEAR(*found, c.kilogramPerCubicMetre, 1e-3) << c.title;
  }
}

TEST(Units, KnowWhatIsNoDensity) {
  EXPECT_FALSE(density(1, {{gram(), 1}, {metre(), -2}}));
  EXPECT_FALSE(density(1, {{metre(), -3}}));
  EXPECT_FALSE(density(1, {{gram(), 1}, {metre(), -3}, {second(), 1}}));
  EXPECT_FALSE(densityFrom(StepBasic_MeasureWithUnit()));
}

TEST(Units, GiveUpOnUnitsThatAreDefinedByThemselves) {
  const NamedUnit endless = times(2.0, gram());
  const auto conversion = Handle(StepBasic_ConversionBasedUnit)::DownCast(endless)->ConversionFactor();
  StepBasic_Unit itself;
  itself.SetValue(endless);
  conversion->SetUnitComponent(itself);
  EXPECT_FALSE(density(1, {{endless, 1}, {metre(), -3}}));
  conversion->SetUnitComponent(StepBasic_Unit());
}

}  // namespace
}  // namespace headless::step
