#include "peerbridge/PeerBridge.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <spdlog/spdlog.h>

#include <cstdio>
#include <iostream>
#include <string>
#include <thread>

/// Commands arrive on standard input and events go to standard output, one per line.
int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    spdlog::set_level(spdlog::level::off);

    corvane::PeerBridge bridge;
    QObject::connect(&bridge, &corvane::PeerBridge::happened, [](const QJsonObject& event) {
        std::puts(QJsonDocument(event).toJson(QJsonDocument::Compact).constData());
        std::fflush(stdout);
    });
    std::thread reader([&bridge] {
        for (std::string line; std::getline(std::cin, line);) {
            const auto command = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
            QMetaObject::invokeMethod(
                &bridge, [&bridge, command] { bridge.obey(command); }, Qt::QueuedConnection);
        }
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    });
    const int status = QCoreApplication::exec();
    reader.join();
    return status;
}
