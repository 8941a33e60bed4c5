#pragma once

#include <spdlog/spdlog.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::test {

/// While it lives, the default logger keeps every line, of any level and thread, instead of writing
/// it anywhere.
class LogCapture {
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    /// Lines in the form "level|text", e.g. "warning|RelayTransport::send: not connected".
    std::vector<std::string> lines() const;

    /// How many lines equal "level|text" exactly.
    int count(std::string_view line) const;

    /// Whether any line holds `part`.
    bool contains(std::string_view part) const;

    void clear();

private:
    class Sink;
    std::shared_ptr<Sink> m_sink;
    std::shared_ptr<spdlog::logger> m_previous;
    spdlog::level::level_enum m_previousLevel;
};

} // namespace corvane::test
