#pragma once

#include <d3d11.h>
#include <dxgi1_2.h>

#include <functional>

namespace corvane {

/// The entry points into Direct3D and DXGI: the system's own unless a test substitutes others.
struct DxgiFunctions {
    std::function<decltype(::D3D11CreateDevice)> createDevice = ::D3D11CreateDevice;
    std::function<decltype(::CreateDXGIFactory1)> createFactory = ::CreateDXGIFactory1;
};

} // namespace corvane
