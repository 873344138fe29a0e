// The levels: symbol and words accompany the colour wherever it is used.
const kLevels = Object.fromEntries(report.data.levels.map((each) => [each.level, each]));

const kWorstFirst = report.data.levels.map(({ level }) => level);

function symbol(level) {
  return make("span", { class: "symbol", "aria-hidden": "true" }, kLevels[level].symbol);
}

// A badge: colour, symbol and words together.
function badge(level, words) {
  return make("span", { class: `badge level-${level}` }, symbol(level), words);
}
