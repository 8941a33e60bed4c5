#include "ScratchSettings.h"

#include <QSettings>
#include <QTemporaryDir>

namespace corvane::test {

struct ScratchSettings::Place {
    QTemporaryDir folder;
};

ScratchSettings::ScratchSettings() : m_place(std::make_unique<Place>()) {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_place->folder.path());
}

ScratchSettings::~ScratchSettings() = default;

} // namespace corvane::test
