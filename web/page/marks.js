// What is painted on a sheet and is no ink: numbers and arrows, the way to trace, the child's own
// line, the star. Lengths are sheet pixels.

const kSign = '#263238';
const kRim = '#ffffff';
const kGold = '#f9a825';
export const kPenWidth = 10;

function trackOf(points) {
  const path = new Path2D();
  points.forEach(({ x, y }, i) => (i === 0 ? path.moveTo(x, y) : path.lineTo(x, y)));
  return path;
}

function strokeTrack(context, path, width, colour) {
  context.lineWidth = width;
  context.strokeStyle = colour;
  context.stroke(path);
}

function disc(context, { x, y }, radius) {
  context.beginPath();
  context.arc(x, y, radius, 0, 2 * Math.PI);
}

/// An arrow along a stroke: its shaft, and a head of three points.
export function paintArrow(context, { shaft, head }) {
  if (shaft.length === 0) return;
  const half = Math.hypot(head[1].x - head[2].x, head[1].y - head[2].y) / 2;
  const width = 0.6 * half;
  const rim = 0.35 * half;
  const line = trackOf(shaft);
  const tip = trackOf(head);
  tip.closePath();
  strokeTrack(context, line, width + 2 * rim, kRim);
  strokeTrack(context, tip, 2 * rim, kRim);
  strokeTrack(context, line, width, kSign);
  context.fillStyle = kSign;
  context.fill(tip);
}

/// The number's digits, written with the pen's own strokes, for a disc with a radius of one.
function digitsOf(letters, number) {
  const path = new Path2D();
  let right = 0;
  for (const digit of String(number)) {
    const letter = letters.letter('mat', digit === '0' ? 10 : Number(digit));
    const { x, y, width, height } = letter.bounds;
    const scale = 1 / height;
    const matrix = new DOMMatrix([scale, 0, 0, scale, right - x * scale, -y * scale]);
    path.addPath(new Path2D(letter.path()), matrix);
    right += width * scale + 0.3;
  }
  return { path, width: right - 0.3, height: number > 9 ? 0.9 : 1.15 };
}

/// A stroke's number in its disc, with its arrow.
export function paintNumber(context, letters, number, place) {
  if (place.radius === 0) return;
  paintArrow(context, place);
  const { radius } = place;
  const rim = 0.1 * radius;
  disc(context, place, radius - rim / 2);
  context.fillStyle = kSign;
  context.fill();
  context.lineWidth = rim;
  context.strokeStyle = kRim;
  context.stroke();
  const digits = digitsOf(letters, number);
  const scale = radius * digits.height;
  context.save();
  context.translate(place.x - (digits.width / 2) * scale, place.y - scale / 2);
  context.scale(scale, scale);
  strokeTrack(context, digits.path, 0.2 / digits.height, kRim);
  context.restore();
}

/// Half the size of numbers on the screen is 12 CSS pixels, but on the sheet neither so large that
/// they find no room nor so small that they look lost beside the pen.
export function numberRule(cssRatio, leftHand) {
  return {
    discRadius: Math.min(Math.max(12 / cssRatio, 8), 14),
    penHalfWidth: kPenWidth / 2,
    hand: leftHand ? 'left' : 'right',
  };
}

/// A colour with so little of it that the rest is the ground.
export function paleColour(colour, ground) {
  const parts = (hex) => [1, 3, 5].map((at) => parseInt(hex.slice(at, at + 2), 16));
  const grounds = parts(ground);
  const mixed = parts(colour).map((part, i) => Math.round(0.24 * part + 0.76 * grounds[i]));
  return `rgb(${mixed.join(' ')})`;
}

/// The letter to trace, pale: its pen strokes from that one on.
export function paintGuide(context, { letter, scale, right, down }, firstStroke, colour) {
  context.save();
  context.translate(right, down);
  context.scale(scale, scale);
  for (let i = firstStroke; i < letter.strokeCount; ++i) {
    strokeTrack(context, new Path2D(letter.path(i)), kPenWidth, colour);
  }
  context.restore();
}

function dotsAlong(points, apart) {
  const dots = [];
  let due = 0;
  for (let i = 1; i < points.length; ++i) {
    const from = points[i - 1];
    const to = points[i];
    const length = Math.hypot(to.x - from.x, to.y - from.y);
    let along = due;
    for (; along < length; along += apart) {
      const part = along / length;
      dots.push({ x: from.x + (to.x - from.x) * part, y: from.y + (to.y - from.y) * part });
    }
    due = along - length;
  }
  return dots;
}

/// The rest of a stroke as a dotted line, with the green dot to begin at: larger for now by `pulse`,
/// 0 to 1.
export function paintWay(context, rest, pulse) {
  if (rest.length === 0) return;
  context.fillStyle = '#455a64';
  for (const dot of dotsAlong(rest, 11)) {
    disc(context, dot, 1.7);
    context.fill();
  }
  disc(context, rest[0], 8 + 7 * pulse);
  context.fillStyle = '#2e7d32';
  context.fill();
  context.lineWidth = 2;
  context.strokeStyle = '#ffffff';
  context.stroke();
}

function line(context, points, width, colour) {
  if (points.length === 0) return;
  // A line of one place paints nothing.
  const end = points.length === 1 ? [{ x: points[0].x + 0.01, y: points[0].y }] : [];
  strokeTrack(context, trackOf([...points, ...end]), width, colour);
}

/// What the child has written itself.
export function paintChildsLine(context, points) {
  line(context, points, 4, 'rgb(38 50 56 / 75%)');
}

/// What the pen shows of a stroke.
export function paintShown(context, points, colour) {
  context.globalAlpha = 0.7;
  line(context, points, kPenWidth, colour);
  context.globalAlpha = 1;
}

/// A star as a hand draws it, in one go; its first part, by its share.
export function paintStar(context, centre, share) {
  const corners = Array.from({ length: 6 }, (_, i) => {
    const angle = Math.PI * (1.3 - 0.8 * i);
    return { x: centre.x + 70 * Math.cos(angle), y: centre.y - 70 * Math.sin(angle) };
  });
  const sides = share * 5;
  const whole = Math.floor(sides);
  const part = corners.slice(0, whole + 1);
  if (whole < 5) {
    const [from, to] = [corners[whole], corners[whole + 1]];
    const rest = sides - whole;
    part.push({ x: from.x + (to.x - from.x) * rest, y: from.y + (to.y - from.y) * rest });
  }
  line(context, part, kPenWidth, kGold);
}

/// A line of lettering in print, over the first cell of the sheet.
export function paintLettering(context, text) {
  const place = { x: 107.5, y: 340, width: 237.5, height: 45 };
  context.fillStyle = '#ffffff';
  context.fillRect(place.x, place.y, place.width, place.height);
  context.fillStyle = '#1565c0';
  context.font = '27px sans-serif';
  context.textAlign = 'center';
  context.textBaseline = 'middle';
  context.fillText(text, place.x + place.width / 2, place.y + place.height / 2, place.width - 8);
}
