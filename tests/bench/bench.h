// Times ours against a floor: bare calls that do the least the platform must do for the same
// result. All run in turns, so that what else the machine does falls on all alike.
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
    const char* unit;
    double value;               ///< what the aim is about: the ratio, or the figure itself
    std::optional<double> aim;  ///< at most; none where the figure is only reported
};
using Measures = std::vector<Measure>;

/// Milliseconds that `work` takes.
[[nodiscard]] double Milliseconds(const std::function<void()>& work);

/// Lets all run once unmeasured, then in turns. The median of each one's results.
[[nodiscard]] std::vector<double> Race(int rounds,
                                       const std::vector<std::function<double()>>& runners);

/// A row about the ratio of two times in milliseconds.
[[nodiscard]] Measure Ratio(const char* name, double ours, double floor, double aim);

/// A row about two pieces of work, each done `repeats` times in every round.
[[nodiscard]] Measure Compare(const char* name, int repeats, double aim,
                              const std::function<void()>& ours,
                              const std::function<void()>& floor);

/// `folder` is made and filled with files.
void AddStoreMeasures(Measures& measures, const std::wstring& folder);
/// `folder` is where the programs are.
void AddScreenMeasures(Measures& measures, const std::wstring& folder);

}  // namespace tessaline::bench
