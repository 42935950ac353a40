// Unpacks what gzip packed: the letters' code is a third as large that way, also where a server or
// a mail packs nothing itself, and not every browser unpacks by itself.

// How long a match is and how far back it lies: for each code the least, and how many bits follow.
const inflateLengths = inflateRanges(4, 3, 28);
inflateLengths.push({ least: 258, bits: 0 });
const inflateDistances = inflateRanges(2, 1, 30);

/** Ranges of which so many at a time have the same number of bits, one more each time. */
function inflateRanges(atATime, first, count) {
  const ranges = [];
  for (let i = 0, least = first; i < count; ++i) {
    const bits = Math.max(0, Math.floor(i / atATime) - 1);
    ranges.push({ least, bits });
    least += 1 << bits;
  }
  return ranges;
}

/** Bits of bytes, from the lowest on. */
class InflateBits {
  constructor(bytes, at) {
    this.bytes = bytes;
    this.at = at;
    this.held = 0;
    this.count = 0;
  }
  take(count) {
    while (this.count < count) {
      if (this.at >= this.bytes.length) throw new Error('What is packed ends too early.');
      this.held |= this.bytes[this.at++] << this.count;
      this.count += 8;
    }
    const taken = this.held & ((1 << count) - 1);
    this.held >>>= count;
    this.count -= count;
    return taken;
  }
  toNextByte() {
    this.at -= this.count >> 3;
    this.held = this.count = 0;
  }
}

/** A code of Huffman's, by the lengths of its words. */
class InflateCode {
  constructor(lengths) {
    this.counts = new Uint16Array(16);
    for (const length of lengths) ++this.counts[length];
    this.counts[0] = 0;
    const firsts = new Uint16Array(17);
    for (let length = 1; length < 16; ++length) {
      firsts[length + 1] = firsts[length] + this.counts[length];
    }
    this.symbols = new Uint16Array(lengths.length);
    lengths.forEach((length, symbol) => {
      if (length > 0) this.symbols[firsts[length]++] = symbol;
    });
  }
  read(bits) {
    let code = 0;
    let first = 0;
    let index = 0;
    for (let length = 1; length < 16; ++length) {
      code |= bits.take(1);
      const count = this.counts[length];
      if (code - first < count) return this.symbols[index + code - first];
      index += count;
      first = (first + count) << 1;
      code <<= 1;
    }
    throw new Error('What is packed has a word that its code does not know.');
  }
}

function inflateFixedCodes() {
  const lengths = Array.from({ length: 288 }, (_, i) => (i < 144 ? 8 : i < 256 ? 9 : i < 280 ? 7 : 8));
  return [new InflateCode(lengths), new InflateCode(new Array(30).fill(5))];
}

function inflateReadCodes(bits) {
  const literals = bits.take(5) + 257;
  const distances = bits.take(5) + 1;
  const known = bits.take(4) + 4;
  const order = [16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15];
  const lengthLengths = new Array(19).fill(0);
  for (let i = 0; i < known; ++i) lengthLengths[order[i]] = bits.take(3);
  const lengthCode = new InflateCode(lengthLengths);
  const lengths = [];
  while (lengths.length < literals + distances) {
    const symbol = lengthCode.read(bits);
    if (symbol < 16) lengths.push(symbol);
    else if (symbol === 16) inflateRepeat(lengths, lengths.at(-1), bits.take(2) + 3);
    else if (symbol === 17) inflateRepeat(lengths, 0, bits.take(3) + 3);
    else inflateRepeat(lengths, 0, bits.take(7) + 11);
  }
  return [new InflateCode(lengths.slice(0, literals)), new InflateCode(lengths.slice(literals))];
}

function inflateRepeat(lengths, length, times) {
  for (let i = 0; i < times; ++i) lengths.push(length);
}

/** Where the packed bytes begin behind gzip's header. */
function inflateBegin(bytes) {
  const flags = bytes[3];
  let at = 10;
  if (flags & 4) at += 2 + bytes[at] + 256 * bytes[at + 1];
  for (const text of [8, 16]) {
    if (flags & text) at = bytes.indexOf(0, at) + 1;
  }
  return flags & 2 ? at + 2 : at;
}

/** What gzip packed, as a Uint8Array. Throws an Error when the bytes are damaged. */
export function inflate(bytes) {
  const length = new DataView(bytes.buffer, bytes.byteOffset).getUint32(bytes.length - 4, true);
  const out = new Uint8Array(length);
  const bits = new InflateBits(bytes, inflateBegin(bytes));
  let end = 0;
  for (let last = 0; !last; ) {
    last = bits.take(1);
    const kind = bits.take(2);
    if (kind === 0) {
      bits.toNextByte();
      const count = bytes[bits.at] + 256 * bytes[bits.at + 1];
      out.set(bytes.subarray(bits.at + 4, bits.at + 4 + count), end);
      bits.at += 4 + count;
      end += count;
      continue;
    }
    const [literals, distances] = kind === 1 ? inflateFixedCodes() : inflateReadCodes(bits);
    for (let symbol = literals.read(bits); symbol !== 256; symbol = literals.read(bits)) {
      if (symbol < 256) {
        out[end++] = symbol;
        continue;
      }
      const run = inflateLengths[symbol - 257];
      const count = run.least + bits.take(run.bits);
      const back = inflateDistances[distances.read(bits)];
      const distance = back.least + bits.take(back.bits);
      if (distance > end) throw new Error('What is packed points before its beginning.');
      for (let i = 0; i < count; ++i, ++end) out[end] = out[end - distance];
    }
  }
  if (end !== length) throw new Error('What is packed has another length than it says.');
  return out;
}
