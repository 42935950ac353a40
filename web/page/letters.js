// The letters for a page: what web/exports.h gives as plain objects. Lengths are sheet pixels (Y
// downward), times seconds, colours '#rrggbb'. No function here needs a document.

import { inflate } from './inflate.js';

/** Loads the letters from beside the page, or from within it. Rejects with an Error when that
 * fails or the browser has no WebAssembly. */
export async function openLetters() {
  const inside = globalThis.bramleeCode;
  if (inside) return loadLetters(Uint8Array.from(atob(inside), (c) => c.charCodeAt(0)));
  const integrity = '/*WASM_INTEGRITY*/';
  const answer = await fetch('letters.wasm.gz', integrity.startsWith('sha') ? { integrity } : {});
  if (!answer.ok) throw new Error(`letters.wasm.gz: ${answer.status} ${answer.statusText}`);
  return loadLetters(new Uint8Array(await answer.arrayBuffer()));
}

/** Loads the letters from these bytes, which may be packed by gzip. */
export async function loadLetters(bytes) {
  if (typeof WebAssembly !== 'object') throw new Error('This browser has no WebAssembly.');
  const code = bytes[0] === 0x1f ? await wasmUnpacked(bytes) : bytes;
  const module = await WebAssembly.compile(code);
  const { exports } = await WebAssembly.instantiate(module, wasmImports(module));
  exports._initialize();
  return new Letters(new WasmCalls(exports));
}

/** By the browser itself where it can, which is faster. */
async function wasmUnpacked(bytes) {
  if (typeof DecompressionStream !== 'function') return inflate(bytes);
  const unpacked = new Blob([bytes]).stream().pipeThrough(new DecompressionStream('gzip'));
  return new Response(unpacked).arrayBuffer();
}

/** The few calls that a library might make to its system: there is none, so that each of them
 * fails, and an end of the program is an error. */
function wasmImports(module) {
  const kNotSupported = 58;
  const imports = {};
  for (const { module: from, name } of WebAssembly.Module.imports(module)) {
    imports[from] ??= {};
    imports[from][name] = () => {
      if (name === 'proc_exit') throw new Error('The letters have ended.');
      return kNotSupported;
    };
  }
  return imports;
}

const wasmDecoder = new TextDecoder();
const wasmEncoder = new TextEncoder();

/** Calls and what they leave. */
class WasmCalls {
  constructor(exports) {
    this.exports = exports;
  }

  /** A copy of the numbers that the last call left. */
  numbers() {
    const { memory, resultNumbers, resultCount } = this.exports;
    return new Float64Array(memory.buffer, resultNumbers(), resultCount()).slice();
  }

  text() {
    const { memory, resultText, resultBytes } = this.exports;
    return wasmDecoder.decode(new Uint8Array(memory.buffer, resultText(), resultBytes()));
  }

  object() {
    const text = this.text();
    return text === '' ? null : JSON.parse(text);
  }

  /** Hands a text over; returns its length in bytes. */
  put(text) {
    const bytes = wasmEncoder.encode(text);
    const place = this.exports.textRoom(bytes.length);
    new Uint8Array(this.exports.memory.buffer, place, bytes.length).set(bytes);
    return bytes.length;
  }
}

/** '#rrggbb' of a colour as a word, which has red lowest. */
function wasmColour(word) {
  const parts = [word & 0xff, (word >> 8) & 0xff, (word >> 16) & 0xff];
  return '#' + parts.map((part) => part.toString(16).padStart(2, '0')).join('');
}

function wasmWord(colour) {
  const number = Number.parseInt(colour.slice(1), 16);
  return ((number & 0xff) << 16) | (number & 0xff00) | ((number >> 16) & 0xff);
}

/** Reads numbers one after the other. */
class WasmReader {
  constructor(numbers) {
    this.numbers_ = numbers;
    this.at_ = 0;
  }
  get atEnd() {
    return this.at_ >= this.numbers_.length;
  }
  next() {
    return this.numbers_[this.at_++];
  }
  point() {
    return { x: this.next(), y: this.next() };
  }
  points(count) {
    return Array.from({ length: count }, () => this.point());
  }
  box() {
    return { x: this.next(), y: this.next(), width: this.next(), height: this.next() };
  }
  arrow() {
    const shaft = this.points(this.next());
    return { shaft, head: this.points(3) };
  }
  strokeNumber() {
    const place = { x: this.next(), y: this.next(), radius: this.next(), clean: this.next() === 1 };
    return { ...place, ...this.arrow() };
  }
}

