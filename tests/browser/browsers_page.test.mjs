// docs/browsers.md says of each effect in which browser, in which mode and how it is shown to work: what the tests of
// this folder declare, and nothing else. Where it differs, the page as it would have to be is left beside it.
import test from "node:test";
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { readFileSync, readdirSync, writeFileSync } from "node:fs";
import path from "node:path";

const PAGE = path.join(import.meta.dirname, "../../docs/browsers.md");
const EFFECTS = ["Animate Text", "Slide Text", "Calender", "Link Select Table", "Scroll Text", "Fade Select Box", "ToolTip",
    "Cool Calender", "Color Link"];
const WAYS = ["mouse", "keys", "touch"];
const NAMES = { chromium: "Chromium", firefox: "Firefox" };

const told = readdirSync(import.meta.dirname)
    .filter((file) => file.endsWith(".test.mjs") && file !== path.basename(import.meta.filename))
    .filter((file) => readFileSync(path.join(import.meta.dirname, file), "utf8").includes("shows: {"))
    .flatMap((file) => execFileSync(process.execPath, [file], {
        cwd: import.meta.dirname, encoding: "utf8",
        env: { ...process.env, ORRELIX_ONLY_TELL: "1", NODE_TEST_CONTEXT: undefined },
    }).split("\n").filter((line) => line.startsWith('{"effect"')).map((line) => ({ file, ...JSON.parse(line) })));

const row = (cells) => `| ${cells.join(" | ")} |`;
const table = (head, rows) => [row(head), row(head.map(() => "---")), ...rows.map(row)].join("\n");

function cells() {
    const columns = Object.keys(NAMES).flatMap((browser) => ["quirks", "standards"].map((mode) => [browser, mode]));
    return table(["effect", ...columns.map(([browser, mode]) => `${NAMES[browser]}, ${mode}`)], EFFECTS.map((effect) =>
        [effect, ...columns.map(([browser, mode]) => WAYS.filter((way) => told.some((one) => one.effect === effect
            && one.way === way && one.browsers.includes(browser) && one.modes.includes(mode))).join(", "))]));
}

function proofs() {
    const ways = new Map();
    for (const { effect, way, title, file } of told) {
        const key = [effect, `\`${file}\`: ${title}`];
        ways.set(key.join(), { key, ways: [...(ways.get(key.join())?.ways ?? []), way] });
    }
    const rows = [...ways.values()].map(({ key: [effect, proof], ways: by }) => [effect, by.join(", "), proof]);
    return table(["effect", "by", "shown by"], EFFECTS.flatMap((effect) => rows.filter(([first]) => first === effect)));
}

test("docs/browsers.md says what the browser tests show", () => {
    const page = readFileSync(PAGE, "utf8");
    const fill = (text, name, content) => text.replace(new RegExp(`(<!-- ${name} -->\n)[^]*?(\n<!-- end -->)`), `$1${content}$2`);
    const wanted = fill(fill(page, "cells", cells()), "proofs", proofs());
    if (page !== wanted)
        writeFileSync(`${PAGE}.new`, wanted);
    assert.equal(page, wanted);
    assert.doesNotMatch(cells(), /\| +\|/, "every cell is shown");
});
