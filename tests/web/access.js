import assert from 'node:assert/strict';
import { test } from 'node:test';
import {
  button, chooseSubject, frames, inkOf, kPhone, kTablet, kWallBoard, openPage, said, shot, tile, withClock,
} from './browser.js';

/// What can be pressed, with its name and its size; what is hidden is left out.
function controlsOf(page) {
  return page.evaluate(() =>
    [...document.querySelectorAll('button, a, input')]
      .filter((it) => it.checkVisibility())
      .map((it) => {
        const { width, height } = it.getBoundingClientRect();
        const name = it.getAttribute('aria-label') ?? it.textContent;
        return { name: name.trim(), what: it.outerHTML.slice(0, 80), width, height };
      }),
  );
}

/// What can be pressed and lies over something else that can be.
function overlappingOf(page) {
  return page.evaluate(() => {
    const seen = [...document.querySelectorAll('button, a, input')]
      .filter((it) => it.checkVisibility())
      .map((it) => ({ what: it.outerHTML.slice(0, 60), rect: it.getBoundingClientRect() }));
    const meet = (a, b) =>
      Math.min(a.right, b.right) - Math.max(a.left, b.left) > 1 &&
      Math.min(a.bottom, b.bottom) - Math.max(a.top, b.top) > 1;
    // Tiles that are scrolled away lie beneath the strip, unseen.
    const tiles = document.querySelector('.tiles')?.getBoundingClientRect();
    const isAway = (it) => it.what.includes('data-tile') && it.rect.bottom > tiles.bottom + 1;
    return seen.filter((it, i) =>
      seen.some((other, j) => j > i && !isAway(it) && !isAway(other) && meet(it.rect, other.rect)))
      .map((it) => it.what);
  });
}

/// The least contrast of text on its ground on the page, after WCAG, with the text.
function leastContrast(page) {
  return page.evaluate(() => {
    const parts = (colour) => colour.match(/[\d.]+/g).map(Number);
    const light = ([r, g, b]) => {
      const linear = [r, g, b].map((part) => {
        const share = part / 255;
        return share <= 0.04045 ? share / 12.92 : ((share + 0.055) / 1.055) ** 2.4;
      });
      return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2];
    };
    const groundOf = (element) => {
      for (let it = element; it; it = it.parentElement) {
        const ground = parts(getComputedStyle(it).backgroundColor);
        if (ground.length === 3 || ground[3] > 0) return ground;
      }
      return [255, 255, 255];
    };
    let least = { contrast: 21 };
    const texts = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
    while (texts.nextNode()) {
      const element = texts.currentNode.parentElement;
      if (!texts.currentNode.data.trim() || !element.checkVisibility()) continue;
      if (element.closest('[aria-disabled="true"], #live, #paper, script, noscript')) continue;
      const style = getComputedStyle(element);
      const ink = parts(element.closest('svg') ? style.fill : style.color);
      const [high, low] = [light(ink), light(groundOf(element))].sort((a, b) => b - a);
      const contrast = (high + 0.05) / (low + 0.05);
      if (contrast < least.contrast) least = { contrast, text: texts.currentNode.data };
    }
    return least;
  });
}

for (const [name, size] of Object.entries({ phone: kPhone, tablet: kTablet, wall: kWallBoard })) {
  test(`everything has a name, is large enough and stands out on a ${name}`, async () => {
    const page = await openPage({ size });
    for (const set of ['', 'engc', 'hinc']) {
      await page.evaluate((address) => (location.hash = address), set);
      await page.waitForSelector(set === '' ? 'nav a' : `.tiles.${set}`);
      if (set !== '') {
        await page.click(button('trace'));
        await page.click(button('words'));
      }
      for (const { name: said, what, width, height } of await controlsOf(page)) {
        assert.notEqual(said, '', what);
        assert.ok(width >= 44 && height >= 44, `${what} is ${width} by ${height}`);
      }
      assert.deepEqual(await overlappingOf(page), []);
      const least = await leastContrast(page);
      assert.ok(least.contrast >= 4.5, `${least.text}: ${least.contrast}`);
      const beyond = await page.evaluate(
        () => document.documentElement.scrollWidth - document.documentElement.clientWidth);
      assert.equal(beyond, 0, 'nothing is beyond the right edge');
      if (set === 'hinc') await shot(page, `controls-${name}`);
    }
    await page.closeTrial();
  });
}

