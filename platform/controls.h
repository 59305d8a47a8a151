// The makers of child controls and the reading and writing of their texts. Places are in pixels at
// 96 DPI relative to the parent; a new control belongs to its parent and has its font.
#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <string_view>

namespace tessaline {

/// A place in pixels at 96 DPI.
struct Box {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// The height of a drop-down list when it is open, which is the one that Windows asks for.
inline constexpr int kChoiceHeight = 220;

using Entries = std::span<const wchar_t* const>;

/// A static text, in `uiFont` when no font is given.
HWND MakeLabel(HWND parent, const wchar_t* text, const Box& box, HFONT font = nullptr,
               DWORD extraStyle = 0);

/// A framed edit that scrolls sideways.
HWND MakeEdit(HWND parent, int id, const Box& box, DWORD extraStyle = 0);

/// Lets Tab and Escape work in a dialog while the focus is in an edit of several lines, which
/// would otherwise take them as input. Enter still starts a new line there.
void LeaveKeysToDialog(HWND edit);

/// A drop-down list with its first entry selected.
HWND MakeChoice(HWND parent, int id, const Box& box, Entries entries);

/// A push button.
HWND MakeButton(HWND parent, int id, const wchar_t* text, const Box& box, bool emphasised = false);

/// A check box that toggles itself, in the font of labels.
HWND MakeCheckBox(HWND parent, int id, const wchar_t* text, const Box& box);

/// Answers WM_CTLCOLORSTATIC: the text of a label in `colour` on its parent's own background,
/// which `background` is.
LRESULT ColourLabel(WPARAM context, COLORREF colour, HBRUSH background);

/// Answers WM_CTLCOLORBTN: some versions of Windows draw the rim of a push button with the brush
/// that its parent names, and grey where it names none. `background` is the parent's own.
LRESULT ColourButton(HBRUSH background);

/// The whole text of a window, as it stands.
[[nodiscard]] std::wstring WindowText(HWND window);

/// Selects the first entry equal to `text`, ignoring case; the first entry when none is.
void SelectChoice(HWND choice, std::wstring_view text) noexcept;

/// The selected entry, or empty when none is selected.
[[nodiscard]] std::wstring ChoiceText(HWND choice);

}  // namespace tessaline
