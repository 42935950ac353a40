import assert from 'node:assert/strict';
import { test } from 'node:test';
import {
  allOnScreen, button, comparedWithProgram, framesLater, inkOf, kFourLetters, kPhone, kStrokesOfB,
  kTablet, openPage, pointer, reload, said, shot, tile, touch,
} from './browser.js';

const [B] = kFourLetters;
const kStrokes = kStrokesOfB;
const kFirst = `Stroke 1 of ${kStrokes.length}`;
const kSecond = `Stroke 2 of ${kStrokes.length}`;

/// A board on which B stands to be traced.
async function openTracing(options = {}) {
  const page = await openPage({ address: '#engc', ...options });
  await page.click(button('trace'));
  await page.click(tile(2));
  await said(page, kFirst);
  return page;
}

/// Every few points of a stroke, in the window.
function placesOf(page, stroke) {
  return allOnScreen(page, stroke.filter((_, i) => i % 8 === 0 || i === stroke.length - 1));
}

async function traceByMouse(page, places) {
  await page.mouse.move(places[0].x, places[0].y);
  await page.mouse.down();
  for (const place of places.slice(1)) await page.mouse.move(place.x, place.y);
  await page.mouse.up();
}

const stars = (page) => page.evaluate(() => localStorage.getItem('bramlee-stars'));

test('a letter traced with the mouse stands in the pen\'s own dots and earns a star', async () => {
  const page = await openTracing();
  await shot(page, 'trace-begin');
  await traceByMouse(page, await placesOf(page, kStrokes[0]));
  await said(page, kSecond);
  await shot(page, 'trace-second');
  for (const stroke of kStrokes.slice(1)) await traceByMouse(page, await placesOf(page, stroke));
  await said(page, 'Well done! capital B is written.');
  await framesLater(page);
  await shot(page, 'trace-star');
  assert.equal(await stars(page), '{"engc/2":"full"}');
  assert.equal(
    await page.$eval(tile(2), (it) => it.getAttribute('aria-label')), 'capital B, written');
  await page.click(button('trace'));
  const { most } = await comparedWithProgram(page, B);
  assert.ok(most <= 1, `${most}`);
  await page.closeTrial();
});

test('a second finger changes nothing', async () => {
  const page = await openTracing({ size: kPhone });
  const session = await page.createCDPSession();
  const [stroke] = kStrokes;
  const places = await placesOf(page, stroke);
  const resting = { x: places[0].x + 60, y: places[0].y + 20 };
  await touch(session, 'touchStart', [places[0]]);
  await touch(session, 'touchStart', [places[0], resting]);
  for (const place of places.slice(1)) await touch(session, 'touchMove', [place, resting]);
  await touch(session, 'touchEnd', []);
  await said(page, kSecond);
  await shot(page, 'trace-phone');
  await page.closeTrial();
});

test('a stylus traces, and the hand that rests beside it changes nothing', async () => {
  const page = await openTracing({ size: kPhone });
  const session = await page.createCDPSession();
  const stylus = (type, place) => pointer(session, 'pen', type, place);
  const places = await placesOf(page, kStrokes[0]);
  const resting = { x: places[0].x + 60, y: places[0].y + 20 };
  await touch(session, 'touchStart', [resting]);
  await stylus('mousePressed', places[0]);
  for (const place of places.slice(1)) await stylus('mouseMoved', place);
  await stylus('mouseReleased', places.at(-1));
  await touch(session, 'touchEnd', []);
  await said(page, kSecond);
  await page.closeTrial();
});

test('a pointer that the browser takes away is no miss', async () => {
  const page = await openTracing({ size: kPhone });
  const session = await page.createCDPSession();
  const [stroke] = kStrokes;
  const places = await placesOf(page, stroke);
  for (let lost = 0; lost < 5; ++lost) { // more than the misses after which the pen writes it
    await touch(session, 'touchStart', [places[0]]);
    await touch(session, 'touchMove', [places[3]]);
    await touch(session, 'touchCancel', []);
  }
  assert.equal(
    await page.$eval('#live', (it) => it.textContent),
    `${kFirst}: begin at the green dot.`);
  await touch(session, 'touchStart', [places[0]]);
  for (const place of places.slice(1)) await touch(session, 'touchMove', [place]);
  await touch(session, 'touchEnd', []);
  await said(page, kSecond);
  await page.closeTrial();
});

