// Owners of Windows handles: one template, one alias for each way in which a handle ends.
#pragma once

#include <windows.h>

#include <bcrypt.h>
#include <utility>

namespace tessaline {

/// Owns a handle or pointer that `End(handle)` gives back; null owns nothing. Move-only.
template <typename Handle, auto End>
class Owner {
  public:
    Owner() = default;
    explicit Owner(Handle handle) noexcept : handle_(handle) {}
    Owner(Owner&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    Owner& operator=(Owner&& other) noexcept {
        if (this != &other) Reset(std::exchange(other.handle_, nullptr));
        return *this;
    }
    ~Owner() { Reset(); }

    [[nodiscard]] Handle Get() const noexcept { return handle_; }
    explicit operator bool() const noexcept { return handle_ != nullptr; }

    void Reset(Handle handle = nullptr) noexcept {
        if (handle_ != nullptr) End(handle_);
        handle_ = handle;
    }

    /// Where a function that returns a handle through a pointer may put it.
    [[nodiscard]] Handle* Receive() noexcept {
        Reset();
        return &handle_;
    }

  private:
    Handle handle_ = nullptr;
};

namespace ending {

inline void CloseAlgorithm(BCRYPT_ALG_HANDLE algorithm) noexcept {
    BCryptCloseAlgorithmProvider(algorithm, 0);
}

}  // namespace ending

using FontOwner = Owner<HFONT, DeleteObject>;
using BrushOwner = Owner<HBRUSH, DeleteObject>;
using PenOwner = Owner<HPEN, DeleteObject>;
using BitmapOwner = Owner<HBITMAP, DeleteObject>;
using DeviceContextOwner = Owner<HDC, DeleteDC>;
using FileOwner = Owner<HANDLE, CloseHandle>;
using FindOwner = Owner<HANDLE, FindClose>;
using GlobalOwner = Owner<HGLOBAL, GlobalFree>;
template <typename T>
using LocalOwner = Owner<T*, LocalFree>;
using AlgorithmOwner = Owner<BCRYPT_ALG_HANDLE, ending::CloseAlgorithm>;
using HashOwner = Owner<BCRYPT_HASH_HANDLE, BCryptDestroyHash>;
using KeyOwner = Owner<BCRYPT_KEY_HANDLE, BCryptDestroyKey>;

/// The device context of a window (or, for null, of the screen) for the time of a scope.
class WindowDeviceContext {
  public:
    explicit WindowDeviceContext(HWND window) noexcept
        : window_(window), context_(GetDC(window)) {}
    WindowDeviceContext(const WindowDeviceContext&) = delete;
    WindowDeviceContext& operator=(const WindowDeviceContext&) = delete;
    ~WindowDeviceContext() {
        if (context_ != nullptr) ReleaseDC(window_, context_);
    }

    [[nodiscard]] HDC Get() const noexcept { return context_; }

  private:
    HWND window_;
    HDC context_;
};

/// Painting of a window between `BeginPaint` and `EndPaint`.
class PaintScope {
  public:
    explicit PaintScope(HWND window) noexcept : window_(window) { BeginPaint(window_, &paint_); }
    PaintScope(const PaintScope&) = delete;
    PaintScope& operator=(const PaintScope&) = delete;
    ~PaintScope() { EndPaint(window_, &paint_); }

    [[nodiscard]] HDC Get() const noexcept { return paint_.hdc; }

  private:
    HWND window_;
    PAINTSTRUCT paint_{};
};

/// A drawing object selected into a device context for the time of a scope. It must outlive the
/// scope: declare its owner first.
class SelectGuard {
  public:
    SelectGuard(HDC context, HGDIOBJ object) noexcept
        : context_(context), previous_(SelectObject(context, object)) {}
    SelectGuard(const SelectGuard&) = delete;
    SelectGuard& operator=(const SelectGuard&) = delete;
    ~SelectGuard() { SelectObject(context_, previous_); }

  private:
    HDC context_;
    HGDIOBJ previous_;
};

}  // namespace tessaline
