#pragma once

#include "media/CaptureObstacle.h"

#include <QWidget>

class QLabel;
class QLayout;

namespace corvane {

class ConnectCard;
class DeviceCard;
class SettingsController;
class UpdateBanner;

/// Page shown while this side is not viewing a partner.
class HomePage : public QWidget {
    Q_OBJECT

public:
    explicit HomePage(SettingsController* settings, QWidget* parent = nullptr);

    DeviceCard* deviceCard() const { return m_deviceCard; }
    ConnectCard* connectCard() const { return m_connectCard; }
    UpdateBanner* updateBanner() const { return m_updateBanner; }
    void setPairingCode(const QString& code);
    /// Shows what the obstacle means for the user, or nothing where there is none.
    void setCaptureObstacle(CaptureObstacle obstacle);

Q_SIGNALS:
    void adminPanelRequested();
    void settingsRequested();
    /// The page's present contents need at least this height, in pixels.
    void minimumHeightChanged(int height);

protected:
    bool event(QEvent* event) override;

private:
    QLayout* createHeader();
    QLayout* createPairingRow();
    QLabel* createAdminLink();
    QLabel* createCaptureNotice();

    UpdateBanner* m_updateBanner = nullptr;
    QLabel* m_captureNotice = nullptr;
    DeviceCard* m_deviceCard = nullptr;
    ConnectCard* m_connectCard = nullptr;
    QLabel* m_pairingCode = nullptr;
};

} // namespace corvane
