#pragma once

#include <QString>

class QTranslator;

namespace corvane {

/// The two-letter code of the interface language: the setting, or the system's where it is empty.
QString interfaceLanguage(const QString& setting, const QString& systemLocaleName);

/// Loads the language's file from `folder` and installs it. Without one the interface stays
/// English.
void installTranslation(QTranslator& translator, const QString& language, const QString& folder);

} // namespace corvane
