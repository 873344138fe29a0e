// The raw text of every command, folded; a search opens the texts that contain the words and marks them. Lines whose
// values no property shows are marked in the margin: their number grows if a tool changes its layout.

const kMostMarks = 2000;

// Places of unread lines by the index of their text; null if they are not known.
function unreadPlaces(unread) {
  return unread === null ? null : new Map(unread.map(({ instance, lines }) => [instance, new Set(lines)]));
}

function rawTexts(model, unread) {
  const places = unreadPlaces(unread);
  return kRawTexts.flatMap((className) => model.all(className)).map((object) => {
    const results = Array.isArray(object.properties.RawResults) ? object.properties.RawResults : [];
    const escaped = (line) => visibleLines(line).replace(/[\r\n]/g, (character) => kLineCharacters[character]);
    const lines = results.map((line) => escaped(String(line)));
    const marked = (places && places.get(object.index)) || new Set();
    return { index: object.index, command: textOf(object, "Command"), lineCount: lines.length,
        unreadCount: marked.size, text: lines.join("\n"), lines, marked, parts: partsOf(lines, marked), matches: [] };
  });
}

// The text, cut where marked lines begin and end. Each unread line, and each line that a link leads to, is a separate
// part, without its line end.
function partsOf(lines, marked, followed = new Set()) {
  const parts = [{ begin: 0, end: 0 }];
  let begin = 0;
  lines.forEach((line, index) => {
    const end = begin + line.length;
    const last = parts[parts.length - 1];
    last.end = begin;
    const isUnread = marked.has(index);
    const isFollowed = followed.has(index);
    if (isUnread || isFollowed) parts.push({ begin, end, isUnread, isFollowed }, { begin: end, end });
    else last.end = end;
    begin = end + 1;
  });
  return parts;
}

function unreadWords(count) {
  return counted(count, "line", "lines") + " not shown elsewhere";
}

function rawElement(raw) {
  const body = make("pre", { tabindex: "0", "aria-label": "Text of " + raw.command });
  const lines = raw.lineCount === 0 ? "no lines" : counted(raw.lineCount, "line", "lines");
  const unread = raw.unreadCount === 0 ? [] : [make("span", { class: "unread-count" }, unreadWords(raw.unreadCount))];
  const element = make("details", { class: "raw" },
    make("summary", {}, make("code", {}, raw.command), make("span", { class: "quiet" }, " " + lines), " ", ...unread),
      body);
  return { ...raw, element, body };
}

function matchesIn(text, words) {
  const escaped = words.replace(/[.*+?^${}()|[\]\\]/g, "\\$&");
  const matches = [...text.matchAll(new RegExp(escaped, "gi"))];
  return matches.map((match) => ({ begin: match.index, end: match.index + match[0].length }));
}

// The text from begin to end, with the parts of matches in it marked.
function markedPart(text, begin, end, matches) {
  const content = document.createDocumentFragment();
  let done = begin;
  for (const match of matches) {
    if (match.end <= begin || match.begin >= end) continue;
    const first = Math.max(match.begin, begin);
    const last = Math.min(match.end, end);
    content.append(text.slice(done, first), make("mark", {}, text.slice(first, last)));
    done = last;
  }
  content.append(text.slice(done, end));
  return content;
}

// The text with its marked lines and the first of its matches marked. The matches are in order, as the parts are.
function markedText(raw) {
  const { matches } = raw;
  const content = document.createDocumentFragment();
  let next = 0;
  for (const part of raw.parts) {
    while (next < matches.length && matches[next].end <= part.begin) next += 1;
    let after = next;
    while (after < matches.length && matches[after].begin < part.end) after += 1;
    const marked = markedPart(raw.text, part.begin, part.end, matches.slice(next, after));
    const classes = [...(part.isUnread ? ["unread"] : []), ...(part.isFollowed ? ["followed"] : [])].join(" ");
    content.append(classes === "" ? marked : make("span", { class: classes, tabindex: "-1" }, marked));
  }
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
    raw.matches = matches.slice(0, marksLeft);
    marksLeft -= raw.matches.length;
    raw.body.replaceChildren(markedText(raw));
    total += matches.length;
    texts += isFound ? 1 : 0;
  }
  result.textContent = words === "" ? counted(raws.length, "text", "texts")
    : `${counted(total, "match", "matches")} in ${counted(texts, "text", "texts")}`
        + (total > kMostMarks ? `, the first ${kMostMarks} marked` : "");
}

