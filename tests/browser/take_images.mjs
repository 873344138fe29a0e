// node take_images.mjs REPORT.html FOLDER: writes pictures of parts of the report to the folder.
import { join, resolve } from "node:path";
import { pathToFileURL } from "node:url";
import { chromium } from "playwright-core";

const [report, folder] = process.argv.slice(2);
const browser = await chromium.launch({ executablePath: process.env.CHROMIUM || "/usr/bin/chromium",
  args: ["--headless", "--no-sandbox", "--disable-gpu"] });
const page = await browser.newPage({ viewport: { width: 1280, height: 2400 }, colorScheme: "light" });
await page.goto(pathToFileURL(resolve(report)).href);
await page.waitForSelector("html[data-ready]");
await page.screenshot({ path: join(folder, "report.png"), clip: { x: 0, y: 0, width: 1280, height: 760 } });
const controller = page.locator("figure.controller", { hasText: "Controller 4" });
await controller.locator(".box-group", { hasText: "Enclosure 0" }).screenshot({ path: join(folder, "drawing.png") });
await browser.close();
