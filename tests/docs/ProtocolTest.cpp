#include "ProtocolExamples.h"

#include "support/Files.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

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

std::vector<Example> documented() {
    return examplesIn(
        test::contentOf(QStringLiteral(CORVANE_SOURCE_FOLDER) + u"/docs/protocol.md"_s));
}

TEST(Protocol, EveryExampleHasACheckAndEveryCheckAnExample) {
    EXPECT_THAT(mismatches(documented(), allChecks()), testing::IsEmpty());
}

TEST(Protocol, IsSpokenAsDocumented) {
    const test::LogCapture log;
    const Checks checks = allChecks();
    for (const Example& example : documented()) {
        const auto check = checks.find(example.kind + ' ' + example.name);
        if (check != checks.end()) {
            SCOPED_TRACE(check->first);
            check->second(example);
        }
    }
}

TEST(Protocol, ExamplesWithoutNameOrCheckAreFound) {
    const auto examples = examplesIn("```hex\n00\n```\n```text\nnone\n```\n"
                                     "```hex known\n01\n```\ntext\n\n```json unknown\n{}\n```\n"
                                     "```hex known\n02\n```\n");
    EXPECT_THAT(mismatches(examples, {{"hex known", {}}, {"hex gone", {}}}),
                testing::ElementsAre("hex : no check", "json unknown: no check",
                                     "hex known: there twice", "hex gone: no example"));
}

} // namespace
} // namespace corvane::docs
