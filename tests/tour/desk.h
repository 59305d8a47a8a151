// A user's hands and eyes: finds windows of another process, clicks and types into them as mouse
// and keyboard do, and takes pictures of the screen. Whatever does not happen in time ends the
// tour.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace tessaline::desk {

/// Where pictures go.
void SetPictureFolder(const std::wstring& folder);

/// Waits until `holds` does. Ends the process with a message that names `what` after ten seconds.
void WaitFor(const char* what, const std::function<bool()>& holds);

/// Waits for a visible, enabled window of that class (and title, where one is given).
HWND WaitForWindow(const wchar_t* className, const wchar_t* title = nullptr);
void WaitUntilGone(HWND window);

/// The control of that ID anywhere below `window`: the `which`-th visible one.
HWND Control(HWND window, int id, int which = 0);

void Click(HWND control);
void DoubleClick(POINT place);
void Wheel(HWND over, int notches);
void Type(const std::wstring& text);
void Press(WORD key, WORD modifier = 0);

/// Selects what the edit holds, then types over it.
void Retype(HWND edit, const std::wstring& text);

/// Saves the whole screen, once everything has been painted.
void TakePicture(const wchar_t* name);

}  // namespace tessaline::desk
