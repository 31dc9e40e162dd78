// Every example published into the page of its effect, each in a site of its own: the page loads without a complaint
// in its console (a file that isn't found is one), and the effect stands where it was marked.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { mkdirSync, readdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import path from "node:path";
import { goOn, testEverywhere } from "./harness.mjs";

const root = path.resolve(import.meta.dirname, "../..");
const sites = path.join(process.env.ORRELIX_PAGES, "published");
const MARK = /<!-- vignel: \w+ -->/;

// Gives the page's name for the harness.
function publish(example) {
    const effect = example.replace(/_(plain|rich)\.cfg$/, "");
    const [, title] = /^Title = (\w+)/m.exec(readFileSync(path.join(root, "examples", example), "latin1"));
    const site = path.join(sites, path.basename(example, ".cfg"));
    const page = path.join(site, "index.html");
    const text = readFileSync(path.join(root, "examples/pages", `${effect}.html`), "latin1");
    mkdirSync(site, { recursive: true });
    writeFileSync(page, text.replace(MARK, `<div id="before"></div><!-- vignel: ${title} --><div id="after"></div>`), "latin1");
    execFileSync(process.env.ORRELIX_PROGRAM,
        ["publish", `examples/${example}`, "--page", page, "--site", site, "--code-page", "936"], { cwd: root });
    return path.relative(process.env.ORRELIX_PAGES, page).replace(/\.html$/, "");
}

rmSync(sites, { recursive: true, force: true });
const examples = readdirSync(path.join(root, "examples")).filter((name) => name.endsWith(".cfg"));
assert.ok(examples.length > 0);
const pages = examples.map(publish);
testEverywhere(pages[0], "every published example loads and shows its effect", async ({ page, errors }) => {
    for (const name of pages) {
        await goOn(page, name);
        const height = await page.evaluate(() => {
            const effect = document.createRange();
            effect.setStartAfter(document.getElementById("before"));
            effect.setEndBefore(document.getElementById("after"));
            return effect.getBoundingClientRect().height;
        });
        assert.ok(height > 12, `${name}: ${height} px high`);
        assert.deepEqual(await page.evaluate(() => [...document.images].filter((image) => image.naturalWidth === 0)
            .map((image) => image.src)), [], name);
        assert.deepEqual(errors, [], name);
    }
});
