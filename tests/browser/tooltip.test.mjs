// ToolTip: when and where the tip shows, in real time.
import assert from "node:assert/strict";
import { givePage, pageText, styleOf, tap, testEverywhere, watch } from "./harness.mjs";

const PLAIN = await pageText("tool_tip_plain");
const TITLE = /id="([^"]*)" tooltip=/.exec(PLAIN)[1];

// The plain page with its effect written for other times, as often as there are titles.
function quickText({ show = 60_000, titles = [TITLE], change = (effect) => effect } = {}) {
    const timed = PLAIN.replace(/delayTime = \d+/, "delayTime = 300").replace(/showTime = \d+/, `showTime = ${show}`);
    return timed.replace(/<SCRIPT LANGUAGE[^]*?<a .*<\/a>/, (effect) =>
        titles.map((title) => `<p>${change(effect).replaceAll(TITLE, title)}</p>`).join("\r\n"));
}
const quick = (options) => givePage(quickText(options));

const shown = (page) => page.locator("[role=tooltip]:visible");
const element = (page, title = TITLE) => page.locator(`[id="${title}"]`);
const leave = (page) => page.mouse.move(600, 500);

// Where the moving text of a tip is.
const strip = () => document.querySelector("[role=tooltip] span span").getBoundingClientRect().left;

// Milliseconds until the number of visible tips is n.
async function until(page, n) {
    const start = Date.now();
    const count = () => [...document.querySelectorAll("[role=tooltip]")].filter((tip) => tip.checkVisibility()).length;
    await watch(page, count, (counts) => counts.at(-1) === n, { milliseconds: 12_000 });
    return Date.now() - start;
}

testEverywhere("tool_tip_plain", "shows after its delay at the pointer, in the author's style", async ({ page }) => {
    const { x, y } = await element(page).boundingBox();
    const start = Date.now(); // before the move: on a busy machine it takes its time
    await page.mouse.move(x + 10, y + 8);
    await until(page, 1);
    assert.ok(Date.now() - start > 450);
    const box = await shown(page).boundingBox();
    assert.ok(box.x >= 0 && box.x - x < 40 && box.y >= 0 && box.y - y < 50, JSON.stringify(box));
    assert.deepEqual(await styleOf(shown(page), "backgroundColor", "border"), ["rgb(139, 139, 0)", "2px inset rgb(255, 104, 32)"]);
    const text = shown(page).locator("span span").last();
    assert.deepEqual(await styleOf(text, "color", "fontSize"), ["rgb(50, 205, 50)", "20px"]);
    await watch(page, strip, (lefts) => lefts.some((left) => left < lefts[0] - 10));
    await until(page, 0);
}, { shows: { ToolTip: ["mouse"] } });

testEverywhere(quick({ show: 2500 }), "goes after its time, and shows again only after the pointer has left",
    async ({ page }) => {
        await element(page).hover();
        await until(page, 1);
        assert.ok((await until(page, 0)) > 600);
        await element(page).hover({ position: { x: 4, y: 4 } });
        await page.waitForTimeout(600);
        assert.equal(await shown(page).count(), 0, "still the same visit");
        await leave(page);
        await element(page).hover();
        await until(page, 1);
    });

testEverywhere(quick(), "goes when left and on Escape, stays while the pointer is on it", async ({ page }) => {
    await element(page).hover();
    await until(page, 1);
    await shown(page).hover();
    const left = await page.evaluate(strip);
    await page.waitForTimeout(1000);
    assert.equal(await page.evaluate(strip), left, "its text stands under the pointer");
    await leave(page);
    await until(page, 0);
    await element(page).hover();
    await until(page, 1);
    await page.keyboard.press("Escape");
    assert.equal(await shown(page).count(), 0, "Escape");
});

testEverywhere(quick({ show: 1500 }), "its stop keeps it by mouse and by touch, and lets it go on", async ({ page }) => {
    const stop = page.getByRole("button", { name: "Stop the movement" });
    for (const [show, press] of [
        [() => element(page).hover(), () => stop.click()],
        [() => tap(page, element(page)), () => tap(page, stop)],
    ]) {
        await show();
        await until(page, 1);
        await press();
        assert.equal(await stop.getAttribute("aria-pressed"), "true");
        const left = await page.evaluate(strip);
        await page.waitForTimeout(2000);
        assert.equal(await page.evaluate(strip), left, "longer than its time, and it stands");
        await press();
        assert.equal(await stop.getAttribute("aria-pressed"), "false");
        await leave(page);
        await tap(page, { x: 600, y: 500 });
        await until(page, 0);
    }
});

