#include "media/linux/ScreenImage.h"

#include "x11/X11Connection.h"
#include "x11/XcbReply.h"

#include <sys/ipc.h>
#include <sys/shm.h>

#include <cstring>

namespace corvane {

namespace {
constexpr size_t kBytesPerPixel = 4;
constexpr uint32_t kAllPlanes = ~0U;
constexpr int kOwnerOnly = 0600;
} // namespace

ScreenImage::ScreenImage(const X11Connection& connection, int width, int height)
    : m_connection(connection), m_width(width), m_height(height),
      m_stride(static_cast<size_t>(width) * kBytesPerPixel) {
    const size_t size = m_stride * static_cast<size_t>(height);
    if (!attachSegment(size)) {
        m_copy.resize(size);
        m_pixels = m_copy.data();
    }
}

ScreenImage::~ScreenImage() {
    if (isShared()) {
        xcb_shm_detach(m_connection.handle(), m_segment);
        shmdt(m_pixels);
    }
}

bool ScreenImage::attachSegment(size_t size) {
    if (!m_connection.hasExtension(xcb_shm_id)) {
        return false;
    }
    const int id = shmget(IPC_PRIVATE, size, IPC_CREAT | kOwnerOnly);
    if (id < 0) {
        return false;
    }
    void* const address = shmat(id, nullptr, 0);
    bool attached = false;
    const xcb_shm_seg_t segment = xcb_generate_id(m_connection.handle());
    if (address != reinterpret_cast<void*>(-1)) {
        constexpr uint8_t kWritable = 0;
        const XcbReply<xcb_generic_error_t> error(xcb_request_check(
            m_connection.handle(), xcb_shm_attach_checked(m_connection.handle(), segment,
                                                          static_cast<uint32_t>(id), kWritable)));
        attached = !error && m_connection.isAlive();
        if (!attached) {
            shmdt(address);
        }
    }
    // Marked for removal now, the segment disappears with its last user, however that one ends.
    shmctl(id, IPC_RMID, nullptr);
    if (attached) {
        m_segment = segment;
        m_pixels = static_cast<uint8_t*>(address);
    }
    return attached;
}

bool ScreenImage::refresh(int x, int y, int firstRow, int endRow) {
    const int rows = endRow - firstRow;
    const size_t offset = static_cast<size_t>(firstRow) * m_stride;
    return isShared() ? readShared(x, y + firstRow, rows, offset)
                      : readCopied(x, y + firstRow, rows, offset);
}

bool ScreenImage::readShared(int x, int y, int rows, size_t offset) {
    xcb_generic_error_t* error = nullptr;
    const auto cookie = xcb_shm_get_image(
        m_connection.handle(), m_connection.root(), static_cast<int16_t>(x),
        static_cast<int16_t>(y), static_cast<uint16_t>(m_width), static_cast<uint16_t>(rows),
        kAllPlanes, XCB_IMAGE_FORMAT_Z_PIXMAP, m_segment, static_cast<uint32_t>(offset));
    const XcbReply<xcb_shm_get_image_reply_t> reply(
        xcb_shm_get_image_reply(m_connection.handle(), cookie, &error));
    const XcbReply<xcb_generic_error_t> ownedError(error);
    return reply != nullptr;
}

bool ScreenImage::readCopied(int x, int y, int rows, size_t offset) {
    xcb_generic_error_t* error = nullptr;
    const auto cookie =
        xcb_get_image(m_connection.handle(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_connection.root(),
                      static_cast<int16_t>(x), static_cast<int16_t>(y),
                      static_cast<uint16_t>(m_width), static_cast<uint16_t>(rows), kAllPlanes);
    const XcbReply<xcb_get_image_reply_t> reply(
        xcb_get_image_reply(m_connection.handle(), cookie, &error));
    const XcbReply<xcb_generic_error_t> ownedError(error);
    const size_t size = static_cast<size_t>(rows) * m_stride;
    if (!reply || static_cast<size_t>(xcb_get_image_data_length(reply.get())) < size) {
        return false;
    }
    std::memcpy(m_pixels + offset, xcb_get_image_data(reply.get()), size);
    return true;
}

} // namespace corvane
