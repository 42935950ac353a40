// A child traces the letters of a sheet: pale letter, green dot, arrow, its own line, and help after
// each miss. The judge is the program's own.
import {
  paintArrow, paintChildsLine, paintGuide, paintNumber, paintShown, paintStar, paintWay, paleColour,
} from './marks.js';
import { textOf } from './texts.js';
import { TracePen } from './tracepen.js';

/// A child's finger or hand misses by so much on any screen: 4 mm, in CSS pixels.
const kLeastRadius = (4 / 25.4) * 96;
const kPulseMs = 1500;
const kPulses = 3;
const kShownSpeed = 150; // sheet pixels a second
const kShownRestMs = 400;
const kStarDrawnMs = 500;
const kStarSeenMs = 1000;

function pointsOf(flat) {
  return Array.from({ length: flat.length / 2 }, (_, i) => ({ x: flat[2 * i], y: flat[2 * i + 1] }));
}

/// Traces what stands unwritten on a board's page. `board` has letters, set, sheet, view, pen,
/// announce(text), itemAt(index on the page) and letterTraced(item, helped).
export class Tracing {
  constructor(board, target) {
    this.board = board;
    this.on = false;
    this.level = 'normal';
    this.leftHand = false;
    this.tracer = null;
    this.item = null; // what is traced, null when nothing is left
    this.touches = []; // the child's own lines: {points, missed}
    this.moving = null; // what moves on the sheet: {kind, since, points}
    this.star = null;
    this.written = null; // the stroke that the pen writes for the child
    this.helpedItem = null; // the item, if the pen has written any of it
    this.calm = matchMedia('(prefers-reduced-motion: reduce)');
    this.input = new TracePen(target, {
      down: (event) => this.down(event),
      move: (event) => this.move(event),
      up: () => this.up(),
      cancel: () => this.cancel(),
    });
  }

  close() {
    this.input.close();
    this.tracer?.free();
  }

  get hand() {
    return this.leftHand ? 'left' : 'right';
  }

  get view() {
    return this.board.view;
  }

  switchOn(on) {
    this.on = on;
    this.input.switchOn(on);
    this.view.setSeeThrough(on);
    this.touches = [];
    this.moving = null;
    this.restart();
  }

  setLevel(level) {
    this.level = level;
    if (this.tracer) this.tracer.level = level;
  }

  setLeftHand(leftHand) {
    this.leftHand = leftHand;
    this.view.touch();
  }

  /// Forgets the child's lines, for a sheet that is wiped.
  wipe() {
    this.touches = [];
    this.star = null;
  }

  /// Offers what is unwritten of the letter where the pen stands.
  restart() {
    this.input.drop();
    this.tracer?.free();
    this.tracer = null;
    this.item = null;
    this.moving = null;
    this.written = null;
    if (this.on) this.begin();
    this.view.touch();
  }

  begin() {
    const { stands } = this.board.sheet;
    this.item = this.board.itemAt(stands.letter) ?? null;
    if (this.item !== this.helpedItem) this.helpedItem = null;
    if (this.item === null) return;
    const { letter, scale, right, down } = this.item;
    this.tracer = this.board.letters.tracer(letter, { scale, right, down, level: this.level });
    // Strokes that stand already, by the pen or by a touch before, are not offered again.
    while (!this.tracer.finished && this.tracer.stroke < stands.stroke) this.tracer.writeForChild();
    this.sayStroke();
  }

  get isOpen() {
    return this.tracer !== null && !this.tracer.finished && !this.board.pen.isWriting;
  }

  sayStroke() {
    if (!this.isOpen) return;
    this.board.announce(
      textOf('beginStroke', { number: this.tracer.stroke + 1, count: this.tracer.strokeCount }),
    );
  }

  // --- the child's hand

  down(event) {
    if (!this.isOpen) return;
    this.moving = null;
    const place = this.view.toSheet(event.clientX, event.clientY);
    this.touches = this.touches.filter((touch) => !touch.missed);
    this.touches.push({ points: [place], missed: false });
    this.tracer.setLeastRadius(kLeastRadius / this.view.cssRatio);
    this.tracer.down(place.x, place.y);
    this.view.touch();
  }

  move(event) {
    if (!this.tracer || this.tracer.pen === 'up') return;
    const place = this.view.toSheet(event.clientX, event.clientY);
    this.tracer.move(place.x, place.y);
    if (this.tracer.pen !== 'astray') this.touches.at(-1).points.push(place);
    this.view.touch();
  }

  up() {
    if (!this.tracer) return;
    const { stroke } = this.tracer;
    const judgement = this.tracer.up();
    if (!judgement) return;
    const isMiss = judgement.verdict !== 'done' && judgement.verdict !== 'resume';
    this.touches.at(-1).missed = isMiss;
    if (judgement.verdict === 'done') return this.writeStroke(stroke);
    if (judgement.help === 'written') return this.writeStrokeForChild(stroke);
    this.help(judgement.help);
    this.view.touch();
  }

  cancel() {
    if (!this.tracer || this.tracer.pen === 'up') return;
    this.tracer.cancel();
    this.touches.at(-1).missed = true;
    this.view.touch();
  }

