#pragma once

#include "common/ByteVector.h"

#include <QByteArray>
#include <QString>
#include <nlohmann/json.hpp>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace corvane::docs {

/// A fenced block of a Markdown document, as in "```hex chat".
struct Example {
    std::string kind; ///< "hex", "json", "http"
    std::string name;
    QByteArray text;

    /// Of a "hex" block: the bytes; spaces, and comments from "#" on, are skipped. Anything else
    /// fails the test.
    ByteVector bytes() const;

    /// Of a "json" block. Text that is not JSON fails the test.
    nlohmann::json json() const;
};

/// An "http" block: a request and the answer to it, as four parts with empty lines between them.
struct HttpExchange {
    explicit HttpExchange(const Example& example);

    QString method;
    QString path;
    QByteArray authorization; ///< empty where the example has none
    nlohmann::json body;
    int status = 0;
    QByteArray answer;
};

/// The named blocks of a document and, of the kinds above, those without a name, in order.
std::vector<Example> examplesIn(const QByteArray& markdown);

/// Compares one example with what the program sends or makes of it.
using Check = std::function<void(const Example&)>;
using Checks = std::map<std::string, Check>; ///< by the example's kind and name, "hex chat"

Checks controlChecks();
Checks restChecks();
Checks sealingChecks();
Checks signalingChecks();

} // namespace corvane::docs
