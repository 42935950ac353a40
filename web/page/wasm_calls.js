// Calls of the letters' code, and what they leave: numbers and texts.

const wasmDecoder = new TextDecoder();
const wasmEncoder = new TextEncoder();

/** Calls and what they leave. */
export class WasmCalls {
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
export function wasmColour(word) {
  const parts = [word & 0xff, (word >> 8) & 0xff, (word >> 16) & 0xff];
  return '#' + parts.map((part) => part.toString(16).padStart(2, '0')).join('');
}

export function wasmWord(colour) {
  const number = Number.parseInt(colour.slice(1), 16);
  return ((number & 0xff) << 16) | (number & 0xff00) | ((number >> 16) & 0xff);
}

/** Reads numbers one after the other. */
export class WasmReader {
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
