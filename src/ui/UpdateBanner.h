#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace corvane {

/// Strip that offers a newer version; hidden until one is announced.
class UpdateBanner : public QFrame {
    Q_OBJECT

public:
    explicit UpdateBanner(QWidget* parent = nullptr);

    /// Shows the offer. `version` and `downloadUrl` come from the server and are shown literally.
    void announce(const QString& version, const QString& downloadUrl);

    /// Shows the progress of the download in percent.
    void setProgress(int percent);

    /// Offers the download again after it has failed.
    void reset();

Q_SIGNALS:
    void downloadRequested(QString downloadUrl);

private:
    void startDownload();

    QString m_downloadUrl;
    QLabel* m_text = nullptr;
    QPushButton* m_button = nullptr;
};

} // namespace corvane
