#pragma once

#include <QObject>
#include <QString>

namespace corvane {

class MessageBoxes;
class UpdateBanner;

/// Offers a newer version in the banner and sees the update through to its installer.
class UpdatePrompt : public QObject {
    Q_OBJECT

public:
    /// Banner and boxes are borrowed.
    UpdatePrompt(UpdateBanner* banner, MessageBoxes* boxes, QObject* parent = nullptr);

    void announce(const QString& version, const QString& downloadUrl);
    void showProgress(int percent);
    void showError(const QString& error);

    /// Starts the installer as a separate process, which waits for the program to end.
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
