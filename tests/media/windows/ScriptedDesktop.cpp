// The C view of the interfaces: tables of functions in which only the used ones need filling in.
#define CINTERFACE
#define INITGUID

#include "ScriptedDesktop.h"

#include <d3d11.h>
#include <dxgi1_2.h>

#include <algorithm>
#include <memory>

namespace corvane::test {

namespace {

/// One object behind the interface `I`.
template <typename I>
struct Double : I {
    ScriptedDesktop* desktop = nullptr;
    size_t number = 0; ///< of an output or adapter
    ULONG references = 1;
    std::vector<uint8_t> pixels;
};

template <typename I>
Double<I>& of(I* object) {
    return *static_cast<Double<I>*>(object);
}

template <typename I>
I* make(ScriptedDesktop& desktop, size_t number = 0);

/// The result of the call `name`; on success a new object goes to `target`.
template <typename I, typename Target>
HRESULT give(ScriptedDesktop& desktop, const char* name, Target** target, size_t number = 0) {
    const HRESULT result = desktop.resultOf(name);
    *target = SUCCEEDED(result) ? make<I>(desktop, number) : nullptr;
    return result;
}

template <typename I>
HRESULT WINAPI query(I* object, REFIID wanted, void** target) {
    auto& self = of(object);
    return IsEqualGUID(wanted, IID_IDXGIDevice)
               ? give<IDXGIDevice>(*self.desktop, "IDXGIDevice", target)
           : IsEqualGUID(wanted, IID_IDXGIOutput1)
               ? give<IDXGIOutput1>(*self.desktop, "IDXGIOutput1", target)
           : IsEqualGUID(wanted, IID_ID3D11Texture2D)
               ? give<ID3D11Texture2D>(*self.desktop, "ID3D11Texture2D", target)
               : E_NOINTERFACE;
}

template <typename I>
ULONG WINAPI addReference(I* object) {
    return ++of(object).references;
}

template <typename I>
ULONG WINAPI release(I* object) {
    auto& self = of(object);
    const ULONG left = --self.references;
    if (left == 0) {
        --self.desktop->objects;
        delete &self;
    }
    return left;
}

template <typename I, typename Table>
Table baseTable() {
    Table table = {};
    table.QueryInterface = query<I>;
    table.AddRef = addReference<I>;
    table.Release = release<I>;
    return table;
}

void fillIn(ID3D11DeviceVtbl& table) {
    table.CreateTexture2D = [](ID3D11Device* object, const D3D11_TEXTURE2D_DESC* wanted,
                               const D3D11_SUBRESOURCE_DATA*, ID3D11Texture2D** target) -> HRESULT {
        auto& desktop = *of(object).desktop;
        const bool isStaging = wanted->Usage == D3D11_USAGE_STAGING && wanted->BindFlags == 0 &&
                               wanted->CPUAccessFlags == D3D11_CPU_ACCESS_READ &&
                               wanted->Format == DXGI_FORMAT_B8G8R8A8_UNORM;
        if (!isStaging) {
            return E_INVALIDARG;
        }
        desktop.stagingTextures.push_back(
            {0, 0, static_cast<LONG>(wanted->Width), static_cast<LONG>(wanted->Height)});
        return give<ID3D11Texture2D>(desktop, "CreateTexture2D", target);
    };
}

void fillIn(ID3D11DeviceContextVtbl& table) {
    table.CopyResource = [](ID3D11DeviceContext* object, ID3D11Resource*, ID3D11Resource*) {
        auto& self = of(object);
        const auto& desktop = *self.desktop;
        self.pixels.assign(static_cast<size_t>(desktop.rowPitch) * desktop.height, 0xEE);
        for (size_t row = 0; row < desktop.height; ++row) {
            for (size_t column = 0; column < desktop.width * 4; ++column) {
                self.pixels[row * desktop.rowPitch + column] =
                    ScriptedDesktop::pixelByte(row, column);
            }
        }
    };
    table.Map = [](ID3D11DeviceContext* object, ID3D11Resource*, UINT, D3D11_MAP, UINT,
                   D3D11_MAPPED_SUBRESOURCE* mapped) -> HRESULT {
        auto& self = of(object);
        const HRESULT result = self.desktop->resultOf("Map");
        if (SUCCEEDED(result)) {
            ++self.desktop->texturesMapped;
            *mapped = {self.pixels.data(), self.desktop->rowPitch, 0};
        }
        return result;
    };
    table.Unmap = [](ID3D11DeviceContext* object, ID3D11Resource*, UINT) {
        --of(object).desktop->texturesMapped;
    };
}

void fillIn(ID3D11Texture2DVtbl& table) {
    table.GetDesc = [](ID3D11Texture2D* object, D3D11_TEXTURE2D_DESC* description) {
        const auto& desktop = *of(object).desktop;
        *description = {};
        description->Width = desktop.width;
        description->Height = desktop.height;
        description->Format = DXGI_FORMAT_B8G8R8A8_UNORM;
    };
}

void fillIn(IDXGIDeviceVtbl& table) {
    table.GetAdapter = [](IDXGIDevice* object, IDXGIAdapter** target) -> HRESULT {
        return give<IDXGIAdapter>(*of(object).desktop, "GetAdapter", target);
    };
}

void fillIn(IDXGIAdapterVtbl&) {}

void fillIn(IDXGIFactory1Vtbl& table) {
    table.EnumAdapters1 = [](IDXGIFactory1* object, UINT index, IDXGIAdapter1** target) -> HRESULT {
        auto& desktop = *of(object).desktop;
        return index < desktop.adapters.size()
                   ? give<IDXGIAdapter1>(desktop, "EnumAdapters1", target, index)
                   : DXGI_ERROR_NOT_FOUND;
    };
}

void fillIn(IDXGIAdapter1Vtbl& table) {
    table.EnumOutputs = [](IDXGIAdapter1* object, UINT index, IDXGIOutput** target) -> HRESULT {
        auto& desktop = *of(object).desktop;
        size_t first = 0;
        for (size_t i = 0; i < of(object).number; ++i) {
            first += desktop.adapters[i].size();
        }
        return index < desktop.adapters[of(object).number].size()
                   ? give<IDXGIOutput>(desktop, "EnumOutputs", target, first + index)
                   : DXGI_ERROR_NOT_FOUND;
    };
}

void fillIn(IDXGIOutputVtbl& table) {
    table.GetDesc = [](IDXGIOutput* object, DXGI_OUTPUT_DESC* description) -> HRESULT {
        const auto& self = of(object);
        std::vector<RECT> places;
        for (const auto& outputs : self.desktop->adapters) {
            places.insert(places.end(), outputs.begin(), outputs.end());
        }
        *description = {};
        const std::wstring name = L"\\\\.\\DISPLAY" + std::to_wstring(self.number + 1);
        name.copy(description->DeviceName, name.size());
        description->DesktopCoordinates = places.at(self.number);
        return self.desktop->resultOf("GetDesc");
    };
}

void fillIn(IDXGIOutput1Vtbl& table) {
    table.DuplicateOutput = [](IDXGIOutput1* object, IUnknown*,
                               IDXGIOutputDuplication** target) -> HRESULT {
        auto& desktop = *of(object).desktop;
        const HRESULT result = give<IDXGIOutputDuplication>(desktop, "DuplicateOutput", target);
        desktop.duplications += SUCCEEDED(result) ? 1 : 0;
        return result;
    };
}

void fillIn(IDXGIResourceVtbl&) {}

void fillIn(IDXGIOutputDuplicationVtbl& table) {
    table.AcquireNextFrame = [](IDXGIOutputDuplication* object, UINT timeout,
                                DXGI_OUTDUPL_FRAME_INFO* info, IDXGIResource** target) -> HRESULT {
        auto& desktop = *of(object).desktop;
        desktop.acquireTimeout = timeout;
        HRESULT result = S_OK;
        if (!desktop.acquisitions.empty()) {
            result = desktop.acquisitions.front();
            desktop.acquisitions.pop_front();
        }
        if (SUCCEEDED(result)) {
            ++desktop.framesHeld;
            *info = {};
            info->TotalMetadataBufferSize =
                static_cast<UINT>(desktop.dirtyRects.size() * sizeof(RECT) +
                                  desktop.moveTargets.size() * sizeof(DXGI_OUTDUPL_MOVE_RECT));
            *target = make<IDXGIResource>(desktop);
        }
        return result;
    };
    table.ReleaseFrame = [](IDXGIOutputDuplication* object) -> HRESULT {
        --of(object).desktop->framesHeld;
        return S_OK;
    };
    table.GetFrameDirtyRects = [](IDXGIOutputDuplication* object, UINT capacity, RECT* rects,
                                  UINT* used) -> HRESULT {
        const auto& desktop = *of(object).desktop;
        *used = static_cast<UINT>(desktop.dirtyRects.size() * sizeof(RECT));
        if (*used > capacity) {
            return DXGI_ERROR_MORE_DATA;
        }
        std::copy(desktop.dirtyRects.begin(), desktop.dirtyRects.end(), rects);
        return desktop.resultOf("GetFrameDirtyRects");
    };
    table.GetFrameMoveRects = [](IDXGIOutputDuplication* object, UINT capacity,
                                 DXGI_OUTDUPL_MOVE_RECT* moves, UINT* used) -> HRESULT {
        const auto& desktop = *of(object).desktop;
        *used = static_cast<UINT>(desktop.moveTargets.size() * sizeof(DXGI_OUTDUPL_MOVE_RECT));
        if (*used > capacity) {
            return DXGI_ERROR_MORE_DATA;
        }
        for (const RECT& target : desktop.moveTargets) {
            *moves++ = {POINT{}, target};
        }
        return desktop.resultOf("GetFrameMoveRects");
    };
}

template <typename I>
I* make(ScriptedDesktop& desktop, size_t number) {
    using Table = std::remove_cv_t<std::remove_pointer_t<decltype(I::lpVtbl)>>;
    static Table table = [] {
        auto made = baseTable<I, Table>();
        fillIn(made);
        return made;
    }();
    auto object = std::make_unique<Double<I>>();
    object->lpVtbl = &table;
    object->desktop = &desktop;
    object->number = number;
    ++desktop.objects;
    return object.release();
}

} // namespace

void* ScriptedDesktop::newDevice() {
    return make<ID3D11Device>(*this);
}

void* ScriptedDesktop::newContext() {
    return make<ID3D11DeviceContext>(*this);
}

void* ScriptedDesktop::newFactory() {
    return make<IDXGIFactory1>(*this);
}

} // namespace corvane::test
