// What all browser tests share: a web server on loopback that tells case apart, one headless Chromium for each
// test file, and pages that fail their test when anything is complained about in their console.
//
//     import { testBothModes } from "./harness.mjs";
//     testBothModes("cool_link_plain", "the list opens", async ({ page }) => { … });
//
// The pages are what the program makes: ORRELIX_PAGES names their folder. "/standards/NAME.html" is the page with
// "<!DOCTYPE html>" in front, "/quirks/NAME.html" the same page without.
import { after, test } from "node:test";
import assert from "node:assert/strict";
import { createServer } from "node:http";
import { readFile, readdir } from "node:fs/promises";
import path from "node:path";
import { chromium } from "playwright-core";

export const MODES = ["standards", "quirks"];

const CHROMIUM_ARGUMENTS = [
    "--no-sandbox",
    "--disable-gpu",
    "--disable-quic",
    "--no-first-run",
    "--disable-background-networking",
    "--disable-component-update",
    "--disable-sync",
];

const CONTENT_TYPES = {
    ".css": "text/css",
    ".gif": "image/gif",
    ".htm": "text/html",
    ".html": "text/html",
    ".jpg": "image/jpeg",
    ".js": "text/javascript",
    ".mjs": "text/javascript",
    ".png": "image/png",
    ".svg": "image/svg+xml",
};

const DOCTYPE = /^\s*<!doctype[^>]*>\s*/i;

// Pages given as text by a test, by their path behind the mode; they win over the folder's files.
const givenPages = new Map();
let nGivenPages = 0;

function inMode(html, mode) {
    const bare = html.toString("latin1").replace(DOCTYPE, "");
    return Buffer.from(mode === "standards" ? `<!DOCTYPE html>\r\n${bare}` : bare, "latin1");
}

// The bytes of a file below ORRELIX_PAGES, or undefined. Each step of the path is looked up in its folder's
// listing, so that a name in the wrong case is missing on every file system.
async function readPage(relative) {
    let folder = process.env.ORRELIX_PAGES;
    if (!folder)
        return undefined;
    const steps = relative.split("/").filter((step) => step !== "");
    for (const step of steps) {
        if (!(await readdir(folder).catch(() => [])).includes(step))
            return undefined;
        folder = path.join(folder, step);
    }
    return readFile(folder).catch(() => undefined);
}

async function answer(request, response) {
    const pathname = decodeURIComponent(new URL(request.url, "http://localhost").pathname);
    if (pathname === "/favicon.ico") {
        response.writeHead(204).end();
        return;
    }
    const [, mode, relative] = /^\/(standards|quirks)\/(.*)$/s.exec(pathname) ?? [];
    const bytes = mode && (givenPages.get(relative) ?? (await readPage(relative)));
    if (!bytes) {
        response.writeHead(404).end();
        return;
    }
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
        args: CHROMIUM_ARGUMENTS,
    });
    return { server, browser, origin: `http://127.0.0.1:${server.address().port}` };
}

after(async () => {
    if (!started)
        return;
    const { server, browser } = await started;
    await browser.close();
    server.closeAllConnections();
    await new Promise((closed) => server.close(closed));
});

// The address of a page (or of any file of the pages' folder) in a mode.
export async function address(relative, mode = "standards") {
    started ??= start();
    return `${(await started).origin}/${mode}/${relative}`;
}

// Serves a text under a name of its own choosing beside the folder's pages; gives the name for openEffect. The
// text may be a page's HTML or, with another extension, a script or a picture that the page refers to.
export function givePage(text, name = `given_${++nGivenPages}.html`) {
    givenPages.set(name, Buffer.isBuffer(text) ? text : Buffer.from(text, "utf8"));
    return name.replace(/\.html$/, "");
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
//   scripts        false: a visitor without scripts
//   before         an arrow function run in the page before its first script (see Playwright's addInitScript)
//   clock          true: the page's time stands still until the test moves it with page.clock
// Gives {page, errors, close}. close() throws when the console or a script complained; errors lists the complaints
// so far, and a test that provokes one on purpose empties it.
export async function openEffect(
    name,
    { mode = "standards", reducedMotion = false, scripts = true, before, clock = false, viewport } = {},
) {
    const url = await address(`${name}.html`, mode);
    const { browser } = await started;
    const context = await browser.newContext({
        javaScriptEnabled: scripts,
        reducedMotion: reducedMotion ? "reduce" : "no-preference",
        viewport: viewport ?? { width: 1000, height: 700 },
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
    const response = await page.goto(url);
    if (!response.ok())
        errors.push(`${url}: ${response.status()}`);
    return {
        page,
        errors,
        async close() {
            await context.close();
            assert.deepEqual(errors, [], `complaints of ${url}`);
        },
    };
}

// One test for each mode: opens NAME.html, runs body({page, errors, mode}), closes the page. Options as for
// openEffect, and node:test's own.
export function testBothModes(name, title, body, options = {}) {
    for (const mode of MODES)
        test(`${name}, ${mode}: ${title}`, { timeout: 60_000, ...options }, async () => {
            const effect = await openEffect(name, { ...options, mode });
            try {
                await body({ ...effect, mode });
            } catch (failure) {
                await effect.close().catch((complaint) => { failure.message += `\n${complaint.message}`; });
                throw failure;
            }
            await effect.close();
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
