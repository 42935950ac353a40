import assert from 'node:assert/strict';
import { test } from 'node:test';
import { button, openPage, said, shot } from './browser.js';

/// A page whose print dialog is a mark.
const withPrinter = (page) => page.evaluateOnNewDocument(() => {
  globalThis.print = () => (globalThis.printed = (globalThis.printed ?? 0) + 1);
});

function pagesOf(pdf) {
  return Buffer.from(pdf).toString('latin1').match(/\/Type\s*\/Page\b/g).length;
}

test('a letter is printed as rows to trace on one page', async () => {
  const page = await openPage({ address: '#engc/2', calm: true, prepare: withPrinter });
  await said(page, 'capital B is written');
  await page.click(button('print'));
  assert.equal(await page.evaluate(() => globalThis.printed), 1);
  const rows = await page.$$eval('#paper svg', (all) =>
    all.map((row) => row.innerHTML.includes('h.01')));
  assert.ok(rows.length >= 5, `${rows.length} rows`);
  assert.equal(rows.pop(), false, 'the last row is blank');
  assert.ok(rows.every((isDotted) => isDotted));
  assert.equal(pagesOf(await page.pdf({ preferCSSPageSize: true })), 1);
  await page.emulateMediaType('print');
  await shot(page, 'paper-letter');
  assert.equal(await page.$eval('#app', (it) => getComputedStyle(it).display), 'none');
  await page.closeTrial();
});

test('a board without letters on its sheet is printed row by row', async () => {
  const page = await openPage({ address: '#engs', prepare: withPrinter });
  await page.click(button('print'));
  assert.equal((await page.$$('#paper svg')).length, 26);
  assert.ok(pagesOf(await page.pdf({ preferCSSPageSize: true })) >= 3);
  await page.emulateMediaType('print');
  await shot(page, 'paper-board');
  await page.closeTrial();
});
