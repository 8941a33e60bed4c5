#pragma once

#include <QTest>

#include <windows.h>
#include <windowsx.h>

namespace corvane::test {

/// A window over the whole primary monitor that has the focus and writes down the input it gets.
class InputWitness {
public:
    InputWitness() {
        m_type.lpfnWndProc = dispatch;
        m_type.hInstance = GetModuleHandleA(nullptr);
        m_type.lpszClassName = "CorvaneInputWitness";
        RegisterClassA(&m_type);
        m_window =
            CreateWindowExA(WS_EX_TOPMOST, m_type.lpszClassName, "", WS_POPUP | WS_VISIBLE, 0, 0,
                            GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), nullptr,
                            nullptr, m_type.hInstance, nullptr);
        SetWindowLongPtrA(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        SetForegroundWindow(m_window);
        SetFocus(m_window);
    }
    ~InputWitness() {
        DestroyWindow(m_window);
        UnregisterClassA(m_type.lpszClassName, m_type.hInstance);
    }
    InputWitness(const InputWitness&) = delete;
    InputWitness& operator=(const InputWitness&) = delete;

    bool hasFocus() const { return GetForegroundWindow() == m_window && GetFocus() == m_window; }

    /// Takes what has arrived once `line` has, or nothing when it does not come in time. Lines read
    /// "left down 10,20", "x2 up 10,20", "wheel -120", "move 10,20", "key down 25 14B" (virtual key
    /// and scan code in hexadecimal, the scan code with the extended bit 100), "char 61".
    QStringList takeUntil(const QString& line) {
        const bool arrived = QTest::qWaitFor([&] { return m_lines.contains(line); });
        const QStringList taken = std::exchange(m_lines, {});
        if (!arrived) {
            qWarning("%s missing in: %s", qPrintable(line), qPrintable(taken.join(u"; ")));
            return {};
        }
        return taken;
    }

private:
    static LRESULT CALLBACK dispatch(HWND window, UINT message, WPARAM word, LPARAM data) {
        auto* self = reinterpret_cast<InputWitness*>(GetWindowLongPtrA(window, GWLP_USERDATA));
        return self != nullptr && self->note(message, word, data)
                   ? 0
                   : DefWindowProcA(window, message, word, data);
    }

    bool note(UINT message, WPARAM word, LPARAM data) {
        using namespace Qt::StringLiterals;
        const auto hex = [](auto value) {
            return QString::number(value, 16).toUpper();
        };
        const QString key = hex(word) + u' ' + hex(data >> 16 & 0x1FF);
        const QString place =
            QString::number(GET_X_LPARAM(data)) + u',' + QString::number(GET_Y_LPARAM(data));
        const QString xButton = u'x' + QString::number(HIWORD(word));
        const QHash<UINT, QString> lines{
            {WM_KEYDOWN, u"key down "_s + key},
            {WM_SYSKEYDOWN, u"key down "_s + key},
            {WM_KEYUP, u"key up "_s + key},
            {WM_SYSKEYUP, u"key up "_s + key},
            {WM_CHAR, u"char "_s + hex(word)},
            {WM_SYSCHAR, u"char "_s + hex(word)},
            {WM_MOUSEWHEEL, u"wheel "_s + QString::number(GET_WHEEL_DELTA_WPARAM(word))},
            {WM_MOUSEMOVE, u"move "_s + place},
            {WM_LBUTTONDOWN, u"left down "_s + place},
            {WM_LBUTTONUP, u"left up "_s + place},
            {WM_RBUTTONDOWN, u"right down "_s + place},
            {WM_RBUTTONUP, u"right up "_s + place},
            {WM_MBUTTONDOWN, u"middle down "_s + place},
            {WM_MBUTTONUP, u"middle up "_s + place},
            {WM_XBUTTONDOWN, xButton + u" down "_s + place},
            {WM_XBUTTONUP, xButton + u" up "_s + place},
        };
        if (lines.contains(message)) {
            m_lines.append(lines[message]);
        }
        return lines.contains(message);
    }

    WNDCLASSA m_type = {};
    HWND m_window = nullptr;
    QStringList m_lines;
};

} // namespace corvane::test
