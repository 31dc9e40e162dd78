// What Fade Select Box and Link Select Table have in common, tested on the pages of either.
import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import path from "node:path";
import { givePage, testBothModes } from "./harness.mjs";

// For the option "before": windows that the page opens are noted instead, as [address, target].
export function noteOpened() {
    window.opened = [];
    window.open = (...given) => window.opened.push(given);
}

export const opened = (page) => page.evaluate(() => window.opened.splice(0));
export const field = (page) => page.getByRole("combobox");
export const rows = (page) => page.getByRole("option");

// The looks of an element that an author can choose, as the browser shows them.
export function look(locator, properties) {
    return locator.evaluate((element, names) => {
        const style = getComputedStyle(element);
        return Object.fromEntries(names.map((name) => [name, style[name]]));
    }, properties);
}

// A page of several examples in one, with room between them; gives its name.
export async function together(...names) {
    const texts = names.map((name) => readFile(path.join(process.env.ORRELIX_PAGES, `${name}.html`), "utf8"));
    return givePage((await Promise.all(texts)).join('<div style="height: 200px"></div>'));
}

// The items of the rich examples of both.
const links = [
    { text: "Home, sweet home", address: "http://www.vellumark.example/home?from=1,2" },
    { text: "Library", address: "http://www.vellumark.example/books?kind=old&page=1" },
    { text: "Write to us", address: "http://www.brindlefen.example/letter" },
    { text: "No address", address: "" },
];