/** The letter sets and what is made of them. */
class Letters {
  constructor(calls) {
    this.calls_ = calls;
    this.tiles_ = new Map();
    calls.exports.commonFacts();
    const facts = calls.object();
    const [dotsPerSecond, usualStep, leastRadiusMm, ...steps] = calls.numbers();
    this.dotsPerSecond = dotsPerSecond;
    this.usualStep = usualStep;
    this.leastRadiusMm = leastRadiusMm;
    this.steps = steps;
    this.levels = facts.levels;
    this.hindiSetTiles = facts.hindiSetTiles;
    this.colours = facts.colours.map(wasmColour);
    const common = { pen: wasmColour(facts.pen), ruling: wasmColour(facts.ruling) };
    this.sets = Array.from({ length: facts.sets }, (_, i) => new WasmSet(calls, i, common));
  }

  /** The set of that name; undefined when there is none. */
  set(name) {
    return this.sets.find((set) => set.name === name);
  }

  /** A tile's letter, the same object each time. Without strokes for a tile that does not exist. */
  letter(set, tile, { alternative = false, book = false, place = 0, step = this.usualStep } = {}) {
    const key = [set, tile, alternative, book, place, step].join();
    const forms = (alternative ? 1 : 0) + (book ? 2 : 0);
    if (!this.tiles_.has(key)) {
      const index = this.sets.findIndex(({ name }) => name === set);
      const handle = this.calls_.exports.letterOfTile(index, tile, forms, place, step);
      this.tiles_.set(key, new Letter(this.calls_, handle, true));
    }
    return this.tiles_.get(key);
  }

  /** A text on one line. */
  word(text, options = {}) {
    return this.lines(text, 0, options)[0];
  }

  /** A text on as many lines of that width as it takes. */
  lines(text, width, { headLine = 'once', step = this.usualStep } = {}) {
    const { calls_: calls } = this;
    calls.exports.layText(calls.put(text), width, headLine === 'letter' ? 1 : 0, step);
    const reader = new WasmReader(calls.numbers());
    return calls.object().map(({ letters, leftOut }) => {
      const letter = new Letter(calls, reader.next(), false);
      const word = { letter, width: reader.next(), leftOut };
      reader.next();
      word.letters = letters.map((each) => ({
        text: each,
        firstStroke: reader.next(),
        strokes: reader.next(),
        left: reader.next(),
        right: reader.next(),
      }));
      return word;
    });
  }

  /** A text where the program puts it on a set's sheet: a list of {letter, scale, right, down} with
   * a property leftOut. All lines are one letter; the list is empty when nothing can be written. */
  setWords(set, text, { headLine = 'once', step = this.usualStep } = {}) {
    const { calls_: calls } = this;
    const index = this.sets.findIndex(({ name }) => name === (set.name ?? set));
    calls.exports.setText(index, calls.put(text), headLine === 'letter' ? 1 : 0, step);
    const reader = new WasmReader(calls.numbers());
    const lines = [];
    lines.leftOut = calls.object() ?? [];
    while (!reader.atEnd) {
      const letter = new Letter(calls, reader.next(), false);
      lines.push({ letter, scale: reader.next(), right: reader.next(), down: reader.next() });
    }
    return lines;
  }

  sheet() {
    return new Sheet(this.calls_, this);
  }

  /** A tracer of a letter, or of several one after the other, where they are placed. */
  tracer(letters, { scale = 1, right = 0, down = 0, level = 'normal' } = {}) {
    const tracer = new Tracer(this.calls_, this.levels, level);
    for (const letter of [letters].flat()) tracer.add(letter, { scale, right, down });
    return tracer;
  }
}

