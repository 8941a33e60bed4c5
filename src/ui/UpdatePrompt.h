#pragma once

#include <QObject>
#include <QString>

namespace corvane {

class MessageBoxes;
class UpdateBanner;

/// Offers a newer version in the banner and follows it up to its installer.
class UpdatePrompt : public QObject {
    Q_OBJECT

public:
    /// Banner and boxes are borrowed.
    UpdatePrompt(UpdateBanner* banner, MessageBoxes* boxes, QObject* parent = nullptr);

    void announce(const QString& version, const QString& downloadUrl);
    void showProgress(int percent);
    void showError(const QString& error);

    /// Starts the installer on its own. It waits for the end of the program.
    void launchInstaller(const QString& installerPath);

Q_SIGNALS:
    /// The user wants the version that was announced.
    void downloadRequested(QString downloadUrl);
    void installerStarted();

private:
    UpdateBanner* const m_banner;
    MessageBoxes* const m_boxes;
};

} // namespace corvane
