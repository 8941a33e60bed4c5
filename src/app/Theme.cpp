#include "app/Theme.h"

#include "ui/UiColors.h"

#include <QColor>

#include <array>

namespace corvane {

namespace {

struct Color {
    const char* token;
    const char* value;
};

constexpr auto kColors = std::to_array<Color>({
    {"$window", colors::kWindow},
    {"$raised", colors::kRaised},
    {"$field", colors::kField},
    {"$button", colors::kButton},
    {"$border", colors::kBorder},
    {"$pressed", colors::kPressed},
    {"$muted", colors::kMuted},
    {"$text", colors::kText},
    {"$secondary", colors::kSecondary},
    {"$disabled", colors::kDisabled},
    {"$accent", colors::kAccent},
    {"$primaryHover", colors::kPrimaryHover},
    {"$primaryPressed", colors::kPrimaryPressed},
    {"$primaryDisabled", colors::kDeepAccent},
});

// The tokens stand for the colours above.
constexpr const char* kSurfaces = R"(
QWidget { background-color: $window; color: $text; font-size: 13px; }
QMainWindow, QDialog { background-color: $window; }
QLabel, QCheckBox, QRadioButton { background-color: transparent; }
QWidget:disabled { color: $disabled; }
QGroupBox {
    font-size: 10px; border: 1px solid $border; border-radius: 6px;
    margin-top: 9px; padding: 10px 8px 8px 8px; color: $secondary;
}
QGroupBox::title {
    subcontrol-origin: margin; subcontrol-position: top left;
    left: 10px; padding: 0 4px; color: $secondary;
}
QMessageBox {
    background-color: $raised;
    messagebox-warning-icon: url(:/icons/warning);
    messagebox-information-icon: url(:/icons/information);
    messagebox-question-icon: url(:/icons/question);
}
QMessageBox QLabel { color: $text; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QToolTip {
    background-color: $raised; color: $text;
    border: 1px solid $border; border-radius: 3px; padding: 3px 6px;
}
QFrame[frameShape="4"] { background-color: $border; border: none; max-height: 1px; }
QFrame[frameShape="5"] { background-color: $border; border: none; max-width: 1px; }
QSplitter::handle { background-color: $border; }
QSplitter::handle:horizontal { width: 3px; }
QSplitter::handle:vertical { height: 3px; }
)";

constexpr const char* kButtons = R"(
QPushButton {
    background-color: $button; color: $text;
    border: 1px solid $border; border-radius: 5px; padding: 6px 14px; outline: none;
}
QPushButton:hover { background-color: $border; }
QPushButton:focus { border-color: $accent; }
QPushButton:pressed { background-color: $pressed; }
QPushButton:disabled { background-color: $muted; color: $disabled; border-color: $button; }
QPushButton::menu-indicator {
    image: url(:/icons/arrow_down); width: 9px; height: 9px;
    subcontrol-origin: padding; subcontrol-position: right center; right: 5px;
}
QPushButton#primaryButton {
    background-color: $accent; color: $field; border: 1px solid $accent; font-weight: bold;
}
QPushButton#primaryButton:hover { background-color: $primaryHover; border-color: $primaryHover; }
QPushButton#primaryButton:focus { border-color: $text; }
QPushButton#primaryButton:pressed {
    background-color: $primaryPressed; border-color: $primaryPressed;
}
QPushButton#primaryButton:disabled {
    background-color: $primaryDisabled; color: $disabled; border-color: $primaryDisabled;
}
QPushButton#flatButton {
    background-color: transparent; color: $secondary; border: none; padding: 4px;
}
QPushButton#flatButton:hover { background-color: $button; color: $text; }
QPushButton#flatButton:focus { background-color: $button; color: $accent; }
QPushButton#flatButton:pressed { background-color: $pressed; }
QPushButton#flatButton:disabled { background-color: transparent; color: $disabled; }
QToolBar {
    background-color: $field; border: none; border-bottom: 1px solid $border;
    padding: 3px; spacing: 3px;
}
QToolBar::separator { background-color: $border; width: 1px; margin: 4px 3px; }
QToolButton {
    background-color: transparent; color: $secondary;
    border: 1px solid transparent; border-radius: 4px; padding: 4px 7px;
}
QToolButton:hover { background-color: $button; color: $text; }
QToolButton:pressed, QToolButton:checked, QToolButton:open { background-color: $border; color: $text; }
QToolButton:disabled { color: $disabled; }
QToolButton[popupMode="2"] { padding-right: 18px; }
QToolButton::menu-indicator {
    image: url(:/icons/arrow_down); width: 9px; height: 9px;
    subcontrol-origin: padding; subcontrol-position: right center; right: 5px;
}
QMenu { background-color: $raised; border: 1px solid $border; padding: 4px; }
QMenu::item { background-color: transparent; padding: 5px 22px; border-radius: 3px; }
QMenu::item:selected { background-color: $accent; color: $field; }
QMenu::item:disabled { color: $disabled; }
QMenu::indicator { width: 14px; height: 14px; left: 6px; }
QMenu::indicator:checked { image: url(:/icons/menu_check); }
QMenu::indicator:checked:selected { image: url(:/icons/check); }
QMenu::separator { background-color: $border; height: 1px; margin: 4px 6px; }
)";

