// make_page.js CODE SOUNDS FOLDER: makes the page of web/page/ and the letters' code, which is
// packed. SOUNDS is a folder with a folder of Opus files a set; it need not be there. Called by
// ./web/build.
import { execFileSync } from 'node:child_process';
import { createHash } from 'node:crypto';
import fs from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

import { loadLetters } from './page/letters.js';

const kHere = path.dirname(fileURLToPath(import.meta.url));
const kPage = path.join(kHere, 'page');
const kSingle = 'bramlee-letters.html';
const kCode = 'letters.wasm.gz';

function hashOf(bytes) {
  return 'sha256-' + createHash('sha256').update(bytes).digest('base64');
}

/** `text` with that part of it, which stands there, replaced everywhere. */
function replaced(text, part, by) {
  if (!text.includes(part)) throw new Error(`"${part}" is not in the page any more`);
  return text.replaceAll(part, () => by);
}

/** A text through esbuild, or a file of web/page/ with all modules that it imports. */
function small(kind, { text, file }) {
  const target = ['--minify', '--mangle-props=_$', '--charset=utf8', '--target=es2020', '--log-level=warning'];
  const source = file ? [file, '--bundle', '--format=iife'] : [`--loader=${kind}`];
  return execFileSync('esbuild', [...source, ...target], { cwd: kPage, input: text, encoding: 'utf8' });
}

/** The page with its styles inside, which it would have to wait for. */
function withStyle(page, style) {
  return replaced(page, '<link rel="stylesheet" href="page.css">', `<style>\n${style}</style>`);
}

/** The page without the script in its head, which asks the server for the code. */
function withoutFetch(page) {
  const first = page.indexOf('<script>');
  return page.slice(0, first) + page.slice(page.indexOf('</script>', first) + '</script>\n'.length);
}

/** Text within a script: it must not end that. */
function withinScript(text) {
  return text.replaceAll('</script', '<\\/script');
}

/** The sounds below a folder as "sounds/engc/1.opus". */
function soundsIn(folder) {
  if (!fs.existsSync(folder)) return [];
  return fs
    .readdirSync(folder, { recursive: true })
    .filter((name) => name.endsWith('.opus'))
    .map((name) => `sounds/${name}`)
    .sort();
}

function foldersOf(sounds) {
  return [...new Set(sounds.map((name) => name.split('/')[1]))].join(' ');
}

/** Pictures of all letters, for a browser that cannot write them. */
async function stillPictures(code) {
  const { stillPictures: make } = await import('./page/still.js');
  return make(await loadLetters(code));
}

function stillPage(pictures) {
  return (
    '<!doctype html>\n<html lang="en">\n<meta charset="utf-8">\n<title>BRAM-LEE</title>\n' +
    `<link rel="stylesheet" href="page.css">\n<main>${pictures}</main>\n</html>\n`
  );
}

/** The files of web/page/ that go to the server as they are. */
function plainFiles() {
  const files = new Map();
  for (const name of fs.readdirSync(kPage).sort()) {
    if (name.endsWith('.js') && name !== 'worker.js') continue;
    files.set(name, fs.readFileSync(path.join(kPage, name)));
  }
  return files;
}

/** All files of a page for a server, by their names. */
function serverFiles(parts) {
  const files = plainFiles();
  const text = (name) => files.get(name).toString();
  files.set('page.js', Buffer.from(parts.script));
  files.set('page.css', Buffer.from(parts.style));
  files.set(kCode, parts.code);
  files.set('pictures.html', Buffer.from(stillPage(parts.pictures)));
  const withSounds = replaced(text('index.html'), '/*SOUNDFOLDERS*/', foldersOf(parts.sounds));
  const index = withStyle(replaced(withSounds, '/*WASM_INTEGRITY*/', hashOf(parts.code)), parts.style);
  files.set('index.html', Buffer.from(replaced(index, '<!-- letters:pictures -->\n', '')));
  const version = createHash('sha256');
  for (const [name, bytes] of files) version.update(`${name} ${hashOf(bytes)}\n`);
  version.update(parts.sounds.join());
  const mark = version.digest('hex').slice(0, 16);
  for (const name of ['index.html', 'page.js', 'worker.js']) {
    files.set(name, Buffer.from(replaced(text(name), '/*VERSION*/', mark)));
  }
  const listed = [...files].filter(([name]) => name !== 'worker.js');
  const entries = listed.map(([name, bytes]) => JSON.stringify([name, hashOf(bytes)]));
  const worker = replaced(text('worker.js'), '/*FILES*/', entries.join(',\n'));
  const sounds = parts.sounds.map((name) => JSON.stringify(name)).join(',\n');
  files.set('worker.js', Buffer.from(small('js', { text: replaced(worker, '/*SOUNDS*/', sounds) })));
  return files;
}

/** The page with everything inside, that opens from a stick or a mail. It has no sounds. */
function singleFile(parts) {
  const script = replaced(parts.script, '/*VERSION*/', 'inside');
  let page = withoutFetch(fs.readFileSync(path.join(kPage, 'index.html'), 'utf8'));
  const icon = fs.readFileSync(path.join(kPage, 'icon.svg')).toString('base64');
  page = replaced(page, 'href="icon.svg"', `href="data:image/svg+xml;base64,${icon}"`);
  page = replaced(page, '<link rel="manifest" href="manifest.webmanifest">\n', '');
  page = withStyle(page, parts.style);
  page = replaced(page, '/*VERSION*/', 'inside');
  page = replaced(page, '/*SOUNDFOLDERS*/', '');
  const pictures = `<template id="letters-pictures">${parts.pictures}</template>`;
  page = replaced(page, '<!-- letters:pictures -->', pictures);
  const code = `bramleeInside = true, bramleeCode = '${parts.code.toString('base64')}';`;
  const inside = `<script>\n${code}\n${withinScript(script)}</script>`;
  return replaced(page, '<script src="page.js"></script>', inside);
}

function write(folder, name, bytes) {
  const file = path.join(folder, name);
  fs.mkdirSync(path.dirname(file), { recursive: true });
  fs.writeFileSync(file, bytes);
}

async function main([packed, soundFolder, folder]) {
  const code = fs.readFileSync(packed);
  const parts = {
    code,
    sounds: soundsIn(soundFolder),
    style: small('css', { text: fs.readFileSync(path.join(kPage, 'page.css')) }),
    script: small('js', { file: 'main.js' }),
    pictures: await stillPictures(code),
  };
  const files = serverFiles(parts);
  fs.rmSync(folder, { recursive: true, force: true });
  for (const [name, bytes] of files) write(folder, name, bytes);
  for (const sound of parts.sounds) {
    write(folder, sound, fs.readFileSync(path.join(soundFolder, sound.slice('sounds/'.length))));
  }
  write(folder, kSingle, singleFile(parts));
}

await main(process.argv.slice(2));
