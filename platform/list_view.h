// Report-style list views: the form's two lists and the lookup window's.
#pragma once

#include <windows.h>

#include <span>
#include <string>

#include "platform/controls.h"

namespace tessaline {

/// One column; its width is in pixels at 96 DPI.
struct ListColumn {
    const wchar_t* title;
    int width;
    bool right = false;  ///< right-aligned, else left-aligned
};

/// A list with single selection, whole rows selected, grid lines and double buffering.
HWND MakeListView(HWND parent, int id, const Box& box, std::span<const ListColumn> columns);

/// Appends a row that carries `data`, with one text for each column. Callers that fill a list keep
/// a `ListFill` meanwhile.
void AppendListRow(HWND list, LPARAM data, std::span<const std::wstring> cells);

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

  private:
    HWND list_;
};

}  // namespace tessaline
