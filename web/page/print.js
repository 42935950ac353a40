// A sheet of paper with rows to trace and to write, for the browser's own dialog.
import { escaped } from './pictures.js';
import { boardText, textOf } from './texts.js';

// On an A4 page, in millimetres.
const kWidth = 180;
const kBody = 20; // how high a capital is
const kRowGap = 4;
const kHeight = 240; // for rows, below the name and the date
const kDots = { pitch: 20, diameter: 7 };

const kLine = 'fill="none" stroke="#78909c" stroke-width="1.2"';

function linesAcross(lines, left, width) {
  const across = (y, more = '') => `<path d="M${left} ${y}h${width}" ${kLine}${more}/>`;
  return (
    across(lines.top) + across(lines.middle, ' stroke-dasharray="6 8"') +
    across(lines.base) + across(lines.foot)
  );
}

function model(letter) {
  return (
    `<path d="${letter.path()}" fill="none" stroke="#263238" stroke-width="9"` +
    ' stroke-linecap="round" stroke-linejoin="round"/>'
  );
}

function numbered(letter) {
  return letter
    .numbers({ discRadius: 11, penHalfWidth: 5, hand: 'right' })
    .map((number, i) => {
      if (number.radius === 0) return '';
      const place = ({ x, y }) => `${x.toFixed(1)} ${y.toFixed(1)}`;
      const arrow = number.shaft.length === 0
        ? ''
        : `<path d="M${number.shaft.map(place).join('L')}" fill="none" stroke="#fff" stroke-width="4"/>` +
          `<path d="M${number.shaft.map(place).join('L')}" fill="none" stroke="#37474f" stroke-width="2"/>` +
          `<path d="M${number.head.map(place).join('L')}Z" fill="#37474f"/>`;
      return (
        `${arrow}<circle cx="${number.x}" cy="${number.y}" r="${number.radius}" fill="#fff"` +
        ' stroke="#37474f"/>' +
        `<text x="${number.x}" y="${number.y + 5.5}" font-size="16" text-anchor="middle"` +
        ` font-family="sans-serif" fill="#37474f">${i + 1}</text>`
      );
    })
    .join('');
}

function dotted(letter) {
  const dots = letter.dots(kDots).flat();
  const d = dots.map(({ x, y }) => `M${x.toFixed(1)} ${y.toFixed(1)}h.01`).join('');
  return (
    `<path d="${d}" fill="none" stroke="#90a4ae" stroke-width="${kDots.diameter}"` +
    ' stroke-linecap="round"/>'
  );
}

/// How rows of a letter stand on the page: what of the sheet a row shows, and how large.
function rowLayout(letter, lines) {
  const { bounds } = letter;
  const kMargin = 28; // beside and above a letter, in sheet pixels: numbers stand there
  const pitch = bounds.width + 2 * kMargin;
  const usual = kBody / (lines.base - lines.bodyTop); // millimetres to a sheet pixel
  const scale = Math.min(usual, kWidth / pitch); // a long word is made smaller
  const top = Math.min(lines.top, bounds.y - kMargin) - 8;
  const height = Math.max(lines.foot, bounds.y + bounds.height) + 8 - top;
  return { pitch, scale, left: bounds.x - kMargin, top, width: kWidth / scale, height };
}

/// The letter first, with its strokes' numbers, then as many dotted ones as there is room for; or
/// nothing but the lines.
function rowOf(letter, lines, { withModel, blank }) {
  const { pitch, scale, left, top, width, height } = rowLayout(letter, lines);
  const count = blank ? 0 : Math.max(1, Math.floor(width / pitch));
  let inked = '';
  for (let i = 0; i < count; ++i) {
    const body = i === 0 && withModel ? model(letter) + numbered(letter) : dotted(letter);
    inked += `<g transform="translate(${(i * pitch).toFixed(1)} 0)">${body}</g>`;
  }
  const box = [left, top, width, height].map((length) => length.toFixed(1)).join(' ');
  return (
    `<svg style="width:${kWidth}mm;height:${(height * scale).toFixed(1)}mm" viewBox="${box}">` +
    `${linesAcross(lines, left, width)}${inked}</svg>`
  );
}

/// Rows of one letter for its share of a page, the last one to be written freely.
function rowsOf(letter, lines, share) {
  const { scale, height } = rowLayout(letter, lines);
  const count = Math.max(2, Math.floor((kHeight * share) / (height * scale + kRowGap)));
  return Array.from({ length: count }, (_, i) =>
    rowOf(letter, lines, { withModel: i === 0, blank: i === count - 1 }),
  );
}

/// The letters on the sheet, with many rows each; with none there, a row of each tile's letter.
export function paperHtml(letters, set, items, { tiles, book, alternative }) {
  const chosen = items.filter((item) => !item.letter.isEmpty);
  const letterOf = (tile) => letters.letter(set.name, tile.number, { book, alternative });
  const rows = chosen.length > 0
    ? chosen.flatMap(({ letter }) => rowsOf(letter, set.lines, 1 / chosen.length))
    : tiles.filter((tile) => tile.writes).map((tile) =>
        rowOf(letterOf(tile), set.lines, { withModel: true }));
  return (
    `<header><h1>${escaped(boardText(set))}</h1><p>${textOf('name')}: ` +
    `<span></span> ${textOf('date')}: <span></span></p></header>${rows.join('')}`
  );
}

/// Puts the rows on the paper that only the printer sees, and asks the browser to print.
export function printSheet(letters, set, items, shown) {
  document.getElementById('paper').innerHTML = paperHtml(letters, set, items, shown);
  window.print();
}
