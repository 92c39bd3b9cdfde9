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
  constexpr std::array<double, 16> factors{1e18, 1e15, 1e12, 1e9,  1e6,  1e3,   1e2,   1e1,
                                           1e-1, 1e-2, 1e-3, 1e-6, 1e-9, 1e-12, 1e-15, 1e-18};
  return factors.at(static_cast<std::size_t>(prefix));
}

/// Units may be defined by other units; more than this many steps is no definition.
constexpr int mostSteps = 8;

std::optional<BaseUnit> baseUnit(const Handle(StepBasic_NamedUnit) & unit, int steps = 0) {
  if (const auto si = Handle(StepBasic_SiUnit)::DownCast(unit); !si.IsNull()) {
    const bool isMass = si->Name() == StepBasic_sunGram;
    if (!isMass && si->Name() != StepBasic_sunMetre) {
      return std::nullopt;
    }
    constexpr double gram = 1e-3;
    return BaseUnit{isMass, (isMass ? gram : 1.0) * (si->HasPrefix() ? prefixFactor(si->Prefix()) : 1.0)};
  }
  const auto converted = Handle(StepBasic_ConversionBasedUnit)::DownCast(unit);
  if (converted.IsNull() || converted->ConversionFactor().IsNull() || steps == mostSteps) {
    return std::nullopt;
  }
  std::optional<BaseUnit> base = baseUnit(converted->ConversionFactor()->UnitComponent().NamedUnit(), steps + 1);
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
  double factor = 1.0;
  double miswrittenFactor = 1.0;
  double massExponent = 0.0;
  double lengthExponent = 0.0;
  for (int i = 1; i <= unit->NbElements(); ++i) {
    const auto element = unit->ElementsValue(i);
    const std::optional<BaseUnit> base = baseUnit(element->Unit());
    if (!base) {
      return std::nullopt;
    }
    factor *= std::pow(base->factor, element->Exponent());
    miswrittenFactor *= std::pow(base->factor, base->isMass ? 1.0 : -3.0);
    (base->isMass ? massExponent : lengthExponent) += element->Exponent();
  }
  if (massExponent == 1.0 && lengthExponent == -3.0) {
    return measure.ValueComponent() * factor;
  }
  // The kernel's own writer puts mass^3 length^2 where it means mass length^-3.
  const bool isMiswritten = massExponent == 3.0 && lengthExponent == 2.0 && unit->NbElements() == 2;
  return isMiswritten ? std::optional(measure.ValueComponent() * miswrittenFactor) : std::nullopt;
}

}  // namespace headless::step
