// The details of one object, in a dialog. "#object-17" in the address opens them, so links, the keyboard and the
// browser's Back button need no extra code. "#line-3-249" is line 249 of the text of instance 3, counted from 0.

const kMostRelated = 60;

// The origins of an object's values, by the object's place; parsed at the first use.
function proofOf(object) {
  if (!report.proofs) report.proofs = new Map((readData("proof-data") || []).map((proof) => [proof.instance, proof]));
  return report.proofs.get(object.index) || { lines: {} };
}

// Properties are compared without regard to case: one is published with a letter in another case than declared.
function originOf(object, property) {
  const origins = Object.entries(report.data.origins[object.class] || {});
  const found = origins.find(([name]) => name.toLowerCase() === property.toLowerCase());
  return found ? found[1] : "";
}

function lineWords(model, [text, ...lines]) {
  const numbers = lines.map((line) => (line + 1).toLocaleString("en-US")).join(", ");
  return `${textOf(model.objects[text], "Command")}, ${lines.length === 1 ? "line" : "lines"} ${numbers}`;
}

// A value links to its line; a value without a line shows its origin in words.
function valueParts(model, object, name, text) {
  const proof = proofOf(object);
  const quiet = (words) => make("span", { class: "quiet" }, " " + words);
  const place = proof.lines[name];
  if ((proof.noLine || []).includes(name)) {
    return [text, make("span", { class: "differs" }, " in no line of the raw texts"), quiet(originOf(object, name))];
  }
  if (!place) return [text, quiet(originOf(object, name))];
  const words = lineWords(model, place);
  const link = make("a", { href: "#line-" + place.join("-"), title: words, class: "to-line" }, text);
  return (proof.differs || []).includes(name)
    ? [link, make("span", { class: "differs" }, ` the raw text says something else: ${words}`)] : [link];
}

function definition(model, object, name, text) {
  return [make("dt", {}, name), make("dd", {}, ...valueParts(model, object, name, text))];
}

function propertyList(model, object) {
  const entries = Object.keys(object.properties).map((name) => [name, textOf(object, name)]);
  const said = entries.filter(([, text]) => text !== "");
  const unsaid = entries.filter(([, text]) => text === "").map(([name]) => name);
  const parts = [make("dl", {}, ...said.flatMap(([name, text]) => definition(model, object, name, text)))];
  if (unsaid.length > 0) parts.push(make("p", { class: "quiet" }, "Not said by the tool: " + unsaid.join(", ") + "."));
  return parts;
}

function relatedItem(object) {
  const item = make("li", {}, linkTo(object, nameOf(object)));
  if (kStateProperties[object.class] && stateText(object) !== "") item.append(" ", stateBadge(object));
  if (!kDeviceClasses.includes(object.class)) item.append(make("span", { class: "quiet" }, " " + object.class));
  return item;
}

function relatedList(model, object) {
  const related = model.related(object);
  if (related.length === 0) return [];
  const items = related.slice(0, kMostRelated).map(relatedItem);
  if (related.length > items.length) {
    items.push(make("li", { class: "quiet" },
        `and ${counted(related.length - items.length, "more", "more")}: see the tables`));
  }
  return [make("h3", {}, "Belongs together"), make("ul", { class: "related" }, ...items)];
}

function findingList(model, object) {
  return model.findingsOf(object).map((finding) => make("p", {}, findingBadge(finding), " ", findingWords(finding)));
}

function stateBadge(object) {
  const { words, level } = report.model.stateWords(object);
  return badge(level, words);
}

function detailParts(model, object) {
  const close = make("button", { type: "button", class: "close", id: "close-details" }, "Close");
  close.addEventListener("click", () => byId("details").close());
  const parts = [
    make("div", { class: "dialog-head" }, make("h2", { id: "details-title", tabindex: "-1" }, nameOf(object)), close),
    make("p", { class: "quiet" }, object.class),
  ];
  if (kStateProperties[object.class]) parts.push(make("p", {}, stateBadge(object)));
  return [...parts, ...findingList(model, object), ...propertyList(model, object), ...relatedList(model, object)];
}

function showDetails(model, object) {
  const dialog = byId("details");
  dialog.replaceChildren(...detailParts(model, object));
  if (!dialog.open) dialog.showModal();
  dialog.scrollTop = 0;
  byId("details-title").focus();
}

function showFromAddress(model) {
  const found = /^#object-(\d+)$/.exec(window.location.hash);
  const object = found ? model.objects[Number(found[1])] : undefined;
  if (object) showDetails(model, object);
  else if (byId("details").open) byId("details").close();
  showLinesFromAddress();
}

function setUpDetails(model) {
  const dialog = byId("details");
  window.addEventListener("hashchange", () => showFromAddress(model));
  // The address changes back, so that the same link works again. It may be followed before this event.
  dialog.addEventListener("close", () => {
    if (!dialog.open && window.location.hash.startsWith("#object-")) window.history.replaceState(null, "", "#");
  });
  document.addEventListener("click", (event) => {
    const link = event.target.closest("a[href^='#object-']");
    if (link && !dialog.open && link.getAttribute("href") === window.location.hash) showFromAddress(model);
  });
  dialog.addEventListener("click", (event) => {
    if (event.target === dialog) dialog.close();
  });
  showFromAddress(model);
}
