#pragma once

#include <QCoreApplication>
#include <QString>

namespace corvane {

/// What a session password must look like when a user chooses it.
class PasswordPolicy {
    Q_DECLARE_TR_FUNCTIONS(PasswordPolicy)

public:
    /// The first rule that `password` breaks, as a translated sentence; empty when it breaks none.
    static QString firstViolation(const QString& password);
};

} // namespace corvane
