#include "host/step/units.h"

#include <StepBasic_ConversionBasedUnit.hxx>
#include <StepBasic_DerivedUnit.hxx>
#include <StepBasic_DerivedUnitElement.hxx>
#include <StepBasic_NamedUnit.hxx>
#include <StepBasic_SiUnit.hxx>
#include <StepBasic_Unit.hxx>
#include <array>
#include <cmath>

namespace headless::step {

namespace {

/// A unit of mass in kilograms or of length in metres.
struct BaseUnit {
  bool isMass = false;
  double factor = 1.0;
};

double prefixFactor(StepBasic_SiPrefix prefix) {
  constexpr std::array<double, 16> factors{1e18, 1e15, 1e12, 1e9,  1e6,  1e3,  1e2,   1e1,
                                           1e-1, 1e-2, 1e-3, 1e-6, 1e-9, 1e-12, 1e-15, 1e-18};
  return factors.at(static_cast<std::size_t>(prefix));
}

std::optional<BaseUnit> baseUnit(const Handle(StepBasic_NamedUnit) & unit) {
  if (const auto si = Handle(StepBasic_SiUnit)::DownCast(unit); !si.IsNull()) {
    const bool isMass = si->Name() == StepBasic_sunGram;
    if (!isMass && si->Name() != StepBasic_sunMetre) {
      return std::nullopt;
    }
    constexpr double gram = 1e-3;
    return BaseUnit{isMass, (isMass ? gram : 1.0) * (si->HasPrefix() ? prefixFactor(si->Prefix()) : 1.0)};
  }
  const auto converted = Handle(StepBasic_ConversionBasedUnit)::DownCast(unit);
  if (converted.IsNull() || converted->ConversionFactor().IsNull()) {
    return std::nullopt;
  }
  std::optional<BaseUnit> base = baseUnit(converted->ConversionFactor()->UnitComponent().NamedUnit());
  if (base) {
    base->factor *= converted->ConversionFactor()->ValueComponent();
  }
  return base;
}

}  // namespace

std::optional<double> densityFrom(const StepBasic_MeasureWithUnit& measure) {
  const Handle(StepBasic_DerivedUnit) unit = measure.UnitComponent().DerivedUnit();
  if (unit.IsNull()) {
    return std::nullopt;
  }
  double massFactor = 1.0;
  double lengthFactor = 1.0;
  double massExponent = 0.0;
  double lengthExponent = 0.0;
  for (int i = 1; i <= unit->NbElements(); ++i) {
    const auto element = unit->ElementsValue(i);
    const std::optional<BaseUnit> base = baseUnit(element->Unit());
    if (!base) {
      return std::nullopt;
    }
    (base->isMass ? massFactor : lengthFactor) *= base->factor;
    (base->isMass ? massExponent : lengthExponent) += element->Exponent();
  }
  const bool isDensity = massExponent == 1.0 && lengthExponent == -3.0;
  // The kernel's own writer puts mass^3 length^2 where it means mass per length^3.
  const bool isMiswritten = massExponent == 3.0 && lengthExponent == 2.0 && unit->NbElements() == 2;
  if (!isDensity && !isMiswritten) {
    return std::nullopt;
  }
  return measure.ValueComponent() * massFactor / std::pow(lengthFactor, 3.0);
}

}  // namespace headless::step
