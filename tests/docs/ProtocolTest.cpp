#include "ProtocolExamples.h"

#include "support/Files.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

namespace corvane::docs {
namespace {

using namespace Qt::StringLiterals;

Checks allChecks() {
    Checks checks = controlChecks();
    checks.merge(restChecks());
    checks.merge(sealingChecks());
    checks.merge(signalingChecks());
    return checks;
}

/// Every example has one check, and every check its example.
TEST(Protocol, IsSpokenAsDocumented) {
    const test::LogCapture log;
    Checks checks = allChecks();
    for (const Example& example : examplesIn(
             test::contentOf(QStringLiteral(CORVANE_SOURCE_FOLDER) + u"/docs/protocol.md"_s))) {
        const auto check = checks.extract(example.kind + ' ' + example.name);
        ASSERT_TRUE(check) << "no check, or a second " << example.kind << ' ' << example.name;
        SCOPED_TRACE(check.key());
        check.mapped()(example);
    }
    EXPECT_TRUE(checks.empty()) << "no example of " << checks.begin()->first;
}

} // namespace
} // namespace corvane::docs
