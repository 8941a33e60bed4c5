#pragma once

#include <QRegularExpression>
#include <QString>
#include <gmock/gmock.h>

namespace corvane::test {

/// The whole of a std::string matches the regular expression `pattern`. GoogleTest's own matcher
/// knows neither sets nor counts on Windows.
MATCHER_P(MatchesPattern, pattern, "") {
    const QRegularExpression whole(
        QRegularExpression::anchoredPattern(QString::fromLatin1(pattern)));
    return whole.match(QString::fromStdString(arg)).hasMatch();
}

} // namespace corvane::test
