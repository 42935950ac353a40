// All tests of the page, in one process with one browser.
import './load.js';
import './letters.js';
import './pen.js';
import './trace.js';
import './recorded_pens.js';
import './bad_cases.js';
import './access.js';
import './paper.js';
import './sounds.js';
