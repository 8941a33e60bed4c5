#include "common/NatType.h"

namespace corvane {

QString natTypeName(NatType type) {
    switch (type) {
    case NatType::Open:
        return QStringLiteral("Open");
    case NatType::PortRestricted:
        return QStringLiteral("PortRestricted");
    case NatType::Symmetric:
        return QStringLiteral("SymmetricNAT");
    case NatType::Unknown:
        break;
    }
    return QStringLiteral("Unknown");
}

} // namespace corvane
