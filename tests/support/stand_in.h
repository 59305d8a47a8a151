// What a test puts in the place of something else: functions of Windows, which the program calls
// through the pointers of its import libraries, a printer, and memory that runs out.
#pragma once

#include <windows.h>

#include <commdlg.h>
#include <dpapi.h>

#include <cstring>
#include <string_view>
#include <type_traits>
#include <utility>

extern "C" {
extern decltype(&AbortDoc) __imp_AbortDoc;
extern decltype(&BeginPaint) __imp_BeginPaint;
extern decltype(&CryptProtectData) __imp_CryptProtectData;
extern decltype(&CryptUnprotectData) __imp_CryptUnprotectData;
extern decltype(&DeleteDC) __imp_DeleteDC;
extern decltype(&DrawTextW) __imp_DrawTextW;
extern decltype(&EndDoc) __imp_EndDoc;
extern decltype(&EndPage) __imp_EndPage;
extern decltype(&FillRect) __imp_FillRect;
extern decltype(&FindFirstFileW) __imp_FindFirstFileW;
extern decltype(&FlushFileBuffers) __imp_FlushFileBuffers;
extern decltype(&GetDC) __imp_GetDC;
extern decltype(&GetDeviceCaps) __imp_GetDeviceCaps;
extern decltype(&GetMonitorInfoW) __imp_GetMonitorInfoW;
extern decltype(&LocalFree) __imp_LocalFree;
extern decltype(&PrintDlgW) __imp_PrintDlgW;
extern decltype(&Rectangle) __imp_Rectangle;
extern decltype(&ReleaseDC) __imp_ReleaseDC;
extern decltype(&SetTimer) __imp_SetTimer;
extern decltype(&StartDocW) __imp_StartDocW;
extern decltype(&StartPage) __imp_StartPage;
extern decltype(&WriteFile) __imp_WriteFile;
}

namespace tessaline {

/// Writes to a place that may be read-only, as Microsoft's linker makes the import table.
template <typename Value>
void Write(Value& place, std::type_identity_t<Value> value) {
    DWORD before = 0;
    // NOLINTNEXTLINE(bugprone-sizeof-expression): of the pointer itself, where it is one.
    VirtualProtect(&place, sizeof(Value), PAGE_READWRITE, &before);
    place = value;
}

/// Stands in until the end of its scope.
template <typename Value>
class StandIn {
  public:
    StandIn(Value& place, std::type_identity_t<Value> own) : place_(place), before_(place) {
        Write(place, own);
    }
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;
    ~StandIn() { Write(place_, before_); }

  private:
    Value& place_;
    Value before_;
};

/// Takes the place of Windows' data protection, whose own share of the time, and whose refusal of
/// what was damaged, would hide what is ours.
template <typename Description>
BOOL WINAPI CopyBlob(DATA_BLOB* from, Description, DATA_BLOB*, PVOID, CRYPTPROTECT_PROMPTSTRUCT*,
                     DWORD, DATA_BLOB* to) {
    *to = {from->cbData, static_cast<BYTE*>(LocalAlloc(LMEM_FIXED, from->cbData))};
    std::memcpy(to->pbData, from->pbData, from->cbData);
    return TRUE;
}

/// When this reaches 0, that allocation fails (see the operator new of allocation_test.cpp). At 0,
/// nothing counts and nothing fails; a 0 that stands in is for a test's own allocations.
inline long long allocationsLeft = 0;

/// Bytes that no memory may hold when it is given back (see the operator delete there), and how
/// often some did.
inline std::string_view sought;
inline int timesFound = 0;

inline void LookFor(const void* memory, std::size_t size) {
    const std::string_view bytes(static_cast<const char*>(memory), size);
    if (!sought.empty() && bytes.find(sought) != bytes.npos) ++timesFound;
}

struct PrintJobs {
    int begun, ended, aborted;
};
inline PrintJobs printJobs{};

/// From now on the print dialog is confirmed at once, and a printer without a spooler takes every
/// job and prints nothing.
inline void PretendPrinter() {
    Write(__imp_PrintDlgW, [](PRINTDLGW* dialog) {
        dialog->hDC = CreateCompatibleDC(nullptr);
        return TRUE;
    });
    Write(__imp_StartDocW, [](HDC, const DOCINFOW*) { return ++printJobs.begun; });
    Write(__imp_StartPage, [](HDC) { return 1; });
    Write(__imp_EndPage, [](HDC) { return 1; });
    Write(__imp_EndDoc, [](HDC) { return ++printJobs.ended; });
    Write(__imp_AbortDoc, [](HDC) { return ++printJobs.aborted; });
}

}  // namespace tessaline
