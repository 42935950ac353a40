// Prints how long the page takes to its first letter, and what its frames cost while the pen
// writes: node bench/web/frames.mjs, with build/web made and tests/web's packages installed.
import { createRequire } from 'node:module';
import { serve } from '../../tests/web/server.js';

const root = new URL('../..', import.meta.url).pathname;
const require = createRequire(`${root}tests/web/package.json`);
const { default: puppeteer } = await import(require.resolve('puppeteer-core'));

const kLoads = 7;
const kFrameMs = 1000 / 60;

/// Notes when each frame begins.
function watchFrames() {
  const frames = [];
  const request = globalThis.requestAnimationFrame.bind(globalThis);
  globalThis.frames_ = frames;
  globalThis.requestAnimationFrame = (call) =>
    request((now) => {
      if (frames.at(-1) !== now) frames.push(now);
      call(now);
    });
}

/// How long the page's own code has the processor in each of a trace's calls, in milliseconds: on a
/// busy machine others run in between.
function scriptsOf(trace) {
  return JSON.parse(Buffer.from(trace).toString())
    .traceEvents.filter(({ name, ph }) => name === 'FireAnimationFrame' && ph === 'X')
    .map(({ tdur }) => tdur / 1000);
}

function median(numbers) {
  return numbers.sort((a, b) => a - b)[Math.floor(numbers.length / 2)];
}

const server = await serve(`${root}build/web`);
const browser = await puppeteer.launch({
  executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
  args: process.getuid?.() === 0 ? ['--no-sandbox'] : [],
});

const marks = { 'bramlee-first-letter': [], 'bramlee-first-dots': [] };
for (let i = 0; i < kLoads; ++i) {
  const context = await browser.createBrowserContext();
  const page = await context.newPage();
  await page.goto(`${server.url}#engc/2`);
  await page.waitForFunction(() => performance.getEntriesByName('bramlee-first-dots').length > 0);
  for (const [name, times] of Object.entries(marks)) {
    times.push(await page.evaluate((mark) => performance.getEntriesByName(mark)[0].startTime, name));
  }
  await context.close();
}
for (const [name, times] of Object.entries(marks)) {
  console.log(`${name}: ${Math.round(median(times))} ms after the navigation began`);
}

for (const [width, height, ratio] of [[360, 640, 2], [1024, 768, 2], [3840, 2160, 1]]) {
  const page = await browser.newPage();
  await page.setViewport({ width, height, deviceScaleFactor: ratio });
  await page.evaluateOnNewDocument(watchFrames);
  await page.goto(`${server.url}#engc`);
  await page.waitForSelector('[data-tile="13"]');
  await page.$eval('[data-name="speed"]', (slider) => {
    slider.value = -2;
    slider.dispatchEvent(new Event('input'));
  });
  await page.evaluate(() => (frames_.length = 0));
  await page.tracing.start({ categories: ['devtools.timeline'] });
  await page.click('[data-tile="13"]');
  await page.waitForFunction(
    () => document.getElementById('live').textContent.endsWith('is written.'), { polling: 200 });
  const scripts = scriptsOf(await page.tracing.stop());
  const frames = await page.evaluate(() => frames_);
  const seconds = (frames.at(-1) - frames[0]) / 1000;
  const late = frames.filter((now, i) => i > 0 && now - frames[i - 1] > 1.5 * kFrameMs).length;
  console.log(
    `${width} by ${height} at ratio ${ratio}: ${(frames.length / seconds).toFixed(1)} frames a second, ` +
    `${late} of ${frames.length} late; script of a call ${median(scripts).toFixed(2)} ms, ` +
    `at most ${Math.max(...scripts).toFixed(2)} ms`);
  await page.close();
}
await browser.close();
await server.close();
