import test from "node:test";
import assert from "node:assert/strict";
import { givePage, openEffect, pageText, setHidden, testBothModes } from "./harness.mjs";

const richColors = [
    "rgb(122, 31, 31)",
    "rgb(184, 134, 11)",
    "rgb(47, 79, 47)",
    "rgb(72, 61, 139)",
    "rgb(0, 139, 139)",
    "rgb(139, 0, 139)",
];

// The colours that a link takes on within some time.
function colorsWithin(page, milliseconds, name = "brndfntextshop") {
    return page.evaluate(
        async ([time, linkName]) => {
            const link = document.getElementsByName(linkName)[0];
            const colors = [];
            const observer = new MutationObserver(() => colors.push(getComputedStyle(link).color));
            observer.observe(link, { attributeFilter: ["style"] });
            await new Promise((over) => setTimeout(over, time));
            observer.disconnect();
            return colors;
        },
        [milliseconds, name],
    );
}

testBothModes("dance_text_rich", "the link walks through its colours in order", async ({ page }) => {
    const shown = await colorsWithin(page, 2000);
    assert.ok(shown.length > 6 && shown.length <= 10, `a colour each 0.2 s: ${shown.length} in 2 s`);
    const nFirst = richColors.indexOf(shown[0]);
    assert.deepEqual(shown, shown.map((_, i) => richColors[(nFirst + i) % richColors.length]));
});

testBothModes("dance_text_rich", "the author's font shows", async ({ page }) => {
    const style = await page.evaluate(() => {
        const link = document.getElementsByName("brndfntextshop")[0];
        const { fontFamily, fontSize, fontStyle, fontWeight, textDecorationLine } = getComputedStyle(link);
        return [fontFamily, fontSize, fontStyle, fontWeight, textDecorationLine];
    });
    assert.deepEqual(style, ["Georgia", "36px", "italic", "700", "underline"]);
});

testBothModes("dance_text_rich", "the colour stays under pointer and focus and on a hidden page", async ({ page }) => {
    const link = page.locator("[name=brndfntextshop]");
    for (const [way, hold, release] of [
        ["pointer", () => link.hover(), () => page.mouse.move(900, 600)],
        ["focus", () => link.focus(), () => link.blur()],
        ["hidden page", () => setHidden(page, true), () => setHidden(page, false)],
    ]) {
        await hold();
        assert.deepEqual(await colorsWithin(page, 600), [], way);
        await release();
        assert.notDeepEqual(await colorsWithin(page, 600), [], `after ${way}`);
    }
});

testBothModes(
    "dance_text_rich",
    "with reduced motion the colour stays, until the visitor changes his mind",
    async ({ page }) => {
        assert.deepEqual(await colorsWithin(page, 600), []);
        await page.emulateMedia({ reducedMotion: "no-preference" });
        assert.notDeepEqual(await colorsWithin(page, 600), []);
    },
    { reducedMotion: true },
);

test("two links of different titles each walk through their own colours", async () => {
    const [plain, rich] = [await pageText("dance_text_plain"), await pageText("dance_text_rich")];
    const body = /<body>.*<\/body>/s.exec(plain)[0];
    const name = givePage(rich.replace("</body>", body));
    const { page, close } = await openEffect(name);
    const shown = await Promise.all([
        colorsWithin(page, 1200),
        colorsWithin(page, 1200, "brndfntextwelcome"),
    ]);
    assert.ok(shown[0].length > shown[1].length && shown[1].length > 0, JSON.stringify(shown));
    assert.deepEqual(shown[0].filter((color) => !richColors.includes(color)), []);
    await close();
});
