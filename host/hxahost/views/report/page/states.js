// What a state word means for the drawing's colours. A word that is not listed is not known, never fine.

// The symbol and the words go with the colour wherever it is used.
const kLevels = {
  bad: { symbol: "\u2715", words: "failed" },
  warn: { symbol: "!", words: "needs attention" },
  unknown: { symbol: "?", words: "state not known" },
  busy: { symbol: "\u21bb", words: "at work" },
  idle: { symbol: "\u25cb", words: "spare or unused" },
  unsaid: { symbol: "\u2013", words: "state not said" },
  good: { symbol: "\u2713", words: "in order" },
};

const kWorstFirst = Object.keys(kLevels);

// The first row that fits: "Defunct hot-spare (DHS)" is defunct before it is a spare. The words for what is in order
// must be the whole text, a short code aside: "Online, not responding" is none of them.
const kStateWords = [
  { pattern: /\b(defunct|failed|failure|missing|offline|inoperable)\b|\((DDD|DHS|OFL|FLT)\)/i, level: "bad" },
  { pattern: /\b(critical|degraded|impacted|warning)\b|\(CRT\)/i, level: "warn" },
  { pattern: /^(rebuild|rebuilding|migrating|synchronizing|initializing|building|formatting|compression)\b|\(RBL\)/i, level: "busy" },
  { pattern: /^((dedicated |global |standby )?hot[- ]?spare\b|(standby|ready|available|empty|unconfigured|free|system)( *\([a-z]+\))?$)/i, level: "idle" },
  { pattern: /^(online|okay|ok|optimal|good)( *\([a-z]+\))?$/i, level: "good" },
];

function levelOfWord(text) {
  const row = kStateWords.find(({ pattern }) => pattern.test(text));
  return row ? row.level : "unknown";
}

// Severities of findings, as the program's health rules name them.
const kSeverities = new Map([["critical", "bad"], ["warning", "warn"], ["unknown", "unknown"], ["ok", "good"]]);

function levelOfSeverity(severity) {
  return kSeverities.get(severity) || "unknown";
}

// A badge: colour, symbol and words together.
function badge(level, words) {
  return make("span", { class: `badge level-${level}` },
    make("span", { class: "symbol", "aria-hidden": "true" }, kLevels[level].symbol), words);
}
