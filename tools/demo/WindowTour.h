#pragma once

namespace corvane::demo {

struct Stage;

/// Opens the windows that belong to the viewer's home page, for the contact sheet, and reports
/// which of them opened. Ends with the keyboard in the partner field.
void tourHome(Stage& stage);

/// The same for what belongs to a connected viewer, except what other acts open.
void tourViewer(Stage& stage);

} // namespace corvane::demo
