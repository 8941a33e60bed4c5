#pragma once

#include <QStringList>

#include <windows.h>

namespace corvane::test {

/// A window over the whole primary monitor that has the focus and writes down the input it gets.
class InputWitness {
public:
    InputWitness();
    ~InputWitness();
    InputWitness(const InputWitness&) = delete;
    InputWitness& operator=(const InputWitness&) = delete;

    bool hasFocus() const;

    /// Takes what has arrived once `line` has, or nothing when it does not come in time. Lines read
    /// "left down 10,20", "x2 up 10,20", "wheel -120", "move 10,20", "key down 25 14B" (virtual key
    /// and scan code in hexadecimal, the scan code with the extended bit 100), "char 61".
    QStringList takeUntil(const QString& line);

private:
    static LRESULT CALLBACK dispatch(HWND window, UINT message, WPARAM word, LPARAM data);
    bool note(UINT message, WPARAM word, LPARAM data);
    bool noteMouse(UINT message, WPARAM word, LPARAM data);

    HWND m_window = nullptr;
    QStringList m_lines;
};

} // namespace corvane::test
