// Lists, tips and calendars on the pages of others: under their style sheets, on paper, and for a long visit.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { countListeners, givePage, partsOf, testEverywhere } from "./harness.mjs";

const EFFECTS = ["calander", "today_ca", "cool_link", "fade_select", "tool_tip"];

// What hurts of the style sheets that many pages begin with.
const SHEETS = [
    "* { box-sizing: border-box; margin: 0 }",
    `*, ::before, ::after { box-sizing: border-box; margin: 0; padding: 0; border: 0 solid #ddd }
    body { line-height: 1.5 } table { border-collapse: collapse; text-indent: 0; border-color: inherit }
    img, svg { display: block; max-width: 100%; height: auto; vertical-align: middle }
    button, input { font: inherit; color: inherit; background: transparent; letter-spacing: inherit }`,
    `body { line-height: 1.6 } table { width: 100%; margin: 0 0 1rem; border-collapse: collapse }
    th, td { padding: 0.5rem 1rem; border-bottom: 1px solid #e7eaf0; background-color: #fff; color: #646b79;
        font-weight: 400; text-align: start }
    input:not([type=checkbox], [type=radio]) { width: 100%; height: 3rem; margin-bottom: 1rem; padding: 0.75rem 1rem;
        border: 1px solid #cfd5e2; border-radius: 0.25rem; font-size: 1rem; box-shadow: 0 0 4px #000 }
    [type=button] { display: inline-block; background: #0172ad; color: #fff } img { max-width: 100%; height: auto }`,
    `caption { padding: 0.5rem 0; color: #6c757d; caption-side: bottom } th { text-align: inherit }
    thead, tbody, tr, td, th { border: 0 solid inherit } img, svg { vertical-align: middle }
    table { border-collapse: collapse } [role=button], [type=button]:not(:disabled) { cursor: pointer; appearance: button }`,
];

const PLAIN_PARTS = `<form aria-label="f"><table><caption>c</caption><tr><th>t</th><td class="option"><img alt=""><input aria-label="i"><input type="button" value="b"></table>
    <span size="2" class="select"><div>x</div></span><nobr title="n">n</nobr><div role="listbox" popover>p</div></form>`;
let head = "";
let body = "";
for (const effect of EFFECTS) {
    const parts = await partsOf(`${effect}_rich`);
    head += parts.scripts;
    body += `<section id="${effect}" style="min-height: 300px">${parts.effect}</section>`;
}
const sheets = SHEETS.map((sheet) => `<style class="theirs">${sheet}</style>`).join("");
const page = givePage(`<!DOCTYPE html><html lang="en"><head><title>All</title>${sheets}${head}</head>
    <body><main><h1>All</h1>${body}<section id="others">${PLAIN_PARTS}</section></main></body></html>`);

// Of an effect's elements what can be seen, with the place of each in its effect.
const look = `(effect) => {
    const outer = document.querySelector(effect === "tool_tip" ? "[role=tooltip]" : "#" + effect + " table");
    const from = outer.getBoundingClientRect();
    return [outer, ...outer.querySelectorAll("*")].filter((part) => part.checkVisibility()).map((part) => {
        const { x, y, width, height } = part.getBoundingClientRect();
        const place = [x - from.x, y - from.y, width, height].map((length) => Math.round(length));
        const style = getComputedStyle(part);
        return [part.localName, ...place, ...["color", "backgroundColor", "border", "fontSize", "boxShadow", "cursor"]
            .map((name) => style[name].replace(/^0px .*/, "none"))].join(" ");
    });
}`;

testEverywhere(page, "they look as on a page of their own, and leave the page's own parts alone", async ({ page }) => {
    const seen = await page.evaluate(`(() => {
        const look = ${look};
        const theirs = [...document.querySelectorAll(".theirs")];
        return [null, ...theirs].map((on) => {
            for (const sheet of theirs)
                sheet.disabled = sheet !== on;
            return ${JSON.stringify(EFFECTS)}.map((effect) => {
                const field = document.querySelector("#" + effect + " [role=combobox]");
                const tipped = document.querySelector("#" + effect + " [tooltip]");
                field?.click();
                tipped?.dispatchEvent(new PointerEvent("click", { pointerType: "touch", bubbles: true, cancelable: true }));
                const parts = look(effect);
                for (const target of [field, tipped])
                    target?.dispatchEvent(new KeyboardEvent("keydown", { key: "Escape", bubbles: true }));
                document.dispatchEvent(new PointerEvent("pointerdown"));
                return parts;
            });
        });
    })()`);
    const [alone, ...themed] = seen;
    themed.forEach((effects, n) => effects.forEach((parts, i) =>
        assert.deepEqual(parts, alone[i], `${EFFECTS[i]} under\n${SHEETS[n]}`)));

    const reached = await page.evaluate(() => [...document.styleSheets]
        .filter((sheet) => sheet.ownerNode.parentElement === document.head && sheet.ownerNode.className !== "theirs")
        .flatMap((sheet) => [...sheet.cssRules].flatMap((rule) => [...(rule.cssRules?.length ? rule.cssRules : [rule])]))
        .map((rule) => rule.selectorText)
        .filter((selector) => document.querySelector(`#others :is(${selector})`) || document.body.matches(selector)));
    assert.deepEqual(reached, []);
}, { viewport: { width: 1000, height: 2500 } }); // every list has room below

testEverywhere(page, "they stand whole on paper", async ({ page }) => {
    // Not every driver can ask its browser for it: what is said for paper is made to hold on the screen.
    await page.evaluate(() => {
        for (const rule of [...document.styleSheets].flatMap((sheet) => [...sheet.cssRules]))
            if (rule.media?.mediaText === "print")
                rule.media.mediaText = "all";
    });
    for (const text of ["Tuesday to Saturday", "and by appointment", "Write to us", "No address", "30"])
        assert.ok(await page.getByText(text).first().isVisible(), text);
});

testEverywhere(page, "six hundred openings of lists and tips leave nothing behind", async ({ page }) => {
    // Opens and closes each of the three n times.
    const open = (times) => page.evaluate((n) => {
        const escape = (target) => target.dispatchEvent(new KeyboardEvent("keydown", { key: "Escape", bubbles: true }));
        for (let i = 0; i < n; i++) {
            for (const field of document.querySelectorAll("[role=combobox]")) {
                field.click();
                escape(field);
            }
            const tipped = document.querySelector("[tooltip]");
            tipped.dispatchEvent(new PointerEvent("click", { pointerType: "touch", bubbles: true, cancelable: true }));
            escape(tipped);
            document.dispatchEvent(new PointerEvent("pointerdown"));
        }
    }, times);
    const count = () => page.evaluate(() => [document.querySelectorAll("*").length, window.nListening]);
    await open(2);
    const before = await count();
    await open(200);
    assert.deepEqual(await count(), before);
}, { before: countListeners });

const AXE = readFileSync(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");
testEverywhere(page, "axe finds nothing but contrasts of the author's colours", async ({ page }) => {
    await page.evaluate(AXE);
    for (const bOpen of [false, true]) {
        const found = await page.evaluate((open) => {
            if (open) {
                document.querySelector("[role=combobox]").click();
                document.querySelector("[tooltip]").dispatchEvent(new PointerEvent("click", { pointerType: "touch", bubbles: true }));
            }
            return axe.run(document, { rules: { "color-contrast": { enabled: false } } })
                .then(({ violations }) => violations.map(({ id, nodes }) => [id, ...nodes.map((node) => node.html)]));
        }, bOpen);
        assert.deepEqual(found, []);
    }
});
