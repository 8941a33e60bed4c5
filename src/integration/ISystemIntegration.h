#pragma once

#include "integration/IntegrationChoice.h"

#include <QFuture>
#include <QString>

#include <memory>

namespace corvane {

/// How the system starts this program by itself: when the user logs on and, where there is one,
/// through the companion service. Main thread only; nothing here blocks, answers come as futures,
/// at once or from a thread of their own. Neither the object nor its user has to outlive them.
class ISystemIntegration {
public:
    virtual ~ISystemIntegration() = default;

    /// What the platform calls starting at log-on, and an explanation for a tool tip.
    virtual QString startAtLogonText() const = 0;
    virtual QString startAtLogonToolTip() const = 0;

    /// Whether the platform has a companion service at all.
    virtual bool hasService() const = 0;

    /// Also false when the system did not answer in time.
    virtual QFuture<bool> startsAtLogon() = 0;
    virtual QFuture<bool> isServiceInstalled() = 0;

    /// Applies the choice, even where nothing changes. False when the system or its user did not
    /// permit the attempt; the outcome of a permitted attempt is not checked.
    virtual QFuture<bool> apply(const IntegrationChoice& choice) = 0;
};

/// The platform's own.
std::unique_ptr<ISystemIntegration> createSystemIntegration();

} // namespace corvane
