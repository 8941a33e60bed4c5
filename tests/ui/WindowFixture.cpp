#include "WindowFixture.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QStackedWidget>

namespace corvane::test {

WindowFixture::WindowFixture() {
    m_api.setServerUrl(m_server.url());
    m_auth.setSessionPassword(QStringLiteral("Password1"));
}

void WindowFixture::start() {
    m_window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    m_auth.start();
    ASSERT_TRUE(eventually([this] { return status().startsWith(u"Online"); }));
}

void WindowFixture::connectTo(const QString& partner, const QString& password) {
    for (const auto& [edit, text] :
         {std::pair{"partnerEdit", partner}, {"partnerPasswordEdit", password}}) {
        widget<QLineEdit>(edit)->clear();
        QTest::keyClicks(widget<QLineEdit>(edit), text);
    }
    click("primaryButton");
}

std::unique_ptr<Device> WindowFixture::viewNewDevice() {
    auto partner = createDevice();
    connectTo(partner->id, QStringLiteral("Password1"));
    const bool connected = eventually([&] {
        return isViewing() && partner->is(SessionState::Connected) &&
               m_log.contains("Created NV12 textures");
    });
    EXPECT_TRUE(connected);
    return connected ? std::move(partner) : nullptr;
}

void WindowFixture::push(const QJsonObject& message) {
    m_server.pushText(m_api.clientId(), QString::fromUtf8(QJsonDocument(message).toJson()));
}

QString WindowFixture::status() const {
    static const QRegularExpression kColour(QStringLiteral("color: (#\\w+); font-size: 12px; "
                                                           "padding-top: 4px;"));
    const auto* const line = widget<QLabel>("statusLabel");
    EXPECT_TRUE(line->text().startsWith(u"● "));
    return line->text().mid(2) + QLatin1Char('|') + kColour.match(line->styleSheet()).captured(1);
}

QList<QMessageBox*> WindowFixture::boxes() const {
    auto boxes = m_window.findChildren<QMessageBox*>();
    boxes.removeIf([](const QMessageBox* box) { return !box->isVisible(); });
    return boxes;
}

QStringList WindowFixture::takeBoxes() const {
    QStringList texts;
    for (QMessageBox* const box : boxes()) {
        texts.append(box->windowTitle() + QLatin1Char('|') + box->text());
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        QTest::keyClick(box, Qt::Key_Escape);
    }
    return texts;
}

bool WindowFixture::isViewing() const {
    return m_window.findChild<QStackedWidget*>()->currentIndex() == 1;
}

} // namespace corvane::test
