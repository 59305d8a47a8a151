// Times ours against a floor: bare calls that do the least the platform must do for the same
// result. Both run in turns, so that what else the machine does falls on both.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessaline::bench {

/// One row of the table.
struct Measure {
    std::string name;
    double ours;
    std::optional<double> floor;
    std::string unit;
    double value;               ///< what the aim is about: the ratio, or the figure itself
    std::optional<double> aim;  ///< at most; none where the figure is only reported
};

using Measures = std::vector<Measure>;

/// Milliseconds that `work` takes.
[[nodiscard]] double Time(const std::function<void()>& work);

/// Runs both in turns, once unmeasured and then `rounds` times. The row has the medians, and as
/// its value the median of the rounds' ratios.
[[nodiscard]] Measure Compare(const std::string& name, int rounds, double aim,
                              const std::function<void()>& ours,
                              const std::function<void()>& floor);

/// Compares figures that the two functions take themselves, in milliseconds.
[[nodiscard]] Measure CompareTimes(const std::string& name, int rounds, double aim,
                                   const std::function<double()>& ours,
                                   const std::function<double()>& floor);

void AddStoreMeasures(Measures& measures, const std::wstring& folder);
void AddScreenMeasures(Measures& measures, const std::wstring& programFolder);

}  // namespace tessaline::bench