// Elements of a tag that takes no focus by itself, the second in the window's corner.
const inSpan = (effect) => effect.replace(/<a href="[^"]*" /, "<span").replace(/<\/a>$/, "</span>");
testEverywhere(quick({ titles: ["one", "Two"], change: inSpan }), "two tips show beside their elements on keyboard focus, in the window",
    async ({ page }) => {
        await element(page, "Two").evaluate((span) => (span.style.cssText = "position:fixed; right:2px; bottom:2px"));
        for (const [title, keys] of [["one", ["Tab"]], ["Two", ["Tab", "Tab"]]]) { // past the stop of the first
            for (const key of keys)
                await page.keyboard.press(key);
            assert.equal(await page.evaluate(() => document.activeElement.id), title);
            await until(page, 1);
            const [tip, it] = [await shown(page).boundingBox(), await element(page, title).boundingBox()];
            assert.ok(title === "Two" || Math.hypot(tip.x - it.x, tip.y - it.y - it.height) < 14, JSON.stringify([tip, it]));
            assert.ok(tip.x >= 0 && tip.x + tip.width <= 1000 && tip.y >= 0 && tip.y + tip.height <= 700, JSON.stringify(tip));
            const id = await element(page, title).getAttribute("aria-describedby");
            assert.equal((await page.locator(`[id="${id}"]`).textContent()).trim(), "visit our homepage");
        }
    }, { shows: { ToolTip: ["keys"] } });

testEverywhere(quick({ change: (effect) => effect.replace(/href="[^"]*"/, 'href="#followed"') }),
    "a tap shows it, the next follows the link; a tap elsewhere and Escape take it away", async ({ page }) => {
        const followed = () => page.evaluate(() => location.hash === "#followed");
        for (const leaveIt of [() => tap(page, { x: 600, y: 500 }), () => page.keyboard.press("Escape")]) {
            await tap(page, element(page));
            await until(page, 1);
            await leaveIt();
            await until(page, 0);
        }
        assert.equal(await followed(), false);
        await tap(page, { x: 600, y: 500 });
        for (const bFollowed of [false, true]) {
            await tap(page, element(page));
            await until(page, 1);
            assert.equal(await followed(), bFollowed);
        }
    }, { shows: { ToolTip: ["touch"] } });

// Where others have misplaced, covered or hidden it.
testEverywhere(givePage(quickText({ show: 400 }).replace("<body>", '<body style="transform: translate(40px, 30px)">')
    .replace(/<main[^>]*>/, '<dialog style="overflow: auto; height: 90px">$&<div id="ticker" style="height: 20px; overflow: auto">a<br>b</div>')
    .replace("</main>", '</main><p style="height: 900px"></p></dialog>')),
"in a dialog of a shifted page it stays with the focus, whatever scrolls, and its movement is stopped by keys",
async ({ page }) => {
    await page.evaluate(() => {
        document.querySelector("dialog").showModal();
        document.activeElement.blur();
    });
    await page.keyboard.press("Tab");
    await element(page).focus();
    await until(page, 1);
    const atElement = async () => {
        const [tip, it] = [await shown(page).boundingBox(), await element(page).boundingBox()];
        assert.ok(Math.hypot(tip.x - it.x, tip.y - it.y - it.height) < 14, JSON.stringify([tip, it]));
        assert.ok(await shown(page).evaluate((box) => {
            const { left, top } = box.getBoundingClientRect();
            return box.contains(document.elementFromPoint(left + 3, top + 3));
        }), "on top");
    };
    await atElement();
    const scroll = (selector) => page.evaluate((which) => new Promise((done) => {
        document.addEventListener("scroll", () => requestAnimationFrame(done), { capture: true, once: true });
        document.querySelector(which).scrollTop += 5;
    }), selector);
    for (const selector of ["#ticker", "dialog"]) {
        await scroll(selector);
        await atElement();
    }
    await page.keyboard.press("Tab");
    const button = page.getByRole("button", { name: "Stop the movement" });
    await page.keyboard.press("Enter");
    assert.equal(await button.getAttribute("aria-pressed"), "true");
    await page.waitForTimeout(500);
    assert.equal(await shown(page).count(), 1, "longer than its time");
    await page.keyboard.press("Escape");
    await until(page, 0);
    assert.equal(await page.evaluate(() => document.activeElement.id), TITLE, "the focus is back");
    assert.ok(await page.locator("dialog").isVisible());
});

testEverywhere(quick(), "with reduced motion the text stands and is readable whole", async ({ page }) => {
    await element(page).hover();
    await until(page, 1);
    const left = await page.evaluate(strip);
    await page.waitForTimeout(1000);
    assert.equal(await page.evaluate(strip), left);
    const [tip, text] = [await shown(page).boundingBox(), await shown(page).locator("span span").boundingBox()];
    assert.ok(text.x >= tip.x && text.x + text.width <= tip.x + tip.width && text.height <= tip.height);
}, { calm: true });
