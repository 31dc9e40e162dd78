// ToolTip: when and where the tip shows, in real time.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import path from "node:path";
import { givePage, testBothModes, watch } from "./harness.mjs";

const PLAIN = readFileSync(path.join(process.env.ORRELIX_PAGES ?? ".", "tool_tip_plain.html"), "utf8");
const TITLE = /id="([^"]*)" tooltip=/.exec(PLAIN)[1];
const TEXT = "visit our homepage";

// The plain page with its effect written for other times, as often as there are titles.
function quick({ delay = 300, show = 60_000, titles = [TITLE], change = (effect) => effect } = {}) {
    const timed = PLAIN.replace(/delayTime = \d+/, `delayTime = ${delay}`)
        .replace(/showTime = \d+/, `showTime = ${show}`);
    return timed.replace(/<SCRIPT LANGUAGE[^]*?<a .*<\/a>/, (effect) =>
        titles.map((title) => `<p>${change(effect).replaceAll(TITLE, title)}</p>`).join("\r\n"));
}

const shown = (page) => page.locator("[role=tooltip]:visible");
const element = (page, title = TITLE) => page.locator(`[id="${title}"]`);

async function isInWindow(page) {
    const { x, y, width, height } = await shown(page).boundingBox();
    const size = page.viewportSize();
    return x >= 0 && y >= 0 && x + width <= size.width && y + height <= size.height;
}

// Where the moving text of a tip is.
const strip = () => document.querySelector("[role=tooltip] span span").getBoundingClientRect().left;

// Milliseconds until the number of visible tips is n.
async function until(page, n) {
    const start = Date.now();
    const count = () =>
        [...document.querySelectorAll("[role=tooltip]")].filter((tip) => tip.checkVisibility()).length;
    await watch(page, count, (counts) => counts.at(-1) === n, { milliseconds: 12_000 });
    return Date.now() - start;
}

testBothModes("tool_tip_plain", "shows after its delay at the pointer, in the author's style", async ({ page }) => {
    const { x, y } = await element(page).boundingBox();
    await page.mouse.move(x + 10, y + 8);
    const delay = await until(page, 1);
    assert.ok(delay > 450 && delay < 4000, `after ${delay} ms`);
    const box = await shown(page).boundingBox();
    assert.ok(box.x - x < 40 && box.y - y < 50 && (await isInWindow(page)), JSON.stringify(box));
    const looks = await shown(page).evaluate((tip) => {
        const { backgroundColor, borderTopWidth, borderTopStyle, borderTopColor } = getComputedStyle(tip);
        const text = getComputedStyle([...tip.querySelectorAll("*")].at(-1));
        return [backgroundColor, borderTopWidth, borderTopStyle, borderTopColor, text.color, text.fontSize];
    });
    assert.deepEqual(looks,
        ["rgb(139, 139, 0)", "2px", "inset", "rgb(255, 104, 32)", "rgb(50, 205, 50)", "20px"]);
    await watch(page, strip, (lefts) => lefts.some((left) => left < lefts[0] - 10));
    const time = await until(page, 0);
    assert.ok(time < 9000, `gone after ${time} ms`);
});

testBothModes(givePage(quick({ show: 900 })), "goes after its time, and shows again only after the pointer has left",
    async ({ page }) => {
    await element(page).hover();
    assert.equal(await shown(page).count(), 0, "not at once");
    await until(page, 1);
    const time = await until(page, 0);
    assert.ok(time > 600 && time < 4000, `shown for ${time} ms`);
    await element(page).hover({ position: { x: 4, y: 4 } });
    await page.waitForTimeout(600);
    assert.equal(await shown(page).count(), 0, "still the same visit");
    await page.mouse.move(600, 500);
    await element(page).hover();
    await until(page, 1);
});

testBothModes(givePage(quick()), "goes when left and on Escape, stays while the pointer is on it",
    async ({ page }) => {
    await element(page).hover();
    await until(page, 1);
    await shown(page).hover();
    const left = await page.evaluate(strip);
    await page.waitForTimeout(1200);
    assert.equal(await shown(page).count(), 1, "on the tip");
    assert.equal(await page.evaluate(strip), left, "its text stands under the pointer");
    await page.mouse.move(600, 500);
    assert.ok((await until(page, 0)) < 4000, "left");
    await element(page).hover();
    await page.mouse.move(600, 500);
    await page.waitForTimeout(600);
    assert.equal(await shown(page).count(), 0, "left before the delay was over");
    await element(page).hover();
    await until(page, 1);
    await page.keyboard.press("Escape");
    assert.equal(await shown(page).count(), 0, "Escape");
});

const CORNER = ' style="position:fixed; right:2px; bottom:2px"';
testBothModes(givePage(quick({ change: (effect) => effect.replace(/(<a [^]*?)( id=)/, `$1${CORNER}$2`) })),
    "stays inside the window in its lower right corner", async ({ page }) => {
        await element(page).hover();
        await until(page, 1);
        assert.ok(await isInWindow(page));
    });

// An element of a tag that takes no focus by itself.
const inSpan = (effect) => effect.replace(/<a href="[^"]*" /, "<span").replace(/<\/a>$/, "</span>");
testBothModes(givePage(quick({ titles: ["one", "Two"], change: inSpan })),
    "two tips: each shows beside its element on keyboard focus and is told with it", async ({ page }) => {
        for (const title of ["one", "Two"]) {
            await page.keyboard.press("Tab");
            assert.equal(await page.evaluate(() => document.activeElement.id), title);
            await until(page, 1);
            const [tip, it] = [await shown(page).boundingBox(), await element(page, title).boundingBox()];
            assert.ok(Math.abs(tip.y - it.y - it.height) < 10, JSON.stringify([tip, it]));
            assert.ok(Math.abs(tip.x - it.x) < 10, JSON.stringify([tip, it]));
            const description = await element(page, title).evaluate((e) =>
                document.getElementById(e.getAttribute("aria-describedby")).textContent.trim());
            assert.equal(description, TEXT);
        }
        await page.evaluate(() => document.activeElement.blur());
        await until(page, 0);
    });

testBothModes(givePage(quick()), "an element that comes later has a tip, one that goes takes it along",
    async ({ page }) => {
    await page.evaluate((title) => {
        const later = document.createElement("p");
        later.innerHTML = "<b id=later tooltip='<nobr><span>late</span>' tooltipstyle='background:fff'>Later</b>";
        document.body.append(later);
        document.getElementById(title).remove();
    }, TITLE);
    await element(page, "later").hover();
    assert.ok((await until(page, 1)) > 450, "the usual delay, where no variable tells it");
    assert.equal((await shown(page).textContent()).trim(), "late");
    assert.equal(await page.locator("[role=tooltip]").count(), 1);
    await page.evaluate(() => document.getElementById("later").remove());
    await until(page, 0);
});

testBothModes(givePage(quick()), "with reduced motion the text stands and is readable whole", async ({ page }) => {
    await element(page).hover();
    await until(page, 1);
    const places = () => {
        const [tip, text] = ["[role=tooltip]", "[role=tooltip] span span"].map((name) =>
            document.querySelector(name).getBoundingClientRect());
        return [text.left, text.left >= tip.left && text.right <= tip.right && text.bottom <= tip.bottom];
    };
    const before = await page.evaluate(places);
    await page.waitForTimeout(1200);
    assert.deepEqual(await page.evaluate(places), before);
    assert.ok(before[1]);
}, { reducedMotion: true });