/** What is known of one set. */
class WasmSet {
  constructor(calls, index, common) {
    this.calls_ = calls;
    this.index = index;
    calls.exports.factsOfSet(index);
    const facts = calls.object();
    const reader = new WasmReader(calls.numbers());
    for (const name of ['name', 'subject', 'title', 'digits', 'rulesComeBack']) {
      this[name] = facts[name];
    }
    for (const name of ['subjectColour', 'ink', 'tileGround', 'ground']) {
      this[name] = wasmColour(facts[name]);
    }
    Object.assign(this, common);
    this.lines = {};
    for (const name of ['top', 'middle', 'base', 'foot', 'bodyTop']) {
      this.lines[name] = reader.next();
    }
    this.sheet = reader.box();
  }

  /** The tiles, worked out when first asked for; tile 1 comes first. */
  get tiles() {
    if (this.tiles_ === undefined) {
      this.calls_.exports.tilesOfSet(this.index);
      this.tiles_ = this.calls_.object().map((tile, i) => ({ number: i + 1, ...tile }));
    }
    return this.tiles_;
  }
}

/** A letter or a word. */
class Letter {
  constructor(calls, handle, kept) {
    this.calls_ = calls;
    this.handle = handle;
    this.kept_ = kept;
  }

  get shape_() {
    if (this.known_ === undefined) {
      this.calls_.exports.shapeOf(this.handle);
      const reader = new WasmReader(this.calls_.numbers());
      this.known_ = { bounds: reader.box(), length: reader.next(), lengths: [] };
      while (!reader.atEnd) this.known_.lengths.push(reader.next());
    }
    return this.known_;
  }
  /** Around all dots, without the pen's width. */
  get bounds() {
    return this.shape_.bounds;
  }
  /** The same to half a pixel, without all that else is worked out of a shape. */
  get roughBounds() {
    this.calls_.exports.roughBoundsOf(this.handle);
    return new WasmReader(this.calls_.numbers()).box();
  }
  get length() {
    return this.shape_.length;
  }
  get strokeCount() {
    return this.shape_.lengths.length;
  }
  lengthOf(stroke) {
    return this.shape_.lengths[stroke];
  }

  /** x, y, x, y... along a pen stroke, about one sheet pixel apart. */
  points(stroke) {
    this.calls_.exports.pointsOf(this.handle, stroke);
    return this.calls_.numbers();
  }
  /** The `d` of an SVG path: of a pen stroke, or of all. */
  path(stroke = -1) {
    this.calls_.exports.pathOf(this.handle, stroke);
    return this.calls_.text();
  }
  /** How long the pen takes. */
  seconds(rate = 1) {
    return this.calls_.exports.secondsOf(this.handle, rate);
  }
  /** Where the number of each pen stroke stands and its arrow: {x, y, radius, clean, shaft, head}.
   * The radius is 0 for a stroke without a number, the shaft empty for one without an arrow. */
  numbers({ discRadius = 9, penHalfWidth = 5, hand = 'right' } = {}) {
    const { calls_: calls } = this;
    calls.exports.numbersOf(this.handle, discRadius, penHalfWidth, hand === 'left' ? 1 : 0);
    const reader = new WasmReader(calls.numbers());
    const numbers = [];
    while (!reader.atEnd) numbers.push(reader.strokeNumber());
    return numbers;
  }
  /** The dots to trace along each pen stroke. */
  dots({ pitch = 20, diameter = 10 } = {}) {
    this.calls_.exports.dotsOf(this.handle, pitch, diameter);
    const reader = new WasmReader(this.calls_.numbers());
    const strokes = [];
    while (!reader.atEnd) strokes.push(reader.points(reader.next()));
    return strokes;
  }

  /** A word is to be freed when no sheet is to get it any more; a tile's letter stays. */
  free() {
    if (this.kept_) return;
    this.calls_.exports.freeLetter(this.handle);
    this.handle = 0;
  }
}

/** Letters to write, the pen that writes them, the pixels that are seen. */
class Sheet {
  constructor(calls, letters) {
    this.calls_ = calls;
    this.letters_ = letters;
    this.handle = calls.exports.makeSheet();
    /** Of what is covered, in device pixels. */
    this.size = { width: 0, height: 0 };
  }
  free() {
    this.calls_.exports.freeSheet(this.handle);
    this.handle = 0;
  }

  // --- the page

