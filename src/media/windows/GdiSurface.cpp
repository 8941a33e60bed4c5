#include "media/windows/GdiSurface.h"

#include <utility>

namespace corvane {

const char* GdiSurface::create(int32_t width, int32_t height) {
    destroy();
    m_width = width;
    m_height = height;
    const char* const failure = createParts();
    if (failure != nullptr) {
        destroy();
    }
    return failure;
}

const char* GdiSurface::createParts() {
    m_screen = m_functions.getDc(nullptr);
    if (m_screen == nullptr) {
        return "GetDC";
    }
    m_context = m_functions.createCompatibleDc(m_screen);
    if (m_context == nullptr) {
        return "CreateCompatibleDC";
    }
    const BITMAPINFO info = description();
    void* bits = nullptr;
    m_bitmap = m_functions.createDibSection(m_context, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (m_bitmap == nullptr) {
        return "CreateDIBSection";
    }
    m_bits = static_cast<uint8_t*>(bits);
    m_previous = m_functions.selectObject(m_context, m_bitmap);
    return m_previous == nullptr ? "SelectObject" : nullptr;
}

void GdiSurface::destroy() {
    m_bits = nullptr;
    if (const HGDIOBJ previous = std::exchange(m_previous, nullptr)) {
        m_functions.selectObject(m_context, previous);
    }
    if (const HBITMAP bitmap = std::exchange(m_bitmap, nullptr)) {
        m_functions.deleteObject(bitmap);
    }
    if (const HDC context = std::exchange(m_context, nullptr)) {
        m_functions.deleteDc(context);
    }
    if (const HDC screen = std::exchange(m_screen, nullptr)) {
        m_functions.releaseDc(nullptr, screen);
    }
}

bool GdiSurface::copyTo(uint8_t* target) const {
    BITMAPINFO info = description();
    return m_functions.getDiBits(m_context, m_bitmap, 0, static_cast<UINT>(m_height), target, &info,
                                 DIB_RGB_COLORS) != 0;
}

BITMAPINFO GdiSurface::description() const {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = m_width;
    info.bmiHeader.biHeight = -m_height; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

} // namespace corvane
