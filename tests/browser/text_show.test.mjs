import assert from "node:assert/strict";
import { givePage, pageText, setHidden, testBothModes, watch } from "./harness.mjs";

const plainText = "Slide Text. It is an example";
const richText = "Fresh bread at eight, cake at three.\nThe shop is open until six.";

const typed = () => document.getElementById("typing").innerText;

async function assertTypes(page, bTypes) {
    const before = await page.evaluate(typed);
    await page.waitForTimeout(400);
    const after = await page.evaluate(typed);
    assert.equal(after.length > before.length, bTypes, `from "${before}" to "${after}"`);
}

// A text that takes a minute to type.
const slow = givePage(
    (await pageText("text_show_plain")).replace(">Slide Text. It is an example<", `>${"slow &#x1F40C; ".repeat(100)}<`),
    "text_show_slow.html",
);

testBothModes("text_show_plain", "the text is typed character by character", async ({ page }) => {
    const seen = await watch(page, typed, (texts) => texts.at(-1) === plainText);
    assert.ok(seen.length > 10, `in ${seen.length} steps`);
    for (const text of seen)
        assert.ok(plainText.startsWith(text), text);
});

testBothModes("text_show_rich", "lines, fonts and colours are the author's", async ({ page }) => {
    await watch(page, typed, (texts) => texts.at(-1) === richText);
    const styles = await page.evaluate(() =>
        [...document.querySelectorAll("td:first-child, #typing")].map((element) => {
            const { color, fontFamily, fontSize, fontStyle, fontWeight } = getComputedStyle(element);
            return [color, fontFamily, fontSize, fontStyle, fontWeight].join("; ");
        }),
    );
    assert.deepEqual(styles, [
        "rgb(47, 79, 47); Verdana, Arial, sans-serif; 28px; normal; 700",
        'rgb(122, 31, 31); Georgia, "Times New Roman", serif; 22px; italic; 700',
    ]);
});

testBothModes(
    "text_show_rich",
    "with reduced motion the whole text stands there at once",
    async ({ page }) => assert.equal(await page.evaluate(typed), richText),
    { reducedMotion: true },
);

testBothModes(
    "text_show_rich",
    "the text is there without scripts",
    async ({ page }) => assert.match(await page.locator("#typing").innerText(), /^Fresh bread.*until six\.$/s),
    { scripts: false },
);

testBothModes(slow, "typing waits under the pointer and on a hidden page", async ({ page }) => {
    await assertTypes(page, true);
    await page.hover("td:has(#typing)");
    await assertTypes(page, false);
    await page.mouse.move(0, 0);
    await assertTypes(page, true);
    await setHidden(page, true);
    await assertTypes(page, false);
    await setHidden(page, false);
    await assertTypes(page, true);
    assert.doesNotMatch(await page.evaluate(typed), /\p{Surrogate}/u, "a character arrives whole");
});

for (const [way, finish] of [
    ["a click", (page) => page.click("td:has(#typing)")],
    ["Escape", (page) => page.keyboard.press("Escape")],
])
    testBothModes(slow, `${way} shows the whole text, once`, async ({ page }) => {
        const name = await page.getAttribute("#typing", "aria-label");
        assert.match(name, /^(slow 🐌 ?){100}$/u, "screen readers have it from the start");
        await finish(page);
        assert.equal(await page.evaluate(typed), name);
        await assertTypes(page, false);
        assert.equal(await page.getAttribute("#typing", "aria-label"), null);
    });
