// Connects this project's transport with a WebRTC implementation of somebody else's, as either
// side, and exchanges messages. Usage: node interop.mjs <bridge> node | chromium [<browser>]
// With `bridge <command>` the other side is a second bridge, such as that of another platform.
import assert from 'node:assert/strict';
import { BridgePeer, ChromiumPeer, NodePeer } from './peers.mjs';

const PATIENCE_MS = 30_000;
const SIZES = [1, 1200, 65_535, 65_536, 262_144, 262_145, 1_000_000, 2_000_000];
const USUAL_LIMIT = 262_144; // of a peer that does not tell one
const CHANNELS = ['control', 'video'];

const [bridgeProgram, kind, ...command] = process.argv.slice(2);

const FOREIGN = {
  node: () => new NodePeer(),
  chromium: () => new ChromiumPeer(command[0] ?? 'chromium'),
  bridge: () => new BridgePeer(...command),
};

// Collects what a peer reports, for `next` to take in order.
class Inbox {
  constructor(name) {
    this.name = name;
    this.events = [];
    this.waiting = new Map();
  }

  put(event) {
    const waiting = this.waiting.get(event.event);
    if (waiting) {
      this.waiting.delete(event.event);
      waiting(event);
    } else {
      this.events.push(event);
    }
  }

  next(type, patience = PATIENCE_MS) {
    const index = this.events.findIndex(({ event }) => event === type);
    if (index >= 0) {
      return Promise.resolve(this.events.splice(index, 1)[0]);
    }
    return new Promise((resolve, reject) => {
      const timer = setTimeout(() => {
        this.waiting.delete(type);
        reject(new Error(`${this.name}: no "${type}" within ${patience} ms`));
      }, patience);
      this.waiting.set(type, (event) => {
        clearTimeout(timer);
        resolve(event);
      });
    });
  }
}

// Carries descriptions and candidates to the other peer and collects the rest.
function link(peer, other, name) {
  const inbox = new Inbox(name);
  let carried = Promise.resolve();
  peer.onEvent = ({ event, ...rest }) => {
    if (event === 'description' || event === 'candidate') {
      if (event === 'description') {
        inbox.put({ event, ...rest });
      }
      carried = carried.then(() => other.obey({ do: event, ...rest }));
    } else {
      inbox.put({ event, ...rest });
    }
  };
  return inbox;
}

// Nothing is sent twice on the video channel, and even loopback may drop a datagram.
async function exchange(from, fromInbox, toInbox, channel, size) {
  for (let attempt = 1; ; ++attempt) {
    from.obey({ do: 'send', channel, size, seed: size });
    const { ok, sum } = await fromInbox.next('sent');
    if (!ok) {
      return false;
    }
    try {
      const arrived = await toInbox.next('data', channel === 1 && attempt < 20 ? 1000 : PATIENCE_MS);
      assert.deepEqual([arrived.channel, arrived.size, arrived.sum], [channel, size, sum]);
      return true;
    } catch (error) {
      if (error instanceof assert.AssertionError || channel === 0 || attempt === 20) {
        throw error;
      }
    }
  }
}

async function run(weOffer) {
  const bridge = new BridgePeer(bridgeProgram);
  const foreign = FOREIGN[kind]();
  const ours = link(bridge, foreign, 'bridge');
  const theirs = link(foreign, bridge, kind);
  await foreign.start();
  if (weOffer) {
    await foreign.obey({ do: 'answer' });
    bridge.obey({ do: 'offer' });
  } else {
    bridge.obey({ do: 'answer' });
    await foreign.obey({ do: 'offer' });
  }
  await ours.next('connected');
  const { ordered = false, maxRetransmits = 0, limit } = await theirs.next('connected');
  assert.deepEqual([ordered, maxRetransmits], [false, 0], 'settings of the video channel');
  const { sdp } = await theirs.next('description');
  const takes = Number(/a=max-message-size:(\d+)/.exec(sdp)?.[1] ?? USUAL_LIMIT);
  const sends = Math.min(limit || USUAL_LIMIT, 2 ** 31);

  for (const [channel, label] of CHANNELS.entries()) {
    const largest = { toThem: 0, toUs: 0 };
    for (const size of SIZES) {
      const accepted = await exchange(bridge, ours, theirs, channel, size);
      assert.equal(accepted, takes === 0 || size <= takes, `${size} bytes to a limit of ${takes}`);
      largest.toThem = accepted ? size : largest.toThem;
      await foreign.obey({ do: 'text', channel });
      if (size <= sends) {
        await exchange(foreign, theirs, ours, channel, size);
        largest.toUs = size;
      }
    }
    console.log(`${kind}, ${weOffer ? 'we offer' : 'they offer'}, ${label}: 1 to ${largest.toThem} ` +
      `bytes to them (limit ${takes}), 1 to ${largest.toUs} bytes to us (limit ${sends})`);
  }
  assert.deepEqual(ours.events.filter(({ event }) => event === 'data'), [], 'text was delivered');
  await foreign.stop();
  await ours.next('disconnected');
  await bridge.stop();
}

await run(true);
await run(false);
process.exit(0);
