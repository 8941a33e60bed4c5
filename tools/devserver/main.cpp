#include "devserver/DevServer.h"
#include "devserver/MisbehaviourControl.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <optional>

using namespace Qt::StringLiterals;
using namespace corvane::devserver;

namespace {

volatile std::sig_atomic_t stopRequested = 0;

void requestStop(int) {
    stopRequested = 1;
}

void quitOnSignal(QCoreApplication& application) {
    std::signal(SIGINT, requestStop);
    std::signal(SIGTERM, requestStop);
    auto* poll = new QTimer(&application);
    QObject::connect(poll, &QTimer::timeout, &application, [] {
        if (stopRequested) {
            QCoreApplication::quit();
        }
    });
    poll->start(50);
}

int fail(const QString& reason) {
    std::fprintf(stderr, "corvane-devserver: %s\n", qPrintable(reason));
    return 1;
}

std::optional<quint16> readPort(const QString& text) {
    bool ok = false;
    const quint16 port = text.toUShort(&ok);
    return ok ? std::optional<quint16>(port) : std::nullopt;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"corvane-devserver"_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Central server and relay node on loopback.\n\n"_s +
                                     MisbehaviourControl::help());
    parser.addHelpOption();
    const QCommandLineOption address(u"address"_s, u"Loopback address to listen on."_s,
                                     u"address"_s, u"127.0.0.1"_s);
    const QCommandLineOption port(u"port"_s, u"HTTP and signaling port, 0 for any."_s, u"port"_s,
                                  u"8420"_s);
    const QCommandLineOption relayPort(u"relay-port"_s, u"Relay port, 0 for any."_s, u"port"_s,
                                       QString::number(DevServerConfig().relayPort));
    parser.addOptions({address, port, relayPort});
    parser.process(application);

    const auto httpNumber = readPort(parser.value(port));
    const auto relayNumber = readPort(parser.value(relayPort));
    if (!httpNumber || !relayNumber) {
        return fail(u"a port is a number from 0 to 65535"_s);
    }
    const QHostAddress host(parser.value(address));
    if (host.isNull()) {
        return fail(u"'%1' is not an IP address"_s.arg(parser.value(address)));
    }
    DevServer server;
    QString error;
    if (!server.start({.address = host, .httpPort = *httpNumber, .relayPort = *relayNumber},
                      &error)) {
        return fail(error);
    }
    if (server.stunPort() == 0) {
        std::fprintf(stderr, "corvane-devserver: the STUN port is taken, STUN is off\n");
    }
    quitOnSignal(application);
    std::printf("devserver ready on %s, relay on %s:%d\n", qPrintable(server.url().toString()),
                qPrintable(server.address().toString()), int{server.relayPort()});
    std::fflush(stdout);
    return QCoreApplication::exec();
}
