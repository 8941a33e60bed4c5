#pragma once

#include <QString>

namespace corvane {

/// A value that stays the same when the program is installed anew, and reveals nothing about the
/// machine.
class MachineFingerprint {
public:
    /// This machine's fingerprint, 64 lowercase hexadecimal digits; empty, with a warning in the
    /// log, when the machine has no readable identity.
    static QString generate();

    /// The fingerprint of the machine identity `guid`; empty for an empty one.
    static QString of(const QString& guid);
};

} // namespace corvane
