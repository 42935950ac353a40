import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { loadLetters } from '../../web/page/letters.js';
import { pathBox } from '../../web/page/path_box.js';
import {
  button, chooseSubject, comparedWithProgram, framesLater, kFourLetters, kPhone, kTablet, kWallBoard,
  kWeb, openPage, said, shot, tile,
} from './browser.js';

const kSizes = { phone: kPhone, tablet: kTablet, 'wall-board': kWallBoard };

function fillsHolder(page) {
  return page.evaluate(() => {
    const holder = document.querySelector('.sheet').getBoundingClientRect();
    const ink = document.querySelector('canvas.ink').getBoundingClientRect();
    return Math.abs(holder.width - ink.width) < 2 && Math.abs(holder.height - ink.height) < 2;
  });
}

for (const [name, size] of Object.entries(kSizes)) {
  test(`the letters are the program's own pixels on a ${name}`, async () => {
    const page = await openPage({ size, calm: true });
    await page.waitForSelector('nav a');
    await shot(page, `home-${name}`);
    for (const letter of kFourLetters) {
      await chooseSubject(page, letter.set);
      await page.click(tile(letter.tile));
      await said(page, `${letter.name} is written`);
      const { inked, most } = await comparedWithProgram(page, letter);
      assert.ok(inked > 1000, `${letter.name}: ${inked} pixels are inked`);
      assert.ok(most <= 1, `${letter.name}: off by ${most}`);
      assert.ok(await fillsHolder(page), 'the canvas is as large as its place');
      if (size !== kWallBoard || letter.set === 'engc') await shot(page, `${letter.set}-${name}`);
      await page.click(button('home'));
      await page.waitForSelector('nav a');
    }
    await page.closeTrial();
  });
}

test('letters of a group stand side by side until the next group wipes them', async () => {
  const page = await openPage({ address: '#engc', size: kWallBoard, calm: true });
  const label = () => page.$eval('.sheet', (sheet) => sheet.getAttribute('aria-label'));
  for (const number of [1, 2, 3]) await page.click(tile(number));
  assert.equal(await label(), 'Sheet: capital A capital B capital C');
  await shot(page, 'group');
  await page.click(tile(5));
  assert.equal(await label(), 'Sheet: capital E');
  await page.closeTrial();
});

test('a letter that would cover another one wipes it', async () => {
  const page = await openPage({ address: '#engc', calm: true });
  for (const number of [3, 7]) await page.click(tile(number));
  assert.equal(
    await page.$eval('.sheet', (sheet) => sheet.getAttribute('aria-label')), 'Sheet: capital G');
  await page.closeTrial();
});

test('a word is written, and what cannot be is named', async () => {
  const page = await openPage({ address: '#hinc', calm: true });
  await page.click(button('words'));
  await page.type(button('word'), 'राम€');
  await page.click(button('write'));
  await said(page, 'राम€ is written');
  assert.equal(await page.$eval('.words p', (line) => line.textContent), 'Left out: €');
  await shot(page, 'word');
  await page.closeTrial();
});

/// The names of the sheet's layers that are not hidden, once the next frame is painted.
async function layersShown(page) {
  await framesLater(page);
  return page.$$eval(
    '.sheet canvas', (all) => all.filter((it) => !it.hidden).map((it) => it.className).join(' '));
}

test('an empty layer of the sheet is hidden', async () => {
  const page = await openPage({ address: '#engc', calm: true });
  await page.click(tile(2));
  assert.equal(await layersShown(page), 'ink');
  await page.click(button('numbers'));
  assert.equal(await layersShown(page), 'ink above');
  await page.click(button('numbers'));
  assert.equal(await layersShown(page), 'ink');
  await page.click(button('trace'));
  assert.equal(await layersShown(page), 'beneath ink above');
  await page.closeTrial();
});

const kLettering = 'का कि की कु कू के';

test('a tile without strokes shows its lettering, on the sheet too until the next letter', async () => {
  const page = await openPage({ address: '#hinv', calm: true });
  const printed = await page.$$eval(`${tile(14)} text`, (all) => all.map((it) => it.textContent));
  assert.ok(printed.includes(kLettering));
  await page.click(tile(14));
  await said(page, kLettering);
  assert.equal(await layersShown(page), 'ink above');
  const above = await page.$eval('canvas.above', (canvas) => {
    const { data } = canvas.getContext('2d').getImageData(0, 0, canvas.width, canvas.height);
    return new Set(new Uint32Array(data.buffer)).size;
  });
  assert.ok(above > 2, 'letters on a ground');
  assert.equal(await page.$eval('.sheet', (sheet) => sheet.getAttribute('aria-label')), 'Sheet');
  await page.click(tile(1));
  assert.equal(await layersShown(page), 'ink');
  await page.closeTrial();
});

test('the letters say that a tile has lettering if it has no strokes', async () => {
  const letters = await loadLetters(readFileSync(`${kWeb}/letters.wasm.gz`));
  const silent = [];
  for (const set of letters.sets) {
    for (const { number, writes, lettering } of set.tiles) {
      assert.equal(writes, !letters.letter(set.name, number).isEmpty, `${set.name} ${number}`);
      if (!writes) silent.push(`${set.name} ${number} ${lettering}`);
    }
  }
  assert.deepEqual(silent, [`hinv 14 ${kLettering}`]);
});

test('the room of a path holds the arcs between its places', () => {
  const rooms = {
    'M100 0a100 100 0 0 1-100 100': [0, 0, 100, 100], // around (0, 0)
    'M100 0a100 100 0 1 1-100 100': [0, 0, 200, 200], // around (100, 100)
    'M100 0a100 100 0 0 0-100 100': [0, 0, 100, 100],
    'M0 0h30v-20l-40 5': [-10, -20, 40, 20],
    '': [0, 0, 0, 0],
  };
  for (const [path, [x, y, width, height]] of Object.entries(rooms)) {
    const box = pathBox(path);
    const off = [box.x - x, box.y - y, box.width - width, box.height - height].map(Math.abs);
    assert.ok(Math.max(...off) <= 1, `${path}: ${JSON.stringify(box)}`);
  }
});
