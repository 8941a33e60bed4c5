#include "LogCapture.h"

#include <spdlog/sinks/base_sink.h>

#include <algorithm>
#include <mutex>

namespace corvane::test {

class LogCapture::Sink : public spdlog::sinks::base_sink<std::mutex> {
public:
    std::vector<std::string> lines() {
        const std::lock_guard lock(mutex_);
        return m_lines;
    }

    void clear() {
        const std::lock_guard lock(mutex_);
        m_lines.clear();
    }

protected:
    void sink_it_(const spdlog::details::log_msg& message) override {
        const auto level = spdlog::level::to_string_view(message.level);
        m_lines.push_back(std::string(level.data(), level.size()) + "|" +
                          std::string(message.payload.data(), message.payload.size()));
    }

    void flush_() override {}

private:
    std::vector<std::string> m_lines;
};

LogCapture::LogCapture()
    : m_sink(std::make_shared<Sink>()), m_previous(spdlog::default_logger()),
      m_previousLevel(spdlog::get_level()) {
    spdlog::set_default_logger(std::make_shared<spdlog::logger>("test", m_sink));
    spdlog::set_level(spdlog::level::trace);
}

LogCapture::~LogCapture() {
    spdlog::set_default_logger(m_previous);
    spdlog::set_level(m_previousLevel);
}

std::vector<std::string> LogCapture::lines() const {
    return m_sink->lines();
}

int LogCapture::count(std::string_view line) const {
    const auto all = m_sink->lines();
    return static_cast<int>(std::count(all.begin(), all.end(), line));
}

bool LogCapture::contains(std::string_view part) const {
    const auto all = m_sink->lines();
    return std::any_of(all.begin(), all.end(), [part](const std::string& line) {
        return line.find(part) != std::string::npos;
    });
}

void LogCapture::clear() {
    m_sink->clear();
}

} // namespace corvane::test
