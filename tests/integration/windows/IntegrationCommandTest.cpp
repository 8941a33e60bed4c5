#include "integration/windows/IntegrationCommand.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(IntegrationCommand, IsOneLineForTaskAndService) {
    const std::pair<IntegrationChoice, const char*> cases[] = {
        {{.startAtLogon = true, .runService = true},
         R"(schtasks /create /tn "CorvaneClient" /tr "\"C:\My %1 & Co\CorvaneClient.exe\"")"
         R"( /sc onlogon /rl highest /f & "C:/My %1 & Co/CorvaneService.exe" --install)"
         R"( & net start CorvaneService)"},
        {{.startAtLogon = false, .runService = false},
         R"(schtasks /delete /tn "CorvaneClient" /f & net stop CorvaneService)"
         R"( & "C:/My %1 & Co/CorvaneService.exe" --uninstall)"},
    };
    for (const auto& [choice, line] : cases) {
        EXPECT_EQ(integrationCommandLine(choice,
                                         QStringLiteral(R"(C:\My %1 & Co\CorvaneClient.exe)"),
                                         QStringLiteral("C:/My %1 & Co"))
                      .toStdString(),
                  line);
    }
}

} // namespace
} // namespace corvane
