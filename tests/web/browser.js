// What the tests share: one browser, pages in it, and what they look at.
import { execFile } from 'node:child_process';
import { existsSync, mkdirSync, readdirSync, statSync } from 'node:fs';
import { readFile, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { promisify } from 'node:util';
import assert from 'node:assert/strict';
import { after } from 'node:test';
import puppeteer from 'puppeteer-core';
import { serve } from './server.js';

const kRoot = new URL('../..', import.meta.url).pathname;
export const kWeb = join(kRoot, 'build/web');
const kShots = join(kRoot, 'build/web-screenshots');
mkdirSync(kShots, { recursive: true });

export const kPhone = { width: 360, height: 640, deviceScaleFactor: 2, hasTouch: true };
export const kTablet = { width: 1024, height: 768, deviceScaleFactor: 1 };
export const kWallBoard = { width: 3840, height: 2160, deviceScaleFactor: 1 };

/// The four letters that stand for all: a capital, a Hindi consonant, a Telugu vowel, a digit.
export const kFourLetters = [
  { set: 'engc', tile: 2, name: 'capital B' },
  { set: 'hinc', tile: 12, name: 'ttha (ठ)' },
  { set: 'telv', tile: 1, name: 'అ' },
  { set: 'mat', tile: 8, name: '8' },
];

/// How long a test waits for what it expects before it fails.
const kTimeout = Number(process.env.WEB_TEST_TIMEOUT_MS ?? 30000);

// In a container root has no user namespaces to build the sandbox from.
const kSandbox = process.getuid?.() === 0 ? ['--no-sandbox'] : [];
export const browser = await puppeteer.launch({
  executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
  // One process for all pages: to begin one takes as long as a test.
  args: [
    ...kSandbox, '--autoplay-policy=user-gesture-required', '--lang=en',
    '--renderer-process-limit=1',
  ],
});
export const server = await serve(kWeb);
after(async () => {
  await browser.close();
  await server.close();
});

/// Opens a page with an empty storage. close() asserts that nothing went wrong on it, but for the
/// messages that `expected` matches.
export async function openPage({
  url = server.url, address = '', size = kTablet, prepare = () => {}, calm = false, languages,
  expected,
} = {}) {
  const page = await browser.newPage();
  page.setDefaultTimeout(kTimeout);
  const wrong = [];
  page.on('console', (message) => {
    if (message.type() === 'error' || message.type() === 'warn') wrong.push(message.text());
  });
  page.on('pageerror', (error) => wrong.push(String(error)));
  await page.setViewport(size);
  if (calm) await page.emulateMediaFeatures([{ name: 'prefers-reduced-motion', value: 'reduce' }]);
  if (languages) {
    await page.evaluateOnNewDocument((wanted) => {
      Object.defineProperty(navigator, 'languages', { get: () => wanted });
    }, languages);
  }
  await prepare(page);
  if (url.startsWith('http')) {
    const session = await page.createCDPSession();
    const origin = new URL(url).origin;
    await session.send('Storage.clearDataForOrigin', { origin, storageTypes: 'local_storage' });
    await session.detach();
  }
  await page.goto(url + address);
  await page.waitForSelector('html[data-shows]');
  page.closeTrial = async () => {
    await page.close();
    assert.deepEqual(wrong.filter((text) => !expected?.test(text)), [], 'nothing in the console');
  };
  return page;
}

/// Loads the page again and waits until it shows something.
export async function reload(page) {
  await page.reload();
  await page.waitForSelector('html[data-shows]');
}

/// Goes from home to a subject's board, which comes some time after the click.
export async function chooseSubject(page, set) {
  await page.click(`nav a[href="#${set}"]`);
  await page.waitForSelector(`.tiles.${set}`);
}

/// Waits until the page tells a screen reader that text.
export async function said(page, text) {
  await page.waitForFunction(
    (wanted) => document.getElementById('live').textContent.includes(wanted),
    { polling: 'mutation' },
    text,
  );
}

export function shot(page, name) {
  return page.screenshot({ path: join(kShots, `${name}.png`), optimizeForSpeed: true });
}

export const button = (name) => `[data-name="${name}"]`;
export const tile = (number) => `[data-tile="${number}"]`;

/// A tool of the program: in BRAMLEE_TOOLS, a folder, or else that of the preset built last.
function programsTool(name) {
  const builds = join(kRoot, 'build');
  const { BRAMLEE_TOOLS: chosen } = process.env;
  const folders = chosen ? [chosen] : readdirSync(builds).map((preset) => join(builds, preset, 'tools'));
  const [found] = folders
    .map((folder) => join(folder, name))
    .filter((path) => existsSync(path))
    .sort((a, b) => statSync(b).mtimeMs - statSync(a).mtimeMs);
  assert.ok(found, `${name} is not built: it is in none of ${folders.join(', ')}`);
  return found;
}

const run = promisify(execFile);

/// A letter's pen strokes as lists of [x, y], in sheet pixels, in the form of the book.
export async function penStrokes({ set, tile }) {
  const { stdout } = await run(programsTool('bramlee-strokes'), [set, String(tile), '--book', '--pen-strokes'], {
    maxBuffer: 1 << 24,
  });
  return JSON.parse(stdout).strokes.map((stroke) => stroke.points);
}

/// What the program says of a pen that traces a letter in the form of the book: an object for each
/// touch, and one at the end. `leastRadius` is in sheet pixels, `events` are {down: [x, y]},
/// {move: [x, y]} and {up: true}.
export async function programsVerdicts({ set, tile }, { level, leastRadius }, events) {
  const judged = run(programsTool('bramlee-trace'), [
    set, String(tile), '--book', '--level', level, '--least-radius', String(leastRadius),
  ]);
  judged.child.stdin.end(events.map((event) => `${JSON.stringify(event)}\n`).join(''));
  const { stdout } = await judged;
  return stdout.trim().split('\n').map((line) => JSON.parse(line));
}

let pictures = 0;

/// The program's own picture of a letter, as a PNG in base64.
async function programsPicture({ set, tile }, scale) {
  const path = join(tmpdir(), `bramlee-web-${process.pid}-${pictures++}.png`);
  await run(programsTool('bramlee-strokes'), [set, String(tile), '--png', path, '--scale', String(scale)]);
  const bytes = await readFile(path);
  await rm(path);
  return bytes.toString('base64');
}

/// Compares the sheet's pixels with the program's picture of that letter: how many are inked, and
/// how far the most different one is off, in levels of 255.
export async function comparedWithProgram(page, letter) {
  const ratio = await page.$eval('.sheet', (sheet) => sheet.dataset.ratio);
  const png = await programsPicture(letter, ratio);
  return page.evaluate(async (base64) => {
    const { dataset } = document.querySelector('.sheet');
    const canvas = document.querySelector('canvas.ink');
    const bytes = Uint8Array.from(atob(base64), (sign) => sign.charCodeAt(0));
    const picture = await createImageBitmap(new Blob([bytes]));
    const drawn = new OffscreenCanvas(canvas.width, canvas.height).getContext('2d');
    drawn.drawImage(picture, -Number(dataset.left), -Number(dataset.top));
    const copy = new OffscreenCanvas(canvas.width, canvas.height).getContext('2d');
    copy.drawImage(canvas, 0, 0);
    const ours = copy.getImageData(0, 0, canvas.width, canvas.height).data;
    const theirs = drawn.getImageData(0, 0, canvas.width, canvas.height).data;
    const ground = theirs.subarray(0, 4);
    let inked = 0;
    let most = 0;
    for (let i = 0; i < ours.length; i += 4) {
      if (theirs[i + 3] === 0) continue; // beyond the picture
      if (theirs[i + 1] !== ground[1]) ++inked;
      for (let part = i; part < i + 3; ++part) {
        most = Math.max(most, Math.abs(ours[part] - theirs[part]));
      }
    }
    return { inked, most };
  }, png);
}

/// What the ink's canvas shows, in short: equal for equal pictures.
export function inkOf(page) {
  return page.evaluate(async () => {
    const canvas = document.querySelector('canvas.ink');
    const copy = new OffscreenCanvas(canvas.width, canvas.height).getContext('2d');
    copy.drawImage(canvas, 0, 0);
    const { data } = copy.getImageData(0, 0, canvas.width, canvas.height);
    const hash = await crypto.subtle.digest('SHA-256', data);
    return `${canvas.width}x${canvas.height} ${new Uint32Array(hash).join(' ')}`;
  });
}

/// Two frames later: whatever was to be painted is.
export function framesLater(page) {
  return page.evaluate(
    () => new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(done))),
  );
}

