#include "platform/controls.h"

#include <commctrl.h>

#include <array>
#include <cwchar>

#include "platform/scale.h"
#include "platform/theme.h"
#include "platform/window.h"

namespace tessaline {
namespace {

constexpr std::size_t kEntryLength = 256;

struct ControlParts {
    const wchar_t* className;
    const wchar_t* text;
    DWORD style;
    DWORD extendedStyle;
    HFONT font;
};

HWND MakeControl(HWND parent, int id, const Box& box, const ControlParts& parts) {
    const HWND control = CreateWindowExW(
        parts.extendedStyle, parts.className, parts.text, WS_CHILD | WS_VISIBLE | parts.style,
        Scale(box.x), Scale(box.y), Scale(box.width), Scale(box.height), parent,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ProgramInstance(), nullptr);
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(parts.font), FALSE);
    return control;
}

using EntryBuffer = std::array<wchar_t, kEntryLength>;

std::wstring_view EntryText(HWND choice, WPARAM index, EntryBuffer& buffer) noexcept {
    // CB_GETLBTEXT writes as much as the entry holds: a longer one must not reach the buffer. For
    // no entry Windows answers -1, which is longer than any.
    const LRESULT length = SendMessageW(choice, CB_GETLBTEXTLEN, index, 0);
    if (static_cast<std::size_t>(length) >= kEntryLength) return {};
    SendMessageW(choice, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(buffer.data()));
    return buffer.data();
}

bool IsSameText(std::wstring_view left, std::wstring_view right) noexcept {
    return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                                static_cast<int>(right.size()), TRUE) == CSTR_EQUAL;
}

LRESULT CALLBACK PassTabAndEscape(HWND edit, UINT message, WPARAM wParam, LPARAM lParam,
                                  UINT_PTR id, DWORD_PTR) {
    if (message == WM_NCDESTROY) RemoveWindowSubclass(edit, PassTabAndEscape, id);
    if (message != WM_GETDLGCODE) return DefSubclassProc(edit, message, wParam, lParam);
    // IsDialogMessageW asks the focused control which keys it wants. The edit itself is not asked:
    // its answer would claim every key, and once asked it treats Enter as the default button's.
    const bool forDialog = wParam == VK_TAB || wParam == VK_ESCAPE;
    return DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS | (forDialog ? 0 : DLGC_WANTALLKEYS);
}

// A closed drop-down list changes its selection when the wheel turns over it. The form is scrolled
// with the wheel, and passing over a list must not change the record.
LRESULT CALLBACK PassWheel(HWND choice, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                           DWORD_PTR) {
    if (message == WM_NCDESTROY) RemoveWindowSubclass(choice, PassWheel, id);
    const bool passes =
        message == WM_MOUSEWHEEL && SendMessageW(choice, CB_GETDROPPEDSTATE, 0, 0) == FALSE;
    if (passes) return SendMessageW(GetParent(choice), message, wParam, lParam);
    return DefSubclassProc(choice, message, wParam, lParam);
}

}  // namespace

HWND MakeLabel(HWND parent, const wchar_t* text, const Box& box, HFONT font, DWORD extraStyle) {
    const HFONT used = font != nullptr ? font : CurrentTheme().uiFont.Get();
    return MakeControl(parent, 0, box, {L"STATIC", text, extraStyle, 0, used});
}

HWND MakeEdit(HWND parent, int id, const Box& box, DWORD extraStyle) {
    const DWORD style = WS_TABSTOP | ES_AUTOHSCROLL | extraStyle;
    return MakeControl(parent, id, box,
                       {L"EDIT", L"", style, WS_EX_CLIENTEDGE, CurrentTheme().uiFont.Get()});
}

void LeaveKeysToDialog(HWND edit) {
    SetWindowSubclass(edit, PassTabAndEscape, 1, 0);
}

HWND MakeChoice(HWND parent, int id, const Box& box, Entries entries) {
    const HWND choice = MakeControl(parent, id, box,
                                    {L"ComboBox", L"", WS_TABSTOP | CBS_DROPDOWNLIST,
                                     WS_EX_CLIENTEDGE, CurrentTheme().uiFont.Get()});
    for (const wchar_t* entry : entries) {
        SendMessageW(choice, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
    }
    SendMessageW(choice, CB_SETCURSEL, 0, 0);
    SetWindowSubclass(choice, PassWheel, 1, 0);
    return choice;
}

HWND MakeButton(HWND parent, int id, const wchar_t* text, const Box& box, bool emphasised) {
    const Theme& theme = CurrentTheme();
    const HFONT font = emphasised ? theme.boldFont.Get() : theme.uiFont.Get();
    return MakeControl(parent, id, box, {L"BUTTON", text, WS_TABSTOP, 0, font});
}

HWND MakeCheckBox(HWND parent, int id, const wchar_t* text, const Box& box) {
    return MakeControl(
        parent, id, box,
        {L"BUTTON", text, WS_TABSTOP | BS_AUTOCHECKBOX, 0, CurrentTheme().labelFont.Get()});
}

LRESULT ColourLabel(WPARAM context, COLORREF colour, HBRUSH background) {
    SetBkMode(reinterpret_cast<HDC>(context), TRANSPARENT);
    SetTextColor(reinterpret_cast<HDC>(context), colour);
    return reinterpret_cast<LRESULT>(background);
}

LRESULT ColourButton(HBRUSH background) {
    return reinterpret_cast<LRESULT>(background);
}

std::wstring WindowText(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
    // Windows may report more characters than the text has; the number copied is exact.
    const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void SelectChoice(HWND choice, std::wstring_view text) noexcept {
    EntryBuffer buffer{};
    const LRESULT count = SendMessageW(choice, CB_GETCOUNT, 0, 0);
    LRESULT selected = 0;
    for (LRESULT index = 0; index < count; ++index) {
        if (!IsSameText(EntryText(choice, static_cast<WPARAM>(index), buffer), text)) continue;
        selected = index;
        break;
    }
    SendMessageW(choice, CB_SETCURSEL, static_cast<WPARAM>(selected), 0);
}

std::wstring ChoiceText(HWND choice) {
    const LRESULT index = SendMessageW(choice, CB_GETCURSEL, 0, 0);
    EntryBuffer buffer{};
    return std::wstring(EntryText(choice, static_cast<WPARAM>(index), buffer));
}

}  // namespace tessaline
