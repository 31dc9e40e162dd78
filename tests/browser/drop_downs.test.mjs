// Fade Select Box and Link Select Table: what both promise, then what one has for itself.
import assert from "node:assert/strict";
import { countListeners, givePage, pageText, styleOf, tap, testEverywhere } from "./harness.mjs";

const LINKS = [
    ["Home, sweet home", "http://www.vellumark.example/home?from=1,2"],
    ["Library", "http://www.vellumark.example/books?kind=old&page=1"],
    ["Write to us", "http://www.brindlefen.example/letter"],
    ["No address", ""],
];
const LIBRARY = [[LINKS[1][1], "_blank"]];
const BORDER = ["borderTopWidth", "borderTopStyle", "borderTopColor"];
const ROW = ["backgroundColor", "color", "fontSize", ...BORDER];
const MARKED = ["rgb(31, 58, 95)", "rgb(255, 255, 255)", "18px", "1px", "dotted", "rgb(255, 215, 0)"];

// Windows that the page opens are noted, as [address, target], and who listens.
const before = `(${() => {
    window.opened = [];
    window.open = (...given) => window.opened.push(given);
}})(); (${countListeners})()`;

const opened = (page) => page.evaluate(() => window.opened.splice(0));
const field = (page) => page.getByRole("combobox");
const rows = (page) => page.getByRole("option");
const closed = (page) => rows(page).first().waitFor({ state: "hidden" });

async function choose(page, nItem, nBox = 0) {
    await field(page).nth(nBox).click();
    await rows(page).nth(nItem).click();
    await closed(page);
    return (await field(page).nth(nBox).innerText()).trim();
}

const NAMES = { fade_select: "Fade Select Box", cool_link: "Link Select Table" };
for (const effect of Object.keys(NAMES)) {
    testEverywhere(`${effect}_rich`, "works by mouse", async ({ page }) => {
        await field(page).click();
        const places = () => rows(page).evaluateAll((all) => JSON.stringify(all.map((row) => row.getBoundingClientRect())));
        const [still, plain] = [await places(), await styleOf(rows(page).nth(2), ...ROW)];
        for (const nMarked of [2, 1]) {
            await rows(page).nth(nMarked).hover();
            assert.deepEqual(await styleOf(rows(page).nth(nMarked), ...ROW), MARKED);
        }
        assert.deepEqual(await styleOf(rows(page).nth(2), ...ROW), plain);
        assert.equal(await places(), still, "no row moves for a mark");
        await page.mouse.click(900, 600);
        await closed(page);
        assert.deepEqual(await opened(page), [], "a press beside the box");

        for (const [nItem, expected] of [[1, LIBRARY], [3, []]]) {
            assert.equal(await choose(page, nItem), LINKS[nItem][0]);
            assert.deepEqual(await opened(page), expected);
        }
    }, { before, shows: { [NAMES[effect]]: ["mouse"] } });

    testEverywhere(`${effect}_rich`, "works by touch", async ({ page }) => {
        await tap(page, field(page));
        await tap(page, { x: 900, y: 600 });
        await closed(page);
        await tap(page, field(page));
        await tap(page, rows(page).nth(1));
        await closed(page);
        assert.deepEqual(await opened(page), LIBRARY);
    }, { before, shows: { [NAMES[effect]]: ["touch"] } });

    testEverywhere(`${effect}_rich`, "works by keys, and is told to a screen reader", async ({ page }) => {
        // Where the list will open, so that it comes up under the resting pointer.
        const { x, y, height } = await field(page).boundingBox();
        await page.mouse.move(x + 30, y + height + 80);
        await page.keyboard.press("Tab");
        assert.equal(await field(page).getAttribute("aria-expanded"), "false");
        const active = () => field(page).evaluate((element) =>
            document.getElementById(element.getAttribute("aria-activedescendant")).innerText.trim());
        for (const [key, nItem] of [["Enter", 0], ["ArrowDown", 1], ["ArrowUp", 0], ["ArrowUp", 0], ["End", 3],
            ["ArrowDown", 3], ["Home", 0], ["w", 2], ["Home", 0]]) {
            await page.keyboard.press(key);
            await page.waitForTimeout(50);
            assert.equal(await active(), LINKS[nItem][0], `after ${key}`);
        }
        await page.mouse.move(x + 31, y + height + 80);
        assert.equal(await active(), LINKS[2][0], "the pointer counts again when it moves");
        assert.equal(await field(page).getAttribute("aria-expanded"), "true");
        assert.equal(await page.getByRole("listbox", { name: "Links", exact: true }).count(), 1);
        assert.equal(await page.getByRole("option", { selected: true }).innerText(), LINKS[0][0]);
        await page.keyboard.press("Escape");
        await closed(page);
        assert.deepEqual(await opened(page), []);
        const nListening = await page.evaluate(() => window.nListening);
        await page.keyboard.press(" ");
        assert.ok((await page.evaluate(() => window.nListening)) > nListening);
        for (const key of ["ArrowDown", "Enter"])
            await page.keyboard.press(key);
        await closed(page);
        assert.equal(await page.evaluate(() => window.nListening), nListening, "nothing is left listening");
        assert.deepEqual(await opened(page), LIBRARY);
        await page.keyboard.press("ArrowDown");
        assert.equal(await active(), LINKS[1][0], "opens at the chosen item");
        await page.keyboard.press("Tab");
        await closed(page);
    }, { before, alone: true, shows: { [NAMES[effect]]: ["keys"] } }); // the last Tab leaves the page

    testEverywhere(`${effect}_rich`, "the list stays in the window and moves nothing of the page", async ({ page }) => {
        await page.locator("table").first().evaluate((table) => {
            // In a corner of the window, and within an element that cuts off what sticks out.
            table.parentElement.style.overflow = "hidden";
            table.style.cssText += "; position: fixed; left: auto; top: auto; right: 0; bottom: 0";
        });
        const extent = () => page.evaluate(() => [document.scrollingElement.scrollWidth, document.scrollingElement.scrollHeight]);
        const still = [await extent(), await field(page).boundingBox()];
        await field(page).click();
        const list = await page.getByRole("listbox").boundingBox();
        assert.deepEqual([await extent(), await field(page).boundingBox()], still);
        assert.ok(list.x >= 0 && list.x + list.width <= 1000, `across: ${JSON.stringify(list)}`);
        assert.ok(list.y >= 0 && list.y + list.height <= still[1].y + 1, `above the box: ${JSON.stringify(list)}`);
    });
}

