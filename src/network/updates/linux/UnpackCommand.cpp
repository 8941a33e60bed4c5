#include "network/updates/UnpackCommand.h"

namespace corvane {

Command unpackCommand(const QString& archive, const QString& folder) {
    return {QStringLiteral("unzip"),
            {QStringLiteral("-o"), QStringLiteral("-qq"), archive, QStringLiteral("-d"), folder}};
}

} // namespace corvane
