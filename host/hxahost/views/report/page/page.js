// The page: its sections in their order. A section that cannot be drawn says so in its place and affects no other.

const report = { model: null, data: null, tables: [] };

function readData(id) {
  return JSON.parse(byId(id).textContent);
}

// Health: the findings of the program's rules, then the state words as the tools printed them.

function findingBadge(finding) {
  return badge(finding.severity, finding.severity);
}

function findingWords(finding) {
  return `${finding.property} "${printable(finding.text)}": ${finding.meaning}`;
}

// More of them would push everything else out of sight.
const kMostFindings = 50;

function severityCell(finding) {
  const rank = kWorstFirst.indexOf(finding.severity);
  return { text: finding.severity, sortText: String(rank), node: () => findingBadge(finding) };
}

function subjectCell(finding) {
  const object = report.model.objects[finding.instance];
  const name = printable(finding.name);
  const identifier = finding.identifier === finding.name ? "" : printable(finding.identifier);
  return {
    text: `${name} ${identifier}`,
    node: () => make("span", {}, object ? linkTo(object, name) : name,
        identifier === "" ? "" : make("span", { class: "quiet identifier" }, identifier)),
  };
}

function tallyOf(findings) {
  const severities = kWorstFirst.filter((severity) => findings.some((finding) => finding.severity === severity));
  return severities.map((severity) => badge(severity,
    `${findings.filter((finding) => finding.severity === severity).length.toLocaleString("en-US")} ${severity}`));
}

function findingTable(findings) {
  return newTable("Findings", [
    { title: "Severity", cell: severityCell },
    { title: "What", cell: subjectCell },
    { title: "Says", cell: (finding) => ({ text: `${finding.property} "${printable(finding.text)}"` }) },
    { title: "Which means", cell: (finding) => ({ text: finding.meaning }) },
  ], findings, kMostFindings);
}

// What the findings cannot tell: nothing is fine that nobody looked at.
function findingLimits(data) {
  const limits = [];
  if (data.unjudged.length > 0) limits.push(`Not asked for, so not judged: ${data.unjudged.join(", ")}.`);
  if (data.queryCount > 1) {
    limits.push("The tools were run by the first query alone; how their runs went is not judged here.");
  }
  return limits.map((text) => make("p", { class: "quiet" }, text));
}

function findingSection(findings, data) {
  const isWhole = data.unjudged.length === 0;
  const verdict = findings.length > 0 ? tallyOf(findings)
    : [isWhole ? badge("ok", "Nothing needs attention") : badge("unsaid", "No finding in what was asked for")];
  return make("div", { id: "findings" }, make("p", { class: "verdict" }, ...verdict.flatMap((each) => [each, " "])),
    ...findingLimits(data), ...(findings.length > 0 ? [findingTable(findings)] : []));
}

const kKinds = { [kControllers]: "Controllers", [kLogicalDrives]: "Logical drives", [kDisks]: "Disks" };

function stateCounts(model, className) {
  const counts = new Map();
  for (const object of model.all(className)) {
    const { words, level } = model.stateWords(object);
    const key = level + " " + words;
    const entry = counts.get(key) || { words, level, count: 0 };
    entry.count += 1;
    counts.set(key, entry);
  }
  return [...counts.values()].sort((one, other) => kWorstFirst.indexOf(one.level) - kWorstFirst.indexOf(other.level));
}

function stateList(model, className) {
  const total = model.all(className).length;
  if (total === 0) return [];
  const items = stateCounts(model, className).map(({ words, level, count }) =>
    make("li", {}, make("span", { class: "number" }, count.toLocaleString("en-US")), " ", badge(level, words)));
  return [make("section", { class: "states" },
      make("h3", {}, `${kKinds[className]}: ${total.toLocaleString("en-US")}`), make("ul", {}, ...items))];
}

function badStripeList(model) {
  const bad = model.all(kBadStripes).filter((object) => model.findingsOf(object).length > 0);
  if (bad.length === 0) return [];
  const words = (object) => {
    const text = (name) => textOf(object, name);
    return `Controller ${text("ControllerNum")}, logical drive ${text("LogicalDrive")}: ${text("NumBadStripes")}`;
  };
  const items = bad.map((object) => make("li", {}, linkTo(object, words(object))));
  return [make("section", { class: "states" }, make("h3", {}, "Bad stripes"), make("ul", {}, ...items))];
}

// Every command says so in the log when its tool cannot be started; the same words once are enough.
function failedRuns(log) {
  const texts = [...new Set(log.map((entry) => entry.text).filter((text) => text.includes("zenx//")))];
  if (texts.length === 0) return [];
  return [make("section", { class: "states trouble" }, make("h3", {}, "Tools could not be run"),
    make("ul", {}, ...texts.map((text) => make("li", {}, printable(text)))))];
}

