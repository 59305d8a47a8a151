// The user interface's single state object, which all its window procedures share.
#pragma once

#include <windows.h>

#include <map>
#include <set>
#include <string>

#include "model/estimate.h"
#include "platform/local_store.h"

namespace tessaline {

/// The sections of the form that have a message line.
enum MessageSection { kPatientMessage, kProviderMessage, kDetailsMessage, kItemsMessage };
inline constexpr int kMessageSections = 4;

/// Lives on the entry function's stack for the life of the process. Windows own themselves; the
/// handles here are borrowed.
struct AppState {
    HINSTANCE instance = nullptr;
    HWND mainWindow = nullptr;
    HWND headerWindow = nullptr;
    HWND barWindow = nullptr;
    HWND scrollWindow = nullptr;
    HWND canvasWindow = nullptr;
    LocalStore store;
    Estimate currentEstimate;      ///< the estimate in the form; its lists are edited in place
    std::wstring CurrentFilePath;  ///< the file last saved or opened; empty for one never saved
    bool IsModified = false;       ///< changes exist that no file holds
    std::wstring SavedStatus = kStatusDraft;  ///< the status when last bound to the form or saved
    std::set<HWND> invalidControls;           ///< edits that are marked as wrong
    std::map<int, HWND> controlById;          ///< every control that commands address by ID
    HWND statusLine = nullptr;
    HWND statusCombo = nullptr;
    HWND totalAmount = nullptr;
    HWND sectionMessage[kMessageSections] = {};
    HWND linesList = nullptr;
    HWND separateList = nullptr;
    HWND notesEdit = nullptr;
};

/// The published state, or null before and after its time.
[[nodiscard]] AppState* App();

/// Makes `state` the one that `App` returns; null withdraws it. Not owned.
void PublishAppState(AppState* state);

/// The control of that ID; null when there is none.
[[nodiscard]] HWND ControlById(int id);

/// Notes that the form holds changes that no file holds.
void MarkDirty();

/// Shows a text on the bar's status line.
void SetStatusLine(const wchar_t* text);

}  // namespace tessaline
