#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <vector>

#include <windows.h>

namespace corvane::test {

/// A made-up graphics adapter with its outputs: what the duplicated desktop shows and which calls
/// fail. Every call on its objects counts, so that a test sees what was left behind.
struct ScriptedDesktop {
    /// Result codes of failing calls by name ("GetAdapter"); of queries by interface
    /// ("IDXGIOutput1").
    std::map<std::string, HRESULT> failures;

    /// Desktop places of the outputs, one vector per adapter. Output n is called
    /// "\\.\DISPLAY<n+1>".
    std::vector<std::vector<RECT>> adapters = {{RECT{0, 0, 4, 3}}};

    std::deque<HRESULT> acquisitions; ///< results of the next acquisitions; success afterwards
    UINT width = 4;                   ///< of the frames, pixels
    UINT height = 3;                  ///< of the frames, pixels
    UINT rowPitch = 16;               ///< of mapped textures, bytes
    std::vector<RECT> dirtyRects;
    std::vector<RECT> moveTargets;

    UINT acquireTimeout = 0;           ///< of the last acquisition
    int duplications = 0;              ///< made so far
    std::vector<RECT> stagingTextures; ///< sizes of those made so far, from 0, 0
    int objects = 0;                   ///< alive
    int framesHeld = 0;                ///< acquired and not released
    int texturesMapped = 0;

    /// The byte at this place of the frame's picture.
    static uint8_t pixelByte(size_t row, size_t column) {
        return static_cast<uint8_t>(row * 37 + column);
    }

    /// Result of the call `name`: what the script says, or success.
    HRESULT resultOf(const std::string& name) const {
        const auto failure = failures.find(name);
        return failure == failures.end() ? S_OK : failure->second;
    }

    /// New objects, with one reference that belongs to the caller.
    void* newDevice();
    void* newContext();
    void* newFactory();
};

} // namespace corvane::test
