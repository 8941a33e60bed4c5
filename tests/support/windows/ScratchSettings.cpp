#include "ScratchSettings.h"

#include <QString>
#include <QUuid>

#include <windows.h>

namespace corvane::test {

struct ScratchSettings::Place {
    std::wstring path = (QStringLiteral("Software\\CorvaneTest\\") +
                         QUuid::createUuid().toString(QUuid::WithoutBraces))
                            .toStdWString();
    HKEY key = nullptr;
};

ScratchSettings::ScratchSettings() : m_place(std::make_unique<Place>()) {
    RegCreateKeyExW(HKEY_CURRENT_USER, m_place->path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                    KEY_ALL_ACCESS, nullptr, &m_place->key, nullptr);
    RegOverridePredefKey(HKEY_CURRENT_USER, m_place->key);
}

ScratchSettings::~ScratchSettings() {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegCloseKey(m_place->key);
    RegDeleteTreeW(HKEY_CURRENT_USER, m_place->path.c_str());
}

} // namespace corvane::test
