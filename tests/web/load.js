import assert from 'node:assert/strict';
import { test } from 'node:test';
import {
  browser, comparedWithProgram, kFourLetters, kPhone, kTablet, kWeb, openPage, reload, said, server, shot,
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

test('how long the first letter takes is told', async () => {
  const times = [];
  for (let i = 0; i < 2; ++i) {
    const page = await openPage({ address: '#engc/2', size: kTablet });
    await page.waitForFunction(
      () => performance.getEntriesByName('bramlee-first-dots').length > 0, { polling: 'raf' },
    );
    times.push(await page.evaluate(
      () => performance.getEntriesByName('bramlee-first-dots')[0].startTime));
    await page.closeTrial();
  }
  console.log(`first dots after navigation: ${times.map((ms) => Math.round(ms)).join(', ')} ms`);
  assert.ok(browser.connected);
});
