// The room that a letter's SVG path takes: its exact bounds would take as long as writing it.

const kArcParts = 12;

/// Places along an arc of a circle from `from`, its end left out: less than a hundredth of the
/// radius is lost between two of them.
function alongArc(from, to, radius, isLarge, isClockwise) {
  const chord = Math.hypot(to.x - from.x, to.y - from.y);
  if (chord === 0 || radius === 0) return [];
  const height = Math.sqrt(Math.max(0, radius ** 2 - chord ** 2 / 4));
  const side = isLarge === isClockwise ? -height / chord : height / chord;
  const x = (from.x + to.x) / 2 + side * (from.y - to.y);
  const y = (from.y + to.y) / 2 - side * (from.x - to.x);
  const begin = Math.atan2(from.y - y, from.x - x);
  let turn = Math.atan2(to.y - y, to.x - x) - begin;
  if (isClockwise && turn < 0) turn += 2 * Math.PI;
  if (!isClockwise && turn > 0) turn -= 2 * Math.PI;
  return Array.from({ length: kArcParts }, (_, i) => {
    const angle = begin + (turn * i) / kArcParts;
    return { x: x + radius * Math.cos(angle), y: y + radius * Math.sin(angle) };
  });
}

/// Around a path of the commands that letters have: M, and relative l, h, v and a of circles.
export function pathBox(d) {
  const places = [];
  let at = { x: 0, y: 0 };
  for (const [, command, list] of d.matchAll(/([a-zA-Z])([^a-zA-Z]*)/g)) {
    const numbers = (list.match(/-?[\d.]+/g) ?? []).map(Number);
    const [x, y = 0] = numbers;
    const from = at;
    if (command === 'M') at = { x, y };
    if (command === 'l') at = { x: at.x + x, y: at.y + y };
    if (command === 'h') at = { x: at.x + x, y: at.y };
    if (command === 'v') at = { x: at.x, y: at.y + x };
    if (command === 'a') {
      const [radius, , , isLarge, isClockwise, right, down] = numbers;
      at = { x: at.x + right, y: at.y + down };
      places.push(...alongArc(from, at, radius, isLarge === 1, isClockwise === 1));
    }
    places.push(at);
  }
  if (places.length === 0) return { x: 0, y: 0, width: 0, height: 0 };
  const across = places.map((place) => place.x);
  const down = places.map((place) => place.y);
  const x = Math.min(...across);
  const y = Math.min(...down);
  return { x, y, width: Math.max(...across) - x, height: Math.max(...down) - y };
}
