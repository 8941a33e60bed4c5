#pragma once

#include <windows.h>

#include <functional>

namespace corvane {

/// The entry points into GDI and its desktop: the system's own unless a test substitutes others.
struct GdiFunctions {
    std::function<decltype(::EnumDisplayMonitors)> enumDisplayMonitors = ::EnumDisplayMonitors;
    std::function<decltype(::GetMonitorInfoA)> getMonitorInfo = ::GetMonitorInfoA;
    std::function<decltype(::GetDC)> getDc = ::GetDC;
    std::function<decltype(::ReleaseDC)> releaseDc = ::ReleaseDC;
    std::function<decltype(::CreateCompatibleDC)> createCompatibleDc = ::CreateCompatibleDC;
    std::function<decltype(::DeleteDC)> deleteDc = ::DeleteDC;
    std::function<decltype(::CreateDIBSection)> createDibSection = ::CreateDIBSection;
    std::function<decltype(::SelectObject)> selectObject = ::SelectObject;
    std::function<decltype(::DeleteObject)> deleteObject = ::DeleteObject;
    std::function<decltype(::BitBlt)> bitBlt = ::BitBlt;
    std::function<decltype(::GetDIBits)> getDiBits = ::GetDIBits;
    std::function<decltype(::GdiFlush)> flush = ::GdiFlush;
    std::function<decltype(::GetCursorInfo)> getCursorInfo = ::GetCursorInfo;
    std::function<decltype(::DrawIconEx)> drawIcon = ::DrawIconEx;
};

} // namespace corvane
