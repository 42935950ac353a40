// A server of build/web that a test can stop, and whose answers it can change.
import { createServer } from 'node:http';
import { readFile } from 'node:fs/promises';
import { extname, join, normalize } from 'node:path';

const kTypes = {
  '.html': 'text/html; charset=utf-8',
  '.css': 'text/css',
  '.js': 'text/javascript',
  '.wasm': 'application/wasm',
  '.svg': 'image/svg+xml',
  '.png': 'image/png',
  '.webmanifest': 'application/manifest+json',
  '.opus': 'audio/ogg',
};

/// `change(name, bytes)` returns what is sent in place of a file, null for "not found".
export async function serve(folder, change = (_, bytes) => bytes) {
  const server = createServer(async (request, response) => {
    const path = decodeURIComponent(new URL(request.url, 'http://x').pathname);
    const name = path === '/' ? 'index.html' : normalize(path).slice(1);
    const bytes = change(name, await readFile(join(folder, name)).catch(() => null));
    if (bytes === null) return response.writeHead(404).end();
    response.writeHead(200, { 'content-type': kTypes[extname(name)] ?? 'text/plain' }).end(bytes);
  });
  await new Promise((listening) => server.listen(0, '127.0.0.1', listening));
  server.unref(); // a test that failed leaves its own open
  return {
    url: `http://127.0.0.1:${server.address().port}/`,
    setChange: (other) => (change = other),
    close: () => {
      server.closeAllConnections();
      return new Promise((closed) => server.close(closed));
    },
  };
}
