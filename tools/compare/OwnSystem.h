#pragma once

#include "compare/ISystem.h"
#include "compare/Line.h"
#include "harness/DisplayUser.h"
#include "harness/FileManager.h"
#include "harness/LiveSession.h"

#include <QSize>

#include <memory>

namespace corvane::compare {

/// Two of our clients and the development server.
class OwnSystem : public ISystem {
public:
    enum class Way { Direct, Relay };

    OwnSystem(const Line& line, QSize screen, Way way, int displayMode);

    bool start() override;
    QString error() const override { return m_error; }
    QString sharedDisplay() const override { return m_session.targetDisplay().name(); }
    QString viewerDisplay() const override { return m_session.viewerDisplay().name(); }
    QRect onViewer(const QRect& area) override { return m_session.onViewer(area); }
    qint64 sharingProcess() const override { return m_session.target().processId(); }
    qint64 viewingProcess() const override { return m_session.viewer().processId(); }
    bool startUpload(qint64 bytes) override;

private:
    bool fail(const QString& error);
    bool fillScreen();

    const Way m_way;
    mutable harness::LiveSession m_session;
    std::unique_ptr<harness::DisplayUser> m_user;
    std::unique_ptr<harness::FileManager> m_files;
    QString m_error;
};

} // namespace corvane::compare
