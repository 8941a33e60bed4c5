#pragma once

#include "compare/ISystem.h"
#include "compare/Line.h"
#include "harness/XDisplay.h"
#include "xvfb/XvfbServer.h"

#include <QProcess>
#include <QSize>
#include <QTemporaryDir>

namespace corvane::compare {

/// TigerVNC as Debian packages it, with its own defaults but no password.
class TigerVnc : public ISystem {
public:
    TigerVnc(const Line& line, QSize screen);
    ~TigerVnc() override;

    /// What is not installed; empty when everything is.
    static QString obstacle();

    bool start() override;
    QString error() const override { return m_error; }
    QString sharedDisplay() const override { return m_sharedScreen.display(); }
    QString viewerDisplay() const override { return m_viewerScreen.display(); }
    QRect onViewer(const QRect& area) override { return area; }
    qint64 sharingProcess() const override { return m_server.processId(); }
    qint64 viewingProcess() const override { return m_viewer.processId(); }
    bool startUpload(qint64) override { return false; }

private:
    void run(QProcess& process, const test::NetworkPlace& place, const QString& program,
             const QStringList& arguments);

    const Line& m_line;
    const QSize m_size;
    test::XvfbServer m_sharedScreen;
    test::XvfbServer m_viewerScreen;
    QTemporaryDir m_home;
    QProcess m_server;
    QProcess m_viewer;
    QString m_error;
};

} // namespace corvane::compare