  help(help) {
    if (help === 'pulse' || help === 'wider') {
      this.board.announce(textOf('tryAgain'));
      this.moveOn('pulse');
    } else if (help === 'show') {
      this.board.announce(textOf('watchStroke'));
      this.moveOn('show');
    }
  }

  /// Writes the stroke that is on for the child: the way to go on without a pointer.
  writeNextForChild() {
    if (!this.isOpen) return;
    this.input.lift();
    if (!this.isOpen) return;
    const { stroke } = this.tracer;
    this.tracer.writeForChild();
    this.writeStrokeForChild(stroke);
  }

  // --- the pen's strokes

  isWritten(stroke) {
    const { stands } = this.board.sheet;
    return stands.letter > this.item.index ||
      (stands.letter === this.item.index && stands.stroke > stroke);
  }

  /// A stroke that plots nothing goes along with the next one.
  writeStroke(stroke) {
    const { sheet } = this.board;
    while (!this.isWritten(stroke) && sheet.writeStroke() > 0);
    this.view.paint();
    this.endStroke();
  }

  /// The pen writes it for all to see; penStopped() then goes on.
  writeStrokeForChild(stroke) {
    this.written = stroke;
    this.helpedItem = this.item;
    this.board.pen.strokeOn();
    this.view.touch();
  }

  /// The pen has come to rest. Where it was paused in the stroke, that is on again.
  penStopped() {
    if (this.written === null || this.board.pen.isWriting) return;
    const stroke = this.written;
    this.written = null;
    if (this.isWritten(stroke)) return this.endStroke();
    this.restart();
  }

  endStroke() {
    const ended = this.item;
    this.view.touch();
    if (this.board.sheet.stands.letter <= ended.index) return this.sayStroke();
    const { x, y, width, height } = ended.letter.bounds;
    this.star = {
      since: performance.now(),
      x: (x + width / 2) * ended.scale + ended.right,
      y: (y + height / 2) * ended.scale + ended.down,
    };
    this.board.letterTraced(ended, this.helpedItem === ended);
    this.restart();
  }

  // --- what is seen

  moveOn(kind) {
    this.moving = { kind, since: performance.now() };
    this.view.touch();
  }

  paintBeneath(context) {
    if (!this.on || this.item === null || this.tracer.finished || this.written !== null) return false;
    const pale = paleColour(this.item.colour, this.board.set.ground);
    paintGuide(context, this.item, this.tracer.stroke, pale);
    return true;
  }

  /// Whether paintAbove() paints anything.
  get hasSigns() {
    return this.on || this.touches.length > 0 || this.star !== null;
  }

  paintAbove(context) {
    const now = performance.now();
    if (this.on && this.isOpen) this.paintWay(context, now);
    for (const touch of this.touches) paintChildsLine(context, touch.points);
    if (this.on && this.isOpen) this.paintShown(context, now);
    this.paintStar(context, now);
  }

  paintWay(context, now) {
    const { tracer } = this;
    const rest = pointsOf(tracer.rest());
    paintWay(context, rest, this.pulseAt(now));
    if (tracer.progress > 0) return paintArrow(context, tracer.sign(this.hand));
    const numbers = this.numbersOfItem();
    paintNumber(context, this.board.letters, tracer.stroke + 1, numbers[tracer.stroke]);
  }

  numbersOfItem() {
    const { letter, scale, right, down } = this.item;
    const rule = { discRadius: 9 / scale, penHalfWidth: 5, hand: this.hand };
    return letter.numbers(rule).map((number) => placedNumber(number, { scale, right, down }));
  }

  pulseAt(now) {
    if (this.moving?.kind !== 'pulse') return 0;
    const share = (now - this.moving.since) / kPulseMs;
    if (this.calm.matches) return 1; // larger, and at rest
    if (share >= 1) {
      this.moving = null;
      return 0;
    }
    this.view.touch();
    return Math.sin(Math.PI * share * kPulses) ** 2;
  }

  paintShown(context, now) {
    if (this.moving?.kind !== 'show') return;
    const way = pointsOf(this.tracer.points(this.tracer.stroke)); // about 1 pixel apart
    const seconds = (now - this.moving.since) / 1000;
    const points = this.calm.matches ? way.length : Math.ceil(seconds * kShownSpeed) + 1;
    if (seconds > way.length / kShownSpeed + kShownRestMs / 1000) {
      this.moving = null;
    } else {
      paintShown(context, way.slice(0, points), this.item.colour);
    }
    this.view.touch();
  }

  paintStar(context, now) {
    if (this.star === null) return;
    const since = now - this.star.since;
    if (since > kStarSeenMs) {
      this.star = null;
    } else {
      const share = this.calm.matches ? 1 : Math.min(since / kStarDrawnMs, 1);
      paintStar(context, this.star, share);
    }
    this.view.touch();
  }
}

/// A stroke's number where its letter is placed.
function placedNumber(number, { scale, right, down }) {
  const placed = ({ x, y }) => ({ x: x * scale + right, y: y * scale + down });
  return {
    ...placed(number),
    radius: number.radius * scale,
    shaft: number.shaft.map(placed),
    head: number.head.map(placed),
  };
}
