#pragma once

#include <QPalette>
#include <QString>

namespace corvane {

/// The dark theme of the whole application. Push buttons named `primaryButton` (filled accent) and
/// `flatButton` (no frame) are variants. Uses the drawings under `:/icons`.
QString applicationStyleSheet();

/// The same colours for what a style sheet does not reach: disabled icons, placeholders, links. To
/// be set on the application together with the sheet.
QPalette applicationPalette();

} // namespace corvane