  add(letter, { colour = '#ff0000', scale = 1, right = 0, down = 0 } = {}) {
    const { exports } = this.calls_;
    exports.addLetter(this.handle, letter.handle, wasmWord(colour), scale, right, down);
  }
  addGrid(set, options = {}) {
    this.addRule(set, 0, options);
  }
  addRule(set, rule, { colour = set.ruling, step = this.letters_.usualStep } = {}) {
    this.calls_.exports.addRuling(this.handle, set.index, rule, wasmWord(colour), step);
  }
  clear() {
    this.calls_.exports.clearSheet(this.handle);
  }

  // --- the pen

  /** How many dots are due for so many seconds; parts of a dot are kept for the next call. */
  due(seconds) {
    return this.calls_.exports.dotsDue(this.handle, seconds * this.letters_.dotsPerSecond);
  }
  /** Writes the next dots, at most so many; returns how many. */
  write(most) {
    return this.calls_.exports.writeDots(this.handle, most);
  }
  /** The same, but none beyond the end of the present pen stroke. */
  writeStroke(most = -1) {
    return this.calls_.exports.writeStroke(this.handle, most);
  }
  runToEnd() {
    return this.calls_.exports.writeDots(this.handle, -1);
  }
  strokeBack() {
    return this.calls_.exports.stepBack(this.handle) === 1;
  }
  toLetterStart() {
    return this.calls_.exports.stepToLetterStart(this.handle) === 1;
  }
  /** Writes the rulings that follow the present letter at once. */
  layRulings() {
    this.calls_.exports.layRulings(this.handle);
  }

  get state_() {
    this.calls_.exports.standsAt(this.handle);
    return this.calls_.numbers();
  }
  get stands() {
    const [letter, stroke, begun] = this.state_;
    return { letter, stroke, begun: begun === 1 };
  }
  get atEnd() {
    return this.state_[3] === 1;
  }
  get betweenStrokes() {
    return this.state_[4] === 1;
  }
  get strokesWritten() {
    return this.state_[5];
  }
  get rate() {
    return this.state_[6];
  }
  set rate(rate) {
    this.calls_.exports.setRate(this.handle, rate);
  }

  /** The numbers that are to be seen over the letters, as Letter.numbers, with letter and stroke. */
  numbers({ discRadius = 9, penHalfWidth = 5, hand = 'right' } = {}) {
    const { calls_: calls } = this;
    calls.exports.numbersOnSheet(this.handle, discRadius, penHalfWidth, hand === 'left' ? 1 : 0);
    const reader = new WasmReader(calls.numbers());
    const numbers = [];
    while (!reader.atEnd) {
      numbers.push({ letter: reader.next(), stroke: reader.next(), ...reader.strokeNumber() });
    }
    return numbers;
  }

  // --- the pixels

  /** What of the sheet is shown, at `ratio` device pixels to a sheet pixel, over a ground; null for
   * none: what is not ink is transparent. Returns false when that is empty or too large. */
  cover({ x, y, width, height }, ratio, ground) {
    const { exports } = this.calls_;
    const word = ground === null ? -1 : wasmWord(ground);
    const covered = exports.coverSheet(this.handle, x, y, width, height, ratio, word) === 1;
    const [columns, rows] = this.calls_.numbers();
    this.size = { width: columns, height: rows };
    this.allAnew_ = true;
    return covered;
  }
  paint_() {
    const place = this.calls_.exports.paintSheet(this.handle);
    if (place === 0) return null;
    const [width, height, ...dirty] = this.calls_.numbers();
    const { buffer } = this.calls_.exports.memory;
    const bytes = new Uint8ClampedArray(buffer, place, 4 * width * height);
    return { image: new ImageData(bytes, width, height), dirty };
  }
  /** Puts what changed on a 2D context of that size; returns it, or null when nothing did. */
  paint(context) {
    const painted = this.paint_();
    if (painted === null) return null;
    const { image } = painted;
    const dirty = this.allAnew_ ? [0, 0, image.width, image.height] : painted.dirty;
    this.allAnew_ = false;
    const [x, y, width, height] = dirty;
    if (width <= 0 || height <= 0) return null;
    context.putImageData(image, 0, 0, x, y, width, height);
    return { x, y, width, height };
  }
  /** All that is covered as an ImageData of its own. */
  wholePicture() {
    const painted = this.paint_();
    if (painted === null) return null;
    this.allAnew_ = true;
    const { data, width, height } = painted.image;
    return new ImageData(data.slice(), width, height);
  }

