#include "IntegrationCommand.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(IntegrationCommand, IsOneLineForTaskAndService) {
    const struct {
        IntegrationChoice choice;
        const char* line;
    } cases[] = {
        {{.startAtLogon = true, .runService = true},
         R"(schtasks /create /tn "CorvaneClient" /tr "\"C:\My %1 & Co\CorvaneClient.exe\"")"
         R"( /sc onlogon /rl highest /f & "C:/My %1 & Co/CorvaneService.exe" --install)"
         R"( & net start CorvaneService)"},
        {{.startAtLogon = false, .runService = false},
         R"(schtasks /delete /tn "CorvaneClient" /f & net stop CorvaneService)"
         R"( & "C:/My %1 & Co/CorvaneService.exe" --uninstall)"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(integrationCommandLine(c.choice,
                                         QStringLiteral(R"(C:\My %1 & Co\CorvaneClient.exe)"),
                                         QStringLiteral("C:/My %1 & Co"))
                      .toStdString(),
                  c.line);
    }
}

} // namespace
} // namespace corvane
