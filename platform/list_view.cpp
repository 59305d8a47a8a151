#include "platform/list_view.h"

#include <commctrl.h>

#include "platform/scale.h"
#include "platform/theme.h"
#include "platform/window.h"

namespace tessaline {
namespace {

void AddColumn(HWND list, int index, const ListColumn& column) {
    LVCOLUMNW description{};
    description.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
    description.fmt = column.right ? LVCFMT_RIGHT : LVCFMT_LEFT;
    description.cx = Scale(column.width);
    description.pszText = const_cast<wchar_t*>(column.title);  // only read
    description.iSubItem = index;
    SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(&description));
}

}  // namespace

HWND MakeListView(HWND parent, int id, const Box& box, std::span<const ListColumn> columns) {
    const HWND list = CreateWindowExW(
        WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"",
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL, Scale(box.x),
        Scale(box.y), Scale(box.width), Scale(box.height), parent,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ProgramInstance(), nullptr);
    const LPARAM extended = LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES | LVS_EX_DOUBLEBUFFER;
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, extended);
    SendMessageW(list, WM_SETFONT, reinterpret_cast<WPARAM>(CurrentTheme().uiFont.Get()), FALSE);
    for (std::size_t index = 0; index < columns.size(); ++index) {
        AddColumn(list, static_cast<int>(index), columns[index]);
    }
    return list;
}

int SelectedRowData(HWND list) {
    const LRESULT row =
        SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
    if (row < 0) return -1;
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = static_cast<int>(row);
    SendMessageW(list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return static_cast<int>(item.lParam);
}

ListFill::ListFill(HWND list, std::size_t expectedRows) : list_(list) {
    SendMessageW(list_, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list_, LVM_DELETEALLITEMS, 0, 0);
    SendMessageW(list_, LVM_SETITEMCOUNT, expectedRows, 0);
}

ListFill::~ListFill() {
    SendMessageW(list_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list_, nullptr, TRUE);
}

void ListFill::Append(LPARAM data, std::span<const std::wstring> cells) {
    LVITEMW item{};
    item.iItem = rows_;
    item.lParam = data;
    for (const std::wstring& cell : cells) {
        item.pszText = const_cast<wchar_t*>(cell.c_str());  // only read
        if (item.iSubItem == 0) {
            item.mask = LVIF_TEXT | LVIF_PARAM;
            const LRESULT row =
                SendMessageW(list_, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
            if (row < 0) return;  // Windows has no memory for it
            ++rows_;
        } else {
            item.mask = LVIF_TEXT;
            SendMessageW(list_, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
        ++item.iSubItem;
    }
}

}  // namespace tessaline
