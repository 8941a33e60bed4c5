#pragma once

#include <QString>

class QFrame;
class QLabel;
class QPushButton;
class QWidget;

namespace corvane {

/// The building blocks of the home page's cards.

/// Gives a frame the look of a card; the style applies to `objectName` alone.
void styleCard(QFrame* card, const QString& objectName);

QLabel* createCaption(const QString& text, QWidget* parent);

/// A label for a value from elsewhere: shown literally, and cut off rather than pushing what stands
/// beside it out of the window.
QLabel* createValueLabel(const QString& objectName, const QString& styleSheet, QWidget* parent);

/// A square button without text. `icon` is the name of an icon resource.
QPushButton* createIconButton(const QString& objectName, const QString& icon,
                              const QString& toolTip, int side, QWidget* parent);

/// A line one pixel high.
QFrame* createSeparator(QWidget* parent);

} // namespace corvane
