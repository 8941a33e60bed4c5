#pragma once

#include "common/JsonFields.h"

#include <QMetaMethod>
#include <QObject>
#include <QStringList>
#include <QTest>

namespace corvane::test {

/// Notes the signals of an object in the order they come, each as one line: "name|argument|...".
class SignalLines {
public:
    template <typename Sender, typename... Signals>
    explicit SignalLines(const Sender& sender, Signals... signalsToNote) {
        (watch(sender, signalsToNote), ...);
    }

    /// Waits for a line and forgets it and those before it; false when it does not come.
    bool waitFor(const QString& line) {
        const bool seen = QTest::qWaitFor([&] { return m_lines.contains(line); });
        m_lines.remove(0, m_lines.indexOf(line) + 1);
        return seen;
    }

    /// Waits for the next line and takes it; "nothing" when none comes.
    std::string next() {
        const bool seen = QTest::qWaitFor([&] { return !m_lines.isEmpty(); });
        return seen ? m_lines.takeFirst().toStdString() : "nothing";
    }

    bool isEmpty() const { return m_lines.isEmpty(); }

private:
    template <typename Sender, typename Signal>
    void watch(const Sender& sender, Signal signal) {
        const QString name = QString::fromLatin1(QMetaMethod::fromSignal(signal).name());
        QObject::connect(&sender, signal, [this, name](const auto&... arguments) {
            m_lines.append((QStringList{name} << ... << text(arguments)).join(QLatin1Char('|')));
        });
    }

    static QString text(const QString& value) { return value; }
    static QString text(int value) { return QString::number(value); }
    static QString text(const nlohmann::json& value) {
        return QString::fromStdString(jsonText(value));
    }

    QStringList m_lines;
};

} // namespace corvane::test
