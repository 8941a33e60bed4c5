#include "harness/DisplayUser.h"

#include "harness/WaitFor.h"

#include <QElapsedTimer>

namespace corvane::harness {

using namespace std::chrono_literals;

namespace {

constexpr auto kTimeout = 10s;
constexpr qint64 kStandsStillMs = 250;

/// A window that is not painted yet has a single colour.
bool isBlank(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, 0)) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

DisplayUser::DisplayUser(XDisplay& display) : m_display(display), m_clipboard(display.name()) {}

bool DisplayUser::sees(const QString& title) {
    return waitFor([&] { return m_display.findWindow(title).has_value(); }, kTimeout);
}

bool DisplayUser::seesNo(const QString& title) {
    return waitFor([&] { return !m_display.findWindow(title).has_value(); }, kTimeout);
}

bool DisplayUser::clickInto(const QString& title, QPoint place) {
    const auto click = [&] {
        if (const auto window = m_display.findWindow(title)) {
            const QPoint edge(place.x() < 0 ? window->right() : window->left(),
                              place.y() < 0 ? window->bottom() : window->top());
            m_display.click(edge + place);
        }
    };
    return sees(title) && achieve(click, [&] { return hasKeyboard(title); });
}

bool DisplayUser::openByKey(const QString& title, xcb_keysym_t key,
                            const std::vector<xcb_keysym_t>& held) {
    return achieve([&] { m_display.pressKey(key, held); }, [&] { return hasKeyboard(title); });
}

bool DisplayUser::escape(const QString& title) {
    return achieve([&] { m_display.pressKey(kKeyEscape); },
                   [&] { return !m_display.findWindow(title).has_value(); });
}

bool DisplayUser::hasKeyboard(const QString& title) const {
    return m_display.keyboardWindow().startsWith(title);
}

QString DisplayUser::copied() {
    constexpr int kAttempts = 3;
    QString text;
    m_clipboard.clear();
    for (int attempt = 0; attempt < kAttempts && text.isEmpty(); ++attempt) {
        m_display.pressKey('c', {kKeyControl});
        waitFor(
            [&] {
                text = m_clipboard.text().value_or(QString());
                return !text.isEmpty();
            },
            1s);
    }
    return text;
}

QImage DisplayUser::look(const QString& title) {
    QImage seen;
    QElapsedTimer still;
    waitFor(
        [&] {
            const auto window = m_display.findWindow(title);
            const QImage now = window ? m_display.grab(*window) : QImage();
            if (now != seen || isBlank(now)) {
                seen = now;
                still.start();
            }
            return still.isValid() && still.elapsed() >= kStandsStillMs;
        },
        kTimeout);
    return seen;
}

} // namespace corvane::harness
