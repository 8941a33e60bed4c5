// The other end of the bridge, for any WebRTC implementation with the browsers' interface. Also
// evaluated inside a browser's page, so it imports nothing.

globalThis.pattern = (size, seed) => {
  const bytes = new Uint8Array(size);
  let state = seed >>> 0;
  for (let i = 0; i < size; ++i) {
    state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
    bytes[i] = state >>> 24;
  }
  return bytes;
};

globalThis.checksum = (bytes) => {
  let sum = 0x811c9dc5;
  for (const byte of bytes) {
    sum = Math.imul(sum ^ byte, 0x01000193) >>> 0;
  }
  return sum;
};

// Speaks the same commands and events as the bridge, plus the command "text".
globalThis.ForeignPeer = class {
  constructor(PeerConnection, emit) {
    this.connection = new PeerConnection();
    this.emit = emit;
    this.channels = [];
    this.open = 0;
    this.connection.onicecandidate = ({ candidate }) => {
      if (candidate && candidate.candidate) {
        emit({ event: 'candidate', candidate: candidate.candidate, mid: candidate.sdpMid });
      }
    };
    this.connection.ondatachannel = ({ channel }) => this.adopt(channel);
  }

  adopt(channel) {
    const index = ['control', 'video'].indexOf(channel.label);
    this.channels[index] = channel;
    channel.binaryType = 'arraybuffer';
    const opened = () => {
      this.open += 1;
      if (this.open === 2) {
        const { ordered, maxRetransmits } = this.channels[1];
        const limit = this.connection.sctp?.maxMessageSize;
        this.emit({ event: 'connected', ordered, maxRetransmits, limit });
      }
    };
    if (channel.readyState === 'open') {
      opened();
    } else {
      channel.onopen = opened;
    }
    channel.onmessage = ({ data }) => {
      const bytes = new Uint8Array(data);
      this.emit({ event: 'data', channel: index, size: bytes.length, sum: checksum(bytes) });
    };
  }

  async describe(create) {
    const description = await this.connection[create]();
    await this.connection.setLocalDescription(description);
    this.emit({ event: 'description', type: description.type, sdp: description.sdp });
  }

  async obey(command) {
    switch (command.do) {
      case 'offer':
        this.adopt(this.connection.createDataChannel('control'));
        this.adopt(
          this.connection.createDataChannel('video', { ordered: false, maxRetransmits: 0 }));
        return this.describe('createOffer');
      case 'description':
        await this.connection.setRemoteDescription({ type: command.type, sdp: command.sdp });
        return command.type === 'offer' ? this.describe('createAnswer') : undefined;
      case 'candidate':
        return this.connection.addIceCandidate(
          { candidate: command.candidate, sdpMid: command.mid });
      case 'text':
        return this.channels[command.channel].send('text is not for the session');
      case 'send': {
        const bytes = pattern(command.size, command.seed);
        this.channels[command.channel].send(bytes);
        return this.emit({ event: 'sent', ok: true, sum: checksum(bytes) });
      }
    }
  }
};
