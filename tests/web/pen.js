import assert from 'node:assert/strict';
import { test } from 'node:test';
import {
  button, comparedWithProgram, frames, framesLater, inkOf, kFourLetters, openPage, said, shot, tile, withClock,
} from './browser.js';

const [B] = kFourLetters;

/// The speed slider at so many doublings.
function setSpeed(page, doublings) {
  return page.$eval(button('speed'), (slider, value) => {
    slider.value = value;
    slider.dispatchEvent(new Event('input'));
  }, String(doublings));
}

const isPaused = (page) => page.$eval(button('pause'), (it) => it.getAttribute('aria-label') === 'Go on');

test('a pause holds the pen, and the letter is whole after it goes on', async () => {
  const page = await openPage({ address: '#engc' });
  await setSpeed(page, -3);
  await page.click(tile(2));
  await page.keyboard.press('Space');
  assert.ok(await isPaused(page));
  await said(page, 'Pause');
  const paused = await inkOf(page);
  await framesLater(page);
  assert.equal(await inkOf(page), paused);
  await shot(page, 'paused');
  await setSpeed(page, 3);
  await page.keyboard.press('Space');
  await said(page, 'capital B is written');
  const { most } = await comparedWithProgram(page, B);
  assert.ok(most <= 1, `${most}`);
  await page.closeTrial();
});

test('strokes go back and come again', async () => {
  const page = await openPage({ address: '#engc/2', calm: true });
  await said(page, 'capital B is written');
  const whole = await inkOf(page);
  await page.click(button('back'));
  const oneBack = await inkOf(page);
  assert.notEqual(oneBack, whole);
  await page.click(button('back'));
  assert.notEqual(await inkOf(page), oneBack);
  await page.click(button('on'));
  assert.equal(await inkOf(page), oneBack);
  await page.click(button('on'));
  assert.equal(await inkOf(page), whole);
  assert.equal(await page.$eval(button('on'), (it) => it.getAttribute('aria-disabled')), 'true');
  await page.closeTrial();
});

test('the way from one stroke to the next is not painted', async () => {
  const page = await openPage({ address: '#engc', prepare: withClock });
  await page.evaluate(() => {
    globalThis.heights_ = [];
    const { putImageData } = CanvasRenderingContext2D.prototype;
    CanvasRenderingContext2D.prototype.putImageData = function (...all) {
      globalThis.heights_.push(all[6] / this.canvas.height);
      return putImageData.apply(this, all);
    };
  });
  await page.click(tile(13)); // M, whose second stroke begins at the top again
  await page.evaluate(() => (globalThis.heights_.length = 0)); // the empty sheet
  await frames(page, 1000, 16);
  await said(page, 'capital M is written');
  const heights = await page.evaluate(() => globalThis.heights_);
  assert.ok(heights.length > 20, `${heights.length} parts were painted`);
  assert.ok(Math.max(...heights) < 0.2, `the highest has ${Math.max(...heights)} of the canvas`);
  await page.closeTrial();
});

test('a faster pen writes more dots in a frame', async () => {
  const inked = async (doublings) => {
    const page = await openPage({ address: '#engc', prepare: withClock });
    await setSpeed(page, doublings);
    await page.click(tile(12));
    await frames(page, 1, 100);
    const pixels = await page.evaluate(() => {
      const canvas = document.querySelector('canvas.ink');
      const { data } = canvas.getContext('2d').getImageData(0, 0, canvas.width, canvas.height);
      return data.filter((part, i) => i % 4 === 1 && part === 0).length;
    });
    await page.closeTrial();
    return pixels;
  };
  const slow = await inked(-1);
  const usual = await inked(0);
  assert.ok(slow > 0 && usual > 1.6 * slow, `${slow} and ${usual}`);
});

test('a page that was hidden for a minute goes on where it was', async () => {
  const page = await openPage({ address: '#engc', prepare: withClock });
  await setSpeed(page, -3);
  await page.click(tile(2));
  await frames(page, 1, 16);
  const before = await inkOf(page);
  await frames(page, 1, 60000);
  assert.notEqual(await inkOf(page), before);
  const live = await page.$eval('#live', (it) => it.textContent);
  assert.equal(live, 'The pen writes capital B.', 'a minute would have been enough for the letter');
  await frames(page, 100, 250);
  await said(page, 'capital B is written');
  await page.closeTrial();
});

test('a letter keeps its dots when the window changes in the middle of it', async () => {
  const page = await openPage({ address: '#engc', prepare: withClock });
  await page.click(tile(2));
  await frames(page, 1, 200);
  const before = await page.$eval('.sheet', (sheet) => sheet.dataset.ratio);
  await page.setViewport({ width: 360, height: 640 });
  await page.waitForFunction(
    (ratio) => document.querySelector('.sheet').dataset.ratio !== ratio, { polling: 50 }, before);
  await frames(page, 20, 250);
  await said(page, 'capital B is written');
  const { most } = await comparedWithProgram(page, B);
  assert.ok(most <= 1, `${most}`);
  await page.closeTrial();
});

test('numbers, grid and ruled lines come and go', async () => {
  const page = await openPage({ address: '#engc/2', calm: true });
  await said(page, 'capital B is written');
  const plain = await inkOf(page);
  const marks = () => page.evaluate(() => {
    const canvas = document.querySelector('canvas.above');
    const copy = new OffscreenCanvas(canvas.width, canvas.height).getContext('2d');
    copy.drawImage(canvas, 0, 0);
    return copy.getImageData(0, 0, canvas.width, canvas.height).data.some((part) => part !== 0);
  });
  assert.equal(await marks(), false);
  await page.click(button('numbers'));
  await framesLater(page);
  assert.equal(await marks(), true);
  await page.click(button('grid'));
  const grid = await inkOf(page);
  assert.notEqual(grid, plain);
  await page.click(button('rules'));
  assert.equal(
    await page.$eval(button('rules'), (it) => it.getAttribute('aria-label')), 'Ruled lines: 1');
  await shot(page, 'numbers-grid');
  await page.click(button('grid'));
  for (let rule = 2; rule <= 6; ++rule) await page.click(button('rules'));
  assert.equal(await inkOf(page), plain);
  await page.closeTrial();
});

test('a second tap ends the letter under way before the next one is written', async () => {
  const page = await openPage({ address: '#engc' });
  await setSpeed(page, -3);
  await page.click(tile(1));
  await page.click(tile(2));
  assert.equal(await page.$eval('#live', (it) => it.textContent), 'The pen writes capital B.');
  await page.keyboard.press('Escape');
  await said(page, 'capital B is written');
  await page.closeTrial();
});
