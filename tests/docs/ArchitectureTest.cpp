#include "support/Files.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>
#include <gmock/gmock.h>

namespace corvane::docs {
namespace {

using namespace Qt::StringLiterals;

const QString kRoot = QStringLiteral(CORVANE_SOURCE_FOLDER) + u'/';

QSet<QString> matches(const QString& text, const QString& pattern) {
    QSet<QString> found;
    for (const auto& match : QRegularExpression(pattern).globalMatch(text)) {
        found.insert(match.captured(match.lastCapturedIndex()));
    }
    return found;
}

QString sources() {
    QString text;
    QDirIterator files(kRoot + u"src"_s, {u"*.h"_s, u"*.cpp"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        text += QString::fromUtf8(test::contentOf(files.next())) + u'\n';
    }
    return text;
}

/// Classes are renamed and files move; their names in the document must follow.
TEST(Architecture, NamesOnlyWhatIsThere) {
    const QString document = QString::fromUtf8(test::contentOf(kRoot + u"docs/architecture.md"_s));
    const QString kNames =
        u"\\b(?=\\w{5})[A-Z][a-z0-9]+(?:[A-Z][A-Za-z0-9]*)+\\b"_s; // two words or more
    const QSet<QString> named = matches(document, kNames);
    ASSERT_GT(named.size(), 40);
    QStringList missing;
    for (const QString& name : named - matches(sources(), kNames)) {
        missing.append(name);
    }
    for (const QString& path : matches(document, u"`((?:src/)?[a-zA-Z0-9/]+\\.(?:h|cpp))`"_s)) {
        if (!QFile::exists(kRoot + (path.startsWith(u"src/") ? path : u"src/"_s + path))) {
            missing.append(path);
        }
    }
    EXPECT_TRUE(missing.isEmpty()) << missing.join(u", ").toStdString();
}

} // namespace
} // namespace corvane::docs
