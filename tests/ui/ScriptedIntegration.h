#pragma once

#include "ISystemIntegration.h"

#include <QPromise>

#include <functional>
#include <vector>

namespace corvane::test {

/// A system with a companion service that answers what it is told to, when it is told to.
class ScriptedIntegration : public ISystemIntegration {
public:
    QString startAtLogonText() const override { return QStringLiteral("Start with this system"); }
    QString startAtLogonToolTip() const override { return {}; }
    bool hasService() const override { return m_hasService; }
    QFuture<bool> startsAtLogon() override { return answer(m_startsAtLogon); }
    QFuture<bool> isServiceInstalled() override { return answer(m_serviceInstalled); }
    QFuture<bool> apply(const IntegrationChoice& choice) override {
        m_applied.push_back(choice);
        if (m_onApply) {
            m_onApply();
        }
        return answer(m_permits);
    }

    /// Gives the answers that are due.
    void answerAll() {
        for (Pending& pending : std::exchange(m_pending, {})) {
            pending.promise.addResult(pending.value);
            pending.promise.finish();
        }
    }

    bool m_hasService = true;
    bool m_startsAtLogon = false;
    bool m_serviceInstalled = false;
    bool m_permits = true;
    bool m_answersAtOnce = true;
    std::function<void()> m_onApply;
    std::vector<IntegrationChoice> m_applied;

private:
    struct Pending {
        QPromise<bool> promise;
        bool value;
    };

    QFuture<bool> answer(bool value) {
        if (m_answersAtOnce) {
            return QtFuture::makeReadyFuture(value);
        }
        Pending& pending = m_pending.emplace_back(Pending{{}, value});
        pending.promise.start();
        return pending.promise.future();
    }

    std::vector<Pending> m_pending;
};

} // namespace corvane::test
