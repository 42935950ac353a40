import assert from 'node:assert/strict';
import { statSync } from 'node:fs';
import { test } from 'node:test';
import {
  comparedWithProgram, kFourLetters, kPhone, kWeb, openPage, reload, said, server, shot,
} from './browser.js';
import { serve } from './server.js';

const [B, ttha] = kFourLetters;

test('the page loads from a server and asks for nothing from elsewhere', async () => {
  const asked = [];
  const page = await openPage({ prepare: (page) => page.on('request', (r) => asked.push(r.url())) });
  await page.waitForSelector('nav a');
  assert.equal((await page.$$('nav a')).length, 7);
  assert.deepEqual(asked.filter((url) => !url.startsWith(server.url)), []);
  assert.equal(await page.evaluate(() => document.cookie), '');
  assert.equal(await page.evaluate(() => localStorage.length), 0);
  await shot(page, 'home-tablet');
  await page.closeTrial();
});

test('the page with its code is small', () => {
  const parts = ['index.html', 'page.js', 'letters.wasm.gz'].map((name) => statSync(`${kWeb}/${name}`).size);
  const size = parts.reduce((sum, part) => sum + part, 0);
  assert.ok(size <= 150_000, `${size} bytes`);
});

test('the single file opens without any server and writes', async () => {
  const asked = [];
  const page = await openPage({
    url: `file://${kWeb}/bramlee-letters.html`,
    address: '#engc/2',
    calm: true,
    prepare: (page) => page.on('request', (r) => asked.push(r.url())),
  });
  await said(page, 'capital B is written');
  const { inked, most } = await comparedWithProgram(page, B);
  assert.ok(inked > 1000);
  assert.ok(most <= 1, `${most}`);
  const others = asked.filter((url) => !url.endsWith('bramlee-letters.html#engc/2'));
  assert.deepEqual(others.filter((url) => !url.startsWith('data:')), []);
  await page.closeTrial();
});

test('after the first load the page works without server and network', async () => {
  const own = await serve(kWeb);
  const page = await openPage({ url: own.url, size: kPhone, calm: true });
  await page.evaluate(() => navigator.serviceWorker.ready);
  await own.close();
  await page.setOfflineMode(true);
  await page.goto(`${own.url}#hinc/12`);
  await reload(page);
  await said(page, 'ttha (ठ) is written');
  const { inked, most } = await comparedWithProgram(page, ttha);
  assert.ok(inked > 1000);
  assert.ok(most <= 1, `${most}`);
  await page.closeTrial();
});

test('the browser finds the page fit to be installed', async () => {
  const page = await openPage();
  await page.evaluate(() => navigator.serviceWorker.ready);
  const session = await page.createCDPSession();
  const { manifest, errors } = await session.send('Page.getAppManifest');
  assert.deepEqual(errors, []);
  assert.equal(manifest?.name ?? 'BRAM-LEE: letters to watch and to write', 'BRAM-LEE: letters to watch and to write');
  const { installabilityErrors } = await session.send('Page.getInstallabilityErrors');
  // Headless pages of a private context are never installed; nothing else may stand against it.
  const found = installabilityErrors.map((error) => error.errorId).filter((id) => id !== 'in-incognito');
  assert.deepEqual(found, []);
  await page.closeTrial();
});

/// Notes how many tiles have their picture when the first dots of a letter stand.
function noteTilePictures(page) {
  return page.evaluateOnNewDocument(() => {
    const mark = performance.mark.bind(performance);
    performance.mark = (name) => {
      if (name === 'bramlee-first-dots') {
        globalThis.picturesThen_ ??= document.querySelectorAll('[data-tile] svg').length;
      }
      return mark(name);
    };
  });
}

test('a letter that the address names comes before the pictures of the tiles', async () => {
  const page = await openPage({ address: '#hinc/12', prepare: noteTilePictures });
  await page.waitForFunction(() => globalThis.picturesThen_ !== undefined, { polling: 'raf' });
  assert.equal(await page.evaluate(() => globalThis.picturesThen_), 0);
  await page.waitForFunction(
    () => [...document.querySelectorAll('[data-tile]')].every((tile) => tile.querySelector('svg')),
    { polling: 'raf' });
  const buttons = await page.$$eval('[data-tile]', (tiles) => tiles.map((tile) => tile.outerHTML));
  const later = await openPage({ address: '#hinc' });
  await later.waitForSelector('[data-tile]');
  const unnamed = await later.$$eval('[data-tile]', (tiles) => tiles.map((tile) => tile.outerHTML));
  assert.equal(buttons.filter((html) => html.includes('aria-current')).length, 1);
  assert.deepEqual(buttons.map((html) => html.replace(' aria-current="true"', '')), unnamed);
  await page.closeTrial();
  await later.closeTrial();
});
