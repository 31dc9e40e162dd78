// Scroll Text: what passes through the box, in real time.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import path from "node:path";
import { givePage, testBothModes, watch } from "./harness.mjs";

const PLAIN = readFileSync(path.join(process.env.ORRELIX_PAGES ?? ".", "scroll_text_plain.html"), "latin1");
const TEXTS = [...PLAIN.matchAll(/className ='brnclick'\\">(.*)<\/a>/g)].map((match) => match[1]);

// The plain page with other texts and in a hurry: 400 ms for the height of the box.
function quick(texts = TEXTS, page = PLAIN) {
    const link = /^brndfnmessages\[0\]=.*\r\n/m.exec(page)[0];
    const links = texts.map((text, i) => link.replace("[0]", `[${i}]`).replace(/>[^>]*<\/a>/, () => `>${text}</a>`));
    return page
        .replace(/(brndfnmessages\[\d+\]=.*\r\n)+/, () => links.join(""))
        .replace(/(brndfnspeednormal)=.*\r/, "$1=400\r")
        .replace(/(brndfnspeedmore)=.*\r/, "$1=60\r");
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
const inBox = async (page) => (await page.evaluate(inBoxes))[0];

async function moves(page) {
    const before = await page.evaluate(inBoxes);
    await page.waitForTimeout(250);
    return JSON.stringify(before) !== JSON.stringify(await page.evaluate(inBoxes));
}

testBothModes("scroll_text_plain", "moves upwards inside its box, in the author's styles", async ({ page }) => {
    const [first] = await inBox(page);
    await page.waitForTimeout(600);
    const [later] = await inBox(page);
    assert.deepEqual([first.text, later.text], [TEXTS[0], TEXTS[0]]);
    assert.ok(later.top < first.top - 5 && later.top > first.top - 40, `${first.top} to ${later.top}`);
    const looks = await page.evaluate(() => {
        const { width, height, overflow } = getComputedStyle(document.querySelector("#brndfnscrollmain2"));
        const { fontSize, color, fontFamily } = getComputedStyle(document.querySelector("#first2 a"));
        return { width, height, overflow, fontSize, color, fontFamily, page: document.documentElement.scrollHeight };
    });
    assert.ok(looks.page <= 700, "what waits for its turn makes the page no longer");
    delete looks.page;
    assert.deepEqual(looks, { width: "300px", height: "100px", overflow: "hidden", fontSize: "10px",
        color: "rgb(210, 180, 140)", fontFamily: "Arial" });
    const { x, y } = await page.locator("#first2 a").boundingBox();
    await page.mouse.move(x + 20, y + 5);
    const over = await page.locator("#first2 a").evaluate((link) => {
        const { color, cursor } = getComputedStyle(link);
        return [color, cursor];
    });
    assert.deepEqual(over, ["rgb(230, 230, 250)", "pointer"]);
});

// The texts in the order in which they enter from below.
function entries(values) {
    const low = values.flatMap(([box]) => box.filter(({ top }) => top > 60).map(({ text }) => text));
    return low.filter((text, i) => text !== low[i - 1]);
}

testBothModes(givePage(quick()), "all texts come by in turn, each by itself, and begin again", async ({ page }) => {
    const seen = await watch(page, inBoxes, (values) => entries(values).length > TEXTS.length);
    const order = entries(seen);
    const nFirst = TEXTS.indexOf(order[0]);
    assert.deepEqual(order, order.map((_, i) => TEXTS[(nFirst + i) % TEXTS.length]));
    for (const [box] of seen)
        assert.ok(box.length <= 2 && new Set(box.map(({ text }) => text)).size === box.length, JSON.stringify(box));
    for (const text of TEXTS)
        assert.equal(await page.getByRole("link", { name: text }).count(), 1, `${text} is told once`);
});

testBothModes(givePage(quick()), "stops under the mouse and while the focus is inside", async ({ page }) => {
    assert.ok(await moves(page));
    await page.hover("#brndfnscrollmain2");
    assert.ok(!(await moves(page)), "under the mouse");
    await page.mouse.move(5, 600);
    assert.ok(await moves(page), "the mouse has gone");
    for (const text of TEXTS) {
        await page.keyboard.press("Tab");
        assert.deepEqual((await inBox(page)).map((shown) => shown.text), [text], "the focused text is in the box");
        assert.ok(!(await moves(page)), "focus inside");
    }
    await page.evaluate(() => document.activeElement.blur());
    assert.ok(await moves(page), "the focus has gone");
});

testBothModes(givePage(quick(["Alone"])), "a single text leaves and comes again", async ({ page }) => {
    const seen = await watch(page, inBoxes, (values) => {
        const nLeaving = values.findIndex(([box]) => box[0]?.top < 0);
        return nLeaving >= 0 && values.slice(nLeaving).some(([box]) => box[0]?.top > 60);
    });
    assert.ok(seen.every(([box]) => box.length <= 1));
});

testBothModes(givePage(quick([])), "without a text the box is empty and stands", async ({ page }) => {
    assert.equal((await page.locator("#brndfnscrollmain2").innerText()).trim(), "");
    assert.equal(await page.locator("#brndfnscrollmain2").evaluate((box) => box.offsetHeight), 100);
});

const LONG = `first line${"<br>line".repeat(20)}<br>last line`;
testBothModes(givePage(quick([LONG, "Next"])), "a text taller than the box passes through to its end", async ({ page }) => {
    await watch(page, inBoxes, (values) => values.at(-1)[0].some(({ top }) => top < -180));
    await watch(page, inBoxes, (values) => values.at(-1)[0][0]?.text === "Next");
});

testBothModes(givePage(quick(undefined, PLAIN.replace(/<body>([^]*)<\/body>/,
    (_, box) => `<body>${box}${quick(["Other", "Another"], box)}</body>`))),
"two boxes on a page keep their own texts", async ({ page }) => {
    const [upper, lower] = await page.evaluate(() =>
        [...document.querySelectorAll("[id=brndfnscrollmain2]")].map((box) => [...box.querySelectorAll("a")].length));
    assert.deepEqual([upper, lower], [4, 2]);
    await watch(page, inBoxes, (values) => values.at(-1)[1].some(({ text }) => text === "Another"));
});

testBothModes(givePage(quick([...TEXTS, ...TEXTS, ...TEXTS])), "with reduced motion it is a list to scroll by hand",
    async ({ page }) => {
        assert.ok(!(await moves(page)));
        const range = await page.locator("#brndfnscrollmain2").evaluate((box) => {
            box.scrollTop = 9999;
            return [box.clientHeight, box.scrollTop];
        });
        assert.equal(range[0], 100);
        assert.ok(range[1] > 50, "scrolls by hand");
        assert.equal((await inBox(page)).at(-1).text, TEXTS[3]);
    }, { reducedMotion: true });
