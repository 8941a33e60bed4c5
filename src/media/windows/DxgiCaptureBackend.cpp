#include "media/windows/DxgiCaptureBackend.h"

#include "common/MonotonicClock.h"
#include "media/windows/CursorDrawing.h"

#include <QString>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace corvane {

namespace {

constexpr UINT kAcquireTimeoutMs = 100;
constexpr int kMaxReinitializations = 5;

/// Edge of the largest pointer that the system's accessibility settings offer, in pixels.
constexpr LONG kMaxPointer = 256;

uint32_t hex(HRESULT result) {
    return static_cast<uint32_t>(result);
}

/// Logs `text`, which has one placeholder for the result's code, when `result` is a failure.
bool succeeded(HRESULT result, fmt::format_string<uint32_t> text) {
    if (FAILED(result)) {
        spdlog::error(text, hex(result));
    }
    return SUCCEEDED(result);
}

/// Returns an acquired frame to the duplication.
struct FrameRelease {
    explicit FrameRelease(IDXGIOutputDuplication& owner) : duplication(owner) {}
    ~FrameRelease() { duplication.ReleaseFrame(); }
    FrameRelease(const FrameRelease&) = delete;
    FrameRelease& operator=(const FrameRelease&) = delete;

    IDXGIOutputDuplication& duplication;
};

std::vector<ComPtr<IDXGIOutput>> enumerateOutputs(const ComPtr<IDXGIFactory1>& factory) {
    std::vector<ComPtr<IDXGIOutput>> outputs;
    ComPtr<IDXGIAdapter1> adapter;
    for (UINT i = 0; SUCCEEDED(factory->EnumAdapters1(i, adapter.put())); ++i) {
        ComPtr<IDXGIOutput> output;
        for (UINT j = 0; SUCCEEDED(adapter->EnumOutputs(j, output.put())); ++j) {
            outputs.push_back(std::move(output));
        }
    }
    return outputs;
}

MonitorInfo monitorFrom(const DXGI_OUTPUT_DESC& description, size_t index) {
    const RECT& desktop = description.DesktopCoordinates;
    const size_t nameLength = wcsnlen(description.DeviceName, std::size(description.DeviceName));
    MonitorInfo monitor;
    monitor.index = static_cast<uint32_t>(index);
    monitor.name =
        QString::fromWCharArray(description.DeviceName, static_cast<int>(nameLength)).toStdString();
    monitor.x = desktop.left;
    monitor.y = desktop.top;
    monitor.width = desktop.right - desktop.left;
    monitor.height = desktop.bottom - desktop.top;
    // The primary monitor is the one at the virtual desktop's origin.
    monitor.primary = monitor.x == 0 && monitor.y == 0 && monitor.width > 0;
    return monitor;
}

FrameRect frameRect(const RECT& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

/// The area of `monitor`, in its own pixels, that a pointer at `position` may cover; may be empty.
FrameRect pointerArea(const POINT& position, const MonitorInfo& monitor) {
    const LONG left = position.x - monitor.x;
    const LONG top = position.y - monitor.y;
    return {std::clamp<LONG>(left, 0, monitor.width), std::clamp<LONG>(top, 0, monitor.height),
            std::clamp<LONG>(left + kMaxPointer, 0, monitor.width),
            std::clamp<LONG>(top + kMaxPointer, 0, monitor.height)};
}

} // namespace

DxgiCaptureBackend::DxgiCaptureBackend(DxgiFunctions dxgi, GdiFunctions gdi)
    : m_dxgi(std::move(dxgi)), m_gdi(std::move(gdi)) {}

DxgiCaptureBackend::~DxgiCaptureBackend() {
    DxgiCaptureBackend::shutdown();
}

bool DxgiCaptureBackend::initialize(int monitorIndex) {
    shutdown();
    m_monitor = {};
    m_monitor.index = static_cast<uint32_t>(monitorIndex);
    if (!createDevice()) {
        spdlog::error("DxgiCaptureBackend: failed to create D3D11 device");
        return false;
    }
    if (!createDuplication(m_monitor)) {
        spdlog::error("DxgiCaptureBackend: failed to create output duplication for monitor {}",
                      monitorIndex);
        shutdown();
        return false;
    }
    m_initialized = true;
    m_reinitializations = 0;
    m_wholeFrameDue = true;
    spdlog::info("DxgiCaptureBackend: initialized on monitor {} ({}x{})", m_monitor.index,
                 m_monitor.width, m_monitor.height);
    return true;
}

void DxgiCaptureBackend::shutdown() {
    m_initialized = false;
    m_pointerDrawn.reset();
    m_staging.reset();
    m_duplication.reset();
    m_context.reset();
    m_device.reset();
}

bool DxgiCaptureBackend::createDevice() {
    constexpr D3D_FEATURE_LEVEL kLevels[] = {D3D_FEATURE_LEVEL_11_1, D3D_FEATURE_LEVEL_11_0,
                                             D3D_FEATURE_LEVEL_10_1, D3D_FEATURE_LEVEL_10_0};
    D3D_FEATURE_LEVEL level = {};
    const HRESULT result = m_dxgi.createDevice(
        nullptr, D3D_DRIVER_TYPE_HARDWARE, nullptr, D3D11_CREATE_DEVICE_BGRA_SUPPORT, kLevels,
        std::size(kLevels), D3D11_SDK_VERSION, m_device.put(), &level, m_context.put());
    if (!succeeded(result, "DxgiCaptureBackend: D3D11CreateDevice failed (0x{:08X})")) {
        return false;
    }
    spdlog::debug("DxgiCaptureBackend: D3D11 device created (feature level 0x{:04X})",
                  static_cast<uint32_t>(level));
    return true;
}

/// Duplicates the output at `monitor.index` and fills in the rest of `monitor`.
bool DxgiCaptureBackend::createDuplication(MonitorInfo& monitor) {
    ComPtr<IDXGIOutput> output;
    if (!findOutput(output)) {
        return false;
    }
    DXGI_OUTPUT_DESC description = {};
    if (!succeeded(output->GetDesc(&description),
                   "DxgiCaptureBackend: GetDesc failed (0x{:08X})")) {
        return false;
    }
    ComPtr<IDXGIOutput1> duplicable;
    if (!succeeded(output.queryInto(duplicable),
                   "DxgiCaptureBackend: QueryInterface IDXGIOutput1 failed (0x{:08X})")) {
        return false;
    }
    if (!succeeded(duplicable->DuplicateOutput(m_device.get(), m_duplication.put()),
                   "DxgiCaptureBackend: DuplicateOutput failed (0x{:08X})")) {
        return false;
    }
    monitor = monitorFrom(description, monitor.index);
    return true;
}

bool DxgiCaptureBackend::findOutput(ComPtr<IDXGIOutput>& output) {
    ComPtr<IDXGIDevice> device;
    if (!succeeded(m_device.queryInto(device),
                   "DxgiCaptureBackend: QueryInterface IDXGIDevice failed (0x{:08X})")) {
        return false;
    }
    ComPtr<IDXGIAdapter> adapter;
    if (!succeeded(device->GetAdapter(adapter.put()),
                   "DxgiCaptureBackend: GetAdapter failed (0x{:08X})")) {
        return false;
    }
    ComPtr<IDXGIFactory1> factory;
    if (!succeeded(m_dxgi.createFactory(__uuidof(IDXGIFactory1), factory.putVoid()),
                   "DxgiCaptureBackend: CreateDXGIFactory1 failed (0x{:08X})")) {
        return false;
    }
    auto outputs = enumerateOutputs(factory);
    if (m_monitor.index >= outputs.size()) {
        spdlog::error("DxgiCaptureBackend: monitor index {} not found",
                      static_cast<int32_t>(m_monitor.index));
        return false;
    }
    output = std::move(outputs[m_monitor.index]);
    return true;
}

std::vector<MonitorInfo> DxgiCaptureBackend::monitors() {
    ComPtr<IDXGIFactory1> factory;
    if (!succeeded(m_dxgi.createFactory(__uuidof(IDXGIFactory1), factory.putVoid()),
                   "DxgiCaptureBackend: CreateDXGIFactory1 failed (0x{:08X})")) {
        return {};
    }
    std::vector<MonitorInfo> result;
    for (const auto& output : enumerateOutputs(factory)) {
        DXGI_OUTPUT_DESC description = {};
        succeeded(output->GetDesc(&description), "DxgiCaptureBackend: GetDesc failed (0x{:08X})");
        result.push_back(monitorFrom(description, result.size()));
    }
    return result;
}

std::unique_ptr<CapturedFrame> DxgiCaptureBackend::captureFrame() {
    if (!m_initialized) {
        return nullptr;
    }
    DXGI_OUTDUPL_FRAME_INFO info = {};
    ComPtr<IDXGIResource> resource;
    const HRESULT result =
        m_duplication->AcquireNextFrame(kAcquireTimeoutMs, &info, resource.put());
    if (result == DXGI_ERROR_WAIT_TIMEOUT) {
        return nullptr;
    }
    if (result == DXGI_ERROR_ACCESS_LOST) {
        spdlog::warn("DxgiCaptureBackend: access lost -- attempting reinitialization");
        if (!reinitialize()) {
            spdlog::error("DxgiCaptureBackend: reinitialization failed");
            m_initialized = false;
        }
        return nullptr;
    }
    if (!succeeded(result, "DxgiCaptureBackend: AcquireNextFrame failed (0x{:08X})")) {
        return nullptr;
    }
    const FrameRelease release(*m_duplication.get());
    auto frame = readFrame(resource, info);
    m_wholeFrameDue = frame == nullptr;
    return frame;
}

bool DxgiCaptureBackend::reinitialize() {
    if (++m_reinitializations > kMaxReinitializations) {
        spdlog::error("DxgiCaptureBackend: max reinitialization attempts ({}) exceeded",
                      kMaxReinitializations);
        return false;
    }
    spdlog::info("DxgiCaptureBackend: reinitializing (attempt {}/{})", m_reinitializations,
                 kMaxReinitializations);
    m_duplication.reset();
    m_staging.reset();
    m_wholeFrameDue = true;
    MonitorInfo monitor = m_monitor;
    if (!createDuplication(monitor)) {
        spdlog::error("DxgiCaptureBackend: reinit createDuplication failed");
        return false;
    }
    // The size is kept until a frame brings the new one.
    m_monitor.x = monitor.x;
    m_monitor.y = monitor.y;
    m_monitor.primary = monitor.primary;
    spdlog::info("DxgiCaptureBackend: reinitialization successful");
    return true;
}

std::unique_ptr<CapturedFrame> DxgiCaptureBackend::readFrame(const ComPtr<IDXGIResource>& resource,
                                                             const DXGI_OUTDUPL_FRAME_INFO& info) {
    ComPtr<ID3D11Texture2D> texture;
    if (!succeeded(resource.queryInto(texture),
                   "DxgiCaptureBackend: QueryInterface for Texture2D failed (0x{:08X})")) {
        return nullptr;
    }
    D3D11_TEXTURE2D_DESC description = {};
    texture->GetDesc(&description);
    followSize(description);
    if (!ensureStaging(description)) {
        return nullptr;
    }
    m_context->CopyResource(m_staging.get(), texture.get());
    D3D11_MAPPED_SUBRESOURCE mapped = {};
    if (!succeeded(m_context->Map(m_staging.get(), 0, D3D11_MAP_READ, 0, &mapped),
                   "DxgiCaptureBackend: Map staging texture failed (0x{:08X})")) {
        return nullptr;
    }
    auto frame = makeFrame(mapped);
    m_context->Unmap(m_staging.get(), 0);
    frame->dirtyRects = readChanges(info);
    addPointer(*frame);
    if (m_wholeFrameDue) {
        frame->dirtyRects.clear();
    }
    return frame;
}

void DxgiCaptureBackend::followSize(const D3D11_TEXTURE2D_DESC& description) {
    const auto width = static_cast<int32_t>(description.Width);
    const auto height = static_cast<int32_t>(description.Height);
    if (width == m_monitor.width && height == m_monitor.height) {
        return;
    }
    spdlog::info("DxgiCaptureBackend: resolution changed to {}x{}", width, height);
    m_monitor.width = width;
    m_monitor.height = height;
    m_staging.reset();
    m_wholeFrameDue = true;
}

bool DxgiCaptureBackend::ensureStaging(const D3D11_TEXTURE2D_DESC& description) {
    if (m_staging) {
        return true;
    }
    D3D11_TEXTURE2D_DESC staging = {};
    staging.Width = description.Width;
    staging.Height = description.Height;
    staging.MipLevels = 1;
    staging.ArraySize = 1;
    staging.Format = description.Format;
    staging.SampleDesc.Count = 1;
    staging.Usage = D3D11_USAGE_STAGING;
    staging.CPUAccessFlags = D3D11_CPU_ACCESS_READ;
    return succeeded(m_device->CreateTexture2D(&staging, nullptr, m_staging.put()),
                     "DxgiCaptureBackend: CreateTexture2D (staging) failed (0x{:08X})");
}

std::unique_ptr<CapturedFrame>
DxgiCaptureBackend::makeFrame(const D3D11_MAPPED_SUBRESOURCE& mapped) const {
    auto frame = std::make_unique<CapturedFrame>();
    frame->width = m_monitor.width;
    frame->height = m_monitor.height;
    frame->stride = 4 * m_monitor.width;
    frame->timestamp = monotonicMilliseconds();
    const auto rowBytes = static_cast<size_t>(frame->stride);
    frame->data.resize(rowBytes * static_cast<size_t>(frame->height));
    const auto* source = static_cast<const uint8_t*>(mapped.pData);
    for (size_t offset = 0; offset < frame->data.size(); offset += rowBytes) {
        std::memcpy(frame->data.data() + offset, source, rowBytes);
        source += mapped.RowPitch;
    }
    return frame;
}

/// The changed regions of the desktop; empty, meaning the whole frame, when they are unknown.
std::vector<FrameRect> DxgiCaptureBackend::readChanges(const DXGI_OUTDUPL_FRAME_INFO& info) {
    std::vector<FrameRect> changes;
    const UINT capacity = info.TotalMetadataBufferSize;
    if (capacity > 0 &&
        !(appendDirtyRects(capacity, changes) && appendMoveRects(capacity, changes))) {
        changes.clear();
    }
    return changes;
}

bool DxgiCaptureBackend::appendDirtyRects(UINT capacity, std::vector<FrameRect>& changes) {
    std::vector<RECT> rects(capacity / sizeof(RECT) + 1);
    UINT used = 0;
    if (!succeeded(m_duplication->GetFrameDirtyRects(static_cast<UINT>(rects.size() * sizeof(RECT)),
                                                     rects.data(), &used),
                   "DxgiCaptureBackend: GetFrameDirtyRects failed (0x{:08X})")) {
        return false;
    }
    rects.resize(std::min(rects.size(), used / sizeof(RECT)));
    std::transform(rects.begin(), rects.end(), std::back_inserter(changes), frameRect);
    return true;
}

/// A move has changed its destination; its source is among the dirty rectangles.
bool DxgiCaptureBackend::appendMoveRects(UINT capacity, std::vector<FrameRect>& changes) {
    std::vector<DXGI_OUTDUPL_MOVE_RECT> moves(capacity / sizeof(DXGI_OUTDUPL_MOVE_RECT) + 1);
    UINT used = 0;
    if (!succeeded(m_duplication->GetFrameMoveRects(
                       static_cast<UINT>(moves.size() * sizeof(DXGI_OUTDUPL_MOVE_RECT)),
                       moves.data(), &used),
                   "DxgiCaptureBackend: GetFrameMoveRects failed (0x{:08X})")) {
        return false;
    }
    moves.resize(std::min(moves.size(), used / sizeof(DXGI_OUTDUPL_MOVE_RECT)));
    std::transform(moves.begin(), moves.end(), std::back_inserter(changes),
                   [](const auto& move) { return frameRect(move.DestinationRect); });
    return true;
}

/// Draws the pointer. Adds its old and new places to a list of changes.
void DxgiCaptureBackend::addPointer(CapturedFrame& frame) {
    const auto before = std::exchange(m_pointerDrawn, std::nullopt);
    if (const auto cursor = shownCursor(m_gdi)) {
        const FrameRect area = pointerArea(cursor->position, m_monitor);
        if (area.left < area.right && area.top < area.bottom) {
            drawCursor(m_gdi, *cursor, frame, m_monitor.x, m_monitor.y);
            m_pointerDrawn = area;
        }
    }
    if (!frame.dirtyRects.empty()) {
        for (const auto& area : {before, m_pointerDrawn}) {
            if (area) {
                frame.dirtyRects.push_back(*area);
            }
        }
    }
}

} // namespace corvane
