// Tables of cases in tests/data/rules: one case a line, as "rule | given | ... | result". Blanks
// around a cell do not count, but "·" is one that does, and "<U+0009>" is the unit of that number.
// Lines that begin with "#" are remarks.
#pragma once

#include <algorithm>
#include <charconv>
#include <functional>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "tests/support/readable.h"

namespace tessaline {

using RowCells = std::vector<std::wstring>;

struct RuleRow {
    std::wstring place;  ///< for the messages of failures
    RowCells cells;      ///< the rule's name is the first
};

inline std::wstring CellText(std::wstring cell) {
    cell.erase(0, std::min(cell.find_first_not_of(L' '), cell.size()));
    cell.erase(cell.find_last_not_of(L' ') + 1);
    std::replace(cell.begin(), cell.end(), L'\u00B7', L' ');
    for (std::size_t at = 0; (at = cell.find(L"<U+", at)) != std::wstring::npos; ++at) {
        const int unit = std::stoi(cell.substr(at + 3, 4), nullptr, 16);
        cell.replace(at, 8, 1, static_cast<wchar_t>(unit));
    }
    return cell;
}

/// The rows of a table, of which there is at least one.
inline std::vector<RuleRow> RowsOf(const std::wstring& file) {
    std::wistringstream lines(FromUtf8(TestData(L"rules/" + file)));
    std::vector<RuleRow> rows;
    std::wstring line;
    for (int number = 1; std::getline(lines, line); ++number) {
        if (line.empty() || line[0] == L'#') continue;
        rows.push_back({file + L" line " + std::to_wstring(number), {}});
        std::wistringstream cells(line + L"|");
        for (std::wstring cell; std::getline(cells, cell, L'|');) {
            rows.back().cells.push_back(CellText(cell));
        }
    }
    REQUIRE_FALSE(rows.empty());
    return rows;
}

/// A result as the tables have it.
inline std::wstring Told(const std::wstring& text) {
    return text;
}
inline std::wstring Told(bool holds) {
    return holds ? L"yes" : L"no";
}
template <typename Number>
requires std::is_arithmetic_v<Number> std::wstring Told(Number number) {
    char digits[32];
    return {digits, std::to_chars(std::begin(digits), std::end(digits), number).ptr};
}

/// A function of texts, called with a row's cells but the first and the last one.
struct Rule {
    template <typename Function>
    Rule(Function function)  // NOLINT(google-explicit-constructor)
        : Rule(std::function(function)) {}

    template <typename Result, typename... Texts>
    Rule(std::function<Result(Texts...)> function)  // NOLINT(google-explicit-constructor)
        : tell([function](const RowCells& cells) {
              REQUIRE(cells.size() == sizeof...(Texts) + 2);
              const auto call = [&]<std::size_t... At>(std::index_sequence<At...>) {
                  return Told(function(cells[At + 1]...));
              };
              return call(std::make_index_sequence<sizeof...(Texts)>());
          }) {}

    std::function<std::wstring(const RowCells&)> tell;
};

/// Checks that in every row of a table the last cell is what the row's rule tells of those before
/// it, and that every rule has a row.
inline void CheckRules(const std::wstring& file, const std::map<std::wstring, Rule>& rules) {
    std::set<std::wstring> checked;
    for (const RuleRow& row : RowsOf(file)) {
        CAPTURE(row.place);
        const auto rule = rules.find(row.cells[0]);
        REQUIRE(rule != rules.end());
        CHECK(rule->second.tell(row.cells) == row.cells.back());
        checked.insert(rule->first);
    }
    CHECK(checked.size() == rules.size());
}

}  // namespace tessaline
