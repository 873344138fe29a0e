// The drawing of a controller: itself, its arrays with the logical drives on them, and its disks by channel and
// position. It is laid out anew for the width there is, in bands, so that paper breaks between bands and not in a box.

const kBoxWidth = 164;
const kBoxHeight = 60;
const kGap = 8;
const kHeadHeight = 24;
const kRowsInBand = 8;
const kLineLength = 22;
const kTitleLength = 15;
const kPrintedWidth = 680;

// A box: two lines and a symbol, cut to its size; the whole text is in the hint and in the details.
function box(model, object, at, lines) {
  const level = object.level;
  const words = [nameOf(object), ...lines.slice(1).filter((line) => line !== ""), kLevels[level].words].join(", ");
  const content = draw("svg", { x: at.x, y: at.y, width: kBoxWidth, height: kBoxHeight },
    draw("rect", { class: "body", x: 1, y: 1, width: kBoxWidth - 2, height: kBoxHeight - 2, rx: 4 }),
    draw("rect", { class: "bar", x: 1, y: 1, width: 6, height: kBoxHeight - 2 }),
    draw("text", { class: "symbol", x: kBoxWidth - 9, y: 19, "text-anchor": "end" }, kLevels[level].symbol),
    ...lines.map((line, row) =>
      draw("text", { class: row === 0 ? "first" : "line", x: 14, y: 19 + 16 * row },
        cut(line, row === 0 ? kTitleLength : kLineLength))));
  const link = { href: "#object-" + object.index, "data-object": object.index, "aria-label": words };
  return draw("a", { class: `box level-${level}`, ...link },
    draw("title", {}, words), content);
}

// The state; how many findings there are where one of them is worse, and gives the box its colour.
function stateLine(model, object) {
  const state = stateText(object) || "state not said";
  const isWorse = object.level !== object.stateLevel && !model.isPredicted(object);
  return isWorse ? `${counted(model.findingsOf(object).length, "finding", "findings")}, ${state}` : state;
}

function diskLines(model, disk) {
  const members = (model.membersByDisk().get(disk.index) || []).map((object) => memberName(model, object));
  const state = stateLine(model, disk);
  return [diskName(disk), model.isPredicted(disk) ? `PFA ${textOf(disk, "PFA")}, ${state}` : state,
    [...new Set(members)].filter((name) => name !== "").join(", ") || textOf(disk, "DeviceType")];
}

// An array with a letter represents the drives on it.
function memberName(model, object) {
  if (object.class === kArrays) return textOf(object, "Array") === "" ? "" : arrayName(object);
  const hasLetter = object.groups.some((array) => textOf(array, "Array") !== "");
  return hasLetter ? "" : "Drive " + textOf(object, "LogicalDriveNum");
}

function logicalDriveLines(model, drive) {
  const name = textOf(drive, "LogicalDriveName");
  const level = textOf(drive, "RaidLevel");
  const size = textOf(drive, "Size");
  return [`Drive ${textOf(drive, "LogicalDriveNum")}${name === "" ? "" : ": " + name}`,
    stateLine(model, drive),
    [level === "" ? "" : "RAID " + level, size].filter((text) => text !== "").join(", ")];
}

function controllerLines(model, controller) {
  return ["Controller " + textOf(controller, "ControllerNum"), stateLine(model, controller),
      textOf(controller, "ControllerType")];
}

function band(width, height, label, ...content) {
  const viewBox = `0 0 ${width} ${height}`;
  return draw("svg", { class: "band", width, height, viewBox, role: "group", "aria-label": label }, ...content);
}

function perRow(width) {
  return Math.max(1, Math.floor((width + kGap) / (kBoxWidth + kGap)));
}

function placed(index, columns, top) {
  return { x: (index % columns) * (kBoxWidth + kGap), y: top + Math.floor(index / columns) * (kBoxHeight + kGap) };
}