constexpr const char* kInputs = R"(
QLineEdit, QComboBox, QSpinBox, QDoubleSpinBox, QTextEdit, QPlainTextEdit {
    background-color: $field; color: $text; border: 1px solid $border; border-radius: 4px;
    padding: 5px 8px; selection-background-color: $accent; selection-color: $field;
}
QLineEdit:focus, QComboBox:focus, QSpinBox:focus, QDoubleSpinBox:focus,
QTextEdit:focus, QPlainTextEdit:focus { border-color: $accent; }
QLineEdit:disabled, QComboBox:disabled, QSpinBox:disabled, QDoubleSpinBox:disabled {
    color: $disabled; border-color: $button;
}
QComboBox { padding-right: 24px; combobox-popup: 0; }
QComboBox QLineEdit { border: none; border-radius: 0; padding: 0; }
QComboBox::drop-down {
    subcontrol-origin: padding; subcontrol-position: center right; width: 22px; border: none;
}
QComboBox::down-arrow { image: url(:/icons/arrow_down); width: 12px; height: 12px; }
QComboBox QAbstractItemView {
    background-color: $field; color: $text; border: 1px solid $border; outline: none;
    selection-background-color: $accent; selection-color: $field;
}
QSpinBox, QDoubleSpinBox { padding-right: 22px; }
QSpinBox::up-button, QDoubleSpinBox::up-button {
    subcontrol-origin: border; subcontrol-position: top right;
    width: 20px; border: none; border-top-right-radius: 4px;
}
QSpinBox::down-button, QDoubleSpinBox::down-button {
    subcontrol-origin: border; subcontrol-position: bottom right;
    width: 20px; border: none; border-bottom-right-radius: 4px;
}
QSpinBox::up-button:hover, QSpinBox::down-button:hover,
QDoubleSpinBox::up-button:hover, QDoubleSpinBox::down-button:hover { background-color: $button; }
QSpinBox::up-arrow, QDoubleSpinBox::up-arrow {
    image: url(:/icons/arrow_up); width: 9px; height: 9px;
}
QSpinBox::down-arrow, QDoubleSpinBox::down-arrow {
    image: url(:/icons/arrow_down); width: 9px; height: 9px;
}
QCheckBox, QRadioButton { spacing: 7px; outline: none; }
QCheckBox::indicator, QRadioButton::indicator {
    width: 16px; height: 16px; background-color: $field; border: 1px solid $border;
}
QCheckBox::indicator { border-radius: 3px; }
QRadioButton::indicator { border-radius: 9px; }
QCheckBox::indicator:hover, QRadioButton::indicator:hover,
QCheckBox::indicator:focus, QRadioButton::indicator:focus { border-color: $accent; }
QCheckBox::indicator:checked {
    background-color: $accent; border-color: $accent; image: url(:/icons/check);
}
QCheckBox::indicator:checked:focus { border-color: $text; }
QRadioButton::indicator:checked {
    width: 8px; height: 8px; background-color: $field; border: 5px solid $accent;
}
QCheckBox::indicator:disabled, QRadioButton::indicator:disabled {
    background-color: $muted; border-color: $button;
}
QCheckBox::indicator:checked:disabled { background-color: $primaryDisabled; }
QRadioButton::indicator:checked:disabled { border-color: $primaryDisabled; }
QProgressBar {
    background-color: $field; color: $text; border: 1px solid $border; border-radius: 4px;
    font-size: 11px; text-align: center; min-height: 16px;
}
QProgressBar::chunk { background-color: $accent; border-radius: 3px; }
)";

