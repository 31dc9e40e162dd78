// Calender, drawn where the page's text calls for it, and Cool Calender, the boxes of the page's form.
import assert from "node:assert/strict";
import { at, givePage, pageText, styleOf, testEverywhere } from "./harness.mjs";

const MONTHS = ["January", "February", "March", "April", "May", "June", "July", "August", "September", "October",
    "November", "December"];
const WEEKDAYS = ["Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"];

// [year, month, days, weekday of the first], from a printed calendar: each length, each weekday, and the years that
// the rules single out.
const KNOWN_MONTHS = [
    [2026, 1, 28, 0], [2026, 2, 31, 0], [2026, 5, 30, 1], [2026, 8, 30, 2], [2026, 3, 30, 3], [2026, 0, 31, 4],
    [2026, 4, 31, 5], [2026, 7, 31, 6], [2024, 1, 29, 4], [2000, 1, 29, 2], [1900, 1, 28, 4], [2100, 1, 28, 1],
];

// The texts of nCells cells, from a Sunday on.
const cellsOf = (nCells, [, , nDays, nFirst]) =>
    Array.from({ length: nCells }, (_, i) => (i >= nFirst && i < nFirst + nDays ? String(i - nFirst + 1) : ""));

const rgb = (digits) => `rgb(${digits.match(/../g).map((part) => parseInt(part, 16)).join(", ")})`;
const texts = (locator) => locator.evaluateAll((all) => all.map((element) => element.value ?? element.textContent));

testEverywhere("calander_plain", "draws this month as a table, today marked, and goes on at midnight", async ({ page }) => {
    assert.equal(await page.getByText("Hello!").isVisible(), true);
    const table = page.getByRole("table", { name: "February 2024" });
    assert.deepEqual(await texts(table.locator("td")), cellsOf(35, [2024, 1, 29, 4]));
    assert.deepEqual(await table.locator("th[scope=col]").evaluateAll((heads) => heads.map((head) => head.abbr)), WEEKDAYS);
    assert.equal(await page.getByRole("table").count(), 1, "the table around is for the layout only");
    const today = page.locator("[aria-current=date]");
    assert.deepEqual(await texts(today), ["29"]);
    assert.deepEqual(await styleOf(today, "backgroundColor"), ["rgb(255, 0, 0)"]);

    assert.equal((await page.getByRole("timer", { name: "Time" }).textContent()).normalize("NFKC"), "11:59:59 PM");
    await page.evaluate(() => (window.testNow = "2024-03-01T00:00:00"));
    const next = page.getByRole("table", { name: "March 2024" });
    await next.waitFor();
    assert.deepEqual(await texts(next.locator("td")), cellsOf(42, [2024, 2, 31, 5]));
    assert.deepEqual(await texts(today), ["1"]);
}, { before: at("2024-02-29T23:59:59") });

testEverywhere("calander_plain", "draws every kind of month", async ({ page }) => {
    for (const month of KNOWN_MONTHS) {
        const [year, nMonth, nDays, nFirst] = month;
        const drawn = await page.evaluate((now) => {
            window.testNow = now;
            brndfncalencalendar("#ffffff", "#ff0000");
            const table = [...document.querySelectorAll("table")].at(-1);
            table.parentElement.remove();
            return [table.caption, ...table.querySelectorAll("td")].map((element) => element.textContent);
        }, `${year}-${String(nMonth + 1).padStart(2, "0")}-28T12:00`);
        const nCells = 7 * Math.ceil((nFirst + nDays) / 7);
        assert.deepEqual(drawn, [`${MONTHS[nMonth]} ${year}`, ...cellsOf(nCells, month)]);
    }
}, { before: at("2026-01-01T12:00") });

const formTexts = (page, first, last, nForm = 0) =>
    page.evaluate(([a, b, n]) => {
        const { form } = document.querySelectorAll(".brndfncalendar")[n].querySelector("input");
        return [...form.elements].slice(a, b + 1).map((element) => element.value);
    }, [first, last, nForm]);
const days = (page, nForm) => formTexts(page, 6, 42, nForm);
const shown = async (page, nForm) => (await formTexts(page, 1, 4, nForm)).filter((_, i) => i === 0 || i === 3).join(" ");
const button = (page, name) => page.getByRole("button", { name });
const show = (page, year, nMonth) =>
    page.evaluate(([y, name]) => {
        const { elements } = document.brndfncalform;
        elements[1].value = y;
        elements[4].value = PadSpaces(name);
        FillCalendar();
    }, [year, MONTHS[nMonth]]);