function healthSection(model, query, data) {
  const counts = Object.keys(kKinds).flatMap((className) => stateList(model, className));
  const parts = [...counts, ...badStripeList(model), ...failedRuns(query.log)];
  const found = model.objects.some((object) => object.class !== "KVRSG_zxRawData");
  const nothing = found ? [] : [make("p", { class: "trouble" },
    "Nothing was found: no controller, no drive and no log record of the classes asked for.")];
  return make("div", {}, findingSection(model.findings, data), ...nothing,
      make("div", { class: "state-lists" }, ...parts));
}

function drawingSection(model) {
  if (model.owners.size === 0) return null;
  report.drawing = new Drawing(model);
  return report.drawing.element;
}

// Tables in the program's order; logs and raw texts have sections of their own.
const kElsewhere = [kDddEvents, kManagerEvents, kSoftEvents, kHardEvents, ...kRawTexts];

function tableSection(model) {
  return (table) => ({ title: table.heading, content: () => instanceTable(model, table) });
}

function otherClasses(model, tables) {
  const shown = [...kElsewhere, ...tables.flatMap((table) => table.classes)];
  return [...model.byClass.keys()].filter((name) => !shown.includes(name));
}

function otherSection(model, classes) {
  const folded = classes.map((name) => {
    const element = make("details", {},
        make("summary", {}, make("code", {}, name),
          make("span", { class: "quiet" }, ` ${counted(model.all(name).length, "instance", "instances")}`)));
    element.addEventListener("toggle", () => element.append(generalTable(model, name)), { once: true });
    return element;
  });
  return folded.length === 0 ? null : make("div", {}, ...folded);
}

function countSection(model, data) {
  const rows = data.classes.map((name) => ({ name, count: model.all(name).length }));
  return newTable("Classes asked for", [
    { title: "Class", cell: (row) => ({ text: row.name }) },
    { title: "Instances", cell: (row) => ({ text: String(row.count) }) },
  ], rows);
}

function logSection(query) {
  if (query.log.length === 0) return null;
  const rows = query.log.map((entry) => ({ level: String(entry.level), text: printable(entry.text) }));
  return make("details", {},
      make("summary", {}, `What the plug-in logged: ${counted(rows.length, "entry", "entries")}`),
    newTable("Log of the plug-in", [
      { title: "Level", cell: (row) => ({ text: row.level }) },
      { title: "Text", cell: (row) => ({ text: row.text }) },
    ], rows));
}

function sectionList(model, query, data) {
  const tables = data.tables.filter((table) => !table.classes.some((name) => kElsewhere.includes(name)));
  const isDevice = (table) => table.classes.some((name) => kDeviceClasses.includes(name));
  const others = otherClasses(model, tables);
  return [
    { title: "Health", content: () => healthSection(model, query, data) },
    { title: "Drawing", content: () => drawingSection(model) },
    ...tables.filter(isDevice).map(tableSection(model)),
    { title: "Events", content: () => eventSection(model) },
    ...tables.filter((table) => !isDevice(table)).map(tableSection(model)),
    { title: "Raw texts of the tools", content: () => rawSection(model, data.unread) },
    { title: "Other classes", content: () => otherSection(model, others) },
    { title: "Log", content: () => logSection(query) },
    { title: "Counts", content: () => countSection(model, data) },
  ];
}

function troubleNote(title, error) {
  return make("p", { class: "trouble broken" }, `${title} could not be drawn: ${printable(String(error))}`);
}

function contentOf(section) {
  try {
    return section.content();
  } catch (error) {
    return troubleNote(section.title, error);
  }
}

function addSection(section) {
  const content = contentOf(section);
  if (!content) return;
  const id = section.title.toLowerCase().replace(/[^a-z]+/g, "-");
  const heading = make("h2", { id, tabindex: "-1" }, section.title);
  byId("content").append(make("section", { "aria-labelledby": id }, heading, content));
  byId("sections").append(make("li", {}, make("a", { href: "#" + id }, section.title)));
}

function writeHead(json, data) {
  const title = "RAID report: " + printable(json.machine);
  document.title = title;
  byId("title").textContent = title;
  byId("subtitle").textContent = `Collected in ${printable(data.directory)} on ${readableTime(data.time)}`
    + (data.source ? `. ${data.source}` : "");
  byId("footer").textContent =
    `Written by ${data.program}. Everything is in this file; nothing is loaded from elsewhere.`;
  if (data.queryCount > 1) {
    byId("note").textContent =
      `${data.queryCount} queries were made; this is the last one. Its log begins where the one before it ended.`;
  }
}

function start() {
  const json = readData("query-data");
  report.data = readData("report-data");
  const query = json.queries[json.queries.length - 1];
  writeHead(json, report.data);
  report.model = new Model(query, report.data);
  for (const section of sectionList(report.model, query, report.data)) addSection(section);
  if (report.drawing) setUpDrawing(report.drawing);
  setUpDetails(report.model);
  window.addEventListener("beforeprint", () => report.tables.forEach((table) => table.showAll()));
  document.documentElement.dataset.ready = "true";
}

try {
  start();
} catch (error) {
  byId("content").append(troubleNote("The report", error));
}
