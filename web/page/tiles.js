// A board's tiles: one stop for the keyboard, within which arrows go from tile to tile.
import { starPicture, tilePicture } from './pictures.js';
import { starOf } from './store.js';
import { textOf, tileText } from './texts.js';

/// Sizes in the page's own measure, rem.
const kLeastTile = 3.4;
const kLargestTile = 9;
const kGap = 0.35;

/// Pictures that come later take so many milliseconds of a frame.
const kPicturesMs = 2;

/// `choose(tile)` comes when a tile is pressed.
export class Tiles {
  constructor(letters, set, choose) {
    this.letters = letters;
    this.set = set;
    this.element = document.createElement('div');
    this.element.className = `tiles ${set.name}`;
    this.element.setAttribute('role', 'group');
    this.element.setAttribute('aria-label', textOf('tiles'));
    this.element.addEventListener('click', (event) => {
      const button = event.target.closest('button');
      if (!button) return;
      this.stopAt(button);
      choose(this.set.tiles[Number(button.dataset.tile) - 1]);
    });
    this.element.addEventListener('keydown', (event) => this.onKey(event));
    this.shape = set.name === 'engc' ? 164 / 324 : 220 / 240; // height by width
    this.missing = []; // tiles whose pictures come later
    this.frame = 0;
    this.observer = new ResizeObserver(() => this.fit());
    this.observer.observe(this.element);
  }

  close() {
    this.observer.disconnect();
    cancelAnimationFrame(this.frame);
  }

  /// Makes the tiles as large as all of them are seen at once; where they would be too small they
  /// scroll.
  fit() {
    const rem = parseFloat(getComputedStyle(document.documentElement).fontSize);
    const width = this.element.clientWidth / rem - 0.8;
    const height = this.element.clientHeight / rem - 0.8;
    const count = this.element.childElementCount;
    const most = Math.max(1, Math.floor((width + kGap) / (kLeastTile + kGap)));
    let columns = Math.min(most, Math.ceil(width / kLargestTile));
    const isTooHigh = () => {
      const tile = Math.max(2.75, ((width + kGap) / columns - kGap) * this.shape);
      return Math.ceil(count / columns) * (tile + kGap) > height;
    };
    while (columns < most && isTooHigh()) ++columns;
    this.element.style.setProperty('--columns', columns);
  }

  /// Shows those tiles; the book's forms of them where that is wanted. Where something else is more
  /// urgent the pictures come later, some a frame.
  show(tiles, { book, alternative, picturesLater }) {
    this.shown = { tiles, book, alternative };
    this.missing = picturesLater ? [...tiles] : [];
    cancelAnimationFrame(this.frame);
    const html = tiles.map((tile) => this.tileHtml(tile, picturesLater ? '' : this.pictureOf(tile)));
    this.element.innerHTML = html.join('');
    this.element.querySelector('button')?.setAttribute('tabindex', '0');
    this.fit();
    if (picturesLater) this.frame = requestAnimationFrame(() => this.addPictures());
  }

  addPictures() {
    const end = performance.now() + kPicturesMs;
    while (this.missing.length > 0 && performance.now() < end) {
      const tile = this.missing.shift();
      this.buttonOf(tile).insertAdjacentHTML('afterbegin', this.pictureOf(tile));
    }
    if (this.missing.length > 0) this.frame = requestAnimationFrame(() => this.addPictures());
  }

  pictureOf(tile) {
    const { book, alternative } = this.shown;
    return tilePicture(this.letters, this.set, tile, { book, alternative });
  }

  tileHtml(tile, picture) {
    const star = starOf(this.set.name, tile.number);
    return (
      `<button type="button" tabindex="-1" data-tile="${tile.number}"` +
      ` aria-label="${this.nameOf(tile, star)}" style="background:${this.set.tileGround}">` +
      `${picture}${star ? starPicture(star) : ''}</button>`
    );
  }

  nameOf(tile, star) {
    const name = tileText(tile, this.shown.book).replace(/"/g, '&quot;');
    return star ? `${name}, ${textOf(star === 'full' ? 'isWritten' : 'isHelped')}` : name;
  }

  buttonOf(tile) {
    return this.element.querySelector(`button[data-tile="${tile.number}"]`);
  }

  /// The star that the tile has by now.
  followStar(tile) {
    const button = this.buttonOf(tile);
    if (!button) return;
    const star = starOf(this.set.name, tile.number);
    button.querySelector('.star')?.remove();
    if (star) button.insertAdjacentHTML('beforeend', starPicture(star));
    button.setAttribute('aria-label', this.nameOf(tile, star));
  }

  /// Marks the tile that is written.
  mark(tile) {
    this.element.querySelector('[aria-current]')?.removeAttribute('aria-current');
    this.buttonOf(tile)?.setAttribute('aria-current', 'true');
  }

  stopAt(button) {
    this.element.querySelector('[tabindex="0"]')?.setAttribute('tabindex', '-1');
    button.setAttribute('tabindex', '0');
  }

  onKey(event) {
    const buttons = [...this.element.children];
    const at = buttons.indexOf(document.activeElement);
    if (at < 0) return;
    const top = buttons[0].offsetTop;
    const inRow = Math.max(buttons.findIndex((button) => button.offsetTop > top), 1);
    const ways = { ArrowLeft: -1, ArrowRight: 1, ArrowUp: -inRow, ArrowDown: inRow };
    const to = { Home: 0, End: buttons.length - 1 }[event.key] ?? at + (ways[event.key] ?? NaN);
    if (!buttons[to]) return;
    event.preventDefault();
    this.stopAt(buttons[to]);
    buttons[to].focus();
  }
}
