// The tables of the fleet.

const kFleet = report.data.fleet;

function shownText(read) {
  return (row) => ({ text: printable(String(read(row) ?? "")) });
}

function statusCell(machine) {
  const rank = kWorstFirst.indexOf(machine.status);
  return { text: machine.status, sortText: String(rank), node: () => badge(machine.status, machine.status) };
}

function machineCell(machine) {
  const name = printable(machine.machine);
  return { text: name, node: () => (machine.page === null ? name : make("a", { href: machine.page }, name)) };
}

const kUnits = [[86400, "d"], [3600, "h"], [60, "min"], [1, "s"]];

const kClockTolerance = 86400;  // as in fleet.h

function ageText(seconds) {
  if (seconds === null) return "?";
  if (seconds < -kClockTolerance) return "future";
  const age = Math.max(seconds, 0);
  const [length, unit] = kUnits.find(([each]) => age >= 2 * each) ?? kUnits.at(-1);
  return `${Math.floor(age / length)} ${unit}`;
}

function ageCell(machine) {
  const text = ageText(machine.ageSeconds) + (machine.isStale ? ", stale" : "");
  return { text, sortText: String(machine.ageSeconds ?? 1e12) };
}

function placeText(seen) {
  return `${seen.machine} ${seen.place}` + (seen.time === "" ? "" : ` (${readableTime(seen.time).slice(0, 10)})`);
}

function column(title, read) {
  return { title, cell: shownText(read) };
}

function machineSection() {
  return newTable("Machines", [
    { title: "Machine", cell: machineCell },
    { title: "State", cell: statusCell },
    { title: "Age", cell: ageCell },
    column("Incidents", (machine) => machine.incidents.map((each) => each.headline).join("; ")),
    column("Controllers", (machine) => machine.controllers),
    column("Drives", (machine) => machine.logicalDrives),
    column("Disks", (machine) => machine.disks),
    column("Collected", (machine) => readableTime(machine.time)),
    column("File", (machine) => machine.source),
  ], kFleet.machines, 200);
}

// Returns nothing if there are no rows.
function tableOf(title, rows, columns) {
  return { title, content: () => (rows.length === 0 ? null : newTable(title, columns, rows, 200)) };
}

const kModelColumns = [column("Model", (row) => row.model), column("Firmware", (row) => row.firmware)];
const kSerialColumns = [column("Serial number", (row) => row.serialNumber), column("Model", (row) => row.model)];

const kSections = [
  { title: "Machines", content: machineSection },
  tableOf("Disks by model and firmware", kFleet.diskModels, [
    ...kModelColumns,
    column("Disks", (row) => row.disks),
    column("Failed", (row) => row.failed),
    column("Predicted", (row) => row.predicted),
    column("Machines", (row) => row.machines),
  ]),
  tableOf("Controllers by model and firmware", kFleet.controllerModels, [
    ...kModelColumns,
    column("Controllers", (row) => row.controllers),
    column("Machines", (row) => row.machines.join(", ")),
  ]),
  tableOf("Serial numbers in more than one machine", kFleet.sharedSerialNumbers,
    [...kSerialColumns, column("Seen in", (row) => row.seen.map(placeText).join("; "))]),
  tableOf("Disks that moved", kFleet.movedDisks,
    [...kSerialColumns, column("From", (row) => placeText(row.from)), column("To", (row) => placeText(row.to))]),
  tableOf("Files that hold no result", kFleet.damagedFiles,
    [column("File", (row) => row.file), column("Reason", (row) => row.reason)]),
];

for (const section of kSections) addSection(section);
byId("footer").textContent =
  `Written by ${report.data.program}. Everything is in this file but the reports that it links to.`;
window.addEventListener("beforeprint", () => report.tables.forEach((table) => table.showAll()));
document.documentElement.dataset.ready = "true";
