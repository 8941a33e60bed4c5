#include "ProtocolExamples.h"

#include "common/JsonFields.h"
#include "support/Bytes.h"

#include <QRegularExpression>
#include <QStringList>
#include <gtest/gtest.h>

namespace corvane::docs {

using namespace Qt::StringLiterals;

ByteVector Example::bytes() const {
    static const QRegularExpression kComment(u"#[^\n]*"_s);
    static const QRegularExpression kPairs(u"\\A(\\s*[0-9a-f]{2})+\\s*\\z"_s);
    const QString digits = QString::fromUtf8(text).remove(kComment);
    EXPECT_TRUE(kPairs.match(digits).hasMatch()) << "not pairs of hexadecimal digits:\n"
                                                 << digits.toStdString();
    return test::hexBytes(digits.toLatin1());
}

nlohmann::json Example::json() const {
    const auto parsed = parseJson(text.toStdString());
    EXPECT_FALSE(parsed.is_discarded()) << "not JSON:\n" << text.toStdString();
    return parsed.is_discarded() ? nlohmann::json() : parsed;
}

HttpExchange::HttpExchange(const Example& example) {
    const QStringList parts = QString::fromUtf8(example.text).split(u"\n\n"_s);
    if (parts.size() != 4) {
        ADD_FAILURE() << "not a request, its body, a status and its body";
        return;
    }
    const QStringList head = parts[0].split(u'\n');
    method = head[0].section(u' ', 0, 0);
    path = head[0].section(u' ', 1);
    if (head.size() > 1) {
        EXPECT_TRUE(head[1].startsWith(u"Authorization: "_s)) << head[1].toStdString();
        authorization = head[1].section(u": "_s, 1).toLatin1();
    }
    body = parseJson(parts[1].toStdString());
    status = parts[2].toInt();
    answer = parts[3].toUtf8();
}

std::vector<Example> examplesIn(const QByteArray& markdown) {
    static const QRegularExpression kBlock(u"^```(\\w+) *([\\w-]*)\n(.*?)^```$"_s,
                                           QRegularExpression::MultilineOption |
                                               QRegularExpression::DotMatchesEverythingOption);
    static const QStringList kKinds{u"hex"_s, u"http"_s, u"json"_s};
    std::vector<Example> examples;
    const QString document = QString::fromUtf8(markdown);
    for (const auto& block : kBlock.globalMatch(document)) {
        const QString name = block.captured(2);
        if (!name.isEmpty() || kKinds.contains(block.captured(1))) {
            examples.push_back(
                {block.captured(1).toStdString(), name.toStdString(), block.captured(3).toUtf8()});
        }
    }
    return examples;
}

} // namespace corvane::docs
