// Calender in the browser: greeting, clock and month, drawn where the page's text calls for them.
import assert from "node:assert/strict";
import { test } from "node:test";
import { at, cellsOf, daysOf, manyMonths, MONTHS, rgb, weekdayOfFirst } from "./calendar_help.mjs";
import { MODES, openEffect, setHidden, testBothModes, watch } from "./harness.mjs";

const clock = (page) => page.getByRole("timer", { name: "Time" });
const setNow = (page, text) => page.evaluate((now) => (window.testNow = now), text);
const cells = (table) => table.locator("td").evaluateAll((all) => all.map((cell) => cell.textContent));

// The clock's text once it is as given.
const seen = (page, time) =>
    watch(page, () => document.querySelector("[role=timer]").textContent, (values) => values.at(-1) === time);

testBothModes("calander_plain", "draws the greeting and this month as a table, today marked", async ({ page }) => {
    assert.equal(await page.getByText("Hello!").isVisible(), true);
    const table = page.getByRole("table", { name: "February 2024" });
    assert.deepEqual(await cells(table), cellsOf(2024, 1, 35));
    assert.deepEqual(await table.getByRole("columnheader").evaluateAll((heads) => heads.map((head) => head.abbr)),
        ["Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"]);
    assert.equal(await table.locator("th[scope=col]").count(), 7);
    // The table around is for the layout only.
    assert.equal(await page.getByRole("table").count(), 1);

    const red = await table.locator("td").evaluateAll((all) => all
        .filter((cell) => getComputedStyle(cell).backgroundColor === "rgb(255, 0, 0)")
        .map((cell) => [cell.textContent, cell.ariaCurrent]));
    assert.deepEqual(red, [["29", "date"]]);
    assert.equal(await page.locator("[aria-current]").count(), 1);
}, { before: at("2024-02-29T12:00") });

testBothModes("calander_plain", "draws every kind of month", async ({ page }) => {
    for (const [year, month] of manyMonths().filter(([y]) => y >= 1900)) {
        const date = `${year}-${String(month + 1).padStart(2, "0")}-28T12:00`;
        const drawn = await page.evaluate((now) => {
            window.testNow = now;
            brndfncalencalendar("#ffffff", "#ff0000");
            const table = [...document.querySelectorAll("table")].at(-1);
            table.parentElement.remove();
            return [table.caption, ...table.querySelectorAll("td")].map((element) => element.textContent);
        }, date);
        const weeks = Math.ceil((weekdayOfFirst(year, month) + daysOf(year, month)) / 7);
        assert.deepEqual(drawn, [`${MONTHS[month]} ${year}`, ...cellsOf(year, month, 7 * weeks)]);
    }
}, { before: at("2026-01-01T12:00") });

testBothModes("calander_plain", "has a clock that runs, rests where it should and goes on at the right time",
    async ({ page }) => {
        assert.equal((await clock(page).textContent()).normalize("NFKC"), "11:59:01 AM");
        await setNow(page, "2026-11-22T11:59:02");
        await seen(page, (await clock(page).textContent()).replace("01", "02"));
        // A screen reader is told when it asks, not each second.
        assert.equal(await page.locator("[aria-live]:not([aria-live=off]), [role=status], output").count(), 0);

        const rests = [
            ["the page is hidden", () => setHidden(page, true), () => setHidden(page, false)],
            ["the pointer is over it", () => clock(page).hover(), () => page.mouse.move(1, 1)],
            ["it has the focus", () => page.keyboard.press("Tab"), () => page.keyboard.press("Tab")],
        ];
        for (const [when, begin, end] of rests) {
            await begin();
            const before = await clock(page).textContent();
            const minute = Number(/:(\d\d):/.exec(before)[1]);
            await setNow(page, `2026-11-22T11:${(minute + 58) % 60}:30`);
            await page.waitForTimeout(1300);
            assert.equal(await clock(page).textContent(), before, when);
            await end();
            await seen(page, before.replace(/:\d\d:\d\d/, `:${(minute + 58) % 60}:30`));
        }
    }, { before: at("2026-11-22T11:59:01") });

testBothModes("calander_plain", "goes on to the next day, and month, at midnight", async ({ page }) => {
    await setNow(page, "2027-01-01T00:00:00");
    const table = page.getByRole("table", { name: "January 2027" });
    await table.waitFor({ timeout: 5000 });
    assert.deepEqual(await cells(table), cellsOf(2027, 0, 42));
    assert.deepEqual(await page.locator("[aria-current]").allTextContents(), ["1"]);
}, { before: at("2026-12-31T23:59:59") });

testBothModes("calander_plain", "shows no seconds to a visitor who wants calm", async ({ page }) => {
    assert.equal((await clock(page).textContent()).normalize("NFKC"), "9:05 PM");
}, { before: at("2026-11-22T21:05:07"), reducedMotion: true });

test("calander_rich: looks as the author chose, the same in both modes", async () => {
    const pictures = [];
    for (const mode of MODES) {
        const { page, close } = await openEffect("calander_rich", { mode, before: at("2026-11-22T21:05:07") });
        pictures.push(await page.screenshot());
        const text = await (await fetch(page.url())).text();
        const look = (locator, property) =>
            locator.evaluate((element, name) => getComputedStyle(element)[name], property);
        const table = page.getByRole("table");
        const frame = table.locator("xpath=..");

        const [, height, width] = /height: (\w+); width: (\w+)/.exec(text);
        assert.deepEqual([await look(clock(page), "height"), await look(clock(page), "width")], [height, width]);
        const [, background, currentDay] = /brndfncalencalendar\("#(\w+)","#(\w+)"\)/.exec(text);
        assert.equal(await look(frame, "backgroundColor"), rgb(background));
        assert.equal(await look(page.locator("[aria-current=date]"), "backgroundColor"), rgb(currentDay));
        const borders = [...text.matchAll(/='border: ?(\d+) (\w+) #(\w+)/g)];
        for (const [i, locator] of [frame, table.locator("td").last()].entries())
            assert.equal(await look(locator, "border"), `${borders[i][1]}px ${borders[i][2]} ${rgb(borders[i][3])}`);
        await close();
    }
    assert.ok(pictures[0].equals(pictures[1]));
});
