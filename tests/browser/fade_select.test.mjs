// Fade Select Box in the browser.
import assert from "node:assert/strict";
import { field, look, rows, testDropDown } from "./drop_down.mjs";
import { testBothModes } from "./harness.mjs";

await testDropDown("fade_select", {
    backgroundColor: "rgb(31, 58, 95)",
    color: "rgb(255, 255, 255)",
    borderTopColor: "rgb(255, 215, 0)",
    borderTopStyle: "dotted",
    borderTopWidth: "1px",
    fontSize: "18px",
});

// The opacities that the list has, starting now, with 25 milliseconds, the time of a step, from one to the next.
async function opacities(page, nSteps) {
    const seen = [];
    for (let i = 0; i <= nSteps; i++) {
        if (i > 0)
            await page.clock.runFor(25);
        seen.push(await page.getByRole("listbox").evaluate((list) => Number(getComputedStyle(list).opacity)));
    }
    return seen;
}

const stepsOf20 = (from, to) =>
    Array.from({ length: Math.abs(to - from) + 1 }, (_, i) => (from + i * Math.sign(to - from)) / 20);

function assertNear(seen, expected) {
    assert.equal(seen.length, expected.length);
    seen.forEach((value, i) => assert.ok(Math.abs(value - expected[i]) < 0.001, `${seen} is not ${expected}`));
}

testBothModes("fade_select_rich", "the list fades in, and out again, in 20 steps", async ({ page }) => {
    await page.clock.pauseAt(Date.now() + 3_600_000);
    await field(page).click();
    assertNear(await opacities(page, 20), stepsOf20(0, 20));
    await page.keyboard.press("Escape");
    assertNear(await opacities(page, 19), stepsOf20(20, 1));
    await page.clock.runFor(25);
    assert.equal(await rows(page).count(), 0);
}, { clock: true });

testBothModes("fade_select_rich", "a fade turns round where it is", async ({ page }) => {
    await page.clock.pauseAt(Date.now() + 3_600_000);
    await field(page).click();
    assertNear(await opacities(page, 8), stepsOf20(0, 8));
    await page.keyboard.press("Escape");
    assertNear(await opacities(page, 3), stepsOf20(8, 5));
    await page.keyboard.press("Enter");
    assertNear(await opacities(page, 2), stepsOf20(5, 7));
}, { clock: true });

testBothModes("fade_select_rich", "nothing fades for a visitor who wants calm", async ({ page }) => {
    await page.clock.pauseAt(Date.now() + 3_600_000);
    await field(page).click();
    assertNear(await opacities(page, 0), [1]);
    await page.keyboard.press("Escape");
    assert.equal(await rows(page).count(), 0);
}, { clock: true, reducedMotion: true });

testBothModes("fade_select_rich", "the button goes down and up again", async ({ page }) => {
    const button = page.locator(".bookshopbutton");
    const border = ["borderTopStyle", "borderTopWidth", "borderTopColor"];
    const up = { borderTopStyle: "outset", borderTopWidth: "2px", borderTopColor: "rgb(216, 202, 160)" };
    assert.deepEqual(await look(button, border), up);
    await button.hover();
    await page.mouse.down();
    assert.deepEqual(await look(button, border), { ...up, borderTopStyle: "inset" });
    await page.mouse.up();
    assert.deepEqual(await look(button, border), up);
    assert.ok((await button.locator("svg").boundingBox()).width >= 10, "its arrow shows");
});

testBothModes("fade_select_plain", "the box has the look that its author chose", async ({ page }) => {
    const { x, y } = await page.locator("table").first().boundingBox();
    const at = await field(page).boundingBox();
    assert.ok(at.x - x >= 40 && at.x > 140 && y >= 100, "margin and position");
    assert.equal(at.width, 200);
    assert.deepEqual(await look(field(page), ["borderTopStyle", "borderTopWidth", "backgroundColor", "cursor"]), {
        borderTopStyle: "outset", borderTopWidth: "1px", backgroundColor: "rgb(50, 205, 50)", cursor: "pointer",
    });
    await field(page).click();
    assert.deepEqual(await look(rows(page).nth(1), ["paddingLeft", "color"]), {
        paddingLeft: "1px", color: "rgb(0, 0, 0)",
    });
    await rows(page).nth(1).hover();
    const marked = await look(rows(page).nth(1).locator("span"), ["fontFamily", "fontSize", "color"]);
    assert.match(marked.fontFamily, /^"?@Fixedsys"?, /);
    assert.deepEqual([marked.fontSize, marked.color], ["20px", "rgb(139, 0, 0)"]);
});
