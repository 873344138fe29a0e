// Compares the content of the report with the JSON of the same query.
import assert from "node:assert/strict";
import { test } from "./harness.mjs";
import { countOf, findings, kEveryLevel, lastQuery, pageFile, pageOfEveryLevel, pageWith, reportData,
    unreadLines } from "./pages.mjs";

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
    Versions: ["KVRSG_zxFirmwareVersion", "KVRSG_zxBootBlockVersion", "KVRSG_zxBiosVersion",
        "KVRSG_zxDiskDriveVersion"],
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

test("The drawing has a box for every device with its state in words", async (open) => {
  const page = await open(pageFile("sample"));
  const boxes = await page.locator(".drawing a[data-object]").evaluateAll((links) =>
    links.map((link) => ({ object: Number(link.dataset.object), text: link.textContent })));
  const instances = lastQuery("sample").instances;
  const devices = instances.flatMap((instance, index) => (kDevices.includes(instance.class) ? [index] : []));
  assert.deepEqual(boxes.map((box) => box.object).sort((one, other) => one - other), devices);
  for (const { object, text } of boxes) {
    const { State, LogicalDriveStatus, ControllerStatus, Model, DeviceSerialNum } = instances[object].properties;
    const words = [State || LogicalDriveStatus || ControllerStatus, Model, DeviceSerialNum];
    for (const word of words) assert.ok(text.includes((word ?? "").trim()), `${text} lacks ${word}`);
  }
});

test("Colours are never the only sign: each level has its symbol", async (open) => {
  const page = await open(pageOfEveryLevel());
  const symbols = await page.locator(".drawing a.box").evaluateAll((links) =>
    links.map((link) => [[...link.classList].find((name) => name.startsWith("level-")),
        link.querySelector(".symbol").textContent]));
  const bySymbol = new Map(symbols.map(([level, symbol]) => [symbol, level]));
  assert.equal(bySymbol.size, new Set(symbols.map(([level]) => level)).size);
  assert.ok(kEveryLevel.every((level) => symbols.some(([each]) => each === "level-" + level)));
});

test("Boxes and states have the levels that the program writes", async (open) => {
  const page = await open(pageFile("sample"));
  const objects = new Map(reportData("sample").objects.map((object) => [object.instance, object]));
  const boxes = await page.locator(".drawing a.box").evaluateAll((links) =>
      links.map((link) => [Number(link.dataset.object), link.classList[1]]));
  assert.ok(boxes.length > 50);
  for (const [index, level] of boxes) assert.equal(level, "level-" + objects.get(index).level);
  const badges = await page.locator('section:has(> h2:text-is("Controllers")) tbody .badge').evaluateAll((each) =>
      each.map((one) => one.textContent));
  assert.deepEqual([...new Set(badges)].sort(), ["\u2013not said", "\u2713Okay", "\u2713Optimal"]);
  const controller = page.locator(".drawing a.box", { hasText: /^Controller 4/ });
  assert.match(await controller.textContent(), /\u2715.*2 findings, Optimal/);
});

test("Disks are under their arrays and logical drives, also where two controllers share a number", async (open) => {
  const page = await open(pageFile("gap"));
  const figure = (owner) => page.locator(`figure:has(h3:text-is("${owner}"))`);
  const array = (owner, name) => figure(owner).locator(".array", { has: page.getByText(name, { exact: true }) });
  assert.match(await array("Controller 1", "Array A, 8 disks").textContent(), /logical drive 1.*logical drive 2/s);
  assert.match(await array("Controller 3 (qcmdrun)", "Array A, 3 disks").textContent(), /logical drive 1/);
  assert.equal(await figure("Controller 3 (qcmdrun)").locator("a.box").count(), 1 + 2 + 6);
  assert.equal(await figure("Controller 3 (hrconf_64)").locator("a.box").count(), 1 + 2 + 6);
  const box = figure("Controller 4").locator("a.box", { hasText: "enclosure 0, slot 8" });
  assert.match(await box.textContent(), /Failed.*NV73-15SAS, 73\.4 GB.*NV3LE77Q2H.*Archive/);
});