// Boxes in rows, a few rows a band.
function bandsOfBoxes(model, label, objects, linesOf, width) {
  const columns = perRow(width);
  const bands = [];
  for (let first = 0; first < objects.length; first += columns * kRowsInBand) {
    const part = objects.slice(first, first + columns * kRowsInBand);
    const height = Math.ceil(part.length / columns) * (kBoxHeight + kGap);
    bands.push(band(width, height, label,
        ...part.map((object, index) => box(model, object, placed(index, columns, 0), linesOf(model, object)))));
  }
  return bands;
}

// The one drive of an array without a letter is in the frame.
function frameName(array) {
  return textOf(array, "Array") === "" ? "Array" : arrayName(array);
}

// An array is a frame with its name around its logical drives.
function arrayBand(model, array, width) {
  const drives = model.logicalDrivesOf(array);
  const inside = kGap;
  const columns = Math.max(1, Math.min(drives.length, perRow(width - 2 * inside)));
  const rows = Math.max(1, Math.ceil(drives.length / columns));
  const size = { width: 2 * inside + columns * (kBoxWidth + kGap) - kGap,
      height: kHeadHeight + rows * (kBoxHeight + kGap) };
  const disks = counted(model.disksOf(array).length, "disk", "disks");
  const label = `${arrayName(array)}, ${disks}, stripe order ${textOf(array, "StripeOrder")}`;
  const link = { href: "#object-" + array.index, "data-object": array.index, "aria-label": label };
  const head = draw("a", { class: "frame", ...link },
    draw("title", {}, label),
    draw("rect", { class: "body", x: 1, y: 1, width: size.width - 2, height: size.height - 2, rx: 4 }),
    draw("text", { class: "first", x: inside, y: 17 },
      cut(`${frameName(array)}, ${disks}`, kTitleLength * columns + 3)));
  const boxes = drives.map((drive, index) => {
    const at = placed(index, columns, kHeadHeight);
    return box(model, drive, { x: at.x + inside, y: at.y }, logicalDriveLines(model, drive));
  });
  return band(size.width, size.height, label, head, ...boxes);
}

function bandGroup(title, bands, className) {
  return make("div", { class: className }, make("h4", {}, title), make("div", { class: "bands" }, ...bands));
}

function byChannel(disks) {
  const channels = new Map();
  for (const disk of disks) listOf(channels, disk.channel).push(disk);
  return [...channels].sort(([one], [other]) => (one === "") - (other === "") || compareTexts(one, other));
}

function logicalGroups(model, owner, width) {
  const arrays = model.ownedBy(owner, kArrays);
  const alone = model.ownedBy(owner, kLogicalDrives).filter((drive) => drive.groups.length === 0);
  const groups = [];
  const bands = arrays.map((array) => arrayBand(model, array, width));
  if (arrays.length > 0) groups.push(bandGroup("Arrays", bands, "band-group"));
  if (alone.length > 0) {
    const title = arrays.length > 0 ? "Logical drives without an array" : "Logical drives";
    groups.push(bandGroup(title, bandsOfBoxes(model, title, alone, logicalDriveLines, width), "band-group"));
  }
  return groups;
}

function diskGroups(model, owner, width) {
  return byChannel(model.ownedBy(owner, kDisks)).map(([channel, disks]) => {
    const inOrder = [...disks].sort((one, other) => compareTexts(one.id, other.id) || one.index - other.index);
    const title = channel === "" ? "Channel not said" : "Channel " + channel;
    return bandGroup(`${title}: ${counted(disks.length, "device", "devices")}`,
      bandsOfBoxes(model, title, inOrder, diskLines, width), "band-group");
  });
}

function controllerNote(model, owner) {
  const controllers = model.ownedBy(owner, kControllers);
  if (controllers.length > 1) {
    return `${controllers.length} controllers carry this number. What belongs to either stands here together.`;
  }
  if (controllers.length === 1) return "";
  return report.data.classes.includes(kControllers)
    ? "This controller was not published: its status may say \"Failed\"."
    : "Controllers were not asked for.";
}