// The rich page with these items in place of its own.
const withItems = {
    fade_select: (page, items) => page.replace(/(topArray\[\d+\] = .*\r?\n)+/, (all) => items.map((item, i) =>
        all.split("\n")[3].replace(/\[\d+\]/, `[${i}]`).replace("No address", item)).join("\n")),
    cool_link: (page, items) => page.replace(/(<div class="museumoption".*\r?\n)+/, () => items.map((item) =>
        `<div class="museumoption" value="" nowrap>${item}</div>`).join("\n")),
};
const TICKER = '<div id="ticker" style="height: 20px; overflow: auto">a<br>b<br>c</div><div style="height: 2000px"></div>';
const scrolledTo = (element) => element.evaluate(({ scrollTop }) => scrollTop);

for (const [effect, change] of Object.entries(withItems)) {
    const items = ["Zwei <b>fett</b> und drei", `An item ${"that is wide ".repeat(20)}`,
        ...Array.from({ length: 58 }, (_, i) => `Item ${i + 3}`)];
    const text = change(await pageText(`${effect}_rich`), items).replace(/<main[^>]*>/, `<main>${TICKER}`);
    testEverywhere(givePage(text), "sixty items, one of them wide, are read to the end in a narrow window", async ({ page }) => {
        assert.equal((await field(page).innerText()).trim(), "Zwei fett und drei");
        await field(page).click();
        const list = page.getByRole("listbox");
        const { x, y, width, height } = await list.boundingBox();
        assert.ok(x >= 0 && x + width <= 300 && y >= 0 && y + height <= 500, JSON.stringify([x, y, width, height]));
        const sideways = (element) => element.evaluate(({ scrollWidth, clientWidth }) => scrollWidth - clientWidth);
        assert.deepEqual(await Promise.all([list, page.locator("html")].map(sideways)), [0, 0]);

        const last = rows(page).last();
        await last.scrollIntoViewIfNeeded();
        const before = await scrolledTo(list);
        assert.ok(before > 500);
        await page.evaluate(() => {
            window.nScrolls = 0;
            document.addEventListener("scroll", () => window.nScrolls++, { capture: true });
            document.getElementById("ticker").scrollTop = 10;
            window.scrollBy(0, -30);
        });
        await page.waitForFunction(() => window.nScrolls > 1);
        assert.equal(await scrolledTo(list), before, "the list stays where it was");
        const [box, open] = [await field(page).boundingBox(), await list.boundingBox()];
        assert.ok(Math.abs(Math.max(box.y - open.y - open.height, open.y - box.y - box.height)) < 3, "and at its box");

        await page.evaluate(() => document.addEventListener("mousemove", (event) => (window.lastMove = event), true));
        await last.hover();
        await page.keyboard.press("ArrowUp");
        const marked = await field(page).getAttribute("aria-activedescendant");
        await last.evaluate((row) => row.dispatchEvent(new MouseEvent("mousemove",
            { bubbles: true, screenX: window.lastMove.screenX, screenY: window.lastMove.screenY })));
        assert.equal(await field(page).getAttribute("aria-activedescendant"), marked, "a resting pointer marks nothing");
        const handled = await field(page).evaluate((element) => {
            const event = new KeyboardEvent("keydown", { key: "i", altKey: true, bubbles: true, cancelable: true });
            return !element.dispatchEvent(event);
        });
        assert.equal(handled, false, "Alt and a letter are the browser's");
    }, { before, viewport: { width: 300, height: 500 } });
}

