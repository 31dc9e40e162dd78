// All nine effects on one page, as a visitor finds them: none may keep another from its work.
import assert from "node:assert/strict";
import { givePage, pageText, testBothModes, watch } from "./harness.mjs";

const effects = [
    "animate_text",
    "text_show",
    "calander",
    "cool_link",
    "scroll_text",
    "fade_select",
    "tool_tip",
    "today_ca",
    "dance_text",
];

async function pageOfAll() {
    let head = "";
    let body = "";
    for (const effect of effects) {
        const page = await pageText(`${effect}_plain`);
        const [, pageHead, pageBody] = /<head>(.*)<\/head>.*<body[^>]*>(.*)<\/body>/s.exec(page);
        head += (pageHead.match(/<script[^>]*\ssrc=[^>]*><\/script>/gi) ?? []).join("");
        body += `<section id="${effect}" style="position:relative;min-height:420px">${pageBody}</section>`;
    }
    return `<html><head>${head}</head><body>${body}</body></html>`;
}

// What is seen of the effects that work by themselves.
function look() {
    const top = (selector) => Math.round(document.querySelector(selector).getBoundingClientRect().top);
    return {
        rising: top("#brndfntextanim"),
        typed: document.getElementById("typing").innerText,
        scrolled: top("#scroll_text a"),
        color: getComputedStyle(document.querySelector("#dance_text a")).color,
    };
}

const all = givePage(await pageOfAll(), "all_effects.html");

testBothModes(all, "those that move do", async ({ page }) => {
    const seen = await watch(page, look, (values) =>
        Object.keys(values[0]).every((key) => new Set(values.map((value) => value[key])).size > 2));
    assert.ok(seen.every(({ typed }) => "Slide Text. It is an example".startsWith(typed)));
});

testBothModes(all, "those that answer do", async ({ page }) => {
    const now = new Date();
    for (const calendar of ["calander", "today_ca"]) {
        const today = page.locator(`#${calendar} [aria-current=date]`);
        assert.equal(await today.evaluate((cell) => cell.value ?? cell.textContent), `${now.getDate()}`, calendar);
    }
    await page.getByRole("button", { name: "Next year" }).click();
    const shownYear = await page.locator("#today_ca input").nth(1).inputValue();
    assert.equal(shownYear, `${now.getFullYear() + 1}`);

    for (const list of ["cool_link", "fade_select"]) {
        await page.locator(`#${list} [role=combobox]`).click();
        await page.getByRole("option").first().waitFor();
        await page.keyboard.press("Escape");
        await page.getByRole("option").first().waitFor({ state: "hidden" });
    }
    await page.locator("#tool_tip a").hover();
    await page.getByRole("tooltip").waitFor();
});
