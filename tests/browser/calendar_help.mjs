// What the tests of both calendars share: a date that a test sets, and months whose days are counted here from the
// calendar's rules, without the Date that the scripts use.
import { readFile } from "node:fs/promises";
import path from "node:path";

export const MONTHS = ["January", "February", "March", "April", "May", "June", "July", "August", "September",
    "October", "November", "December"];

// For openEffect's `before`: new Date() and Date.now() give the local time that window.testNow holds, at first the
// given one. Timers run on.
export function at(text) {
    return `{
        const RealDate = Date;
        window.testNow = ${JSON.stringify(text)};
        window.Date = class extends RealDate {
            constructor(...given) {
                super(...(given.length > 0 ? given : [window.testNow]));
            }
            static now() {
                return +new RealDate(window.testNow);
            }
        };
    }`;
}

const isLeap = (year) => year % 4 === 0 && (year % 100 !== 0 || year % 400 === 0);

export function daysOf(year, month) {
    return [31, isLeap(year) ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31][month];
}

// Sunday is 0. Year 1 began on a Monday.
export function weekdayOfFirst(year, month) {
    let days = 1;
    for (let y = 1; y < year; y++)
        days += isLeap(y) ? 366 : 365;
    for (let m = 0; m < month; m++)
        days += daysOf(year, m);
    return days % 7;
}

// [year, month]: of each length one month that begins on each weekday, and the years that rules single out.
export function manyMonths() {
    const months = [[2000, 1], [1900, 1], [2024, 1], [2100, 1], [1, 0], [99, 11], [9999, 11]];
    const seen = new Set();
    for (let year = 2026; seen.size < 28; year++) {
        for (let month = 0; month < 12; month++) {
            const kind = `${daysOf(year, month)} from ${weekdayOfFirst(year, month)}`;
            if (!seen.has(kind))
                months.push([year, month]);
            seen.add(kind);
        }
    }
    return months;
}

// The texts of nCells cells, from a Sunday on, that show a month.
export function cellsOf(year, month, nCells) {
    const first = weekdayOfFirst(year, month);
    return Array.from({ length: nCells }, (_, i) =>
        i >= first && i < first + daysOf(year, month) ? String(i - first + 1) : "");
}

export const rgb = (digits) => `rgb(${digits.match(/../g).map((part) => parseInt(part, 16)).join(", ")})`;

// A page with the bodies of several pages, one behind the other, and their heads together.
export async function joinedPage(...names) {
    const pages = await Promise.all(names.map((name) =>
        readFile(path.join(process.env.ORRELIX_PAGES, `${name}.html`), "latin1")));
    const part = (tag) => pages.map((text) => new RegExp(`<${tag}[^>]*>(.*)</${tag}>`, "is").exec(text)[1]).join("");
    return Buffer.from(`<html><head>${part("head")}</head><body>${part("body")}</body></html>`, "latin1");
}