const together = ["fade_select_plain", "fade_select_rich", "cool_link_plain", "cool_link_rich"];
const row = '<div style="height: 200px"></div>';
testEverywhere(givePage((await Promise.all(together.map(pageText))).join(row)), "boxes on a page keep apart",
    async ({ page }) => {
        await page.evaluate(() => {
            document.body.insertAdjacentHTML("beforeend", '<span class="myselect">mine</span>');
            window.museuminitSelectBoxes();
        });
        assert.equal(await page.locator(".myselect").getAttribute("role"), null);
        assert.equal(await field(page).count(), 4);
        for (const [nBox, color] of [[0, "rgb(139, 0, 0)"], [1, MARKED[1]], [2, "rgb(139, 0, 0)"], [3, MARKED[1]]]) {
            await field(page).nth(nBox).click();
            await page.waitForFunction(() => document.querySelectorAll("[popover]:popover-open").length === 1);
            assert.deepEqual(await styleOf(rows(page).first(), "color"), [color], `the mark of box ${nBox}`);
        }
        await page.keyboard.press("Escape");
        await closed(page);
        assert.equal(await choose(page, 1, 3), "Library");
        assert.deepEqual(await opened(page), LIBRARY);
        assert.equal((await field(page).first().innerText()).trim(), "Our Homepage");
    }, { before });

testEverywhere(givePage((await pageText("cool_link_rich")).replaceAll("museum", "")), "a box without a title works too",
    async ({ page }) => {
        assert.equal(await choose(page, 1), "Library");
        assert.deepEqual(await opened(page), LIBRARY);
    }, { before });

// The list's opacity with each of n steps of 25 milliseconds, a twentieth each.
async function assertFades(page, from, to) {
    await page.clock.runFor(0);
    for (let n = from; ; n += Math.sign(to - from)) {
        const [opacity] = await styleOf(page.getByRole("listbox"), "opacity");
        assert.ok(Math.abs(opacity - n / 20) < 0.001, `${opacity} is not ${n}/20`);
        if (n === to)
            return;
        await page.clock.runFor(25);
    }
}

for (const reducedMotion of [false, true])
    testEverywhere("fade_select_rich", `the list fades in 20 steps, not with reduced motion (${reducedMotion})`,
        async ({ page }) => {
            await page.clock.pauseAt(Date.now() + 3_600_000);
            await field(page).click();
            await assertFades(page, reducedMotion ? 20 : 0, 20);
            await page.keyboard.press("Escape");
            if (!reducedMotion) {
                await assertFades(page, 20, 12);
                await page.keyboard.press("Enter");
                await assertFades(page, 12, 15);
                await page.keyboard.press("Escape");
                await assertFades(page, 15, 1);
                await page.clock.runFor(25);
            }
            assert.equal(await rows(page).count(), 0);
        }, { clock: true, calm: reducedMotion });
