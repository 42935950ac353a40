// What stands on a board's sheet, beside its dots: which letters and rulings were put on the page.

/// How much of the first box the other one covers, 0 to 1.
function partCovered(box, by) {
  const width = Math.min(box.x + box.width, by.x + by.width) - Math.max(box.x, by.x);
  const height = Math.min(box.y + box.height, by.y + by.height) - Math.max(box.y, by.y);
  return (Math.max(0, width) * Math.max(0, height)) / (box.width * box.height);
}

/// Around the ink of a placed letter, with the pen's width.
export function inkBox({ letter, scale, right, down }) {
  const { x, y, width, height } = letter.roughBounds;
  return {
    x: x * scale + right - 5,
    y: y * scale + down - 5,
    width: width * scale + 10,
    height: height * scale + 10,
  };
}

export function boxAround(boxes) {
  const x = Math.min(...boxes.map((box) => box.x));
  const y = Math.min(...boxes.map((box) => box.y));
  return {
    x,
    y,
    width: Math.max(...boxes.map((box) => box.x + box.width)) - x,
    height: Math.max(...boxes.map((box) => box.y + box.height)) - y,
  };
}

export function grown(box, by) {
  return { x: box.x - by, y: box.y - by, width: box.width + 2 * by, height: box.height + 2 * by };
}

/// The letters of a wasm sheet's page with their places, and its rulings.
export class PageItems {
  constructor(sheet, set) {
    this.sheet = sheet;
    this.set = set;
    this.count = 0; // of all that is on the page
    this.items = [];
    this.grid = false;
    this.rule = 0; // 1 to 5, 0 for none
  }

  get last() {
    return this.items.at(-1) ?? null;
  }

  at(index) {
    return this.items.find((item) => item.index === index);
  }

  wipe() {
    this.sheet.clear();
    this.count = 0;
    this.items = [];
  }

  add(item) {
    const placed = { scale: 1, right: 0, down: 0, colour: this.set.pen, ...item, index: this.count };
    const { letter, colour, scale, right, down } = placed;
    this.sheet.add(letter, { colour, scale, right, down });
    this.count += 1;
    this.items.push(placed);
    return placed;
  }

  addGrid() {
    this.sheet.addGrid(this.set, { colour: this.set.ruling });
    this.count += 1;
  }

  addRule() {
    this.sheet.addRule(this.set, this.rule, { colour: this.set.ruling });
    this.count += 1;
  }

  /// The chosen rulings on an empty page.
  addRulings() {
    if (this.grid) this.addGrid();
    if (this.rule > 0) this.addRule();
  }

  /// The page anew with the rulings that are chosen now, and on it all pen strokes that were whole.
  rebuild() {
    const { items } = this;
    const { stands } = this.sheet;
    const unfinished = items.findIndex((item) => item.index === stands.letter);
    this.wipe();
    this.addRulings();
    for (const item of items) this.add(item);
    if (unfinished < 0) return this.sheet.runToEnd();
    const { index } = this.items[unfinished];
    const isThere = ({ letter, stroke }) =>
      letter > index || (letter === index && stroke >= stands.stroke);
    while (!isThere(this.sheet.stands) && this.sheet.writeStroke() > 0);
  }

  /// Whether a letter would be written across another one.
  wouldCover(letter) {
    if (letter.isEmpty) return false;
    const box = inkBox({ letter, scale: 1, right: 0, down: 0 });
    return this.items.some(
      (item) => !item.letter.isEmpty &&
        Math.max(partCovered(inkBox(item), box), partCovered(box, inkBox(item))) > 0.25,
    );
  }
}
