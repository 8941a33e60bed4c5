#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <variant>
#include <vector>

/// The few types of libdatachannel that the transport uses, doing what a test says. Members without
/// the library's names are the test's end.
namespace rtc {

using std::byte;
using binary = std::vector<byte>;
using message_variant = std::variant<binary, std::string>;

struct IceServer {
    enum class RelayType { TurnUdp, TurnTcp, TurnTls };

    explicit IceServer(const std::string& url) : hostname(url) {}
    IceServer(std::string host, uint16_t portNumber, std::string user, std::string secret,
              RelayType relay)
        : hostname(std::move(host)), port(portNumber), username(std::move(user)),
          password(std::move(secret)), relayType(relay) {}

    std::string hostname;
    uint16_t port = 0;
    std::string username;
    std::string password;
    RelayType relayType = RelayType::TurnUdp;
};

struct Configuration {
    std::vector<IceServer> iceServers;
    std::optional<size_t> maxMessageSize;
};

struct Reliability {
    bool unordered = false;
    std::optional<unsigned int> maxRetransmits;
};

struct DataChannelInit {
    Reliability reliability;
};

struct SctpSettings {
    std::optional<size_t> recvBufferSize;
    std::optional<size_t> maxChunksOnQueue;
};

inline void SetSctpSettings(const SctpSettings&) {}

class Description {
public:
    Description(std::string sdp, std::string type)
        : m_sdp(std::move(sdp)), m_type(std::move(type)) {
        if (m_sdp == "garbage") {
            throw std::invalid_argument("Invalid description");
        }
    }
    std::string typeString() const { return m_type; }
    explicit operator std::string() const { return m_sdp; }

private:
    std::string m_sdp;
    std::string m_type;
};

class Candidate {
public:
    Candidate(std::string text, std::string mid) : m_text(std::move(text)), m_mid(std::move(mid)) {
        if (m_text == "garbage") {
            throw std::invalid_argument("Invalid candidate format");
        }
    }
    std::string candidate() const { return m_text; }
    std::string mid() const { return m_mid; }

private:
    std::string m_text;
    std::string m_mid;
};

class DataChannel {
public:
    explicit DataChannel(std::string name, Reliability reliability = {})
        : settings(reliability), m_label(std::move(name)) {}

    std::string label() const { return m_label; }
    bool isOpen() const { return open; }
    size_t bufferedAmount() const { return buffered; }
    void setBufferedAmountLowThreshold(size_t amount) { threshold = amount; }
    bool send(const byte* data, size_t size) {
        if (refusal) {
            throw std::runtime_error(*refusal);
        }
        sent.emplace_back(data, data + size);
        return buffered == 0;
    }
    void close() {
        open = false;
        closed();
    }

    void onOpen(std::function<void()> callback) { m_opened = std::move(callback); }
    void onClosed(std::function<void()> callback) { closed = std::move(callback); }
    void onMessage(std::function<void(message_variant)> callback) { message = std::move(callback); }
    void onBufferedAmountLow(std::function<void()> callback) { drained = std::move(callback); }

    void becomeOpen() {
        open = true;
        m_opened();
    }
    void receive(const std::string& text) {
        const auto* const bytes = reinterpret_cast<const byte*>(text.data());
        message(binary(bytes, bytes + text.size()));
    }

    const Reliability settings;
    bool open = false;
    std::atomic<size_t> buffered = 0;
    size_t threshold = 0;
    std::optional<std::string> refusal;
    std::vector<binary> sent;
    std::function<void()> closed;
    std::function<void(message_variant)> message;
    std::function<void()> drained;

private:
    std::string m_label;
    std::function<void()> m_opened;
};

class PeerConnection {
public:
    enum class State : int { New, Connecting, Connected, Disconnected, Failed, Closed };
    enum class GatheringState : int { New, InProgress, Complete };

    explicit PeerConnection(Configuration configuration) : settings(std::move(configuration)) {
        if (startRefusal) {
            throw std::runtime_error(*startRefusal);
        }
        latest = this;
    }
    ~PeerConnection() { latest = nullptr; }

    std::shared_ptr<DataChannel> createDataChannel(std::string label, DataChannelInit init = {}) {
        channels.push_back(std::make_shared<DataChannel>(std::move(label), init.reliability));
        return channels.back();
    }
    void setRemoteDescription(const Description& description) {
        told.push_back(description.typeString() + " " + std::string(description));
    }
    void addRemoteCandidate(const Candidate& candidate) {
        told.push_back(candidate.mid() + " " + candidate.candidate());
    }
    std::optional<std::chrono::milliseconds> rtt() const { return roundTrip; }
    void close() { stateChanged(State::Closed); }

    void onStateChange(std::function<void(State)> callback) { stateChanged = std::move(callback); }
    void onGatheringStateChange(std::function<void(GatheringState)> callback) {
        gatheringChanged = std::move(callback);
    }
    void onLocalDescription(std::function<void(Description)> callback) {
        described = std::move(callback);
    }
    void onLocalCandidate(std::function<void(Candidate)> callback) {
        candidateFound = std::move(callback);
    }
    void onDataChannel(std::function<void(std::shared_ptr<DataChannel>)> callback) {
        channelArrived = std::move(callback);
    }

    static inline PeerConnection* latest = nullptr;
    static inline std::optional<std::string> startRefusal;

    const Configuration settings;
    std::vector<std::shared_ptr<DataChannel>> channels;
    std::vector<std::string> told;
    std::optional<std::chrono::milliseconds> roundTrip;
    std::function<void(State)> stateChanged;
    std::function<void(GatheringState)> gatheringChanged;
    std::function<void(Description)> described;
    std::function<void(Candidate)> candidateFound;
    std::function<void(std::shared_ptr<DataChannel>)> channelArrived;
};

} // namespace rtc
