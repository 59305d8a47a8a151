#include "model/dates.h"

#include <array>
#include <ctime>
#include <cwchar>
#include <ratio>

#include "model/number.h"

namespace tessaline {
namespace {

std::optional<std::tm> LocalTime(std::int64_t stamp) {
    const std::time_t seconds = static_cast<std::time_t>(stamp);
    std::tm local{};
#ifdef _WIN32
    if (localtime_s(&local, &seconds) != 0) return std::nullopt;
#else
    if (localtime_r(&seconds, &local) == nullptr) return std::nullopt;
#endif
    return local;
}

bool TakeSlash(std::wstring_view& text) {
    if (text.empty() || text.front() != L'/') return false;
    text.remove_prefix(1);
    return true;
}

}  // namespace

std::int64_t NowSeconds() {
    using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<Ticks>(now).count() / Ticks::period::den;
}

std::wstring NewEstimateId() {
    const std::tm local = LocalTime(NowSeconds()).value_or(std::tm{});
    std::array<wchar_t, 64> id{};
    std::swprintf(id.data(), id.size(), L"GFE-%04d%02d%02d-%02d%02d%02d", local.tm_year + 1900,
                  local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
    return id.data();
}

std::wstring FormatTimestamp(std::int64_t stamp, bool withTime) {
    if (stamp <= 0) return {};
    const std::optional<std::tm> local = LocalTime(stamp);
    if (!local) return {};
    std::array<wchar_t, 64> text{};
    // Its "%p" would be in the language of the process's locale.
    const bool isMorning = local->tm_hour < 12;
    const wchar_t* format = !withTime   ? L"%m/%d/%Y"
                            : isMorning ? L"%m/%d/%Y %I:%M AM"
                                        : L"%m/%d/%Y %I:%M PM";
    return {text.data(), std::wcsftime(text.data(), text.size(), format, &*local)};
}

std::optional<std::chrono::year_month_day> ParseDate(std::wstring_view text) {
    const auto month = TakeInteger(text);
    if (!month || !TakeSlash(text)) return std::nullopt;
    const auto day = TakeInteger(text);
    if (!day || !TakeSlash(text)) return std::nullopt;
    const auto year = TakeInteger(text);
    if (!year || *year < 1900 || *year > 2200) return std::nullopt;
    if (*month < 1 || *month > 12 || *day < 1 || *day > 31) return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year{*year},
                                           std::chrono::month{static_cast<unsigned>(*month)},
                                           std::chrono::day{static_cast<unsigned>(*day)}};
    return date.ok() ? std::optional(date) : std::nullopt;
}

}  // namespace tessaline
