#include "ui/SettingsDialog.h"

#include "app/settings/SettingsController.h"
#include "common/DisplayMode.h"
#include "integration/ISystemIntegration.h"
#include "ui/MessageBoxes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QFutureWatcher>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include <utility>

namespace corvane {

namespace {

constexpr int kQualityMode = static_cast<int>(DisplayMode::Quality);
constexpr int kSpeedMode = static_cast<int>(DisplayMode::Speed);
constexpr int kSmoothMode = static_cast<int>(DisplayMode::Smooth);

/// Each is shown in its own language, whatever the interface's.
struct Language {
    const char* name;
    const char* code;
};

constexpr Language kLanguages[] = {
    {"Čeština", "cs"}, {"Slovenčina", "sk"}, {"English", "en"},  {"Deutsch", "de"},
    {"Polski", "pl"},  {"Magyar", "hu"},     {"Français", "fr"}, {"Italiano", "it"},
    {"Español", "es"}, {"Svenska", "sv"},    {"Suomi", "fi"},    {"Norsk", "nb"},
};

template <typename Widget, typename... Arguments>
Widget* newControl(const char* objectName, const QString& toolTip, Arguments&&... arguments) {
    auto* const widget = new Widget(std::forward<Arguments>(arguments)...);
    widget->setObjectName(QLatin1String(objectName));
    widget->setToolTip(toolTip);
    return widget;
}

void select(QComboBox* box, int index, int otherwise) {
    box->setCurrentIndex(index >= 0 ? index : otherwise);
}

bool isYes(const QFuture<bool>& answer) {
    return answer.resultCount() > 0 && answer.resultAt(0);
}

} // namespace

SettingsDialog::SettingsDialog(SettingsController* settings, ISystemIntegration* integration,
                               const std::vector<MonitorInfo>& monitors, QWidget* parent)
    : QDialog(parent), m_settings(settings), m_integration(integration),
      m_boxes(new MessageBoxes(this)) {
    setObjectName(QStringLiteral("settingsDialog"));
    setWindowTitle(tr("Settings"));
    setModal(true);
    m_tabs = new QTabWidget;
    m_tabs->setObjectName(QStringLiteral("settingsTabs"));
    m_tabs->addTab(createDisplayPage(monitors), tr("Display"));
    m_tabs->addTab(createNetworkPage(), tr("Network"));
    m_tabs->addTab(createAdvancedPage(), tr("Advanced"));
    m_progress = new QLabel;
    m_progress->setObjectName(QStringLiteral("progressLabel"));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    layout->addWidget(m_progress);
    layout->addWidget(createButtons());
    load();
    loadIntegration();
    m_tabs->setFocus(); // rather than the only button that is enabled from the start
}

QWidget* SettingsDialog::createDisplayPage(const std::vector<MonitorInfo>& monitors) {
    auto* const page = new QWidget;
    auto* const form = new QFormLayout(page);
    m_language = newControl<QComboBox>(
        "languageCombo", tr("Application language. Requires restart to take effect."));
    m_language->addItem(tr("System default"), QString());
    for (const Language& language : kLanguages) {
        m_language->addItem(QString::fromUtf8(language.name), QLatin1String(language.code));
    }
    m_language->setMaxVisibleItems(m_language->count());
    m_displayMode = newControl<QComboBox>(
        "displayModeCombo", tr("Quality: 24 fps, sharp image, higher bandwidth.\n"
                               "Speed: 10 fps, lower bandwidth and CPU usage.") +
                                QLatin1Char('\n') +
                                tr("Smooth: 30 fps, up to 60 while you work; higher bandwidth and "
                                   "CPU usage."));
    m_displayMode->addItem(tr("Optimize Quality"), kQualityMode);
    m_displayMode->addItem(tr("Optimize Speed"), kSpeedMode);
    m_displayMode->addItem(tr("Smooth motion"), kSmoothMode);
    m_monitor = newControl<QComboBox>(
        "monitorCombo", tr("Select which monitor to share when someone connects to this device."));
    for (const MonitorInfo& monitor : monitors) {
        m_monitor->addItem(tr("Monitor %1: %2 (%3x%4%5)")
                               .arg(QString::number(monitor.index + 1),
                                    QString::fromStdString(monitor.name),
                                    QString::number(monitor.width), QString::number(monitor.height),
                                    monitor.primary ? tr(", Primary") : QString()),
                           static_cast<int>(monitor.index));
    }
    m_clipboardSharing = newControl<QCheckBox>(
        "clipboardSharingCheck",
        tr("Synchronise clipboard content between the local and remote machines."),
        tr("Enable clipboard sharing"));
    form->addRow(tr("Language:"), m_language);
    form->addRow(tr("Display mode:"), m_displayMode);
    form->addRow(tr("Capture monitor:"), m_monitor);
    form->addRow(m_clipboardSharing);
    return page;
}

QWidget* SettingsDialog::createNetworkPage() {
    auto* const page = new QWidget;
    auto* const form = new QFormLayout(page);
    m_autoReconnect = newControl<QCheckBox>(
        "autoReconnectCheck",
        tr("Automatically attempt to re-establish the connection after an unexpected disconnect."),
        tr("Auto-reconnect on disconnect"));
    m_reconnectAttempts = newControl<QSpinBox>(
        "reconnectAttemptsSpin",
        tr("Maximum number of consecutive reconnection attempts before giving up."));
    m_reconnectAttempts->setRange(1, 30);
    connect(m_autoReconnect, &QCheckBox::toggled, m_reconnectAttempts, &QWidget::setEnabled);
    form->addRow(m_autoReconnect);
    form->addRow(tr("Max reconnect attempts:"), m_reconnectAttempts);
    return page;
}

QWidget* SettingsDialog::createAdvancedPage() {
    auto* const page = new QWidget;
    auto* const form = new QFormLayout(page);
    m_startAtLogon =
        newControl<QCheckBox>("startAtLogonCheck", m_integration->startAtLogonToolTip(),
                              m_integration->startAtLogonText());
    m_service = newControl<QCheckBox>(
        "serviceCheck",
        tr("Install CorvaneService.exe as a Windows service that runs at boot,\n"
           "even when no user is logged in. Requires administrator privileges."),
        tr("Run as Windows Service (unattended)"));
    m_minimizeToTray = newControl<QCheckBox>(
        "minimizeToTrayCheck",
        tr("Keep the application running in the system tray when the window is closed."),
        tr("Minimize to tray on close"));
    form->addRow(m_startAtLogon);
    form->addRow(m_service);
    form->addRow(m_minimizeToTray);
    form->setRowVisible(m_service, m_integration->hasService());
    return page;
}

QWidget* SettingsDialog::createButtons() {
    auto* const box = new QDialogButtonBox;
    const auto add = [box](QDialogButtonBox::StandardButton kind, const char* objectName,
                           const QString& text) {
        QPushButton* const button = box->addButton(kind);
        button->setObjectName(QLatin1String(objectName));
        button->setText(text);
        return button;
    };
    m_ok = add(QDialogButtonBox::Ok, "okButton", tr("OK"));
    m_cancel = add(QDialogButtonBox::Cancel, "cancelButton", tr("Cancel"));
    m_apply = add(QDialogButtonBox::Apply, "applyButton", tr("Apply"));
    connect(m_ok, &QPushButton::clicked, this, [this] {
        m_closesWhenApplied = true;
        applySettings();
    });
    connect(m_cancel, &QPushButton::clicked, this, &SettingsDialog::reject);
    connect(m_apply, &QPushButton::clicked, this, &SettingsDialog::applySettings);
    return box;
}

void SettingsDialog::load() {
    const int language = m_language->findData(m_settings->language(), Qt::UserRole,
                                              Qt::MatchFixedString); // ignores case
    select(m_language, language, 0);
    select(m_displayMode, m_displayMode->findData(m_settings->displayMode()),
           m_displayMode->findData(kSpeedMode));
    select(m_monitor, m_monitor->findData(m_settings->monitorIndex()), 0);
    m_clipboardSharing->setChecked(m_settings->clipboardSharing());
    m_autoReconnect->setChecked(m_settings->autoReconnect());
    const int attempts = m_settings->maxReconnectAttempts();
    const bool inRange =
        attempts >= m_reconnectAttempts->minimum() && attempts <= m_reconnectAttempts->maximum();
    m_reconnectAttempts->setValue(inRange ? attempts
                                          : SettingsController::kDefaultMaxReconnectAttempts);
    m_reconnectAttempts->setEnabled(m_autoReconnect->isChecked());
    m_minimizeToTray->setChecked(m_settings->minimizeToTray());
}

void SettingsDialog::loadIntegration() {
    const auto fillIn = [this](QCheckBox* box, const QFuture<bool>& answer) {
        ++m_unansweredQueries;
        box->setEnabled(false);
        await(answer, [this, box](bool yes) {
            --m_unansweredQueries;
            box->setChecked(yes);
            box->setEnabled(true);
            showProgress();
        });
    };
    fillIn(m_startAtLogon, m_integration->startsAtLogon());
    fillIn(m_service, m_integration->isServiceInstalled());
    showProgress();
}

void SettingsDialog::applySettings() {
    if (m_applying || m_unansweredQueries > 0) {
        return;
    }
    m_applying = true;
    m_focusBeforeApplying = focusWidget();
    showProgress();
    const QString language = m_language->currentData().toString();
    if (language.compare(m_settings->language(), Qt::CaseInsensitive) == 0) {
        storeAndIntegrate();
        return;
    }
    m_settings->setLanguage(language);
    m_boxes->inform(tr("Language Changed"),
                    tr("Please restart the application to apply the new language."),
                    [this] { storeAndIntegrate(); });
}

void SettingsDialog::storeAndIntegrate() {
    m_settings->setDisplayMode(m_displayMode->currentData().toInt());
    m_settings->setClipboardSharing(m_clipboardSharing->isChecked());
    m_settings->setMonitorIndex(m_monitor->currentData().toInt());
    m_settings->setAutoReconnect(m_autoReconnect->isChecked());
    m_settings->setMaxReconnectAttempts(m_reconnectAttempts->value());
    await(m_integration->apply(
              {.startAtLogon = m_startAtLogon->isChecked(), .runService = m_service->isChecked()}),
          [this](bool permitted) { onIntegrationApplied(permitted); });
}

void SettingsDialog::onIntegrationApplied(bool permitted) {
    const bool serviceTakesOver = permitted && m_service->isChecked();
    if (serviceTakesOver) {
        // Unlike `quit`, this asks no window: the main one would refuse and hide in the tray.
        QMetaObject::invokeMethod(
            qApp, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
    } else {
        m_settings->setMinimizeToTray(m_minimizeToTray->isChecked());
    }
    if (!permitted) {
        QCheckBox* const refused = m_integration->hasService() ? m_service : m_startAtLogon;
        refused->toggle();
    }
    m_applying = false;
    showProgress();
    if (m_focusBeforeApplying != nullptr) {
        m_focusBeforeApplying->setFocus();
    }
    if (!serviceTakesOver) {
        Q_EMIT settingsChanged();
    }
    if (std::exchange(m_closesWhenApplied, false)) {
        accept();
    }
}

void SettingsDialog::reject() {
    if (!m_applying) {
        QDialog::reject();
    }
}

void SettingsDialog::showProgress() {
    const bool loading = m_unansweredQueries > 0;
    m_tabs->setEnabled(!m_applying);
    m_ok->setEnabled(!m_applying && !loading);
    m_apply->setEnabled(!m_applying && !loading);
    m_cancel->setEnabled(!m_applying);
    if (m_applying) {
        m_progress->setText(tr("Applying..."));
    } else {
        m_progress->setText(loading ? tr("Asking the system...") : QString());
    }
    if (m_applying || loading) {
        setCursor(Qt::BusyCursor);
    } else {
        unsetCursor();
    }
}

void SettingsDialog::await(const QFuture<bool>& answer, std::function<void(bool)> answered) {
    if (answer.isFinished()) {
        answered(isYes(answer));
        return;
    }
    auto* const watcher = new QFutureWatcher<bool>(this);
    connect(watcher, &QFutureWatcherBase::finished, this,
            [watcher, answered = std::move(answered)] {
                watcher->deleteLater();
                answered(isYes(watcher->future()));
            });
    watcher->setFuture(answer);
}

} // namespace corvane
