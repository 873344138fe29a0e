// The look of the report: light, dark, narrow, on paper, and for a screen reader.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { test } from "./harness.mjs";
import { pageFile, pageOfEveryLevel } from "./pages.mjs";

// The contrast of each element's text with its background, as the accessibility guidelines compute it.
function lowContrasts(page, selector) {
  return page.locator(selector).evaluateAll((elements) => {
    const channels = (colour) => colour.match(/[\d.]+/g).map(Number);
    const luminance = (colour) => channels(colour).slice(0, 3).map((value) => value / 255)
      .map((value) => (value <= 0.04045 ? value / 12.92 : ((value + 0.055) / 1.055) ** 2.4))
      .reduce((sum, value, index) => sum + value * [0.2126, 0.7152, 0.0722][index], 0);
    const groundOf = (element) => {
      for (let each = element; each; each = each.parentElement) {
        const colour = getComputedStyle(each).backgroundColor;
        if ((channels(colour)[3] ?? 1) > 0) return colour;
      }
      return "rgb(255, 255, 255)";
    };
    return elements.filter((element) => element.textContent.trim() !== "").map((element) => {
      const colours = [getComputedStyle(element).color, groundOf(element)];
      const [dark, light] = colours.map(luminance).sort((one, other) => one - other);
      return { text: element.textContent.slice(0, 40), contrast: (light + 0.05) / (dark + 0.05) };
    }).filter(({ contrast }) => contrast < 4.5);
  });
}

const kTexts = "h1, h2, h3, h4, p, a:not(.box, .frame), td, th button, .badge, .badge .symbol, .quiet, summary," +
  " .box span, .frame, .verdict, .disk, .incident p, label, .count, dt, dd, .unread, .unread-count";

function background(page) {
  return page.evaluate(() => getComputedStyle(document.body).backgroundColor);
}

for (const colorScheme of ["light", "dark"]) {
  test(`Every text can be read in the ${colorScheme} scheme`, async (open) => {
    const page = await open(pageFile("sample"), { colorScheme, hash: "#object-48" });
    const others = await open(pageFile("hostile"), { colorScheme });
    for (const each of [page, others]) assert.deepEqual(await lowContrasts(each, kTexts), []);
    const channels = (await background(page)).match(/\d+/g).map(Number);
    assert.ok(colorScheme === "dark" ? Math.max(...channels) < 60 : Math.min(...channels) > 230, channels.join());
  });
}

test("Boxes differ in their colours from one level to the next, in both schemes", async (open) => {
  for (const colorScheme of ["light", "dark"]) {
    const page = await open(pageOfEveryLevel(), { colorScheme });
    const bars = await page.locator(".drawing a.box").evaluateAll((boxes) =>
      boxes.map((box) => [[...box.classList].find((name) => name.startsWith("level-")),
          getComputedStyle(box).borderLeftColor]));
    const colours = new Map(bars);
    const names = ["critical", "warning", "unknown", "busy", "idle", "ok"];
    const coloured = names.map((level) => colours.get("level-" + level));
    assert.ok(!coloured.includes(undefined), coloured.join());
    assert.equal(new Set(coloured).size, coloured.length, coloured.join());
  }
});

for (const width of [400, 800, 1280, 1920]) {
  test(`At ${width} pixels nothing extends beyond the report`, async (open) => {
    for (const name of ["sample", "hostile"]) {
      const page = await open(pageFile(name), { viewport: { width, height: 900 } });
      assert.equal(await page.evaluate(() => document.documentElement.scrollWidth), width, name);
    }
  });
}

test("No text extends beyond its box", async (open) => {
  const page = await open(pageFile("sample"));
  const wide = await page.locator("a.box").evaluateAll((boxes) => boxes.flatMap((box) => {
    const right = box.getBoundingClientRect().right;
    return [...box.querySelectorAll("span:not(.unseen)")].filter((text) => text.getBoundingClientRect().right > right)
      .map((text) => text.textContent);
  }));
  assert.deepEqual(wide, []);
});

for (const width of [390, 800, 1300, 1920]) {
  test(`At ${width} pixels no table is wider than its place`, async (open) => {
    const page = await open(pageFile("sample"), { viewport: { width, height: 900 } });
    const tables = await page.locator(".sorted-table:visible").all();
    assert.ok(tables.length > 10);
    for (const table of tables) {
      await table.scrollIntoViewIfNeeded();
      await page.waitForTimeout(50);
      const [inside, outside] = await table.evaluate((each) =>
          [each.querySelector("table").scrollWidth, each.querySelector(".table-box").clientWidth]);
      assert.ok(inside <= outside, `${await table.locator("caption").textContent()}: ${inside} in ${outside}`);
    }
    assert.equal(await page.locator('.stacked caption span:text-is("Controllers")').count(), 1);
  });
}

for (const [width, height, shown] of [[1300, 900, 6], [390, 844, 1]]) {
  test(`The first screen of ${width} by ${height} shows the verdict, all disks and incidents`, async (open) => {
    const page = await open(pageFile("sample"), { viewport: { width, height } });
    const bottoms = (selector) => page.locator(selector).evaluateAll((all) =>
        all.map((each) => each.getBoundingClientRect().bottom));
    const visible = (all) => all.filter((bottom) => bottom <= height).length;
    assert.equal(visible(await bottoms(".verdict")), 1);
    const disks = await bottoms(".disk");
    assert.ok(disks.length > 30);
    assert.equal(visible(disks), disks.length);
    assert.ok(await page.locator(".units").evaluate((units) => units.scrollHeight <= units.clientHeight));
    assert.ok(visible(await bottoms(".incident")) >= shown);
  });
}

