#include "platform/local_today.h"

#include <cstdlib>
#include <ctime>
#include <set>

#include "tests/support/readable.h"

TEST_CASE("Today is that of Windows, wherever the C library takes the program to be") {
    // More than a day apart.
    std::set<std::chrono::sys_days> days;
    for (const char* const zone : {"TZ=AAA12", "TZ=AAA-14", "TZ="}) {
        _putenv(zone);
        _tzset();
        days.insert(tessaline::LocalToday());
    }
    CHECK(days.size() == 1);
}
