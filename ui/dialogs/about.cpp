#include "ui/dialogs/about.h"

#include "model/product.h"
#include "platform/controls.h"
#include "platform/modal.h"
#include "platform/theme.h"
#include "platform/window.h"
#include "product_version.h"

namespace tessaline {
namespace {

constexpr wchar_t kAboutClass[] = L"GFE_About";
constexpr int kCloseButton = 2;

struct AboutState : ModalState {
    HWND webAddress = nullptr;
};

struct AboutText {
    const wchar_t* text;
    FontOwner Theme::*font;
    Box box;
};

constexpr AboutText kTexts[] = {
    {kProductName, &Theme::titleFont, {30, 26, 510, 38}},
    {L"No Surprises Act", &Theme::boldFont, {31, 65, 260, 22}},
    {nullptr, nullptr, {30, 96, 540, 2}},  // the rule
    {L"Version", &Theme::boldFont, {30, 118, 100, 20}},
    {L"" TESSALINE_VERSION L" Native Edition", &Theme::uiFont, {145, 118, 260, 20}},
    {L"Publisher", &Theme::boldFont, {30, 148, 100, 20}},
    {L"NORVAK Incorporated", &Theme::uiFont, {145, 148, 260, 20}},
    {L"Tessaline helps healthcare providers prepare, save, preview, and print Good Faith "
     L"Estimates for uninsured and self-pay patients.",
     &Theme::uiFont,
     {30, 190, 540, 58}},
    {L"Support", &Theme::boldFont, {30, 268, 100, 20}},
    {kMakerWebAddress, &Theme::boldFont, {145, 268, 250, 22}},
    {kMakerSupportPhone, &Theme::uiFont, {145, 294, 180, 22}},
    {kPublisherNotice, &Theme::labelFont, {30, 377, 360, 20}},
};

void BuildControls(HWND window, AboutState& state) {
    state.window = window;
    for (const AboutText& row : kTexts) {
        if (row.text == nullptr) {
            MakeLabel(window, L"", row.box, nullptr, SS_ETCHEDHORZ);
            continue;
        }
        const HWND label = MakeLabel(window, row.text, row.box, (CurrentTheme().*row.font).Get());
        if (row.text == kMakerWebAddress) state.webAddress = label;
    }
    MakeButton(window, kCloseButton, L"Close", {480, 370, 90, 38});
}

LRESULT HandleAboutMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const state = WindowState<AboutState>(window, message, lParam);
    if (state == nullptr) return DefWindowProcW(window, message, wParam, lParam);
    switch (message) {
        case WM_CREATE:
            BuildControls(window, *state);
            return 0;
        case WM_CTLCOLORSTATIC:
            if (reinterpret_cast<HWND>(lParam) != state->webAddress) break;
            return ColourLabel(wParam, kAccentColour, state->background);
        case WM_COMMAND:
            if (LOWORD(wParam) == kCloseButton) EndModal(*state, false);
            return 0;
        default:
            break;
    }
    return HandleModalMessage(*state, window, message, wParam, lParam);
}

}  // namespace

void ShowAbout(HWND owner) {
    AboutState state;
    state.owner = owner;
    ShowModal({kAboutClass, GuardedProcedure<HandleAboutMessage>, CurrentTheme().whiteBrush.Get(),
               L"About Tessaline", 620, 465, WS_CLIPCHILDREN},
              state);
}

}  // namespace tessaline
