// What all browser tests share: a web server on loopback, one headless Chromium and one headless Firefox for each test
// file, and pages that fail their test when anything is complained about in their console.
//
//     import { testEverywhere } from "./harness.mjs";
//     testEverywhere("cool_link_plain", "the list opens", async ({ page }) => { … });
//
// The Firefox is any that speaks WebDriver BiDi, such as the system's. Of the library's versions the last that asks
// nothing of it that it doesn't know is 1.64. What that can't ask for yet is made here: tap() and setCalm().
//
// The pages are what the program makes: ORRELIX_PAGES names their folder. "/standards/NAME.html" is the page with
// "<!DOCTYPE html>" in front, "/quirks/NAME.html" the same page without.
import { after, describe, test } from "node:test";
import assert from "node:assert/strict";
import { createServer } from "node:http";
import { readFile } from "node:fs/promises";
import path from "node:path";
import { chromium, firefox } from "playwright-core";

const CONTENT_TYPES = { ".css": "text/css", ".gif": "image/gif", ".html": "text/html", ".js": "text/javascript" };

// Style sheets that many pages have, by the name under which they are served beside the pages.
const SHEETS = {
    "pico.css": "@picocss/pico/css/pico.css",
    "bootstrap.css": "bootstrap/dist/css/bootstrap.css",
    "tailwind.css": "tailwindcss/preflight.css",
};

// Pages given as text by a test, by their path behind the mode; they win over the folder's files.
const givenPages = new Map();
let nGivenPages = 0;

// What runs in pages before their own first script, by the number with which they are asked for.
const preludes = [""];

function inMode(html, mode, prelude) {
    const bare = html.toString("latin1").replace(/^\s*<!doctype[^>]*>\s*/i, "");
    const first = prelude && `<script>${prelude}; document.currentScript.remove()</script>`;
    return Buffer.from((mode === "standards" ? "<!DOCTYPE html>\r\n" : "") + first + bare, "latin1");
}

// The bytes of a file below ORRELIX_PAGES or of a style sheet, or undefined.
function readPage(relative) {
    const file = Object.hasOwn(SHEETS, relative)
        ? path.join(import.meta.dirname, "node_modules", SHEETS[relative])
        : path.join(process.env.ORRELIX_PAGES ?? "", relative);
    return readFile(file).catch(() => undefined);
}

async function answer(request, response) {
    const url = new URL(request.url, "http://localhost");
    const pathname = decodeURIComponent(url.pathname);
    const [, mode, relative] = /^\/(standards|quirks)\/(.*)$/s.exec(pathname) ?? [];
    const bytes = mode && (givenPages.get(relative) ?? (await readPage(relative)));
    if (!bytes)
        return response.writeHead(pathname === "/favicon.ico" ? 204 : 404).end();
    const type = CONTENT_TYPES[path.extname(relative).toLowerCase()] ?? "application/octet-stream";
    response.writeHead(200, { "Content-Type": type, "Cache-Control": "no-store" });
    response.end(type === "text/html" ? inMode(bytes, mode, preludes[Number(url.searchParams.get("prelude"))]) : bytes);
}

const BROWSERS = {
    chromium: () => chromium.launch({
        executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium",
        args: ["--no-sandbox", "--disable-gpu"],
    }),
    firefox: () => firefox.launch({
        channel: "moz-firefox",
        executablePath: process.env.FIREFOX ?? "/usr/bin/firefox-esr",
        firefoxUserPrefs: { "dom.w3c_touch_events.enabled": 1, "dom.ipc.processPrelaunch.enabled": false, "fission.autostart": false },
    }),
};

const MODES = ["standards", "quirks"];
const VIEWPORT = { width: 1000, height: 700 };

// The server and the browsers start with the first page that needs them and end with the file's last test.
const started = {};
const onlyOnce = (name, start) => (started[name] ??= start());

async function startServer() {
    const server = createServer((request, response) => {
        answer(request, response).catch((error) => response.writeHead(500).end(String(error)));
    });
    await new Promise((listening) => server.listen(0, "127.0.0.1", listening));
    return {
        origin: `http://127.0.0.1:${server.address().port}`,
        close() {
            server.closeAllConnections();
            server.close();
        },
    };
}

after(() => Promise.all(Object.values(started).map(async (running) => (await running).close())));

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

// The parts of NAME.html: its head, of that the scripts that it loads, its body, and of that the effect alone.
export async function partsOf(name) {
    const text = await pageText(name);
    const between = (tag, from) => new RegExp(`<${tag}[^>]*>(.*)</${tag}>`, "is").exec(from)?.[1];
    const [head, body] = [between("head", text), between("body", text)];
    const scripts = (head.match(/<script[^>]*\ssrc=[^>]*><\/script>/gi) ?? []).join("");
    return { head, scripts, body, effect: between("main", body) };
}

