// bench SCRATCH-FOLDER PROGRAM-FOLDER JSON-FILE: prints a table of what the program costs, and
// writes the same as a list of objects in JSON.
#include "tests/bench/bench.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>

namespace tessaline::bench {
namespace {

std::string Text(std::optional<double> number, const char* format, const char* none) {
    char text[32];
    std::snprintf(text, sizeof(text), format, number.value_or(0));
    return number ? text : none;
}

void PrintTable(const Measures& measures) {
    std::printf("%-36s %10s %10s %4s %7s %6s\n", "measure", "ours", "floor", "unit", "value",
                "aim");
    for (const Measure& row : measures) {
        std::printf("%-36s %10.2f %10s %4s %7.3f %6s%s\n", row.name.c_str(), row.ours,
                    Text(row.floor, "%.2f", "-").c_str(), row.unit, row.value,
                    Text(row.aim, "%.2f", "-").c_str(),
                    row.aim && row.value > *row.aim ? "  missed" : "");
    }
}

void WriteJson(const Measures& measures, std::ofstream file) {
    const char* separator = "[\n";
    for (const Measure& row : measures) {
        file << separator << R"(  {"name": ")" << row.name << R"(", "ours": )" << row.ours
             << R"(, "floor": )" << Text(row.floor, "%g", "null") << R"(, "unit": ")" << row.unit
             << R"(", "value": )" << row.value << R"(, "aim": )" << Text(row.aim, "%g", "null")
             << "}";
        separator = ",\n";
    }
    file << "\n]\n";
}

}  // namespace

double Milliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

std::vector<double> Race(int rounds, const std::vector<std::function<double()>>& runners) {
    std::vector<std::vector<double>> results(runners.size());
    for (const auto& runner : runners) runner();
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

Measure Ratio(const char* name, double ours, double floor, double aim) {
    return {name, ours, floor, "ms", ours / floor, aim};
}

Measure Compare(const char* name, int repeats, double aim, const std::function<void()>& ours,
                const std::function<void()>& floor) {
    const auto repeated = [repeats](const std::function<void()>& work) {
        return [repeats, &work] {
            return Milliseconds([&] {
                       for (int i = 0; i < repeats; ++i) work();
                   }) /
                   repeats;
        };
    };
    const std::vector<double> times = Race(9, {repeated(ours), repeated(floor)});
    return Ratio(name, times[0], times[1], aim);
}

}  // namespace tessaline::bench

int wmain(int count, wchar_t** arguments) {
    using namespace tessaline::bench;
    if (count != 4) return 2;
    Measures measures;
    AddStoreMeasures(measures, arguments[1]);
    AddScreenMeasures(measures, arguments[2]);
    PrintTable(measures);
    WriteJson(measures, std::ofstream(std::filesystem::path(arguments[3])));
    return 0;
}