function markFollowed(raw, lines) {
  raw.parts = partsOf(raw.lines, raw.marked, new Set(lines));
  raw.body.replaceChildren(markedText(raw));
}

// Goes to the lines of an instance's text that the address names.
function showLinesFromAddress() {
  const found = /^#line-(\d+)((?:-\d+)+)$/.exec(window.location.hash);
  const raw = found ? (report.rawTexts || []).find((each) => each.index === Number(found[1])) : undefined;
  if (!raw) return;
  if (report.followed) markFollowed(report.followed, []);
  report.followed = raw;
  markFollowed(raw, found[2].slice(1).split("-").map(Number));
  raw.element.hidden = false;
  raw.element.open = true;
  const line = raw.body.querySelector(".followed");
  if (!line) return;
  line.focus({ preventScroll: true });
  line.scrollIntoView({ block: "center", inline: "nearest" });
  raw.body.scrollLeft = 0;
}

function commandButton(words, command, attributes = {}) {
  const button = make("button", { type: "button", ...attributes }, words);
  button.addEventListener("click", command);
  return button;
}

function unfoldButton(words, raws, isOpen) {
  return commandButton(words, () => raws.forEach((raw) => { raw.element.open = isOpen; }));
}

// Moves to the next or previous unread line, from the last to the first, within the texts that the search shows.
class UnreadWalk {
  constructor(section) {
    this.section = section;
    this.at = null;
    this.place = make("output", { class: "count" });
  }

  go(step) {
    const lines = [...this.section.querySelectorAll("details.raw:not([hidden]) .unread")];
    if (lines.length === 0) {
      this.place.textContent = "None in these texts";
      return;
    }
    const from = lines.indexOf(this.at);
    const to = from < 0 ? (step > 0 ? 0 : lines.length - 1) : (from + step + lines.length) % lines.length;
    this.at = lines[to];
    this.at.closest("details").open = true;
    this.at.focus({ preventScroll: true });
    this.at.scrollIntoView({ block: "center", inline: "nearest" });
    this.at.closest("pre").scrollLeft = 0;  // a long line would move its mark out of sight
    this.place.textContent = `${to + 1} of ${lines.length}`;
  }

  // Letters without modifier keys, and only if the section has the focus and no text is typed.
  onKey(event) {
    if (event.ctrlKey || event.altKey || event.metaKey || event.target.closest("input")) return;
    const step = { n: 1, p: -1 }[event.key];
    if (step === undefined) return;
    event.preventDefault();
    this.go(step);
  }
}

function keyHint(key) {
  return { "aria-keyshortcuts": key.toLowerCase(), title: `Key ${key} within these texts` };
}

function unreadTools(section, raws, unread) {
  const reason = "Lines that no property shows are listed only if every class was queried.";
  if (unread === null) return [make("p", { class: "quiet" }, reason)];
  const texts = raws.filter((raw) => raw.unreadCount > 0);
  const total = texts.reduce((sum, raw) => sum + raw.unreadCount, 0);
  if (total === 0) return [make("p", { class: "quiet" }, "The value of every line is shown by some property.")];
  const lines = counted(total, "line", "lines");
  const walk = new UnreadWalk(section);
  section.addEventListener("keydown", (event) => walk.onKey(event));
  return [
    make("p", { class: "unread-legend" }, make("span", { class: "unread" }, "A line with this mark"),
      ` has a value that no property shows: ${lines} in ${counted(texts.length, "text", "texts")}.`),
    make("div", { class: "tools" },
      commandButton("Next such line", () => walk.go(1), keyHint("N")),
      commandButton("Previous", () => walk.go(-1), keyHint("P")),
      walk.place),
  ];
}

function rawSection(model, unread) {
  const raws = rawTexts(model, unread).map(rawElement);
  if (raws.length === 0) return null;
  report.rawTexts = raws;
  const input = make("input", { type: "search", id: "raw-search", autocomplete: "off", spellcheck: "false" });
  const result = make("output", { class: "count" });
  input.addEventListener("input", () => searchRaw(raws, input.value, result));
  searchRaw(raws, "", result);
  const section = make("div", { class: "raw-texts" });
  section.append(
    make("div", { class: "tools" }, make("label", {}, "Search all texts ", input), result,
      unfoldButton("Unfold all", raws, true), unfoldButton("Fold all", raws, false)),
    ...unreadTools(section, raws, unread),
    ...raws.map((raw) => raw.element));
  return section;
}
