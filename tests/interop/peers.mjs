// The ends of a connection: each takes commands through `obey` and reports to `onEvent`.
import { spawn } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { createInterface } from 'node:readline';
import './foreign-peer.js';

// This project's transport, in a program of its own.
export class BridgePeer {
  constructor(program, ...rest) {
    this.process = spawn(program, rest, { stdio: ['pipe', 'pipe', 'inherit'] });
    createInterface({ input: this.process.stdout }).on(
      'line', (line) => this.onEvent(JSON.parse(line)));
  }

  async start() {}

  obey(command) {
    this.process.stdin.write(`${JSON.stringify(command)}\n`);
  }

  stop() {
    this.process.stdin.end();
    return new Promise((resolve) => this.process.once('exit', resolve));
  }
}

// The WebRTC bindings for Node.
export class NodePeer {
  async start() {
    const { RTCPeerConnection } = createRequire(import.meta.url)('@roamhq/wrtc');
    this.peer = new ForeignPeer(RTCPeerConnection, (event) => this.onEvent(event));
  }

  obey(command) {
    return this.peer.obey(command);
  }

  stop() {
    this.peer.connection.close();
  }
}

// A page of a headless browser, driven over its debugging pipe: messages end with a zero byte.
export class ChromiumPeer {
  constructor(program) {
    this.profile = mkdtempSync(join(tmpdir(), 'corvane-interop-'));
    this.process = spawn(program, [
      '--headless=new', '--no-sandbox', '--disable-gpu', '--remote-debugging-pipe',
      '--disable-features=WebRtcHideLocalIpsWithMdns', `--user-data-dir=${this.profile}`,
      'about:blank',
    ], { stdio: ['ignore', 'ignore', 'ignore', 'pipe', 'pipe'] });
    this.answers = new Map();
    this.calls = 0;
    let pending = Buffer.alloc(0);
    this.process.stdio[4].on('data', (piece) => {
      pending = Buffer.concat([pending, piece]);
      for (let end; (end = pending.indexOf(0)) >= 0; pending = pending.subarray(end + 1)) {
        this.hear(JSON.parse(pending.subarray(0, end).toString()));
      }
    });
  }

  hear(message) {
    if (message.id !== undefined) {
      const { resolve, reject } = this.answers.get(message.id);
      this.answers.delete(message.id);
      const failure = message.error?.message ?? message.result.exceptionDetails?.text;
      failure ? reject(new Error(`${failure} ${JSON.stringify(message.result ?? '')}`))
        : resolve(message.result);
    } else if (message.method === 'Runtime.bindingCalled') {
      this.onEvent(JSON.parse(message.params.payload));
    }
  }

  call(method, params = {}) {
    const id = ++this.calls;
    const { session: sessionId } = this;
    this.process.stdio[3].write(`${JSON.stringify({ id, method, params, sessionId })}\0`);
    return new Promise((resolve, reject) => this.answers.set(id, { resolve, reject }));
  }

  evaluate(expression) {
    return this.call('Runtime.evaluate', { expression, awaitPromise: true });
  }

  async start() {
    const { targetInfos } = await this.call('Target.getTargets');
    const { targetId } = targetInfos.find(({ type }) => type === 'page');
    ({ sessionId: this.session } =
      await this.call('Target.attachToTarget', { targetId, flatten: true }));
    await this.call('Runtime.enable');
    await this.call('Runtime.addBinding', { name: 'report' });
    await this.evaluate(readFileSync(new URL('foreign-peer.js', import.meta.url), 'utf8'));
    await this.evaluate(
      'globalThis.peer = new ForeignPeer(RTCPeerConnection, (e) => report(JSON.stringify(e)));0');
  }

  obey(command) {
    return this.evaluate(`peer.obey(${JSON.stringify(command)}).then(() => 0)`);
  }

  async stop() {
    await this.evaluate('peer.connection.close()');
    const ended = new Promise((resolve) => this.process.once('exit', resolve));
    this.call('Browser.close').catch(() => {});
    await ended;
    rmSync(this.profile, { recursive: true, force: true, maxRetries: 5 });
  }
}