test('a stroke can be traced across a resize of the window', async () => {
  const page = await openTracing();
  const [stroke] = kStrokes;
  const places = await placesOf(page, stroke);
  const half = Math.floor(places.length / 2);
  await page.mouse.move(places[0].x, places[0].y);
  await page.mouse.down();
  for (const place of places.slice(1, half)) await page.mouse.move(place.x, place.y);
  const before = await page.$eval('.sheet', (sheet) => sheet.dataset.ratio);
  await page.setViewport({ ...kTablet, height: 600 });
  await page.waitForFunction(
    (ratio) => document.querySelector('.sheet').dataset.ratio !== ratio, {}, before);
  for (const place of (await placesOf(page, stroke)).slice(half)) {
    await page.mouse.move(place.x, place.y);
  }
  await page.mouse.up();
  await said(page, kSecond);
  await page.closeTrial();
});

test('after four misses the pen writes the stroke, with help at each', async () => {
  const page = await openTracing();
  const [far] = await allOnScreen(page, [[700, 200]]);
  const miss = async () => {
    await page.mouse.move(far.x, far.y);
    await page.mouse.down();
    await page.mouse.move(far.x + 30, far.y);
    await page.mouse.up();
  };
  const helps = ['Once more', 'Look how the pen does it', 'Once more', kSecond];
  for (const help of helps) {
    await miss();
    await said(page, help);
    await shot(page, `trace-help-${helps.indexOf(help)}`);
  }
  for (const stroke of kStrokes.slice(1)) await traceByMouse(page, await placesOf(page, stroke));
  await said(page, 'Well done!');
  assert.equal(await stars(page), '{"engc/2":"helped"}');
  await page.closeTrial();
});

test('the space bar has strokes written for who has no pointer', async () => {
  const page = await openTracing({ calm: true });
  await page.focus(tile(2));
  await page.keyboard.press('Space');
  await said(page, kSecond);
  for (let i = 1; i < kStrokes.length; ++i) await page.keyboard.press('Space');
  await said(page, 'Well done!');
  await page.closeTrial();
});

test('a page that is hidden lifts the pen', async () => {
  const page = await openTracing();
  const [stroke] = kStrokes;
  const places = await placesOf(page, stroke);
  await page.mouse.move(places[0].x, places[0].y);
  await page.mouse.down();
  for (const place of places.slice(1)) await page.mouse.move(place.x, place.y);
  await page.evaluate(() => {
    Object.defineProperty(document, 'hidden', { get: () => true });
    document.dispatchEvent(new Event('visibilitychange'));
  });
  await said(page, kSecond);
  await page.mouse.up();
  await page.closeTrial();
});

test('the level is chosen by its button and lasts', async () => {
  const page = await openTracing();
  const level = () => page.$eval(button('level'), (it) => it.getAttribute('aria-label'));
  assert.equal(await level(), 'Level: normal');
  await page.click(button('level'));
  assert.equal(await level(), 'Level: gentle');
  await reload(page);
  await page.click(button('trace'));
  assert.equal(await level(), 'Level: gentle');
  await page.closeTrial();
});

test('tracing begins with the letter that stands, and ends with the sheet as the pen left it', async () => {
  const page = await openPage({ address: '#engc/2', calm: true });
  await said(page, 'capital B is written');
  const whole = await inkOf(page);
  await page.click(button('trace'));
  await said(page, kFirst);
  assert.notEqual(await inkOf(page), whole);
  await page.click(button('trace'));
  await page.click(button('pause')); // "Go on"
  await said(page, 'capital B is written');
  assert.equal(await inkOf(page), whole);
  await page.closeTrial();
});
