// Under style sheets that many pages have, an effect looks as on a page without them: to the pixel, in a frame that
// inherits nothing from the page.
import assert from "node:assert/strict";
import { writeFileSync } from "node:fs";
import { givePage, goOn, nextFrame, partsOf, testEverywhere } from "./harness.mjs";

const RESET = "<style>* { box-sizing: border-box; margin: 0; padding: 0 } p, a, td, span { color: teal }</style>";
const SHEETS = ["pico", "bootstrap", "tailwind"].map((name) => `<link rel="stylesheet" href="${name}.css">`);
const EFFECTS = ["animate_text", "text_show", "dance_text", "scroll_text"];

for (const effect of EFFECTS) {
    const parts = await partsOf(`${effect}_rich`);
    const [plain, ...others] = ["", RESET, ...SHEETS].map((sheet, i) => givePage(`<html><head>${sheet}${parts.scripts}</head>
        <body style="height: 400px; color: black">
        <div id="frame" style="all: initial; position: absolute; left: 8px; top: 8px; background: white;
        width: 800px; height: 300px">${parts.effect}</div>
        </body></html>`, `${effect}_styled_${i}`));
    testEverywhere(plain, "looks the same under style sheets of others", async ({ page, mode, browser }) => {
        const look = () => nextFrame(page).then(() => page.locator("#frame").screenshot());
        const wanted = await look();
        for (const other of others) {
            await goOn(page, other);
            const seen = await look();
            if (!wanted.equals(seen) && process.env.ORRELIX_SEEN)
                for (const [i, picture] of [wanted, seen].entries())
                    writeFileSync(`${process.env.ORRELIX_SEEN}/${other}-${browser}-${mode}-${i}.png`, picture);
            assert.ok(wanted.equals(seen), other);
        }
    }, { calm: true });
}
