// Keeps the whole page of one version, so that it works without network. A new version is fetched
// as a whole beside the old one and takes over when no page of the old one is open any more: a page
// never mixes files of two versions.
'use strict';

const kVersion = '/*VERSION*/';
const kCache = `bramlee-${kVersion}`;
/// Names of files, each with the hash of what is in it.
const kFiles = [/*FILES*/];
const kSounds = [/*SOUNDS*/];

/// In the middle of an update on the server a file is not yet what its hash says: nothing is kept
/// then, and the browser tries again at the next load.
async function keepPage() {
  const cache = await caches.open(kCache);
  const requests = kFiles.map(
    ([name, integrity]) => new Request(name, { cache: 'reload', integrity }),
  );
  await cache.addAll(requests);
}

/// One by one: a sound that cannot be had is no reason to do without the rest.
async function keepSounds() {
  const cache = await caches.open(kCache);
  for (const sound of kSounds) {
    if (!(await cache.match(sound))) await cache.add(sound).catch(() => {});
  }
}

async function dropOtherVersions() {
  const names = await caches.keys();
  const old = names.filter((name) => name.startsWith('bramlee-') && name !== kCache);
  await Promise.all(old.map((name) => caches.delete(name)));
  await self.clients.claim();
}

async function answer(request) {
  const cache = await caches.open(kCache);
  const url = new URL(request.url);
  const home = request.mode === 'navigate' && url.pathname.endsWith('/') ? 'index.html' : request;
  const kept = await cache.match(home, { ignoreSearch: true });
  return kept ? part(request, kept) : fetch(request);
}

/// Sound players ask for a part of a file; what is kept is all of it.
async function part(request, kept) {
  const range = /^bytes=(\d+)-(\d*)$/.exec(request.headers.get('range') ?? '');
  if (!range) return kept;
  const bytes = await kept.arrayBuffer();
  const first = Number(range[1]);
  const last = range[2] === '' ? bytes.byteLength - 1 : Number(range[2]);
  const headers = new Headers(kept.headers);
  headers.set('Content-Range', `bytes ${first}-${last}/${bytes.byteLength}`);
  headers.set('Content-Length', String(last + 1 - first));
  return new Response(bytes.slice(first, last + 1), { status: 206, headers });
}

self.addEventListener('install', (event) => event.waitUntil(keepPage()));
self.addEventListener('activate', (event) => event.waitUntil(dropOtherVersions()));
// Not while it installs or activates: pages would wait for all sounds.
self.addEventListener('message', (event) => event.waitUntil(keepSounds()));
self.addEventListener('fetch', (event) => {
  const { request } = event;
  if (request.method !== 'GET' || new URL(request.url).origin !== location.origin) return;
  event.respondWith(answer(request));
});
