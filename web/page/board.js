// A board: tiles, the sheet, and the pen's strip. A tap on a tile speaks and writes its letter.
import { BoardStrip } from './board_strip.js';
import { numberRule, paintLettering, paintNumber } from './marks.js';
import { boxAround, grown, inkBox, PageItems } from './page_items.js';
import { Pen } from './pen.js';
import { printSheet } from './print.js';
import { speak } from './sound.js';
import { giveStar, keepLevel, keptLevel } from './store.js';
import { boardText, textOf, tileText } from './texts.js';
import { Tiles } from './tiles.js';
import { Tracing } from './trace.js';
import { SheetView } from './view.js';
import { WordsForm } from './words.js';

/// All of a sheet is shown where its holder has at least this shape, width by height, and a sheet
/// pixel then has at least so many CSS pixels; else one letter, as large as it may be.
const kWideShape = 1.3;
const kLeastWhole = 0.85;
/// Room for numbers and arrows beside that letter, in sheet pixels.
const kBeside = 32;

/// One subject's board, in `element` until close(). `announce(text)` says something to a screen
/// reader. `first`, if there is one, is the tile to begin with: its letter comes before all pictures.
export class Board {
  constructor(letters, set, element, announce, first) {
    this.letters = letters;
    this.set = set;
    this.element = element;
    this.announce = announce;
    this.hindiSet = 1;
    this.alternative = false;
    this.numbersShown = false;
    this.lettering = '';
    this.sheet = letters.sheet();
    this.page = new PageItems(this.sheet, set);
    this.build();
    this.pen = new Pen(this.sheet, this.view, () => this.followPen());
    this.tracing = new Tracing(this, this.holder);
    this.tracing.setLevel(keptLevel(letters.levels));
    this.view.measure();
    this.showTiles(first !== undefined);
    if (!first?.writes) this.showSheet();
    if (first) this.choose(first);
    this.followPen();
    this.keys = (event) => this.onKey(event);
    document.addEventListener('keydown', this.keys, true);
  }

  close() {
    document.removeEventListener('keydown', this.keys, true);
    this.pen.pause();
    this.tracing.close();
    this.view.close();
    this.tiles.close();
    this.sheet.free();
    this.element.replaceChildren();
  }

  build() {
    this.holder = document.createElement('div');
    this.holder.className = 'sheet';
    this.holder.setAttribute('role', 'img');
    this.holder.style.background = this.set.ground;
    this.tiles = new Tiles(this.letters, this.set, (tile) => this.choose(tile));
    this.strip = new BoardStrip(this);
    this.words = new WordsForm(this);
    const heading = document.createElement('h1');
    heading.textContent = boardText(this.set);
    const head = document.createElement('header');
    head.append(this.strip.home, heading, this.strip.sound);
    this.element.replaceChildren(
      head, this.tiles.element, this.holder, this.words.element, this.strip.element,
    );
    this.view = new SheetView(this.holder, this.sheet, this.set.ground, {
      beneath: (context) => this.tracing.paintBeneath(context),
      above: (context) => this.paintAbove(context),
      resized: () => this.showSheet(),
    });
  }

  // --- tiles

  get book() {
    return this.tracing.on;
  }

  showTiles(picturesLater = false) {
    const { set, hindiSet } = this;
    const inSet = this.letters.hindiSetTiles;
    const shown = set.tiles.filter(
      (tile) =>
        (set.name !== 'hinc' || Math.ceil(tile.number / inSet) === hindiSet) &&
        (!this.alternative || tile.alternative),
    );
    this.tiles.show(shown, { book: this.book, alternative: this.alternative, picturesLater });
  }

  useHindiSet(number) {
    this.hindiSet = number;
    this.wipe();
    this.showTiles();
  }

  useAlternatives(on) {
    this.alternative = on;
    this.wipe();
    this.showTiles();
  }

  formOf(tile) {
    return { alternative: this.alternative && tile.alternative, book: this.book };
  }

  /// A tap: the pen first finishes what it writes, so that no letter is left half-way.
  choose(tile) {
    this.pen.hurry();
    const letter = this.letters.letter(this.set.name, tile.number, this.formOf(tile));
    const isLast = this.page.last?.letter === letter && this.page.last.tile === tile;
    this.tiles.mark(tile);
    if (isLast && !this.tracing.on) return this.again();
    if (tile.startsGroup || this.page.wouldCover(letter) || this.tracing.on) this.startGroup();
    if (!tile.writes) return this.showLettering(tile);
    this.write([{ letter, tile, name: tileText(tile, this.book) }]);
  }

  showLettering(tile) {
    this.lettering = tile.lettering;
    this.announce(tile.lettering);
    this.view.touch();
  }

  startGroup() {
    this.wipe();
    this.page.addRulings();
    this.sheet.runToEnd();
  }

  wipe() {
    this.pen.pause();
    this.page.wipe();
    this.tracing.wipe();
    this.lettering = '';
    this.view.paint();
    this.followPen();
  }

  /// Speaks and writes letters; while tracing is on the child writes them.
  write(items) {
    for (const item of items) this.page.add(item);
    this.speakLast();
    if (this.tracing.on) this.tracing.restart();
    this.showSheet();
    if (this.tracing.on) {
      this.followPen();
    } else {
      this.pen.write();
    }
    this.view.touch();
  }

