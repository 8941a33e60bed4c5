#include "devserver/PublicPages.h"

using namespace Qt::StringLiterals;

namespace corvane::devserver {

std::optional<Answer> PublicPages::answer(const Request& request) const {
    if (request.method != "GET"_L1) {
        return std::nullopt;
    }
    if (request.path == "/address"_L1) {
        return Answer{.body = request.remoteAddress.toString().toUtf8() + '\n',
                      .contentType = "text/plain; charset=utf-8"};
    }
    if (request.path == "/download/CorvaneSetup.json"_L1) {
        const QUrl archive = m_baseUrl.resolved(QUrl(u"/download/CorvaneSetup.zip"_s));
        return jsonAnswer({{u"version"_s, m_manifestVersion},
                           {u"download_url"_s, archive.toString()},
                           {u"release_notes"_s, u"Development build"_s}});
    }
    if (request.path == "/admin"_L1) {
        return Answer{.body = "<!doctype html><title>Corvane administration</title>"
                              "<h1>Corvane development server</h1>",
                      .contentType = "text/html; charset=utf-8"};
    }
    return std::nullopt;
}

} // namespace corvane::devserver
