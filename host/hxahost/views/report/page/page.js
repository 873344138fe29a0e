// The sections of the report in their order. A section that fails shows an error in its place and affects no other.

function findingBadge(finding) {
  return badge(finding.severity, finding.severity);
}

function findingWords(finding) {
  return `${finding.property} "${printable(finding.text)}": ${finding.meaning}`;
}

// More findings would hide the rest of the report.
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

function findingSection(findings) {
  return findings.length === 0 ? null : newTable("Findings", [
    { title: "Severity", cell: severityCell },
    { title: "Object", cell: subjectCell },
    { title: "Value", cell: (finding) => ({ text: `${finding.property} "${printable(finding.text)}"` }) },
    { title: "Meaning", cell: (finding) => ({ text: finding.meaning }) },
  ], findings, kMostFindings);
}

function drawingSection(model) {
  return model.owners.size === 0 ? null : drawing(model);
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
    { title: "Drawing", content: () => drawingSection(model) },
    { title: "Findings", content: () => findingSection(model.findings) },
    ...tables.filter(isDevice).map(tableSection(model)),
    { title: "Events", content: () => eventSection(model) },
    ...tables.filter((table) => !isDevice(table)).map(tableSection(model)),
    { title: "Raw texts of the tools", content: () => rawSection(model, data.unread) },
    { title: "Other classes", content: () => otherSection(model, others) },
    { title: "Log", content: () => logSection(query) },
    { title: "Counts", content: () => countSection(model, data) },
  ];
}

function start() {
  const query = readData("query-data").queries.at(-1);
  report.model = new Model(query, report.data);
  for (const section of sectionList(report.model, query, report.data)) addSection(section);
  document.querySelectorAll(".units").forEach(setUpKeys);
  setUpDetails(report.model);
  byId("footer").textContent =
    `Written by ${report.data.program}. Everything is in this file; nothing is loaded from elsewhere.`;
  window.addEventListener("beforeprint", () => report.tables.forEach((table) => table.showAll()));
  document.documentElement.dataset.ready = "true";
}

try {
  start();
} catch (error) {
  byId("content").append(troubleNote("The report", error));
}