  async speakLast() {
    const tile = this.page.last?.tile;
    if (!tile) return;
    const heard = await speak(this.set.name, tile.number);
    this.strip.showSoundWaits(!heard);
  }

  again() {
    if (!this.page.last) return;
    this.pen.toLetterStart();
    this.speakLast();
    if (this.tracing.on) {
      this.tracing.restart();
    } else {
      this.pen.write();
    }
    this.view.touch();
  }

  // --- the sheet

  itemAt(index) {
    return this.page.at(index);
  }

  /// All of the sheet where there is room; else the last letter, and while a child traces the one
  /// that is on.
  showSheet() {
    const { sheet, lines } = this.set;
    const inked = this.page.items.filter((item) => !item.letter.isEmpty);
    const present = (this.tracing.on && this.tracing.item) || inked.at(-1);
    if (!present || (!this.tracing.on && this.view.holds(sheet, kWideShape, kLeastWhole))) {
      this.view.show(grown(boxAround([sheet, ...inked.map(inkBox)]), 10));
      return;
    }
    const ink = inkBox(present);
    const rows = { x: ink.x, y: lines.top, width: ink.width, height: lines.base - lines.top };
    this.view.show(grown(boxAround([ink, rows]), kBeside));
  }

  paintAbove(context) {
    if (this.lettering) paintLettering(context, this.lettering);
    if (this.numbersShown) this.paintNumbers(context);
    this.tracing.paintAbove(context);
    return this.lettering !== '' || this.numbersShown || this.tracing.hasSigns;
  }

  /// While a letter is written the numbers of the strokes to come; else those of all letters.
  paintNumbers(context) {
    const rule = numberRule(this.view.cssRatio, this.tracing.leftHand);
    for (const number of this.sheet.numbers(rule)) {
      paintNumber(context, this.letters, number.stroke + 1, number);
    }
  }

  // --- the strip's commands

  showNumbers(on) {
    this.numbersShown = on;
    this.view.touch();
  }

  useLeftHand(on) {
    this.tracing.setLeftHand(on);
  }

  useLevel(level) {
    this.tracing.setLevel(level);
    keepLevel(level);
  }

  useGrid(on) {
    this.page.grid = on;
    this.followRulings();
  }

  useRule(number) {
    this.page.rule = number;
    this.followRulings();
  }

  /// Rulings lie beneath the letters: the page is made anew, with as many strokes as stood there.
  followRulings() {
    const wasWriting = this.pen.isWriting;
    this.pen.pause();
    this.page.rebuild();
    this.view.paint();
    this.tracing.restart();
    this.followPen();
    if (wasWriting) this.pen.write();
  }

  useTracing(on) {
    const { items, last } = this.page;
    if (on) this.pen.hurry();
    this.tracing.switchOn(on);
    this.showTiles();
    if (last?.tile) this.tiles.mark(last.tile);
    this.strip.followTracing(on);
    if (on && last) {
      this.beginAnew(last.tile ? [last] : items);
    } else {
      this.showSheet();
    }
    this.followPen();
  }

  /// What stands is there to be traced, in the forms of the book.
  beginAnew(items) {
    const inForm = ({ letter, tile }) =>
      tile ? this.letters.letter(this.set.name, tile.number, this.formOf(tile)) : letter;
    this.startGroup();
    this.write(items.map((item) => ({ ...item, letter: inForm(item) })));
  }

  letterTraced(item, helped) {
    if (item.tile) {
      giveStar(this.set.name, item.tile.number, !helped);
      this.tiles.followStar(item.tile);
    }
    this.speakLast();
    this.announce(textOf('star', { letter: item.name }));
    this.showSheet();
  }

  print() {
    printSheet(this.letters, this.set, this.page.items, this.tiles.shown);
  }

  // --- what follows

  followPen() {
    if (!this.pen) return; // while the board is made
    const { last } = this.page;
    this.strip.follow({
      isWriting: this.pen.isWriting,
      isPaused: this.pen.isPaused && !this.tracing.on,
      hasLetter: last !== null,
      canGoBack: last !== null && !this.isAtStart(last),
    });
    this.view.touch();
    this.tracing.penStopped();
    this.say(last);
  }

  isAtStart(last) {
    const { stands } = this.sheet;
    return stands.letter <= last.index && stands.stroke === 0 && !stands.begun;
  }

  say(last) {
    const names = this.page.items.map((item) => item.name).join(' ');
    this.holder.setAttribute('aria-label', names ? `${textOf('sheet')}: ${names}` : textOf('sheet'));
    if (last === null || this.tracing.on) return;
    const state = this.pen.isWriting ? 'writing' : this.pen.isPaused ? 'paused' : 'written';
    const key = `${state} ${last.index} ${names}`;
    if (key === this.said) return;
    this.said = key;
    this.announce(textOf(state, { letter: last.name }));
  }

  onKey(event) {
    if (event.ctrlKey || event.altKey || event.metaKey) return;
    if (event.target.closest?.('input, dialog')) return;
    if (this.strip.onKey(event)) event.preventDefault();
  }
}
