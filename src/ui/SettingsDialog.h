#pragma once

#include "common/MonitorInfo.h"

#include <QDialog>
#include <QFuture>
#include <QPointer>

#include <functional>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;
class QTabWidget;

namespace corvane {

class ISystemIntegration;
class MessageBoxes;
class SettingsController;

/// Edits the stored settings and how the system starts the program automatically. Shows what is
/// stored when it is created; the boxes that depend on the system's answer stay disabled until it
/// arrives.
///
/// Object names: "settingsTabs" with "languageCombo", "displayModeCombo", "monitorCombo",
/// "clipboardSharingCheck", "autoReconnectCheck", "reconnectAttemptsSpin", "startAtLogonCheck",
/// "serviceCheck" and "minimizeToTrayCheck"; under it "progressLabel", "okButton", "cancelButton"
/// and "applyButton".
class SettingsDialog : public QDialog {
    Q_OBJECT

public:
    /// `settings` and `integration` are borrowed and must outlive the dialog. `monitors` are those
    /// that this machine can share, in the platform's order.
    SettingsDialog(SettingsController* settings, ISystemIntegration* integration,
                   const std::vector<MonitorInfo>& monitors, QWidget* parent = nullptr);

public Q_SLOTS:
    /// Stores the chosen settings, passes them on to the system and emits `settingsChanged`. Where
    /// it has to wait for the user or the system, it returns first and completes later; until then,
    /// and before the system's boxes are filled in, further calls do nothing.
    ///
    /// If the companion service has been asked to take over, the program quits instead, without
    /// `settingsChanged`.
    void applySettings();

    /// Does nothing while settings are being applied.
    void reject() override;

Q_SIGNALS:
    void settingsChanged();

private:
    QWidget* createDisplayPage(const std::vector<MonitorInfo>& monitors);
    QWidget* createNetworkPage();
    QWidget* createAdvancedPage();
    QWidget* createButtons();
    void load();
    void loadIntegration();
    void storeAndIntegrate();
    void onIntegrationApplied(bool permitted);
    void showProgress();
    void await(const QFuture<bool>& answer, std::function<void(bool)> answered);

    SettingsController* const m_settings;
    ISystemIntegration* const m_integration;
    MessageBoxes* m_boxes = nullptr;
    QTabWidget* m_tabs = nullptr;
    QComboBox* m_language = nullptr;
    QComboBox* m_displayMode = nullptr;
    QComboBox* m_monitor = nullptr;
    QCheckBox* m_clipboardSharing = nullptr;
    QCheckBox* m_autoReconnect = nullptr;
    QSpinBox* m_reconnectAttempts = nullptr;
    QCheckBox* m_startAtLogon = nullptr;
    QCheckBox* m_service = nullptr;
    QCheckBox* m_minimizeToTray = nullptr;
    QLabel* m_progress = nullptr;
    QPushButton* m_ok = nullptr;
    QPushButton* m_cancel = nullptr;
    QPushButton* m_apply = nullptr;
    QPointer<QWidget> m_focusBeforeApplying;
    int m_unansweredQueries = 0;
    bool m_applying = false;
    bool m_closesWhenApplied = false;
};

} // namespace corvane
