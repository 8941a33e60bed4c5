#pragma once

#include "common/ByteVector.h"

#include <xcb/shm.h>

#include <cstddef>
#include <cstdint>

namespace corvane {

class X11Connection;

/// A client-side copy of one rectangle of the screen, updated in bands of rows. The server writes
/// straight into it if both share memory. Must not outlive the connection.
class ScreenImage {
public:
    /// `width` and `height` in pixels, both positive.
    ScreenImage(const X11Connection& connection, int width, int height);
    ~ScreenImage();
    ScreenImage(const ScreenImage&) = delete;
    ScreenImage& operator=(const ScreenImage&) = delete;

    /// Reads rows `firstRow` up to but not including `endRow` of the rectangle whose top-left
    /// corner is at (`x`, `y`) on the screen. False when the server refused or is gone.
    bool refresh(int x, int y, int firstRow, int endRow);

    /// `height` rows of `stride()` bytes, 32-bit BGRX.
    ByteSpan pixels() const { return {m_pixels, m_stride * static_cast<size_t>(m_height)}; }
    size_t stride() const { return m_stride; }
    bool isShared() const { return m_segment != XCB_NONE; }

private:
    bool attachSegment(size_t size);
    bool readShared(int x, int y, int rows, size_t offset);
    bool readCopied(int x, int y, int rows, size_t offset);

    const X11Connection& m_connection;
    int m_width;
    int m_height;
    size_t m_stride;
    xcb_shm_seg_t m_segment = XCB_NONE;
    ByteVector m_copy; ///< holds the pixels when they are not shared
    uint8_t* m_pixels = nullptr;
};

} // namespace corvane
