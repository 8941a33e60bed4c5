#pragma once

#include "IHost.h"

#include <QProcessEnvironment>

namespace corvane::harness {

/// A user of Windows: the packaged program of the Windows build under Wine, in a prefix of its own.
class WineHost : public IHost {
public:
    WineHost(const QString& home, const QString& display);

    /// Ends everything that runs in the prefix.
    ~WineHost() override;

    /// Why no Windows program can run here; empty when one can.
    static QString obstacle();

    void prepare(QProcess& process, Program program, const QStringList& arguments) const override;
    void requestEnd(QProcess& process) const override;
    void presetSetting(const QString& key, const QString& value) override;
    QString setting(const QString& key) const override;
    QString logPath() const override;

private:
    QByteArray run(const QString& program, const QStringList& arguments) const;

    const QString m_prefix;
    QProcessEnvironment m_environment;
};

} // namespace corvane::harness
