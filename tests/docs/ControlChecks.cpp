#include "ProtocolExamples.h"

#include "RecordingSession.h"
#include "common/ByteViews.h"
#include "services/ChatService.h"
#include "services/FileMessage.h"
#include "services/FileTransferService.h"
#include "session/SessionCommand.h"
#include "support/Bytes.h"
#include "support/Eventually.h"
#include "support/Files.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace corvane::docs {
namespace {

using namespace Qt::StringLiterals;

const QString kText = u"Grüße"_s;
const QString kRemotePath = u"/home/ada/notes.txt"_s;

Check isInput(const InputEvent& event) {
    return [event](const Example& example) {
        RecordingSession session;
        session.plane.sendInputEvent(event);
        EXPECT_EQ(session.sent(), example.bytes());

        RecordingSession peer(SessionRole::Target);
        InputEvent received;
        QObject::connect(&peer.plane, &SessionDataPlane::inputEventReceived,
                         [&](const InputEvent& e) { received = e; });
        peer.receive(example.bytes());
        EXPECT_EQ(received.serialize(), event.serialize());
    };
}

InputEvent wheelTurn() {
    InputEvent event = pointerMove();
    event.type = InputEventType::MouseWheel;
    event.timestampMs = 123'556;
    event.wheelDelta = -120;
    return event;
}

InputEvent rightControl() {
    InputEvent event;
    event.type = InputEventType::KeyPress;
    event.timestampMs = 123'656;
    event.keyCode = 0xA3;
    event.scanCode = 0xE01D;
    event.extended = true;
    return event;
}

void compareKeyframeRequest(const Example& example) {
    RecordingSession session;
    session.start();
    session.receive({0xFF}, ChannelType::Video); // no picture comes out of this
    EXPECT_TRUE(test::eventually([&] { return session.sent() == example.bytes(); }));
}

void compareMonitorSwitch(const Example& example) {
    RecordingSession session;
    session.plane.requestMonitorSwitch(1);
    EXPECT_EQ(session.sent(), example.bytes());
    const ByteVector text = part(example.bytes(), 1);
    EXPECT_EQ(parseSwitchMonitorCommand(viewOf(text).toByteArray().toStdString()), 1);
}

void compareDisconnect(const Example& example) {
    RecordingSession session;
    QSignalSpy asked(&session.plane, &SessionDataPlane::disconnectRequested);
    session.receive(example.bytes());
    EXPECT_EQ(asked.count(), 1);
}

void compareClipboard(const Example& example) {
    QClipboard* const clipboard = QGuiApplication::clipboard();
    {
        RecordingSession session;
        session.start();
        clipboard->setText(kText);
        ASSERT_TRUE(test::eventually([&] { return !session.transport.sent.empty(); }));
        EXPECT_EQ(session.sent(), example.bytes());
    }
    clipboard->setText(u"something else"_s);
    RecordingSession session;
    session.start();
    session.receive(example.bytes());
    EXPECT_EQ(clipboard->text(), kText);
}

void compareChat(const Example& example) {
    constexpr size_t kTagAndClock = 1 + 8;
    RecordingSession session;
    session.start();
    session.plane.chatService()->sendMessage(kText);
    const ByteVector sent = session.sent();
    EXPECT_EQ(part(sent, kTagAndClock), part(example.bytes(), kTagAndClock));
    EXPECT_EQ(sent.front(), example.bytes().front());

    QSignalSpy received(session.plane.chatService(), &ChatService::messageReceived);
    session.receive(example.bytes());
    ASSERT_EQ(received.count(), 1);
    EXPECT_EQ(received[0][0].toString(), kText);
    EXPECT_EQ(received[0][1].toDateTime().toUTC().toString(Qt::ISODateWithMs),
              u"2026-01-02T03:04:05.678Z"_s);
}

/// A running session that asks for files, and a local file to send.
struct FileSession : RecordingSession {
    FileSession() {
        start();
        test::writeFile(local, "hello\n");
    }

    FileTransferService& files() const { return *plane.fileTransferService(); }

    QTemporaryDir folder;
    const QString local = folder.filePath(u"notes.txt"_s);
};

void compareListingRequest(const Example& example) {
    FileSession session;
    session.files().requestListing(u"/home/ada"_s);
    EXPECT_EQ(session.sent(), example.bytes());
}

void compareListingResponse(const Example& example) {
    const QList<FileEntry> entries{{u"music"_s, true, 0}, {u"notes.txt"_s, false, 6}};
    EXPECT_EQ(controlMessage(ControlTag::FileTransfer, listingResponse({u"/home/ada"_s, entries})),
              example.bytes());
    FileSession session;
    QSignalSpy listed(&session.files(), &FileTransferService::directoryListed);
    session.receive(example.bytes());
    ASSERT_EQ(listed.count(), 1);
    EXPECT_EQ(listed[0][0].toString(), u"/home/ada"_s);
    EXPECT_EQ(listed[0][1].value<QList<FileEntry>>(), entries);
}

void compareDownloadRequest(const Example& example) {
    FileSession session;
    session.files().requestDownload(kRemotePath, session.local);
    EXPECT_EQ(session.sent(), example.bytes());
}

void compareDownloadResponse(const Example& example) {
    EXPECT_EQ(
        controlMessage(ControlTag::FileTransfer, downloadResponse(test::hexBytes("68656c6c6f0a"))),
        example.bytes());
    FileSession session;
    const QString target = session.folder.filePath(u"copy.txt"_s);
    session.files().requestDownload(kRemotePath, target);
    session.receive(example.bytes());
    EXPECT_EQ(test::contentOf(target), "hello\n");
}

/// The message at `index` of those that an upload of the file sends.
Check isUploadMessage(size_t index) {
    return [index](const Example& example) {
        FileSession session;
        session.files().uploadFile(session.local, kRemotePath);
        EXPECT_EQ(session.transport.sent.size(), 3U);
        EXPECT_EQ(session.sent(index), example.bytes());
    };
}

void compareFileError(const Example& example) {
    FileSession session;
    const QString path = u"/nowhere/notes.txt"_s;
    session.receive(controlMessage(ControlTag::FileTransfer,
                                   fileTextMessage(FileMessageType::DownloadRequest, path)));
    EXPECT_EQ(session.sent(), example.bytes());

    QSignalSpy failed(&session.files(), &FileTransferService::fileError);
    session.receive(example.bytes());
    ASSERT_EQ(failed.count(), 1);
    EXPECT_EQ(failed[0][0].toString(), u"Cannot open file: /nowhere/notes.txt"_s);
}

} // namespace

Checks controlChecks() {
    return {
        {"hex input-mouse-move", isInput(pointerMove())},
        {"hex input-mouse-wheel", isInput(wheelTurn())},
        {"hex input-key-press", isInput(rightControl())},
        {"hex keyframe-request", compareKeyframeRequest},
        {"hex command-switch-monitor", compareMonitorSwitch},
        {"hex command-disconnect", compareDisconnect},
        {"hex clipboard", compareClipboard},
        {"hex chat", compareChat},
        {"hex file-listing-request", compareListingRequest},
        {"hex file-listing-response", compareListingResponse},
        {"hex file-download-request", compareDownloadRequest},
        {"hex file-download-response", compareDownloadResponse},
        {"hex file-upload-start", isUploadMessage(0)},
        {"hex file-upload-chunk", isUploadMessage(1)},
        {"hex file-upload-end", isUploadMessage(2)},
        {"hex file-error", compareFileError},
    };
}

} // namespace corvane::docs
