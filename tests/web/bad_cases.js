import assert from 'node:assert/strict';
import { test } from 'node:test';
import {
  allOnScreen, button, kPhone, kStrokesOfB, kWeb, openPage, reload, said, server, shot, tile,
} from './browser.js';
import { serve } from './server.js';

const withoutWasm = (page) => page.evaluateOnNewDocument(() => delete globalThis.WebAssembly);
const kNoWasm = 'This browser cannot write the letters. Here they are as pictures.';

/// Waits until the page shows the still pictures; returns what they are in.
async function picturesBeside(page) {
  const frame = await (await page.waitForSelector('iframe')).contentFrame();
  await frame.waitForSelector('.still li svg path');
  return frame;
}

test('without WebAssembly a line says so and the letters are still pictures', async () => {
  const page = await openPage({ prepare: withoutWasm, size: kPhone });
  const line = await page.waitForSelector('[role="alert"]');
  assert.equal(await line.evaluate((it) => it.textContent), kNoWasm);
  const frame = await picturesBeside(page);
  assert.equal((await frame.$$('.still')).length, 7);
  assert.ok((await frame.$$('.still li')).length > 250);
  await shot(page, 'still-phone');
  await page.closeTrial();
});

test('the single file has the still pictures inside', async () => {
  const page = await openPage({
    url: `file://${kWeb}/bramlee-letters.html`, prepare: withoutWasm,
  });
  await page.waitForSelector('#app .still li svg path');
  assert.ok((await page.$$('#app .still li')).length > 250);
  await page.closeTrial();
});

for (const [what, script] of [['cannot read', Buffer.from('let 1;')], ['does not get', null]]) {
  test(`a browser that ${what} the script says so and shows the pictures`, async () => {
    const own = await serve(kWeb, (name, bytes) => (name === 'page.js' ? script : bytes));
    const page = await openPage({ url: own.url, expected: /SyntaxError|404/ });
    assert.equal(await page.$eval('[role="alert"]', (it) => it.textContent), kNoWasm);
    await picturesBeside(page);
    await page.closeTrial();
    await own.close();
  });
}

test('letters that do not load give a line, pictures and a way to try again', async () => {
  const own = await serve(kWeb, (name, bytes) => (name === 'letters.wasm.gz' ? null : bytes));
  const page = await openPage({ url: own.url, expected: /404|wasm|integrity/i });
  const line = await page.waitForSelector('[role="alert"]');
  assert.equal(
    await line.evaluate((it) => it.textContent),
    'The letters could not be loaded. Here they are as pictures.');
  await picturesBeside(page);
  own.setChange((_, bytes) => bytes);
  await page.click('button.plain');
  await page.waitForSelector('nav a');
  await page.closeTrial();
  await own.close();
});

test('a refused storage changes nothing but what lasts', async () => {
  const refuse = (page) => page.evaluateOnNewDocument(() => {
    Object.defineProperty(globalThis, 'localStorage', {
      get() { throw new DOMException('refused', 'SecurityError'); },
    });
  });
  const page = await openPage({ address: '#engc', prepare: refuse, calm: true });
  await page.click(button('trace'));
  await page.click(tile(2));
  await page.click(button('level'));
  assert.equal(
    await page.$eval(button('level'), (it) => it.getAttribute('aria-label')), 'Level: gentle');
  await page.keyboard.press('Space'); // on the button: the next level
  await page.focus(tile(2));
  const strokes = kStrokesOfB;
  for (let i = 0; i < strokes.length; ++i) await page.keyboard.press('Space');
  await said(page, 'Well done!');
  assert.equal(
    await page.$eval(tile(2), (it) => it.getAttribute('aria-label')),
    'capital B, written with help');
  await page.closeTrial();
});

test('stars that are no stars in the storage count as none', async () => {
  const page = await openPage({ address: '#engc' });
  for (const rubbish of ['null', '7', '{"engc/2":', '{"engc/2":9}']) {
    await page.evaluate((text) => localStorage.setItem('bramlee-stars', text), rubbish);
    await reload(page);
    assert.equal(await page.$eval(tile(2), (it) => it.getAttribute('aria-label')), 'capital B');
  }
  await page.closeTrial();
});

