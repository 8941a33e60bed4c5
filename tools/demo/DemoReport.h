#pragma once

#include <QString>

namespace corvane::demo {

/// Prints the demonstration's findings as they come, and remembers whether all of them are good.
class DemoReport {
public:
    void fact(const QString& name, const QString& value);

    /// Reports a finding that must hold for the demonstration to succeed. Returns `holds`.
    bool check(const QString& name, bool holds, const QString& value);

    bool isGood() const { return m_good; }

private:
    bool m_good = true;
};

} // namespace corvane::demo
