#pragma once

#include "x11/X11Connection.h"

#include <QSocketNotifier>
#include <QString>

#include <memory>
#include <optional>

namespace corvane::harness {

/// Another program on an X display, as far as the clipboard is concerned: copies text and reads
/// what others have copied. A text must fit in one X request (256 KiB). Needs the event loop to
/// answer the others.
class XClipboard {
public:
    explicit XClipboard(const QString& display);
    ~XClipboard();

    /// Puts `text` on the clipboard and serves it until another program replaces it.
    void copy(const QString& text);

    /// Empties the clipboard, whoever filled it.
    void clear();

    /// The text on the clipboard; no value when there is none or its owner does not answer in time.
    std::optional<QString> text();

private:
    bool isConnected() const;
    xcb_atom_t intern(const char* name) const;
    void handleEvents();
    void answer(const xcb_selection_request_event_t& request);
    /// Stores what was requested in the requestor's property. False when it is not available.
    bool provide(const xcb_selection_request_event_t& request, xcb_atom_t property) const;
    std::optional<QString> readProperty(xcb_atom_t property) const;

    const std::unique_ptr<X11Connection> m_connection; ///< null where there is no server
    std::unique_ptr<QSocketNotifier> m_notifier;
    xcb_window_t m_window = XCB_WINDOW_NONE;
    xcb_atom_t m_clipboard = XCB_ATOM_NONE;
    xcb_atom_t m_targets = XCB_ATOM_NONE;
    xcb_atom_t m_utf8 = XCB_ATOM_NONE;
    xcb_atom_t m_received = XCB_ATOM_NONE; ///< our property in which others' texts arrive
    QString m_copied;
    std::optional<xcb_atom_t> m_answer; ///< the property that holds the awaited text, or none
};

} // namespace corvane::harness
