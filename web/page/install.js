// The page without network, and as an app of its own.

/// Keeps the page for use without network: a worker caches all of it at the first load. From a
/// file, in the single file and where workers are refused the page works as it is.
export function keepForOffline() {
  if (globalThis.bramleeInside || !location.protocol.startsWith('http')) return;
  const { serviceWorker } = navigator;
  if (!serviceWorker) return;
  serviceWorker.register('worker.js').catch(() => {});
  serviceWorker.ready.then((registration) => registration.active.postMessage('sounds'));
}

let offer = null;
let offered = () => {};

addEventListener('beforeinstallprompt', (event) => {
  event.preventDefault(); // the page offers it by a button of its own, quietly
  offer = event;
  offered(true);
});
addEventListener('appinstalled', () => {
  offer = null;
  offered(false);
});

/// `show` is called with whether the browser can install the page, now and when that changes.
export function onInstallOffered(show) {
  offered = show;
  show(offer !== null);
}

export function installPage() {
  offer?.prompt();
}
