#include "app/Logging.h"

#include <QDir>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/sinks/null_sink.h>
#include <spdlog/spdlog.h>

#include <cstdio>
#include <memory>

namespace corvane {

namespace {

spdlog::sink_ptr createSink(const QString& path) {
    try {
        constexpr bool kTruncate = true;
        return std::make_shared<spdlog::sinks::basic_file_sink_mt>(path.toStdString(), kTruncate);
    } catch (const spdlog::spdlog_ex& error) {
        std::fprintf(stderr, "Corvane: no log file: %s\n", error.what());
        return std::make_shared<spdlog::sinks::null_sink_mt>();
    }
}

} // namespace

void setUpLogging(const QString& folder, spdlog::level::level_enum level) {
    QDir().mkpath(folder);
    auto logger = std::make_shared<spdlog::logger>(
        "corvane", createSink(folder + QStringLiteral("/CorvaneClient.log")));
    logger->flush_on(spdlog::level::debug);
    spdlog::set_default_logger(std::move(logger));
    spdlog::set_level(level);
}

} // namespace corvane
