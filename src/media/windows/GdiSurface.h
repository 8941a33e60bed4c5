#pragma once

#include "media/windows/GdiFunctions.h"

#include <cstdint>

namespace corvane {

/// A 32-bit BGRA picture for GDI to draw on: a memory device context compatible with the screen,
/// with a top-down bitmap selected into it, and the screen's device context beside it.
class GdiSurface {
public:
    /// `functions` must outlive the surface.
    explicit GdiSurface(const GdiFunctions& functions) : m_functions(functions) {}
    ~GdiSurface() { destroy(); }
    GdiSurface(const GdiSurface&) = delete;
    GdiSurface& operator=(const GdiSurface&) = delete;

    /// Creates a surface of this many pixels, replacing an earlier one. Returns the name of the
    /// system call that failed, or null; after a failure nothing is held.
    const char* create(int32_t width, int32_t height);

    void destroy();

    HDC screen() const { return m_screen; }
    HDC context() const { return m_context; }

    /// The pixels, in rows of 4 * width bytes; flush GDI between drawing and reading.
    uint8_t* bits() const { return m_bits; }

    /// Copies the picture to `target`, which holds 4 * width * height bytes; false when GDI
    /// refuses.
    bool copyTo(uint8_t* target) const;

private:
    BITMAPINFO description() const;
    const char* createParts();

    const GdiFunctions& m_functions;
    int32_t m_width = 0;
    int32_t m_height = 0;
    HDC m_screen = nullptr;
    HDC m_context = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_previous = nullptr; ///< selected into the context before
    uint8_t* m_bits = nullptr;
};

} // namespace corvane
