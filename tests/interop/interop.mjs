// Connects this project's transport with the WebRTC implementation of a browser, as either side, and
// exchanges messages. Usage: node interop.mjs <bridge> chromium [<browser>]
// With `bridge <command>` the other side is a second bridge, such as that of another platform.
import assert from 'node:assert/strict';
import { setTimeout as pause } from 'node:timers/promises';
import { BridgePeer, ChromiumPeer } from './peers.mjs';

const PATIENCE_MS = 30_000;
const SIZES = [1, 1200, 65_535, 65_536, 262_144, 262_145, 1_000_000, 2_000_000];
const USUAL_LIMIT = 262_144; // of a peer that does not tell one
const CHANNELS = ['control', 'video'];

const [bridgeProgram, kind, ...command] = process.argv.slice(2);

const FOREIGN = {
  chromium: () => new ChromiumPeer(command[0] ?? 'chromium'),
  bridge: () => new BridgePeer(...command),
};

// Collects what a peer reports, for `next` to take in order.
class Inbox {
  constructor(name) {
    this.name = name;
    this.events = [];
  }

  async next(type, patience = PATIENCE_MS) {
    for (const end = Date.now() + patience; Date.now() < end; await pause(2)) {
      const index = this.events.findIndex(({ event }) => event === type);
      if (index >= 0) {
        return this.events.splice(index, 1)[0];
      }
    }
    throw new Error(`${this.name}: no "${type}" within ${patience} ms`);
  }
}

// Carries descriptions and candidates to the other peer and collects the rest.
function link(peer, other, name) {
  const inbox = new Inbox(name);
  let carried = Promise.resolve();
  peer.onEvent = ({ event, ...rest }) => {
    if (event === 'description' || event === 'candidate') {
      carried = carried.then(() => other.obey({ do: event, ...rest }));
    }
    inbox.events.push({ event, ...rest });
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
