// The letters for a page: what web/exports.h gives as plain objects. Lengths are sheet pixels (Y
// downward), times seconds, colours '#rrggbb'. No function here needs a document.

import { inflate } from './inflate.js';
import { Sheet } from './letter_sheet.js';
import { Tracer } from './letter_tracer.js';
import { WasmCalls, WasmReader, wasmColour } from './wasm_calls.js';

/** Loads the letters that the page has within it, in base64, or has asked its server for. Rejects
 * with an Error when that fails or the browser has no WebAssembly. */
export async function openLetters() {
  const code = globalThis.bramleeCode;
  if (typeof code === 'string') return loadLetters(Uint8Array.from(atob(code), (c) => c.charCodeAt(0)));
  const answer = await code;
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
      this.tiles_ = this.calls_.object().map((tile, i) => ({
        number: i + 1,
        writes: tile.lettering === '', // the other ones show that and write nothing
        ...tile,
      }));
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
    if (this.rough_ === undefined) {
      this.calls_.exports.roughBoundsOf(this.handle);
      this.rough_ = new WasmReader(this.calls_.numbers()).box();
    }
    return this.rough_;
  }
  /** Whether it has no strokes. */
  get isEmpty() {
    const { width, height } = this.roughBounds;
    return width === 0 && height === 0;
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
