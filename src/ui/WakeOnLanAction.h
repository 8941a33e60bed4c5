#pragma once

#include <QObject>
#include <QString>

namespace corvane {

class MessageBoxes;
class SettingsController;

/// Wakes a partner's machine at the user's request, asking for its address the first time.
class WakeOnLanAction : public QObject {
    Q_OBJECT

public:
    /// All are borrowed; dialogs open over `window`.
    WakeOnLanAction(SettingsController* settings, MessageBoxes* boxes, QWidget* window);

    /// `partner` is the bare ID as typed; whatever it is, the address is stored under it.
    void wake(const QString& partner);

private:
    void askForAddress(const QString& partner, const QString& suggestion);
    void send(const QString& macAddress);

    SettingsController* const m_settings;
    MessageBoxes* const m_boxes;
    QWidget* const m_window;
};

} // namespace corvane
