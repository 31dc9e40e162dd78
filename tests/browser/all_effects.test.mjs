// All nine effects: on one page, as a visitor finds them, none may keep another from its work; and each alone on a page.
import assert from "node:assert/strict";
import { readFileSync, readdirSync } from "node:fs";
import path from "node:path";
import { givePage, goOn, partsOf, testEverywhere, watch } from "./harness.mjs";

const effects = ["animate_text", "text_show", "calander", "cool_link", "scroll_text", "fade_select", "tool_tip", "today_ca",
    "dance_text"];
let head = "";
let body = "";
for (const effect of effects) {
    const parts = await partsOf(`${effect}_plain`);
    head += parts.scripts;
    body += `<section id="${effect}" style="position:relative;min-height:420px">${parts.body}</section>`;
}

// What is seen of the effects that work by themselves.
function look() {
    const top = (selector) => Math.round(document.querySelector(selector).getBoundingClientRect().top);
    return {
        rising: top("#brndfntextanim"),
        typed: document.getElementById("typing").firstChild.textContent,
        scrolled: top("#scroll_text a"),
        color: getComputedStyle(document.querySelector("#dance_text a")).color,
    };
}

testEverywhere(givePage(`<html><head>${head}</head><body>${body}</body></html>`), "all of them work", async ({ page }) => {
    const seen = await watch(page, look, (values) =>
        Object.keys(values[0]).every((key) => new Set(values.map((value) => value[key])).size > 2));
    assert.ok(seen.every(({ typed }) => "Slide Text. It is an example".startsWith(typed)));

    for (const calendar of ["calander", "today_ca"])
        assert.equal(await page.locator(`#${calendar} [aria-current=date]`).count(), 1);
    const year = page.locator("#today_ca input").nth(1);
    const shownYear = Number(await year.inputValue());
    await page.getByRole("button", { name: "Next year" }).click();
    assert.equal(Number(await year.inputValue()), shownYear + 1);
    for (const list of ["cool_link", "fade_select"]) {
        await page.locator(`#${list} [role=combobox]`).click();
        await page.getByRole("option").first().waitFor();
        await page.keyboard.press("Escape");
        await page.getByRole("option").first().waitFor({ state: "hidden" });
    }
    await page.locator("#tool_tip a").hover();
    await page.getByRole("tooltip").waitFor();
}, { viewport: { width: 1000, height: 4200 } }); // what is out of view rests

const AXE = readFileSync(path.join(import.meta.dirname, "node_modules/axe-core/axe.min.js"), "utf8");
const PAGES = readdirSync(process.env.ORRELIX_PAGES).filter((name) => /_(plain|rich)\.html$/.test(name))
    .map((name) => path.basename(name, ".html"));

// The effect alone, in the body of a page without a style of its own.
async function bare(name) {
    const { scripts, effect } = await partsOf(name);
    return `<html lang="en"><head><title>${name}</title><meta name="viewport" content="width=device-width">
        ${scripts}</head><body>${effect}</body></html>`;
}

const names = [];
for (const name of PAGES)
    names.push(givePage(await bare(name), `bare_${name}`));

// The contrast of colours is the author's, and what a page needs besides its effects is the page's.
const RULES = ["wcag2a", "wcag2aa", "wcag21a", "wcag21aa", "wcag22aa", "best-practice"];
const NOT_OURS = ["color-contrast", "region", "landmark-one-main", "page-has-heading-one"];

testEverywhere(names[0], "on a small screen no page scrolls sideways, and a tool for accessibility finds nothing", async ({ page }) => {
    const found = [];
    for (const name of names) {
        await goOn(page, name);
        const width = await page.evaluate(() => document.scrollingElement.scrollWidth);
        if (width > 360)
            found.push(`${name}: ${width} px`);
        await page.evaluate(AXE);
        const { violations } = await page.evaluate((tags) => window.axe.run({ runOnly: tags }), RULES);
        for (const { id, nodes } of violations)
            if (!NOT_OURS.includes(id))
                found.push(`${name}: ${id} ${nodes[0].html.slice(0, 80)}`);
    }
    assert.deepEqual(found, []);
}, { viewport: { width: 360, height: 640 } });
