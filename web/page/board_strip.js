// The strip of a board: what a hand asks of the pen, of tracing and of the sheet.
import { levelPictureOf, rulesPicture, stripPicture } from './pictures.js';
import { hasSounds, soundIsOn, switchSound } from './sound.js';
import { isEnabled, nameButton, pictureButton, setEnabled, setPressed } from './strip.js';
import { textOf } from './texts.js';

const kRules = 5;
/// The slider stands at halves of a doubling: from an eighth to eight times.
const kMostDoublings = 3;

export class BoardStrip {
  constructor(board) {
    this.board = board;
    this.byKey = new Map();
    this.rule = 0;
    this.makeHead();
    this.element = document.createElement('div');
    this.element.className = 'strip';
    this.element.setAttribute('role', 'toolbar');
    this.element.setAttribute('aria-label', textOf('strip'));
    this.makeWatching();
    this.makeTracing();
    this.makeTeaching();
  }

  makeHead() {
    this.home = pictureButton('home', textOf('home'), stripPicture('home'), () => {
      location.hash = '';
    });
    this.sound = pictureButton('sound', textOf('sound'), stripPicture('sound'), () => {
      const waits = this.sound.classList.contains('waits');
      if (!waits) switchSound(!soundIsOn());
      this.followSound();
      if (soundIsOn()) this.board.speakLast();
    });
    this.sound.hidden = !hasSounds(this.board.set.name);
    this.followSound();
  }

  followSound() {
    setPressed(this.sound, soundIsOn());
    this.sound.innerHTML = stripPicture(soundIsOn() ? 'sound' : 'soundOff');
  }

  /// The browser keeps sound back: the button says so and speaks when it is pressed.
  showSoundWaits(waits) {
    this.sound.classList.toggle('waits', waits);
    nameButton(this.sound, textOf(waits ? 'hear' : 'sound'));
    if (waits) this.board.announce(textOf('soundWaits'));
  }

  add(name, key, press, picture = stripPicture(name)) {
    const button = pictureButton(name, textOf(name), picture, () => isEnabled(button) && press(), { key });
    if (key) this.byKey.set(key === 'Space' ? ' ' : key, button);
    this.element.append(button);
    return button;
  }

  addSwitch(name, key, press) {
    const button = this.add(name, key, () => {
      const on = button.getAttribute('aria-pressed') !== 'true';
      setPressed(button, on);
      press(on);
    });
    setPressed(button, false);
    return button;
  }

  makeWatching() {
    const { board } = this;
    this.back = this.add('back', 'ArrowLeft', () => board.pen.strokeBack(board.page.last.index));
    this.pause = this.add('pause', 'Space', () =>
      board.pen.isWriting ? board.pen.pause() : board.pen.goOn(),
    );
    this.on = this.add('on', 'ArrowRight', () => board.pen.strokeOn());
    this.againButton = this.add('again', 'r', () => board.again());
    this.speed = document.createElement('input');
    Object.assign(this.speed, {
      type: 'range', min: -kMostDoublings, max: kMostDoublings, step: 0.5, value: 0,
    });
    this.speed.dataset.name = 'speed';
    this.speed.setAttribute('aria-label', textOf('speed'));
    this.speed.title = textOf('speed');
    this.speed.addEventListener('input', () => this.followSpeed());
    this.element.append(this.speed);
    this.followSpeed();
  }

  followSpeed() {
    const rate = 2 ** Number(this.speed.value);
    this.board.sheet.rate = rate;
    const shown = Number(rate.toPrecision(2));
    this.speed.setAttribute('aria-valuetext', textOf('times', { rate: shown }));
  }

  makeTracing() {
    const { board } = this;
    const { levels } = board.letters;
    this.trace = this.addSwitch('trace', 't', (on) => board.useTracing(on));
    this.level = this.add('level', '', () => {
      const { tracing } = board;
      board.useLevel(levels[(levels.indexOf(tracing.level) + 1) % levels.length]);
      this.followLevel();
    }, '');
    this.hand = this.addSwitch('leftHand', '', (on) => board.useLeftHand(on));
    this.clicks = this.addSwitch('clicks', '', (on) => board.tracing.input.setByClicks(on));
    this.followTracing(false);
  }

  followLevel() {
    const { level } = this.board.tracing;
    this.level.innerHTML = levelPictureOf(level, this.board.letters.levels);
    nameButton(this.level, textOf('level', { level: textOf(level) }));
  }

  followTracing(on) {
    setPressed(this.trace, on);
    for (const button of [this.level, this.hand, this.clicks]) button.hidden = !on;
    if (this.board.tracing) this.followLevel();
  }

  makeTeaching() {
    const { board } = this;
    this.addSwitch('numbers', 'n', (on) => board.showNumbers(on));
    this.rules = this.add('rules', '', () => {
      this.rule = (this.rule + 1) % (kRules + 1);
      this.followRule();
      board.useRule(this.rule);
    }, '');
    this.followRule();
    this.addSwitch('grid', '', (on) => board.useGrid(on));
    if (board.set.name === 'hinc') this.makeHindiSets();
    if (board.set.tiles.some((tile) => tile.alternative)) {
      this.addSwitch('alternatives', '', (on) => board.useAlternatives(on));
    }
    this.wordsButton = this.addSwitch('words', 'w', (on) => board.words.open(on));
    this.add('print', 'p', () => board.print());
  }

  makeHindiSets() {
    const buttons = [1, 2, 3].map((number) => {
      const button = this.add(`hindiSet${number}`, '', () => {
        buttons.forEach((other, i) => setPressed(other, i + 1 === number));
        this.board.useHindiSet(number);
      }, `<span aria-hidden="true">${['क', 'क्‍', 'क्'][number - 1]}</span>`);
      setPressed(button, number === 1);
      return button;
    });
  }

  followRule() {
    const rules = this.rule === 0 ? textOf('none') : this.rule;
    this.rules.innerHTML = rulesPicture(this.rule);
    nameButton(this.rules, textOf('rules', { rules }));
  }

  follow({ isWriting, isPaused, hasLetter, canGoBack }) {
    const busy = isWriting || isPaused;
    setEnabled(this.back, canGoBack && !this.board.tracing.on);
    setEnabled(this.on, busy && !this.board.tracing.on);
    setEnabled(this.pause, busy);
    setEnabled(this.againButton, hasLetter);
    const name = isPaused ? 'goOn' : 'pause';
    if (this.pause.dataset.shows === name) return;
    this.pause.dataset.shows = name;
    this.pause.innerHTML = stripPicture(name);
    nameButton(this.pause, textOf(name));
  }

  /// Whether the key was for the strip. While the pen writes or pauses its keys go to it whatever
  /// has the focus but the strip's own buttons; while a child traces, the space bar has the next
  /// stroke written.
  onKey(event) {
    const { board } = this;
    if (event.key === 'Escape') return board.pen.isWriting && (board.pen.hurry(), true);
    const onButton = event.target.closest?.('.strip button, header button') !== undefined &&
      event.target.closest?.('.strip button, header button') !== null;
    const busy = board.pen.isWriting || board.pen.isPaused;
    if (event.key === ' ' && board.tracing.on && !onButton) {
      board.tracing.writeNextForChild();
      return true;
    }
    if ((event.key === ' ' && onButton) || (event.key.length > 1 && !busy)) return false;
    if (event.key === ' ' && !busy) return false;
    const button = this.byKey.get(event.key.length === 1 ? event.key.toLowerCase() : event.key);
    if (!button || event.repeat) return false;
    event.stopPropagation();
    button.click();
    return true;
  }
}
