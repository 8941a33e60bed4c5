#pragma once

#include <QUuid>

#include <windows.h>

namespace corvane::test {

/// While it lives, native settings of the user are kept in an empty place of their own. One
/// implementation per platform.
class ScratchSettings {
public:
    ScratchSettings() {
        RegCreateKeyExW(HKEY_CURRENT_USER, m_path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                        KEY_ALL_ACCESS, nullptr, &m_key, nullptr);
        RegOverridePredefKey(HKEY_CURRENT_USER, m_key);
    }
    ~ScratchSettings() {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegCloseKey(m_key);
        RegDeleteTreeW(HKEY_CURRENT_USER, m_path.c_str());
    }
    ScratchSettings(const ScratchSettings&) = delete;
    ScratchSettings& operator=(const ScratchSettings&) = delete;

private:
    const std::wstring m_path =
        L"Software\\CorvaneTest\\" + QUuid::createUuid().toString().toStdWString();
    HKEY m_key = nullptr;
};

} // namespace corvane::test
