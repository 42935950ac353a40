// Tries inflate.js on what zlib packs, whole and damaged; ends with status 1 and says why when it
// does otherwise than it should.
import assert from 'node:assert/strict';
import zlib from 'node:zlib';

import { inflate } from '../../web/page/inflate.js';

/** Bytes that are the same each time: of few kinds, so that they repeat, or of all kinds. */
function bytesOf(count, kinds) {
  const bytes = new Uint8Array(count);
  for (let i = 0, state = 1; i < count; ++i) {
    state = (Math.imul(state, 1103515245) + 12345) >>> 0;
    bytes[i] = (state >>> 16) % kinds;
  }
  return bytes;
}

const kSamples = [
  new Uint8Array(0),
  bytesOf(1, 256),
  bytesOf(70000, 1), // one long match
  bytesOf(70000, 3),
  bytesOf(200000, 256), // cannot be packed: blocks that are kept as they are
  new TextEncoder().encode('the letters, the letters and the letters'),
];

for (const sample of kSamples) {
  for (const level of [0, 1, 6, 9]) {
    for (const strategy of [zlib.constants.Z_DEFAULT_STRATEGY, zlib.constants.Z_FIXED]) {
      const packed = zlib.gzipSync(sample, { level, strategy });
      assert.deepEqual(inflate(new Uint8Array(packed)), sample);
    }
  }
}

const packed = new Uint8Array(zlib.gzipSync(bytesOf(5000, 7)));
for (const length of [0, 5, 17, 18, 100, packed.length - 9, packed.length - 1]) {
  assert.throws(() => inflate(packed.slice(0, length)), Error, `${length} bytes alone`);
}
