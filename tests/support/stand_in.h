// Functions of Windows in whose place a test puts its own for a while. The program calls them
// through pointers that its import libraries would define; the test program defines them itself.
#pragma once

#include <windows.h>

#include <commdlg.h>

#include <type_traits>
#include <utility>

extern "C" {
extern decltype(&BeginPaint) __imp_BeginPaint;
extern decltype(&EndDoc) __imp_EndDoc;
extern decltype(&EndPage) __imp_EndPage;
extern decltype(&FindFirstFileW) __imp_FindFirstFileW;
extern decltype(&GetDeviceCaps) __imp_GetDeviceCaps;
extern decltype(&PrintDlgW) __imp_PrintDlgW;
extern decltype(&StartDocW) __imp_StartDocW;
extern decltype(&StartPage) __imp_StartPage;
}

namespace tessaline {

/// Stands in until the end of its scope.
template <typename Function>
class StandIn {
  public:
    StandIn(Function& pointer, std::type_identity_t<Function> own)
        : pointer_(pointer), before_(std::exchange(pointer, own)) {}
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;
    ~StandIn() { pointer_ = before_; }

  private:
    Function& pointer_;
    Function before_;
};

}  // namespace tessaline
