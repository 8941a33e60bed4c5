#include "app/Translation.h"

#include <QCoreApplication>
#include <QTranslator>
#include <spdlog/spdlog.h>

namespace corvane {

QString interfaceLanguage(const QString& setting, const QString& systemLocaleName) {
    return setting.isEmpty() ? systemLocaleName.left(2) : setting;
}

void installTranslation(QTranslator& translator, const QString& language, const QString& folder) {
    if (translator.load(QStringLiteral("corvane_") + language, folder)) {
        QCoreApplication::installTranslator(&translator);
        spdlog::info("Loaded translation: {}", language.toStdString());
    } else if (language != u"en") {
        spdlog::info("No translation found for '{}', using English", language.toStdString());
    }
}

} // namespace corvane
