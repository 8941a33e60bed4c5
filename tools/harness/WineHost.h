#pragma once

#include "harness/IHost.h"

#include <QProcessEnvironment>

namespace corvane::harness {

/// A Windows user: the packaged program of the Windows build under Wine, in a prefix of its own.
class WineHost : public IHost {
public:
    /// `package` is the folder that contains the program.
    WineHost(const QString& home, const QString& display, const QString& package = packageFolder());

    /// Ends everything running in the prefix.
    ~WineHost() override;

    /// Why no Windows program can run here; empty when one can.
    static QString obstacle();

    /// The package of the Windows build that belongs to this one; empty when there is none.
    static QString packageFolder();

    void prepare(QProcess& process, Program program, const QStringList& arguments) const override;
    void requestEnd(QProcess& process) const override;
    void presetSetting(const QString& key, const QString& value) override;
    QString setting(const QString& key) const override;
    QString logPath() const override;

private:
    QByteArray run(const QString& program, const QStringList& arguments) const;

    const QString m_prefix;
    const QString m_package;
    QProcessEnvironment m_environment;
};

} // namespace corvane::harness
