// Pens as the browser delivers them: what the page's judge was given and what it said are recorded,
// and the program's own judge is asked about the same pens.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import {
  allOnScreen, button, kFourLetters, kPhone, kTablet, openPage, penStrokes, pointer, programsVerdicts,
  said, tile, touch,
} from './browser.js';

const [B, ttha, telugu, eight] = kFourLetters;

/// How far apart the places are that the hand goes to, along a stroke whose points are one sheet
/// pixel apart.
const kStep = 5;

/// 4 mm in CSS pixels: what a child's hand misses by on any screen.
const kLeastRadius = (4 / 25.4) * 96;

// --- the hand

/// The stroke with each point so far to its side; `aside` of its share of the stroke, 0 to 1.
function besides(stroke, aside) {
  return stroke.map(([x, y], i) => {
    const [fromX, fromY] = stroke[Math.max(i - 1, 0)];
    const [toX, toY] = stroke[Math.min(i + 1, stroke.length - 1)];
    const length = Math.hypot(toX - fromX, toY - fromY) || 1;
    const by = aside(i / stroke.length);
    return [x - ((toY - fromY) / length) * by, y + ((toX - fromX) / length) * by];
  });
}

const wavering = (stroke, { unit }) => besides(stroke, (share) => 4 * unit * Math.sin(9 * share));

/// What a hand does with a stroke, and what is to be said of that. `unit` is a hundredth of the
/// letter's size, by which the corridors are measured; `corners` are those of the room it takes.
const kWays = {
  well: { verdict: 'done', way: wavering },
  half: {
    verdict: 'resume',
    way: (stroke, letter) => wavering(stroke, letter).slice(0, stroke.length / 2),
  },
  rest: {
    verdict: 'done',
    way: (stroke, letter) => wavering(stroke, letter).slice(stroke.length / 2 - kStep),
  },
  backwards: { verdict: 'reversed', way: (stroke) => stroke.toReversed() },
  // At each level it leaves the corridor elsewhere, so that another part of the stroke is written.
  astray: {
    verdict: 'astray',
    way: (stroke, { unit }) => besides(stroke, (share) => 50 * unit * share),
  },
  elsewhere: {
    verdict: 'elsewhere',
    way: ([[fromX, fromY]], { corners, unit }) => {
      const away = ([x, y]) => Math.hypot(x - fromX, y - fromY);
      const [x, y] = corners.toSorted((one, other) => away(other) - away(one))[0];
      return Array.from({ length: 30 }, (_, i) => [x, y + (i * unit) / 4]);
    },
  },
  scribble: {
    verdict: 'scribble',
    way: (stroke) => {
      const part = stroke.slice(0, stroke.length * 0.7);
      return [part, part.toReversed(), part, part.toReversed(), part].flat();
    },
  },
};

/// Everything that a hand may do with a stroke, until that is written.
const kTries = [
  ['half', 'rest'],
  ['astray', 'well'],
  ['elsewhere', 'backwards', 'well'],
  ['well'],
  ['scribble', 'astray', 'half', 'rest'],
  ['astray', 'elsewhere', 'backwards', 'scribble'], // the pen writes it for the child then
];

const kFinger = {
  hand: 'a finger',
  holds: (session) => ({
    down: (place) => touch(session, 'touchStart', [place]),
    move: (place) => touch(session, 'touchMove', [place]),
    up: () => touch(session, 'touchEnd', []),
  }),
};
const pointing = (hand, type) => ({
  hand,
  holds: (session) => ({
    down: (place) => pointer(session, type, 'mousePressed', place),
    move: (place) => pointer(session, type, 'mouseMoved', place),
    up: (place) => pointer(session, type, 'mouseReleased', place),
  }),
});
const kMouse = pointing('a mouse', 'mouse');
const kStylus = pointing('a stylus', 'pen');

