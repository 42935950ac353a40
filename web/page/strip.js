// Buttons with pictures.

/// A button that says its name to a screen reader and as a tip. `key`: what presses it too.
export function pictureButton(name, text, picture, press, { key } = {}) {
  const button = document.createElement('button');
  button.type = 'button';
  button.className = 'picture';
  button.dataset.name = name;
  button.innerHTML = picture;
  nameButton(button, text, key);
  button.addEventListener('click', press);
  return button;
}

export function nameButton(button, text, key = button.dataset.key) {
  button.setAttribute('aria-label', text);
  button.title = key ? `${text} (${key})` : text;
  if (!key) return;
  button.dataset.key = key;
  button.setAttribute('aria-keyshortcuts', key);
}

/// What is switched on and off stands pressed while it is on.
export function setPressed(button, on) {
  button.setAttribute('aria-pressed', String(on));
}

/// What cannot be pressed now keeps the focus, so that nobody loses the place.
export function setEnabled(button, on) {
  button.setAttribute('aria-disabled', String(!on));
}

export function isEnabled(button) {
  return button.getAttribute('aria-disabled') !== 'true';
}
