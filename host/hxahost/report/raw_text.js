// The raw text of every command, folded; a search opens what has the words and marks them.

const kMostMarks = 2000;

function rawTexts(model) {
  return kRawTexts.flatMap((className) => model.all(className)).map((object) => {
    const lines = Array.isArray(object.properties.RawResults) ? object.properties.RawResults : [];
    const text = lines.map((line) => visibleLines(String(line)).replace(/[\r\n]/g, (character) => kLineCharacters[character])).join("\n");
    return { command: textOf(object, "Command"), lineCount: lines.length, text };
  });
}

function rawElement(raw) {
  const body = make("pre", { tabindex: "0", "aria-label": "Text of " + raw.command }, raw.text);
  const lines = raw.lineCount === 0 ? "no lines" : counted(raw.lineCount, "line", "lines");
  const element = make("details", { class: "raw" },
    make("summary", {}, make("code", {}, raw.command), make("span", { class: "quiet" }, " " + lines)), body);
  return { ...raw, element, body };
}

function matchesIn(text, words) {
  const escaped = words.replace(/[.*+?^${}()|[\]\\]/g, "\\$&");
  return [...text.matchAll(new RegExp(escaped, "gi"))];
}

// The text with the first of its matches marked.
function markedText(text, matches) {
  const content = document.createDocumentFragment();
  let end = 0;
  for (const match of matches) {
    content.append(text.slice(end, match.index), make("mark", {}, match[0]));
    end = match.index + match[0].length;
  }
  content.append(text.slice(end));
  return content;
}

function searchRaw(raws, words, result) {
  let total = 0;
  let texts = 0;
  let marksLeft = kMostMarks;
  for (const raw of raws) {
    const matches = words === "" ? [] : matchesIn(raw.text, words);
    const isFound = matches.length > 0 || (words !== "" && matchesIn(raw.command, words).length > 0);
    raw.element.hidden = words !== "" && !isFound;
    raw.element.open = matches.length > 0;
    const marked = matches.slice(0, marksLeft);
    marksLeft -= marked.length;
    raw.body.replaceChildren(markedText(raw.text, marked));
    total += matches.length;
    texts += isFound ? 1 : 0;
  }
  result.textContent = words === "" ? counted(raws.length, "text", "texts")
    : `${counted(total, "match", "matches")} in ${counted(texts, "text", "texts")}` + (total > kMostMarks ? `, the first ${kMostMarks} marked` : "");
}

function unfoldButton(words, raws, isOpen) {
  const button = make("button", { type: "button" }, words);
  button.addEventListener("click", () => raws.forEach((raw) => { raw.element.open = isOpen; }));
  return button;
}

function rawSection(model) {
  const raws = rawTexts(model).map(rawElement);
  if (raws.length === 0) return null;
  const input = make("input", { type: "search", id: "raw-search", autocomplete: "off", spellcheck: "false" });
  const result = make("output", { class: "count" });
  input.addEventListener("input", () => searchRaw(raws, input.value, result));
  searchRaw(raws, "", result);
  return make("div", {},
    make("div", { class: "tools" }, make("label", {}, "Search all texts ", input), result,
      unfoldButton("Unfold all", raws, true), unfoldButton("Fold all", raws, false)),
    ...raws.map((raw) => raw.element));
}
