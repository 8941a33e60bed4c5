#pragma once

#include <QString>

#include <cstdint>

namespace corvane {

/// How the way out of a device's network translates addresses. The numbers are those that a session
/// negotiates by; one from elsewhere may lie outside the enumeration.
enum class NatType : int32_t {
    Unknown = 0,
    Open = 1,           ///< not at all
    PortRestricted = 2, ///< in the same way for every destination
    Symmetric = 3,      ///< in another way for each destination
};

/// The name that the server and the log know it by.
QString natTypeName(NatType type);

} // namespace corvane
