import test from "node:test";
import assert from "node:assert/strict";
import { givePage, openEffect, pageText, setHidden, testBothModes, watch } from "./harness.mjs";

// What a visitor sees of the text: how far below the top of its box it stands, its colour and its words.
function look() {
    const element = document.getElementById("brndfntextanim");
    const top = element.getBoundingClientRect().top - element.parentElement.getBoundingClientRect().top;
    return { top, color: getComputedStyle(element).color, text: element.innerText.trim() };
}

const shownText = () => document.getElementById("brndfntextanim").innerText.trim();

// A text that takes eleven seconds to rise, for tests that catch it on its way.
const slow = givePage(
    (await pageText("animate_text_plain")).replace(/textinterval=\d+/, "textinterval=100"),
    "animate_text_slow.html",
);

// Texts that stay for a second only, for tests that watch them come and go.
const brief = givePage(
    (await pageText("animate_text_rich")).replace(/layinterval=\d+/, "layinterval=10"),
    "animate_text_brief.html",
);
const color = "rgb(122, 31, 31)";
const texts = [
    "Harvest festival, Saturday 14th\nin the old mill",
    "New: walks along the river, with a map",
    "All the news, week by week",
];

async function assertMoves(page, bMoves) {
    const before = await page.evaluate(look);
    await page.waitForTimeout(300);
    const after = await page.evaluate(look);
    assert.equal(after.top < before.top, bMoves, `from ${before.top} to ${after.top}`);
}

testBothModes(slow, "a text rises and takes on its colour with every frame", async ({ page }) => {
    const seen = await page.evaluate(async (text) => {
        const lookAt = window.eval(text);
        const values = [];
        for (const end = performance.now() + 1000; performance.now() < end; ) {
            values.push(lookAt());
            await new Promise(requestAnimationFrame);
        }
        return values;
    }, `(${look})`);
    const tops = seen.map(({ top }) => top);
    assert.ok(tops[0] > 0 && tops[0] <= 110, `starts at ${tops[0]}`);
    for (let i = 1; i < tops.length; i++)
        assert.ok(tops[i] < tops[i - 1], `frame ${i} of ${tops}`);
    assert.notEqual(seen.at(-1).color, seen[0].color);
});

testBothModes("animate_text_plain", "a text arrives at the top in its colour", async ({ page }) => {
    const seen = await watch(page, look, (values) => values.at(-1).top === 0);
    const { color: last, text } = seen.at(-1);
    assert.deepEqual({ last, text }, { last: "rgb(0, 0, 255)", text: "Animate Text" });
});

testBothModes(brief, "the texts follow one another and begin again", async ({ page }) => {
    const seen = await watch(page, shownText, (shown) => shown.length > 3, { milliseconds: 20_000 });
    assert.deepEqual(seen, [...texts, texts[0]]);
});

testBothModes(slow, "a click or a key stops the text and lets it go on", async ({ page }) => {
    const element = page.locator("#brndfntextanim");
    const ways = [() => element.click({ force: true }), () => element.press("Enter")];
    for (const toggle of ways) {
        await assertMoves(page, true);
        await toggle();
        await assertMoves(page, false);
        await toggle();
    }
});

testBothModes(brief, "a link in the text stays while it has focus", async ({ page }) => {
    await watch(page, shownText, (shown) => shown.at(-1) === texts[2], { milliseconds: 20_000 });
    await page.locator("#brndfntextanim a").focus();
    await page.waitForTimeout(4_000);
    assert.deepEqual(await page.evaluate(look), { top: 0, color, text: texts[2] });
});

testBothModes(
    brief,
    "with reduced motion the texts change without movement and fading",
    async ({ page }) => {
        const seen = await watch(page, look, (values) => values.length > 2, { milliseconds: 20_000 });
        assert.deepEqual(new Set(seen.map(({ top, color }) => `${top} ${color}`)), new Set([`0 ${color}`]));
    },
    { reducedMotion: true },
);

testBothModes(
    slow,
    "on a hidden page nothing runs",
    async ({ page }) => {
        await assertMoves(page, true);
        await setHidden(page, true);
        await page.evaluate(() => (window.nFrames = 0));
        await assertMoves(page, false);
        assert.equal(await page.evaluate(() => window.nFrames), 0);
        await setHidden(page, false);
        await assertMoves(page, true);
    },
    {
        before: () => {
            const native = window.requestAnimationFrame;
            window.requestAnimationFrame = (fn) => {
                window.nFrames++;
                return native(fn);
            };
        },
    },
);

test("a box without texts stays empty and takes clicks", async () => {
    const name = givePage(
        '<script src="animate.js"></script><div><div id="brndfntextanim" onclick="breakf()">&nbsp;</div></div>',
    );
    const { page, close } = await openEffect(name);
    await page.locator("#brndfntextanim").click();
    assert.equal(await page.evaluate(shownText), "");
    await close();
});
