#include "app/SessionSettings.h"

#include "app/settings/SettingsController.h"
#include "session/SessionManager.h"

namespace corvane {

void applySessionSettings(SessionManager& session, const SettingsController& settings) {
    session.setCaptureFrameRate(settings.captureFrameRate());
    session.setEncoderQuality(settings.encoderQuality(), settings.encoderSpeed().toStdString());
    session.setClipboardSharing(settings.clipboardSharing());
    session.setMonitorIndex(settings.monitorIndex());
}

} // namespace corvane