test("Devices are drawn by enclosure and slot where they are known, else by channel", async (open) => {
  const page = await open(pageFile("sample"));
  const groups = (owner) => page.locator(`figure:has(h3:text-is("${owner}")) .box-group:not(:has(.array)) > h4`)
    .allTextContents();
  assert.deepEqual(await groups("Controller 1"), ["Channel 1: 6 devices", "Channel 2: 7 devices"]);
  assert.deepEqual((await groups("Controller 4")).slice(-3),
      ["Channel 0: 1 device", "Channel 2: 1 device", "Enclosure 0: 11 devices"]);
  const boxes = page.locator(".box-group", { hasText: "Enclosure 0: 11 devices" }).locator(".first");
  assert.deepEqual(await boxes.allTextContents(),
      Array.from({ length: 11 }, (_, slot) => `enclosure 0, slot ${slot}`));
});

test("The events of all logs are in the order of time, those without a time beside them", async (open) => {
  const page = await open(pageFile("sample"));
  const rows = await cellTexts(page, "Events");
  const times = rows.map((row) => row[0].slice(0, 19));
  assert.ok(times.every((time) => /^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d$/.test(time)), times.join());
  assert.deepEqual(times, [...times].sort());
  assert.deepEqual(new Set(rows.map((row) => row[1])), new Set(["Defunct drives", "RAID manager"]));
  const aside = page.locator("aside");
  const codes = lastQuery("sample").instances.flatMap(({ properties }) => [...(properties.HexSoftEvent || []),
      ...(properties.HexHardEvent || [])]);
  assert.ok(codes.length > 0);
  assert.equal(await aside.locator("li").count(), codes.length);
  assert.match(await aside.textContent(), new RegExp("0x" + codes[0].toString(16).padStart(8, "0")));
});

