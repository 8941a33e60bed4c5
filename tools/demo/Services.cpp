#include "demo/Services.h"

#include "demo/Stage.h"
#include "harness/WaitFor.h"

#include <utility>

namespace corvane::demo {

using namespace std::chrono_literals;
using harness::DisplayUser;

namespace {

constexpr auto kTimeout = 10s;
const QString kChatTitle = QStringLiteral("Chat");

constexpr QPoint kInput(60, -26);
constexpr QPoint kTranscript(60, 120);
constexpr QPoint kTranscriptEnd(60, -90);

bool say(DisplayUser& user, const QString& text) {
    if (!user.clickInto(kChatTitle, kInput)) {
        return false;
    }
    user.display().type(text);
    user.display().pressKey(harness::kKeyReturn);
    return true;
}

/// Waits for the transcript to contain the text; false when it never does.
bool reads(DisplayUser& user, const QString& text) {
    return user.sees(kChatTitle) && user.clickInto(kChatTitle, kTranscript) &&
           harness::waitFor(
               [&] {
                   user.display().pressKey('a', {harness::kKeyControl});
                   return user.copied().contains(text);
               },
               kTimeout);
}

bool sendsClipboard(DisplayUser& from, DisplayUser& to, const QString& text) {
    from.clipboard().copy(text);
    return harness::waitFor([&] { return to.clipboard().text() == text; }, kTimeout);
}

void checkText(Stage& stage, const QString& name, bool arrived, const QString& text) {
    stage.report.check(
        name, arrived,
        QStringLiteral("\"%1\" %2")
            .arg(text, arrived ? QStringLiteral("arrived") : QStringLiteral("is missing")));
}

} // namespace

void exchangeChat(Stage& stage) {
    const QString question = QStringLiteral("Hello over there");
    const QString answer = QStringLiteral("Hello, I read you");
    stage.viewer.clickInto(kViewerTitle, kToolBar);
    const bool asked =
        stage.viewer.openByKey(kChatTitle, 'c', {harness::kKeyControl, harness::kKeyShift}) &&
        say(stage.viewer, question) && reads(stage.target, question);
    checkText(stage, QStringLiteral("chat to the target"), asked, question);
    const bool answered = asked && say(stage.target, answer) && reads(stage.viewer, answer);
    checkText(stage, QStringLiteral("chat to the viewer"), answered, answer);
    for (const auto& [user, caption] :
         {std::pair{&stage.viewer, "Chat, viewer"}, std::pair{&stage.target, "Chat, target"}}) {
        user->clickInto(kChatTitle, kTranscriptEnd); // deselects what was copied
        stage.sheet.add(QLatin1String(caption), user->look(kChatTitle));
        user->escape(kChatTitle);
    }
}

void exchangeClipboard(Stage& stage) {
    const QString there = QStringLiteral("Grüße an das Ziel\n2 × 3 = 6");
    const QString back = QStringLiteral("Grüße zurück\n6 ÷ 3 = 2");
    checkText(stage, QStringLiteral("clipboard to target"),
              sendsClipboard(stage.viewer, stage.target, there),
              QString(there).replace(u'\n', u' '));
    checkText(stage, QStringLiteral("clipboard to viewer"),
              sendsClipboard(stage.target, stage.viewer, back), QString(back).replace(u'\n', u' '));
}

} // namespace corvane::demo
