// The use of the report: by mouse, by keyboard, and on machines with thousands of disks.
import assert from "node:assert/strict";
import { test } from "./harness.mjs";
import { countOf, lastQuery, pageFile } from "./pages.mjs";

function section(page, heading) {
  return page.locator(`section:has(> h2:text-is("${heading}"))`);
}

// Parts out of sight are not laid out, so the mouse cannot reach them.
async function sectionInSight(page, heading) {
  await section(page, heading).locator(".sorted-table").first().scrollIntoViewIfNeeded();
  return section(page, heading);
}

function column(page, heading, title) {
  return section(page, heading).locator("table").evaluate((table, name) => {
    const index = [...table.tHead.rows[0].cells].findIndex((cell) => cell.textContent === name);
    return [...table.tBodies[0].rows].map((row) => row.cells[index].textContent);
  }, title);
}

function inOrder(texts) {
  const collator = new Intl.Collator("en", { numeric: true, sensitivity: "base" });
  return [...texts].sort(collator.compare);
}

// The place of the class's object whose property has this value.
function placeOf(className, value) {
  const isIt = (each) => each.class === className && Object.values(each.properties).includes(value);
  return lastQuery("sample").instances.findIndex(isIt);
}

test("A heading sorts its table by number and text, and back", async (open) => {
  const page = await open(pageFile("sample"));
  const disks = await sectionInSight(page, "Disks");
  const head = disks.getByRole("columnheader", { name: "ID", exact: true });
  const before = await column(page, "Disks", "ID");
  assert.notDeepEqual(before, inOrder(before));
  await head.getByRole("button").click();
  assert.deepEqual(await column(page, "Disks", "ID"), inOrder(before));
  assert.equal(await head.getAttribute("aria-sort"), "ascending");
  await head.getByRole("button").press("Enter");
  assert.deepEqual(await column(page, "Disks", "ID"), inOrder(before).reverse());
  assert.equal(await head.getAttribute("aria-sort"), "descending");
  await disks.getByRole("columnheader", { name: "State" }).getByRole("button").click();
  assert.equal(await head.getAttribute("aria-sort"), null);
});

test("A filter leaves the rows that have all its words", async (open) => {
  const page = await open(pageFile("sample"));
  const disks = await sectionInSight(page, "Disks");
  const input = disks.getByRole("searchbox");
  await input.fill("hard disk ONLINE");
  const online = lastQuery("sample").instances.filter(({ properties }) => properties.DeviceType === "Hard disk"
      && /^Online/.test(properties.State));
  assert.equal(await disks.locator("tbody tr").count(), online.length);
  assert.match(await disks.textContent(), new RegExp(`${online.length} of 44 rows`));
  await input.fill("no disk has this");
  assert.equal(await disks.locator("tbody tr").count(), 0);
  await input.fill("");
  assert.equal(await disks.locator("tbody tr").count(), 44);
});

test("The search finds and marks words in all raw texts", async (open) => {
  const page = await open(pageFile("sample"));
  const texts = lastQuery("sample").instances.filter((instance) =>
      /RawData$/.test(instance.class)).map(({ properties }) => properties.RawResults.join("\n"));
  const expected = texts.map((text) => text.toLowerCase().split("defunct").length - 1);
  await page.locator("#raw-search").fill("DEFUNCT");
  assert.equal(await page.locator("pre mark").count(), expected.reduce((sum, each) => sum + each, 0));
  assert.equal(await page.locator("details.raw[open]").count(), expected.filter((each) => each > 0).length);
  assert.match(await section(page, "Raw texts of the tools").innerText(), /matches in \d+ texts/);
  await page.locator("#raw-search").fill("[.*(");
  assert.equal(await page.locator("pre mark").count(), 0);
  await page.locator("#raw-search").fill("");
  assert.equal(await page.locator("details.raw:visible").count(), texts.length);
  await page.getByRole("button", { name: "Unfold all", exact: true }).click();
  assert.equal(await page.locator("details.raw[open]").count(), texts.length);
});

function activeLabel(page) {
  return page.evaluate(() => (document.activeElement.closest(".drawing") ? document.activeElement.innerText : ""));
}

