// What the page shows, held against the JSON of the same query.
import assert from "node:assert/strict";
import { test } from "./harness.mjs";
import { countOf, lastQuery, pageFile, pageWith } from "./pages.mjs";

const kDevices = ["KVRSG_zxSCSIProtocolController", "KVRSG_zxLogicalDisk", "KVRSG_zxDiskGroup", "KVRSG_zxDiskDrive"];

function rowCount(page, heading) {
  return page.locator(`section:has(> h2:text-is("${heading}")) tbody tr`).count();
}

function cellTexts(page, heading) {
  return page.locator(`section:has(> h2:text-is("${heading}")) tbody tr`).evaluateAll((rows) =>
    rows.map((row) => [...row.cells].map((cell) => cell.textContent)));
}

function sectionText(page, heading) {
  return page.locator(`section:has(> h2:text-is("${heading}"))`).textContent();
}

test("Each table has a row for every instance of its classes", async (open) => {
  const page = await open(pageFile("sample"));
  const tables = {
    Controllers: [kDevices[0]],
    "Logical drives": [kDevices[1]],
    "Disk groups": [kDevices[2]],
    Disks: [kDevices[3]],
    Versions: ["KVRSG_zxFirmwareVersion", "KVRSG_zxBootBlockVersion", "KVRSG_zxBiosVersion", "KVRSG_zxDiskDriveVersion"],
    "Bad stripes": ["KVRSG_BadStripeData"],
    "Device statistics": ["KVRSG_zxSCSIDeviceData"],
    "SCSI sub-status": ["KVRSG_zxSCSISubStatData"],
    Events: ["KVRSG_LogRecord_zxDDD", "KVRSG_LogRecord_RAIDMgrEvent"],
  };
  for (const [heading, classes] of Object.entries(tables)) {
    const expected = countOf("sample", ...classes);
    assert.ok(expected > 0, `${heading}: the sample machine has none`);
    assert.equal(await rowCount(page, heading), expected, heading);
    assert.match(await sectionText(page, heading), new RegExp(`${expected} of ${expected} rows`), heading);
  }
});

test("The counts are those of the JSON", async (open) => {
  const page = await open(pageFile("sample"));
  const rows = await cellTexts(page, "Counts");
  assert.ok(rows.length > 20);
  for (const [name, count] of rows) {
    assert.equal(Number(count), countOf("sample", name), name);
  }
});

test("The drawing has a box for every device and says its state in words", async (open) => {
  const page = await open(pageFile("sample"));
  const boxes = await page.locator(".drawing a[data-object]").evaluateAll((links) =>
    links.map((link) => ({ object: Number(link.dataset.object), label: link.getAttribute("aria-label"), text: link.textContent })));
  const instances = lastQuery("sample").instances;
  const devices = instances.flatMap((instance, index) => (kDevices.includes(instance.class) ? [index] : []));
  assert.deepEqual(boxes.map((box) => box.object).sort((one, other) => one - other), devices);
  for (const { object, label } of boxes) {
    const { State, LogicalDriveStatus, ControllerStatus } = instances[object].properties;
    const state = State || LogicalDriveStatus || ControllerStatus || "";
    assert.ok(label.includes(state), `${label} lacks ${state}`);
  }
});

test("Colours never stand alone: failed, suspect and unknown states have their symbols", async (open) => {
  const page = await open(pageFile("sample"));
  const symbols = await page.locator(".drawing a.box").evaluateAll((links) =>
    links.map((link) => [[...link.classList].find((name) => name.startsWith("level-")), link.querySelector("text.symbol").textContent]));
  const bySymbol = new Map(symbols.map(([level, symbol]) => [symbol, level]));
  assert.equal(bySymbol.size, new Set(symbols.map(([level]) => level)).size);
  assert.ok(["level-bad", "level-warn", "level-good", "level-busy", "level-idle"].every((level) => symbols.some(([each]) => each === level)));
});

