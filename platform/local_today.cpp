#include "platform/local_today.h"

#include <windows.h>

namespace tessaline {

std::chrono::year_month_day LocalToday() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return std::chrono::year{now.wYear} / std::chrono::month{now.wMonth} /
           std::chrono::day{now.wDay};
}

}  // namespace tessaline
