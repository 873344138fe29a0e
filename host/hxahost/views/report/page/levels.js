// How the levels look that the program gives objects and findings, the worst first. Symbol and words go with the colour
// wherever it is used.
const kLevels = {
  critical: { symbol: "\u2715", words: "critical" },
  warning: { symbol: "!", words: "needs attention" },
  unknown: { symbol: "?", words: "state not known" },
  busy: { symbol: "\u21bb", words: "at work" },
  idle: { symbol: "\u25cb", words: "spare or unused" },
  unsaid: { symbol: "\u2013", words: "state not said" },
  ok: { symbol: "\u2713", words: "in order" },
};

const kWorstFirst = Object.keys(kLevels);

// A badge: colour, symbol and words together.
function badge(level, words) {
  return make("span", { class: `badge level-${level}` },
    make("span", { class: "symbol", "aria-hidden": "true" }, kLevels[level].symbol), words);
}
