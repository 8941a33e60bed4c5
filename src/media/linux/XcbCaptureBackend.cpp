#include "media/linux/XcbCaptureBackend.h"

#include "common/MonotonicClock.h"
#include "media/linux/DamageTracker.h"
#include "media/linux/FrameRectClip.h"
#include "media/linux/ScreenImage.h"
#include "x11/MonitorWatch.h"
#include "x11/X11Connection.h"
#include "x11/X11Monitors.h"
#include "x11/XcbEvent.h"
#include "x11/Xwayland.h"

#include <poll.h>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <cstring>

namespace corvane {

namespace {

/// With more changed regions than this, the list costs more than it saves.
constexpr size_t kMaxChanges = 64;

std::unique_ptr<X11Connection> openUsableConnection() {
    auto connection = X11Connection::open();
    if (!connection) {
        spdlog::error("XcbCaptureBackend: cannot connect to the X server");
        return nullptr;
    }
    if (!connection->isBgrx()) {
        spdlog::error("XcbCaptureBackend: unsupported screen format (depth {}, {} bits per pixel)",
                      connection->screen().root_depth, connection->bitsPerPixel());
        return nullptr;
    }
    if (isXwayland(*connection)) {
        spdlog::error("XcbCaptureBackend: a Wayland desktop cannot be captured through X11");
        return nullptr;
    }
    return connection;
}

} // namespace

XcbCaptureBackend::XcbCaptureBackend() = default;

XcbCaptureBackend::~XcbCaptureBackend() {
    XcbCaptureBackend::shutdown();
}

bool XcbCaptureBackend::initialize(int monitorIndex) {
    shutdown();
    m_monitor = {};
    m_monitor.index = static_cast<uint32_t>(std::max(monitorIndex, 0));
    m_connection = openUsableConnection();
    if (!m_connection) {
        return false;
    }
    m_watch = std::make_unique<MonitorWatch>(*m_connection);
    if (!selectMonitor(enumerateMonitors(*m_connection), monitorIndex, "XcbCaptureBackend")) {
        shutdown();
        return false;
    }
    m_damage = std::make_unique<DamageTracker>(*m_connection);
    m_image = std::make_unique<ScreenImage>(*m_connection, m_monitor.width, m_monitor.height);
    m_wholeFrameDue = true;
    m_initialized = true;
    spdlog::info("XcbCaptureBackend: initialized on monitor {} '{}' ({}x{}){}", m_monitor.index,
                 m_monitor.name, m_monitor.width, m_monitor.height,
                 m_image->isShared() ? "" : " [no shared memory]");
    return true;
}

void XcbCaptureBackend::shutdown() {
    m_initialized = false;
    m_cursor.reset();
    m_geometryChanged = false;
    m_image.reset();
    m_damage.reset();
    m_watch.reset();
    m_connection.reset();
}

std::vector<MonitorInfo> XcbCaptureBackend::monitors() {
    if (m_connection && m_connection->isAlive()) {
        return enumerateMonitors(*m_connection);
    }
    const auto connection = X11Connection::open();
    return connection ? enumerateMonitors(*connection) : std::vector<MonitorInfo>{};
}

std::unique_ptr<CapturedFrame> XcbCaptureBackend::captureFrame() {
    if (!m_initialized) {
        return nullptr;
    }
    // Reading the pointer waits for the server, so the events of all earlier drawing have arrived.
    auto cursor = visibleCursor();
    drainEvents();
    if (!m_connection->isAlive()) {
        spdlog::warn("XcbCaptureBackend: connection to the X server lost");
        shutdown();
        return nullptr;
    }
    if (m_geometryChanged) {
        if (!followMonitor()) {
            return nullptr;
        }
        cursor = visibleCursor();
    }
    auto changes = m_damage->takeChanges(m_monitor);
    const bool pointerChanged = cursorChanged(cursor);
    if (!m_wholeFrameDue && changes.empty() && !pointerChanged) {
        return nullptr;
    }
    if (!refreshImage(changes)) {
        return nullptr;
    }
    if (pointerChanged) {
        for (const auto* shown : {&m_cursor, &cursor}) {
            if (shown->has_value()) {
                changes.push_back((*shown)->area);
            }
        }
        m_cursor = std::move(cursor);
    }
    if (m_wholeFrameDue || changes.size() > kMaxChanges) {
        changes.clear();
    }
    m_wholeFrameDue = false;
    return makeFrame(std::move(changes));
}

ScreenWait XcbCaptureBackend::waitForChange(std::chrono::milliseconds timeout) {
    if (!m_initialized || !m_damage->isReporting()) {
        return ScreenWait::Unsupported;
    }
    // Events may have been read together with an earlier reply, so look before waiting.
    if (drainEvents()) {
        return ScreenWait::MayHaveChanged;
    }
    pollfd socket{xcb_get_file_descriptor(m_connection->handle()), POLLIN, 0};
    const bool readable = ::poll(&socket, 1, static_cast<int>(timeout.count())) > 0;
    // A lost connection is readable too, and found out by the next capture.
    return readable && (drainEvents() || !m_connection->isAlive()) ? ScreenWait::MayHaveChanged
                                                                   : ScreenWait::Nothing;
}

/// Whether any of the events was about the picture.
bool XcbCaptureBackend::drainEvents() {
    while (const XcbEvent event{xcb_poll_for_event(m_connection->handle())}) {
        m_damage->noteEvent(*event);
        m_geometryChanged = m_geometryChanged || m_watch->isMonitorChange(*event);
    }
    return m_geometryChanged || m_damage->hasChanged();
}

/// Finds the monitor again after a change of the server's layout; false when it is gone.
bool XcbCaptureBackend::followMonitor() {
    m_geometryChanged = false;
    const auto available = enumerateMonitors(*m_connection);
    const auto found =
        std::find_if(available.begin(), available.end(),
                     [this](const MonitorInfo& monitor) { return monitor.name == m_monitor.name; });
    if (found == available.end() || found->width < 1 || found->height < 1) {
        spdlog::warn("XcbCaptureBackend: monitor '{}' is gone", m_monitor.name);
        shutdown();
        return false;
    }
    if (found->width != m_monitor.width || found->height != m_monitor.height) {
        spdlog::info("XcbCaptureBackend: resolution changed to {}x{}", found->width, found->height);
        m_image = std::make_unique<ScreenImage>(*m_connection, found->width, found->height);
    }
    m_monitor = *found;
    m_wholeFrameDue = true;
    return true;
}

std::optional<XcbCaptureBackend::VisibleCursor> XcbCaptureBackend::visibleCursor() const {
    auto cursor = readCursor(*m_connection);
    if (!cursor) {
        return std::nullopt;
    }
    cursor->left -= m_monitor.x;
    cursor->top -= m_monitor.y;
    const FrameRect area = clipped(
        {cursor->left, cursor->top, cursor->left + cursor->width, cursor->top + cursor->height},
        m_monitor.width, m_monitor.height);
    if (isEmpty(area)) {
        return std::nullopt;
    }
    return VisibleCursor{std::move(*cursor), area};
}

bool XcbCaptureBackend::cursorChanged(const std::optional<VisibleCursor>& cursor) const {
    if (!cursor || !m_cursor) {
        return cursor.has_value() != m_cursor.has_value();
    }
    const CursorImage& now = cursor->image;
    const CursorImage& drawn = m_cursor->image;
    return now.left != drawn.left || now.top != drawn.top || now.serial != drawn.serial;
}

/// Reads the rows that changed. After a failure the whole image is read next time.
bool XcbCaptureBackend::refreshImage(const std::vector<FrameRect>& changes) {
    int firstRow = m_monitor.height;
    int endRow = 0;
    for (const FrameRect& change : changes) {
        firstRow = std::min(firstRow, change.top);
        endRow = std::max(endRow, change.bottom);
    }
    if (m_wholeFrameDue) {
        firstRow = 0;
        endRow = m_monitor.height;
    }
    if (firstRow >= endRow || m_image->refresh(m_monitor.x, m_monitor.y, firstRow, endRow)) {
        return true;
    }
    m_wholeFrameDue = true;
    if (m_connection->isAlive()) {
        // Most likely the screen has just shrunk and the event has not arrived yet.
        spdlog::warn("XcbCaptureBackend: reading the screen failed");
        m_geometryChanged = true;
    } else {
        spdlog::warn("XcbCaptureBackend: connection to the X server lost");
        shutdown();
    }
    return false;
}

std::unique_ptr<CapturedFrame> XcbCaptureBackend::makeFrame(std::vector<FrameRect> changes) const {
    const ByteSpan pixels = m_image->pixels();
    auto frame = std::make_unique<CapturedFrame>();
    frame->data.resize(pixels.size());
    std::memcpy(frame->data.data(), pixels.data(), pixels.size());
    frame->width = m_monitor.width;
    frame->height = m_monitor.height;
    frame->stride = static_cast<int32_t>(m_image->stride());
    frame->timestamp = monotonicMilliseconds();
    frame->dirtyRects = std::move(changes);
    if (m_cursor) {
        blendCursor(m_cursor->image, *frame);
    }
    return frame;
}

} // namespace corvane