  // --- the dots, for tests

  set keepDots(keep) {
    this.calls_.exports.keepDots(this.handle, keep ? 1 : 0);
  }
  /** The dots since the last call: {xy: x, y, x, y..., colours: [{from, colour}]}. */
  takeDots() {
    const place = this.calls_.exports.takeDots(this.handle);
    const reader = new WasmReader(this.calls_.numbers());
    const count = reader.next();
    const { buffer } = this.calls_.exports.memory;
    const xy = count > 0 ? new Float32Array(buffer, place, 2 * count).slice() : new Float32Array();
    const colours = [];
    while (!reader.atEnd) colours.push({ from: reader.next(), colour: wasmColour(reader.next()) });
    return { xy, colours };
  }
}

/** Judges a pen that traces. */
class Tracer {
  constructor(calls, levels, level) {
    this.calls_ = calls;
    this.levels_ = levels;
    this.handle = calls.exports.makeTracer(levels.indexOf(level));
  }
  free() {
    this.calls_.exports.freeTracer(this.handle);
    this.handle = 0;
  }
  /** Begins anew, with another letter behind those so far. */
  add(letter, { scale = 1, right = 0, down = 0 } = {}) {
    this.calls_.exports.addToTracer(this.handle, letter.handle, scale, right, down);
  }

  down(x, y) {
    this.calls_.exports.penDown(this.handle, x, y);
  }
  move(x, y) {
    this.calls_.exports.penMove(this.handle, x, y);
  }
  /** {stroke, verdict, progress, misses, help}, or null when the pen was up. */
  up() {
    this.calls_.exports.penUp(this.handle);
    const judgement = this.calls_.object();
    return judgement && { ...judgement, progress: this.calls_.numbers()[0] };
  }
  cancel() {
    this.calls_.exports.penCancel(this.handle);
  }
  writeForChild() {
    this.calls_.exports.writeForChild(this.handle);
  }
  setLeastRadius(sheetPixels) {
    this.calls_.exports.setLeastRadius(this.handle, sheetPixels);
  }

  get state_() {
    this.calls_.exports.tracerState(this.handle);
    return this.calls_.numbers();
  }
  get strokeCount() {
    return this.state_[0];
  }
  /** The stroke that is on; strokeCount when there is none left. */
  get stroke() {
    return this.state_[1];
  }
  get finished() {
    return this.stroke === this.strokeCount;
  }
  get progress() {
    return this.state_[2];
  }
  get misses() {
    return this.state_[3];
  }
  get helped() {
    return this.state_[4];
  }
  /** Where the stroke goes on. */
  get place() {
    const [, , , , , x, y] = this.state_;
    return { x, y };
  }
  /** How far from there the pen may come down. */
  get reach() {
    return this.state_[7];
  }
  get level() {
    return this.levels_[this.state_[8]];
  }
  set level(level) {
    this.calls_.exports.setLevel(this.handle, this.levels_.indexOf(level));
  }
  get pen() {
    return ['up', 'on way', 'astray', 'elsewhere'][this.state_[9]];
  }
  /** What the misses of the stroke that is on ask for. */
  get help() {
    return ['none', 'pulse', 'show', 'wider', 'written'][this.state_[10]];
  }
  /** x, y, x, y... along the stroke that is on, from where it goes on. */
  rest() {
    this.calls_.exports.restOf(this.handle);
    return this.calls_.numbers();
  }
  /** The arrow that shows where the way goes on in a stroke's middle: {shaft, head}; the shaft is
   * empty where there is no room for it. */
  sign(hand = 'right') {
    this.calls_.exports.arrowOf(this.handle, hand === 'left' ? 1 : 0);
    return new WasmReader(this.calls_.numbers()).arrow();
  }
  /** x, y, x, y... along a stroke to trace, as placed. */
  points(stroke) {
    this.calls_.exports.guideOf(this.handle, stroke);
    return this.calls_.numbers();
  }
}
