// What the program draws, told in page units, one line for each thing:
//   text 42,34,440,34 22pt bold 123A50 wrapped: GOOD FAITH ESTIMATE
//   fill 42,117,732,4 1E8B90
//   frame 42,132,732,63 1E8B90 pen 1
//   box 42,210,354,150 FFFFFF C8D2D8 pen 1
// A box is a filled frame. Colours are red, green and blue in hexadecimal, "¶" is a new line.
#pragma once

#include <windows.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "document/page_transform.h"
#include "platform/handles.h"
#include "tests/support/rule_table.h"
#include "tests/support/stand_in.h"

namespace tessaline {

/// A page with an offset.
inline constexpr PageTransform kOffset{10, 20, 10 + 816 * 2, 20 + 1056 * 2, 2.0, 2.0};

inline std::wstring OnOneLine(std::wstring text) {
    std::erase(text, L'\r');
    std::replace(text.begin(), text.end(), L'\n', L'\u00B6');
    return text;
}

/// One thing that was drawn, in page units.
struct Drawn {
    std::wstring kind;  ///< "text", "fill", "frame" or "box"
    RECT place;
    std::wstring look;

    [[nodiscard]] std::wstring Line() const {
        return kind + L" " + Told(place.left) + L"," + Told(place.top) + L"," +
               Told(place.right - place.left) + L"," + Told(place.bottom - place.top) + L" " +
               look;
    }
};

/// Everything that `draw(dc)` draws, told in the units of a transform with whole scales, after
/// which no font, pen or brush is left selected.
class Recording {
  public:
    template <typename Draw>
    explicit Recording(const Draw& draw, const PageTransform& units = kOffset) : units_(units) {
        const StandIn self(current_, this);
        const StandIn text(__imp_DrawTextW, Text);
        const StandIn fill(__imp_FillRect, Fill);
        const StandIn frame(__imp_Rectangle, Frame);
        const DeviceContextOwner memory(CreateCompatibleDC(nullptr));
        const auto selection = [dc = memory.Get()] {
            return std::array{GetCurrentObject(dc, OBJ_FONT), GetCurrentObject(dc, OBJ_PEN),
                              GetCurrentObject(dc, OBJ_BRUSH)};
        };
        const auto before = selection();
        draw(memory.Get());
        CHECK((selection() == before));
        for (const Drawn& thing : things) lines.push_back(thing.Line());
    }

    std::vector<Drawn> things;
    std::vector<std::wstring> lines;  ///< all of them told

  private:
    template <typename Description>
    static Description Describe(HGDIOBJ object) {
        Description description{};
        GetObjectW(object, sizeof(description), &description);
        return description;
    }

    static int WINAPI Text(HDC dc, LPCWSTR words, int, LPRECT place, UINT format) {
        const auto font = Describe<LOGFONTW>(GetCurrentObject(dc, OBJ_FONT));
        std::wstring how = Told(std::lround(-font.lfHeight * 0.75 / current_->units_.scaleY)) +
                           (font.lfWeight == FW_SEMIBOLD ? L"pt bold " : L"pt ") +
                           Hex(GetTextColor(dc));
        constexpr std::pair<UINT, const wchar_t*> kFlags[] = {
            {DT_CENTER, L" centre"},     {DT_RIGHT, L" right"},    {DT_WORDBREAK, L" wrapped"},
            {DT_SINGLELINE, L" single"}, {DT_VCENTER, L" middle"}, {DT_END_ELLIPSIS, L" cut"}};
        for (const auto& [flag, name] : kFlags) how += (format & flag) != 0 ? name : L"";
        if (GetBkMode(dc) != TRANSPARENT) how += L" opaque";
        if ((format & DT_NOPREFIX) == 0) how += L" prefixed";
        current_->Add(L"text", *place, how + L": " + OnOneLine(words));
        return 1;
    }

    static int WINAPI Fill(HDC, const RECT* place, HBRUSH brush) {
        current_->Add(L"fill", *place, Hex(Describe<LOGBRUSH>(brush).lbColor));
        return 1;
    }

    // Of what was filled just before, it makes a box.
    static BOOL WINAPI Frame(HDC dc, int left, int top, int right, int bottom) {
        const auto pen = Describe<LOGPEN>(GetCurrentObject(dc, OBJ_PEN));
        const auto brush = Describe<LOGBRUSH>(GetCurrentObject(dc, OBJ_BRUSH));
        current_->Add(brush.lbStyle == BS_HOLLOW ? L"frame" : L"solid", {left, top, right, bottom},
                      Hex(pen.lopnColor) + L" pen " + Told(pen.lopnWidth.x));
        auto& things = current_->things;
        const std::size_t last = things.size() - 1;
        if (last > 0 && EqualRect(&things[last - 1].place, &things[last].place)) {
            things[last - 1] = {L"box", things[last].place,
                                things[last - 1].look + L" " + things[last].look};
            things.pop_back();
        }
        return TRUE;
    }

    void Add(const wchar_t* kind, const RECT& pixels, const std::wstring& look) {
        const auto x = [this](LONG at) { return LONG((at - units_.left) / units_.scaleX); };
        const auto y = [this](LONG at) { return LONG((at - units_.top) / units_.scaleY); };
        const RECT place{x(pixels.left), y(pixels.top), x(pixels.right), y(pixels.bottom)};
        things.push_back({kind, place, look});
    }

    static std::wstring Hex(COLORREF colour) {
        wchar_t text[8];
        std::swprintf(text, 8, L"%02X%02X%02X", GetRValue(colour), GetGValue(colour),
                      GetBValue(colour));
        return text;
    }

    static inline Recording* current_ = nullptr;
    PageTransform units_;
};

}  // namespace tessaline
