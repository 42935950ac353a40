// The sheet on the screen: the ink, with a canvas beneath it and one above for what is no ink.

function layer(holder, name) {
  const canvas = document.createElement('canvas');
  canvas.className = name;
  canvas.setAttribute('aria-hidden', 'true');
  holder.append(canvas);
  return canvas;
}

/// Where the ratio is no whole number only the browser knows how many device pixels there are; what
/// it says is of no use where it does not count the ratio.
function deviceLength(length, exact) {
  const counted = length * devicePixelRatio;
  return exact !== undefined && Math.abs(exact - counted) < 2 ? exact : Math.round(counted);
}

/// Shows a part of a sheet as large as its holder allows, one canvas pixel to a device pixel. What
/// beneath() and above() paint, in sheet pixels, is painted anew before the next frame after
/// touch(); they return whether there is anything. resized() comes when the holder has another size;
/// whoever it calls shows the sheet.
export class SheetView {
  constructor(holder, sheet, ground, { beneath, above, resized }) {
    this.holder = holder;
    this.sheet = sheet;
    this.ground = ground;
    this.painters = { beneath, above };
    this.resized = resized;
    this.beneath = layer(holder, 'beneath').getContext('2d');
    this.ink = layer(holder, 'ink').getContext('2d');
    this.above = layer(holder, 'above').getContext('2d');
    this.box = { x: 0, y: 0, width: 1, height: 1 };
    this.area = this.box;
    this.ratio = 1; // device pixels to a sheet pixel
    this.room = { width: 0, height: 0 }; // device pixels
    this.seeThrough = false;
    this.touched = 0;
    this.fitted = ''; // what fit() has seen to
    this.observer = new ResizeObserver((entries) => this.fitInto(entries[0]));
    this.observer.observe(holder);
  }

  close() {
    this.observer.disconnect();
    cancelAnimationFrame(this.touched);
  }

  fitInto(entry) {
    const { contentRect } = entry;
    const [exact] = entry.devicePixelContentBoxSize ?? [];
    const width = deviceLength(contentRect.width, exact?.inlineSize);
    const height = deviceLength(contentRect.height, exact?.blockSize);
    if (width === this.room.width && height === this.room.height) return;
    this.room = { width, height };
    this.resized();
  }

  /// Measures at once, so that the first letter need not wait for the observer.
  measure() {
    const { clientWidth, clientHeight } = this.holder;
    this.room = {
      width: Math.round(clientWidth * devicePixelRatio),
      height: Math.round(clientHeight * devicePixelRatio),
    };
  }

  /// Whether the holder is that much wider than high and shows the box with at least so many CSS
  /// pixels to a sheet pixel.
  holds(box, shape, least) {
    const { width, height } = this.room;
    const ratio = Math.min(width / box.width, height / box.height) / devicePixelRatio;
    return width >= shape * height && ratio >= least;
  }

  /// Shows at least that much of the sheet.
  show(box) {
    this.box = box;
    this.fit();
  }

  /// Whether the layer beneath is seen through the ink's canvas.
  setSeeThrough(on) {
    if (this.seeThrough === on) return;
    this.seeThrough = on;
    this.fit();
  }

  fit() {
    const { width, height } = this.room;
    if (width < 1 || height < 1) return;
    const { box } = this;
    const { x, y, width: across, height: down } = box;
    const wanted = [width, height, devicePixelRatio, x, y, across, down, this.seeThrough].join();
    if (wanted !== this.fitted) this.cover();
    this.fitted = wanted;
    this.paint();
    this.paintLayers();
  }

  cover() {
    const { box } = this;
    const { width, height } = this.room;
    this.ratio = Math.min(width / box.width, height / box.height);
    // The sheet's pixels begin at a device pixel, so that a letter looks the same wherever it is.
    const whole = (place) => Math.round(place * this.ratio) / this.ratio;
    this.area = {
      x: whole(box.x + box.width / 2 - width / this.ratio / 2),
      y: whole(box.y + box.height / 2 - height / this.ratio / 2),
      width: (width - 0.5) / this.ratio, // as many pixels, whatever is rounded
      height: (height - 0.5) / this.ratio,
    };
    this.sheet.cover(this.area, this.ratio, this.seeThrough ? null : this.ground);
    // Where the sheet lies on the canvas, for whoever looks at the page from outside.
    Object.assign(this.holder.dataset, {
      ratio: this.ratio,
      left: Math.round(this.area.x * this.ratio),
      top: Math.round(this.area.y * this.ratio),
    });
    const { size } = this.sheet;
    for (const { canvas } of [this.beneath, this.ink, this.above]) {
      canvas.width = size.width;
      canvas.height = size.height;
      canvas.style.width = `${size.width / devicePixelRatio}px`;
      canvas.style.height = `${size.height / devicePixelRatio}px`;
    }
  }

  /// Shows what is new of the ink.
  paint() {
    this.sheet.paint(this.ink);
  }

  touch() {
    if (this.touched !== 0) return;
    this.touched = requestAnimationFrame(() => this.paintLayers());
  }

  /// An empty layer is hidden: on a large screen each takes its time, seen or not.
  paintLayers() {
    cancelAnimationFrame(this.touched);
    this.touched = 0;
    for (const name of ['beneath', 'above']) {
      const context = this[name];
      const { canvas } = context;
      context.setTransform(1, 0, 0, 1, 0, 0);
      if (!canvas.hidden) context.clearRect(0, 0, canvas.width, canvas.height);
      const { ratio, area } = this;
      context.setTransform(ratio, 0, 0, ratio, -area.x * ratio, -area.y * ratio);
      context.lineCap = 'round';
      context.lineJoin = 'round';
      canvas.hidden = !this.painters[name](context);
    }
  }

  /// CSS pixels to a sheet pixel.
  get cssRatio() {
    return this.ratio / devicePixelRatio;
  }

  /// The place on the sheet of a pointer's place in the window.
  toSheet(clientX, clientY) {
    const rect = this.ink.canvas.getBoundingClientRect();
    return {
      x: this.area.x + (clientX - rect.left) / this.cssRatio,
      y: this.area.y + (clientY - rect.top) / this.cssRatio,
    };
  }
}
