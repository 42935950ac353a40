// The pen's time: how much of a sheet is written in each frame, and what a hand asks of the pen.

/// After a longer delay the pen does not race to catch up, in seconds.
const kLongDelay = 0.25;
const kFrame = 1 / 60;

/// Writes the sheet's page to its end, or pauses. changed() comes whenever the pen starts, stops or
/// ends a stroke.
export class Pen {
  constructor(sheet, view, changed) {
    this.sheet = sheet;
    this.view = view;
    this.changed = changed;
    this.frame = 0; // of the browser, 0 while the pen stands still
    this.last = 0;
    this.toStrokeEnd = false;
    this.strokes = 0; // written whole, when changed() came last
    this.calm = matchMedia('(prefers-reduced-motion: reduce)');
  }

  get isWriting() {
    return this.frame !== 0;
  }

  /// Whether it stands still before the page's end.
  get isPaused() {
    return !this.isWriting && !this.sheet.atEnd;
  }

  /// Writes on to the end of the page; whoever wants no motion sees it whole at once.
  write() {
    this.start(false);
  }

  /// Writes to the end of the present pen stroke, or of the next one, and pauses.
  strokeOn() {
    this.start(true);
  }

  start(toStrokeEnd) {
    this.toStrokeEnd = toStrokeEnd;
    if (this.sheet.atEnd) return;
    if (this.calm.matches) return this.finish();
    if (!this.isWriting) {
      // The first dots stand in the frame of the tap.
      this.last = performance.now();
      this.advance(kFrame);
      performance.mark('bramlee-first-dots');
      if (this.isDone()) return this.stop();
      this.frame = requestAnimationFrame((now) => this.onFrame(now));
    }
    this.changed();
  }

  onFrame(now) {
    this.advance(Math.min(Math.max(now - this.last, 0) / 1000, kLongDelay));
    this.last = now;
    if (this.isDone()) return this.stop();
    this.frame = requestAnimationFrame((next) => this.onFrame(next));
    if (this.sheet.strokesWritten !== this.strokes) this.sayChanged();
  }

  /// Shows stroke by stroke: the room between the end of one and the beginning of the next is large,
  /// and nothing in it is new.
  advance(seconds) {
    let dots = this.sheet.due(seconds);
    let written = 0;
    do {
      written = this.sheet.writeStroke(dots);
      this.view.paint();
      dots -= written;
    } while (!this.toStrokeEnd && written > 0 && dots > 0);
  }

  isDone() {
    return this.sheet.atEnd || (this.toStrokeEnd && this.sheet.betweenStrokes);
  }

  sayChanged() {
    this.strokes = this.sheet.strokesWritten;
    this.changed();
  }

  stop() {
    cancelAnimationFrame(this.frame);
    this.frame = 0;
    this.sayChanged();
  }

  pause() {
    if (this.isWriting) this.stop();
  }

  goOn() {
    this.write();
  }

  /// Takes the present pen stroke away, at its start the one before, and pauses there; not beyond
  /// the letter of that index on the page.
  strokeBack(letter) {
    const { stands } = this.sheet;
    const atStart = stands.letter <= letter && stands.stroke === 0 && !stands.begun;
    if (!atStart) this.sheet.strokeBack();
    this.view.paint();
    this.stop();
  }

  /// Takes the last letter away, to be written anew.
  toLetterStart() {
    this.sheet.toLetterStart();
    this.view.paint();
    this.stop();
  }

  /// Writes at once what is still to be written: all of it, or the stroke that is under way.
  finish() {
    if (this.toStrokeEnd) {
      this.sheet.writeStroke();
    } else {
      this.sheet.runToEnd();
    }
    this.view.paint();
    this.stop();
  }

  /// All that is left, at once.
  hurry() {
    this.toStrokeEnd = false;
    if (!this.sheet.atEnd) this.finish();
  }
}
