// Home: the seven subjects.
import { installPage, onInstallOffered } from './install.js';
import { pencilPicture, stripPicture, subjectPicture } from './pictures.js';
import { pictureButton } from './strip.js';
import { subjectText, textOf } from './texts.js';

function subjectLink(letters, set) {
  const link = document.createElement('a');
  link.href = `#${set.name}`;
  link.style.color = set.subjectColour;
  link.innerHTML = subjectPicture(letters, set);
  const caption = document.createElement('span');
  caption.textContent = subjectText(set);
  link.append(caption);
  return link;
}

/// Shows home in the element.
export function showHome(letters, element) {
  const head = document.createElement('header');
  const heading = document.createElement('h1');
  heading.textContent = 'BRAM-LEE';
  const install = pictureButton('install', textOf('install'), stripPicture('install'), installPage);
  onInstallOffered((offered) => (install.hidden = !offered));
  head.append(heading, install);
  const subjects = document.createElement('nav');
  subjects.append(...letters.sets.map((set) => subjectLink(letters, set)));
  subjects.insertAdjacentHTML('beforeend', pencilPicture());
  element.replaceChildren(head, subjects);
}
