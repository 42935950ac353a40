// The page: home, or the board that its address names.
import { Board } from './board.js';
import { showHome } from './home.js';
import { keepForOffline } from './install.js';
import { openLetters } from './letters.js';
import { speakLanguage, languageFor, textOf, boardText } from './texts.js';

const kPageVersion = '/*VERSION*/';

const root = document.documentElement;
const app = document.getElementById('app');
const live = document.getElementById('live');
let board = null;

function announce(text) {
  live.textContent = text;
}

/// "#engc" is a board, "#engc/2" the board with that letter written.
function followAddress(letters) {
  const [name, number] = location.hash.slice(1).split('/');
  const set = letters.set(name);
  const from = board?.set.name;
  const tile = set?.tiles[Number(number) - 1];
  if (board && board.set === set) return tile && board.choose(tile);
  board?.close();
  board = null;
  root.dataset.shows = set ? 'board' : 'home';
  document.title = set ? `${boardText(set)} – BRAM-LEE` : 'BRAM-LEE';
  if (!set) {
    showHome(letters, app);
    if (from) app.querySelector(`a[href="#${from}"]`)?.focus();
    return;
  }
  board = new Board(letters, set, app, announce, tile);
  board.tiles.element.querySelector('button')?.focus({ preventScroll: true });
}

/// A line in place of the page, and the letters as still pictures.
function showStill(text, canReload) {
  root.dataset.shows = 'still';
  const line = document.createElement('p');
  line.setAttribute('role', 'alert');
  line.textContent = text;
  app.replaceChildren(line);
  if (canReload) app.append(reloadButton());
  const inside = document.getElementById('letters-pictures');
  if (inside) return app.append(inside.content.cloneNode(true));
  const beside = document.createElement('iframe');
  beside.src = 'pictures.html';
  beside.title = textOf('pictures');
  app.append(beside);
}

function reloadButton() {
  const button = document.createElement('button');
  button.type = 'button';
  button.className = 'plain';
  button.textContent = textOf('reload');
  button.addEventListener('click', () => location.reload());
  return button;
}

/// In the middle of an update on the server the page and its script may be of two versions: loaded
/// again they fit, as a rule. Once only, lest it goes on for ever.
function isMixed() {
  return root.dataset.version !== kPageVersion;
}

function reloadMixed() {
  const [navigation] = performance.getEntriesByType('navigation');
  if (navigation?.type !== 'reload') return location.reload();
  showStill(textOf('renewed'), true);
}

async function start() {
  const language = languageFor(navigator.languages ?? [navigator.language]);
  root.lang = language;
  speakLanguage(language);
  if (isMixed()) return reloadMixed();
  if (typeof WebAssembly !== 'object') return showStill(textOf('noWasm'), false);
  let letters;
  try {
    letters = await openLetters();
  } catch (error) {
    // Refused by the browser or its guards, or not loaded.
    return showStill(textOf(error instanceof WebAssembly.CompileError ? 'noWasm' : 'failed'), true);
  }
  followAddress(letters);
  performance.mark('bramlee-first-letter');
  addEventListener('hashchange', () => followAddress(letters));
  keepForOffline();
}

start();
