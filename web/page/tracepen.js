// A child's finger, mouse or stylus on an element, as one pen that comes down, moves and is lifted.

/// A resting hand often lifts the stylus for a moment; until then no touch counts.
const kStylusGoneMs = 500;
/// A finger touches with less than this, a palm with more; CSS pixels, about 20 mm.
const kPalmPixels = 76;

function isPalm(event) {
  return event.pointerType === 'touch' && Math.max(event.width, event.height) > kPalmPixels;
}

/// Passes the first pointer on to down(event), move(event), up() and cancel(); whatever else touches
/// meanwhile changes nothing. A pointer that the browser takes away is cancelled; one whose page is
/// hidden is lifted. `byClicks`: a click brings the pen down, the next one lifts it.
export class TracePen {
  constructor(element, handlers) {
    this.element = element;
    this.handlers = handlers;
    this.on = false;
    this.byClicks = false;
    this.pointer = null; // id of the pointer that is down
    this.isFinger = false;
    this.stylusSeen = -Infinity;
    this.listeners = new AbortController();
    const listen = (target, type, handle) =>
      target.addEventListener(type, handle, { signal: this.listeners.signal });
    listen(element, 'pointerdown', (event) => this.onDown(event));
    listen(element, 'pointermove', (event) => this.onMove(event));
    listen(element, 'pointerup', (event) => this.onUp(event));
    listen(element, 'pointercancel', (event) => this.onLost(event));
    listen(element, 'lostpointercapture', (event) => this.onLost(event));
    listen(document, 'visibilitychange', () => document.hidden && this.lift());
    listen(window, 'blur', () => this.lift());
  }

  close() {
    this.drop();
    this.listeners.abort();
  }

  switchOn(on) {
    this.drop();
    this.on = on;
    this.element.classList.toggle('traced', on); // no scrolling and zooming there
  }

  setByClicks(byClicks) {
    this.drop();
    this.byClicks = byClicks;
  }

  lift() {
    if (this.pointer === null) return;
    this.pointer = null;
    this.handlers.up();
  }

  drop() {
    if (this.pointer === null) return;
    this.pointer = null;
    this.handlers.cancel();
  }

  onDown(event) {
    if (!this.on || event.button !== 0) return;
    event.preventDefault();
    const isStylus = event.pointerType === 'pen';
    const isFinger = event.pointerType === 'touch';
    if (isStylus) this.stylusSeen = event.timeStamp;
    if (this.pointer !== null) {
      if (this.byClicks && !isFinger && event.pointerId === this.pointer) return this.lift();
      if (!(isStylus && this.isFinger)) return;
      this.drop(); // the hand rested there before the stylus came
    }
    if (isFinger && event.timeStamp - this.stylusSeen < kStylusGoneMs) return;
    if (isPalm(event)) return;
    this.pointer = event.pointerId;
    this.isFinger = isFinger;
    this.element.setPointerCapture?.(event.pointerId);
    this.handlers.down(event);
  }

  onMove(event) {
    if (event.pointerType === 'pen') this.stylusSeen = event.timeStamp;
    if (event.pointerId !== this.pointer) return;
    if (isPalm(event)) return this.drop(); // the hand has come to rest on it
    if (event.buttons === 0 && !this.byClicks) return this.lift(); // its release went elsewhere
    // Every point of a quick pen counts, however many come between two frames.
    const points = event.getCoalescedEvents?.() ?? [];
    for (const point of points.length > 0 ? points : [event]) this.handlers.move(point);
  }

  onUp(event) {
    if (event.pointerId !== this.pointer || (this.byClicks && !this.isFinger)) return;
    this.handlers.move(event);
    this.lift();
  }

  onLost(event) {
    if (event.pointerId !== this.pointer) return;
    if (event.type === 'lostpointercapture' && this.byClicks && !this.isFinger) return;
    this.drop();
  }
}