testEverywhere("today_ca_plain", "fills its boxes with every kind of month, today's first", async ({ page }) => {
    assert.equal(await shown(page), "2024 February");
    assert.deepEqual(await formTexts(page, 43, 43), ["Hello Feb 29, 2024"]);
    const today = page.locator("[aria-current=date]");
    assert.deepEqual(await texts(today), ["29"]);
    const other = page.locator(".brndfnday:not([aria-current])").first();
    assert.notDeepEqual(await styleOf(other, "boxShadow"), await styleOf(today, "boxShadow"));
    for (const month of KNOWN_MONTHS) {
        await show(page, ...month);
        assert.deepEqual(await days(page), cellsOf(37, month), `${month}`);
        assert.equal(await today.count(), Number(month[0] === 2024));
    }
}, { before: at("2024-02-29T12:00") });

testEverywhere("today_ca_plain", "moves by mouse and by keyboard, within sane years", async ({ page }) => {
    for (const [year, nMonth, name, expected] of [
        [2026, 11, "Next month", "2027 January"], [2027, 0, "Previous month", "2026 December"],
        [2026, 11, "Next year", "2027 December"], [2027, 11, "Previous year", "2026 December"],
        [9999, 5, "Next year", "9999 June"], [9999, 11, "Next month", "9999 December"],
        [1, 5, "Previous year", "1 June"], [1, 0, "Previous month", "1 January"], ["", 3, "Next month", "2026 May"],
    ]) {
        await show(page, year, nMonth);
        await button(page, name).click();
        assert.equal(await shown(page), expected, name);
    }
    assert.equal(await page.getByRole("status").textContent(), "May 2026");
    await page.locator("body").click({ position: { x: 1, y: 1 } });
    for (const [key, name, expected] of [["Enter", "Previous year", "2025 May"], ["Space", "Next year", "2026 May"],
        ["Enter", "Previous month", "2026 April"], ["Space", "Next month", "2026 May"]]) {
        await page.keyboard.press("Tab");
        assert.equal(await page.evaluate(() => document.activeElement.ariaLabel), name);
        await page.keyboard.press(key);
        assert.equal(await shown(page), expected, name);
    }
}, { before: at("2026-12-31T23:59") });

testEverywhere("today_ca_rich", "looks as the author chose and is told to those who don't see it", async ({ page }) => {
    const text = await pageText("today_ca_rich");
    // Sizes stand in the text without a unit, the border in a style attribute without a property.
    const asked = [...text.matchAll(/<input [^>]*style="([^"]*)"/g)].map(([, style]) => [
        ...["height", "width"].map((name) => `${new RegExp(`; ?${name}:(\\d+)`).exec(style)[1]}px`),
        rgb(/background-color:#(\w+)/.exec(style)[1]),
    ]);
    const inputs = await page.locator("input").all();
    assert.deepEqual(await Promise.all(inputs.map((box) => styleOf(box, "height", "width", "backgroundColor"))), asked);
    const [, width, style, color] = /<table style="(\d+) (\w+) #(\w+)/.exec(text);
    // The framing table, which the parser has closed too early, is around again.
    const framed = page.locator("table[border='1'] > tbody > tr > td > .brndfncalendar");
    assert.deepEqual(await styleOf(framed, "border"), [`${width}px ${style} ${rgb(color)}`]);

    const table = page.getByRole("table", { name: "Calendar" });
    assert.deepEqual(await table.getByRole("columnheader").evaluateAll((heads) => heads.map((head) => head.ariaLabel)), WEEKDAYS);
    assert.equal(await table.getByLabel("Sunday, November 22, 2026", { exact: true }).inputValue(), "22");
    assert.equal(await table.getByRole("textbox", { name: "2026" }).count(), 30);
    assert.equal(await page.locator(".brndfnday[aria-hidden=true]").count(), 7, "boxes that are no days");
}, { before: at("2026-11-22T21:05") });

const together = await Promise.all(["today_ca_plain", "calander_plain", "today_ca_rich"].map(pageText));
const part = (tag) => together.map((text) => new RegExp(`<${tag}[^>]*>(.*)</${tag}>`, "is").exec(text)[1]).join("");
testEverywhere(givePage(`<html><head>${part("head")}</head><body>${part("body")}</body></html>`), "each calendar moves alone",
    async ({ page }) => {
        await button(page, "Next month").first().click();
        await button(page, "Previous year").last().click();
        assert.deepEqual(await days(page, 0), cellsOf(37, [2026, 11, 31, 2]));
        assert.deepEqual(await days(page, 1), cellsOf(37, [2025, 10, 30, 6]));
        assert.equal(await page.getByRole("table", { name: "November 2026" }).count(), 1);
    }, { before: at("2026-11-22T21:05") });
