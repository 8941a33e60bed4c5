#include "ui/UpdatePrompt.h"

#include "ui/MessageBoxes.h"
#include "ui/UpdateBanner.h"

#include <QProcess>
#include <spdlog/spdlog.h>

namespace corvane {

UpdatePrompt::UpdatePrompt(UpdateBanner* banner, MessageBoxes* boxes, QObject* parent)
    : QObject(parent), m_banner(banner), m_boxes(boxes) {
    connect(m_banner, &UpdateBanner::downloadRequested, this, &UpdatePrompt::downloadRequested);
}

void UpdatePrompt::announce(const QString& version, const QString& downloadUrl) {
    m_banner->announce(version, downloadUrl);
}

void UpdatePrompt::showProgress(int percent) {
    m_banner->setProgress(percent);
}

void UpdatePrompt::showError(const QString& error) {
    m_banner->reset();
    m_boxes->warn(tr("Update"), error);
}

void UpdatePrompt::launchInstaller(const QString& installerPath) {
    spdlog::info("Launching installer: {}", installerPath.toStdString());
    if (!QProcess::startDetached(
            installerPath, {QStringLiteral("/SILENT"), QStringLiteral("/SUPPRESSMSGBOXES")})) {
        spdlog::error("The installer could not be started");
        showError(tr("The installer could not be started."));
        return;
    }
    Q_EMIT installerStarted();
}

} // namespace corvane
