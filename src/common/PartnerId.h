#pragma once

#include <QString>

namespace corvane {

/// The ID without its spaces, as it goes over the wire.
QString barePartnerId(const QString& text);

/// The ID as it is shown: nine characters in three groups of three, anything else unchanged.
QString formatPartnerId(const QString& id);

/// Whether the bare ID is exactly nine decimal digits.
bool isPartnerId(const QString& bareId);

} // namespace corvane