constexpr const char* kViews = R"(
QTabWidget::pane { background-color: $raised; border: 1px solid $border; border-radius: 4px; }
QTabWidget > QStackedWidget, QTabWidget > QStackedWidget > QWidget { background-color: $raised; }
QTabBar::tab {
    background-color: $field; color: $secondary; border: 1px solid $border; border-bottom: none;
    border-top-left-radius: 4px; border-top-right-radius: 4px;
    padding: 6px 14px; margin-right: 2px;
}
QTabBar::tab:hover { background-color: $button; color: $text; }
QTabBar::tab:selected { background-color: $raised; color: $text; border-top: 2px solid $accent; }
QTabBar { outline: none; }
QTabBar::tab:selected:focus { color: $accent; }
QTabBar::tab:disabled { color: $disabled; }
QTreeView, QListView {
    background-color: $field; alternate-background-color: $muted; color: $text;
    border: 1px solid $border; border-radius: 4px; outline: none;
}
QTreeView:focus, QListView:focus { border-color: $accent; }
QTreeView::item, QListView::item { padding: 3px; border: none; }
QTreeView::item:hover, QListView::item:hover { background-color: $button; }
QTreeView::item:selected, QListView::item:selected { background-color: $accent; color: $field; }
QHeaderView { background-color: $raised; border: none; }
QHeaderView::section {
    background-color: $raised; color: $secondary; font-size: 11px; padding: 5px 8px;
    border: none; border-right: 1px solid $border; border-bottom: 1px solid $border;
}
QScrollBar:vertical { background-color: $field; width: 7px; margin: 0; border: none; }
QScrollBar:horizontal { background-color: $field; height: 7px; margin: 0; border: none; }
QScrollBar::handle { background-color: $border; border-radius: 3px; }
QScrollBar::handle:vertical { min-height: 24px; }
QScrollBar::handle:horizontal { min-width: 24px; }
QScrollBar::handle:hover { background-color: $pressed; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; border: none; }
QScrollBar::add-page, QScrollBar::sub-page { background-color: transparent; }
)";

} // namespace

QPalette applicationPalette() {
    const auto color = [](const char* value) {
        return QColor(QLatin1String(value));
    };
    QPalette palette(color(colors::kText), color(colors::kButton), color(colors::kPressed),
                     color(colors::kField), color(colors::kBorder), color(colors::kText),
                     color(colors::kText), color(colors::kField), color(colors::kWindow));
    palette.setColor(QPalette::AlternateBase, color(colors::kMuted));
    palette.setColor(QPalette::Highlight, color(colors::kAccent));
    palette.setColor(QPalette::HighlightedText, color(colors::kField));
    palette.setColor(QPalette::Link, color(colors::kAccent));
    palette.setColor(QPalette::ToolTipBase, color(colors::kRaised));
    palette.setColor(QPalette::ToolTipText, color(colors::kText));
    palette.setColor(QPalette::PlaceholderText, color(colors::kSecondary));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, color(colors::kDisabled));
    }
    return palette;
}

QString applicationStyleSheet() {
    QString sheet;
    for (const char* part : {kSurfaces, kButtons, kInputs, kViews}) {
        sheet += QLatin1String(part);
    }
    for (const Color& color : kColors) {
        sheet.replace(QLatin1String(color.token), QLatin1String(color.value));
    }
    return sheet;
}

} // namespace corvane