test("An event with an impossible time comes last and shows the text of the log", async (open) => {
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

test("Verdict, disks and incidents can be read without scripts", async (open) => {
  const page = await open(pageFile("sample"), { javaScriptEnabled: false });
  assert.equal(await page.locator(".verdict").innerText(), "\u2715 CRITICAL: 4 critical, 1 warning");
  const disks = await page.locator("a.disk").evaluateAll((links) => links.map((link) => link.title));
  const isDisk = ({ properties }) => /^Hard (disk|drive)/.test(properties.DeviceType ?? "");
  const published = lastQuery("sample").instances.filter(isDisk);
  assert.equal(disks.length, published.length);
  for (const { properties } of published) {
    assert.ok(disks.some((title) => title.includes(properties.DeviceSerialNum.trim())), properties.DeviceSerialNum);
  }
  const incident = page.locator(".incident", { has: page.getByText('C4 "Archive" (RAID 5) is degraded') });
  assert.match(await incident.innerText(), /PULL enclosure 0, slot 8: NORDVIK NV73-15SAS 73\.4 GB, S\/N NV3LE77Q2H/);
  assert.equal(await incident.getByRole("link", { name: "enclosure 0, slot 8" }).count(), 1);
  assert.match(await page.locator("noscript").innerText(), /need the\s+script of this file/);
});

test("The findings of the rules are worst first, and link to their objects", async (open) => {
  const page = await open(pageFile("sample"));
  const expected = findings();
  assert.ok(expected.length > 3);
  const table = page.locator('section:has(> h2:text-is("Findings"))');
  assert.deepEqual(await table.locator("th").allTextContents(), ["Severity", "Object", "Value", "Meaning"]);
  await table.locator(".sorted-table").scrollIntoViewIfNeeded();
  const rows = await table.locator("tbody tr").evaluateAll((each) =>
      each.map((row) => [...row.cells].map((cell) => cell.textContent)));
  assert.deepEqual(rows.map(([severity]) => severity.replace(/^[^a-z]+/, "")),
      expected.map(({ severity }) => severity));
  expected.forEach((finding, index) => {
    for (const word of [finding.name, finding.identifier]) assert.ok(rows[index][1].includes(word),
        `${rows[index][1]}: ${word}`);
    assert.equal(rows[index][2], `${finding.property} "${finding.text}"`);
    assert.equal(rows[index][3], finding.meaning);
  });

  const instances = lastQuery("sample").instances;
  const about = expected.findIndex(({ class: name }) => name === "KVRSG_zxDiskDrive");
  await table.locator("tbody tr").nth(about).getByRole("link").click();
  const dialog = await page.locator("dialog").innerText();
  assert.ok(dialog.includes(expected[about].meaning), dialog);
  assert.ok(dialog.includes(expected[about].identifier), dialog);
  const index = instances.findIndex(({ properties }) => properties.DeviceID === expected[about].identifier);
  assert.equal(await page.locator(`.drawing a.level-critical[data-object="${index}"]`).count(), 1,
      "the finding colours the disk");
});

test("A finding is about one object only, even if two share an identifier", async (open) => {
  const instances = lastQuery("gap").instances;
  const twins = instances.flatMap(({ properties }, index) => (properties.DeviceID === "Zentraxis3" ? [index] : []));
  assert.equal(twins.length, 2);
  const page = await open(pageFile("gap"));
  assert.equal(await page.locator(`.drawing a.level-critical[data-object="${twins[0]}"]`).count(), 1);
  assert.equal(await page.locator(`.drawing a.level-critical[data-object="${twins[1]}"]`).count(), 0);
});

test("Of very many findings the worst are shown until the rest is asked for", async (open) => {
  const many = Array.from({ length: 300 },
      (_, index) => ({ severity: "warning", class: "tool run", identifier: "t", name: "n" + index, property: "p",
          text: "", meaning: "m" }));
  const page = await open(pageWith("sample", "many-findings", { findings: many }));
  assert.equal(await rowCount(page, "Findings"), 50);
  await page.getByRole("button", { name: "Show the other 250 rows" }).click();
  assert.equal(await rowCount(page, "Findings"), 300);
});

test("No findings mean a healthy machine only if every class was queried", async (open) => {
  const page = await open(pageFile("healthy"));
  assert.equal(await page.locator(".verdict.level-ok").innerText(), "\u2713 OK: no fault found");
  assert.equal(await page.locator('h2:text-is("Findings"), .incident').count(), 0);
  const part = await open(pageFile("disks"));
  assert.equal(await part.locator(".verdict.level-ok").count(), 0);
  assert.match(await part.locator(".summary").innerText(), /Not asked for, so not judged: .*KVRSG_zxLogicalDisk,/);
});

test("The lines of the raw texts that nothing else shows are marked and counted by command", async (open) => {
  const page = await open(pageFile("sample"));
  const shown = await page.locator("details.raw").evaluateAll((each) => each.map((one) => {
    const text = one.querySelector("pre").textContent.split("\n");
    const lines = [...one.querySelectorAll(".unread")].map((line) => line.textContent);
    const before = (line) => {
      const range = document.createRange();
      range.setStart(one.querySelector("pre"), 0);
      range.setEndBefore(line);
      return range.toString().split("\n").length;
    };
    const numbers = [...one.querySelectorAll(".unread")].map(before);
    return { command: one.querySelector("summary code").textContent, numbers,
        isWhole: numbers.every((number, index) => text[number - 1] === lines[index]),
      count: one.querySelector(".unread-count")?.textContent ?? "" };
  }));
  const expected = unreadLines();
  assert.ok(expected.size > 3);
  for (const { command, numbers, isWhole, count } of shown) {
    const wanted = expected.get(command) || [];
    assert.deepEqual(numbers, wanted, command);
    assert.ok(isWhole, command);
    assert.equal(count,
        wanted.length === 0 ? "" : `${wanted.length} line${wanted.length === 1 ? "" : "s"} not shown elsewhere`,
            command);
  }
  const total = [...expected.values()].reduce((sum, lines) => sum + lines.length, 0);
  assert.ok((await page.locator(".unread-legend").innerText()).includes(`${total} lines in ${expected.size} texts`));
});

test("The mark of an unread line is a sign beside it, not only its colour, and not part of its text", async (open) => {
  const page = await open(pageFile("sample"));
  const line = page.locator("details.raw .unread").first();
  assert.equal(await line.evaluate((each) => getComputedStyle(each, "::before").content), '"\u25b8"');
  assert.ok(!(await line.textContent()).includes("\u25b8"));
});

test("A report of a few classes marks no line and shows the reason", async (open) => {
  const page = await open(pageFile("raw"));
  assert.equal(await page.locator(".unread").count(), 0);
  assert.match(await sectionText(page, "Raw texts of the tools"), /listed only if every class was queried/);
});

test("A query of only one class produces a report", async (open) => {
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
  assert.match(await page.locator(".summary").innerText(),
      /3 queries were made; this is the last one\..* their runs are not judged here\./);
  assert.equal(await rowCount(page, "Disks"), countOf("repeated", "KVRSG_zxDiskDrive"));
  assert.doesNotMatch(await (await open(pageFile("sample"))).locator(".summary").innerText(), /queries were made/);
});

test("A machine without objects is not shown as a healthy one", async (open) => {
  const page = await open(pageFile("nothing"));
  assert.match(await sectionText(page, "Health"), /Nothing was found/);
  assert.equal(await page.locator(".level-ok").count(), 0);
});

test("Markup and scripts of tools change nothing and are shown literally", async (open) => {
  const page = await open(pageFile("hostile"));
  await page.evaluate(() => document.querySelectorAll("details").forEach((each) => { each.open = true; }));
  for (const box of await page.locator(".drawing a.box").all()) await box.evaluate((each) => each.focus());
  assert.equal(await page.title(), "RAID report: </script><script>document.title='taken'; alert(1)</script>");
  const strange = "img, iframe, object, embed, link, #injected, b, [onload], [onerror], script[src]," +
    " a[href^='javascript']";
  assert.equal(await page.locator(strange).count(), 0);
  assert.equal(await page.locator("script").count(), 4);
  const texts = lastQuery("hostile").instances.find(({ properties }) => properties.RawResults).properties.RawResults;
  const pre = await page.locator("details.raw pre").first().textContent();
  const plain = texts.filter((each) => !/[\u001b\u0007\u200b\u2028\u202e]/.test(each));
  for (const text of plain) assert.ok(pre.includes(text), text);
  assert.match(pre, /turned \\u202e txet \\u202c\\u2028next\\u2029last/);
  assert.match(pre, /escape \\x1b\[31mred\\x1b\[0m bell \\x07 zero-width \\u200b\\U000e0041\./);
  assert.match(await sectionText(page, "Disks"), /<img src=x onerror="document\.title='taken'; alert\(2\)">/);
});

test("The details of every hostile object show it literally, too", async (open) => {
  const page = await open(pageFile("hostile"));
  const objects = lastQuery("hostile").instances;
  for (let index = 0; index < objects.length; index += 1) {
    await page.evaluate((hash) => { window.location.hash = hash; }, "#object-" + index);
    await page.waitForFunction(([name]) => document.querySelector("dialog[open] .quiet")?.textContent === name,
        [objects[index].class]);
    assert.equal(await page.locator("dialog :is(img, b, script, svg)").count(), 0);
  }
  assert.ok(objects.length > 50);
});

test("Only the report's own script runs", async (open, troubles) => {
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
  assert.ok(troubles.length === 2 && troubles.every((each) => each.includes("Content Security Policy")),
      troubles.join("\n"));
  troubles.length = 0;
});
