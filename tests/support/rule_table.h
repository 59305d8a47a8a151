// Tables of cases in tests/data/rules, as "rule | given | ... | result". A row may give several
// cases with the same result. Blanks around a cell do not count, but "·" is one that does, and
// "<U+0009>" is the unit of that number. Lines that begin with "#" are remarks.
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

using Cell = const std::wstring&;
using RowCells = std::vector<std::wstring>;  ///< the rule's name is the first

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
inline std::vector<RowCells> RowsOf(const std::wstring& file) {
    std::wistringstream lines(FromUtf8(TestData(L"rules/" + file)));
    std::vector<RowCells> rows;
    for (std::wstring line; std::getline(lines, line);) {
        if (line.empty() || line[0] == L'#') continue;
        rows.emplace_back();
        std::wistringstream cells(line + L"|");
        for (std::wstring cell; std::getline(cells, cell, L'|');) {
            rows.back().push_back(CellText(cell));
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

template <typename Element>
std::wstring Told(const std::vector<Element>& list) {
    return Told(list.size());
}

/// A function of one or more texts.
struct Rule {
    template <typename Function>
    Rule(Function function)  // NOLINT(google-explicit-constructor)
        : Rule(std::function(function)) {}

    template <typename Result, typename... Texts>
    Rule(std::function<Result(Texts...)> function)  // NOLINT(google-explicit-constructor)
        : textCount(sizeof...(Texts)), tell([function](const std::wstring* texts) {
              const auto call = [&]<std::size_t... At>(std::index_sequence<At...>) {
                  return Told(function(texts[At]...));
              };
              return call(std::index_sequence_for<Texts...>());
          }) {}

    std::size_t textCount;
    std::function<std::wstring(const std::wstring* texts)> tell;
};

/// Checks that in every row of a table the last cell is what the row's rule tells of those before
/// it, and that every rule has a row.
inline void CheckRules(const std::wstring& file, const std::map<std::wstring, Rule>& rules) {
    std::set<std::wstring> checked;
    for (const RowCells& row : RowsOf(file)) {
        REQUIRE(rules.contains(row[0]));
        const Rule& rule = rules.at(row[0]);
        REQUIRE(row.size() >= 2 + rule.textCount);
        REQUIRE((row.size() - 2) % rule.textCount == 0);
        for (std::size_t at = 1; at + 1 < row.size(); at += rule.textCount) {
            INFO(row[0], L" | ", row[at]);
            CHECK(rule.tell(&row[at]) == row.back());
        }
        checked.insert(row[0]);
    }
    CHECK(checked.size() == rules.size());
}

}  // namespace tessaline
