#pragma once

#include <QString>

namespace corvane {

/// A random session password for a machine whose user has chosen none: 6 lowercase letters and
/// digits, short enough to read out. It does not meet the policy for chosen passwords.
QString generateSessionPassword();

} // namespace corvane
