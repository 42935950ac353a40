// All letters as still pictures, for browsers that cannot write them.
import { escaped, tilePicture } from './pictures.js';

/// The letters of each subject under its caption, as HTML text.
export function stillPictures(letters) {
  return letters.sets
    .map((set) => {
      const tiles = set.tiles
        .filter((tile) => tile.writes)
        .map(
          (tile) =>
            `<li style="background:${set.tileGround}">${tilePicture(letters, set, tile)}` +
            `<span class="unseen">${escaped(tile.name)}</span></li>`,
        );
      return `<section class="still"><h2>${escaped(set.subject)}</h2><ul>${tiles.join('')}</ul></section>`;
    })
    .join('');
}