/// The places in the window of places [x, y] on the sheet.
export function allOnScreen(page, points) {
  return page.evaluate((all) => {
    const { dataset } = document.querySelector('.sheet');
    const canvas = document.querySelector('canvas.ink');
    const rect = canvas.getBoundingClientRect();
    const css = rect.width / canvas.width;
    return all.map(([x, y]) => ({
      x: rect.left + (x * dataset.ratio - dataset.left) * css,
      y: rect.top + (y * dataset.ratio - dataset.top) * css,
    }));
  }, points);
}

/// The fingers of a hand at those places in the window.
export function touch(session, type, places) {
  const touchPoints = places.map(({ x, y }, id) => ({ x, y, id }));
  return session.send('Input.dispatchTouchEvent', { type, touchPoints });
}

/// A stylus or a mouse that is pressed, moves or is released at that place in the window. A move
/// without its button would end a mouse's capture, which no real one does.
export function pointer(session, pointerType, type, { x, y }) {
  return session.send('Input.dispatchMouseEvent', {
    type, x, y, pointerType, button: 'left', clickCount: 1, buttons: type === 'mouseReleased' ? 0 : 1,
  });
}

/// Frames come only when the test asks for them by frameAfter(ms); for openPage's `prepare`.
export function withClock(page) {
  return page.evaluateOnNewDocument(() => {
    let now = 0;
    let due = new Map();
    let next = 1;
    performance.now = () => now;
    globalThis.requestAnimationFrame = (call) => due.set(next, call) && next++;
    globalThis.cancelAnimationFrame = (id) => due.delete(id);
    globalThis.frameAfter = (ms) => {
      now += ms;
      const calls = due;
      due = new Map();
      for (const call of calls.values()) call(now);
    };
  });
}

/// So many frames, each so many milliseconds after the last one.
export function frames(page, count, ms) {
  return page.evaluate((times, apart) => {
    for (let i = 0; i < times; ++i) frameAfter(apart);
  }, count, ms);
}

/// Of B. Here and not beside the tests that use it: a test that is registered after a pause would
/// come after the end.
export const kStrokesOfB = await penStrokes(kFourLetters[0]);