// effect is the stem of the example pages, marked the look of the marked item on the rich one.
export async function testDropDown(effect, marked) {
    const rich = `${effect}_rich`;
    const options = { before: noteOpened };
    const closed = (page) => rows(page).first().waitFor({ state: "hidden" });

    testBothModes(rich, "choosing an item shows it in the box and opens its address", async ({ page }) => {
        await field(page).click();
        await rows(page).nth(1).click();
        assert.deepEqual(await opened(page), [[links[1].address, "_blank"]]);
        await closed(page);
        assert.equal((await field(page).innerText()).trim(), links[1].text);
    }, options);

    testBothModes(rich, "an item without an address is shown and opens nothing", async ({ page }) => {
        const index = links.findIndex(({ address }) => address === "");
        await field(page).click();
        await rows(page).nth(index).click();
        await closed(page);
        assert.equal((await field(page).innerText()).trim(), links[index].text);
        assert.deepEqual(await opened(page), []);
    }, options);

    testBothModes(rich, "the item under the mouse is marked, and no row moves for it", async ({ page }) => {
        await field(page).click();
        const places = () => rows(page).evaluateAll((all) =>
            all.map((row) => JSON.stringify(row.getBoundingClientRect())));
        const before = await places();
        const plain = await look(rows(page).nth(2), Object.keys(marked));
        await rows(page).nth(2).hover();
        assert.deepEqual(await look(rows(page).nth(2), Object.keys(marked)), marked);
        await rows(page).nth(1).hover();
        assert.deepEqual(await look(rows(page).nth(2), Object.keys(marked)), plain);
        assert.deepEqual(await look(rows(page).nth(1), Object.keys(marked)), marked);
        assert.deepEqual(await places(), before);
    });

    testBothModes(rich, "all of it works by keys", async ({ page }) => {
        const active = () => field(page).evaluate((element) => {
            const id = element.getAttribute("aria-activedescendant");
            return id && document.getElementById(id).innerText.trim();
        });
        const at = (index) => links.at(index).text;
        // Where the list will open, so that it comes up under the resting pointer.
        const box = await field(page).boundingBox();
        await page.mouse.move(box.x + 30, box.y + box.height + 80);
        const steps = [
            ["Enter", at(0)], ["ArrowDown", at(1)], ["ArrowUp", at(0)], ["ArrowUp", at(0)], ["End", at(-1)],
            ["ArrowDown", at(-1)], ["Home", at(0)], ["w", at(2)], ["Home", at(0)],
        ];
        await page.keyboard.press("Tab");
        for (const [key, expected] of steps) {
            await page.keyboard.press(key);
            await page.waitForTimeout(50);
            assert.equal(await active(), expected, `after ${key}`);
        }
        await page.mouse.move(box.x + 31, box.y + box.height + 80);
        assert.equal(await active(), at(2), "the pointer counts again when it moves");
        await page.keyboard.press("Escape");
        await closed(page);
        assert.deepEqual(await opened(page), []);
        await page.keyboard.press(" ");
        await page.keyboard.press("ArrowDown");
        await page.keyboard.press("Enter");
        await closed(page);
        assert.deepEqual(await opened(page), [[links[1].address, "_blank"]]);
        await page.keyboard.press("ArrowDown");
        assert.equal(await active(), at(1), "opens at the chosen item");
        await page.keyboard.press("Tab");
        await closed(page);
    }, options);

    testBothModes(rich, "a screen reader is told a named combo box and its list", async ({ page }) => {
        const name = await field(page).getAttribute("aria-label");
        assert.notEqual(name, "");
        assert.equal(await field(page).getAttribute("aria-expanded"), "false");
        await field(page).click();
        assert.equal(await field(page).getAttribute("aria-expanded"), "true");
        assert.equal(await page.getByRole("listbox", { name, exact: true }).count(), 1);
        assert.equal(await page.getByRole("option", { selected: true }).innerText(), links[0].text);
        const alternatives = await page.locator("img").evaluateAll((images) => images.map((image) => image.alt));
        assert.ok(alternatives.every((text) => text === ""), `the item's text names it: ${alternatives}`);
    });

    testBothModes(await together(`${effect}_plain`, rich), "two boxes on a page keep apart", async ({ page }) => {
        const [first, second] = [field(page).nth(0), field(page).nth(1)];
        await first.click();
        assert.equal((await look(rows(page).first(), ["color"])).color, "rgb(139, 0, 0)", "the plain one's mark");
        await second.click();
        await page.waitForFunction(() => document.querySelectorAll("[popover]:popover-open").length === 1);
        assert.equal(await first.getAttribute("aria-expanded"), "false");
        assert.equal((await look(rows(page).first(), ["color"])).color, marked.color, "the rich one's mark");
        await rows(page).nth(1).click();
        assert.deepEqual(await opened(page), [[links[1].address, "_blank"]]);
        assert.equal((await first.innerText()).trim(), "Our Homepage");
    }, options);

    testBothModes(rich, "a press beside the box closes the list", async ({ page }) => {
        await field(page).click();
        await page.mouse.click(900, 600);
        await closed(page);
        assert.deepEqual(await opened(page), []);
    }, options);

    testBothModes(rich, "the list stays in the window and moves nothing of the page", async ({ page }) => {
        const box = page.locator("table").first();
        const extent = () => page.evaluate(() => {
            const view = document.scrollingElement;
            return [view.scrollWidth, view.scrollHeight];
        });
        // In a corner of the window, and within an element that cuts off what sticks out.
        await page.evaluate(() => { document.querySelector("table").parentElement.style.overflow = "hidden"; });
        await box.evaluate(({ style }) => { style.cssText += "; position: fixed; inset: auto 0 0 auto"; });
        const before = [await extent(), await field(page).boundingBox()];
        await field(page).click();
        const list = await page.getByRole("listbox").boundingBox();
        assert.deepEqual([await extent(), await field(page).boundingBox()], before);
        assert.ok(list.x >= 0 && list.x + list.width <= 1000, `across: ${JSON.stringify(list)}`);
        assert.ok(list.y >= 0 && list.y + list.height <= before[1].y + 1, `above the box: ${JSON.stringify(list)}`);
        await rows(page).last().click();
        await closed(page);
    });

    testBothModes(rich, "nothing is left listening when the list is closed", async ({ page }) => {
        await field(page).click();
        assert.notDeepEqual(await page.evaluate(() => [...window.listening]), []);
        await page.keyboard.press("Escape");
        await closed(page);
        assert.deepEqual(await page.evaluate(() => [...window.listening]), []);
    }, { before: noteListeners });
}

// For the option "before": window.listening holds what came to listen to the window and the document after the
// page had loaded, and still does.
function noteListeners() {
    window.listening = new Set();
    window.addEventListener("load", () => {
        for (const target of [window, document]) {
            const { addEventListener, removeEventListener } = target;
            target.addEventListener = (type, listener, options) => {
                window.listening.add(type);
                options?.signal?.addEventListener("abort", () => window.listening.delete(type));
                addEventListener.call(target, type, listener, options);
            };
            target.removeEventListener = (type, ...rest) => {
                window.listening.delete(type);
                removeEventListener.call(target, type, ...rest);
            };
        }
    });
}
