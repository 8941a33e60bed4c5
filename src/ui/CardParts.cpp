#include "ui/CardParts.h"

#include "ui/UiColors.h"

#include <QFrame>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

namespace corvane {

void styleCard(QFrame* card, const QString& objectName) {
    card->setObjectName(objectName);
    card->setStyleSheet(
        QStringLiteral("QFrame#%1 { background-color: %2; border: 1px solid %3; "
                       "border-radius: 6px; }")
            .arg(objectName, QLatin1String(colors::kRaised), QLatin1String(colors::kBorder)));
}

QLabel* createCaption(const QString& text, QWidget* parent) {
    auto* const caption = new QLabel(text, parent);
    caption->setIndent(0); // an indented label would stand to the right of the others
    // The accents of capital letters reach above the line.
    caption->setStyleSheet(QStringLiteral("color: %1; font-size: 10px; font-weight: bold; "
                                          "letter-spacing: 1px; padding-top: 2px;")
                               .arg(QLatin1String(colors::kSecondary)));
    return caption;
}

QLabel* createValueLabel(const QString& objectName, const QString& styleSheet, QWidget* parent) {
    auto* const label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setStyleSheet(styleSheet);
    label->setTextFormat(Qt::PlainText);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}

QPushButton* createIconButton(const QString& objectName, const QString& icon,
                              const QString& toolTip, int side, QWidget* parent) {
    auto* const button = new QPushButton(QIcon(QStringLiteral(":/icons/") + icon), {}, parent);
    button->setObjectName(objectName);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setFixedSize(side, side);
    button->setIconSize(QSize(side - 10, side - 10));
    button->setStyleSheet(
        QStringLiteral("QPushButton { background: transparent; border: 1px solid transparent; "
                       "border-radius: 4px; padding: 0; }"
                       "QPushButton:hover { background-color: %1; }"
                       "QPushButton:focus { border-color: %2; }"
                       "QPushButton:pressed { background-color: %3; }")
            .arg(QLatin1String(colors::kBorder), QLatin1String(colors::kAccent),
                 QLatin1String(colors::kPressed)));
    return button;
}

QFrame* createSeparator(QWidget* parent) {
    auto* const line = new QFrame(parent);
    line->setFixedHeight(1);
    line->setStyleSheet(
        QStringLiteral("background-color: %1; border: none;").arg(QLatin1String(colors::kBorder)));
    return line;
}

} // namespace corvane
