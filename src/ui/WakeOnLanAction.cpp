#include "ui/WakeOnLanAction.h"

#include "app/settings/SettingsController.h"
#include "ui/MessageBoxes.h"
#include "ui/WakeOnLan.h"

#include <QInputDialog>
#include <spdlog/spdlog.h>

namespace corvane {

WakeOnLanAction::WakeOnLanAction(SettingsController* settings, MessageBoxes* boxes, QWidget* window)
    : QObject(window), m_settings(settings), m_boxes(boxes), m_window(window) {}

void WakeOnLanAction::wake(const QString& partner) {
    const QString stored = m_settings->wakeOnLanAddress(partner);
    // A mistyped address stays stored, and is offered again for correction.
    if (stored.isEmpty() || !wakeOnLanPacket(stored)) {
        askForAddress(partner, stored);
    } else {
        send(stored);
    }
}

void WakeOnLanAction::askForAddress(const QString& partner, const QString& suggestion) {
    auto* const dialog = new QInputDialog(m_window);
    dialog->setObjectName(QStringLiteral("wakeOnLanDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Wake-on-LAN"));
    dialog->setLabelText(tr("Enter MAC address for this partner (XX:XX:XX:XX:XX:XX):"));
    dialog->setTextValue(suggestion);
    connect(dialog, &QInputDialog::textValueSelected, this, [this, partner](const QString& text) {
        if (!text.isEmpty()) {
            m_settings->setWakeOnLanAddress(partner, text);
            send(text);
        }
    });
    dialog->open();
}

void WakeOnLanAction::send(const QString& macAddress) {
    const auto packet = wakeOnLanPacket(macAddress);
    if (!packet) {
        m_boxes->warn(tr("WoL"), tr("Invalid MAC address."));
        return;
    }
    if (!broadcastWakeOnLan(*packet)) {
        spdlog::warn("WoL magic packet could not be sent to {}", macAddress.toStdString());
        m_boxes->warn(tr("WoL"), tr("The Wake-on-LAN packet could not be sent."));
        return;
    }
    spdlog::info("WoL magic packet sent to {}", macAddress.toStdString());
    m_boxes->inform(tr("WoL"), tr("Wake-on-LAN packet sent to %1").arg(macAddress));
}

} // namespace corvane
