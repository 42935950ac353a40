// The letters' sounds, beside the page where they were made; else it is silent.

const spoken = new Audio();
let wanted = true;

/// Whether a set has sounds.
export function hasSounds(set) {
  return (document.documentElement.dataset.sounds ?? '').split(' ').includes(set);
}

export function soundIsOn() {
  return wanted;
}

export function switchSound(on) {
  wanted = on;
  if (!on) spoken.pause();
}

/// Speaks a letter. Resolves to false when the browser keeps it back until something is touched; a
/// sound that is missing or broken is no sound.
export async function speak(set, tile) {
  if (!wanted || !hasSounds(set)) return true;
  spoken.src = `sounds/${set}/${tile}.opus`;
  try {
    await spoken.play();
    return true;
  } catch (error) {
    return error.name !== 'NotAllowedError';
  }
}
