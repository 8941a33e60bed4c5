#include "compare/Scene.h"

#include "common/MonotonicClock.h"

#include <cmath>

namespace corvane::compare {

namespace {

constexpr uint32_t kWhite = 0xffffff;
constexpr uint32_t kBlack = 0x000000;
constexpr uint32_t kPaper = 0xfafaf5;
constexpr uint32_t kInk = 0x202428;
constexpr uint32_t kTitle = 0x35557a;
constexpr uint32_t kTerminal = 0x101418;

constexpr int kLine = 16;
constexpr int kLetter = 6;
constexpr int kPageHeight = 2400;
constexpr Area kWindow{0, 0, 420, 280}; ///< that is dragged

/// The same words on every machine: pseudo-random, so that no line equals its neighbour.
std::string textLine(int number, int letters) {
    static const char* const kWords[] = {"the",   "screen", "shows", "what",  "happens", "there",
                                         "while", "a",      "key",   "press", "travels", "back",
                                         "and",   "every",  "frame", "is",    "drawn",   "again"};
    auto state = static_cast<uint32_t>(number) * 2654435761U + 12345U;
    std::string line = std::to_string(1000 + number % 9000);
    while (line.size() + 10 < static_cast<size_t>(letters)) {
        state = state * 1664525U + 1013904223U;
        line += std::string(" ") + kWords[(state >> 16) % std::size(kWords)];
    }
    line.resize(static_cast<size_t>(letters), ' ');
    return line;
}

xcb_window_t createWindow(X11Connection& connection) {
    const xcb_window_t window = xcb_generate_id(connection.handle());
    const uint32_t values[] = {1, XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_EXPOSURE};
    xcb_create_window(connection.handle(), XCB_COPY_FROM_PARENT, window, connection.root(), 0, 0,
                      connection.screen().width_in_pixels, connection.screen().height_in_pixels, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    xcb_map_window(connection.handle(), window);
    return window;
}

} // namespace

Scene::Scene(X11Connection& connection)
    : m_connection(connection), m_window(createWindow(connection)),
      m_screen(connection, connection.screen().width_in_pixels,
               connection.screen().height_in_pixels),
      m_desktop(connection, m_screen.width(), m_screen.height()),
      m_page(connection, m_screen.width() / 2, kPageHeight),
      m_dragged(connection, kWindow.width, kWindow.height) {
    drawDesktop();
    drawPage();
    begin(Work::Still);
}

void Scene::drawDesktop() {
    constexpr int kBand = 8;
    for (int y = 0; y < m_desktop.height(); y += kBand) {
        const auto shade = static_cast<uint32_t>(60 + y * 80 / m_desktop.height());
        m_desktop.fill({0, y, m_desktop.width(), kBand}, 0x300000U + (shade << 8) + shade + 0x20);
    }
    m_desktop.fill({0, m_desktop.height() - 32, m_desktop.width(), 32}, kTitle);
    for (int icon = 0; icon < 6; ++icon) {
        const int y = 240 + icon * 70;
        m_desktop.fill({30, y, 36, 36}, 0xd08020U + static_cast<uint32_t>(icon) * 0x2030U);
        m_desktop.write(24, y + 52, "Folder " + std::to_string(icon), kWhite, kInk);
    }
    const Area page = document();
    m_desktop.fill({page.x, page.y - 24, page.width, 24}, kTitle);
    m_desktop.write(page.x + 8, page.y - 8, "Document", kWhite, kTitle);
    m_desktop.fill(page, kPaper);
}

void Scene::drawPage() {
    m_page.fill({0, 0, m_page.width(), kPageHeight}, kPaper);
    for (int line = 0; line * kLine < kPageHeight; ++line) {
        if (line % 12 == 0) {
            m_page.fill({10, line * kLine + 2, 200, kLine - 2}, 0x80a0c0U);
        } else {
            m_page.write(10, (line + 1) * kLine - 4, textLine(line, m_page.width() / kLetter - 4),
                         kInk, kPaper);
        }
    }
    m_dragged.fill(kWindow, kPaper);
    m_dragged.fill({0, 0, kWindow.width, 24}, kTitle);
    m_dragged.write(8, 16, "Dragged", kWhite, kTitle);
    for (int line = 2; line * kLine + 8 < kWindow.height; ++line) {
        m_dragged.write(8, line * kLine + 8, textLine(500 + line, kWindow.width / kLetter - 3),
                        kInk, kPaper);
    }
}

Area Scene::document() const {
    const int left = m_screen.width() / 3;
    return {left, 90, m_screen.width() / 2, m_screen.height() - 170};
}

void Scene::begin(Work work) {
    m_work = work;
    m_step = 0;
    m_draggedAt = {};
    const uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(m_connection.handle(), m_window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    xcb_set_input_focus(m_connection.handle(), XCB_INPUT_FOCUS_POINTER_ROOT, m_window,
                        XCB_CURRENT_TIME);
    restore({0, 0, m_screen.width(), m_screen.height()});
    if (work == Work::Terminal) {
        m_screen.fill(document(), kTerminal);
    }
    m_screen.fill(layout::kKeyBlock, m_white ? kWhite : kBlack);
    drawClock();
    showAll();
}

int Scene::interval() const {
    switch (m_work) {
    case Work::Still:
        return -1;
    case Work::Type:
        return 100;
    case Work::Terminal:
        return 25;
    case Work::Clock:
        return 33;
    case Work::Scroll:
    case Work::Drag:
        break;
    }
    return 16;
}

void Scene::step() {
    ++m_step;
    switch (m_work) {
    case Work::Type:
        type();
        break;
    case Work::Scroll:
        scroll();
        break;
    case Work::Drag:
        drag();
        break;
    case Work::Terminal:
        printLine();
        break;
    case Work::Still:
    case Work::Clock:
        break;
    }
    drawClock();
    show(layout::kClock);
    xcb_flush(m_connection.handle());
}

void Scene::drawClock() {
    using namespace clock_pattern;
    const Cells cells = encode(monotonicMilliseconds());
    for (int cell = 0; cell < kColumns * kRows; ++cell) {
        m_screen.fill({layout::kClock.x + cell % kColumns * layout::kCell,
                       layout::kClock.y + cell / kColumns * layout::kCell, layout::kCell,
                       layout::kCell},
                      cells[static_cast<size_t>(cell)] ? kWhite : kBlack);
    }
}

void Scene::type() {
    const Area page = document();
    const int perLine = page.width / kLetter - 4;
    const std::string line = textLine(m_step / perLine, perLine);
    const int column = m_step % perLine;
    const Area letter{page.x + 10 + column * kLetter, page.y + 8 + m_step / perLine * kLine,
                      kLetter, kLine};
    m_screen.write(letter.x, letter.y + 12, line.substr(static_cast<size_t>(column), 1), kInk,
                   kPaper);
    show(letter);
}

void Scene::scroll() {
    constexpr int kPixels = 6;
    const Area page = document();
    const int top = m_step * kPixels % (kPageHeight - page.height);
    m_screen.copy(m_page, {0, top, page.width, page.height}, page.x, page.y);
    show(page);
}

void Scene::drag() {
    constexpr double kRadiansAStep = 0.03; // about 400 pixels a second
    const double angle = m_step * kRadiansAStep;
    const Area field{m_screen.width() / 3, 60, m_screen.width() * 2 / 3 - kWindow.width - 20,
                     m_screen.height() - kWindow.height - 100};
    const Area old = m_draggedAt;
    m_draggedAt = kWindow;
    m_draggedAt.x = field.x + static_cast<int>((1.0 + std::cos(angle)) / 2 * field.width);
    m_draggedAt.y = field.y + static_cast<int>((1.0 + std::sin(2 * angle)) / 2 * field.height);
    if (old.width > 0) {
        restore(old);
    }
    m_screen.copy(m_dragged, kWindow, m_draggedAt.x, m_draggedAt.y);
    if (old.width > 0) {
        show(old);
    }
    show(m_draggedAt);
}

void Scene::printLine() {
    const Area page = document();
    m_screen.copy(m_screen, {page.x, page.y + kLine, page.width, page.height - kLine}, page.x,
                  page.y);
    const int bottom = page.y + page.height - kLine;
    m_screen.fill({page.x, bottom, page.width, kLine}, kTerminal);
    m_screen.write(page.x + 6, bottom + 12, textLine(m_step, 40 + m_step * 7 % 50), 0x70d070U,
                   kTerminal);
    show(page);
}

void Scene::answerKey() {
    m_white = !m_white;
    m_screen.fill(layout::kKeyBlock, m_white ? kWhite : kBlack);
    show(layout::kKeyBlock);
    xcb_flush(m_connection.handle());
}

void Scene::restore(const Area& area) {
    m_screen.copy(m_desktop, area, area.x, area.y);
}

void Scene::showAll() {
    show({0, 0, m_screen.width(), m_screen.height()});
    xcb_flush(m_connection.handle());
}

} // namespace corvane::compare
