// What the document's code draws, recorded by Windows in a metafile and told in page units, one
// line for each thing:
//   text 42,34,440,34 22pt bold 123A50 left: GOOD FAITH ESTIMATE
//   fill 42,117,732,4 1E8B90
//   frame 42,132,732,63 1E8B90 pen 1
//   box 42,210,354,150 FFFFFF C8D2D8 pen 1
// A box is a filled frame. Colours are red, green and blue in hexadecimal. The lines of one text
// are joined by blanks, so that it does not matter where they are broken.
#pragma once

#include <windows.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <numeric>
#include <string>
#include <vector>

#include "document/page_transform.h"
#include "platform/handles.h"
#include "tests/support/rule_table.h"

namespace tessaline {

/// A page with an offset.
inline constexpr PageTransform kOffset{10, 20, 10 + 816 * 2, 20 + 1056 * 2, 2.0, 2.0};

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

/// Everything that `draw(dc)` draws, told in the units of a transform with whole scales.
class Recording {
  public:
    template <typename Draw>
    explicit Recording(const Draw& draw, const PageTransform& units = kOffset) : units_(units) {
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
        for (const Drawn& thing : things) lines.push_back(thing.Line());
    }

    std::vector<Drawn> things;
    std::vector<std::wstring> lines;  ///< all of them told
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
                const LONG right = fill.xDest + fill.cxDest, bottom = fill.yDest + fill.cyDest;
                things.push_back({L"fill", Units({fill.xDest, fill.yDest, right, bottom}),
                                  Hex(Selected<LOGBRUSH>(dc, OBJ_BRUSH).lbColor)});
                break;
            }
            case EMR_RECTANGLE: {
                // Recorded one pixel short at right and bottom.
                const RECTL& box = reinterpret_cast<const EMRRECTANGLE&>(record).rclBox;
                Frame(dc, Units({box.left, box.top, box.right + 1, box.bottom + 1}));
                break;
            }
            case EMR_EXTTEXTOUTW:
                Text(dc, record);
                break;
            default:
                break;
        }
    }

    void Frame(HDC dc, const RECT& place) {
        const auto pen = Selected<LOGPEN>(dc, OBJ_PEN);
        const bool hollow = Selected<LOGBRUSH>(dc, OBJ_BRUSH).lbStyle == BS_HOLLOW;
        const bool filled = !things.empty() && EqualRect(&things.back().place, &place);
        if (!filled) things.push_back({L"", place, L""});
        things.back().kind = !hollow ? L"solid" : filled ? L"box" : L"frame";
        std::wstring& look = things.back().look;
        look += (filled ? L" " : L"") + Hex(pen.lopnColor) + L" pen " + Told(pen.lopnWidth.x);
    }

    void Text(HDC dc, const ENHMETARECORD& record) {
        const EMRTEXT& text = reinterpret_cast<const EMREXTTEXTOUTW&>(record).emrtext;
        const auto* bytes = reinterpret_cast<const BYTE*>(&record);
        const auto* advances = reinterpret_cast<const INT*>(bytes + text.offDx);
        const std::wstring words(reinterpret_cast<const wchar_t*>(bytes + text.offString),
                                 text.nChars);
        const auto font = Selected<LOGFONTW>(dc, OBJ_FONT);
        const auto [x, y] = text.ptlReference;
        const LONG end = std::accumulate(advances, advances + text.nChars, x);
        const RECT place = Units(text.rcl);
        if (!things.empty() && EqualRect(&things.back().place, &place)) {
            // The next line of the same text.
            std::wstring& look = things.back().look;
            look += (look.ends_with(L' ') || look.ends_with(L'/') ? L"" : L" ") + words;
            return;
        }
        std::wstring how = Told(std::lround(-font.lfHeight * 0.75 / units_.scaleY)) +
                           (font.lfWeight == FW_SEMIBOLD ? L"pt bold " : L"pt ") +
                           Hex(GetTextColor(dc));
        if (GetBkMode(dc) != TRANSPARENT) how += L" opaque";
        how += x == text.rcl.left ? L" left" : end == text.rcl.right ? L" right" : L" centre";
        how += y > text.rcl.top ? L" middle: " : L": ";
        things.push_back({L"text", place, how + words});
    }

    static std::wstring Hex(COLORREF colour) {
        wchar_t text[8];
        std::swprintf(text, 8, L"%02X%02X%02X", GetRValue(colour), GetGValue(colour),
                      GetBValue(colour));
        return text;
    }

    [[nodiscard]] RECT Units(const RECTL& pixels) const {
        const auto x = [this](LONG at) { return LONG((at - units_.left) / units_.scaleX); };
        const auto y = [this](LONG at) { return LONG((at - units_.top) / units_.scaleY); };
        return {x(pixels.left), y(pixels.top), x(pixels.right), y(pixels.bottom)};
    }

    PageTransform units_;
    int objects_ = 0;  // fonts, pens and brushes alive
};

}  // namespace tessaline
