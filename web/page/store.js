// What lasts in the browser: the level of tracing and the stars. Where the browser refuses to keep
// anything, it lasts as long as the page.

const kLevel = 'bramlee-level';
const kStars = 'bramlee-stars';
const unkept = new Map();

function recall(name) {
  try {
    return localStorage.getItem(name) ?? unkept.get(name) ?? null;
  } catch {
    return unkept.get(name) ?? null;
  }
}

function keep(name, value) {
  unkept.set(name, value);
  try {
    localStorage.setItem(name, value);
  } catch {
    // Refused or full: what is in the page's memory is all that there is.
  }
}

/// The name of the level, if one was chosen that there is.
export function keptLevel(levels) {
  const level = recall(kLevel);
  return levels.includes(level) ? level : 'normal';
}

export function keepLevel(level) {
  keep(kLevel, level);
}

/// Whatever stands there that is no list of stars counts as no star.
function allStars() {
  try {
    const stars = JSON.parse(recall(kStars) ?? '{}');
    return stars !== null && typeof stars === 'object' ? stars : {};
  } catch {
    return {};
  }
}

/// 'full' for a letter that a child has traced by itself, 'helped' for one it had help with.
export function starOf(set, tile) {
  const star = allStars()[`${set}/${tile}`];
  return star === 'full' || star === 'helped' ? star : null;
}

/// A full star stays full.
export function giveStar(set, tile, full) {
  const stars = allStars();
  const name = `${set}/${tile}`;
  if (stars[name] !== 'full') stars[name] = full ? 'full' : 'helped';
  keep(kStars, JSON.stringify(stars));
  return stars[name];
}