function drawController(model, owner, width) {
  const controllers = model.ownedBy(owner, kControllers);
  const note = controllerNote(model, owner);
  const parts = [make("figcaption", {}, make("h3", {}, owner))];
  if (note !== "") parts.push(make("p", { class: "quiet" }, note));
  if (controllers.length > 0) {
    parts.push(make("div", { class: "band-group" }, make("div", { class: "bands" },
      ...bandsOfBoxes(model, owner, controllers, controllerLines, width))));
  }
  return [...parts, ...logicalGroups(model, owner, width), ...diskGroups(model, owner, width)];
}

// One stop of the Tab key for each group of boxes; the arrow keys go from box to box.
function setUpKeys(group) {
  const boxes = [...group.querySelectorAll("a[data-object]")];
  boxes.forEach((each, index) => each.setAttribute("tabindex", index === 0 ? "0" : "-1"));
  group.addEventListener("keydown", (event) => {
    const target = boxToGoTo(boxes, boxes.indexOf(document.activeElement), event.key);
    if (!target) return;
    event.preventDefault();
    boxes.forEach((each) => each.setAttribute("tabindex", each === target ? "0" : "-1"));
    target.focus();
  });
}

function boxToGoTo(boxes, from, key) {
  if (from < 0) return undefined;
  switch (key) {
    case "ArrowRight": return boxes[from + 1];
    case "ArrowLeft": return boxes[from - 1];
    case "ArrowDown": return inNextRow(boxes, from, 1);
    case "ArrowUp": return inNextRow(boxes, from, -1);
    case "Home": return boxes[0];
    case "End": return boxes[boxes.length - 1];
    default: return undefined;
  }
}

// The nearest box, left to right, of the next row in the direction.
function inNextRow(boxes, from, step) {
  const here = boxes[from].getBoundingClientRect();
  let best;
  let row;
  for (let index = from + step; index >= 0 && index < boxes.length; index += step) {
    const place = boxes[index].getBoundingClientRect();
    if (Math.abs(place.top - here.top) < kBoxHeight / 2) continue;
    if (row === undefined) row = place.top;
    if (Math.abs(place.top - row) > kBoxHeight / 2) break;
    const distance = Math.abs(place.left - here.left);
    if (best === undefined || distance < best.distance) best = { distance, box: boxes[index] };
  }
  return best && best.box;
}

// What belongs to the box under the pointer or in focus is marked in the drawing.
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

class Drawing {
  constructor(model) {
    this.model = model;
    const figure = (owner) => ({ owner, element: make("figure", { class: "controller" }) });
    this.figures = [...model.owners.keys()].map(figure);
    this.element = make("div", { class: "drawing" }, legend(), ...this.figures.map(({ element }) => element));
    this.figures.forEach(({ element }) => setUpMarks(element, model));
    this.columns = 0;
  }

  // Does nothing where as many boxes fit side by side as before.
  layOut(width) {
    const columns = perRow(width);
    if (columns === this.columns) return;
    const focused = document.activeElement && document.activeElement.closest(".drawing a[data-object]");
    const object = focused ? focused.dataset.object : undefined;
    this.columns = columns;
    const used = Math.min(width, columns * (kBoxWidth + kGap) - kGap);
    for (const { owner, element } of this.figures) {
      element.replaceChildren(...drawController(this.model, owner, used));
      element.querySelectorAll(".band-group").forEach(setUpKeys);
    }
    const again = object === undefined ? null : this.element.querySelector(`a[data-object="${object}"]`);
    if (again) again.focus({ preventScroll: true });
  }
}

function legend() {
  const items = kWorstFirst.map((level) => make("li", {}, badge(level, kLevels[level].words)));
  return make("div", { class: "legend" }, make("ul", { "aria-label": "Legend" }, ...items),
    make("p", { class: "quiet" },
      "A box leads to its details. Tab goes from group to group, the arrow keys from box to box."));
}

function setUpDrawing(drawing) {
  const screenWidth = () => Math.max(kBoxWidth, Math.floor(drawing.element.clientWidth) - 2 * kGap - 4);
  const fit = () => drawing.layOut(window.matchMedia("print").matches ? kPrintedWidth : screenWidth());
  new ResizeObserver(fit).observe(drawing.element);
  window.addEventListener("beforeprint", () => drawing.layOut(kPrintedWidth));
  window.addEventListener("afterprint", fit);
  fit();
}
