#include "harness/XClipboard.h"

#include "harness/WaitFor.h"
#include "x11/XcbEvent.h"

#include <array>
#include <cstring>

namespace corvane::harness {

using namespace std::chrono_literals;

namespace {

constexpr auto kAnswerTimeout = 3s;
constexpr uint32_t kMaxText = 65'536; // four-byte units

} // namespace

XClipboard::XClipboard(const QString& display)
    : m_connection(X11Connection::open(display.toLatin1().constData())) {
    if (!isConnected()) {
        return;
    }
    m_clipboard = intern("CLIPBOARD");
    m_targets = intern("TARGETS");
    m_utf8 = intern("UTF8_STRING");
    m_received = intern("CORVANE_RECEIVED");
    xcb_connection_t* const connection = m_connection->handle();
    m_window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, m_window, m_connection->root(), 0, 0, 1, 1,
                      0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_flush(connection);
    m_notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection),
                                                   QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this] { handleEvents(); });
}

XClipboard::~XClipboard() = default;

bool XClipboard::isConnected() const {
    return m_connection && m_connection->isAlive();
}

xcb_atom_t XClipboard::intern(const char* name) const {
    const auto length = static_cast<uint16_t>(std::strlen(name));
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        m_connection->handle(), xcb_intern_atom(m_connection->handle(), 0, length, name), nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

void XClipboard::copy(const QString& text) {
    if (!isConnected()) {
        return;
    }
    m_copied = text;
    xcb_set_selection_owner(m_connection->handle(), m_window, m_clipboard, XCB_CURRENT_TIME);
    xcb_flush(m_connection->handle());
}

void XClipboard::clear() {
    if (!isConnected()) {
        return;
    }
    xcb_set_selection_owner(m_connection->handle(), XCB_WINDOW_NONE, m_clipboard, XCB_CURRENT_TIME);
    xcb_flush(m_connection->handle());
}

std::optional<QString> XClipboard::text() {
    if (!isConnected()) {
        return std::nullopt;
    }
    m_answer.reset();
    xcb_convert_selection(m_connection->handle(), m_window, m_clipboard, m_utf8, m_received,
                          XCB_CURRENT_TIME);
    xcb_flush(m_connection->handle());
    waitFor(
        [this] {
            handleEvents();
            return m_answer.has_value();
        },
        kAnswerTimeout);
    const xcb_atom_t property = m_answer.value_or(XCB_ATOM_NONE);
    return property == XCB_ATOM_NONE ? std::nullopt : readProperty(property);
}

void XClipboard::handleEvents() {
    while (const XcbEvent event{xcb_poll_for_event(m_connection->handle())}) {
        const int type = eventType(*event);
        if (type == XCB_SELECTION_REQUEST) {
            answer(reinterpret_cast<const xcb_selection_request_event_t&>(*event));
        } else if (type == XCB_SELECTION_NOTIFY) {
            m_answer = reinterpret_cast<const xcb_selection_notify_event_t&>(*event).property;
        }
    }
    if (!isConnected() && m_notifier) {
        m_notifier->setEnabled(false); // it would report the broken connection forever
    }
}

void XClipboard::answer(const xcb_selection_request_event_t& request) {
    // Old programs name no property and mean the one named like the target.
    const xcb_atom_t property =
        request.property == XCB_ATOM_NONE ? request.target : request.property;
    xcb_selection_notify_event_t notice{};
    notice.response_type = XCB_SELECTION_NOTIFY;
    notice.time = request.time;
    notice.requestor = request.requestor;
    notice.selection = request.selection;
    notice.target = request.target;
    notice.property =
        provide(request, property) ? property : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    std::array<char, 32> wire{}; // every event has this size; this one's fields take less
    std::memcpy(wire.data(), &notice, sizeof notice);
    xcb_send_event(m_connection->handle(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                   wire.data());
    xcb_flush(m_connection->handle());
}

bool XClipboard::provide(const xcb_selection_request_event_t& request, xcb_atom_t property) const {
    xcb_connection_t* const connection = m_connection->handle();
    if (request.target == m_targets) {
        const std::array targets{m_targets, m_utf8};
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, request.requestor, property,
                            XCB_ATOM_ATOM, 32, targets.size(), targets.data());
        return true;
    }
    if (request.target == m_utf8) {
        const QByteArray text = m_copied.toUtf8();
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, request.requestor, property, m_utf8,
                            8, static_cast<uint32_t>(text.size()), text.constData());
        return true;
    }
    return false;
}

std::optional<QString> XClipboard::readProperty(xcb_atom_t property) const {
    constexpr uint8_t kDelete = 1;
    const XcbReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_connection->handle(),
        xcb_get_property(m_connection->handle(), kDelete, m_window, property, m_utf8, 0, kMaxText),
        nullptr));
    if (!reply || reply->type != m_utf8) {
        return std::nullopt;
    }
    return QString::fromUtf8(static_cast<const char*>(xcb_get_property_value(reply.get())),
                             xcb_get_property_value_length(reply.get()));
}

} // namespace corvane::harness
