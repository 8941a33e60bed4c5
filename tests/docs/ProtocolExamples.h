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

    /// Of "hex": what the digits stand for, without spaces and what follows a "#". Anything else in
    /// it is a failure of the test.
    ByteVector bytes() const;

    /// Of "json". Text that is no JSON is a failure of the test.
    nlohmann::json json() const;
};

/// Of "http": a request and the answer to it, as four parts with empty lines between them.
struct HttpExchange {
    explicit HttpExchange(const Example& example);

    QString method;
    QString path;
    QByteArray authorization; ///< empty where the example has none
    nlohmann::json body;
    int status = 0;
    QByteArray answer;
};

/// The named blocks of a document, and those of the kinds above that lack a name, in their order.
std::vector<Example> examplesIn(const QByteArray& markdown);

/// Compares one example with what the program sends or makes of it.
using Check = std::function<void(const Example&)>;
using Checks = std::map<std::string, Check>; ///< by the example's kind and name, "hex chat"

Checks controlChecks();
Checks restChecks();
Checks sealingChecks();
Checks signalingChecks();

} // namespace corvane::docs
