// All nine effects on one page, as a visitor finds them: none may keep another from its work.
import assert from "node:assert/strict";
import { givePage, pageText, testEverywhere, watch } from "./harness.mjs";

const effects = ["animate_text", "text_show", "calander", "cool_link", "scroll_text", "fade_select", "tool_tip", "today_ca",
    "dance_text"];
let head = "";
let body = "";
for (const effect of effects) {
    const [, pageHead, pageBody] = /<head>(.*)<\/head>.*<body[^>]*>(.*)<\/body>/s.exec(await pageText(`${effect}_plain`));
    head += (pageHead.match(/<script[^>]*\ssrc=[^>]*><\/script>/gi) ?? []).join("");
    body += `<section id="${effect}" style="position:relative;min-height:420px">${pageBody}</section>`;
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
}, { context: { viewport: { width: 1000, height: 4200 } } }); // what is out of view rests
