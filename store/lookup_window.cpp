#include "store/lookup_window.h"

#include <commctrl.h>

#include <span>
#include <string>
#include <utility>
#include <vector>

#include "model/text.h"
#include "platform/controls.h"
#include "platform/list_view.h"
#include "platform/message_box.h"
#include "platform/theme.h"
#include "platform/window.h"

namespace tessaline {
namespace {

constexpr wchar_t kLookupClass[] = L"GFE_Lookup";

// The search box and the confirm button share an ID and are told apart by the notification code.
constexpr int kSearchBox = 1;
constexpr int kConfirmButton = 1;
constexpr int kList = 2;
constexpr int kCancelButton = 2;

struct ModeRow {
    const wchar_t* confirmText;
    int confirmWidth;
    std::span<const ListColumn> (*columns)();
    // Of the mode's list: its length, and what stands for an element.
    std::size_t (*count)(const LookupState&);
    std::vector<std::wstring> (*cells)(const LookupState&, std::size_t index);
    std::wstring (*searchText)(const LookupState&, std::size_t index);
};

template <auto list>
constexpr ModeRow Mode(const wchar_t* confirmText, int confirmWidth,
                       std::span<const ListColumn> (*columns)()) {
    return {
        confirmText,
        confirmWidth,
        columns,
        [](const LookupState& state) { return (state.*list).size(); },
        [](const LookupState& state, std::size_t at) { return LookupCells((state.*list)[at]); },
        [](const LookupState& state, std::size_t at) { return SearchText((state.*list)[at]); }};
}

// By LookupMode.
constexpr ModeRow kModes[] = {
    Mode<&LookupState::patients>(L"Use Selected Patient", 170, PatientColumns),
    Mode<&LookupState::providers>(L"Use Selected Provider", 170, ProviderColumns),
    Mode<&LookupState::estimates>(L"Open Selected", 130, EstimateColumns),
};

const ModeRow& ModeOf(const LookupState& state) {
    return kModes[static_cast<std::size_t>(state.Mode)];
}

void BuildControls(HWND window, LookupState& state) {
    const ModeRow& mode = ModeOf(state);
    state.window = window;
    MakeLabel(window, L"Search", {20, 18, 90, 18});
    state.searchBox = MakeEdit(window, kSearchBox, {20, 38, 760, 25});
    state.list = MakeListView(window, kList, {20, 76, 760, 340}, mode.columns());
    MakeButton(window, kConfirmButton, mode.confirmText, {20, 435, mode.confirmWidth, 36}, true);
    MakeButton(window, kCancelButton, L"Cancel", {690, 435, 90, 36});
    FillLookupList(state);
    SetFocus(state.searchBox);
}

void Confirm(LookupState& state) {
    const int selected = SelectedRowData(state.list);
    if (selected < 0) {
        ShowInformation(state.window, L"Select an item first.", L"Lookup");
        return;
    }
    state.Selected = selected;
    EndModal(state, true);
}

void HandleCommand(LookupState& state, int id, int notification) {
    if (id == kCancelButton) EndModal(state, false);
    if (id == kSearchBox && notification == EN_CHANGE) FillLookupList(state);
    // The search box sends its notifications (EN_SETFOCUS and above) under the same ID; a click
    // has code 0.
    if (id == kConfirmButton && notification < EN_SETFOCUS) Confirm(state);
}

LRESULT HandleLookupMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const state = WindowState<LookupState>(window, message, lParam);
    if (state == nullptr) return DefWindowProcW(window, message, wParam, lParam);
    switch (message) {
        case WM_CREATE:
            BuildControls(window, *state);
            return 0;
        case WM_COMMAND:
            HandleCommand(*state, LOWORD(wParam), HIWORD(wParam));
            return 0;
        case WM_NOTIFY: {
            const auto& notification = *reinterpret_cast<const NMHDR*>(lParam);
            if (notification.idFrom != kList || notification.code != NM_DBLCLK) break;
            SendMessageW(window, WM_COMMAND, MAKEWPARAM(kConfirmButton, BN_CLICKED), 0);
            return 0;
        }
        default:
            break;
    }
    return HandleModalMessage(*state, window, message, wParam, lParam);
}

}  // namespace

int ShowLookup(LookupState& state, const wchar_t* title) {
    const bool chosen = ShowModal({kLookupClass, GuardedProcedure<HandleLookupMessage>,
                                   CurrentTheme().pageBrush.Get(), title, 820, 525, WS_THICKFRAME},
                                  state);
    return chosen ? kLookupChosen : kLookupCancelled;
}

void FillLookupList(LookupState& state) {
    const ModeRow& mode = ModeOf(state);
    const std::wstring wanted = ToLower(Trim(WindowText(state.searchBox)));
    const std::size_t count = mode.count(state);
    if (!wanted.empty()) {
        while (state.searchTexts.size() < count) {
            state.searchTexts.push_back(mode.searchText(state, state.searchTexts.size()));
        }
    }
    // All of them before the list changes: when memory runs out, no row may be missing unseen.
    std::vector<std::pair<std::size_t, std::vector<std::wstring>>> rows;
    rows.reserve(count);
    for (std::size_t at = 0; at < count; ++at) {
        if (!wanted.empty() && state.searchTexts[at].find(wanted) == std::wstring::npos) continue;
        rows.emplace_back(at, mode.cells(state, at));
    }
    ListFill fill(state.list, rows.size());
    for (const auto& [at, cells] : rows) fill.Append(static_cast<LPARAM>(at), cells);
}

}  // namespace tessaline
