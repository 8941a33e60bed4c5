#pragma once

#include <QSettings>
#include <QTemporaryDir>

namespace corvane::test {

/// While it lives, native settings of the user are kept in an empty place of their own. One
/// implementation per platform.
class ScratchSettings {
public:
    ScratchSettings() {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
    }

private:
    QTemporaryDir m_folder;
};

} // namespace corvane::test