const kStandards = ["wcag2a", "wcag2aa", "wcag21a", "wcag21aa", "wcag22aa", "best-practice", "experimental"];
const kChecker = readFileSync(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");

async function violations(page) {
  // Parts out of sight are not laid out, and would seem to cover the parts after them.
  await page.evaluate(() => document.querySelectorAll(".controller, .sorted-table").forEach((each) => {
    each.style.contentVisibility = "visible";
  }));
  await page.evaluate(kChecker);
  const { violations: found, passes } = await page.evaluate((values) =>
      window.axe.run({ runOnly: { type: "tag", values } }), kStandards);
  assert.ok(passes.length > 20);
  return found.map(({ id, nodes }) => `${id}: ${nodes.length}, as ${nodes[0].html.slice(0, 200)}`);
}

for (const [name, options] of Object.entries({ light: {}, dark: { colorScheme: "dark" },
    narrow: { viewport: { width: 390, height: 844 } } })) {
  test(`A checker of accessibility finds no fault in the ${name} report`, async (open) => {
    for (const [file, hash] of [["sample", ""], ["sample", "#object-48"], ["hostile", ""]]) {
      assert.deepEqual(await violations(await open(pageFile(file), { ...options, hash })), [], file + hash);
    }
  });
}

test("Paper shows light colours, no controls, nothing cut off, and a summary on the first sheet", async (open) => {
  const page = await open(pageFile("sample"),
      { colorScheme: "dark", media: "print", viewport: { width: 718, height: 1000 } });
  assert.equal(await background(page), "rgb(255, 255, 255)");
  for (const hidden of ["nav", ".tools", ".skip", "dialog"]) {
    assert.equal(await page.locator(hidden).first().isVisible(), false, hidden);
  }
  assert.equal(await page.evaluate(() => document.documentElement.scrollWidth), 718);
  assert.ok(await page.locator(".summary").evaluate((summary) => summary.getBoundingClientRect().bottom) < 1000);
  assert.equal(await page.locator(".summary").evaluate((summary) => getComputedStyle(summary).breakAfter), "page");
});

test("The first sheet has the whole summary of a machine with many incidents, the cards follow on the next",
    async (open) => {
  const sheet = { width: 718, height: 1000 };
  const page = await open(pageFile("many"), { media: "print", viewport: sheet });
  const headlines = await page.locator(".headlines li").allTextContents();
  assert.equal(headlines.length, 26);
  assert.match(headlines[0], /^critical: C1 /);
  assert.equal(headlines[25], "and 15 more");
  const bottom = await page.locator(".headlines").evaluate((list) => list.getBoundingClientRect().bottom);
  assert.ok(bottom > 0 && bottom < sheet.height, `${bottom}`);
  assert.equal(await page.locator(".incidents").evaluate((list) => getComputedStyle(list).breakBefore), "page");
});

test("A printed report has few pages", async (open) => {
  const page = await open(pageFile("sample"));
  const paper = await page.pdf({ format: "A4" });
  assert.equal(paper.subarray(0, 5).toString(), "%PDF-");
  const pages = paper.toString("latin1").match(/\/Type\s*\/Page\b/g).length;
  assert.ok(pages >= 5 && pages <= 40, `${pages} pages`);
});

test("The report has landmarks, headings in order, and names for all controls", async (open) => {
  const page = await open(pageFile("sample"));
  for (const landmark of ["header", "nav", "main", "footer", "aside"]) {
    assert.equal(await page.locator(landmark).count(), 1, landmark);
  }
  const levels = await page.locator("body > header h1, main :is(h1, h2, h3, h4)").evaluateAll((heads) =>
      heads.map((head) => Number(head.tagName[1])));
  assert.equal(levels[0], 1);
  assert.equal(levels.filter((level) => level === 1).length, 1);
  levels.forEach((level, index) => assert.ok(index === 0 || level <= levels[index - 1] + 1,
      `heading ${index} jumps to level ${level}`));
  assert.equal(await page.locator("th:not([scope])").count(), 0);
  assert.equal(await page.locator("table:not(:has(caption))").count(), 0);
  const names = await page.locator("a, button, input").evaluateAll((elements) => elements
    .filter((element) => !(element.getAttribute("aria-label") || element.textContent
        || (element.labels && element.labels[0]?.textContent) || "").trim())
    .map((element) => element.outerHTML));
  assert.deepEqual(names, []);
  const ids = await page.locator("[id]").evaluateAll((elements) => elements.map((element) => element.id));
  assert.equal(new Set(ids).size, ids.length, "an id occurs twice");
});

test("The links of the head lead to their sections", async (open) => {
  const page = await open(pageFile("sample"));
  const targets = await page.locator("nav a").evaluateAll((links) => links.map((link) => [link.textContent,
      document.querySelector(link.getAttribute("href"))?.textContent]));
  assert.ok(targets.length > 10);
  for (const [link, target] of targets) assert.equal(link, target);
  await page.keyboard.press("Tab");
  assert.equal(await page.evaluate(() => document.activeElement.textContent), "Skip to the content");
});
