// What all browser tests share: a web server on loopback, one headless Chromium for each test file, and pages that
// fail their test when anything is complained about in their console.
//
//     import { testBothModes } from "./harness.mjs";
//     testBothModes("cool_link_plain", "the list opens", async ({ page }) => { … });
//
// The pages are what the program makes: ORRELIX_PAGES names their folder. "/standards/NAME.html" is the page with
// "<!DOCTYPE html>" in front, "/quirks/NAME.html" the same page without.
import { after, describe, test } from "node:test";
import assert from "node:assert/strict";
import { createServer } from "node:http";
import { readFile } from "node:fs/promises";
import path from "node:path";
import { chromium } from "playwright-core";

const CONTENT_TYPES = { ".gif": "image/gif", ".html": "text/html", ".js": "text/javascript" };

// Pages given as text by a test, by their path behind the mode; they win over the folder's files.
const givenPages = new Map();
let nGivenPages = 0;

function inMode(html, mode) {
    const bare = html.toString("latin1").replace(/^\s*<!doctype[^>]*>\s*/i, "");
    return Buffer.from(mode === "standards" ? `<!DOCTYPE html>\r\n${bare}` : bare, "latin1");
}

// The bytes of a file below ORRELIX_PAGES, or undefined.
function readPage(relative) {
    return readFile(path.join(process.env.ORRELIX_PAGES ?? "", relative)).catch(() => undefined);
}

async function answer(request, response) {
    const pathname = decodeURIComponent(new URL(request.url, "http://localhost").pathname);
    const [, mode, relative] = /^\/(standards|quirks)\/(.*)$/s.exec(pathname) ?? [];
    const bytes = mode && (givenPages.get(relative) ?? (await readPage(relative)));
    if (!bytes)
        return response.writeHead(pathname === "/favicon.ico" ? 204 : 404).end();
    const type = CONTENT_TYPES[path.extname(relative).toLowerCase()] ?? "application/octet-stream";
    response.writeHead(200, { "Content-Type": type, "Cache-Control": "no-store" });
    response.end(type === "text/html" ? inMode(bytes, mode) : bytes);
}

// The server and the browser start with the first page of a test file and end with its last test.
let started;

async function start() {
    const server = createServer((request, response) => {
        answer(request, response).catch((error) => response.writeHead(500).end(String(error)));
    });
    await new Promise((listening) => server.listen(0, "127.0.0.1", listening));
    const browser = await chromium.launch({
        executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium",
        args: ["--no-sandbox", "--disable-gpu"],
    });
    return { server, browser, origin: `http://127.0.0.1:${server.address().port}` };
}

after(async () => {
    if (!started)
        return;
    const { server, browser } = await started;
    await browser.close();
    server.closeAllConnections();
    server.close();
});

// Serves the text of a page of a test's own beside the folder's pages; gives its name for openEffect.
export function givePage(text, name = `given_${++nGivenPages}`) {
    givenPages.set(`${name}.html`, Buffer.from(text, "utf8"));
    return name;
}

// The text of NAME.html, for tests that give a page made from it.
export async function pageText(name) {
    const bytes = await readPage(`${name}.html`);
    assert.ok(bytes, `no ${name}.html in ORRELIX_PAGES`);
    return bytes.toString("utf8");
}

// Opens NAME.html in a browser context of its own.
//   mode           "standards" or "quirks"
//   reducedMotion  the visitor asks for reduced motion
//   before         an arrow function run in the page before its first script (see Playwright's addInitScript)
//   clock          true: the page's time stands still until the test moves it with page.clock
// Gives {page, errors, close}. close() throws when the console or a script complained; errors lists the complaints
// so far, and a test that provokes one on purpose empties it.
async function openEffect(
    name,
    { mode = "standards", reducedMotion = false, before, clock = false } = {},
) {
    started ??= start();
    const { browser, origin } = await started;
    const url = `${origin}/${mode}/${name}.html`;
    const context = await browser.newContext({
        reducedMotion: reducedMotion ? "reduce" : "no-preference",
        viewport: { width: 1000, height: 700 },
    });
    const page = await context.newPage();
    const errors = [];
    page.on("console", (message) => {
        if (message.type() === "error")
            errors.push(`${message.text()} (${message.location().url})`);
    });
    page.on("pageerror", (error) => errors.push(error.stack || String(error)));
    if (clock)
        await page.clock.install();
    if (before)
        await page.addInitScript(before);
    await page.goto(url);
    return {
        page,
        errors,
        async close() {
            await context.close();
            assert.deepEqual(errors, [], `complaints of ${url}`);
        },
    };
}

// One test for each mode, both at once: opens NAME.html, runs body({page, errors, mode}), closes the page. Options as
// for openEffect.
export function testBothModes(name, title, body, options = {}) {
    const run = async (mode) => {
        const effect = await openEffect(name, { ...options, mode });
        try {
            await body({ ...effect, mode });
        } catch (failure) {
            await effect.close().catch((complaint) => { failure.message += `\n${complaint.message}`; });
            throw failure;
        }
        await effect.close();
    };
    describe(`${name}: ${title}`, { concurrency: true }, () => {
        for (const mode of ["standards", "quirks"])
            test(mode, { timeout: 60_000 }, () => run(mode));
    });
}

// Makes the page as good as hidden behind another tab (or shown again): what a page can see of it, in one go.
export async function setHidden(page, bHidden) {
    await page.evaluate((hidden) => {
        Object.defineProperty(document, "hidden", { configurable: true, get: () => hidden });
        Object.defineProperty(document, "visibilityState", {
            configurable: true,
            get: () => (hidden ? "hidden" : "visible"),
        });
        document.dispatchEvent(new Event("visibilitychange"));
    }, bHidden);
}

// Collects what read (a function for the page) gives until done(values) is true or the time is over; consecutive
// equal values count once. For watching something move.
export async function watch(page, read, done, { milliseconds = 10_000, argument } = {}) {
    const values = [];
    const end = Date.now() + milliseconds;
    while (Date.now() < end) {
        const value = await page.evaluate(read, argument);
        if (values.length === 0 || JSON.stringify(values.at(-1)) !== JSON.stringify(value))
            values.push(value);
        if (done(values))
            return values;
        await page.waitForTimeout(20);
    }
    assert.fail(`not seen within ${milliseconds} ms; seen: ${JSON.stringify(values.slice(-20))}`);
}

// The properties of an element's style, as the browser shows them.
export function styleOf(locator, ...names) {
    return locator.evaluate((element, list) => list.map((name) => getComputedStyle(element)[name]), names);
}

// For the option "before": new Date() and Date.now() give the local time that window.testNow holds, at first the
// given one. Timers run on.
export const at = (text) => `{
    const RealDate = Date;
    window.testNow = ${JSON.stringify(text)};
    window.Date = class extends RealDate {
        constructor(...given) {
            super(...(given.length > 0 ? given : [window.testNow]));
        }
        static now() {
            return +new RealDate(window.testNow);
        }
    };
}`;