// For the option "before": window.nListening counts who listens to anything.
export const countListeners = () => {
    window.nListening = 0;
    const { addEventListener, removeEventListener } = EventTarget.prototype;
    EventTarget.prototype.addEventListener = function (type, listener, options) {
        window.nListening++;
        if (options?.signal)
            addEventListener.call(options.signal, "abort", () => window.nListening--);
        addEventListener.call(this, type, listener, options);
    };
    EventTarget.prototype.removeEventListener = function (...given) {
        window.nListening--;
        removeEventListener.apply(this, given);
    };
};

// For the option "calm" in Firefox, which can be told of reduced motion for all its pages only: the media query's
// answer, changed by setCalm.
const answerCalm = (bCalm) => {
    const native = window.matchMedia;
    const answers = [];
    window.setCalm = (bMatches) => {
        for (const answer of answers) {
            answer.matches = bMatches;
            answer.dispatchEvent(Object.assign(new Event("change"), { matches: bMatches }));
        }
    };
    window.matchMedia = (query) => {
        if (!/prefers-reduced-motion:\s*reduce/.test(query))
            return native.call(window, query);
        answers.push(Object.assign(new EventTarget(), { matches: bCalm, media: query }));
        return answers.at(-1);
    };
};

// Until the page has shown what was changed.
export async function nextFrame(page) {
    await page.evaluate(() => new Promise((over) => requestAnimationFrame(() => requestAnimationFrame(over))));
}

// The visitor asks for reduced motion, or no longer.
export async function setCalm(page, bCalm) {
    if (isFirefox(page))
        await page.evaluate((calm) => window.setCalm(calm), bCalm);
    else
        await page.emulateMedia({ reducedMotion: bCalm ? "reduce" : "no-preference" });
    await nextFrame(page); // media queries tell of a change with a frame
}

const isFirefox = (page) => page.context().browser().browserType().name() === "firefox";

// A finger's touch in the middle of what the locator finds, or at a place {x, y} of the page's window.
export async function tap(page, where) {
    if (!isFirefox(page) && where.tap)
        return where.tap();
    await where.scrollIntoViewIfNeeded?.();
    const box = where.boundingBox ? await where.boundingBox() : { ...where, width: 0, height: 0 };
    const [x, y] = [Math.round(box.x + box.width / 2), Math.round(box.y + box.height / 2)];
    if (!isFirefox(page))
        return page.touchscreen.tap(x, y);
    const session = page._connection.toImpl(page).delegate._session;
    const actions = [{ type: "pointerMove", x, y }, { type: "pointerDown", button: 0 }, { type: "pointerUp", button: 0 }];
    return session.send("input.performActions", {
        context: session.sessionId,
        actions: [{ type: "pointer", id: "finger", parameters: { pointerType: "touch" }, actions }],
    });
}

// A page in a browser context of its own, with the complaints of its console and scripts.
async function newPage({ browser, calm = false, clock = false }) {
    const context = await (await onlyOnce(browser, BROWSERS[browser])).newContext({
        reducedMotion: calm ? "reduce" : "no-preference",
        viewport: VIEWPORT,
        hasTouch: true,
    });
    const page = await context.newPage();
    const errors = [];
    page.on("console", (message) => {
        if (["error", "warning"].includes(message.type()))
            errors.push(`${message.text()} (${message.location().url})`);
    });
    page.on("pageerror", (error) => errors.push(error.stack || String(error)));
    if (clock)
        await page.clock.install();
    if (isFirefox(page))
        await page.addInitScript(answerCalm, calm);
    return { page, errors };
}

// Making a page takes longer than most tests: they take one that another has left.
const left = new Map();

async function takePage(options) {
    const { browser, calm = false, clock, alone = clock, viewport = VIEWPORT } = options;
    const key = `${browser} ${calm}`;
    const taken = (!alone && left.get(key)?.pop()) || (await newPage(options));
    await taken.page.bringToFront();
    const { width, height } = taken.page.viewportSize();
    if (width !== viewport.width || height !== viewport.height)
        await taken.page.setViewportSize(viewport);
    return {
        ...taken,
        async giveBack() {
            if (alone)
                return taken.page.context().close();
            await taken.page.goto("about:blank");
            await taken.page.mouse.move(0, 0);
            if (!isFirefox(taken.page))
                await taken.page.emulateMedia({ reducedMotion: calm ? "reduce" : "no-preference" });
            taken.errors.length = 0;
            left.set(key, [...(left.get(key) ?? []), taken]);
        },
    };
}

function preludeOf(before) {
    if (!before)
        return "";
    const text = typeof before === "function" ? `(${before})()` : before;
    if (!preludes.includes(text))
        preludes.push(text);
    return `?prelude=${preludes.indexOf(text)}`;
}

// Opens NAME.html.
//   mode           "standards" or "quirks"
//   calm           the visitor asks for reduced motion
//   before         run in the page before its first script: an arrow function, or statements as text
//   clock          true: the page's time stands still until the test moves it with page.clock
//   alone          true: the page is for this test alone, which leaves it as no other can use it
//   viewport       the window's size, if not 1000 by 700: { width: 360, height: 640 }
//   shows          what docs/browsers.md may say of it: { "ToolTip": ["mouse", "touch"] }
// Gives {page, errors, close}. close() throws when the console or a script complained; errors lists the complaints
// so far, and a test that provokes one on purpose empties it.
async function openEffect(name, options) {
    const { origin } = await onlyOnce("server", startServer);
    const url = `${origin}/${options.mode}/${name}.html${preludeOf(options.before)}`;
    const { page, errors, giveBack } = await takePage(options);
    assert.ok((await page.goto(url)).ok(), `no ${url}`);
    return {
        page,
        errors,
        async close() {
            const complaints = errors.slice();
            await giveBack();
            assert.deepEqual(complaints, [], `complaints of ${url}`);
        },
    };
}