test("Disks stand under their arrays and logical drives, also where two controllers share a number", async (open) => {
  const page = await open(pageFile("sample"));
  const figure = (owner) => page.locator(`figure:has(h3:text-is("${owner}"))`);
  assert.match(await figure("Controller 1").getByLabel("Array A, 8 disks").first().textContent(), /Drive 1.*Drive 2/s);
  assert.match(await figure("Controller 3 (qcmdrun)").getByLabel("Array A, 3 disks").first().textContent(), /Drive 1/);
  assert.equal(await figure("Controller 3 (qcmdrun)").locator("a.box").count(), 1 + 2 + 6);
  assert.equal(await figure("Controller 3 (hrconf_64)").locator("a.box").count(), 1 + 2 + 6);
  const box = figure("Controller 4").getByLabel(/channel 0, ID 8, /);
  assert.match(await box.textContent(), /Failed.*Drive 3/);
});

test("The events of all logs stand in the order of time, those without a time beside them", async (open) => {
  const page = await open(pageFile("sample"));
  const rows = await cellTexts(page, "Events");
  const times = rows.map((row) => row[0].slice(0, 19));
  assert.ok(times.every((time) => /^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d$/.test(time)), times.join());
  assert.deepEqual(times, [...times].sort());
  assert.deepEqual(new Set(rows.map((row) => row[1])), new Set(["Defunct drives", "RAID manager"]));
  const aside = page.locator("aside");
  const codes = lastQuery("sample").instances.flatMap(({ properties }) => [...(properties.HexSoftEvent || []), ...(properties.HexHardEvent || [])]);
  assert.ok(codes.length > 0);
  assert.equal(await aside.locator("li").count(), codes.length);
  assert.match(await aside.textContent(), new RegExp("0x" + codes[0].toString(16).padStart(8, "0")));
});

test("An event with a time that no calendar has comes last and shows what the log says", async (open) => {
  const page = await open(pageFile("hostile"));
  const rows = await cellTexts(page, "Events");
  assert.equal(rows.at(-1)[0], "not readable (2026-00-99 12:00:00 +01:00)");
  assert.equal(rows.filter(([time]) => time.startsWith("not readable (2026")).length, 1);
});

test("The raw text of every command is there, word for word", async (open) => {
  const page = await open(pageFile("sample"));
  const shown = await page.locator("details.raw").evaluateAll((each) =>
    each.map((one) => [one.querySelector("summary code").textContent, one.querySelector("pre").textContent]));
  const raw = lastQuery("sample").instances.filter((instance) => /RawData$/.test(instance.class));
  assert.ok(raw.length > 20);
  const expected = raw.map(({ properties }) => [properties.Command.trim(), properties.RawResults.join("\n")]);
  assert.deepEqual(new Map(shown), new Map(expected));
});

test("Bad stripes and the counts of states stand at the top", async (open) => {
  const page = await open(pageFile("sample"));
  const text = await sectionText(page, "Health");
  for (const { class: name, properties } of lastQuery("sample").instances) {
    if (name === "KVRSG_zxDiskDrive") assert.ok(text.includes(properties.State), properties.State);
    if (name === "KVRSG_zxLogicalDisk") assert.ok(text.includes(properties.LogicalDriveStatus), properties.LogicalDriveStatus);
  }
  assert.match(text, /Controller 1, logical drive 2: 3/);
  assert.match(text, /Disks: 44/);
});

test("Findings are shown where the program gives them, and lead to what they are about", async (open) => {
  const instances = lastQuery("sample").instances;
  const index = instances.findIndex(({ properties }) => properties.State === "Online (ONL)");
  const disk = instances[index].properties.DeviceID;
  const findings = [{ severity: "critical", identifier: disk, text: "<b>Online</b> (ONL)", meaning: "It says so itself" },
    { severity: "warning", identifier: "nothing of this name", text: "text" }];
  const page = await open(pageWith("sample", "findings", { findings }));
  const rows = page.locator("#findings tbody tr");
  assert.equal(await rows.count(), 2);
  assert.match(await rows.first().textContent(), /critical\s*C1 CH1 I00.*\s*<b>Online<\/b> \(ONL\) \u2014 It says so itself/);
  await rows.first().getByRole("link").click();
  assert.match(await page.locator("dialog").innerText(), /It says so itself/);
  assert.equal(await page.locator(`.drawing a.level-bad[data-object="${index}"]`).count(), 1, "the finding colours the disk");
});

test("No findings are good news", async (open) => {
  const page = await open(pageWith("sample", "no-findings", { findings: [] }));
  assert.match(await page.locator("#findings").innerText(), /Nothing needs attention/);
});

