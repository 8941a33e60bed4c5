// Runs one program's benchmarks and prints a table row for each: our time, the limit's time, and
// the latter divided by the former (1 is as fast as possible); or the time of one item.
#include <QCoreApplication>
#include <benchmark/benchmark.h>
#include <spdlog/spdlog.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

/// Why a run failed; null when it did not. Version 1.8 of the library renamed the two members.
template <typename Run>
const std::string* failureOf(const Run& run) {
    if constexpr (requires { run.error_occurred; }) {
        return run.error_occurred ? &run.error_message : nullptr;
    } else {
        return run.skipped ? &run.skip_message : nullptr;
    }
}

class TableReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& /*context*/) override {
        std::printf("%-24s %12s %12s %8s\n", "benchmark", "ours ms", "limit ms", "ratio");
        return true;
    }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            const std::string name = run.run_name.function_name + '/' + run.run_name.args;
            const auto& counters = run.counters;
            if (const std::string* const failure = failureOf(run)) {
                std::printf("%-24s failed: %s\n", name.c_str(), failure->c_str());
                m_failed = true;
            } else if (counters.contains("ratio")) {
                std::printf("%-24s %12.4f %12.4f %8.3f\n", name.c_str(), counters.at("ours").value,
                            counters.at("limit").value, counters.at("ratio").value);
            } else if (counters.contains("items_per_second")) {
                std::printf("%-24s %12.6f an item\n", name.c_str(),
                            1e3 / counters.at("items_per_second").value);
            }
            std::fflush(stdout);
        }
    }

    bool failed() const { return m_failed; }

private:
    bool m_failed = false;
};

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    spdlog::set_level(spdlog::level::err);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return reporter.failed() ? 1 : 0;
}
