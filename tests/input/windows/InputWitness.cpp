#include "InputWitness.h"

#include <QTest>

#include <windowsx.h>

namespace corvane::test {

namespace {

constexpr char kClassName[] = "CorvaneInputWitness";

QString hex(WPARAM value) {
    return QString::number(value, 16).toUpper();
}

} // namespace

InputWitness::InputWitness() {
    WNDCLASSA type = {};
    type.lpfnWndProc = dispatch;
    type.hInstance = GetModuleHandleA(nullptr);
    type.lpszClassName = kClassName;
    RegisterClassA(&type);
    m_window = CreateWindowExA(WS_EX_TOPMOST, kClassName, "", WS_POPUP | WS_VISIBLE, 0, 0,
                               GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN),
                               nullptr, nullptr, type.hInstance, nullptr);
    SetWindowLongPtrA(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetForegroundWindow(m_window);
    SetFocus(m_window);
}

InputWitness::~InputWitness() {
    DestroyWindow(m_window);
    UnregisterClassA(kClassName, GetModuleHandleA(nullptr));
}

bool InputWitness::hasFocus() const {
    return GetForegroundWindow() == m_window && GetFocus() == m_window;
}

QStringList InputWitness::takeUntil(const QString& line) {
    const bool arrived = QTest::qWaitFor([&] { return m_lines.contains(line); });
    const QStringList taken = std::exchange(m_lines, {});
    if (!arrived) {
        qWarning("%s missing in: %s", qPrintable(line), qPrintable(taken.join(u"; ")));
        return {};
    }
    return taken;
}

LRESULT CALLBACK InputWitness::dispatch(HWND window, UINT message, WPARAM word, LPARAM data) {
    auto* self = reinterpret_cast<InputWitness*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (self != nullptr && self->note(message, word, data)) {
        return 0;
    }
    return DefWindowProcA(window, message, word, data);
}

bool InputWitness::note(UINT message, WPARAM word, LPARAM data) {
    switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYUP: {
        const bool down = message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
        m_lines.append(QStringLiteral("key %1 %2 %3")
                           .arg(down ? QStringLiteral("down") : QStringLiteral("up"), hex(word),
                                hex(static_cast<WPARAM>(data >> 16 & 0x1FF))));
        return true;
    }
    case WM_CHAR:
    case WM_SYSCHAR:
        m_lines.append(QStringLiteral("char %1").arg(hex(word)));
        return true;
    case WM_MOUSEWHEEL:
        m_lines.append(QStringLiteral("wheel %1").arg(GET_WHEEL_DELTA_WPARAM(word)));
        return true;
    default:
        return noteMouse(message, word, data);
    }
}

bool InputWitness::noteMouse(UINT message, WPARAM word, LPARAM data) {
    static const struct {
        UINT message;
        WORD xButton;
        const char* name;
    } kinds[] = {
        {WM_MOUSEMOVE, 0, "move"},         {WM_LBUTTONDOWN, 0, "left down"},
        {WM_LBUTTONUP, 0, "left up"},      {WM_RBUTTONDOWN, 0, "right down"},
        {WM_RBUTTONUP, 0, "right up"},     {WM_MBUTTONDOWN, 0, "middle down"},
        {WM_MBUTTONUP, 0, "middle up"},    {WM_XBUTTONDOWN, XBUTTON1, "x1 down"},
        {WM_XBUTTONUP, XBUTTON1, "x1 up"}, {WM_XBUTTONDOWN, XBUTTON2, "x2 down"},
        {WM_XBUTTONUP, XBUTTON2, "x2 up"},
    };
    for (const auto& kind : kinds) {
        if (kind.message == message && (kind.xButton == 0 || kind.xButton == HIWORD(word))) {
            m_lines.append(QStringLiteral("%1 %2,%3")
                               .arg(QString::fromLatin1(kind.name))
                               .arg(GET_X_LPARAM(data))
                               .arg(GET_Y_LPARAM(data)));
            return true;
        }
    }
    return false;
}

} // namespace corvane::test