// Opens another page in the place of the one that the test was given, in the same mode.
export async function goOn(page, name) {
    const [, mode] = new URL(page.url()).pathname.split("/");
    await page.goto(new URL(`/${mode}/${name}.html`, page.url()).href);
}

// What the tests of a file show, a line for each effect and way of using it, instead of running them.
function tell(title, shows) {
    for (const [effect, ways] of Object.entries(shows))
        for (const way of ways)
            console.log(JSON.stringify({ effect, way, title, browsers: Object.keys(BROWSERS), modes: MODES }));
}

// A test for each browser and mode: opens NAME.html, runs body({page, errors, mode, browser}), closes the page. Options
// as for openEffect. All run at once, but one after the other in Firefox, where one window only has the focus.
export function testEverywhere(name, title, body, options = {}) {
    if (process.env.ORRELIX_ONLY_TELL)
        return tell(title, options.shows ?? {});
    const run = async (where) => {
        const effect = await openEffect(name, { ...options, ...where });
        try {
            await body({ ...effect, ...where });
        } catch (failure) {
            await effect.close().catch((complaint) => { failure.message += `\n${complaint.message}`; });
            throw failure;
        }
        await effect.close();
    };
    describe(`${name}: ${title}`, { concurrency: true }, () => {
        for (const browser of Object.keys(BROWSERS))
            describe(browser, { concurrency: browser === "chromium" }, () => {
                for (const mode of MODES)
                    test(mode, { timeout: 60_000 }, () => run({ browser, mode }));
            });
    });
}

// Makes the page as good as hidden behind another tab (or shown again): what a page can see of it, in one go.
async function setHidden(page, bHidden) {
    await page.evaluate((hidden) => {
        Object.defineProperty(document, "hidden", { configurable: true, get: () => hidden });
        Object.defineProperty(document, "visibilityState", {
            configurable: true,
            get: () => (hidden ? "hidden" : "visible"),
        });
        document.dispatchEvent(new Event("visibilitychange"));
    }, bHidden);
}

// The page is scrolled to its end, far from what was in view, or back, and who watches for that has been told.
async function setOutOfView(page, bOut) {
    await page.evaluate(async (out) => {
        if (out)
            document.body.insertAdjacentHTML("beforeend", '<div style="height: 5000px"></div>');
        window.scrollTo(0, out ? 9999 : 0);
        await new Promise((told) => {
            new IntersectionObserver((entries, observer) => { observer.disconnect(); told(); })
                .observe(document.body.lastElementChild);
        });
    }, bOut);
}

// Ways in which nobody sees the page, each with what brings it about and what ends it.
export const unseen = [
    ["in the background", (page) => setHidden(page, true), (page) => setHidden(page, false)],
    ["out of view", (page) => setOutOfView(page, true), (page) => setOutOfView(page, false)],
];

// For the option "before": window.nTicks counts the calls of timers and frames.
export const countTicks = () => {
    window.nTicks = 0;
    for (const name of ["setTimeout", "setInterval", "requestAnimationFrame"]) {
        const native = window[name];
        window[name] = (fn, ...rest) =>
            native.call(window, typeof fn === "function" ? (...given) => { window.nTicks++; fn(...given); } : fn, ...rest);
    }
};

// What runs in the page: timers and frames that came in between, and what the browser moves.
export const running = (page, time) => page.evaluate(async (milliseconds) => {
    const pass = () => new Promise((over) => { window.nTicks--; setTimeout(over, milliseconds); });
    await pass(); // what is due comes once more
    const before = window.nTicks;
    await pass();
    return [window.nTicks - before, document.getAnimations().filter(({ playState }) => playState === "running").length];
}, time);

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

// The properties of an element's style, as the browser shows them; font names without their quotes, which one browser
// writes where the other doesn't.
export async function styleOf(locator, ...names) {
    const values = await locator.evaluate((element, list) => list.map((name) => getComputedStyle(element)[name]), names);
    return values.map((value, i) => (names[i] === "fontFamily" ? value.replaceAll('"', "") : value));
}

// For the option "before": clocks and intervals of the page run ten times as fast, so that a test needn't wait for seconds.
export const hurry = () => {
    const [RealDate, start, setRealInterval] = [Date, Date.now(), setInterval];
    window.Date = class extends RealDate {
        constructor(...given) {
            super(...(given.length > 0 ? given : [window.Date.now()]));
        }
        static now() {
            return start + 10 * (RealDate.now() - start);
        }
    };
    window.setInterval = (fn, milliseconds, ...rest) => setRealInterval(fn, milliseconds / 10, ...rest);
};

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
