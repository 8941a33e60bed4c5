#pragma once

#include <gtest/gtest.h>
#include <spdlog/sinks/base_sink.h>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::test {

/// While it lives, the default logger keeps every line, of any level and thread, instead of writing
/// it anywhere.
class LogCapture {
public:
    LogCapture() {
        // Outlives this object: a library's thread may be about to log while it ends.
        static auto& everyLogger = *new std::vector<std::shared_ptr<spdlog::logger>>;
        everyLogger.push_back(std::make_shared<spdlog::logger>("test", m_sink));
        spdlog::set_default_logger(everyLogger.back());
        spdlog::set_level(spdlog::level::trace);
    }
    ~LogCapture() {
        spdlog::set_default_logger(m_previous);
        spdlog::set_level(m_previousLevel);
    }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    /// Lines in the form "level|text", e.g. "warning|RelayTransport::send: not connected".
    std::vector<std::string> lines() const { return m_sink->lines(); }

    /// How many lines equal "level|text" exactly.
    int count(std::string_view line) const {
        const auto all = lines();
        return static_cast<int>(std::count(all.begin(), all.end(), line));
    }

    /// Whether exactly one line equals "level|text".
    testing::AssertionResult once(std::string_view line) const {
        return testing::AssertionResult(count(line) == 1)
               << count(line) << " times '" << line << "' in " << testing::PrintToString(lines());
    }

    /// Whether any line holds `part`.
    bool contains(std::string_view part) const {
        return std::ranges::any_of(lines(), [part](const std::string& line) {
            return line.find(part) != std::string::npos;
        });
    }

    void clear() { m_sink->clear(); }

private:
    struct Sink : spdlog::sinks::base_sink<std::mutex> {
        std::vector<std::string> lines() {
            const std::lock_guard lock(mutex_);
            return m_lines;
        }

        void clear() {
            const std::lock_guard lock(mutex_);
            m_lines.clear();
        }

        void sink_it_(const spdlog::details::log_msg& message) override {
            const auto level = spdlog::level::to_string_view(message.level);
            m_lines.push_back(fmt::format("{}|{}", level, message.payload));
        }
        void flush_() override {}

        std::vector<std::string> m_lines;
    };

    const std::shared_ptr<Sink> m_sink = std::make_shared<Sink>();
    const std::shared_ptr<spdlog::logger> m_previous = spdlog::default_logger();
    const spdlog::level::level_enum m_previousLevel = spdlog::get_level();
};

} // namespace corvane::test
