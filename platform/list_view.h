// Report-style list views: the form's two lists and the lookup window's.
#pragma once

#include <windows.h>

#include <array>
#include <span>
#include <string>
#include <vector>

#include "platform/controls.h"

namespace tessaline {

/// One column; its width is in pixels at 96 DPI.
struct ListColumn {
    const wchar_t* title = nullptr;
    int width = 0;
    bool right = false;  ///< right-aligned, else left-aligned
};

/// A column of a table, with what an element shows in it.
template <typename Element>
struct TableColumn {
    ListColumn column;
    std::wstring (*cell)(const Element& element);
};

/// The columns of a table alone, as a list view takes them.
template <typename Element, std::size_t Count>
[[nodiscard]] constexpr std::array<ListColumn, Count> ColumnsOf(
    const TableColumn<Element> (&table)[Count]) {
    std::array<ListColumn, Count> columns{};
    for (std::size_t at = 0; at < Count; ++at) columns[at] = table[at].column;
    return columns;
}

/// The texts of an element's row, one for each column.
template <typename Element, std::size_t Count>
[[nodiscard]] std::vector<std::wstring> CellsOf(const TableColumn<Element> (&table)[Count],
                                                const Element& element) {
    std::vector<std::wstring> cells;
    cells.reserve(Count);
    for (const auto& column : table) cells.push_back(column.cell(element));
    return cells;
}

/// A list with single selection, whole rows selected, grid lines and double buffering.
HWND MakeListView(HWND parent, int id, const Box& box, std::span<const ListColumn> columns);

/// The data of the selected row, or -1 when none is selected.
[[nodiscard]] int SelectedRowData(HWND list);

/// Empties a list and keeps it from drawing while it is filled anew. Ends with one repaint.
class ListFill {
  public:
    /// Room is reserved for `expectedRows`.
    ListFill(HWND list, std::size_t expectedRows);
    ListFill(const ListFill&) = delete;
    ListFill& operator=(const ListFill&) = delete;
    ~ListFill();

    /// Appends a row that carries `data`, with one text for each column.
    void Append(LPARAM data, std::span<const std::wstring> cells);

  private:
    HWND list_;
    int rows_ = 0;
};

}  // namespace tessaline
