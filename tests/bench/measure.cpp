#include "tests/bench/measure.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>

namespace tessaline::bench {
namespace {

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

}  // namespace

double Time(const std::function<void()>& work) {
    LARGE_INTEGER frequency{};
    LARGE_INTEGER start{};
    LARGE_INTEGER end{};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    work();
    QueryPerformanceCounter(&end);
    return 1000.0 * static_cast<double>(end.QuadPart - start.QuadPart) /
           static_cast<double>(frequency.QuadPart);
}

Measure Compare(const std::string& name, int rounds, double aim, const std::function<void()>& ours,
                const std::function<void()>& floor) {
    return CompareTimes(
        name, rounds, aim, [&] { return Time(ours); }, [&] { return Time(floor); });
}

Measure CompareTimes(const std::string& name, int rounds, double aim,
                     const std::function<double()>& ours, const std::function<double()>& floor) {
    std::vector<double> oursTimes;
    std::vector<double> floorTimes;
    std::vector<double> ratios;
    std::fprintf(stderr, "measuring %s\n", name.c_str());
    ours();
    floor();
    for (int round = 0; round < rounds; ++round) {
        // Whichever comes second finds warmer caches, so they take turns at that too.
        const bool oursFirst = round % 2 == 0;
        const double first = oursFirst ? ours() : floor();
        const double second = oursFirst ? floor() : ours();
        oursTimes.push_back(oursFirst ? first : second);
        floorTimes.push_back(oursFirst ? second : first);
        ratios.push_back(oursTimes.back() / floorTimes.back());
    }
    return {name, Median(oursTimes), Median(floorTimes), "ms", Median(ratios), aim};
}

}  // namespace tessaline::bench
