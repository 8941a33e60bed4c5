#include "network/identity/PasswordPolicy.h"

#include <QList>

#include <algorithm>

namespace corvane {

namespace {

constexpr qsizetype kMinLength = 8;

using CharacterClass = bool (*)(char32_t);

bool holdsAny(const QList<uint>& characters, CharacterClass isMember) {
    return std::any_of(characters.begin(), characters.end(), isMember);
}

} // namespace

QString PasswordPolicy::firstViolation(const QString& password) {
    const QList<uint> characters = password.toUcs4();
    if (characters.size() < kMinLength) {
        return tr("Password must be at least 8 characters.");
    }
    if (!holdsAny(characters, QChar::isLower)) {
        return tr("Password must contain at least one lowercase letter.");
    }
    if (!holdsAny(characters, QChar::isUpper)) {
        return tr("Password must contain at least one uppercase letter.");
    }
    if (!holdsAny(characters, QChar::isDigit)) {
        return tr("Password must contain at least one digit.");
    }
    return {};
}

} // namespace corvane
