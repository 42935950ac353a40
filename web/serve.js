// serve.js FOLDER PORT: a server for one machine, to look at the page.
import fs from 'node:fs';
import http from 'node:http';
import path from 'node:path';

const kKinds = {
  '.css': 'text/css; charset=utf-8',
  '.gz': 'application/octet-stream',
  '.html': 'text/html; charset=utf-8',
  '.js': 'text/javascript; charset=utf-8',
  '.opus': 'audio/ogg; codecs=opus',
  '.png': 'image/png',
  '.svg': 'image/svg+xml',
  '.webmanifest': 'application/manifest+json',
};

const [folder, portText] = process.argv.slice(2);
const root = path.resolve(folder);
const port = Number(portText);

function fail(why) {
  console.error(why);
  process.exit(1);
}

/** The file that an address stands for; null for one that is not below the folder. */
function fileOf(address) {
  try {
    const name = decodeURIComponent(new URL(address, 'http://localhost').pathname);
    const file = path.join(root, name.endsWith('/') ? `${name}index.html` : name);
    return file.startsWith(root + path.sep) && fs.statSync(file).isFile() ? file : null;
  } catch {
    return null;
  }
}

const server = http.createServer((request, answer) => {
  const file = fileOf(request.url);
  if (file === null) {
    answer.writeHead(404, { 'Content-Type': 'text/plain' }).end('There is no such page.\n');
    return;
  }
  const kind = kKinds[path.extname(file)] ?? 'application/octet-stream';
  answer.writeHead(200, { 'Content-Type': kind, 'Cache-Control': 'no-cache' });
  fs.createReadStream(file).pipe(answer);
});

if (!Number.isInteger(port) || port < 0 || port > 65535) fail(`"${portText}" is no port: 0 to 65535`);
server.on('error', (error) => {
  if (error.code === 'EADDRINUSE') fail(`Port ${port} is taken; name another one: ./web/serve ${port + 1}`);
  fail(error.code === 'EACCES' ? `Port ${port} is not for everyone; name one above 1023.` : error.message);
});
server.listen(port, '127.0.0.1', () => {
  console.log(`The letters are at http://localhost:${server.address().port}/ (Ctrl+C ends this).`);
});
