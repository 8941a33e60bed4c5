#include "ProtocolExamples.h"

#include "RecordingSession.h"
#include "common/ByteViews.h"
#include "crypto/EcdhKeyExchange.h"
#include "crypto/KeyDerivation.h"
#include "network/reachability/StunMessage.h"
#include "support/Bytes.h"
#include "support/Eventually.h"
#include "transport/RelayFrameParser.h"
#include "transport/RelayTransport.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <gtest/gtest.h>
#include <openssl/evp.h>
#include <openssl/x509.h>

namespace corvane::docs {
namespace {

using namespace Qt::StringLiterals;
using test::hexBytes;

using Key = OpensslPtr<evp_pkey_st>;

Key privateKey(const ByteVector& secret, const char* publicPoint) {
    const ByteVector der = hexBytes("30770201010420" + viewOf(secret).toByteArray().toHex() +
                                    "a00a06082a8648ce3d030107a144034200" + publicPoint);
    const uint8_t* position = der.data();
    return Key(d2i_AutoPrivateKey(nullptr, &position, static_cast<long>(der.size())));
}

/// As the device's own key travels.
std::string tokenOf(const Key& key) {
    unsigned char* buffer = nullptr;
    const int length = i2d_PUBKEY(key.get(), &buffer);
    const OpensslPtr<unsigned char> der(buffer);
    return QByteArray(reinterpret_cast<const char*>(buffer), length).toBase64().toStdString();
}

Key publicKey(const std::string& token) {
    const QByteArray der = QByteArray::fromBase64(QByteArray::fromStdString(token));
    const auto* position = reinterpret_cast<const uint8_t*>(der.constData());
    return Key(d2i_PUBKEY(nullptr, &position, der.size()));
}

ByteVector keyMaterial(const SecretBytes& sharedSecret) {
    const ByteVector salt(32, 0);
    return hkdfSha256(sharedSecret.span(), salt, "corvane-session-key-v1", 44).copy();
}

void compareKeyAgreement(const Example& example) {
    const ByteVector bytes = example.bytes();
    ASSERT_EQ(bytes.size(), 32U + 32 + 32 + 32 + 12);
    const Key viewer = privateKey(
        part(bytes, 0, 32), "04dad0b65394221cf9b051e1feca5787d098dfe637fc90b9ef945d0c3772581180"
                            "5271a0461cdb8252d61f1c456fa3e59ab1f45b33accf5f58389e0577b8990bb3");
    const Key shared = privateKey(
        part(bytes, 32, 32), "04d12dfb5289c8d4f81208b70270398c342296970a0bccb74c736fc7554494bf63"
                             "56fbf3ca366cc23e8157854c13c58d6aac23f046ada30f8353e74f33039872ab");
    const SecretBytes secret = ecdhSharedSecret(viewer.get(), shared.get());
    EXPECT_EQ(secret.copy(), part(bytes, 64, 32));
    EXPECT_EQ(keyMaterial(secret), part(bytes, 96));
    // The other examples have these keys.
    EXPECT_EQ(QString::fromStdString(tokenOf(viewer)), viewerPublicKey());
    EXPECT_EQ(QString::fromStdString(tokenOf(shared)), sharedMachinePublicKey());
    EXPECT_EQ(sessionKey(), part(bytes, 96, 32));
    EXPECT_EQ(sessionBaseIv(), part(bytes, 128));

    // Salt and info text are those of a live exchange, too.
    EcdhKeyExchange live;
    ASSERT_TRUE(live.deriveSharedKey(tokenOf(shared)));
    EXPECT_EQ(live.publicKeyBase64().size(), 124U);
    const Key liveKey = publicKey(live.publicKeyBase64());
    ByteVector expected = live.aesKey();
    appendBytes(expected, live.baseIv());
    EXPECT_EQ(keyMaterial(ecdhSharedSecret(shared.get(), liveKey.get())), expected);
}

void compareSealedMessage(const Example& example) {
    RecordingSession session;
    session.plane.sendInputEvent(pointerMove());
    session.plane.sendInputEvent(pointerMove());
    EXPECT_EQ(session.transport.sent.at(1), example.bytes());
    RecordingSession peer(SessionRole::Target);
    QSignalSpy received(&peer.plane, &SessionDataPlane::inputEventReceived);
    peer.plane.receive(ChannelType::Control, viewOf(example.bytes()).toByteArray());
    EXPECT_EQ(received.count(), 1);
}

void compareRelayJoin(const Example& example) {
    QTcpServer relay;
    ASSERT_TRUE(relay.listen(QHostAddress::LocalHost));
    RelayTransport transport;
    transport.setSessionId(u"7f1c"_s);
    ASSERT_TRUE(transport.connect("127.0.0.1", relay.serverPort()));
    ASSERT_TRUE(test::eventually([&] { return relay.hasPendingConnections(); }));
    QTcpSocket* const socket = relay.nextPendingConnection();
    const auto size = static_cast<qint64>(example.bytes().size());
    EXPECT_TRUE(test::eventually([&] { return socket->bytesAvailable() >= size; }));
    EXPECT_EQ(test::bytes(socket->readAll()), example.bytes());
}

void compareRelayFrame(const Example& example) {
    const ByteVector payload{0xaa, 0xbb, 0xcc};
    EXPECT_EQ(test::bytes(relayFrame(ChannelType::Video, payload.data(), payload.size())),
              example.bytes());
    RelayFrameParser parser;
    const ByteVector bytes = example.bytes();
    ByteSpan input = bytes;
    EXPECT_EQ(parser.consume(input), RelayFrameParser::Result::FrameReady);
    EXPECT_EQ(parser.channel(), ChannelType::Video);
    EXPECT_EQ(test::bytes(parser.takePayload()), payload);
}

ByteVector stunRequest() {
    return test::bytes(stunBindingRequest({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
}

void compareStunRequest(const Example& example) {
    EXPECT_EQ(stunRequest(), example.bytes());
}

void compareStunResponse(const Example& example) {
    constexpr size_t kHeader = 20;
    const ByteVector bytes = example.bytes();
    EXPECT_EQ(part(bytes, 2, 2), (ByteVector{0, static_cast<uint8_t>(bytes.size() - kHeader)}));
    EXPECT_EQ(part(bytes, 4, kHeader - 4), part(stunRequest(), 4)) << "cookie and transaction";
    EXPECT_EQ(parseStunBindingResponse(bytes),
              (MappedAddress{QHostAddress(u"203.0.113.7"_s), 54321}));
}

} // namespace

Checks sealingChecks() {
    return {
        {"hex key-agreement", compareKeyAgreement}, {"hex sealed-message", compareSealedMessage},
        {"hex relay-join", compareRelayJoin},       {"hex relay-frame", compareRelayFrame},
        {"hex stun-request", compareStunRequest},   {"hex stun-response", compareStunResponse},
    };
}

} // namespace corvane::docs
