// Times ours against a floor: bare calls that do the least the platform must do for the same
// result. All run in turns, so that what else the machine does falls on all alike.
#pragma once

#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace tessaline::bench {

using Work = std::function<void()>;
using Runners = std::vector<std::function<double()>>;

/// Milliseconds that `work` takes.
[[nodiscard]] double Milliseconds(const Work& work);

/// Lets all run in turns, and gives the median of each one's results.
[[nodiscard]] std::vector<double> Race(int rounds, const Runners& runners);

/// Prints a row of the table; its value is how many times the floor we take, which is to be `aim`
/// at most.
void Report(const char* name, double ours, double floor, double aim, const char* unit = "ms");

/// Races two pieces of work, each done `repeats` times in every round, and reports them.
void Compare(const char* name, int repeats, double aim, const Work& ours, const Work& floor);

/// A floor that does not do its work measures nothing.
inline void Demand(bool done) {
    if (!done) std::abort();
}

/// The groups of measures. `folder` is for files that the groups share; it may not be there yet.
void MeasureMemory(const std::wstring& folder);
void MeasureCatalogue(const std::wstring& folder);
void MeasurePayload(const std::wstring& folder);
void MeasureOlderFile(const std::wstring& folder);
void MeasureKeystroke(const std::wstring& folder);
void MeasurePages(const std::wstring& folder);
void MeasureStart(const std::wstring& folder);

}  // namespace tessaline::bench
