// The judge of a pen, as web/exports.h has it.

import { WasmReader } from './wasm_calls.js';

/** Judges a pen that traces. */
export class Tracer {
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
