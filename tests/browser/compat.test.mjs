import assert from "node:assert/strict";
import { givePage, setHidden, testBothModes } from "./harness.mjs";

const include = '<script src="orrelix-compat.js"></script>';

// Declarations as generated text has them, and as they have to be for the author's choice to show.
const repairs = [
    ["top:100; left:0; margin:-2 0.5 .5 1em", "top:100px; left:0; margin:-2px 0.5px .5px 1em"],
    ["border:2 inset #ff6820; background:8b8b00;", "border:2px inset #ff6820; background:#8b8b00;"],
    ["border: 100 solid 123; border-color:100 200", "border: 100px solid #123; border-color:#100 #200"],
    ["background:000000; BACKGROUND: fff; color:32cd32", "background:#000000; BACKGROUND: #fff; color:#32cd32"],
    ["background:url(1 2.gif?a;b) 8b8b00", "background:url(1 2.gif?a;b) 8b8b00"],
    ["background:url('a;b 12.gif') 8b8b00", "background:url('a;b 12.gif') #8b8b00"],
    ["padding-Top: 1 !important; clip:rect(0 100 50 0)", "padding-Top: 1px !important; clip:rect(0 100px 50px 0)"],
    ["font-family:@Fixedsys,8514oem, Arial", 'font-family:"@Fixedsys","8514oem", Arial'],
    ["cursor: hand; /* a:b; */width:10", "cursor: pointer; /* a:b; */width:10px"],
    ["font-weight:700; line-height:2; z-index:3; content:'5 ; 6'", null],
    ["color: #; font-size:px; border:0  #; font-family:; 1 none #ffffff; color: red", null],
];

testBothModes(givePage(include), "what a browser would drop of a style is repaired, and nothing else", async ({ page }) => {
    for (const [given, wanted] of repairs) {
        const [once, twice] = await page.evaluate((text) => {
            const repaired = window.brndfn.css(text);
            return [repaired, window.brndfn.css(repaired)];
        }, given);
        assert.equal(once, wanted ?? given);
        assert.equal(twice, once, "repairing again changes nothing");
    }
});

const markup = `${include}<p id="other" style="left:7">x</p><div id="own" style="width:70">
    <b style="color:32cd32;font-size:20">b</b><style>#own i {border:3 solid #00ff00; } #own u {width:5px}</style><i>i</i></div>`;

testBothModes(givePage(markup), "the repair keeps to the element it was asked for", async ({ page }) => {
    const seen = await page.evaluate(() => {
        window.brndfn.repair(document.getElementById("own"));
        const style = (selector) => getComputedStyle(document.querySelector(selector));
        return [
            style("#own").width,
            style("#own b").color,
            style("#own b").fontSize,
            style("#own i").borderTopWidth,
            document.getElementById("other").getAttribute("style"),
        ];
    });
    assert.deepEqual(seen, ["70px", "rgb(50, 205, 50)", "20px", "3px", "left:7"]);
});

const collections = `${include}<a id="first" href="#1">1</a><a name="second" href="#2">2</a>
    <script>window.early = document.links("second").href.slice(-2)</script><area href="#3">`;

testBothModes(givePage(collections), "document.all and document.links are as the old text expects", async ({ page }) => {
    const seen = await page.evaluate(() => {
        const nLinks = document.links.length;
        document.body.append(Object.assign(document.createElement("a"), { href: "#4" }));
        return {
            truthy: Boolean(document.all) && document.all != null,
            called: document.all("first").id,
            named: [document.all.first.id, document.all["first"].id, document.all.item("first").id],
            tags: document.all.tags("A").length,
            numbered: document.all(0).tagName,
            early: window.early,
            linkByNumber: document.links(1).name,
            missing: document.links("nowhere"),
            live: document.links.length - nLinks,
            walked: Array.from(document.links, (link) => link.hash).join(),
            collection: document.links instanceof HTMLCollection,
        };
    });
    assert.deepEqual(seen, {
        truthy: true,
        called: "first",
        named: ["first", "first", "first"],
        tags: 3,
        numbered: "HTML",
        early: "#2",
        linkByNumber: "second",
        missing: null,
        live: 1,
        walked: "#1,#2,#3,#4",
        collection: true,
    });
});

const handlers = `<script>window.calls = []; window.onload = () => calls.push("page")</script>${include}${include}
    <body onload="calls.push('body')">
    <script>
    function effect() { calls.push("effect") }
    window.onload = effect;
    document.body.onload = effect;
    document.body.onload = () => { calls.push("failing"); throw new Error("on purpose") };
    const old = window.onload;
    window.onload = (event) => { old(event); calls.push("wrapper") };
    </script>`;

testBothModes(givePage(handlers), "no load handler is lost, none runs twice", async ({ page, errors }) => {
    assert.deepEqual(await page.evaluate(() => window.calls), ["page", "body", "effect", "failing", "wrapper"]);
    const [complaint, ...others] = errors.splice(0);
    assert.match(complaint, /on purpose/);
    assert.deepEqual(others, []);
});

// Who counts frames and timer calls: running, held, and on a hidden page.
testBothModes(givePage(`${include}<button>b</button>`), "frames and timers run only when they may", async ({ page }) => {
    await page.evaluate(() => {
        window.counts = { frames: 0, timer: 0 };
        window.handles = [
            window.brndfn.frames(() => window.counts.frames++),
            window.brndfn.every(20, () => window.counts.timer++),
        ];
        for (const handle of window.handles)
            window.brndfn.pausable(document.querySelector("button"), handle);
    });
    const all = (operation) => page.evaluate((name) => window.handles.forEach((handle) => handle[name]()), operation);
    const button = page.locator("button");
    const running = async () => {
        await page.evaluate(() => Object.assign(window.counts, { frames: 0, timer: 0 }));
        await page.waitForTimeout(250);
        const { frames, timer } = await page.evaluate(() => window.counts);
        assert.equal(frames > 0, timer > 0);
        return frames > 0;
    };
    for (const [step, act, bRunning] of [
        ["started", () => {}, true],
        ["paused", () => all("pause"), false],
        ["pointer comes", () => button.hover(), false],
        ["pointer goes, still paused", () => page.mouse.move(900, 600), false],
        ["resumed", () => all("resume"), true],
        ["focus", () => button.focus(), false],
        ["blur", () => button.blur(), true],
        ["hidden", () => setHidden(page, true), false],
        ["shown", () => setHidden(page, false), true],
        ["stopped", () => all("stop"), false],
        ["stopped for good", () => all("resume"), false],
    ]) {
        await act();
        assert.equal(await running(), bRunning, step);
    }
});
