#pragma once

#include "x11/X11Connection.h"

#include <QSocketNotifier>
#include <QString>

#include <memory>
#include <optional>

namespace corvane::harness {

/// Another program on an X display, as far as the clipboard goes: copies text and looks at what
/// others copied. Texts are bounded by one X request (256 KiB). Needs the event loop: others are
/// answered from it.
class XClipboard {
public:
    explicit XClipboard(const QString& display);
    ~XClipboard();

    /// Puts `text` on the clipboard and hands it out until another program puts something there.
    void copy(const QString& text);

    /// Takes everything off the clipboard, whoever put it there.
    void clear();

    /// The text on the clipboard; nothing where there is none or its owner does not answer in time.
    std::optional<QString> text();

private:
    bool isConnected() const;
    xcb_atom_t intern(const char* name) const;
    void handleEvents();
    void answer(const xcb_selection_request_event_t& request);
    /// Stores what was asked for in the requestor's property. False when it cannot be had.
    bool provide(const xcb_selection_request_event_t& request, xcb_atom_t property) const;
    std::optional<QString> readProperty(xcb_atom_t property) const;

    const std::unique_ptr<X11Connection> m_connection; ///< null where there is no server
    std::unique_ptr<QSocketNotifier> m_notifier;
    xcb_window_t m_window = XCB_WINDOW_NONE;
    xcb_atom_t m_clipboard = XCB_ATOM_NONE;
    xcb_atom_t m_targets = XCB_ATOM_NONE;
    xcb_atom_t m_utf8 = XCB_ATOM_NONE;
    xcb_atom_t m_received = XCB_ATOM_NONE; ///< our property that others' texts go to
    QString m_copied;
    std::optional<xcb_atom_t> m_answer; ///< the property that the awaited text is in, or none
};

} // namespace corvane::harness
