#pragma once

#include <cstdint>
#include <string>

namespace corvane {

struct MonitorInfo {
    uint32_t index = 0; ///< position in the backend's enumeration
    std::string name;   ///< display device name, UTF-8
    int32_t x = 0;      ///< left edge on the virtual desktop, pixels
    int32_t y = 0;      ///< top edge on the virtual desktop, pixels
    int32_t width = 0;  ///< pixels
    int32_t height = 0; ///< pixels
    bool primary = false;
};

} // namespace corvane