async function tabTo(page, pattern) {
  for (let press = 0; press < 200; press += 1) {
    await page.keyboard.press("Tab");
    const label = await activeLabel(page);
    if (pattern.test(label || "")) return label;
  }
  return assert.fail(`Tab does not reach ${pattern}`);
}

test("The keyboard reaches a disk, its details, and comes back to it", async (open) => {
  const page = await open(pageFile("sample"));
  await tabTo(page, /^channel 1, ID 0/);
  for (let press = 0; press < 4; press += 1) await page.keyboard.press("ArrowRight");
  const label = await activeLabel(page);
  assert.match(label, /^channel 1, ID 4\s+!\s+needs attention,\s+PFA Yes, Online \(ONL\)/);
  await page.keyboard.press("Enter");
  const dialog = page.getByRole("dialog", { name: "Controller 1, channel 1, ID 4" });
  await dialog.waitFor();
  assert.match(await dialog.innerText(), /H8A90077/);
  await page.keyboard.press("Escape");
  await dialog.waitFor({ state: "hidden" });
  assert.equal(await activeLabel(page), label);
  await page.keyboard.press("Enter");
  await dialog.waitFor();
});

test("A link that is followed while its details are closing opens them again", async (open) => {
  const page = await open(pageFile("sample"));
  const link = page.locator(".drawing a.frame", { hasText: "Array B, 2 disks" }).first();
  await link.click();
  // The close event comes after the click.
  await link.evaluate((element) => {
    document.querySelector("dialog").close();
    element.click();
  });
  await page.waitForTimeout(100);
  assert.equal(await page.locator("dialog").evaluate((dialog) => dialog.open), true);
  assert.match(page.url(), /#object-\d+$/);
});

test("The arrow keys move from row to row and to both ends", async (open) => {
  const page = await open(pageFile("many"));
  await tabTo(page, /^channel 0, ID 0\s/);
  await page.keyboard.press("ArrowDown");
  const below = /ID (\d+)\s/.exec(await activeLabel(page))[1];
  assert.ok(Number(below) > 1);
  await page.keyboard.press("ArrowUp");
  assert.match(await activeLabel(page), /channel 0, ID 0\s/);
  await page.keyboard.press("ArrowLeft");
  assert.match(await activeLabel(page), /channel 0, ID 0\s/);
  await page.keyboard.press("End");
  assert.match(await activeLabel(page), /channel 0, ID 49\s/);
  await page.keyboard.press("Tab");
  assert.match(await activeLabel(page), /channel 1, ID 0\s/);
});

test("A click on a box leads to details, and links there lead on; the way back works", async (open) => {
  const page = await open(pageFile("sample"));
  await page.locator(".drawing a.frame", { hasText: "Array B, 2 disks" }).first().click();
  const title = page.locator("#details-title");
  assert.equal(await title.innerText(), "Controller 1, Array B");
  await page.locator("dialog").getByRole("link", { name: "Controller 1, channel 2, ID 4" }).click();
  await page.waitForFunction(() => document.getElementById("details-title").textContent.endsWith("ID 4"));
  await page.goBack();
  await page.waitForFunction(() => document.getElementById("details-title").textContent.endsWith("Array B"));
  await page.getByRole("button", { name: "Close" }).click();
  assert.equal(await page.locator("dialog[open]").count(), 0);
});

test("An address with an object in it opens its details", async (open) => {
  const index = lastQuery("sample").instances.findIndex(({ properties }) => properties.DeviceID === "Zentraxis4LD3");
  const page = await open(pageFile("sample"), { hash: "#object-" + index });
  assert.equal(await page.locator("#details-title").innerText(), "Controller 4, logical drive 3");
  const none = await open(pageFile("sample"), { hash: "#object-999999" });
  assert.equal(await none.locator("dialog[open]").count(), 0);
});

const diskInSlot8 = () => placeOf("KVRSG_zxDiskDrive", "NV3LE77Q2H");

test("A value in the details leads to the line that it was read from, and the way back works", async (open) => {
  const page = await open(pageFile("sample"), { hash: "#object-" + diskInSlot8() });
  const value = (name) => page.locator(`dialog dt:text-is("${name}") + dd`);
  const lines = { State: /^ *State +: Failed$/, DeviceSerialNum: /^ *Serial number +: NV3LE77Q2H$/ };
  for (const [name, line] of Object.entries(lines)) {
    await value(name).getByRole("link").click();
    await page.locator(".followed").waitFor();
    assert.equal(await page.locator(".followed").count(), 1);
    assert.match(await page.locator(".followed").textContent(), line);
    assert.ok(await page.locator("details.raw[open] .followed").isVisible());
    assert.equal(await page.locator("dialog[open]").count(), 0);
    assert.ok(await page.locator(".followed").evaluate((each) => each === document.activeElement));
    const text = await page.locator("details.raw", { has: page.locator(".followed") }).locator("code").textContent();
    assert.equal(text, "zenx//arcconf.exe getconfig 1 al");
    await page.goBack();
    await page.locator("dialog[open]").waitFor();
  }
  assert.equal(await value("OtherIdentifyingInfo").getByRole("link").count(), 0);
  assert.match(await value("OtherIdentifyingInfo").innerText(), /DeviceType; fixed text, Channel and ScsiId$/);
});

test("A list over two lines leads to both, and a search leaves them marked", async (open) => {
  const group = placeOf("KVRSG_zxDiskGroup", "0,2 0,3 0,4 0,5 0,6");
  const page = await open(pageFile("sample"), { hash: "#object-" + group });
  await page.locator("dialog").getByRole("link", { name: "0,2 0,3 0,4 0,5 0,6", exact: true }).click();
  await page.locator(".followed").first().waitFor();
  assert.equal(await page.locator(".followed").count(), 2);
  await page.locator("#raw-search").fill("Stripe order");
  await page.locator(".followed mark").waitFor();
  assert.equal(await page.locator(".followed").count(), 2);
  assert.equal(await page.locator(".followed mark").count(), 1);
});

test("A value that differs from the raw text is marked", async (open) => {
  const page = await open(pageFile("sample"));
  await page.evaluate((index) => {
    Object.assign(proofOf(report.model.objects[index]), { differs: ["State"], noLine: ["FRU"] });
    window.location.hash = "#object-" + index;
  }, diskInSlot8());
  const marked = page.locator("dialog .differs");
  await marked.first().waitFor();
  const [state, fru] = await marked.allInnerTexts();
  assert.match(state, /the raw text says something else: zenx\/\/arcconf\.exe getconfig 1 al, line \d+$/);
  assert.match(fru, /in no line of the raw texts/);
});

test("Pointing at an array or focusing it marks its disks and drives", async (open) => {
  const page = await open(pageFile("sample"));
  const frame = page.locator(".drawing a.frame").nth(1);
  await frame.hover();
  assert.equal(await page.locator(".drawing .marked").count(), 1 + 2);
  await page.locator(".drawing a.frame").first().focus();
  assert.equal(await page.locator(".drawing .marked").count(), 2 + 8);
});

test("A mirror without a stripe order marks its two disks", async (open) => {
  const page = await open(pageFile("sample"));
  const figure = page.locator("figure", { hasText: "Controller 4" });
  const mirror = figure.locator("a.box", { hasText: "\"System\" (RAID 1)" });
  assert.match(await mirror.textContent(), /2 disks/);
  await mirror.focus();
  const marked = await page.locator(".drawing .marked .first").allTextContents();
  assert.deepEqual(marked, ["enclosure 0, slot 0", "enclosure 0, slot 1"]);
});

test("The arrow keys move through the disks of the first screen, which link to their details", async (open) => {
  const page = await open(pageFile("sample"));
  await page.locator(".disk").first().focus();
  for (let press = 0; press < 4; press += 1) await page.keyboard.press("ArrowRight");
  await page.keyboard.press("Enter");
  await page.getByRole("dialog", { name: "Controller 1, channel 1, ID 4" }).waitFor();
});

test("The keys N and P move to the next and the previous unread line, and from the last to the first", async (open) => {
  const page = await open(pageFile("sample"));
  const place = () =>
      page.evaluate(() => [...document.querySelectorAll("details.raw .unread")].indexOf(document.activeElement));
  const total = await page.locator("details.raw .unread").count();
  assert.ok(total > 3);
  await page.locator("details.raw summary").first().focus();
  const places = [];
  for (const key of ["n", "n", "p", "p", "n"]) {
    await page.keyboard.press(key);
    places.push(await place());
  }
  assert.deepEqual(places, [0, 1, 0, total - 1, 0]);
  assert.ok(await page.locator("details.raw .unread").first().isVisible(), "its text is unfolded");
  await page.getByRole("button", { name: "Next such line" }).press("Enter");
  assert.equal(await place(), 1);
  assert.match(await section(page, "Raw texts of the tools").innerText(), new RegExp(`2 of ${total}`));
});

test("The keys for unread lines type letters in the search, and skip lines that the search hides",
    async (open) => {
  const page = await open(pageFile("sample"));
  const input = page.getByLabel("Search all texts");
  await input.pressSequentially("npnp");
  assert.equal(await input.inputValue(), "npnp");
  await page.getByRole("button", { name: "Next such line" }).click();
  assert.match(await section(page, "Raw texts of the tools").innerText(), /None in these texts/);
});

test("A search marks its words within unread lines, and the text stays the same", async (open) => {
  const page = await open(pageFile("sample"));
  const unread = page.locator("details.raw .unread").first();
  const word = await unread.evaluate((line) => /[A-Za-z]{4,}/.exec(line.textContent)[0]);
  const texts = () => page.locator("details.raw pre").evaluateAll((each) => each.map((one) => one.textContent));
  const before = await texts();
  await page.getByLabel("Search all texts").fill(word);
  assert.ok((await page.locator("details.raw .unread mark").count()) > 0);
  assert.deepEqual(await texts(), before);
});

test("2,000 disks stay usable", async (open) => {
  const began = Date.now();
  const page = await open(pageFile("many"));
  assert.ok(Date.now() - began < 30000, `drawn after ${Date.now() - began} ms`);
  assert.equal(await page.locator(".drawing a.box").count(), 2000 + 200 + 10);
  assert.equal(await section(page, "Disks").locator("tbody tr").count(), countOf("many", "KVRSG_zxDiskDrive"));
  const times = await page.evaluate(() => {
    const table = [...document.querySelectorAll("main > section")].find((each) =>
        each.querySelector("h2").textContent === "Disks");
    const timed = (work) => {
      const start = performance.now();
      work();
      document.body.getBoundingClientRect();
      return performance.now() - start;
    };
    const input = table.querySelector("input");
    const type = (text) => { input.value = text; input.dispatchEvent(new Event("input")); };
    return { filter: timed(() => type("failed")), unfilter: timed(() => type("")),
        sort: timed(() => table.querySelectorAll("th button")[5].click()) };
  });
  for (const [what, time] of Object.entries(times)) assert.ok(time < 5000, `${what} took ${time} ms`);
});

test("2,000 disks are laid out a few times, not once for each", async (open) => {
  const page = await open(pageFile("many"));
  const session = await page.context().newCDPSession(page);
  await session.send("Performance.enable");
  const layouts = async () =>
      (await session.send("Performance.getMetrics")).metrics.find(({ name }) => name === "LayoutCount").value;
  assert.ok((await layouts()) < 100, `${await layouts()} layouts to draw the page`);
  const before = await layouts();
  await page.setViewportSize({ width: 900, height: 900 });
  await page.waitForFunction(() => document.querySelector(".box").getBoundingClientRect().width > 0);
  assert.ok((await layouts()) - before < 100, `${(await layouts()) - before} layouts for another width`);
});

test("Of a very long table the first rows are shown until the rest is asked for", async (open) => {
  const page = await open(pageFile("nothing"));
  const counts = await page.evaluate(() => {
    const objects = Array.from({ length: 6000 }, (_, index) => ({ name: "n" + index }));
    document.body.append(newTable("Long", [{ title: "Name", cell: (each) => ({ text: each.name }) }], objects));
    const table = report.tables.at(-1);
    const rows = () => table.element.querySelectorAll("tbody tr").length;
    const first = [rows(), table.count.textContent, table.more.textContent];
    table.more.click();
    return [...first, rows(), table.more.hidden];
  });
  assert.deepEqual(counts, [2500, "6,000 of 6,000 rows", "Show the other 3,500 rows", 6000, true]);
});
