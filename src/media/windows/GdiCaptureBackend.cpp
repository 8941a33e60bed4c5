#include "media/windows/GdiCaptureBackend.h"

#include "common/MonotonicClock.h"
#include "media/windows/CursorDrawing.h"

#include <spdlog/spdlog.h>

#include <algorithm>

namespace corvane {

namespace {

BOOL CALLBACK appendMonitor(HMONITOR monitor, HDC, LPRECT, LPARAM list) {
    reinterpret_cast<std::vector<HMONITOR>*>(list)->push_back(monitor);
    return TRUE;
}

MonitorInfo describe(const GdiFunctions& functions, HMONITOR monitor, size_t index) {
    MonitorInfo described;
    described.index = static_cast<uint32_t>(index);
    MONITORINFOEXA info = {};
    info.cbSize = sizeof(info);
    if (functions.getMonitorInfo(monitor, &info) != FALSE) {
        described.name = info.szDevice;
        described.x = info.rcMonitor.left;
        described.y = info.rcMonitor.top;
        described.width = info.rcMonitor.right - info.rcMonitor.left;
        described.height = info.rcMonitor.bottom - info.rcMonitor.top;
        described.primary = (info.dwFlags & MONITORINFOF_PRIMARY) != 0;
    }
    return described;
}

} // namespace

GdiCaptureBackend::GdiCaptureBackend(GdiFunctions functions)
    : m_functions(std::move(functions)), m_surface(m_functions) {}

GdiCaptureBackend::~GdiCaptureBackend() {
    GdiCaptureBackend::shutdown();
}

bool GdiCaptureBackend::initialize(int monitorIndex) {
    shutdown();
    m_monitor = {};
    m_monitor.index = static_cast<uint32_t>(std::max(monitorIndex, 0));
    if (!selectMonitor(monitors(), monitorIndex, "GdiCaptureBackend")) {
        return false;
    }
    if (const char* const failed = m_surface.create(m_monitor.width, m_monitor.height)) {
        spdlog::error("GdiCaptureBackend: {} failed", failed);
        return false;
    }
    m_initialized = true;
    spdlog::info("GdiCaptureBackend: initialized on monitor {} '{}' ({}x{}) [GDI fallback]",
                 m_monitor.index, m_monitor.name, m_monitor.width, m_monitor.height);
    return true;
}

void GdiCaptureBackend::shutdown() {
    m_surface.destroy();
    m_initialized = false;
}

std::unique_ptr<CapturedFrame> GdiCaptureBackend::captureFrame() {
    if (!m_initialized) {
        return nullptr;
    }
    if (!m_functions.bitBlt(m_surface.context(), 0, 0, m_monitor.width, m_monitor.height,
                            m_surface.screen(), m_monitor.x, m_monitor.y, SRCCOPY)) {
        spdlog::warn("GdiCaptureBackend: BitBlt failed");
        return nullptr;
    }
    if (const auto cursor = shownCursor(m_functions)) {
        drawCursor(m_functions, *cursor, m_surface.context(), m_monitor.x, m_monitor.y);
    }
    auto frame = std::make_unique<CapturedFrame>();
    frame->width = m_monitor.width;
    frame->height = m_monitor.height;
    frame->stride = 4 * m_monitor.width;
    frame->timestamp = monotonicMilliseconds();
    frame->data.resize(static_cast<size_t>(frame->height) * static_cast<size_t>(frame->stride));
    if (!m_surface.copyTo(frame->data.data())) {
        spdlog::warn("GdiCaptureBackend: GetDIBits failed");
        return nullptr;
    }
    return frame;
}

std::vector<MonitorInfo> GdiCaptureBackend::monitors() {
    std::vector<HMONITOR> handles;
    m_functions.enumDisplayMonitors(nullptr, nullptr, appendMonitor,
                                    reinterpret_cast<LPARAM>(&handles));
    std::vector<MonitorInfo> result;
    for (const HMONITOR handle : handles) {
        result.push_back(describe(m_functions, handle, result.size()));
    }
    return result;
}

} // namespace corvane
