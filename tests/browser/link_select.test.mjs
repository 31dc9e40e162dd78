// Link Select Table in the browser.
import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import path from "node:path";
import { field, look, noteOpened, opened, rows, testDropDown, together } from "./drop_down.mjs";
import { givePage, testBothModes } from "./harness.mjs";

await testDropDown("cool_link", {
    backgroundColor: "rgb(31, 58, 95)",
    color: "rgb(255, 255, 255)",
    borderTopColor: "rgb(255, 215, 0)",
    borderTopStyle: "dotted",
    borderTopWidth: "1px",
    paddingLeft: "12px",
    fontSize: "18px",
});

testBothModes("cool_link_rich", "the items show their images, in their sizes", async ({ page }) => {
    await field(page).click();
    const images = await rows(page).locator("img").evaluateAll((all) =>
        all.map(({ naturalWidth, width, height }) => [naturalWidth, width, height]));
    assert.deepEqual(images, Array(3).fill([24, 24, 24]));
    await rows(page).nth(2).click();
    assert.match(await field(page).locator("img").getAttribute("src"), /letter\.gif$/);
});

testBothModes("cool_link_plain", "the box has the look that its author chose", async ({ page }) => {
    const box = page.locator("#link1");
    assert.deepEqual(await look(box, ["borderTopStyle", "borderTopWidth", "borderTopColor", "width", "cursor"]), {
        borderTopStyle: "inset", borderTopWidth: "1px", borderTopColor: "rgb(255, 215, 0)", width: "200px",
        cursor: "pointer",
    });
    const { x, y } = await box.boundingBox();
    assert.ok(x > 110 && y > 110, "margin and position");
    await field(page).click();
    assert.deepEqual(await look(rows(page).nth(1), ["backgroundColor", "color", "borderTopStyle", "borderTopWidth"]), {
        backgroundColor: "rgb(255, 0, 0)", color: "rgb(50, 205, 50)", borderTopStyle: "outset", borderTopWidth: "2px",
    });
});

testBothModes(await together("fade_select_rich", "cool_link_rich"),
    "its start-up passes over the spans of others", async ({ page }) => {
        await page.waitForFunction(() => document.readyState === "complete");
        await page.evaluate(() => {
            document.body.insertAdjacentHTML("beforeend", '<span class="myselect">mine</span>');
            window.museuminitSelectBoxes();
        });
        assert.equal(await page.locator(".myselect").getAttribute("role"), null);
        assert.equal(await field(page).count(), 2);
        for (const index of [0, 1]) {
            await field(page).nth(index).click();
            await rows(page).nth(1).click();
            await rows(page).first().waitFor({ state: "hidden" });
        }
        const address = "http://www.vellumark.example/books?kind=old&page=1";
        assert.deepEqual(await opened(page), [[address, "_blank"], [address, "_blank"]]);
    }, { before: noteOpened });

const titleless = (await readFile(path.join(process.env.ORRELIX_PAGES, "cool_link_rich.html"), "latin1"))
    .replaceAll("museum", "");
testBothModes(givePage(titleless), "a box without a title works too", async ({ page }) => {
    await field(page).click();
    await rows(page).nth(1).click();
    assert.equal((await opened(page)).length, 1);
    assert.equal((await field(page).innerText()).trim(), "Library");
}, { before: noteOpened });
