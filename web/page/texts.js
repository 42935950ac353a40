// What the page says, in English, Hindi and Telugu. English captions of subjects and boards are not
// here: those are the program's own.

const kTexts = {
  en: {
    home: 'Home',
    install: 'Install',
    tiles: 'Letters',
    sheet: 'Sheet',
    strip: 'Pen',
    back: 'Stroke back',
    pause: 'Pause',
    goOn: 'Go on',
    on: 'Stroke on',
    again: 'Again',
    speed: 'Speed of the pen',
    times: '{rate} times',
    trace: 'Trace',
    level: 'Level: {level}',
    strict: 'strict',
    normal: 'normal',
    gentle: 'gentle',
    toddler: 'toddler',
    leftHand: 'Left hand',
    clicks: 'Click, move, click instead of dragging',
    numbers: 'Numbers and arrows',
    rules: 'Ruled lines: {rules}',
    none: 'none',
    grid: 'Grid',
    alternatives: 'Alternatives',
    hindiSet1: 'whole letters',
    hindiSet2: 'half letters',
    hindiSet3: 'letters with the foot stroke',
    words: 'Words',
    word: 'Word to write',
    wordHint: 'Type a word or a name',
    write: 'Write',
    leftOut: 'Left out: {letters}',
    print: 'Print',
    sound: 'Sound',
    soundWaits: 'The browser keeps the sound until something is touched.',
    hear: 'Hear the letter',
    written: '{letter} is written.',
    writing: 'The pen writes {letter}.',
    paused: 'Pause.',
    beginStroke: 'Stroke {number} of {count}: begin at the green dot.',
    tryAgain: 'Once more, from the green dot.',
    watchStroke: 'Look how the pen does it.',
    star: 'Well done! {letter} is written.',
    isWritten: 'written',
    isHelped: 'written with help',
    name: 'Name',
    date: 'Date',
    pictures: 'The letters',
    noWasm: 'This browser cannot write the letters. Here they are as pictures.',
    failed: 'The letters could not be loaded. Here they are as pictures.',
    renewed: 'This page has just been renewed.',
    reload: 'Load again',
  },
  hi: {
    home: 'मुखपृष्ठ',
    install: 'इंस्टॉल करें',
    tiles: 'अक्षर',
    sheet: 'पन्ना',
    strip: 'कलम',
    back: 'एक रेखा पीछे',
    pause: 'रुको',
    goOn: 'आगे लिखो',
    on: 'एक रेखा आगे',
    again: 'फिर से',
    speed: 'कलम की गति',
    times: '{rate} गुना',
    trace: 'अक्षर के ऊपर लिखो',
    level: 'स्तर: {level}',
    strict: 'कठिन',
    normal: 'सामान्य',
    gentle: 'आसान',
    toddler: 'सबसे आसान',
    leftHand: 'बायाँ हाथ',
    clicks: 'खींचने के बदले क्लिक, सरकाना, क्लिक',
    numbers: 'अंक और तीर',
    rules: 'रेखाएँ: {rules}',
    none: 'कोई नहीं',
    grid: 'खाने',
    alternatives: 'दूसरे रूप',
    hindiSet1: 'पूरे अक्षर',
    hindiSet2: 'आधे अक्षर',
    hindiSet3: 'हलन्त वाले अक्षर',
    words: 'शब्द',
    word: 'लिखने का शब्द',
    wordHint: 'कोई शब्द या नाम लिखें',
    write: 'लिखो',
    leftOut: 'छूट गए: {letters}',
    print: 'छापो',
    sound: 'आवाज़',
    soundWaits: 'कुछ छूने पर ही ब्राउज़र आवाज़ देता है।',
    hear: 'अक्षर सुनो',
    written: '{letter} लिखा गया।',
    writing: 'कलम {letter} लिख रही है।',
    paused: 'रुका हुआ।',
    beginStroke: '{count} में से रेखा {number}: हरे बिंदु से शुरू करो।',
    tryAgain: 'एक बार फिर, हरे बिंदु से।',
    watchStroke: 'देखो, कलम कैसे लिखती है।',
    star: 'शाबाश! {letter} लिखा गया।',
    isWritten: 'लिखा गया',
    isHelped: 'मदद से लिखा गया',
    name: 'नाम',
    date: 'तारीख',
    pictures: 'अक्षर',
    noWasm: 'यह ब्राउज़र अक्षर नहीं लिख सकता। यहाँ उनके चित्र हैं।',
    failed: 'अक्षर लोड नहीं हो सके। यहाँ उनके चित्र हैं।',
    renewed: 'यह पृष्ठ अभी-अभी बदला है।',
    reload: 'फिर से लोड करें',
    subjects: {
      engc: 'अंग्रेज़ी: बड़े अक्षर',
      engs: 'अंग्रेज़ी: छोटे अक्षर',
      hinv: 'हिन्दी: स्वर',
      hinc: 'हिन्दी: व्यंजन',
      telv: 'तेलुगु: स्वर',
      telc: 'तेलुगु: व्यंजन',
      mat: 'गणित: अंक',
    },
  },
  te: {
    home: 'మొదటి పేజీ',
    install: 'ఇన్‌స్టాల్ చేయండి',
    tiles: 'అక్షరాలు',
    sheet: 'కాగితం',
    strip: 'కలం',
    back: 'ఒక గీత వెనక్కి',
    pause: 'ఆపు',
    goOn: 'కొనసాగించు',
    on: 'ఒక గీత ముందుకు',
    again: 'మళ్ళీ',
    speed: 'కలం వేగం',
    times: '{rate} రెట్లు',
    trace: 'అక్షరం మీద రాయి',
    level: 'స్థాయి: {level}',
    strict: 'కఠినం',
    normal: 'సాధారణం',
    gentle: 'సులభం',
    toddler: 'చాలా సులభం',
    leftHand: 'ఎడమ చేయి',
    clicks: 'లాగడానికి బదులు క్లిక్, కదలిక, క్లిక్',
    numbers: 'అంకెలు, బాణాలు',
    rules: 'గీతలు: {rules}',
    none: 'లేవు',
    grid: 'గడులు',
    alternatives: 'ఇతర రూపాలు',
    hindiSet1: 'పూర్తి అక్షరాలు',
    hindiSet2: 'సగం అక్షరాలు',
    hindiSet3: 'హలంత అక్షరాలు',
    words: 'పదాలు',
    word: 'రాయాల్సిన పదం',
    wordHint: 'ఒక పదం లేదా పేరు రాయండి',
    write: 'రాయి',
    leftOut: 'వదిలినవి: {letters}',
    print: 'ముద్రించు',
    sound: 'శబ్దం',
    soundWaits: 'ఏదైనా తాకిన తరువాతే బ్రౌజర్ శబ్దం చేస్తుంది.',
    hear: 'అక్షరం విను',
    written: '{letter} రాయబడింది.',
    writing: 'కలం {letter} రాస్తోంది.',
    paused: 'ఆగింది.',
    beginStroke: '{count} గీతలలో గీత {number}: ఆకుపచ్చ చుక్క దగ్గర మొదలుపెట్టు.',
    tryAgain: 'మరోసారి, ఆకుపచ్చ చుక్క నుండి.',
    watchStroke: 'కలం ఎలా రాస్తుందో చూడు.',
    star: 'శభాష్! {letter} రాయబడింది.',
    isWritten: 'రాయబడింది',
    isHelped: 'సహాయంతో రాయబడింది',
    name: 'పేరు',
    date: 'తేదీ',
    pictures: 'అక్షరాలు',
    noWasm: 'ఈ బ్రౌజర్ అక్షరాలను రాయలేదు. ఇవిగో వాటి బొమ్మలు.',
    failed: 'అక్షరాలను లోడ్ చేయలేకపోయాము. ఇవిగో వాటి బొమ్మలు.',
    renewed: 'ఈ పేజీ ఇప్పుడే మారింది.',
    reload: 'మళ్ళీ లోడ్ చేయండి',
    subjects: {
      engc: 'ఇంగ్లీష్: పెద్ద అక్షరాలు',
      engs: 'ఇంగ్లీష్: చిన్న అక్షరాలు',
      hinv: 'హిందీ: అచ్చులు',
      hinc: 'హిందీ: హల్లులు',
      telv: 'తెలుగు: అచ్చులు',
      telc: 'తెలుగు: హల్లులు',
      mat: 'గణితం: అంకెలు',
    },
  },
};

/// The first language of the list that the page has; English when it has none of them.
export function languageFor(wanted) {
  const found = wanted.map((name) => name.slice(0, 2).toLowerCase()).find((name) => name in kTexts);
  return found ?? 'en';
}

let texts = kTexts.en;

export function speakLanguage(language) {
  texts = kTexts[language];
}

/// The text of that name, with the values in place of their names in braces.
export function textOf(name, values = {}) {
  return texts[name].replace(/\{(\w+)\}/g, (_, value) => values[value]);
}

/// What home calls a subject.
export function subjectText(set) {
  return texts.subjects?.[set.name] ?? set.subject;
}

/// What a board is headed by.
export function boardText(set) {
  return texts.subjects?.[set.name] ?? set.title;
}

/// What a tile is called: names are English, so other languages say the letter itself.
export function tileText(tile, book = false) {
  const printed = book ? tile.bookPrinted : tile.printed;
  const name = book ? tile.bookName : tile.name;
  return texts === kTexts.en ? name : printed || tile.lettering || name;
}

/// The names of all texts, a list a language; for tests.
export function textNames() {
  return Object.values(kTexts).map((language) => Object.keys(language).sort());
}
