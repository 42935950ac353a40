// A sheet of letters, as web/exports.h has it.

import { WasmReader, wasmColour, wasmWord } from './wasm_calls.js';

/** Letters to write, the pen that writes them, the pixels that are seen. */
export class Sheet {
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
