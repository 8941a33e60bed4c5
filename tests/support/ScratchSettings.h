#pragma once

#include <memory>

namespace corvane::test {

/// While it lives, native settings of the user are kept in an empty place of their own. One
/// implementation per platform.
class ScratchSettings {
public:
    ScratchSettings();
    ~ScratchSettings();
    ScratchSettings(const ScratchSettings&) = delete;
    ScratchSettings& operator=(const ScratchSettings&) = delete;

private:
    struct Place;
    std::unique_ptr<Place> m_place;
};

} // namespace corvane::test
