#pragma once

#include "harness/IHost.h"

#include <QProcessEnvironment>

namespace corvane::harness {

/// A user whose home and XDG folders are in a separate folder.
class LinuxHost : public IHost {
public:
    LinuxHost(const QString& home, const QString& display);

    void prepare(QProcess& process, Program program, const QStringList& arguments) const override;
    void requestEnd(QProcess& process) const override;
    void presetSetting(const QString& key, const QString& value) override;
    QString setting(const QString& key) const override;
    QString logPath() const override;

private:
    QString settingsPath() const;

    const QString m_home;
    QProcessEnvironment m_environment;
};

} // namespace corvane::harness
