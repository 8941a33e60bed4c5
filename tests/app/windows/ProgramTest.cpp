#include "CompanionService.h"
#include "LogonTask.h"
#include "NamedMutex.h"
#include "QuitOnRequest.h"
#include "SingleInstanceGuard.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLocalServer>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

#include <memory>

namespace corvane {
namespace {

constexpr const wchar_t* kName = L"Local\\CorvaneNamedMutexTest";

TEST(NamedMutex, IsFirstUntilAnotherHoldsTheName) {
    auto first = std::make_unique<NamedMutex>(kName);
    EXPECT_TRUE(first->isFirst());
    EXPECT_FALSE(NamedMutex(kName).isFirst());
    EXPECT_FALSE(NamedMutex(kName).isFirst()) << "one that came second does not hold it";
    first.reset();
    EXPECT_TRUE(NamedMutex(kName).isFirst());
}

TEST(NamedMutex, TellsARunningCopyFromASystemThatRefuses) {
    static DWORD error;
    const MutexCalls refusing{
        .createMutex = [](LPSECURITY_ATTRIBUTES, BOOL, LPCWSTR) -> HANDLE { return nullptr; },
        .lastError = [] { return error; },
    };
    const struct {
        DWORD error;
        bool first;
    } cases[] = {{ERROR_ACCESS_DENIED, false},
                 {ERROR_NOT_ENOUGH_MEMORY, true},
                 {ERROR_INVALID_HANDLE, true}};
    for (const auto& expected : cases) {
        error = expected.error;
        EXPECT_EQ(NamedMutex(kName, refusing).isFirst(), expected.first) << expected.error;
    }
}

TEST(SingleInstanceGuard, HoldsTheProgramsMutex) {
    const auto mutexExists = [] {
        const HANDLE mutex = OpenMutexW(SYNCHRONIZE, FALSE, L"Global\\CorvaneClientMutex");
        if (mutex != nullptr) {
            CloseHandle(mutex);
        }
        return mutex != nullptr;
    };
    ASSERT_FALSE(mutexExists());
    {
        const SingleInstanceGuard guard;
        EXPECT_TRUE(guard.isFirst());
        EXPECT_TRUE(mutexExists());
        EXPECT_FALSE(SingleInstanceGuard().isFirst());
    }
    EXPECT_FALSE(mutexExists());
}

/// What the scheduler's tool was asked, and what it answers.
struct Scheduler {
    static inline QString program;
    static inline QStringList arguments;
    static inline int result = 0;

    static int run(const QString& asked, const QStringList& with) {
        program = asked;
        arguments = with;
        return result;
    }
};

TEST(LogonTask, AsksTheScheduler) {
    const LogonTask task(&Scheduler::run);
    Scheduler::result = 0;
    EXPECT_TRUE(task.create(QStringLiteral("C:/Program Files/Corvane/CorvaneClient.exe")));
    EXPECT_EQ(Scheduler::program, QStringLiteral("schtasks"));
    EXPECT_EQ(Scheduler::arguments.join(QLatin1Char('|')),
              QStringLiteral("/create|/tn|CorvaneClient|/tr|"
                             "\"C:\\Program Files\\Corvane\\CorvaneClient.exe\"|"
                             "/sc|onlogon|/rl|highest|/f"));
    EXPECT_TRUE(task.remove());
    EXPECT_EQ(Scheduler::program, QStringLiteral("schtasks"));
    EXPECT_EQ(Scheduler::arguments.join(QLatin1Char('|')),
              QStringLiteral("/delete|/tn|CorvaneClient|/f"));
}

TEST(LogonTask, FailsWithTheScheduler) {
    const LogonTask task(&Scheduler::run);
    for (const int result : {1, -1, -2}) {
        Scheduler::result = result;
        EXPECT_FALSE(task.create(QStringLiteral("C:/CorvaneClient.exe"))) << result;
        EXPECT_FALSE(task.remove()) << result;
    }
}

TEST(CompanionService, IsThereWhileItsPipeIs) {
    EXPECT_FALSE(isCompanionServicePresent());
    QLocalServer service;
    ASSERT_TRUE(service.listen(QStringLiteral("CorvaneService")));
    EXPECT_TRUE(isCompanionServicePresent());
    service.close();
    EXPECT_FALSE(isCompanionServicePresent());
}

TEST(QuitOnRequest, EndsTheLoopAtTheEndOfTheLogonSession) {
    quitOnSystemRequest(*qApp);
    /// Like the main window during a session.
    struct StayingWindow : QWidget {
        void closeEvent(QCloseEvent* event) override { event->ignore(); }
    } window;
    window.show();
    const auto tell = [&window](WPARAM ends) {
        SendMessageW(reinterpret_cast<HWND>(window.winId()), WM_ENDSESSION, ends, 0);
    };
    bool stayed = false;
    QTimer::singleShot(0, &window, [&] {
        tell(FALSE);
        QTimer::singleShot(0, &window, [&] {
            stayed = true;
            tell(TRUE);
        });
    });
    QTimer::singleShot(5000, &window, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(stayed) << "a log-off that was called off";
}

} // namespace
} // namespace corvane
