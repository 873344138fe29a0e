// Runs tests one after the other in a real browser, each in a tab of its own, and reports failures.
import { mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { chromium } from "playwright-core";

const kBrowser = process.env.CHROMIUM || "/usr/bin/chromium";
const kArguments = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
    "--disable-background-networking",
  "--disable-component-update", "--disable-sync"];

const kMostSeconds = 180; // a test takes

const tests = [];

// run receives (open): open(file, options) returns a tab that has drawn the report.
export function test(name, run) {
  tests.push({ name, run });
}

// The report must never log errors, open dialogs, or load other files.
function watch(page, file, troubles) {
  page.on("console", (message) => {
    if (message.type() === "error" || message.type() === "warning") troubles.push(`console: ${message.text()}`);
  });
  page.on("pageerror", (error) => troubles.push(`error: ${error.message}`));
  page.on("dialog", (dialog) => {
    troubles.push(`dialog: ${dialog.message()}`);
    dialog.dismiss();
  });
  page.on("request", (request) => {
    if (request.url().split("#")[0] !== file.href) troubles.push(`request: ${request.url()}`);
  });
}

async function runOne(browser, { name, run }) {
  const contexts = [];
  const troubles = [];
  const open = async (file, options = {}) => {
    const context = await browser.newContext({ viewport: { width: 1280, height: 900 }, offline: true, ...options });
    context.setDefaultTimeout(60000);
    contexts.push(context);
    const page = await context.newPage();
    watch(page, file, troubles);
    if (options.media) await page.emulateMedia({ media: options.media });
    await page.goto(file.href + (options.hash || ""));
    if (options.javaScriptEnabled === false) return page;
    await page.waitForSelector("html[data-ready], .broken", { state: "attached", timeout: 60000 });
    troubles.push(...(await page.locator(".broken").allTextContents()));
    return page;
  };
  let timer;
  const tooLong = new Promise((_, reject) => {
    timer = setTimeout(() => reject(new Error(`not done after ${kMostSeconds} seconds`)), kMostSeconds * 1000);
  });
  try {
    await Promise.race([run(open, troubles), tooLong]);
    return troubles.length === 0 ? null : troubles.join("\n");
  } catch (error) {
    return [error.stack, ...troubles].join("\n");
  } finally {
    clearTimeout(timer);
    for (const context of contexts) await context.close().catch(() => {}); // it went with its browser
  }
}

function writeResults(file, results) {
  const reference = (character) => `&#${character.charCodeAt(0)};`;
  const escaped = (text) => text.replace(/[&<>"]/g, reference).replace(/[\u0000-\u0008\u000b-\u001f]/g, "?");
  const failureElement = (failure) => (failure === null ? "" : `<failure message="${escaped(failure)}"/>`);
  const cases = results.map(({ name, failure }) =>
    `    <testcase name="${escaped(name)}">${failureElement(failure)}</testcase>\n`);
  const counts = `tests="${results.length}" failures="${results.filter(({ failure }) => failure !== null).length}"`;
  const suite = `  <testsuite name="browser" ${counts}>\n${cases.join("")}  </testsuite>\n`;
  writeFileSync(file, `<?xml version="1.0" encoding="UTF-8"?>\n<testsuites ${counts}>\n${suite}</testsuites>\n`);
}

// Returns the number of failures.
export async function runTests(resultFile, only) {
  const profile = mkdtempSync(join(tmpdir(), "zenx-browser-"));
  const launch = () => chromium.launch({ executablePath: kBrowser, args: kArguments,
      env: { ...process.env, HOME: profile } });
  let browser = await launch();
  const results = [];
  for (const each of tests.filter(({ name }) => !only || name.includes(only))) {
    const began = Date.now();
    let failure = await runOne(browser, each);
    // If the system ended the browser for lack of memory, the report is not at fault. If the report caused it, it happens
    // again.
    if (!browser.isConnected()) {
      console.log(`The browser ended during "${each.name}": once more`);
      browser = await launch();
      failure = await runOne(browser, each);
      if (!browser.isConnected()) browser = await launch();
    }
    results.push({ name: each.name, failure });
    const seconds = ((Date.now() - began) / 1000).toFixed(1);
    console.log(`${failure === null ? "passed" : "FAILED"}  ${each.name} (${seconds} s)`);
    if (failure !== null) console.log(failure);
  }
  await browser.close();
  rmSync(profile, { recursive: true, force: true });
  writeResults(resultFile, results);
  const failed = results.filter(({ failure }) => failure !== null).length;
  console.log(`${results.length - failed} passed, ${failed} failed`);
  return results.length === 0 ? 1 : failed;
}
