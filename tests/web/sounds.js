import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import {
  existsSync, mkdirSync, mkdtempSync, readFileSync, rmSync, statSync, utimesSync, writeFileSync,
} from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { test } from 'node:test';
import { kWeb, openPage, reload, said, tile } from './browser.js';
import { serve } from './server.js';

const kPacker = new URL('../../web/sounds', import.meta.url).pathname;
const kMaker = new URL('../../web/make_page.js', import.meta.url).pathname;
const kRate = 22050;

/// A tone of that many seconds as a .wav file.
function toneWave(seconds) {
  const samples = Math.round(seconds * kRate);
  const wave = Buffer.alloc(44 + 2 * samples);
  wave.write('RIFF', 0);
  wave.writeUInt32LE(36 + 2 * samples, 4);
  wave.write('WAVEfmt ', 8);
  wave.writeUInt32LE(16, 16);
  wave.writeUInt16LE(1, 20); // as it is
  wave.writeUInt16LE(1, 22); // channel
  wave.writeUInt32LE(kRate, 24);
  wave.writeUInt32LE(2 * kRate, 28);
  wave.writeUInt16LE(2, 32);
  wave.writeUInt16LE(16, 34);
  wave.write('data', 36);
  wave.writeUInt32LE(2 * samples, 40);
  for (let i = 0; i < samples; ++i) {
    wave.writeInt16LE(Math.round(12000 * Math.sin((2 * Math.PI * 440 * i) / kRate)), 44 + 2 * i);
  }
  return wave;
}

/// Sounds of the letters B and ठ as the program's drive has them, and an empty folder for the page.
function someSounds() {
  const root = mkdtempSync(join(tmpdir(), 'bramlee-sounds-'));
  const aud = join(root, 'aud');
  for (const folder of ['engc', 'hin/hinc']) mkdirSync(join(aud, folder), { recursive: true });
  writeFileSync(join(aud, 'engc/eng-b.wav'), toneWave(0.4));
  writeFileSync(join(aud, 'hin/hinc/hinc-12.wav'), toneWave(0.6));
  const packed = join(root, 'packed');
  const pack = () => execFileSync(kPacker, [packed, aud]);
  pack();
  return { root, aud, packed, pack };
}

test('the sounds that were made are packed, and again once they are others', () => {
  const { root, aud, packed, pack } = someSounds();
  const b = join(packed, 'engc/2.opus');
  assert.match(readFileSync(b, 'latin1').slice(0, 40), /^OggS.*OpusHead/s);
  const ttha = join(packed, 'hinc/12.opus');
  const { mtimeMs: packedAt } = statSync(ttha);
  assert.ok(!existsSync(join(packed, 'engc/1.opus')), 'a sound that was not made is none');
  const wave = join(aud, 'engc/eng-b.wav');
  writeFileSync(wave, toneWave(1.5));
  const later = new Date(Date.now() + 5000);
  utimesSync(wave, later, later);
  const before = readFileSync(b).length;
  pack();
  assert.ok(readFileSync(b).length > 2 * before, 'one that is longer now');
  assert.equal(statSync(ttha).mtimeMs, packedAt, 'one that is as it was stays');
  rmSync(wave);
  pack();
  assert.ok(!existsSync(b), 'one that is gone');
  rmSync(root, { recursive: true });
});

/// The page as web/build makes it, with those sounds beside it.
function pageWithSounds({ root, packed }) {
  const web = join(root, 'web');
  execFileSync(process.execPath, [kMaker, join(kWeb, 'letters.wasm.gz'), packed, web]);
  return web;
}

/// Notes each sound that has come to its end; for openPage's `prepare`.
const withHearing = (page) => page.evaluateOnNewDocument(() => {
  globalThis.heard = [];
  const { play } = HTMLMediaElement.prototype;
  HTMLMediaElement.prototype.play = function () {
    this.onended = () => globalThis.heard.push([this.src, this.duration]);
    return play.call(this);
  };
});

async function expectHeard(page, source) {
  await page.click(tile(2));
  await page.waitForFunction(() => globalThis.heard.length > 0, { polling: 100 });
  const [[heard, seconds]] = await page.evaluate(() => globalThis.heard);
  assert.equal(heard, source);
  assert.ok(Math.abs(seconds - 0.4) < 0.05, `${seconds} seconds were heard to the end`);
  await said(page, 'capital B is written');
}

test('a letter is heard as it is written, from a sound that was packed, without network too', async () => {
  const sounds = someSounds();
  const own = await serve(pageWithSounds(sounds));
  const page = await openPage({ url: own.url, address: '#engc', prepare: withHearing });
  const source = `${own.url}sounds/engc/2.opus`;
  await expectHeard(page, source);
  await page.waitForFunction(
    async (name) => (await caches.match(name)) !== undefined, { polling: 100 }, source);
  await own.close();
  await page.setOfflineMode(true);
  await reload(page);
  await expectHeard(page, source);
  await page.closeTrial();
  rmSync(sounds.root, { recursive: true });
});
