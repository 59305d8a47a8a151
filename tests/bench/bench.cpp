// bench GROUP FOLDER: measures one group; one line of fields between tabs for each measure.
#include "tests/bench/bench.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace tessaline::bench {

double Milliseconds(const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

std::vector<double> Race(int rounds, const Runners& runners) {
    std::vector<std::vector<double>> results(runners.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < runners.size(); ++i) {
            // Whoever comes later finds warmer caches, so every other round goes backwards.
            const std::size_t runner = round % 2 == 0 ? i : runners.size() - 1 - i;
            results[runner].push_back(runners[runner]());
        }
    }
    std::vector<double> medians;
    for (auto& times : results) {
        std::sort(times.begin(), times.end());
        medians.push_back(times[times.size() / 2]);
    }
    return medians;
}

void Report(const char* name, double ours, double floor, double aim, const char* unit) {
    std::printf("%s\t%.4g\t%.4g\t%s\t%.3f\t%g\n", name, ours, floor, unit, ours / floor, aim);
}

void Compare(const char* name, int repeats, double aim, const Work& ours, const Work& floor) {
    const auto repeated = [repeats](const Work& work) {
        return [repeats, &work] {
            double all = 0;
            for (int i = 0; i < repeats; ++i) all += Milliseconds(work);
            return all / repeats;
        };
    };
    const std::vector<double> times = Race(11, {repeated(ours), repeated(floor)});
    Report(name, times[0], times[1], aim);
}

}  // namespace tessaline::bench

int wmain(int count, wchar_t** arguments) {
    using namespace tessaline::bench;
    const struct {
        const wchar_t* name;
        void (*measure)(const std::wstring& folder);
    } groups[] = {{L"memory", MeasureMemory},       {L"catalogue", MeasureCatalogue},
                  {L"payload", MeasurePayload},     {L"older", MeasureOlderFile},
                  {L"keystroke", MeasureKeystroke}, {L"pages", MeasurePages},
                  {L"start", MeasureStart}};
    for (const auto& group : groups) {
        if (count != 3 || std::wstring(arguments[1]) != group.name) continue;
        group.measure(arguments[2]);
        return 0;
    }
    return 2;
}
