#include "common/MonotonicClock.h"
#include "media/FrameConverter.h"
#include "services/ChatService.h"
#include "session/SessionTest.h"
#include "support/DesktopScene.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <spdlog/sinks/stdout_sinks.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>
#include <unistd.h>

namespace corvane::test {
namespace {

using nlohmann::json;

/// Far above what the codec changes in a scene, far below what a misplaced part of it would.
constexpr int kSameBlock = 24;
constexpr int kBlock = 16;

/// The luma plane of a scene.
ByteVector sceneLuma(int width, int height, int step) {
    const ByteVector scene = desktopScene(width, height, step);
    ByteVector nv12 = allocateNV12(width, height);
    FrameConverter().convert(scene.data(), width, height, width * 4, nv12.data(), 0);
    nv12.resize(static_cast<size_t>(width) * static_cast<size_t>(height));
    return nv12;
}

/// Mean difference, of 255, in the block of the picture that differs most.
int worstBlock(const DecodedFrame& picture, const ByteVector& luma) {
    int worst = 0;
    for (int top = 0; top + kBlock <= picture.height; top += kBlock) {
        for (int left = 0; left + kBlock <= picture.width; left += kBlock) {
            int sum = 0;
            for (int y = top; y < top + kBlock; ++y) {
                for (int x = left; x < left + kBlock; ++x) {
                    const auto at = static_cast<size_t>(y * picture.width + x);
                    sum += std::abs(int(picture.yPlane[at]) - int(luma[at]));
                }
            }
            worst = std::max(worst, sum / (kBlock * kBlock));
        }
    }
    return worst;
}

/// One side of a session, which takes orders and answers them as lines of JSON.
class NetworkPeer : public QObject {
public:
    NetworkPeer() {
        m_chatPace.setInterval(10);
        connect(&m_chatPace, &QTimer::timeout, this, [this] { chat(); });
        m_stillness.setInterval(1);
        connect(&m_stillness, &QTimer::timeout, this, [this] { lookWhetherStill(); });
    }

    void obey(const json& order) {
        const std::string what = order.at("do");
        if (what == "start") {
            start(order);
        } else if (what == "share") {
            m_device->signaling.sendMessage({{"type", "SET_PASSWORD"}, {"password", "Password1"}});
        } else if (what == "connect") {
            m_device->session->initiateSession(QString::fromStdString(order.at("target")),
                                               QStringLiteral("Password1"));
            report("connecting", {});
        } else if (what == "show") {
            m_lastStep = order.at("last");
            m_device->machine->framesToShow = m_lastStep + 1 - m_device->machine->shown;
            m_stillness.start();
        } else if (what == "expect") {
            m_expected = order.at("last");
            m_luma = sceneLuma(m_device->machine->width, m_device->machine->height, *m_expected);
        } else if (what == "chat") {
            m_chatEnd = order.at("count");
            m_chatPace.start();
        }
    }

private:
    static void report(const char* event, json details) {
        details["event"] = event;
        details["at"] = monotonicMilliseconds();
        std::cout << details.dump() << std::endl;
    }

    void start(const json& order) {
        devserver::Device registered;
        registered.clientId = QString::fromStdString(order.at("id"));
        registered.token = QString::fromStdString(order.at("token"));
        m_device = std::make_unique<Device>(QUrl(QString::fromStdString(order.at("server"))),
                                            registered, createPeerTransport);
        m_device->machine->width = order.at("width");
        m_device->machine->height = order.at("height");
        m_device->machine->framesToShow = 0;
        SessionManager* const session = m_device->session.get();
        session->setCaptureFrameRate(order.at("rate"));
        connect(session, &SessionManager::stateChanged, this, &NetworkPeer::onState);
        connect(session, &SessionManager::frameDecoded, this, &NetworkPeer::onPicture);
        connect(session, &SessionManager::sessionError, this, [](const QString& error) {
            report("error", {{"text", error.toStdString()}});
        });
    }

    void onState(SessionState state) {
        SessionManager* const session = m_device->session.get();
        report("state", {{"state", sessionStateName(state)},
                         {"transport", session->transportMethod().toStdString()}});
        if (state == SessionState::Connected) {
            connect(session->chatService(), &ChatService::messageReceived, this,
                    [](const QString& text) {
                        report("chat", {{"number", text.toInt()}});
                    });
        }
    }

    void onPicture(const std::shared_ptr<DecodedFrame>& picture) {
        ++m_pictures;
        if (!m_expected) {
            return;
        }
        if (worstBlock(*picture, m_luma) < kSameBlock) {
            report("whole", {{"last", *m_expected}, {"pictures", m_pictures}});
            m_expected.reset();
        }
    }

    void lookWhetherStill() {
        if (m_device->machine->shown > m_lastStep) {
            m_stillness.stop();
            report("still", {{"last", m_lastStep}, {"since", m_device->machine->shownAt.load()}});
        }
    }

    void chat() {
        constexpr int kAtOnce = 5;
        for (int i = 0; i < kAtOnce && m_chatNext < m_chatEnd; ++i) {
            m_device->session->chatService()->sendMessage(QString::number(m_chatNext++));
        }
        if (m_chatNext == m_chatEnd) {
            m_chatPace.stop();
        }
    }

    std::unique_ptr<Device> m_device;
    QTimer m_chatPace;
    int m_chatNext = 0;
    int m_chatEnd = 0;
    QTimer m_stillness;
    int m_lastStep = 0; ///< the last scene to show
    int m_pictures = 0;
    std::optional<int> m_expected; ///< the scene that the picture should become
    ByteVector m_luma;             ///< of that scene
};

} // namespace
} // namespace corvane::test

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    std::ios::sync_with_stdio(false);
    spdlog::set_default_logger(spdlog::stderr_logger_mt("peer"));
    spdlog::set_level(spdlog::level::debug);
    corvane::test::NetworkPeer peer;
    QSocketNotifier orders(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&orders, &QSocketNotifier::activated, [&] {
        std::string line;
        do {
            if (!std::getline(std::cin, line)) {
                QCoreApplication::quit();
                return;
            }
            peer.obey(nlohmann::json::parse(line));
        } while (std::cin.rdbuf()->in_avail() > 0);
    });
    return QCoreApplication::exec();
}
