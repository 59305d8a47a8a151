// The product's name and its maker's contact details, for everything that shows them.
#pragma once

namespace tessaline {

inline constexpr wchar_t kProductName[] = L"Tessaline";
inline constexpr wchar_t kMakerWebAddress[] = L"www.norvak.example";
inline constexpr wchar_t kMakerSupportPhone[] = L"1-800-555-0142";
inline constexpr wchar_t kPublisherNotice[] =
    L"\u00A9 2026 NORVAK Incorporated. All rights reserved.";

}  // namespace tessaline
