// Measures what the program costs and writes a table and a list of objects in JSON:
// bench SCRATCH-FOLDER PROGRAM-FOLDER JSON-FILE.
#include <windows.h>

#include <cstdio>

#include "platform/files.h"
#include "tests/bench/measure.h"

using namespace tessaline;
using namespace tessaline::bench;

namespace {

std::string Number(std::optional<double> number, const char* format) {
    if (!number) return "-";
    char text[32];
    std::snprintf(text, sizeof(text), format, *number);
    return text;
}

void PrintTable(const Measures& measures) {
    std::printf("%-34s %12s %12s %5s %8s %8s\n", "measure", "ours", "floor", "unit", "value",
                "aim");
    for (const Measure& row : measures) {
        const bool missed = row.aim && row.value > *row.aim;
        std::printf("%-34s %12.3f %12s %5s %8.3f %8s%s\n", row.name.c_str(), row.ours,
                    Number(row.floor, "%.3f").c_str(), row.unit.c_str(), row.value,
                    Number(row.aim, "%.2f").c_str(), missed ? "  missed" : "");
    }
}

std::string Json(const Measures& measures) {
    const auto orNull = [](std::optional<double> number) {
        return number ? Number(number, "%.6g") : std::string("null");
    };
    std::string json = "[\n";
    for (const Measure& row : measures) {
        json += "  {\"name\": \"" + row.name + "\", \"ours\": " + orNull(row.ours) +
                ", \"floor\": " + orNull(row.floor) + ", \"unit\": \"" + row.unit +
                "\", \"value\": " + orNull(row.value) + ", \"aim\": " + orNull(row.aim) + "}" +
                (&row == &measures.back() ? "\n" : ",\n");
    }
    return json + "]\n";
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 4) return 2;
    Measures measures;
    AddStoreMeasures(measures, arguments[1]);
    AddScreenMeasures(measures, arguments[2]);
    PrintTable(measures);
    const std::string json = Json(measures);
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(json.data());
    return WriteFileBytes(arguments[3], {bytes, json.size()}) ? 0 : 1;
}
