#pragma once

#include "netns/NetworkPlace.h"
#include "netns/TestNetwork.h"

#include <QString>

namespace corvane::compare {

/// A network for one system: the places of the viewer, of the shared machine and of a server, where
/// the calling thread then is.
class Line {
public:
    explicit Line(const test::Conditions& conditions);
    ~Line();
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    /// Why there is no such network; empty when it stands.
    QString obstacle() const { return m_network.obstacle(); }

    const test::NetworkPlace& viewer() const { return m_viewer; }
    const test::NetworkPlace& shared() const { return m_shared; }

    static constexpr auto kSharedAddress = "10.77.2.2";

private:
    test::TestNetwork m_network;
    const int m_between; ///< keeps the namespace between the places, which nothing runs in
    test::NetworkPlace m_viewer;
    test::NetworkPlace m_shared;
    test::NetworkPlace m_server;
};

} // namespace corvane::compare
