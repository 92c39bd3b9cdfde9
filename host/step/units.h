// Units of measure as STEP files define them.
#pragma once

#include <StepBasic_MeasureWithUnit.hxx>
#include <optional>

namespace headless::step {

/// The density in kg/m3. Empty when the measure has no unit of mass per volume.
std::optional<double> densityFrom(const StepBasic_MeasureWithUnit& measure);

}  // namespace headless::step
