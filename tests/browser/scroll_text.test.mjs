// Scroll Text: what passes through the box, in real time.
import assert from "node:assert/strict";
import { givePage, pageText, styleOf, testEverywhere, watch } from "./harness.mjs";

const PLAIN = await pageText("scroll_text_plain");
const TEXTS = [...PLAIN.matchAll(/className ='brnclick'\\">(.*)<\/a>/g)].map((match) => match[1]);

// The plain page with other texts and in a hurry: a second for the height of the box.
function quick(texts = TEXTS, page = PLAIN) {
    const link = /^brndfnmessages\[0\]=.*\r\n/m.exec(page)[0];
    const links = texts.map((text, i) => link.replace("[0]", `[${i}]`).replace(/>[^>]*<\/a>/, () => `>${text}</a>`));
    return page
        .replace(/(brndfnmessages\[\d+\]=.*\r\n)+/, () => links.join(""))
        .replace(/(brndfnspeednormal)=.*\r/, "$1=1000\r")
        .replace(/(brndfnspeedmore)=.*\r/, "$1=100\r");
}

// The texts that can be seen in each box, with the place of their upper edge in it.
const inBoxes = () =>
    [...document.querySelectorAll("[id=brndfnscrollmain2]")].map((box) => {
        const { top, bottom } = box.getBoundingClientRect();
        return [...box.querySelectorAll("a")]
            .map((link) => ({ text: link.textContent, edges: link.getBoundingClientRect() }))
            .filter(({ edges }) => edges.bottom > top && edges.top < bottom)
            .map(({ text, edges }) => ({ text, top: edges.top - top }));
    });

testEverywhere("scroll_text_plain", "stands in its box in the author's styles", async ({ page }) => {
    assert.deepEqual(await styleOf(page.locator("#brndfnscrollmain2"), "width", "height", "overflow"), ["300px", "100px", "hidden"]);
    const link = page.locator("#first2 a");
    await page.keyboard.press("Tab");
    await link.hover();
    assert.deepEqual(await styleOf(link, "color", "cursor"), ["rgb(230, 230, 250)", "pointer"]);
});

// What each frame showed, until done(frames) is true: looking from outside would miss some on a busy machine.
async function everyFrame(page, done) {
    await page.evaluate(`{
        const look = () => {
            window.frames.push((${inBoxes})());
            requestAnimationFrame(look);
        };
        window.frames = [];
        look();
    }`);
    const frames = [];
    for (const end = Date.now() + 20_000; Date.now() < end && !done(frames);) {
        await page.waitForTimeout(100);
        frames.push(...await page.evaluate(() => window.frames.splice(0)));
    }
    assert.ok(done(frames), JSON.stringify(frames.slice(-20)));
    return frames;
}

const enters = (text) => ([box]) => box.some((shown) => shown.text === text && shown.top > 60);
const follows = (frames, first, second) => frames.findIndex(first) >= 0 && frames.slice(frames.findIndex(first)).some(second);
const LONG = `first line${"<br>line".repeat(20)}<br>last line`;

for (const [what, texts, done] of [
    ["all texts come by and begin again", TEXTS, (frames) => TEXTS.every((text) => frames.some(enters(text)))
        && TEXTS.every((text, i) => i === 0 || follows(frames, enters(TEXTS[i]), enters(TEXTS[0])))],
    ["a single text leaves and comes again", ["Alone"], (frames) =>
        follows(frames, ([box]) => box[0]?.top < 0, enters("Alone"))],
    ["a text taller than the box passes to its end", [LONG, "Next"], (frames) =>
        follows(frames, ([box]) => box.some(({ top }) => top < -180), ([box]) => box.at(-1)?.text === "Next")],
    ["without a text the box is empty", [], (frames) => frames.length > 10 && frames.every(([box]) => box.length === 0)],
])
    testEverywhere(givePage(quick(texts)), what, async ({ page }) => {
        for (const [box] of await everyFrame(page, done))
            assert.ok(box.length < 2 || (box.length === 2 && box[0].text !== box[1].text), JSON.stringify(box));
    });

testEverywhere(givePage(quick(undefined, PLAIN.replace(/<body>([^]*)<\/body>/,
    (_, box) => `<body>${box}${quick(["Other", "Another"], box)}</body>`))),
"two boxes keep their own texts, and the focused one is in its box", async ({ page }) => {
    await watch(page, inBoxes, (values) => values.at(-1)[1].some(({ text }) => text === "Another"));
    for (const text of TEXTS) {
        assert.equal(await page.getByRole("link", { name: text }).count(), 1, `${text} is told once`);
        await page.keyboard.press("Tab");
        assert.deepEqual((await page.evaluate(inBoxes))[0].map((shown) => shown.text), [text]);
    }
});

testEverywhere(givePage(quick().replace(/<main[^>]*>([^]*)<\/main>/, "<details>$1</details>")),
    "in a panel that is closed at first the texts come one after another too", async ({ page }) => {
        await page.locator("details").evaluate((panel) => (panel.open = true));
        for (const [box] of await everyFrame(page, (frames) => frames.some(([shown]) => shown.length === 2)))
            assert.ok(box.length < 2 || Math.abs(box[0].top - box[1].top) > 15, JSON.stringify(box));
    });

testEverywhere(givePage(quick([...TEXTS, ...TEXTS, "Last"])), "with reduced motion it is a list to scroll by hand",
    async ({ page }) => {
        await page.locator("#brndfnscrollmain2").evaluate((box) => (box.scrollTop = 9999));
        assert.equal((await page.evaluate(inBoxes))[0].at(-1).text, "Last");
    }, { calm: true });