/// As the server is while another version is copied to it: its index.html is there already.
const newerIndex = (name, bytes) =>
  name === 'index.html'
    ? Buffer.from(String(bytes).replace(/data-version="[^"]*"/, 'data-version="newer"'))
    : bytes;

test('a page opened in the middle of an update loads once more', async () => {
  let loads = 0;
  const own = await serve(kWeb, (name, bytes) => {
    if (name === 'index.html') ++loads;
    return name === 'index.html' && loads === 1 ? newerIndex(name, bytes) : bytes;
  });
  const page = await openPage({ url: own.url });
  await page.waitForSelector('nav a');
  assert.equal(
    await page.evaluate(() => performance.getEntriesByType('navigation')[0].type), 'reload');
  await page.closeTrial();
  await own.close();
});

test('a server that stays in the middle of an update gives a line, pictures and a way to try again', async () => {
  const own = await serve(kWeb, newerIndex);
  const page = await openPage({ url: own.url });
  await page.waitForFunction(
    () => document.querySelector('[role="alert"]')?.textContent === 'This page has just been renewed.',
    { polling: 100 });
  await picturesBeside(page);
  own.setChange((_, bytes) => bytes);
  await page.click('button.plain');
  await page.waitForSelector('nav a');
  await page.closeTrial();
  await own.close();
});

test('no mixture of two versions is kept for offline use', async () => {
  const own = await serve(kWeb, (name, bytes) =>
    name === 'page.css' ? Buffer.concat([bytes, Buffer.from('/* newer */')]) : bytes);
  const page = await openPage({ url: own.url, expected: /integrity|digest/ });
  const installed = await page.evaluate(async () => {
    const { installing } = await navigator.serviceWorker.register('worker.js');
    if (!installing) return 'none';
    if (installing.state !== 'redundant') {
      await new Promise((changed) => installing.addEventListener('statechange', changed, { once: true }));
    }
    return installing.state;
  });
  assert.ok(['redundant', 'none'].includes(installed), installed);
  assert.equal(await page.evaluate(async () => {
    const cache = await caches.open((await caches.keys())[0] ?? 'none');
    return (await cache.keys()).length;
  }), 0);
  await page.closeTrial();
  await own.close();
});

test('a new version takes over as a whole once the old page is closed', async () => {
  const own = await serve(kWeb);
  const page = await openPage({ url: own.url });
  await page.evaluate(() => navigator.serviceWorker.ready);
  const version = await page.evaluate(() => document.documentElement.dataset.version);
  own.setChange((name, bytes) =>
    name === 'worker.js' ? Buffer.from(String(bytes).replaceAll(version, 'newer')) : bytes);
  const waiting = await page.evaluate(async () => {
    const registration = await navigator.serviceWorker.ready;
    await registration.update();
    const next = registration.installing ?? registration.waiting;
    while (next.state === 'installing') {
      await new Promise((changed) => next.addEventListener('statechange', changed, { once: true }));
    }
    return { state: next.state, caches: (await caches.keys()).length };
  });
  assert.deepEqual(waiting, { state: 'installed', caches: 2 });
  await reload(page); // which is open all the while
  const stillWaiting = await page.evaluate(async () => {
    const registration = await navigator.serviceWorker.ready;
    return { state: registration.waiting?.state, caches: (await caches.keys()).length };
  });
  assert.deepEqual(stillWaiting, waiting);
  await page.closeTrial();
  const later = await openPage({ url: own.url });
  await later.waitForSelector('nav a');
  await later.waitForFunction(
    async () => (await caches.keys()).join() === 'bramlee-newer', { polling: 100 });
  await later.closeTrial();
  await own.close();
});

test('sound that the browser keeps back is offered, and the letter is written all the same', async () => {
  const own = await serve(kWeb, (name, bytes) => {
    if (name.startsWith('sounds/')) return Buffer.from('no more than a mark');
    if (name !== 'index.html') return bytes;
    return Buffer.from(String(bytes).replace(/data-sounds="[^"]*"/, 'data-sounds="engc"'));
  });
  const page = await openPage({
    url: own.url,
    address: '#engc/2',
    prepare: (page) => page.evaluateOnNewDocument(() => {
      globalThis.texts = [];
      new MutationObserver(() => globalThis.texts.push(document.getElementById('live')?.textContent))
        .observe(document, { subtree: true, childList: true });
      let isTouched = false;
      addEventListener('pointerdown', () => (isTouched = true), true);
      HTMLMediaElement.prototype.play = function () {
        globalThis.asked = this.src;
        const refused = new DOMException('touch something first', 'NotAllowedError');
        return isTouched ? Promise.resolve() : Promise.reject(refused);
      };
    }),
  });
  await page.waitForSelector('header .waits');
  assert.equal(await page.evaluate(() => globalThis.asked), `${own.url}sounds/engc/2.opus`);
  const texts = await page.evaluate(() => globalThis.texts);
  assert.ok(texts.includes('The browser keeps the sound until something is touched.'));
  const name = () => page.$eval(button('sound'), (it) => it.getAttribute('aria-label'));
  assert.equal(await name(), 'Hear the letter');
  await page.click(button('sound'));
  await page.waitForFunction(() => document.querySelector('header .waits') === null, { polling: 'mutation' });
  assert.equal(await name(), 'Sound');
  await said(page, 'capital B is written');
  await page.click(button('sound'));
  await page.evaluate(() => (globalThis.asked = 'nothing'));
  await page.click(tile(1));
  assert.equal(await page.evaluate(() => globalThis.asked), 'nothing');
  await page.closeTrial();
  await own.close();
});

test('a lost mouse release lifts the pen at the next move', async () => {
  const page = await openPage({ address: '#engc' });
  await page.click(button('trace'));
  await page.click(tile(2));
  const strokes = kStrokesOfB;
  const [stroke] = strokes;
  await page.evaluate(() => {
    document.addEventListener('pointerup', (event) => event.stopImmediatePropagation(), true);
    document.addEventListener('lostpointercapture', (event) => event.stopImmediatePropagation(), true);
  });
  const places = await allOnScreen(
    page, stroke.filter((_, i) => i % 8 === 0 || i === stroke.length - 1));
  await page.mouse.move(places[0].x, places[0].y);
  await page.mouse.down();
  for (const place of places) await page.mouse.move(place.x, place.y);
  await page.mouse.up();
  await page.mouse.move(places[0].x, places[0].y);
  await said(page, `Stroke 2 of ${strokes.length}`);
  await page.closeTrial();
});

test('an address that names nothing shows home', async () => {
  const page = await openPage({ address: '#nothing/99' });
  await page.waitForSelector('nav a');
  await page.goto(`${server.url}#engc/99`);
  await page.waitForSelector('.tiles');
  await page.closeTrial();
});
