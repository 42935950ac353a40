// Pictures as SVG text: tiles, subjects, the strip's buttons, drawn from letters and strokes.
import { pathBox } from './path_box.js';

// A tile's picture has so many units; that of a capital is wider.
const kTile = { width: 240, height: 220 };
const kCapitalTile = { width: 324, height: 164 };

export function escaped(text) {
  const names = { '&': '&amp;', '<': '&lt;', '>': '&gt;', '"': '&quot;' };
  return text.replace(/[&<>"]/g, (sign) => names[sign]);
}

function inset(box, x, y) {
  return { x: box.x + x, y: box.y + y, width: box.width - 2 * x, height: box.height - 2 * y };
}

const kMostWidth = 250;

/// Two tiles of the number set write two signs, each in a column of its own: with the strokes of
/// the second one moved so that they stand close together. One piece for all other letters.
function piecesOf(set, letter) {
  const d = letter.path();
  const box = pathBox(d);
  if (set.name === 'mat' && box.width > kMostWidth) return signsOf(letter, box);
  return { pieces: [{ d, right: 0 }], box };
}

function signsOf(letter, { x, y, height }) {
  const first = { paths: [], left: Infinity, end: -Infinity };
  const second = { paths: [], left: Infinity, end: -Infinity };
  for (let i = 0; i < letter.strokeCount; ++i) {
    const d = letter.path(i);
    const box = pathBox(d);
    const sign = box.x + box.width / 2 < x + kMostWidth * 0.7 ? first : second;
    sign.paths.push(d);
    sign.left = Math.min(sign.left, box.x);
    sign.end = Math.max(sign.end, box.x + box.width);
  }
  const kApart = 45;
  const isOne = second.paths.length === 0;
  const right = isOne ? 0 : first.end + kApart - second.left;
  const pieces = [{ d: first.paths.join(''), right: 0 }];
  if (!isOne) pieces.push({ d: second.paths.join(''), right });
  return { pieces, box: { x, y, width: Math.max(first.end, second.end + right) - x, height } };
}

/// The letter in a place, its pen `width` broad unless that would fill its loops.
function letterPicture(set, letter, place, width) {
  const { pieces, box } = piecesOf(set, letter);
  if (pieces[0].d === '') return '';
  const room = inset(place, width / 2, width / 2);
  // Small marks are not blown up beyond recognition.
  const kFullHeight = 150;
  const scale = Math.min(
    room.width / Math.max(box.width, 1),
    room.height / Math.max(box.height, 1),
    (1.4 * room.height) / kFullHeight,
  );
  const kBroadest = 16; // sheet pixels; the pen itself is 10
  const pen = Math.min(Math.max(kBroadest * scale, width * 0.42), width) / scale;
  const right = room.x + room.width / 2 - scale * (box.x + box.width / 2);
  const down = room.y + room.height / 2 - scale * (box.y + box.height / 2);
  const paths = pieces.map((piece) =>
    piece.right === 0
      ? `<path d="${piece.d}"/>`
      : `<path d="${piece.d}" transform="translate(${piece.right} 0)"/>`,
  );
  return (
    `<g stroke="${set.ink}" stroke-width="${pen.toFixed(1)}" transform="translate(` +
    `${right.toFixed(1)} ${down.toFixed(1)})scale(${scale.toFixed(3)})">${paths.join('')}</g>`
  );
}

/// The scripts whose letters also stand in print in a corner: strokes alone do not tell all of
/// them apart.
function hasPrintedCorner(set) {
  return set.name.startsWith('hin') || set.name.startsWith('tel');
}

/// A tile's picture: the letter, in print in the corner too where its script asks for that. Hidden
/// from screen readers, as the tile itself has a name.
export function tilePicture(letters, set, tile, form = {}) {
  const size = set.name === 'engc' ? kCapitalTile : kTile;
  const { width, height } = size;
  const corner = hasPrintedCorner(set);
  const letter = letters.letter(set.name, tile.number, form);
  const place = inset({ x: 0, y: 0, width, height }, height * 0.12, height * 0.1);
  if (corner) {
    place.height -= height * 0.28 - place.y;
    place.y = height * 0.28;
  }
  let picture = letterPicture(set, letter, place, height * 0.075);
  const printed = form.book ? tile.bookPrinted : tile.printed;
  if (corner && printed) {
    picture +=
      `<text x="${width - 12}" y="44" font-size="40" text-anchor="end" fill="#37474f">` +
      `${escaped(printed)}</text>`;
  }
  if (tile.lettering) {
    picture +=
      `<text x="${width / 2}" y="128" font-size="34" text-anchor="middle" fill="${set.ink}"` +
      ` textLength="200" lengthAdjust="spacingAndGlyphs">${escaped(tile.lettering)}</text>`;
  }
  return `<svg viewBox="0 0 ${width} ${height}" aria-hidden="true">${picture}</svg>`;
}

/// Letters that stand for a subject.
function emblemOf(set) {
  if (set.name === 'mat') return [1, 11, 2];
  return set.name.startsWith('eng') ? [1, 2, 3] : [1, 3];
}

/// Home's picture of a subject.
export function subjectPicture(letters, set) {
  const tiles = emblemOf(set);
  const width = (704 - 120) / tiles.length;
  const drawn = tiles.map((tile, i) => {
    const place = { x: 60 + width * i + 16, y: 70, width: width - 32, height: 412 - 140 };
    return letterPicture(set, letters.letter(set.name, tile), place, 26);
  });
  return (
    '<svg viewBox="0 0 704 412" aria-hidden="true">' +
    `<rect width="704" height="412" rx="28" fill="${set.ink}"/>` +
    `<rect x="22" y="22" width="660" height="368" rx="40" fill="#fff8e1"/>${drawn.join('')}</svg>`
  );
}

function arc(x, y, radius, from, to) {
  const place = (angle) => {
    const turn = (angle * Math.PI) / 180;
    return `${(x + radius * Math.cos(turn)).toFixed(1)} ${(y - radius * Math.sin(turn)).toFixed(1)}`;
  };
  const half = (from + to) / 2; // in two parts, so that a whole ring is one too
  const way = to > from ? 0 : 1;
  const part = (angle) => `A${radius} ${radius} 0 0 ${way} ${place(angle)}`;
  return `M${place(from)}${part(half)}${part(to)}`;
}

function ruledPicture(count) {
  const lines = Array.from({ length: Math.max(count, 1) }, (_, i) => {
    const y = 50 + (i - (Math.max(count, 1) - 1) / 2) * 16;
    return `M12 ${y}H88`;
  });
  return count === 0 ? 'M12 50h8M34 50h8M56 50h8M78 50h8' : lines.join('');
}

function levelPicture(level, levels) {
  const bars = levels.length - levels.indexOf(level);
  return Array.from({ length: bars }, (_, i) => `M${20 + 20 * i} 80V${62 - 14 * i}`).join('');
}

const kStripPictures = {
  home: 'M14 52L50 18L86 52M24 46V84H76V46M44 84V62H56V84',
  back: 'M26 22V78M72 22L42 50L72 78Z',
  on: 'M74 22V78M28 22L58 50L28 78Z',
  pause: 'M36 22V78M64 22V78',
  goOn: 'M34 20L72 50L34 80Z',
  again: `${arc(50, 52, 28, 60, 360)}M48 12L64 28L48 44`,
  trace: `M44 60L50 42L80 12L90 24L60 52Z${arc(22, 80, 10, 180, 0)}${arc(42, 80, 10, 180, 360)}${arc(62, 80, 10, 180, 0)}`,
  leftHand: 'M72 76L62 54L28 18L16 30L50 66ZM72 86H30',
  clicks: `${arc(22, 72, 10, 0, 360)}${arc(78, 28, 10, 0, 360)}M38 60L40 58M50 50L50 50.1M60 42L62 40`,
  numbers: `${arc(36, 38, 26, 90, 450)}M36 28V48M78 18V82M64 66L78 84L92 66`,
  grid: 'M14 14H86V86H14ZM14 50H86M50 14V86',
  alternatives: `${arc(34, 50, 20, 0, 360)}M66 30H90V70H66Z`,
  words: `${arc(26, 56, 16, 0, 360)}M52 20V72${arc(76, 56, 16, 0, 360)}M10 86H92`,
  print: 'M28 40V12H72V40M28 72H12V40H88V72H72M28 58H72V90H28Z',
  sound: `M14 40H30L52 20V80L30 60H14Z${arc(52, 50, 18, 50, -50)}${arc(52, 50, 34, 50, -50)}`,
  soundOff: 'M14 40H30L52 20V80L30 60H14ZM64 40L84 60M84 40L64 60',
  install: 'M50 12V60M30 42L50 62L70 42M14 70V86H86V70',
};

function strokesPicture(d) {
  return `<svg viewBox="0 0 100 100" class="strokes" aria-hidden="true"><path d="${d}"/></svg>`;
}

/// A picture of the strip, drawn with the pen.
export function stripPicture(name) {
  return strokesPicture(kStripPictures[name]);
}

/// As many lines as the rule has; a broken one for none.
export function rulesPicture(count) {
  return strokesPicture(ruledPicture(count));
}

/// More bars for a stricter level.
export function levelPictureOf(level, levels) {
  return strokesPicture(levelPicture(level, levels));
}

/// Five arms around the middle of 100 by 100 units.
export function starPicture(star) {
  const corners = Array.from({ length: 10 }, (_, i) => {
    const angle = Math.PI * (0.5 + 0.2 * i);
    const reach = i % 2 === 0 ? 46 : 21;
    return `${(50 + reach * Math.cos(angle)).toFixed(1)} ${(52 - reach * Math.sin(angle)).toFixed(1)}`;
  });
  return (
    `<svg viewBox="0 0 100 100" class="star ${star}" aria-hidden="true">` +
    `<path d="M${corners.join('L')}Z"/></svg>`
  );
}

/// The loops that a child begins with, and the pencil that writes them: home's ground.
export function pencilPicture() {
  let loops = 'M2 70';
  for (let i = 0; i < 3; ++i) {
    const x = 2 + 18 * i;
    loops += `C${x + 14} 66 ${x + 20} 40 ${x + 10} 40C${x + 1} 40 ${x + 4} 70 ${x + 18} 69`;
  }
  return (
    '<svg viewBox="0 0 110 80" class="pencil" aria-hidden="true">' +
    `<path d="${loops}L58 68" fill="none" stroke="#7fb2dc" stroke-width="2.2"` +
    ' stroke-linecap="round"/><g transform="translate(58 68) rotate(-52)">' +
    '<path d="M0 0L15 -6V6Z" fill="#f3d9b1"/><path d="M0 0L5 -2V2Z" fill="#455a64"/>' +
    '<path d="M15 -6h45v4h-45z" fill="#ffd54f"/><path d="M15 -2h45v4h-45z" fill="#ffc107"/>' +
    '<path d="M15 2h45v4h-45z" fill="#ffa000"/><path d="M60 -6h5v12h-5z" fill="#b0bec5"/>' +
    '<rect x="64.5" y="-6" width="9" height="12" rx="3" fill="#f48fb1"/></g></svg>'
  );
}
