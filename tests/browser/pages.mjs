// The pages that the tests open: of the sample machine, by the program itself, and of machines that a helper makes up.
import { spawnSync } from "node:child_process";
import { mkdirSync, readFileSync, writeFileSync } from "node:fs";
import { join, resolve } from "node:path";
import { pathToFileURL } from "node:url";

const kBuild = resolve(process.argv[2] || "build/asan");
const kFolder = join(kBuild, "report-pages");

function run(program, ...given) {
  const environment = { ...process.env, ZENX_OS_VERSION: "6.1", ZENX_RAID_LOG_DIR: "raid-manager\\" };
  const result = spawnSync(join(kBuild, "bin", program), given, { encoding: "utf8", env: environment });
  if (result.status !== 0) throw new Error(`${program} ended with ${result.status ?? result.error}: ${result.stderr}`);
}

function query(name, ...further) {
  const common = ["--directory", join(kBuild, "sample-machine"), "--local-time", "20260305123015.000000+060", "--machine-name", "DBSERVER"];
  for (const format of ["html", "json"]) {
    run("hxahost", "query", ...common, ...further, "--format", format, "--output", join(kFolder, `${name}.${format}`));
  }
}

export const kResults = join(kBuild, "results-browser.xml");

export function makePages() {
  mkdirSync(kFolder, { recursive: true });
  run("report_pages", kFolder);
  query("sample");
  query("repeated", "--repeat", "3");
  query("disks", "--class", "KVRSG_zxDiskDrive");
  query("raw", "--class", "KVRSG_zxRawData");
  query("associations", "--class", "KVRSG_zxSCSIProtocolController", "--class", "KVRSG_zxLogicalDisk", "--class",
    "KVRSG_zxProtocolControllerForUnit");
}

export function pageFile(name) {
  return pathToFileURL(join(kFolder, `${name}.html`));
}

// What the program says as JSON about the same machine.
export function lastQuery(name) {
  return JSON.parse(readFileSync(join(kFolder, `${name}.json`), "utf8")).queries.at(-1);
}

export function countOf(name, ...classes) {
  return lastQuery(name).instances.filter((instance) => classes.includes(instance.class)).length;
}

// The page of a machine with something added to what it says of itself.
export function pageWith(name, newName, added) {
  const page = readFileSync(pageFile(name), "utf8");
  const changed = page.replace('id="report-data">{', () => `id="report-data">{${JSON.stringify(added).slice(1, -1).replaceAll("<", "\\u003c")},`);
  if (changed === page) throw new Error("The page has no place for what is to be added.");
  writeFileSync(pageFile(newName), changed);
  return pageFile(newName);
}