/// `first`: which of the tries the first stroke has; the next stroke has the next one. S stands
/// otherwise in the book, as that is traced. `later`: the level is chosen after the letter.
const kHands = [
  { ...B, ...kFinger, size: kPhone, level: 'normal', first: 1 },
  { set: 'engc', tile: 19, name: 'capital S', ...kMouse, size: kTablet, level: 'strict', first: 4 },
  { set: 'engs', tile: 5, name: 'small e', ...kMouse, size: kTablet, level: 'gentle', later: true, first: 4 },
  { set: 'hinv', tile: 1, name: 'vowel a (अ)', ...kStylus, size: kTablet, level: 'strict', first: 0 },
  { ...ttha, ...kStylus, size: kPhone, level: 'toddler', first: 1 },
  { ...telugu, ...kFinger, size: kPhone, level: 'normal', first: 5 },
  { ...telugu, ...kFinger, size: kPhone, level: 'strict', first: 1 }, // there 4 mm decide
  { ...eight, ...kFinger, size: kPhone, level: 'gentle', later: true, first: 1 },
];

/// The strokes of a letter as a hand sees them.
async function letterOf(chosen) {
  const strokes = await penStrokes(chosen);
  const [left, top] = [0, 1].map((axis) => Math.min(...strokes.flat().map((at) => at[axis])));
  const [right, bottom] = [0, 1].map((axis) => Math.max(...strokes.flat().map((at) => at[axis])));
  const corners = [[left, top], [right, top], [left, bottom], [right, bottom]];
  return { strokes, corners, unit: Math.max(right - left, bottom - top) / 100 };
}

// --- the recorder

/// In the page: notes what the browser delivers of a pen, as places on the sheet, and what the page
/// says after each touch.
function recordDelivered() {
  const delivered = [];
  const texts = [];
  globalThis.recorded = { delivered, texts, given: [], verdicts: [], radii: [], end: null, fractions: 0 };
  const onSheet = ({ clientX, clientY }) => {
    if (!Number.isInteger(clientX * devicePixelRatio)) ++recorded.fractions;
    const { dataset } = document.querySelector('.sheet');
    const rect = document.querySelector('canvas.ink').getBoundingClientRect();
    const place = (client, edge, from) =>
      ((client - edge) * devicePixelRatio + Number(from)) / Number(dataset.ratio);
    return [place(clientX, rect.left, dataset.left), place(clientY, rect.top, dataset.top)];
  };
  const isDown = () => delivered.length > 0 && !delivered.at(-1).up;
  addEventListener('pointerdown', (event) => {
    if (event.target.closest('.sheet')) delivered.push({ down: onSheet(event) });
  }, true);
  addEventListener('pointermove', (event) => {
    if (!isDown()) return;
    for (const each of event.getCoalescedEvents()) delivered.push({ move: onSheet(each) });
  }, true);
  addEventListener('pointerup', (event) => {
    if (isDown()) delivered.push({ move: onSheet(event) }, { up: true });
  }, true);
  addEventListener('pointerup', (event) => {
    if (event.target.closest('.sheet')) texts.push(document.getElementById('live').textContent);
  });
}

/// In the page: notes what the judge is given and what it says.
function recordJudge() {
  const recording = (exports) => {
    const { memory } = exports;
    const numbers = () =>
      [...new Float64Array(memory.buffer, exports.resultNumbers(), exports.resultCount())];
    const text = () =>
      new TextDecoder().decode(new Uint8Array(memory.buffer, exports.resultText(), exports.resultBytes()));
    const noted = (event) => recorded.given.push(event);
    return {
      ...exports,
      setLeastRadius: (tracer, radius) => {
        const { ratio } = document.querySelector('.sheet').dataset;
        recorded.radii.push({ onSheet: radius, onScreen: (radius * ratio) / devicePixelRatio });
        exports.setLeastRadius(tracer, radius);
      },
      penDown: (tracer, x, y) => noted({ down: [x, y] }) && exports.penDown(tracer, x, y),
      penMove: (tracer, x, y) => noted({ move: [x, y] }) && exports.penMove(tracer, x, y),
      penUp: (tracer) => {
        noted({ up: true });
        exports.penUp(tracer);
        recorded.verdicts.push({ ...JSON.parse(text()), progress: numbers()[0] });
      },
      freeTracer: (tracer) => {
        exports.tracerState(tracer);
        const [strokes, stroke, , , helped] = numbers();
        recorded.end = { finished: stroke === strokes, helped };
        exports.freeTracer(tracer);
      },
    };
  };
  const { instantiate } = WebAssembly;
  WebAssembly.instantiate = async (...all) => ({ exports: recording((await instantiate(...all)).exports) });
}

/// For openPage's `prepare`.
async function withRecorder(page) {
  await page.evaluateOnNewDocument(recordDelivered);
  await page.evaluateOnNewDocument(recordJudge);
}