test("A query of one class alone gives a page", async (open) => {
  const page = await open(pageFile("disks"));
  assert.equal(await rowCount(page, "Disks"), countOf("disks", "KVRSG_zxDiskDrive"));
  assert.equal(await page.locator(".drawing a.box").count(), countOf("disks", "KVRSG_zxDiskDrive"));
  assert.match(await sectionText(page, "Drawing"), /Controllers were not asked for\./);
  const raw = await open(pageFile("raw"));
  assert.equal(await raw.locator("details.raw").count(), countOf("raw", "KVRSG_zxRawData"));
});

test("Associations are listed under their class when it is unfolded", async (open) => {
  const page = await open(pageFile("associations"));
  const name = "KVRSG_zxProtocolControllerForUnit";
  const details = page.locator("details", { hasText: name });
  await details.locator("summary").first().click();
  await details.locator("tbody tr").first().waitFor();
  assert.equal(await details.locator("tbody tr").count(), countOf("associations", name));
});

test("Of several queries the last is shown, with a note", async (open) => {
  const page = await open(pageFile("repeated"));
  assert.match(await page.locator("#note").innerText(), /^3 queries were made; this is the last one\./);
  assert.equal(await rowCount(page, "Disks"), countOf("repeated", "KVRSG_zxDiskDrive"));
  assert.equal(await (await open(pageFile("sample"))).locator("#note").innerText(), "");
});

test("A machine with nothing is not shown as a healthy one", async (open) => {
  const page = await open(pageFile("nothing"));
  assert.match(await sectionText(page, "Health"), /Nothing was found/);
  assert.equal(await page.locator(".level-good").count(), 0);
});

test("Markup and scripts of tools change nothing and are shown literally", async (open) => {
  const page = await open(pageFile("hostile"));
  await page.evaluate(() => document.querySelectorAll("details").forEach((each) => { each.open = true; }));
  for (const box of await page.locator(".drawing a.box").all()) await box.evaluate((each) => each.focus());
  assert.equal(await page.title(), "RAID report: </script><script>document.title='taken'; alert(1)</script>");
  const strange = "img, iframe, object, embed, link, #injected, b, [onload], [onerror], script[src], a[href^='javascript']";
  assert.equal(await page.locator(strange).count(), 0);
  assert.equal(await page.locator("script").count(), 3);
  const texts = lastQuery("hostile").instances.find(({ properties }) => properties.RawResults).properties.RawResults;
  const pre = await page.locator("details.raw pre").first().textContent();
  for (const text of texts.filter((each) => !/[\u001b\u0007\u200b\u2028\u202e]/.test(each))) assert.ok(pre.includes(text), text);
  assert.match(pre, /turned \\u202e txet \\u202c\\u2028next\\u2029last/);
  assert.match(pre, /escape \\x1b\[31mred\\x1b\[0m bell \\x07 zero-width \\u200b\./);
  assert.match(await sectionText(page, "Disks"), /<img src=x onerror="document\.title='taken'; alert\(2\)">/);
});

test("The details of every hostile object show it literally, too", async (open) => {
  const page = await open(pageFile("hostile"));
  const objects = lastQuery("hostile").instances;
  for (let index = 0; index < objects.length; index += 1) {
    await page.evaluate((hash) => { window.location.hash = hash; }, "#object-" + index);
    await page.waitForFunction(([name]) => document.querySelector("dialog[open] .quiet")?.textContent === name, [objects[index].class]);
    assert.equal(await page.locator("dialog :is(img, b, script, svg)").count(), 0);
  }
  assert.ok(objects.length > 50);
});

test("Nothing but the page's own script runs", async (open, troubles) => {
  const page = await open(pageFile("sample"));
  const ran = await page.evaluate(() => {
    const script = document.createElement("script");
    script.textContent = "window.ran = true";
    document.body.append(script);
    const element = document.createElement("p");
    element.setAttribute("onclick", "window.ran = true");
    document.body.append(element);
    element.click();
    return window.ran;
  });
  assert.equal(ran, undefined);
  assert.ok(troubles.length === 2 && troubles.every((each) => each.includes("Content Security Policy")), troubles.join("\n"));
  troubles.length = 0;
});
