// ask_letters.js CODE: what the letters' code for browsers does, for a test that compares it with
// the program's own. Reads questions from the standard input, one a line, and prints an answer to
// each:
//   dots SET TILE ALTERNATIVE BOOK PLACE STEP      how many dots and the hash of their places
//   trace SET TILE LEVEL X Y X Y ... / X Y ...     what is said of each touch
//   pixels SET TILE X Y WIDTH HEIGHT RATIO GROUND  the hash of the picture
import fs from 'node:fs';
import readline from 'node:readline';

import { loadLetters } from '../../web/page/letters.js';

globalThis.ImageData ??= class {
  constructor(data, width, height) {
    Object.assign(this, { data, width, height });
  }
};

const letters = await loadLetters(fs.readFileSync(process.argv[2]));

/** FNV-1a over words, on two ways at once. */
function hashOf(words) {
  let even = 0x811c9dc5;
  let odd = 0x811c9dc5;
  for (let i = 0; i < words.length; i += 2) {
    even = Math.imul(even ^ words[i], 0x01000193);
    odd = Math.imul(odd ^ words[i + 1], 0x01000193);
  }
  return `${even >>> 0} ${odd >>> 0}`;
}

function dots([set, tile, alternative, book, place, step]) {
  const options = { alternative: alternative === '1', book: book === '1', place: Number(place) };
  const sheet = letters.sheet();
  sheet.keepDots = true;
  sheet.add(letters.letter(set, Number(tile), { ...options, step: Number(step) }));
  while (sheet.write(1667) > 0); // a frame's dots at a time, as a page writes them
  const { xy } = sheet.takeDots();
  sheet.free();
  return `${xy.length / 2} ${hashOf(new Uint32Array(xy.buffer))}`;
}

function trace([set, tile, level, ...figures]) {
  const tracer = letters.tracer(letters.letter(set, Number(tile)), { level });
  const said = [];
  for (const touch of figures.join(' ').split('/')) {
    const places = touch.trim().split(' ').map(Number);
    tracer.down(places[0], places[1]);
    for (let i = 2; i + 1 < places.length; i += 2) tracer.move(places[i], places[i + 1]);
    const judgement = tracer.up();
    if (judgement === null) continue;
    const { stroke, verdict, progress, misses, help } = judgement;
    said.push(`${stroke} ${verdict} ${Math.round(progress * 1e9)} ${misses} ${help}`);
  }
  const end = `${tracer.stroke} ${tracer.helped}`;
  tracer.free();
  return [...said, end].join('; ');
}

function pixels([set, tile, x, y, width, height, ratio, ground]) {
  const sheet = letters.sheet();
  const box = { x: Number(x), y: Number(y), width: Number(width), height: Number(height) };
  sheet.cover(box, Number(ratio), ground);
  sheet.add(letters.letter(set, Number(tile)));
  while (sheet.write(1667) > 0);
  const picture = sheet.wholePicture();
  sheet.free();
  return `${picture.width} ${picture.height} ${hashOf(new Uint32Array(picture.data.buffer))}`;
}

const kAnswers = { dots, trace, pixels };
for await (const line of readline.createInterface({ input: process.stdin })) {
  const [kind, ...rest] = line.split(' ');
  console.log(kAnswers[kind](rest));
}
