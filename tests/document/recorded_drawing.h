// What the document's code draws, recorded by Windows in a metafile and told in page units, one
// line for each thing:
//   text 42,34,440,34 22pt bold 123A50 left: GOOD FAITH ESTIMATE
//   fill 42,117,732,4 1E8B90
//   frame 42,132,732,63 1E8B90 pen 1
// Colours are red, green and blue in hexadecimal. The lines of one text are joined by blanks, so
// that it does not matter where they are broken.
#pragma once

#include <windows.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "document/page_transform.h"
#include "platform/handles.h"
#include "tests/support/rule_table.h"

namespace tessaline {

/// A page with an offset, stretched differently in x and y, by whole numbers.
inline constexpr PageTransform kStretched{10, 20, 10 + 816 * 4, 20 + 1056 * 2, 4.0, 2.0};

/// Everything that `draw(dc)` draws, told in the units of a transform with whole scales.
class Recording {
  public:
    template <typename Draw>
    explicit Recording(const Draw& draw, const PageTransform& units = kStretched) : units_(units) {
        HDC dc = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
        SetBkMode(dc, OPAQUE);  // as every device begins, but not what plays a metafile
        const auto before = Selection(dc);
        draw(dc);
        tidy = Selection(dc) == before;
        HENHMETAFILE metafile = CloseEnhMetaFile(dc);
        const DeviceContextOwner player(CreateCompatibleDC(nullptr));
        const RECT anywhere{0, 0, 100, 100};
        EnumEnhMetaFile(player.Get(), metafile, ReadRecord, this, &anywhere);
        DeleteEnhMetaFile(metafile);
        tidy = tidy && objects_ == 0;
    }

    std::vector<std::wstring> lines;
    bool tidy = false;  ///< no call left a font, pen or brush behind, undeleted or selected

  private:
    static std::array<HGDIOBJ, 3> Selection(HDC dc) {
        return {GetCurrentObject(dc, OBJ_FONT), GetCurrentObject(dc, OBJ_PEN),
                GetCurrentObject(dc, OBJ_BRUSH)};
    }

    /// The description of the font, pen or brush that the metafile selected last.
    template <typename Description>
    static Description Selected(HDC dc, UINT kind) {
        Description description{};
        GetObjectW(GetCurrentObject(dc, kind), sizeof(description), &description);
        return description;
    }

    static int CALLBACK ReadRecord(HDC dc, HANDLETABLE* handles, const ENHMETARECORD* record,
                                   int count, LPARAM self) {
        reinterpret_cast<Recording*>(self)->Read(dc, *record);
        return PlayEnhMetaFileRecord(dc, handles, record, static_cast<UINT>(count));
    }

    void Read(HDC dc, const ENHMETARECORD& record) {
        switch (record.iType) {
            case EMR_CREATEBRUSHINDIRECT:
            case EMR_CREATEPEN:
            case EMR_EXTCREATEFONTINDIRECTW:
                tidy = tidy && ++objects_ == 1;
                break;
            case EMR_DELETEOBJECT:
                --objects_;
                break;
            case EMR_BITBLT: {
                const auto& fill = reinterpret_cast<const EMRBITBLT&>(record);
                lines.push_back(L"fill " +
                                Place(fill.xDest, fill.yDest, fill.cxDest, fill.cyDest) +
                                Hex(Selected<LOGBRUSH>(dc, OBJ_BRUSH).lbColor));
                break;
            }
            case EMR_RECTANGLE: {
                // Recorded one pixel short at right and bottom.
                const RECTL& box = reinterpret_cast<const EMRRECTANGLE&>(record).rclBox;
                const auto pen = Selected<LOGPEN>(dc, OBJ_PEN);
                const bool hollow = Selected<LOGBRUSH>(dc, OBJ_BRUSH).lbStyle == BS_HOLLOW;
                lines.push_back(
                    (hollow ? L"frame " : L"box ") +
                    Place(box.left, box.top, box.right + 1 - box.left, box.bottom + 1 - box.top) +
                    Hex(pen.lopnColor) + L" pen " + Told(pen.lopnWidth.x));
                break;
            }
            case EMR_EXTTEXTOUTW:
                Text(dc, record);
                break;
            default:
                break;
        }
    }

    void Text(HDC dc, const ENHMETARECORD& record) {
        const EMRTEXT& text = reinterpret_cast<const EMREXTTEXTOUTW&>(record).emrtext;
        const auto* bytes = reinterpret_cast<const BYTE*>(&record);
        const auto* advances = reinterpret_cast<const INT*>(bytes + text.offDx);
        const std::wstring words(reinterpret_cast<const wchar_t*>(bytes + text.offString),
                                 text.nChars);
        const auto font = Selected<LOGFONTW>(dc, OBJ_FONT);
        const auto& [left, top, right, bottom] = text.rcl;
        std::wstring how = L"text " + Place(left, top, right - left, bottom - top) +
                           Told(std::lround(-font.lfHeight * 0.75 / units_.scaleY)) +
                           (font.lfWeight == FW_SEMIBOLD ? L"pt bold " : L"pt ") +
                           Hex(GetTextColor(dc));
        if (GetBkMode(dc) != TRANSPARENT) how += L" opaque";
        if (how == lastText_) {  // the next line of the same text
            lines.back() += (lines.back().ends_with(L' ') ? L"" : L" ") + words;
            return;
        }
        lastText_ = how;
        LONG after = right - text.ptlReference.x;
        for (DWORD i = 0; i < text.nChars; ++i) after -= advances[i];
        how += text.ptlReference.x == left ? L" left" : after == 0 ? L" right" : L" centre";
        if (text.ptlReference.y > top) how += L" middle";
        lines.push_back(how + L": " + words);
    }

    static std::wstring Hex(COLORREF colour) {
        wchar_t text[8];
        std::swprintf(text, 8, L"%02X%02X%02X", GetRValue(colour), GetGValue(colour),
                      GetBValue(colour));
        return text;
    }

    /// Pixels as page units; what is left over shows.
    static std::wstring Units(LONG pixels, double scale) {
        const std::ldiv_t units = std::ldiv(pixels, static_cast<LONG>(scale));
        return Told(units.quot) + (units.rem == 0 ? L"" : L"+" + Told(units.rem));
    }

    [[nodiscard]] std::wstring Place(LONG left, LONG top, LONG width, LONG height) const {
        return Units(left - units_.left, units_.scaleX) + L"," +
               Units(top - units_.top, units_.scaleY) + L"," + Units(width, units_.scaleX) + L"," +
               Units(height, units_.scaleY) + L" ";
    }

    PageTransform units_;
    int objects_ = 0;  // fonts, pens and brushes alive
    std::wstring lastText_;
};

}  // namespace tessaline
