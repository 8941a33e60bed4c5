#include "app/CommandLine.h"
#include "app/Logging.h"
#include "app/Theme.h"
#include "app/Translation.h"
#include "support/Files.h"
#include "support/LogCapture.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

TEST(CommandLine, IsReadByExactNames) {
    using enum CommandLine::Action;
    using namespace spdlog::level;
    const std::tuple<QStringList, CommandLine::Action, level_enum> cases[] = {
        {{}, Run, err},
        {{u"--log-level"_s, u"DEBUG"_s}, Run, debug},
        {{u"--log-level"_s, u"info"_s}, Run, info},
        {{u"--log-level"_s, u"Warning"_s}, Run, warn},
        {{u"--log-level"_s, u"trace"_s}, Run, err},
        {{u"--log-level"_s, u"trace"_s, u"--log-level"_s, u"info"_s}, Run, err},
        {{u"--install"_s, u"--log-level"_s}, Install, err},
        {{u"--Log-Level"_s, u"info"_s, u"--INSTALL"_s}, Run, err},
        {{u"--uninstall"_s}, Uninstall, err},
        {{u"--uninstall"_s, u"--log-level"_s, u"info"_s, u"--install"_s}, Install, info},
    };
    for (const auto& [arguments, action, level] : cases) {
        const CommandLine parsed = parseCommandLine(QStringList(u"--install"_s) + arguments);
        EXPECT_EQ(parsed.action, action) << arguments.join(u' ').toStdString();
        EXPECT_EQ(parsed.logLevel, level) << arguments.join(u' ').toStdString();
    }
}

TEST(Translation, FallsBackToEnglish) {
    QTemporaryDir folder;
    // The smallest file with a table of one message.
    test::writeFile(folder.filePath(u"corvane_de.qm"_s),
                    QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd"
                                        "42000000080000000000000000690000000101"));
    const std::tuple<QString, QString, std::vector<std::string>> cases[] = {
        {u""_s, u"de_DE"_s, {"info|Loaded translation: de"}},
        {u"de"_s, u"en_US"_s, {"info|Loaded translation: de"}},
        {u""_s, u"fr_CA"_s, {"info|No translation found for 'fr', using English"}},
        {u"en"_s, u"de_DE"_s, {}},
    };
    for (const auto& [setting, locale, lines] : cases) {
        const test::LogCapture log;
        QTranslator translator;
        installTranslation(translator, interfaceLanguage(setting, locale), folder.path());
        EXPECT_EQ(log.lines(), lines) << setting.toStdString() << locale.toStdString();
    }
}

TEST(Logging, StartsAFreshFileAndWritesEveryLineAtOnce) {
    const test::LogCapture restoresTheLogger;
    QTemporaryDir home;
    const QString folder = home.filePath(u"a/b"_s);
    const QString file = folder + u"/CorvaneClient.log"_s;
    const auto content = [&file] {
        return QString::fromUtf8(test::contentOf(file));
    };
    setUpLogging(folder, spdlog::level::info);
    spdlog::debug("hidden");
    spdlog::info("Class: shown");
    static const QRegularExpression kLine(
        u"^\\[\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3}\\] "
        u"\\[corvane\\] \\[info\\] Class: shown\r?\n$"_s);
    EXPECT_TRUE(kLine.match(content()).hasMatch()) << content().toStdString();

    setUpLogging(folder, CommandLine().logLevel);
    spdlog::warn("hidden");
    EXPECT_EQ(content(), QString());

    setUpLogging(file, spdlog::level::info); // a file where a folder should be
    spdlog::error("nowhere to go");
    EXPECT_EQ(content(), QString());
}

TEST(Theme, ReplacesEveryColour) {
    const QString sheet = applicationStyleSheet();
    EXPECT_TRUE(sheet.contains(u"background-color: #1a1a2e"));
    EXPECT_FALSE(sheet.contains(u'$'));
    EXPECT_EQ(sheet.count(u'{'), sheet.count(u'}'));
}

} // namespace
} // namespace corvane
