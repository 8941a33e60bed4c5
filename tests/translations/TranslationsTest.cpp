#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

/// By context and source text, one below the other.
using Catalogue = QMap<QString, QString>;

/// What is marked unfinished or obsolete counts as missing.
Catalogue read(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader xml(&file);
    Catalogue catalogue;
    QString context, source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"source") {
            source = xml.readElementText();
        } else if (xml.name() == u"translation") {
            const bool finished = !xml.attributes().hasAttribute("type"_L1);
            const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            catalogue.insert(context + u'\n' + source, finished ? text : QString());
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString() << ": " << xml.errorString().toStdString();
    return catalogue;
}

/// The texts that the sources ask for now.
Catalogue readSources() {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"sources.ts"_s);
    EXPECT_EQ(QProcess::execute(QStringLiteral(CORVANE_LUPDATE),
                                {u"-silent"_s, QStringLiteral(CORVANE_SOURCES),
                                 QStringLiteral(CORVANE_TRANSLATIONS), u"-ts"_s, path}),
              0);
    return read(path);
}

/// Everything in a text that is not language: placeholders, mark-up, line ends, access keys.
QStringList skeleton(const QString& text) {
    static const QRegularExpression kParts(u"%(?:\\d+|n|L\\d+)|<[^>]+>|\n|&(?=\\w)"_s);
    QStringList parts;
    for (auto match = kParts.globalMatch(text); match.hasNext();) {
        parts.append(match.next().captured());
    }
    parts.sort();
    return parts;
}

class TranslationsTest : public testing::TestWithParam<const char*> {};

TEST_P(TranslationsTest, SaysEverythingThatTheSourcesSay) {
    static const Catalogue kSources = readSources();
    ASSERT_GT(kSources.size(), 100);
    const Catalogue translations =
        read(QStringLiteral(CORVANE_TRANSLATIONS "/corvane_%1.ts").arg(QLatin1String(GetParam())));
    for (const QString& key : kSources.keys()) {
        const QString text = translations.value(key);
        EXPECT_FALSE(text.isEmpty()) << "missing: " << key.toStdString();
        if (!text.isEmpty()) {
            EXPECT_EQ(skeleton(text), skeleton(key.section(u'\n', 1)))
                << key.toStdString() << " -> " << text.toStdString();
        }
    }

    QTranslator translator;
    ASSERT_TRUE(translator.load(u"corvane_"_s + QLatin1String(GetParam()),
                                QStringLiteral(CORVANE_COMPILED_TRANSLATIONS)));
    EXPECT_EQ(translator.translate("corvane::HomePage", "Settings"),
              translations.value(u"corvane::HomePage\nSettings"_s));
}

INSTANTIATE_TEST_SUITE_P(All, TranslationsTest, testing::Values(CORVANE_LANGUAGE_CODES),
                         [](const auto& language) { return std::string(language.param); });

} // namespace
} // namespace corvane
