// The drawing of a controller: itself, its arrays with the logical drives on them, and its devices by enclosure and
// slot, else by channel.

// The title, the state, and the object's other lines. The level is in words for people who see no colour.
function box(model, object) {
  const lines = object.lines.map((line) => make("span", {}, line));
  return make("a", { class: `box level-${object.level}`, href: "#object-" + object.index, "data-object": object.index },
    make("span", { class: "first" }, object.title),
    make("span", {}, symbol(object.level), " ", make("span", { class: "unseen" }, kLevels[object.level].words + ", "),
      stateLine(model, object)),
    ...lines);
}

// The state; the number of findings if one is worse than the state and decides the colour of the box.
function stateLine(model, object) {
  const state = stateText(object) || "state not said";
  if (model.isPredicted(object)) return `PFA ${textOf(object, "PFA")}, ${state}`;
  return object.level === object.stateLevel ? state
    : `${counted(model.findingsOf(object).length, "finding", "findings")}, ${state}`;
}

function boxes(model, objects) {
  return make("ul", { class: "boxes" }, ...objects.map((object) => make("li", {}, box(model, object))));
}

// An array is a frame with its name around its logical drives.
function arrayFrame(model, array) {
  const drives = model.logicalDrivesOf(array);
  const words = `${arrayName(array)}, ${counted(model.disksOf(array).length, "disk", "disks")}`;
  return make("div", { class: "array" },
    make("a", { class: "frame", href: "#object-" + array.index, "data-object": array.index }, words),
    ...(drives.length > 0 ? [boxes(model, drives)] : []));
}

function boxGroup(title, ...content) {
  return make("div", { class: "box-group" }, make("h4", {}, title), ...content);
}

function logicalGroups(model, owner) {
  const arrays = model.ownedBy(owner, kArrays);
  const alone = model.ownedBy(owner, kLogicalDrives).filter((drive) => drive.groups.length === 0);
  const groups = [];
  if (arrays.length > 0) {
    const frames = arrays.map((array) => arrayFrame(model, array));
    groups.push(boxGroup("Arrays", make("div", { class: "arrays" }, ...frames)));
  }
  if (alone.length > 0) {
    const title = arrays.length > 0 ? "Logical drives without an array" : "Logical drives";
    groups.push(boxGroup(title, boxes(model, alone)));
  }
  return groups;
}

// "Enclosure 0" of "enclosure 0, slot 8", "Channel 2" of "channel 2, ID 4".
function placeOf(device) {
  const comma = device.title.lastIndexOf(",");
  return comma <= 0 ? "Elsewhere" : device.title.charAt(0).toUpperCase() + device.title.slice(1, comma);
}

function deviceGroups(model, owner) {
  const groups = new Map();
  for (const device of model.ownedBy(owner, kDisks)) listOf(groups, placeOf(device)).push(device);
  const isElsewhere = (place) => place === "Elsewhere";
  const inOrder = [...groups].sort(([one], [other]) =>
      isElsewhere(one) - isElsewhere(other) || compareTexts(one, other));
  return inOrder.map(([place, devices]) => {
    devices.sort((one, other) => compareTexts(one.title, other.title) || one.index - other.index);
    return boxGroup(`${place}: ${counted(devices.length, "device", "devices")}`, boxes(model, devices));
  });
}

function controllerNote(model, owner) {
  const controllers = model.ownedBy(owner, kControllers);
  if (controllers.length > 1) {
    return `${controllers.length} controllers have this number. What belongs to any of them is shown here together.`;
  }
  if (controllers.length === 1) return "";
  return report.data.classes.includes(kControllers)
    ? "This controller was not published: its status may be \"Failed\"."
    : "Controllers were not asked for.";
}

function drawController(model, owner) {
  const controllers = model.ownedBy(owner, kControllers);
  const note = controllerNote(model, owner);
  const figure = make("figure", { class: "controller" }, make("figcaption", {}, make("h3", {}, owner)));
  if (note !== "") figure.append(make("p", { class: "quiet" }, note));
  if (controllers.length > 0) figure.append(make("div", { class: "box-group" }, boxes(model, controllers)));
  figure.append(...logicalGroups(model, owner), ...deviceGroups(model, owner));
  figure.querySelectorAll(".box-group").forEach(setUpKeys);
  setUpMarks(figure, model);
  return figure;
}

// The Tab key stops once at each group of boxes; the arrow keys move between boxes.
function setUpKeys(group) {
  const all = [...group.querySelectorAll("a[data-object]")];
  all.forEach((each, index) => each.setAttribute("tabindex", index === 0 ? "0" : "-1"));
  group.addEventListener("keydown", (event) => {
    const target = boxToGoTo(all, all.indexOf(document.activeElement), event.key);
    if (!target) return;
    event.preventDefault();
    all.forEach((each) => each.setAttribute("tabindex", each === target ? "0" : "-1"));
    target.focus();
  });
}

function boxToGoTo(all, from, key) {
  if (from < 0) return undefined;
  switch (key) {
    case "ArrowRight": return all[from + 1];
    case "ArrowLeft": return all[from - 1];
    case "ArrowDown": return inNextRow(all, from, 1);
    case "ArrowUp": return inNextRow(all, from, -1);
    case "Home": return all[0];
    case "End": return all[all.length - 1];
    default: return undefined;
  }
}

// The nearest box, left to right, in the next row of that direction.
function inNextRow(all, from, step) {
  const here = all[from].getBoundingClientRect();
  let best;
  let row;
  for (let index = from + step; index >= 0 && index < all.length; index += step) {
    const place = all[index].getBoundingClientRect();
    if (Math.abs(place.top - here.top) < here.height / 2) continue;
    if (row === undefined) row = place.top;
    if (Math.abs(place.top - row) > here.height / 2) break;
    const distance = Math.abs(place.left - here.left);
    if (best === undefined || distance < best.distance) best = { distance, box: all[index] };
  }
  return best && best.box;
}

// Marks the objects in the drawing that belong to the box under the pointer or in focus.
function setUpMarks(figure, model) {
  const mark = (event) => {
    const target = event.target.closest("a[data-object]");
    figure.querySelectorAll(".marked").forEach((each) => each.classList.remove("marked"));
    if (!target) return;
    const object = model.objects[Number(target.dataset.object)];
    if (object.class === kControllers) return;
    for (const each of model.related(object)) {
      if (each.class === kControllers) continue;
      const marked = figure.querySelector(`a[data-object="${each.index}"]`);
      if (marked) marked.classList.add("marked");
    }
  };
  figure.addEventListener("mouseover", mark);
  figure.addEventListener("focusin", mark);
}

function legend() {
  const items = kWorstFirst.map((level) => make("li", {}, badge(level, kLevels[level].words)));
  return make("div", { class: "legend" }, make("ul", { "aria-label": "Legend" }, ...items),
    make("p", { class: "quiet" },
      "A box leads to its details; what belongs to it is marked. Tab goes from group to group, the arrow keys from " +
      "box to box."));
}

function drawing(model) {
  return make("div", { class: "drawing" }, legend(), ...[...model.owners.keys()].map((owner) =>
      drawController(model, owner)));
}
