#pragma once

#include "media/MonitorCaptureBackend.h"
#include "media/windows/ComPtr.h"
#include "media/windows/DxgiFunctions.h"
#include "media/windows/GdiFunctions.h"

#include <optional>

namespace corvane {

/// Captures one monitor through desktop duplication, with the pointer drawn in.
///
/// An unchanged screen gives no frame. When the system takes the duplication away (mode change,
/// secure desktop), it is recreated, up to five times; after that, or when that fails, the backend
/// is uninitialised and `initialize` starts over. A monitor's index is its position among the
/// outputs of all adapters, so it means the same monitor whichever adapter drives it.
class DxgiCaptureBackend : public MonitorCaptureBackend {
public:
    explicit DxgiCaptureBackend(DxgiFunctions dxgi = {}, GdiFunctions gdi = {});
    ~DxgiCaptureBackend() override;

    bool initialize(int monitorIndex) override;
    void shutdown() override;
    std::unique_ptr<CapturedFrame> captureFrame() override;
    std::vector<MonitorInfo> monitors() override;

private:
    bool createDevice();
    bool createDuplication(MonitorInfo& monitor);
    bool findOutput(ComPtr<IDXGIOutput>& output);
    bool reinitialize();

    std::unique_ptr<CapturedFrame> readFrame(const ComPtr<IDXGIResource>& resource,
                                             const DXGI_OUTDUPL_FRAME_INFO& info);
    void followSize(const D3D11_TEXTURE2D_DESC& description);
    bool ensureStaging(const D3D11_TEXTURE2D_DESC& description);
    std::unique_ptr<CapturedFrame> makeFrame(const D3D11_MAPPED_SUBRESOURCE& mapped) const;

    std::vector<FrameRect> readChanges(const DXGI_OUTDUPL_FRAME_INFO& info);
    bool appendDirtyRects(UINT capacity, std::vector<FrameRect>& changes);
    bool appendMoveRects(UINT capacity, std::vector<FrameRect>& changes);
    void addPointer(CapturedFrame& frame);

    const DxgiFunctions m_dxgi;
    const GdiFunctions m_gdi;
    ComPtr<ID3D11Device> m_device;
    ComPtr<ID3D11DeviceContext> m_context;
    ComPtr<IDXGIOutputDuplication> m_duplication;
    ComPtr<ID3D11Texture2D> m_staging;       ///< copy that the CPU can read
    int m_reinitializations = 0;             ///< since `initialize`
    std::optional<FrameRect> m_pointerDrawn; ///< in the last frame
    bool m_wholeFrameDue = false; ///< the changes since the last frame delivered are unknown
};

} // namespace corvane
