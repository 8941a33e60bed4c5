#include "app/CompanionService.h"
#include "app/QuitOnRequest.h"
#include "app/SingleInstanceGuard.h"
#include "app/windows/NamedMutex.h"
#include "integration/windows/LogonTask.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLocalServer>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

TEST(NamedMutex, TellsARunningCopyFromASystemThatRefuses) {
    static DWORD error;
    const MutexCalls refusing{
        .createMutex = [](LPSECURITY_ATTRIBUTES, BOOL, LPCWSTR) -> HANDLE { return nullptr; },
        .lastError = [] { return error; },
    };
    for (const DWORD refusal : {ERROR_ACCESS_DENIED, ERROR_NOT_ENOUGH_MEMORY}) {
        error = refusal;
        EXPECT_EQ(NamedMutex(L"Local\\CorvaneTest", refusing).isFirst(),
                  refusal != ERROR_ACCESS_DENIED);
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
        EXPECT_FALSE(SingleInstanceGuard().isFirst()) << "one that came second does not hold it";
    }
    EXPECT_FALSE(mutexExists());
}

/// What the scheduler's tool has been asked to do, and its answer.
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

TEST(LogonTask, AsksTheSchedulerAndFailsWithIt) {
    const LogonTask task(&Scheduler::run);
    Scheduler::result = 0;
    EXPECT_TRUE(task.create(u"C:/Program Files/Corvane/CorvaneClient.exe"_s));
    EXPECT_EQ(Scheduler::program, u"schtasks"_s);
    EXPECT_EQ(Scheduler::arguments.join(QLatin1Char('|')),
              u"/create|/tn|CorvaneClient|/tr|"
              "\"C:\\Program Files\\Corvane\\CorvaneClient.exe\"|"
              "/sc|onlogon|/rl|highest|/f"_s);
    EXPECT_TRUE(task.remove());
    EXPECT_EQ(Scheduler::arguments.join(QLatin1Char('|')), u"/delete|/tn|CorvaneClient|/f"_s);
    for (const int result : {1, -1}) {
        Scheduler::result = result;
        EXPECT_FALSE(task.create(u"C:/CorvaneClient.exe"_s)) << result;
        EXPECT_FALSE(task.remove()) << result;
    }
}

TEST(CompanionService, IsThereWhileItsPipeIs) {
    EXPECT_FALSE(isCompanionServicePresent());
    QLocalServer service;
    ASSERT_TRUE(service.listen(u"CorvaneService"_s));
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
