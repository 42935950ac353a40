import assert from 'node:assert/strict';
import { test } from 'node:test';
import { button, kStrokesOfB, openPage, said, shot } from './browser.js';

/// A page whose print dialog is a mark.
const withPrinter = (page) => page.evaluateOnNewDocument(() => {
  globalThis.print = () => (globalThis.printed = (globalThis.printed ?? 0) + 1);
});

function pagesOf(pdf) {
  return Buffer.from(pdf).toString('latin1').match(/\/Type\s*\/Page\b/g).length;
}

/// Of each row on the paper: what is in it, its ruled lines and the numbers of strokes.
function rowsOf(page) {
  return page.$$eval('#paper svg', (all) => all.map((row) => ({
    html: row.innerHTML,
    lines: row.querySelectorAll('path[stroke="#78909c"]').length,
    isDotted: row.innerHTML.includes('h.01'),
    numbers: [...row.querySelectorAll('text')].map((it) => it.textContent),
  })));
}

/// The style of an element on paper.
async function printed(page, selector, property) {
  await page.emulateMediaType('print');
  return page.$eval(selector, (it, name) => getComputedStyle(it)[name], property);
}

test('a letter is printed as rows to trace on one page', async () => {
  const page = await openPage({ address: '#engc/2', calm: true, prepare: withPrinter });
  await said(page, 'capital B is written');
  await page.click(button('print'));
  assert.equal(await page.evaluate(() => globalThis.printed), 1);
  const rows = await rowsOf(page);
  assert.ok(rows.length >= 5, `${rows.length} rows`);
  assert.ok(rows.every(({ lines }) => lines === 4));
  assert.deepEqual(rows.map(({ numbers }) => numbers.length), [kStrokesOfB.length, ...rows.slice(1).fill(0)]);
  assert.equal(rows.pop().isDotted, false, 'the last row is blank');
  assert.ok(rows.every(({ isDotted }) => isDotted));
  const pdf = await page.pdf({ preferCSSPageSize: true });
  assert.equal(pagesOf(pdf), 1);
  const [, width, height] = Buffer.from(pdf).toString('latin1').match(/\/MediaBox \[0 0 ([\d.]+) ([\d.]+)\]/);
  assert.deepEqual([width, height].map((points) => Math.round((points / 72) * 25.4)), [210, 297], 'A4');
  assert.equal(await printed(page, '#app', 'display'), 'none');
  assert.equal(await printed(page, '#paper', 'display'), 'block');
  await shot(page, 'paper-letter');
  await page.closeTrial();
});

test('a board without letters on its sheet is printed row by row', async () => {
  const page = await openPage({ address: '#engs', prepare: withPrinter });
  await page.click(button('print'));
  const rows = await rowsOf(page);
  assert.equal(rows.length, 26);
  assert.equal(new Set(rows.map(({ html }) => html)).size, 26, 'each is of another letter');
  assert.ok(rows.every(({ isDotted, numbers }) => isDotted && numbers.length > 0));
  assert.ok(pagesOf(await page.pdf({ preferCSSPageSize: true })) >= 3);
  assert.equal(await printed(page, '#paper svg', 'breakInside'), 'avoid', 'no row is cut by a page\'s end');
  await shot(page, 'paper-board');
  await page.closeTrial();
});
