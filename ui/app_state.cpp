#include "ui/app_state.h"

namespace tessaline {
namespace {

AppState* publishedState = nullptr;

}  // namespace

AppState* App() {
    return publishedState;
}

void PublishAppState(AppState* state) {
    publishedState = state;
}

HWND ControlById(int id) {
    const auto found = App()->controlById.find(id);
    return found == App()->controlById.end() ? nullptr : found->second;
}

void MarkDirty() {
    if (App() != nullptr) App()->IsModified = true;
}

void SetStatusLine(const wchar_t* text) {
    SetWindowTextW(App()->statusLine, text);
}

}  // namespace tessaline
