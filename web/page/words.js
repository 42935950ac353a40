// A line to type a word or a name that the pen then writes.
import { textOf } from './texts.js';

const kMostCharacters = 400;
const kMostNamed = 6;

/// A board's form for words, hidden at first.
export class WordsForm {
  constructor(board) {
    this.board = board;
    this.element = document.createElement('form');
    this.element.className = 'words';
    this.element.hidden = true;
    this.line = document.createElement('input');
    Object.assign(this.line, {
      type: 'text', maxLength: kMostCharacters, autocomplete: 'off', spellcheck: false,
      placeholder: textOf('wordHint'),
    });
    this.line.setAttribute('aria-label', textOf('word'));
    this.line.dataset.name = 'word';
    const write = document.createElement('button');
    write.className = 'plain';
    write.dataset.name = 'write';
    write.textContent = textOf('write');
    this.said = document.createElement('p');
    this.said.setAttribute('role', 'status');
    this.element.append(this.line, write, this.said);
    this.element.addEventListener('submit', (event) => {
      event.preventDefault();
      this.write();
    });
  }

  open(on) {
    this.element.hidden = !on;
    if (on) this.line.focus();
  }

  write() {
    const { board } = this;
    const text = this.line.value.trim();
    const lines = board.letters.setWords(board.set, text, { headLine: 'once' });
    const leftOut = [...new Set(lines.leftOut.map((left) => left.text))];
    const more = leftOut.length > kMostNamed ? ' …' : '';
    this.said.textContent = leftOut.length === 0
      ? ''
      : textOf('leftOut', { letters: leftOut.slice(0, kMostNamed).join(' ') + more });
    if (lines.length === 0) return;
    board.pen.hurry();
    board.startGroup();
    board.write(lines.map((line, i) => ({ ...line, name: i === 0 ? text : '' })));
  }
}
