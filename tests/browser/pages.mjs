// The reports for the tests: of the sample machine, written by the program itself, and of invented machines.
import { spawnSync } from "node:child_process";
import { cpSync, mkdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { join, resolve } from "node:path";
import { pathToFileURL } from "node:url";

const kBuild = resolve(process.argv[2] || "build/asan");
const kFolder = join(kBuild, "report-pages");

function run(program, given, expected = 0) {
  const environment = { ...process.env, ZENX_OS_VERSION: "6.1", ZENX_RAID_LOG_DIR: "raid-manager\\" };
  const result = spawnSync(join(kBuild, "bin", program), given, { encoding: "utf8", env: environment });
  if (result.status === expected) return;
  throw new Error(`${program} ended with ${result.status ?? result.error}: ${result.stderr}`);
}

// A separate copy: other tests collect from the sample machine at the same time.
const kMachineFolder = join(kFolder, "machine");
const kGapFolder = join(kFolder, "machine-with-gap");
const machineIn = (folder) => ["--directory", folder, "--local-time", "20260305123015.000000+060", "--machine-name",
    "DBSERVER"];
const kSampleMachine = machineIn(kMachineFolder);

function queryOf(machine, name, ...further) {
  for (const format of ["html", "json"]) {
    run("hxahost",
        ["query", ...machine, ...further, "--format", format, "--output", join(kFolder, `${name}.${format}`)]);
  }
}

function query(name, ...further) {
  queryOf(kSampleMachine, name, ...further);
}

export const kResults = join(kBuild, "results-browser.xml");

export function makePages() {
  mkdirSync(kFolder, { recursive: true });
  for (const [folder, copy] of [["sample-machine", kMachineFolder], ["sample-machine-with-gap", kGapFolder]]) {
    rmSync(copy, { recursive: true, force: true });
    cpSync(join(kBuild, folder), copy, { recursive: true });
  }
  run("report_pages", [kFolder]);
  query("sample");
  queryOf(machineIn(kGapFolder), "gap");
  run("hxahost",
      ["query", ...kSampleMachine, "--unread", "--format", "json", "--output", join(kFolder, "unread.json")]);
  run("hxahost", ["health", ...kSampleMachine, "--format", "json", "--output", join(kFolder, "health.json")], 2);
  query("repeated", "--repeat", "3");
  query("disks", "--class", "KVRSG_zxDiskDrive");
  query("raw", "--class", "KVRSG_zxRawData");
  query("associations", "--class", "KVRSG_zxSCSIProtocolController", "--class", "KVRSG_zxLogicalDisk", "--class",
    "KVRSG_zxProtocolControllerForUnit");
}

export function pageFile(name) {
  return pathToFileURL(join(kFolder, `${name}.html`));
}

// The program's JSON for the same machine.
export function lastQuery(name) {
  return JSON.parse(readFileSync(join(kFolder, `${name}.json`), "utf8")).queries.at(-1);
}

export function countOf(name, ...classes) {
  return lastQuery(name).instances.filter((instance) => classes.includes(instance.class)).length;
}

function splitPage(name) {
  const page = readFileSync(pageFile(name), "utf8");
  const begin = page.indexOf('id="report-data">') + 'id="report-data">'.length;
  return { page, begin, end: page.indexOf("</script>", begin) };
}

// The report's data beside the query.
export function reportData(name) {
  const { page, begin, end } = splitPage(name);
  return JSON.parse(page.slice(begin, end));
}

// The report of a machine with other data beside the query.
export function pageWith(name, newName, changed) {
  const { page, begin, end } = splitPage(name);
  const data = { ...reportData(name), ...changed };
  writeFileSync(pageFile(newName),
      page.slice(0, begin) + JSON.stringify(data).replaceAll("<", "\\u003c") + page.slice(end));
  return pageFile(newName);
}

export const kEveryLevel = ["critical", "warning", "unknown", "busy", "idle", "unsaid", "ok"];

// The report of the sample machine with objects of every level.
export function pageOfEveryLevel() {
  const withLevel = (object, index) => ({ ...object, level: kEveryLevel[index % kEveryLevel.length] });
  const objects = reportData("sample").objects.map(withLevel);
  return pageWith("sample", "every-level", { objects });
}

// The findings of "hxahost health" on the sample machine.
export function findings() {
  return JSON.parse(readFileSync(join(kFolder, "health.json"), "utf8")).findings;
}

// The numbers of unread lines by command, as "hxahost query --unread" counts them.
export function unreadLines() {
  const numbers = ({ command, lines }) => [command.trim(), lines.map(({ number }) => number)];
  return new Map(lastQuery("unread").unread.map(numbers));
}
