#include "harness/LiveSession.h"

#include "app/settings/DeploymentConstants.h"
#include "harness/PictureComparison.h"
#include "ui/FitRectangle.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace corvane::harness {

using namespace std::chrono_literals;

namespace {

constexpr auto kStartTimeout = 60s;
constexpr auto kConnectTimeout = 30s;
constexpr auto kInputTimeout = 30s;
constexpr auto kPictureTimeout = 30s;

/// Satisfies the password rule: eight characters, lower and upper case, a digit.
QString createPassword() {
    return QStringLiteral("Demo%1").arg(QRandomGenerator::system()->bounded(10'000), 4, 10,
                                        QLatin1Char('0'));
}

QRect parseRectangle(const QString& numbers) {
    const QStringList parts = numbers.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return parts.size() == 4
               ? QRect(parts[0].toInt(), parts[1].toInt(), parts[2].toInt(), parts[3].toInt())
               : QRect();
}

} // namespace

LiveSession::LiveSession(Options options)
    : m_options(std::move(options)), m_targetPassword(createPassword()) {}

LiveSession::~LiveSession() {
    end();
}

void LiveSession::end() {
    m_viewer.reset();
    m_target.reset();
    m_desktop.terminate();
    m_desktop.waitForFinished(5000);
    m_viewerScreenServer.reset();
    m_targetScreenServer.reset();
}

bool LiveSession::start() {
    return startServer() && startUsers() && startDesktop() && startClients();
}

bool LiveSession::startServer() {
    const QUrl url(QString::fromLatin1(deployment::kServerUrl));
    devserver::DevServerConfig config;
    config.address = QHostAddress(url.host());
    config.loopbackOnly = config.address.isLoopback();
    config.httpPort = static_cast<quint16>(url.port());
    QString error;
    return m_server.start(config, &error) || fail(QStringLiteral("devserver: ") + error);
}

bool LiveSession::startUsers() {
    const auto startServer = [this](std::unique_ptr<test::XvfbServer>& server) {
        server = std::make_unique<test::XvfbServer>(m_options.screen);
        return server->display();
    };
    const QString targetName = startServer(m_targetScreenServer);
    const QString viewerName = m_options.viewerDisplay.isEmpty() ? startServer(m_viewerScreenServer)
                                                                 : m_options.viewerDisplay;
    m_targetDisplay = std::make_unique<XDisplay>(targetName);
    m_viewerDisplay = std::make_unique<XDisplay>(viewerName);
    m_target = std::make_unique<ClientProcess>(targetName, m_options.target);
    m_viewer = std::make_unique<ClientProcess>(viewerName, m_options.viewer);
    m_target->presetPassword(m_targetPassword);
    for (const auto& [client, place] : {std::pair{m_target.get(), &m_options.targetPlace},
                                        std::pair{m_viewer.get(), &m_options.viewerPlace}}) {
        if (m_options.displayMode) {
            client->presetDisplayMode(*m_options.displayMode);
        }
        if (*place) {
            client->beginWith(*place);
        }
    }
    const devserver::Device viewerDevice = m_server.registerDevice();
    m_viewer->presetCredentials(viewerDevice.clientId, viewerDevice.secret);
    return (m_targetDisplay->isConnected() && m_viewerDisplay->isConnected()) ||
           fail(QStringLiteral("no X display"));
}

bool LiveSession::startDesktop() {
    if (!m_options.showsDesktop) {
        return true;
    }
    QObject::connect(&m_desktop, &QProcess::readyReadStandardOutput, &m_desktop,
                     [this] { readDesktop(); });
    m_desktop.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    tieToParent(m_desktop);
    m_target->host().prepare(m_desktop, Program::DemoDesktop,
                             m_options.stillDesktop ? QStringList{QStringLiteral("--still")}
                                                    : QStringList());
    m_desktop.start();
    return waitFor([this] { return m_field.isValid() && m_echo.isValid(); }, kStartTimeout) ||
           fail(QStringLiteral("the demo desktop did not come up"));
}

void LiveSession::readDesktop() {
    while (m_desktop.canReadLine()) {
        const QString line = QString::fromUtf8(m_desktop.readLine()).trimmed();
        const QString value = line.section(QLatin1Char(' '), 1);
        if (line.startsWith(u"field: ")) {
            m_field = parseRectangle(value);
        } else if (line.startsWith(u"echo: ")) {
            m_echo = parseRectangle(value);
        } else if (line.startsWith(u"focus: ")) {
            m_fieldHasFocus = value == u"field";
        } else if (line.startsWith(u"typed: ")) {
            m_typed = value;
        }
    }
}

bool LiveSession::startClients() {
    const auto isOnline = [this](const ClientProcess& client) {
        const QString id = client.clientId();
        return !id.isEmpty() && m_server.isOnline(id);
    };
    for (ClientProcess* client : {m_target.get(), m_viewer.get()}) {
        if (!client->start() || !waitFor([&] { return isOnline(*client); }, kStartTimeout)) {
            return fail(QStringLiteral("a client did not come online:\n") + client->log());
        }
    }
    return true;
}

bool LiveSession::enterPartner(const QString& password) {
    const auto home = m_viewerDisplay->findWindow(QStringLiteral("Corvane - Remote Access"));
    if (!home) {
        return fail(QStringLiteral("the viewer's main window is not on its display"));
    }
    // A click beside all widgets gives the window the keyboard; the partner field has the focus.
    m_viewerDisplay->click(home->bottomLeft() + QPoint(12, -12));
    m_viewerDisplay->pressKey('a', {kKeyControl});
    m_viewerDisplay->type(m_target->clientId());
    m_viewerDisplay->pressKey(kKeyTab);
    m_viewerDisplay->type(password);
    m_viewerDisplay->pressKey(kKeyReturn);
    return true;
}

bool LiveSession::waitUntilConnected() {
    const auto isConnected = [](const ClientProcess& client) {
        return stateChanges(client).endsWith(u"Connected");
    };
    if (!waitFor([&] { return isConnected(*m_viewer) && isConnected(*m_target); },
                 kConnectTimeout)) {
        return fail(QStringLiteral("the session did not connect; viewer's log:\n") +
                    m_viewer->log());
    }
    const bool pictureThere = waitFor(
        [this] { return !m_viewer->logLines(QStringLiteral("Created NV12 textures")).isEmpty(); },
        kConnectTimeout);
    return pictureThere ||
           fail(QStringLiteral("no picture arrived; target's log:\n") + m_target->log());
}

bool LiveSession::typeRemotely(const QString& word) {
    const QString shown = m_typed + word;
    m_viewerDisplay->click(onViewer(m_field).center());
    if (!waitFor([&] { return m_fieldHasFocus; }, kInputTimeout)) {
        return fail(QStringLiteral("a click did not give the target's text field the keyboard"));
    }
    m_viewerDisplay->type(word);
    return waitFor([&] { return m_typed == shown; }, kInputTimeout) ||
           fail(QStringLiteral("typed \"%1\" but the target shows \"%2\"").arg(shown, m_typed));
}

std::optional<std::chrono::milliseconds> LiveSession::inputRoundTrip() {
    constexpr int kVisibleDifference = 60; // of 255, well above what the codec does to a still area
    constexpr int kLetterPixels = 8;
    const QRect area = onViewer(m_echo);
    const auto look = [&] {
        return m_viewerDisplay->grab(area);
    };
    const auto changed = [&](const QImage& before) {
        return differingPixels(before, look(), kVisibleDifference) >= kLetterPixels;
    };
    const QImage before = look();
    QElapsedTimer clock;
    clock.start();
    m_viewerDisplay->type(QStringLiteral("w"));
    if (before.isNull() || !waitFor([&] { return changed(before); }, kInputTimeout)) {
        return std::nullopt;
    }
    return std::chrono::milliseconds(clock.elapsed());
}

StreamFigures LiveSession::measureStream(std::chrono::milliseconds duration) {
    const QString kMark = QStringLiteral("Video received: ");
    const auto earlier = m_viewer->logLines(kMark).size();
    waitFor([] { return false; }, duration);
    static const QRegularExpression kNumbers(
        QStringLiteral("(\\d+) frames, (\\d+) bytes in (\\d+) ms"));
    double frames = 0.0;
    double bytes = 0.0;
    double milliseconds = 0.0;
    for (const QString& line : m_viewer->logLines(kMark).mid(earlier)) {
        const QRegularExpressionMatch match = kNumbers.match(line);
        frames += match.captured(1).toDouble();
        bytes += match.captured(2).toDouble();
        milliseconds += match.captured(3).toDouble();
    }
    if (milliseconds <= 0.0) {
        return {};
    }
    return {frames * 1000.0 / milliseconds, bytes * 8.0 / milliseconds};
}

QString LiveSession::transport() const {
    const QStringList lines = m_viewer->logLines(QStringLiteral("Transport established via"));
    return lines.isEmpty() ? QString() : lines.last().section(QLatin1Char(' '), -1);
}

void LiveSession::setDesktopRunning(bool running) {
    m_desktop.write(running ? "run\n" : "hold\n");
    m_desktop.waitForBytesWritten(1000);
}

double LiveSession::pictureFidelity() {
    constexpr double kGoodEnough = 35.0;
    double best = 0.0;
    waitFor(
        [&] {
            best = std::max(best, psnr(viewerPicture(), targetScreen()));
            return best >= kGoodEnough;
        },
        kPictureTimeout);
    return best;
}

QImage LiveSession::viewerPicture() {
    const auto rectangle = pictureRectangle();
    return rectangle ? m_viewerDisplay->grab(*rectangle) : QImage();
}

QString LiveSession::stateChanges(const ClientProcess& client) {
    static const QRegularExpression kChange(QStringLiteral("Session state: (\\w+) -> (\\w+)"));
    QString changes;
    auto matches = kChange.globalMatch(client.log());
    while (matches.hasNext()) {
        const auto match = matches.next();
        changes += (changes.isEmpty() ? match.captured(1) : QString()) + QStringLiteral(" -> ") +
                   match.captured(2);
    }
    return changes;
}

std::optional<QRect> LiveSession::pictureRectangle() {
    static const QRegularExpression kResized(
        QStringLiteral("RemoteDesktopWidget resized to (\\d+)x(\\d+)"));
    const auto window = m_viewerDisplay->findWindow(QStringLiteral("Corvane - "));
    const QStringList resizes = m_viewer->logLines(QStringLiteral("RemoteDesktopWidget resized"));
    if (!window || resizes.isEmpty()) {
        return std::nullopt;
    }
    const auto match = kResized.match(resizes.last());
    const QSize view(match.captured(1).toInt(), match.captured(2).toInt());
    // The view fills the window below the tool bar, inside the border that Wine itself draws.
    const int border = (window->width() - view.width()) / 2;
    const QPoint origin = window->bottomLeft() + QPoint(border, 1 - view.height() - border);
    return fitRectangle(m_targetDisplay->size(), view).translated(origin);
}

QRect LiveSession::onViewer(const QRect& targetArea) {
    const QRect picture = pictureRectangle().value_or(QRect());
    const QSize screen = m_targetDisplay->size();
    const auto scaled = [](int value, int to, int from) {
        return value * to / from;
    };
    return QRect(picture.x() + scaled(targetArea.x(), picture.width(), screen.width()),
                 picture.y() + scaled(targetArea.y(), picture.height(), screen.height()),
                 scaled(targetArea.width(), picture.width(), screen.width()),
                 scaled(targetArea.height(), picture.height(), screen.height()));
}

bool LiveSession::fail(const QString& error) {
    m_error = error;
    return false;
}

} // namespace corvane::harness
