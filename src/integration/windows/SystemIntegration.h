#pragma once

#include "integration/ISystemIntegration.h"
#include "integration/windows/ElevatedCommand.h"
#include "integration/windows/LogonTask.h"

namespace corvane {

/// Runs a program as `RunProgram` says, for 3 s at most; negative when it took longer.
int runBriefly(const QString& program, const QStringList& arguments);

/// The scheduler's log-on task and the companion service, both changed by one command that asks
/// the user for the administrator's permission. Everything runs on threads of its own, which also
/// call the functions that are handed in.
class SystemIntegration : public ISystemIntegration {
public:
    explicit SystemIntegration(RunProgram query = &runBriefly, ElevationFunctions elevation = {})
        : m_query(query), m_elevation(std::move(elevation)) {}

    QString startAtLogonText() const override;
    QString startAtLogonToolTip() const override;
    bool hasService() const override { return true; }
    QFuture<bool> startsAtLogon() override;
    QFuture<bool> isServiceInstalled() override;
    QFuture<bool> apply(const IntegrationChoice& choice) override;

private:
    const RunProgram m_query;
    const ElevationFunctions m_elevation;
};

} // namespace corvane
