// Scroll Text: what passes through the box, in real time.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import path from "node:path";
import { givePage, testBothModes, watch } from "./harness.mjs";

const PLAIN = readFileSync(path.join(process.env.ORRELIX_PAGES ?? ".", "scroll_text_plain.html"), "utf8");
const TEXTS = [...PLAIN.matchAll(/className ='brnclick'\\">(.*)<\/a>/g)].map((match) => match[1]);

// The plain page with other texts and in a hurry: a second for the height of the box.
function quick(texts = TEXTS, page = PLAIN) {
    const link = /^brndfnmessages\[0\]=.*\r\n/m.exec(page)[0];
    const links = texts.map((text, i) =>
        link.replace("[0]", `[${i}]`).replace(/>[^>]*<\/a>/, () => `>${text}</a>`));
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
const inBox = async (page) => (await page.evaluate(inBoxes))[0];

const starts = (page) => watch(page, inBoxes, (values) => values.length > 1);

async function stands(page) {
    const before = await page.evaluate(inBoxes);
    await page.waitForTimeout(400);
    assert.deepEqual(await page.evaluate(inBoxes), before);
}

// What each frame showed, until done(frames) is true: looking from outside would miss some on a busy machine.
async function everyFrame(page, done) {
    await page.evaluate(`{
        const inBoxes = ${inBoxes};
        window.frames = [];
        const look = () => {
            window.frames.push(inBoxes());
            requestAnimationFrame(look);
        };
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

testBothModes("scroll_text_plain", "moves upwards inside its box, in the author's styles", async ({ page }) => {
    await watch(page, inBoxes, (values) => values.some(([earlier]) => earlier.some(({ text, top }) =>
        values.at(-1)[0].some((now) => now.text === text && now.top < top - 5))));
    const looks = await page.evaluate(() => {
        const { width, height, overflow } = getComputedStyle(document.querySelector("#brndfnscrollmain2"));
        const { fontSize, color, fontFamily } = getComputedStyle(document.querySelector("#first2 a"));
        return { width, height, overflow, fontSize, color, fontFamily, page: document.documentElement.scrollHeight };
    });
    assert.ok(looks.page <= 700, "what waits for its turn makes the page no longer");
    delete looks.page;
    assert.deepEqual(looks, { width: "300px", height: "100px", overflow: "hidden", fontSize: "10px",
        color: "rgb(210, 180, 140)", fontFamily: "Arial" });
    await page.hover("#brndfnscrollmain2", { position: { x: 290, y: 5 } });
    const link = page.getByRole("link", { name: (await inBox(page))[0].text });
    await page.mouse.move((await link.boundingBox()).x + 20, (await link.boundingBox()).y + 5);
    const over = await link.evaluate((link) => {
        const { color, cursor } = getComputedStyle(link);
        return [color, cursor];
    });
    assert.deepEqual(over, ["rgb(230, 230, 250)", "pointer"]);
});

// The texts in the order in which they enter from below.
function entries(frames) {
    const low = frames.flatMap(([box]) => box.filter(({ top }) => top > 60).map(({ text }) => text));
    return low.filter((text, i) => text !== low[i - 1]);
}

testBothModes(givePage(quick()), "all texts come by in turn and begin again", async ({ page }) => {
    const seen = await everyFrame(page, (frames) => entries(frames).length > TEXTS.length);
    const order = entries(seen);
    const nFirst = TEXTS.indexOf(order[0]);
    assert.deepEqual(order, order.map((_, i) => TEXTS[(nFirst + i) % TEXTS.length]));
    for (const [box] of seen)
        assert.ok(box.length < 2 || (box.length === 2 && box[0].text !== box[1].text), JSON.stringify(box));
    for (const text of TEXTS)
        assert.equal(await page.getByRole("link", { name: text }).count(), 1, `${text} is told once`);
});

testBothModes(givePage(quick()), "stops under the mouse and while the focus is inside", async ({ page }) => {
    await starts(page);
    await page.hover("#brndfnscrollmain2");
    await stands(page);
    await page.mouse.move(5, 600);
    await starts(page);
    for (const text of TEXTS) {
        await page.keyboard.press("Tab");
        assert.deepEqual((await inBox(page)).map((shown) => shown.text), [text], "the focused text is in the box");
        await stands(page);
    }
    await page.evaluate(() => document.activeElement.blur());
    await starts(page);
});

testBothModes(givePage(quick(["Alone"])), "a single text leaves and comes again", async ({ page }) => {
    const seen = await everyFrame(page, (frames) => {
        const nLeaving = frames.findIndex(([box]) => box[0]?.top < 0);
        return nLeaving >= 0 && frames.slice(nLeaving).some(([box]) => box[0]?.top > 60);
    });
    assert.ok(seen.every(([box]) => box.length <= 1));
});

testBothModes(givePage(quick([])), "without a text the box is empty and stands", async ({ page }) => {
    assert.equal((await page.locator("#brndfnscrollmain2").innerText()).trim(), "");
    assert.equal(await page.locator("#brndfnscrollmain2").evaluate((box) => box.offsetHeight), 100);
});

const LONG = `first line${"<br>line".repeat(20)}<br>last line`;
testBothModes(givePage(quick([LONG, "Next"])), "a text taller than the box passes to its end", async ({ page }) => {
    await everyFrame(page, (frames) => {
        const nEnd = frames.findIndex(([box]) => box.some(({ top }) => top < -180));
        return nEnd >= 0 && frames.slice(nEnd).some(([box]) => box.at(-1)?.text === "Next");
    });
});

testBothModes(givePage(quick(undefined, PLAIN.replace(/<body>([^]*)<\/body>/,
    (_, box) => `<body>${box}${quick(["Other", "Another"], box)}</body>`))),
"two boxes on a page keep their own texts", async ({ page }) => {
    await watch(page, inBoxes, (values) => TEXTS.includes(values.at(-1)[0][0]?.text));
    await watch(page, inBoxes, (values) => values.at(-1)[1].some(({ text }) => text === "Another"));
});

testBothModes(givePage(quick([...TEXTS, ...TEXTS, ...TEXTS])), "with reduced motion it is a list to scroll by hand",
    async ({ page }) => {
        await stands(page);
        const range = await page.locator("#brndfnscrollmain2").evaluate((box) => {
            box.scrollTop = 9999;
            return [box.clientHeight, box.scrollTop];
        });
        assert.equal(range[0], 100);
        assert.ok(range[1] > 50, "scrolls by hand");
        assert.equal((await inBox(page)).at(-1).text, TEXTS[3]);
    }, { reducedMotion: true });
