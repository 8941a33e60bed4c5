#include "network/identity/SessionPasswordGenerator.h"

#include <QRandomGenerator>

namespace corvane {

namespace {

constexpr int kLength = 6;
constexpr char kAlphabet[] = "abcdefghijklmnopqrstuvwxyz0123456789";
constexpr quint32 kAlphabetSize = sizeof(kAlphabet) - 1;

} // namespace

QString generateSessionPassword() {
    QString password;
    for (int i = 0; i < kLength; ++i) {
        const quint32 index = QRandomGenerator64::system()->bounded(kAlphabetSize);
        password.append(QLatin1Char(kAlphabet[index]));
    }
    return password;
}

} // namespace corvane
