#pragma once

#include <QString>

#include <cstdint>

namespace corvane {

/// How the router in front of a device maps its addresses. The numbers are those that two peers
/// exchange; a received one may lie outside the enumeration.
enum class NatType : int32_t {
    Unknown = 0,
    Open = 1,           ///< no translation
    PortRestricted = 2, ///< one mapping for all destinations
    Symmetric = 3,      ///< a new mapping for each destination
};

/// Its name in requests to the server and in the log.
QString natTypeName(NatType type);

} // namespace corvane
