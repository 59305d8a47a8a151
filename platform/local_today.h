// The calendar date of the user's clock.
#pragma once

#include <chrono>

namespace tessaline {

/// Today in the time zone that is set in Windows. The C library would follow a TZ variable.
[[nodiscard]] std::chrono::year_month_day LocalToday();

}  // namespace tessaline
