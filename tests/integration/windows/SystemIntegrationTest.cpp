#include "integration/windows/SystemIntegration.h"
#include "integration/windows/IntegrationCommand.h"

#include <QCoreApplication>
#include <QTest>
#include <gtest/gtest.h>

#include <mutex>
#include <utility>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

/// What the queries' tools were asked, from any thread, and what they answer.
struct Tools {
    static inline std::mutex mutex;
    static inline QStringList asked;
    static inline int result = 0;

    static int run(const QString& program, const QStringList& arguments) {
        const std::scoped_lock lock(mutex);
        asked << program + u' ' + arguments.join(u' ');
        return result;
    }
};

bool answerOf(QFuture<bool> future) {
    future.waitForFinished();
    return future.resultCount() == 1 && future.resultAt(0);
}

TEST(SystemIntegration, AsksTheSystemsTools) {
    SystemIntegration integration(&Tools::run);
    for (const int result : {0, 1, 1060, -1}) {
        Tools::result = result;
        EXPECT_EQ(answerOf(integration.startsAtLogon()), result == 0) << result;
        EXPECT_EQ(answerOf(integration.isServiceInstalled()), result == 0) << result;
    }
    EXPECT_EQ(Tools::asked.mid(0, 2),
              QStringList({u"schtasks /query /tn CorvaneClient"_s, u"sc query CorvaneService"_s}));
}

TEST(SystemIntegration, ToolsThatAreNotThereOrFailAnswerNothing) {
    EXPECT_EQ(runBriefly(u"cmd.exe"_s, {u"/c"_s, u"exit 7"_s}), 7);
    EXPECT_EQ(runBriefly(u"cmd.exe"_s, {u"/c"_s, u"exit 0"_s}), 0);
    EXPECT_LT(runBriefly(u"no-such-tool.exe"_s, {}), 0);
}

/// The shell and the process that it starts, as scripted.
struct Elevation {
    bool permits = true;
    HANDLE process = reinterpret_cast<HANDLE>(quintptr{0x1234});
    DWORD waitResult = WAIT_OBJECT_0;
    QStringList calls;

    ElevationFunctions functions() {
        return {
            .shellExecute =
                [this](SHELLEXECUTEINFOW* info) {
                    EXPECT_EQ(info->cbSize, sizeof *info);
                    EXPECT_TRUE(info->fMask & SEE_MASK_NOCLOSEPROCESS);
                    const wchar_t* const texts[] = {info->lpVerb, info->lpFile, info->lpParameters};
                    QString call = QString::number(info->nShow);
                    for (const wchar_t* const text : texts) {
                        call += u'|' + QString::fromWCharArray(text);
                    }
                    calls << call;
                    info->hProcess = permits ? process : nullptr;
                    return permits ? TRUE : FALSE;
                },
            .waitForObject =
                [this](HANDLE handle, DWORD milliseconds) {
                    EXPECT_EQ(handle, process);
                    calls << u"wait %1"_s.arg(milliseconds);
                    return waitResult;
                },
            .closeHandle =
                [this](HANDLE handle) {
                    EXPECT_EQ(handle, process);
                    calls << u"close"_s;
                    return TRUE;
                }};
    }
};

TEST(ElevatedCommand, WaitsForThePermittedCommandOnly) {
    const QString start = u"0|runas|cmd.exe|/c echo \"a\" & echo %1"_s;
    const QStringList waited{start, u"wait 30000"_s, u"close"_s};
    const std::pair<Elevation, QStringList> cases[] = {
        {{}, waited},
        {{.waitResult = WAIT_TIMEOUT, .calls = {}}, waited},
        {{.process = nullptr, .calls = {}}, {start}},
        {{.permits = false, .calls = {}}, {start}},
    };
    for (auto [script, calls] : cases) {
        EXPECT_EQ(runElevated(u"echo \"a\" & echo %1"_s, script.functions()), script.permits);
        EXPECT_EQ(script.calls.join(u'\n').toStdString(), calls.join(u'\n').toStdString());
    }
}

TEST(SystemIntegration, AppliesWithOneElevatedCommandOffTheCallersThread) {
    std::mutex untilAsked;
    untilAsked.lock();
    Elevation script;
    auto functions = script.functions();
    functions.shellExecute = [&, execute = functions.shellExecute](SHELLEXECUTEINFOW* info) {
        const std::scoped_lock wait(untilAsked);
        return execute(info);
    };
    auto integration = std::make_unique<SystemIntegration>(&Tools::run, functions);
    const QFuture<bool> answer = integration->apply({.startAtLogon = true, .runService = false});
    integration.reset();
    EXPECT_FALSE(answer.isFinished());
    untilAsked.unlock();
    EXPECT_TRUE(answerOf(answer));
    ASSERT_EQ(script.calls.size(), 3);
    const QString command =
        integrationCommandLine({.startAtLogon = true, .runService = false},
                               QCoreApplication::applicationFilePath().replace(u'/', u'\\'),
                               QCoreApplication::applicationDirPath());
    EXPECT_EQ(script.calls[0], u"0|runas|cmd.exe|/c "_s + command);
}

} // namespace
} // namespace corvane
