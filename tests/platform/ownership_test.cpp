// What owns handles ends them.
#include <utility>

#include "platform/handles.h"
#include "tests/support/readable.h"
#include "tests/support/stand_in.h"

using namespace tessaline;

namespace {

std::string ended;

void End(const char* name) {
    ended += name;
}

}  // namespace

TEST_CASE("An owner ends what it holds once, whoever holds it last") {
    {
        using NameOwner = Owner<const char*, End>;
        NameOwner first("1");
        NameOwner second(std::move(first));
        CHECK_FALSE(first);  // NOLINT(bugprone-use-after-move)
        CHECK(second);
        NameOwner third("2");
        third = std::move(second);
        CHECK(ended == "2");
        *third.Receive() = "3";
        CHECK(ended == "21");
        third.Reset();
        third.Reset();
    }
    CHECK(ended == "213");
}

TEST_CASE("A window's device context is given back") {
    static HDC released = nullptr;
    const StandIn get(__imp_GetDC, [](HWND) { return HDC(&released); });
    const StandIn release(__imp_ReleaseDC, [](HWND, HDC context) {
        released = context;
        return 1;
    });
    CHECK(WindowDeviceContext(nullptr).Get() == HDC(&released));
    CHECK(released == HDC(&released));
}
