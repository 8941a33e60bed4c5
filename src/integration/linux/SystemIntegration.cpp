#include "integration/ISystemIntegration.h"

#include "integration/Autostart.h"
#include "integration/linux/AutostartEntry.h"

#include <QCoreApplication>
#include <QFile>
#include <spdlog/spdlog.h>

namespace corvane {

namespace {

QFuture<bool> answer(bool value) {
    return QtFuture::makeReadyFuture(value);
}

/// Keeps an autostart entry in the user's own folder, which takes no time and no permission.
class DesktopIntegration : public ISystemIntegration {
public:
    QString startAtLogonText() const override {
        return QCoreApplication::translate("corvane::SettingsDialog", "Start at login");
    }
    QString startAtLogonToolTip() const override {
        return QCoreApplication::translate("corvane::SettingsDialog",
                                           "Automatically start Corvane when you log in.");
    }

    bool hasService() const override { return false; }
    QFuture<bool> isServiceInstalled() override { return answer(false); }

    QFuture<bool> startsAtLogon() override { return answer(QFile::exists(autostartEntryPath())); }

    QFuture<bool> apply(const IntegrationChoice& choice) override {
        const bool done = choice.startAtLogon
                              ? installAutostart()
                              : uninstallAutostart() || !QFile::exists(autostartEntryPath());
        if (!done) {
            spdlog::warn("DesktopIntegration: cannot change {}",
                         autostartEntryPath().toStdString());
        }
        return answer(done);
    }
};

} // namespace

std::unique_ptr<ISystemIntegration> createSystemIntegration() {
    return std::make_unique<DesktopIntegration>();
}

} // namespace corvane