test('the keyboard alone chooses a subject, writes a letter and goes back', async () => {
  const page = await openPage({ prepare: withClock }); // only Escape ends the letter
  await page.waitForSelector('nav a');
  const isOnSubject = () => page.evaluate(() => document.activeElement.matches('nav a'));
  // The button that installs the page comes first, where the browser offers that.
  for (let tabs = 0; tabs < 2 && !(await isOnSubject()); ++tabs) await page.keyboard.press('Tab');
  await page.keyboard.press('Enter');
  await page.waitForSelector('.tiles.engc');
  assert.equal(await page.evaluate(() => document.activeElement.dataset.tile), '1');
  await page.keyboard.press('ArrowRight');
  await page.keyboard.press('Enter');
  await said(page, 'The pen writes capital B.');
  await page.keyboard.press('Escape');
  await said(page, 'capital B is written.');
  await page.keyboard.press('ArrowRight');
  assert.equal(await page.evaluate(() => document.activeElement.dataset.tile), '3');
  await page.keyboard.press('n');
  assert.equal(
    await page.$eval(button('numbers'), (it) => it.getAttribute('aria-pressed')), 'true');
  await page.focus(button('home'));
  await page.keyboard.press('Enter');
  await page.waitForSelector('nav a');
  assert.equal(
    await page.evaluate(() => document.activeElement.getAttribute('href')), '#engc');
  await page.closeTrial();
});

test('arrows step through the strokes of a letter that is paused', async () => {
  const page = await openPage({ address: '#engc/2', prepare: withClock });
  await page.keyboard.press('Space');
  await said(page, 'Pause');
  const toStrokeEnd = async () => {
    await page.keyboard.press('ArrowRight');
    await frames(page, 100, 250);
    return inkOf(page);
  };
  const first = await toStrokeEnd();
  const second = await toStrokeEnd();
  assert.notEqual(second, first);
  await page.keyboard.press('ArrowLeft');
  assert.equal(await inkOf(page), first);
  assert.equal(await toStrokeEnd(), second);
  assert.equal(
    await page.evaluate(() => document.activeElement.dataset.tile), '1', 'the tiles have no arrows now');
  await page.closeTrial();
});

test('a screen reader hears what is written and sees a named sheet', async () => {
  const page = await openPage({ address: '#hinv/1', calm: true });
  await said(page, 'vowel a (अ) is written.');
  const tree = await page.accessibility.snapshot();
  const names = JSON.stringify(tree);
  assert.ok(await page.$('::-p-aria([name="Sheet: vowel a (अ)"][role="image"])'), 'the sheet is an image');
  for (const name of ['Hindi Vowels', 'vowel a (अ)', 'Speed of the pen', 'Home']) {
    assert.ok(names.includes(`"name":"${name}"`), name);
  }
  await page.closeTrial();
});

const kLanguages = {
  'hi-IN': { lang: 'hi', subject: 'हिन्दी: स्वर', written: 'अ लिखा गया।' },
  'te-IN': { lang: 'te', subject: 'హిందీ: అచ్చులు', written: 'अ రాయబడింది.' },
  'ta-IN': { lang: 'en', subject: 'Hindi:Wovels', written: 'vowel a (अ) is written.' },
};
for (const [language, { lang, subject, written }] of Object.entries(kLanguages)) {
  test(`a browser of ${language} is spoken to in ${lang}`, async () => {
    const languages = ['fr', language, ...(lang === 'en' ? [] : ['en'])]; // the first that is known
    const page = await openPage({ languages, calm: true, size: kPhone });
    await page.waitForSelector('nav a');
    assert.equal(await page.evaluate(() => document.documentElement.lang), lang);
    assert.equal(await page.$eval('nav a[href="#hinv"] span', (it) => it.textContent), subject);
    await shot(page, `home-${lang}-phone`);
    await chooseSubject(page, 'hinv');
    await page.click(tile(1));
    await said(page, written);
    await shot(page, `board-${lang}-phone`);
    await page.closeTrial();
  });
}

test('every language has every text', async () => {
  const { textNames } = await import('../../web/page/texts.js');
  const [english, ...others] = textNames();
  for (const names of others) {
    assert.deepEqual(names.filter((name) => name !== 'subjects'), english);
  }
});
