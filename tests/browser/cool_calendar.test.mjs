// Cool Calender in the browser: the boxes of the page's form, as the buttons move them.
import assert from "node:assert/strict";
import { test } from "node:test";
import { at, cellsOf, joinedPage, manyMonths, MONTHS, rgb } from "./calendar_help.mjs";
import { givePage, MODES, openEffect, testBothModes } from "./harness.mjs";

// The texts of elements first to last of the page's nth calendar.
const texts = (page, first, last, nth = 0) =>
    page.evaluate(([a, b, n]) => {
        const box = [...document.querySelectorAll(".brndfncalendar")][n].querySelector("input");
        return [...box.form.elements].slice(a, b + 1).map((element) => element.value);
    }, [first, last, nth]);
const days = (page, nth) => texts(page, 6, 42, nth);
const shown = async (page, nth) => (await texts(page, 1, 4, nth)).filter((_, i) => i === 0 || i === 3).join(" ");
const show = (page, year, month) =>
    page.evaluate(([y, name]) => {
        const { elements } = document.brndfncalform;
        elements[1].value = y;
        elements[4].value = PadSpaces(name);
        FillCalendar();
    }, [year, MONTHS[month]]);
const button = (page, name) => page.getByRole("button", { name });

testBothModes("today_ca_plain", "opens with today's month, and today alone is marked", async ({ page }) => {
    assert.equal(await page.evaluate(() => [...document.brndfncalform.elements].map((e) => e.type[0]).join("")),
        `btbbtb${"t".repeat(38)}`);
    assert.equal(await shown(page), "2024 February");
    assert.deepEqual(await days(page), cellsOf(2024, 1, 37));
    assert.deepEqual(await texts(page, 43, 43), ["Hello Feb 29, 2024"]);

    const ring = (box) => box.evaluate((element) => getComputedStyle(element).boxShadow);
    const today = page.locator("[aria-current=date]");
    assert.deepEqual(await today.evaluateAll((boxes) => boxes.map((box) => box.value)), ["29"]);
    const others = await page.locator(".brndfnday:not([aria-current])").all();
    assert.equal(others.length, 36);
    for (const other of others)
        assert.notEqual(await ring(other), await ring(today));
    await button(page, "Next month").click();
    assert.equal(await today.count(), 0);
}, { before: at("2024-02-29T12:00") });

testBothModes("today_ca_plain", "fills the boxes of every kind of month", async ({ page }) => {
    for (const [year, month] of manyMonths()) {
        await show(page, year, month);
        assert.deepEqual(await days(page), cellsOf(year, month, 37), `${year} ${MONTHS[month]}`);
    }
});

testBothModes("today_ca_plain", "moves by mouse and by keyboard, within sane years", async ({ page }) => {
    const steps = [["Next month", "2027 January"], ["Previous month", "2026 December"], ["Next year", "2027 December"],
        ["Previous year", "2026 December"]];
    for (const [name, expected] of steps) {
        await button(page, name).click();
        assert.equal(await shown(page), expected, name);
        assert.equal(await page.getByRole("status").textContent(), expected.split(" ").reverse().join(" "));
    }
    assert.deepEqual(await days(page), cellsOf(2026, 11, 37));

    await page.locator("body").click({ position: { x: 1, y: 1 } });
    const stops = [];
    for (const key of ["Enter", "Space", "Enter", "Space"]) {
        await page.keyboard.press("Tab");
        stops.push(await page.evaluate(() => document.activeElement.ariaLabel));
        await page.keyboard.press(key);
    }
    assert.deepEqual(stops, ["Previous year", "Next year", "Previous month", "Next month"]);
    assert.equal(await shown(page), "2026 December");
    await page.keyboard.press("Tab");
    assert.notEqual(await page.evaluate(() => document.activeElement.localName), "input");

    for (const [year, month, name, expected] of [
        [9999, 5, "Next year", "9999 June"], [9999, 11, "Next month", "9999 December"],
        [1, 5, "Previous year", "1 June"], [1, 0, "Previous month", "1 January"],
        [9999, 0, "Previous month", "9998 December"], ["", 3, "Next month", "2026 May"],
    ]) {
        await show(page, year, month);
        await button(page, name).click();
        assert.equal(await shown(page), expected, `${year} ${name}`);
    }
}, { before: at("2026-12-31T23:59") });

testBothModes("today_ca_rich", "is told to those who don't see it", async ({ page }) => {
    const table = page.getByRole("table", { name: "Calendar" });
    assert.deepEqual(await table.getByRole("columnheader").evaluateAll((heads) => heads.map((head) => head.ariaLabel)),
        ["Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"]);
    assert.equal(await table.getByLabel("Sunday, November 22, 2026", { exact: true }).inputValue(), "22");
    // 30 days from Sunday on; the other seven boxes are no days.
    assert.equal(await table.getByRole("textbox", { name: "2026" }).count(), 30);
    assert.equal(await page.locator(".brndfnday[aria-hidden=true]").count(), 7);
}, { before: at("2026-11-22T21:05") });

test("today_ca_rich: looks as the author chose, the same in both modes", async () => {
    const pictures = [];
    for (const mode of MODES) {
        const { page, close } = await openEffect("today_ca_rich", { mode, before: at("2026-11-22T21:05") });
        pictures.push(await page.screenshot());
        const text = await (await fetch(page.url())).text();
        // Sizes stand in the text without a unit.
        const asked = [...text.matchAll(/<input [^>]*style="([^"]*)"/g)].map(([, style]) => [
            ...["height", "width"].map((name) => `${new RegExp(`; ?${name}:(\\d+)`).exec(style)[1]}px`),
            rgb(/background-color:#(\w+)/.exec(style)[1]),
        ]);
        assert.deepEqual(await page.evaluate(() => [...document.brndfncalform.elements].map((element) => {
            const { height, width, backgroundColor } = getComputedStyle(element);
            return [height, width, backgroundColor];
        })), asked);
        // The framing table, which the parser has closed too early, is around again.
        assert.equal(await page.locator("table[border='1'] > tbody > tr > td > .brndfncalendar").count(), 1);
        // The border stands in a style attribute without a property.
        const [, width, style, colour] = /<table style="(\d+) (\w+) #(\w+)/.exec(text);
        const border = await page.locator(".brndfncalendar").evaluate((table) => getComputedStyle(table).border);
        assert.equal(border, `${width}px ${style} ${rgb(colour)}`);
        await close();
    }
    assert.ok(pictures[0].equals(pictures[1]));
});

for (const mode of MODES)
    test(`two Cool Calenders and a Calender, ${mode}: each moves alone`, async () => {
        const name = givePage(await joinedPage("today_ca_plain", "calander_plain", "today_ca_rich"));
        const { page, close } = await openEffect(name, { mode, before: at("2026-11-22T21:05") });
        await button(page, "Next month").first().click();
        await button(page, "Previous year").last().click();
        assert.equal(await shown(page, 0), "2026 December");
        assert.deepEqual(await days(page, 0), cellsOf(2026, 11, 37));
        assert.equal(await shown(page, 1), "2025 November");
        assert.deepEqual(await days(page, 1), cellsOf(2025, 10, 37));
        assert.equal(await page.getByRole("table", { name: "November 2026" }).count(), 1);
        await close();
    });