/// By the button that goes from level to level.
async function chooseLevel(page, level) {
  while (true) {
    const label = await page.$eval(button('level'), (it) => it.getAttribute('aria-label'));
    if (label === `Level: ${level}`) return;
    await page.click(button('level'));
  }
}

/// One touch of the hand; the moves come as fast as the browser takes them.
async function go(page, pen, way) {
  const some = way.filter((_, i) => i % kStep === 0 || i === way.length - 1);
  const [first, ...others] = await allOnScreen(page, some);
  const touches = await page.evaluate(() => recorded.texts.length);
  const last = others.at(-1);
  await pen.down(first);
  await Promise.all(others.map((place) => pen.move(place)));
  await pen.up(last);
  await page.waitForFunction((count) => recorded.texts.length > count, { polling: 20 }, touches);
}

/// Traces the letter; returns what is to be said of each touch.
async function traceLetter(page, chosen, letter) {
  const pen = chosen.holds(await page.createCDPSession());
  const meant = [];
  for (const [i, stroke] of letter.strokes.entries()) {
    for (const name of kTries[(chosen.first + i) % kTries.length]) {
      await go(page, pen, kWays[name].way(stroke, letter));
      meant.push(kWays[name].verdict);
    }
  }
  return meant;
}

// --- what is compared

function expectSamePlaces(given, delivered) {
  assert.equal(given.length, delivered.length, 'the judge was given each place that was delivered');
  for (const [i, event] of given.entries()) {
    const [kind] = Object.keys(event);
    assert.deepEqual(Object.keys(delivered[i]), [kind], `place ${i}`);
    if (kind === 'up') continue;
    const [x, y] = event[kind];
    const [wantedX, wantedY] = delivered[i][kind];
    const off = Math.hypot(x - wantedX, y - wantedY);
    assert.ok(off < 1e-6, `place ${i} is off by ${off} sheet pixels`);
  }
}

/// As bramlee-trace prints it.
function asPrinted({ stroke, verdict, progress, misses, help }) {
  return { stroke: stroke + 1, verdict, progress: Math.round(progress * 1000) / 1000, misses, help };
}

/// What the page says after each of the program's judgements.
function textsAfter(verdicts, { name }, strokes) {
  const begin = (stroke) => stroke < strokes
    ? `Stroke ${stroke + 1} of ${strokes}: begin at the green dot.`
    : `Well done! ${name} is written.`;
  const again = 'Once more, from the green dot.';
  let text = begin(0);
  return verdicts.map(({ stroke, verdict, help }) => {
    const written = verdict === 'done' || help === 'written' ? begin(stroke) : text;
    text = { pulse: again, show: 'Look how the pen does it.', wider: again }[help] ?? written;
    return text;
  });
}

for (const chosen of kHands) {
  const { set, name, level, later, hand, size } = chosen;
  test(`${hand} that traces ${name} is judged as by the program, ${level}`, async () => {
    const page = await openPage({ address: `#${set}`, size, calm: true, prepare: withRecorder });
    await page.click(button('trace'));
    if (!later) await chooseLevel(page, level);
    await page.click(tile(chosen.tile));
    await said(page, 'Stroke 1 of');
    if (later) await chooseLevel(page, level);
    const letter = await letterOf(chosen);
    const meant = await traceLetter(page, chosen, letter);
    const recorded = await page.evaluate(() => globalThis.recorded);
    expectSamePlaces(recorded.given, recorded.delivered);
    if (size.deviceScaleFactor === 2) assert.ok(recorded.fractions > 0, 'places between pixels');
    for (const { onScreen } of recorded.radii) {
      assert.ok(Math.abs(onScreen - kLeastRadius) < 1e-6, `${onScreen}`);
    }
    const leastRadius = recorded.radii.at(-1).onSheet;
    const programs = await programsVerdicts(chosen, { level, leastRadius }, recorded.given);
    assert.deepEqual([...recorded.verdicts.map(asPrinted), recorded.end], programs);
    const { finished } = programs.pop();
    assert.ok(finished, 'the hand has written the letter');
    assert.deepEqual(programs.map(({ verdict }) => verdict), meant);
    assert.deepEqual(recorded.texts, textsAfter(programs, chosen, letter.strokes.length));
    await page.closeTrial();
  });
}
